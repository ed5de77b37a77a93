#include <condtree/editing/ClickTracker.h>

#include <gtest/gtest.h>

#include <vector>

namespace condtree {
namespace {

struct Movement {
    const char* name;
    std::vector<POINT> way; ///< pressed at the first point, released at the last one
    bool isClick;
};

void PrintTo(const Movement& movement, std::ostream* out)
{
    *out << movement.name;
}

class ClickTrackerMovements : public testing::TestWithParam<Movement> {};

TEST_P(ClickTrackerMovements, OnlyOneThatStaysNearIsAClick)
{
    const Movement& movement = GetParam();
    ClickTracker tracker;
    tracker.press(movement.way.front());
    for (std::size_t step = 1; step + 1 < movement.way.size(); ++step)
        tracker.move(movement.way[step]);
    EXPECT_EQ(tracker.release(movement.way.back()), movement.isClick);
    EXPECT_FALSE(tracker.release(movement.way.back())) << "one press makes one click";
}

INSTANTIATE_TEST_SUITE_P(
    All, ClickTrackerMovements,
    testing::Values(Movement{"still", {{10, 20}, {10, 20}}, true},
                    Movement{"right, 4", {{10, 20}, {14, 20}}, true},
                    Movement{"right, 5", {{10, 20}, {15, 20}}, false},
                    Movement{"left, 4", {{10, 20}, {6, 20}}, true},
                    Movement{"left, 5", {{10, 20}, {5, 20}}, false},
                    Movement{"down, 4", {{10, 20}, {10, 24}}, true},
                    Movement{"down, 5", {{10, 20}, {10, 25}}, false},
                    Movement{"up, 4", {{10, 20}, {10, 16}}, true},
                    Movement{"up, 5", {{10, 20}, {10, 15}}, false},
                    Movement{"both, 4", {{10, 20}, {14, 16}}, true},
                    Movement{"a little on the way", {{0, 0}, {4, -4}, {-4, 4}, {0, 0}}, true},
                    Movement{"away and back", {{0, 0}, {0, 5}, {0, 0}}, false}));

TEST(ClickTracker, WithoutAPressNothingIsAClick)
{
    ClickTracker tracker;
    EXPECT_FALSE(tracker.move({0, 0}));
    EXPECT_FALSE(tracker.release({0, 0}));
}

TEST(ClickTracker, ACancelledPressIsNoClick)
{
    ClickTracker tracker;
    tracker.press({0, 0});
    EXPECT_TRUE(tracker.move({1, 1}));
    tracker.cancel();
    EXPECT_FALSE(tracker.move({1, 1}));
    EXPECT_FALSE(tracker.release({0, 0}));
    tracker.press({0, 0});
    EXPECT_TRUE(tracker.release({0, 0}));
}

TEST(ClickTracker, ASecondPressNeedsAFirstOneThereAndThen)
{
    ClickTracker tracker;
    EXPECT_FALSE(tracker.isSecondPress({10, 10}, 1000, 400)) << "the first went elsewhere";
    tracker.press({10, 10}, 1000);
    EXPECT_TRUE(tracker.isSecondPress({14, 6}, 1400, 400));
    EXPECT_FALSE(tracker.isSecondPress({10, 10}, 1401, 400)) << "the first is too long ago";
    EXPECT_FALSE(tracker.isSecondPress({15, 10}, 1001, 400)) << "the first was elsewhere";
}

} // namespace
} // namespace condtree
