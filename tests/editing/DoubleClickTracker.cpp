#include <condtree/editing/DoubleClickTracker.h>

#include <gtest/gtest.h>

#include <vector>

namespace condtree::test {
namespace {

struct Press {
    POINT point;
    bool onTarget;
    DWORD tick;
    bool isDoubleClick;
};

struct Row {
    const char* name;
    SIZE size;
    std::vector<Press> presses;
};

// The time is 500 everywhere.
const std::vector<Row> kRows{
    {"the first press, as early as can be", {4, 4}, {{{0, 0}, true, 0, false}}},
    {"at once, on the spot", {4, 4}, {{{50, 60}, true, 1000, false}, {{50, 60}, true, 1000, true}}},
    {"at the end of the time",
     {4, 4},
     {{{50, 60}, true, 1000, false}, {{50, 60}, true, 1500, true}}},
    {"too late", {4, 4}, {{{50, 60}, true, 1000, false}, {{50, 60}, true, 1501, false}}},
    {"too late, and then in time again",
     {4, 4},
     {{{50, 60}, true, 1000, false}, {{50, 60}, true, 1501, false}, {{50, 60}, true, 2001, true}}},
    {"left edge", {4, 4}, {{{50, 60}, true, 0, false}, {{48, 60}, true, 1, true}}},
    {"left of it", {4, 4}, {{{50, 60}, true, 0, false}, {{47, 60}, true, 1, false}}},
    {"last column", {4, 4}, {{{50, 60}, true, 0, false}, {{51, 60}, true, 1, true}}},
    {"right of it", {4, 4}, {{{50, 60}, true, 0, false}, {{52, 60}, true, 1, false}}},
    {"top edge", {4, 4}, {{{50, 60}, true, 0, false}, {{50, 58}, true, 1, true}}},
    {"above it", {4, 4}, {{{50, 60}, true, 0, false}, {{50, 57}, true, 1, false}}},
    {"last line", {4, 4}, {{{50, 60}, true, 0, false}, {{50, 61}, true, 1, true}}},
    {"below it", {4, 4}, {{{50, 60}, true, 0, false}, {{50, 62}, true, 1, false}}},
    // Halves are truncated: 5 reaches 2 back and 2 ahead, 7 reaches 3.
    {"odd width, left edge", {5, 7}, {{{50, 60}, true, 0, false}, {{48, 60}, true, 1, true}}},
    {"odd width, left of it", {5, 7}, {{{50, 60}, true, 0, false}, {{47, 60}, true, 1, false}}},
    {"odd width, last column", {5, 7}, {{{50, 60}, true, 0, false}, {{52, 60}, true, 1, true}}},
    {"odd width, right of it", {5, 7}, {{{50, 60}, true, 0, false}, {{53, 60}, true, 1, false}}},
    {"odd height, top edge", {5, 7}, {{{50, 60}, true, 0, false}, {{50, 57}, true, 1, true}}},
    {"odd height, below it", {5, 7}, {{{50, 60}, true, 0, false}, {{50, 64}, true, 1, false}}},
    {"no size", {0, 0}, {{{50, 60}, true, 0, false}, {{50, 60}, true, 1, false}}},
    {"the second press on no target",
     {4, 4},
     {{{50, 60}, true, 0, false}, {{50, 60}, false, 1, false}}},
    {"the first press on no target",
     {4, 4},
     {{{50, 60}, false, 0, false}, {{50, 60}, true, 1, true}}},
    {"a press beside it is the first of the next",
     {4, 4},
     {{{50, 60}, true, 0, false}, {{90, 60}, true, 100, false}, {{90, 60}, true, 600, true}}},
    {"what completes one does not begin another",
     {4, 4},
     {{{50, 60}, true, 0, false}, {{50, 60}, true, 400, true}, {{50, 60}, true, 501, false}}},
    {"the count of ticks is about to wrap around",
     {4, 4},
     {{{50, 60}, true, 0xFFFFFF00U, false}, {{50, 60}, true, 0xFFFFFF80U, true}}},
    {"the count of ticks wraps around, in time",
     {4, 4},
     {{{50, 60}, true, 0xFFFFFF00U, false}, {{50, 60}, true, 0x000000F4U, true}}},
    {"the count of ticks wraps around, too late",
     {4, 4},
     {{{50, 60}, true, 0xFFFFFF00U, false}, {{50, 60}, true, 0x000000F5U, false}}},
};

TEST(DoubleClickTracker, TwoPressesBelongTogetherByTimePlaceAndTarget)
{
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        DoubleClickTracker tracker(500, row.size);
        for (const Press& press : row.presses)
            EXPECT_EQ(tracker.press(press.point, press.onTarget, press.tick), press.isDoubleClick);
    }
}

} // namespace
} // namespace condtree::test
