#include <condtree/presentation/RowMarks.h>

#include "presentation/PictureText.h"

#include <gtest/gtest.h>

#include <vector>

using namespace condtree;
using namespace condtree::test;

namespace {

struct Row {
    RowMarks marks;
    const char* picture;
};

TEST(RowMarks, EachMarkHasItsPrimitives)
{
    const std::vector<Row> rows{
        {{false, false, false}, ""},
        {{true, false, false},
         "\ntint (5,40)-(405,62) D77800 48"
         "\nfill (5,40)-(8,62) D77800"},
        {{false, true, false}, "\ntint (5,40)-(405,62) D77800 18"},
        {{true, true, false},
         "\ntint (5,40)-(405,62) D77800 48"
         "\nfill (5,40)-(8,62) D77800"},
        {{false, false, true}, "\nframe (5,40)-(405,62) D77800"},
        {{false, true, true},
         "\ntint (5,40)-(405,62) D77800 18"
         "\nframe (5,40)-(405,62) D77800"},
        {{true, false, true},
         "\ntint (5,40)-(405,62) D77800 48"
         "\nfill (5,40)-(8,62) D77800"
         "\nframe (5,40)-(405,62) D77800"},
        {{false, false, false, true},
         "\ntint (5,40)-(405,62) D77800 48"
         "\nframe (5,40)-(405,62) D77800"
         "\nframe (6,41)-(404,61) D77800"},
        {{true, true, true, true},
         "\ntint (5,40)-(405,62) D77800 48"
         "\nfill (5,40)-(8,62) D77800"
         "\nframe (5,40)-(405,62) D77800"
         "\nframe (6,41)-(404,61) D77800"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(toText(describeMarks({5, 40, 405, 62}, row.marks, 0x00D77800)), row.picture);
}

} // namespace
