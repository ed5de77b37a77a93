// Rows that come, go, open and close while a list is open: one that no longer lies over its row
// goes and chooses nothing, others stay.
#include "ClickFixture.h"

namespace condtree::test {
namespace {

class ListShift : public ClickFixture {
protected:
    struct Act {
        const char* name;
        std::function<void()> act;
        bool isAboveClosed = false; ///< the group above is closed before the list opens
        bool isBelowClosed = false; ///< and the one below
    };

    /// A group with a row in it, a row, and another group with a row in it; the list over the row
    /// between them.
    VarTreeCtrlNode& openBetween(int column, const Act& act)
    {
        closeAll();
        loaded({});
        m_below = add({NodeOr}).mhItem;
        m_belowRow = add({FilePath, "B"}, node(m_below)).mhItem;
        VarTreeCtrlNode& row = add({FilePath, "FilePath", "v", "", 120});
        m_above = add({NodeOr}).mhItem;
        m_aboveRow = add({FilePath, "A"}, node(m_above)).mhItem;
        control->expandAll();
        if (act.isAboveClosed)
            control->collapse(control->model()->index(0, 0));
        if (act.isBelowClosed)
            control->collapse(control->model()->index(2, 0));
        letEventsPass();
        changes = 0;
        control->closeUps = 0;
        click(row, column);
        EXPECT_TRUE(isOpen());
        return row;
    }
    [[nodiscard]] VarTreeCtrlNode* node(HTREEITEM item) const { return control->mpoGetNode(item); }
    [[nodiscard]] QModelIndex above() const { return control->model()->index(0, 0); }
    [[nodiscard]] QModelIndex below() const { return control->model()->index(2, 0); }
    void addLast(HTREEITEM parent)
    {
        control->mhAddNode(node(parent), makeNode({Revision, "R"}).release(), false);
    }

    HTREEITEM m_above = nullptr;
    HTREEITEM m_aboveRow = nullptr;
    HTREEITEM m_below = nullptr;
    HTREEITEM m_belowRow = nullptr;
};

TEST_F(ListShift, AListWhoseRowMovesGoesAndChoosesNothing)
{
    start();
    const Act acts[] = {
        {"adds a row above",
         [this] {
             add({Revision, "R"});
         }},
        {"adds a row to the open group above", [this] { addLast(m_above); }},
        {"removes a row above", [this] { control->mvDeleteNode(m_aboveRow); }},
        {"removes the group above", [this] { control->mvDeleteNode(m_above); }},
        {"closes the group above", [this] { control->collapse(above()); }},
        {"opens the group above", [this] { control->expand(above()); }, true},
        {"makes a row above a group", [this] { control->mvChangeNodeType(*node(m_aboveRow), Or); }},
        {"makes the group above a row",
         [this] { control->mvChangeNodeType(*node(m_above), FilePath); }},
    };
    // The list of kinds has a choice that would change the row; the others have none.
    for (const int column : {0, 1}) {
        for (const Act& act : acts) {
            SCOPED_TRACE(std::string(act.name) + ", column " + std::to_string(column));
            const VarTreeCtrlNode& row = openBetween(column, act);
            act.act();
            letEventsPass();
            EXPECT_EQ(combos(), 0);
            EXPECT_EQ(control->closeUps, 0);
            EXPECT_EQ(changes, 0);
            EXPECT_EQ(toText(row), "5 FilePath | v op=120");
        }
    }
}

TEST_F(ListShift, AListWhoseRowStaysWhereItIsStays)
{
    start();
    const Act acts[] = {
        {"adds a row below", [this] { addLast(TVI_ROOT); }},
        {"adds a row to the group below", [this] { addLast(m_below); }},
        {"removes a row below", [this] { control->mvDeleteNode(m_belowRow); }},
        {"removes the group below", [this] { control->mvDeleteNode(m_below); }},
        {"removes the placeholder", [this] { control->mvDeleteNode(placeholder().mhItem); }},
        {"closes the group below", [this] { control->collapse(below()); }},
        {"opens the group below", [this] { control->expand(below()); }, false, true},
        {"makes the group below a row",
         [this] { control->mvChangeNodeType(*node(m_below), FilePath); }},
        {"adds a row to the closed group above", [this] { addLast(m_above); }, true},
        {"removes a row of the closed group above", [this] { control->mvDeleteNode(m_aboveRow); },
         true},
    };
    for (const int column : {0, 1}) {
        for (const Act& act : acts) {
            SCOPED_TRACE(std::string(act.name) + ", column " + std::to_string(column));
            const VarTreeCtrlNode& row = openBetween(column, act);
            act.act();
            letEventsPass();
            ASSERT_TRUE(isOpen());
            EXPECT_EQ(control->closeUps, 0);
            EXPECT_EQ(toText(row), "5 FilePath | v op=120");
            choose(column == 0 ? "Revision" : "String Equal To");
            EXPECT_EQ(toText(row), column == 0 ? "7 Revision op=120" : "5 FilePath | v op=100");
            EXPECT_EQ(changes, 1);
        }
    }
}

TEST_F(ListShift, AListGoesWithTheConditionThatItWasFor)
{
    start();
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"loads another condition",
         [this] { control->mvLoad({record(3, 2, "Title", "t", 1, 100)}); }},
        {"loads none", [this] { control->mvLoad({}); }},
        {"clears the tree", [this] { control->mvDeleteNode(TVI_ROOT); }},
    };
    for (const int column : {0, 1}) {
        for (const auto& [name, way] : ways) {
            SCOPED_TRACE(std::string(name) + ", column " + std::to_string(column));
            openBetween(column, {});
            way();
            const std::string after = rows();
            letEventsPass();
            EXPECT_EQ(combos(), 0);
            EXPECT_EQ(control->closeUps, 0);
            EXPECT_EQ(changes, 0);
            EXPECT_EQ(rows(), after);
        }
    }
}

TEST_F(ListShift, AListGoesWhenConditionsAboveItAreTakenOut)
{
    start();
    const VarTreeCtrlNode& row = add({FilePath, "FilePath", "v", "", 120});
    add({ChildRefState, "S", "Release.Open", "", 100, 0, 12});
    letEventsPass();
    click(row, 0);
    ASSERT_TRUE(isOpen());
    control->mvRemoveChildRefConditions();
    letEventsPass();
    EXPECT_EQ(combos(), 0);
    EXPECT_EQ(control->closeUps, 0);
    EXPECT_EQ(toText(row), "5 FilePath | v op=120");
}

} // namespace
} // namespace condtree::test
