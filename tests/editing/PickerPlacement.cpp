#include <condtree/editing/PickerPlacement.h>

#include <gtest/gtest.h>

namespace condtree::test {
namespace {

constexpr RECT kScreen{0, 0, 800, 600};
constexpr RECT kLeftScreen{-1000, 50, 0, 650};
constexpr SIZE kSize{200, 150};

struct Row {
    const char* name;
    RECT cell;
    SIZE size;
    RECT screen;
    POINT corner;
};

const Row kRows[] = {
    {"directly below, left edges aligned", {100, 80, 180, 100}, kSize, kScreen, {100, 100}},
    {"at the left edge", {0, 80, 180, 100}, kSize, kScreen, {0, 100}},
    {"just room below", {100, 430, 180, 450}, kSize, kScreen, {100, 450}},
    {"no room below", {100, 431, 180, 451}, kSize, kScreen, {100, 281}},
    {"just room above", {100, 150, 180, 580}, kSize, kScreen, {100, 0}},
    {"room neither below nor above", {100, 149, 180, 580}, kSize, kScreen, {100, 450}},
    {"just room to the right", {600, 80, 700, 100}, kSize, kScreen, {600, 100}},
    {"no room to the right", {601, 80, 700, 100}, kSize, kScreen, {600, 100}},
    {"the cell begins left of the screen", {-30, 80, 100, 100}, kSize, kScreen, {0, 100}},
    {"the cell is above the screen", {100, -90, 180, -70}, kSize, kScreen, {100, 0}},
    {"the cell is below the screen", {100, 700, 180, 720}, kSize, kScreen, {100, 450}},
    {"right and below", {790, 590, 900, 610}, kSize, kScreen, {600, 440}},
    {"another screen", {-900, 100, -800, 120}, kSize, kLeftScreen, {-900, 120}},
    {"another screen, at its end", {-100, 600, -50, 620}, kSize, kLeftScreen, {-200, 450}},
    {"larger than the screen", {100, 80, 180, 100}, {900, 700}, kScreen, {0, 0}},
};

TEST(PickerPlacement, ThePickerIsBelowItsCellAndOnTheScreen)
{
    for (const Row& row : kRows)
        EXPECT_EQ(placePicker(row.cell, row.size, row.screen), row.corner) << row.name;
}

TEST(PickerPlacement, DialogUnitsAreQuartersAndEighthsOfACharacter)
{
    EXPECT_EQ(fromDialogUnits({143, 95}, {4, 8}), (SIZE{143, 95}));
    EXPECT_EQ(fromDialogUnits({143, 95}, {6, 13}), (SIZE{215, 154})); // 214.5 and 154.375
    EXPECT_EQ(fromDialogUnits({143, 95}, {7, 16}), (SIZE{250, 190})); // 250.25
}

} // namespace
} // namespace condtree::test
