#include <condtree/presentation/CustomDraw.h>

#include <gtest/gtest.h>

using namespace condtree;

namespace {

TEST(CustomDraw, TheTreeIsAskedToTellOfItsRows)
{
    EXPECT_EQ(customDrawAnswer(1), 0x20);
}

TEST(CustomDraw, EachRowIsAskedForOnceMoreAfterTheTreeHasPaintedIt)
{
    EXPECT_EQ(customDrawAnswer(0x10001), 0x10);
}

TEST(CustomDraw, EveryOtherStageAnswersNothing)
{
    for (const DWORD stage : {0x0U, 0x2U, 0x3U, 0x4U, 0x10000U, 0x10002U, 0x10003U, 0x10004U,
                              0x20001U, 0x30001U, 0xFFFFFFFFU})
        EXPECT_EQ(customDrawAnswer(stage), 0) << stage;
}

TEST(ColourResolution, IsWhatTheScreenSays)
{
    for (const int bits : {1, 4, 8, 16, 24, 32})
        EXPECT_EQ(colourResolution(bits), bits);
}

TEST(ColourResolution, IsFourWhenTheScreenSaysNothing)
{
    EXPECT_EQ(colourResolution(0), 4);
    EXPECT_EQ(colourResolution(-1), 4);
}

} // namespace
