#include "support/WarningGuard.h"

#include <gtest/gtest.h>

#define CONDTREE_QUOTE(x) <x>
#define CONDTREE_HEADER(x) CONDTREE_QUOTE(x)
#include CONDTREE_HEADER(CONDTREE_TEST_APPLICATION)

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const CONDTREE_TEST_APPLICATION application(argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new condtree::test::WarningGuard);
    return RUN_ALL_TESTS();
}
