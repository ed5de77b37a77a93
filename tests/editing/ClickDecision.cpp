#include <condtree/editing/ClickDecision.h>
#include <condtree/model/VarTreeCtrlNode.h>

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace condtree {
// So that failures show numbers.
void PrintTo(const RECT& rect, std::ostream* out)
{
    *out << rect.left << ',' << rect.top << " - " << rect.right << ',' << rect.bottom;
}
} // namespace condtree

using namespace condtree;

namespace {

struct Name {
    std::string operator()(IgnoreClick) const { return "ignore"; }
    std::string operator()(OpenNothing) const { return "nothing"; }
    std::string operator()(OpenKindList) const { return "kinds"; }
    std::string operator()(OpenOperatorList) const { return "operators"; }
    std::string operator()(OpenValueEditor) const { return "value"; }
    std::string operator()(OpenExtraEditor) const { return "extra"; }
    std::string operator()(CloseExtraEditor) const { return "close extra"; }
};

std::string decided(unsigned flags, const VarTreeCtrlNode* node, const VarTreeCtrlNode* top,
                    int column)
{
    return std::visit(Name{}, decideClick(flags, node, top, column));
}

std::string decided(unsigned flags, LONG code, int column)
{
    const VarTreeCtrlNode top(0);
    const VarTreeCtrlNode node(code);
    return decided(flags, &node, &top, column);
}

constexpr unsigned kLabel = 0x4;
constexpr unsigned kRight = 0x20;
constexpr unsigned kToRight = 0x400;
const std::vector<unsigned> kOpening{kLabel, kRight, kToRight};

struct Row {
    const char* name;
    LONG code;
    const char* second; ///< what column 1 does
    const char* fourth; ///< what column 3 does
};

const std::vector<Row> kRows{
    {"Placeholder", -1, "nothing", "close extra"},
    {"And", 0, "nothing", "close extra"},
    {"Or", 1, "nothing", "close extra"},
    {"Two", 2, "operators", "close extra"},
    {"Category", 3, "operators", "close extra"},
    {"DocType", 4, "operators", "close extra"},
    {"FilePath", 5, "operators", "close extra"},
    {"ObjectType", 6, "operators", "close extra"},
    {"Revision", 7, "operators", "close extra"},
    {"ChildRefState", 8, "operators", "extra"},
    {"User", 9, "operators", "close extra"},
    {"Group", 10, "operators", "close extra"},
    {"OtherName", 11, "operators", "extra"},
    {"HistoricState", 12, "operators", "extra"},
    {"Text", 100, "operators", "close extra"},
    {"Number", 120, "operators", "close extra"},
    {"BelowVariable", 999, "operators", "close extra"},
    {"Variable", 1000, "operators", "extra"},
    {"AboveVariable", 1001, "operators", "close extra"},
};

class ClickDecision : public testing::TestWithParam<Row> {};

TEST_P(ClickDecision, FollowsFromTheRowsKindAndTheColumn)
{
    const Row& row = GetParam();
    for (const unsigned flags : kOpening) {
        EXPECT_EQ(decided(flags, row.code, -1), "ignore");
        EXPECT_EQ(decided(flags, row.code, 0), "kinds");
        EXPECT_EQ(decided(flags, row.code, 1), row.second);
        EXPECT_EQ(decided(flags, row.code, 2), "value");
        EXPECT_EQ(decided(flags, row.code, 3), row.fourth);
        EXPECT_EQ(decided(flags, row.code, 4), "ignore");
    }
}

TEST_P(ClickDecision, IsToIgnoreAllOtherFlags)
{
    for (unsigned flags = 0; flags <= 0xFFF; ++flags) {
        if (flags == kLabel || flags == kRight || flags == kToRight)
            continue;
        for (int column = -1; column <= 3; ++column)
            ASSERT_EQ(decided(flags, GetParam().code, column), "ignore") << flags;
    }
}

INSTANTIATE_TEST_SUITE_P(EveryKind, ClickDecision, testing::ValuesIn(kRows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ClickDecisionOf, NoNodeOrTheTopIsToIgnoreTheClick)
{
    const VarTreeCtrlNode top(0);
    const VarTreeCtrlNode asTop(1000);
    for (int column = -1; column <= 3; ++column) {
        EXPECT_EQ(decided(kRight, nullptr, &top, column), "ignore");
        EXPECT_EQ(decided(kRight, nullptr, nullptr, column), "ignore");
        EXPECT_EQ(decided(kRight, &top, &top, column), "ignore");
        EXPECT_EQ(decided(kRight, &asTop, &asTop, column), "ignore");
    }
    EXPECT_EQ(decided(kRight, &asTop, nullptr, 0), "kinds");
}

TEST(ClickDecisionOf, OnlyTheLabelAndWhatIsRightOfItOpensAnything)
{
    const std::vector<std::pair<unsigned, bool>> flags{
        {0x0, false},   {0x1, false},   {0x2, false},        {0x4, true},    {0x8, false},
        {0x10, false},  {0x20, true},   {0x40, false},       {0x80, false},  {0x100, false},
        {0x200, false}, {0x400, true},  {0x800, false},      {0x6, false},   {0x24, false},
        {0x46, false},  {0x404, false}, {0x420, false},      {0x424, false}, {0x500, false},
        {0x600, false}, {0x900, false}, {0xFFFFFFFFU, false}};
    for (const auto& [word, opens] : flags)
        EXPECT_EQ(opensAnything(word), opens) << word;
}

TEST(ComboCell, IsWidenedOverThePictureInTheFirstColumnAndAsHighAsTheDroppedList)
{
    const RECT cell{40, 23, 100, 43};
    EXPECT_EQ(comboCell(cell, 0, 16), (RECT{20, 23, 100, 473}));
    EXPECT_EQ(comboCell(cell, 0, 32), (RECT{4, 23, 100, 473}));
    EXPECT_EQ(comboCell(cell, 1, 16), (RECT{40, 23, 100, 473}));
    EXPECT_EQ(comboCell(cell, 2, 16), cell);
    EXPECT_EQ(comboCell(cell, 3, 16), cell);
    EXPECT_EQ(comboCell(cell, -1, 16), cell);
}

} // namespace
