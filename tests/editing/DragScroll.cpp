#include <condtree/editing/DragScroll.h>

#include <gtest/gtest.h>

#include <vector>

namespace condtree {
namespace {

TEST(DragScroll, TheMiddleOfAViewportDoesNotScroll)
{
    for (const LONG y : {24, 25, 150, 274, 275})
        EXPECT_EQ(dragScrollAt(y, 300), DragScroll{}) << y;
}

TEST(DragScroll, TheEdgesScrollTheirWay)
{
    EXPECT_LT(dragScrollAt(23, 300).rows, 0);
    EXPECT_LT(dragScrollAt(0, 300).rows, 0);
    EXPECT_GT(dragScrollAt(276, 300).rows, 0);
    EXPECT_GT(dragScrollAt(299, 300).rows, 0);
}

TEST(DragScroll, BothEdgesScrollAlike)
{
    for (LONG distance = -300; distance < 24; ++distance) {
        const DragScroll up = dragScrollAt(distance, 300);
        const DragScroll down = dragScrollAt(299 - distance, 300);
        EXPECT_EQ(up.rows, -down.rows) << distance;
        EXPECT_EQ(up.pause, down.pause) << distance;
    }
}

TEST(DragScroll, TheNearerTheEdgeTheFaster)
{
    const auto rowsASecond = [](LONG y) {
        const DragScroll scroll = dragScrollAt(y, 300);
        return 1000.0 * scroll.rows / scroll.pause;
    };
    for (LONG y = 276; y < 299; ++y)
        EXPECT_GT(rowsASecond(y + 1), rowsASecond(y)) << y;
    EXPECT_GT(rowsASecond(340), rowsASecond(299)) << "beyond the edge";
    EXPECT_GE(rowsASecond(276), 4) << "the slowest";
    EXPECT_LE(rowsASecond(100000), 400) << "the fastest";
    EXPECT_EQ(rowsASecond(2000000000), rowsASecond(100000));
}

TEST(DragScroll, ALowViewportKeepsAMiddle)
{
    for (const LONG height : {4, 10, 40, 95}) {
        EXPECT_EQ(dragScrollAt(height / 2, height).rows, 0) << height;
        EXPECT_LT(dragScrollAt(0, height).rows, 0) << height;
        EXPECT_GT(dragScrollAt(height - 1, height).rows, 0) << height;
    }
    EXPECT_EQ(dragScrollAt(0, 0).rows, 1) << "there is no row to scroll to, and no fault either";
}

} // namespace
} // namespace condtree
