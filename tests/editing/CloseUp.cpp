#include <condtree/editing/CloseUp.h>

#include <condtree/model/ComboCmd.h>
#include <condtree/model/VarTreeCtrlNode.h>

#include <gtest/gtest.h>

#include <functional>
#include <limits>

namespace condtree {
namespace {

constexpr LONG kLowest = std::numeric_limits<LONG>::min();
constexpr LONG kHighest = std::numeric_limits<LONG>::max();

TEST(CloseUp, AKindKeepsTheOperatorsThatSuitIt)
{
    const auto isEquality = [](LONG op) { return op == 100 || op == 101; };
    const auto isState = [](LONG op) { return op == 100 || op == 101 || op == 108; };
    const auto isText = [](LONG op) { return op >= 100 && op <= 108; };
    const auto isAny = [](LONG op) { return op >= 100 && op <= 135; };
    const struct {
        LONG kind;
        std::function<bool(LONG)> isKept;
        LONG otherwise;
    } kinds[] = {{Category, isEquality, 100},   {ObjectType, isEquality, 100},
                 {User, isEquality, 100},       {Group, isEquality, 100},
                 {FilePath, isText, 106},       {Revision, isAny, 100},
                 {ChildRefState, isState, 100}, {NodeHistoricState, isState, 100}};
    for (const auto& [kind, isKept, otherwise] : kinds) {
        for (LONG op = -2; op <= 200; ++op)
            EXPECT_EQ(keptOperator(kind, op), isKept(op) ? op : otherwise) << kind << " " << op;
        for (const LONG op : {kLowest, 1000, 1106, kHighest})
            EXPECT_EQ(keptOperator(kind, op), otherwise) << kind << " " << op;
    }
}

} // namespace
} // namespace condtree
