#include <condtree/presentation/HitTest.h>

#include <gtest/gtest.h>

#include <optional>
#include <string>

using namespace condtree;

namespace {

/// A client that does not begin at 0.
constexpr RECT kClient{10, 20, 410, 320};
/// A row with all areas, and indentation on both sides of its button.
constexpr RowAreas kRow{{10, 40, 410, 60}, 30, 50, 55, 77, 81};

struct Hit {
    const char* name;
    POINT point;
    unsigned flags;
};

std::string nameOf(const testing::TestParamInfo<Hit>& row)
{
    return row.param.name;
}

class HitOnARow : public testing::TestWithParam<Hit> {};

TEST_P(HitOnARow, IsInOneArea)
{
    EXPECT_EQ(hitFlags(GetParam().point, kClient, kRow), GetParam().flags);
}

INSTANTIATE_TEST_SUITE_P(
    HitTest, HitOnARow,
    testing::Values(Hit{"FirstPixel", {10, 40}, 0x8}, Hit{"BeforeTheButton", {29, 50}, 0x8},
                    Hit{"ButtonsFirst", {30, 50}, 0x10}, Hit{"ButtonsLast", {49, 50}, 0x10},
                    Hit{"BehindTheButton", {50, 50}, 0x8}, Hit{"BeforeThePicture", {54, 50}, 0x8},
                    Hit{"PicturesFirst", {55, 50}, 0x2}, Hit{"PicturesLast", {76, 50}, 0x2},
                    Hit{"LabelsFirst", {77, 50}, 0x4}, Hit{"LabelsLast", {80, 50}, 0x4},
                    Hit{"BehindTheLabel", {81, 50}, 0x20}, Hit{"RowsLastPixel", {409, 59}, 0x20}),
    nameOf);

class HitOutside : public testing::TestWithParam<Hit> {};

TEST_P(HitOutside, TellsEachDirectionWhateverTheRow)
{
    EXPECT_EQ(hitFlags(GetParam().point, kClient, std::nullopt), GetParam().flags);
    EXPECT_EQ(hitFlags(GetParam().point, kClient, kRow), GetParam().flags);
}

INSTANTIATE_TEST_SUITE_P(
    HitTest, HitOutside,
    testing::Values(Hit{"Above", {50, 19}, 0x100}, Hit{"Below", {50, 320}, 0x200},
                    Hit{"Right", {410, 50}, 0x400}, Hit{"Left", {9, 50}, 0x800},
                    Hit{"AboveRight", {410, 19}, 0x500}, Hit{"BelowRight", {410, 320}, 0x600},
                    Hit{"AboveLeft", {9, 19}, 0x900}, Hit{"BelowLeft", {9, 320}, 0xA00},
                    Hit{"FarBelowRight", {2147483647, 2147483647}, 0x600},
                    Hit{"FarAboveLeft", {-2147483647, -2147483647}, 0x900}),
    nameOf);

TEST(HitTest, InsideTheClientWithoutARowIsNowhere)
{
    for (const POINT& point :
         {POINT{10, 20}, POINT{409, 20}, POINT{10, 319}, POINT{409, 319}, POINT{200, 200}})
        EXPECT_EQ(hitFlags(point, kClient, std::nullopt), 0x1U);
}

TEST(HitTest, ARowThatDoesNotHoldThePointIsNone)
{
    EXPECT_EQ(hitFlags({100, 39}, kClient, kRow), 0x1U);
    EXPECT_EQ(hitFlags({100, 60}, kClient, kRow), 0x1U);
    EXPECT_EQ(hitFlags({100, 40}, kClient, kRow), 0x20U);
}

TEST(HitTest, ARowWithoutAButtonIsIndentedUpToItsPicture)
{
    RowAreas row = kRow;
    row.buttonRight = row.buttonLeft;
    for (const LONG x : {10, 29, 30, 31, 54})
        EXPECT_EQ(hitFlags({x, 50}, kClient, row), 0x8U) << x;
    EXPECT_EQ(hitFlags({55, 50}, kClient, row), 0x2U);
}

TEST(HitTest, ARowWithoutAPictureHasItsLabelBehindTheIndentation)
{
    RowAreas row = kRow;
    row.pictureLeft = row.textLeft;
    EXPECT_EQ(hitFlags({76, 50}, kClient, row), 0x8U);
    EXPECT_EQ(hitFlags({77, 50}, kClient, row), 0x4U);
}

TEST(HitTest, AnAreaBeyondTheClientIsNotHit)
{
    RowAreas row = kRow;
    row.pictureLeft = row.textLeft = 500;
    row.textRight = 504;
    EXPECT_EQ(hitFlags({409, 50}, kClient, row), 0x8U);
    EXPECT_EQ(hitFlags({410, 50}, kClient, row), 0x400U);
    EXPECT_EQ(hitFlags({501, 50}, kClient, row), 0x400U);
}

TEST(HitTest, AClientWithoutAreaHasEverythingOutside)
{
    EXPECT_EQ(hitFlags({0, 0}, RECT{0, 0, 0, 0}, std::nullopt), 0x600U);
    EXPECT_EQ(hitFlags({-1, 0}, RECT{0, 0, 0, 0}, std::nullopt), 0xA00U);
}

} // namespace
