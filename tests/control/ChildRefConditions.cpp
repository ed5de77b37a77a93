#include "ControlFixture.h"

namespace condtree::test {
namespace {

const std::string kEnd = "-1 <Click here to add a condition>\n";

class ChildRefConditions : public ControlFixture {
protected:
    ChildRefConditions() { initialize(); }
};

TEST_F(ChildRefConditions, ATreeWithoutThemHasNone)
{
    EXPECT_FALSE(control->mbHaveChildRefConditions());
    loaded({groupRecord(), record(4, 2, "Author", "a", 1, 100), record(3, 8, "", "7", 1, 100)});
    EXPECT_FALSE(control->mbHaveChildRefConditions());
}

TEST_F(ChildRefConditions, PresentAndHistoricOnesCountOnEveryLevel)
{
    for (const LONG type : {7, 10}) {
        loaded({record(3, type, "", "12", 1, 100)});
        EXPECT_TRUE(control->mbHaveChildRefConditions()) << type;
        loaded({groupRecord(), record(4, type, "", "12", 1, 100)});
        EXPECT_TRUE(control->mbHaveChildRefConditions()) << type;
    }
}

TEST_F(ChildRefConditions, OnlyWhatLiesBelowTheGivenNodeCounts)
{
    loaded({groupRecord(), groupRecord(), record(4, 7, "", "12", 1, 100)});
    EXPECT_FALSE(control->mbHaveChildRefConditions(&topRow(0)));
    EXPECT_TRUE(control->mbHaveChildRefConditions(&topRow(1)));
    EXPECT_FALSE(control->mbHaveChildRefConditions(topRow(1).mChildren[0]));
}

TEST_F(ChildRefConditions, RowsBelowAnotherRowThanAnOrGroupAreNotSearched)
{
    loaded({record(3, 2, "Author", "a", 1, 100)});
    control->mhAddNode(&topRow(0), new VarTreeCtrlNode(ChildRefState), false);
    EXPECT_FALSE(control->mbHaveChildRefConditions());
    control->mvRemoveChildRefConditions();
    EXPECT_EQ(topRow(0).mChildren.size(), 1U);
}

TEST_F(ChildRefConditions, RemovingThemKeepsGroupsPlaceholdersAndAllOtherRows)
{
    loaded({record(3, 7, "", "12", 1, 100), record(3, 2, "Author", "a", 1, 100), groupRecord(),
            record(4, 10, "", "12", 1, 100), groupRecord(), record(4, 7, "", "x", 1, 108),
            record(4, 1, "", "b", 1, 100), record(4, 7, "", "12", 1, 100)});
    control->mvRemoveChildRefConditions();
    EXPECT_EQ(rows(), "1000 Author | a op=100 arg=1\n1 Or\n  " + kEnd
                          + "1 Or\n  5 FilePath | b op=100 arg=1\n  " + kEnd + kEnd);
    EXPECT_FALSE(control->mbHaveChildRefConditions());
}

TEST_F(ChildRefConditions, OnlyThoseBelowTheGivenNodeAreRemoved)
{
    loaded({record(3, 7, "", "12", 1, 100), groupRecord(), record(4, 7, "", "12", 1, 100)});
    control->mvRemoveChildRefConditions(&topRow(1));
    EXPECT_EQ(rows(), "8 Child Reference State | Release.Open op=100 arg=1 state=12\n1 Or\n  "
                          + kEnd + kEnd);
}

TEST_F(ChildRefConditions, WithoutATreeThereIsNothingToRemove)
{
    control->mvRemoveChildRefConditions();
    EXPECT_EQ(control->mpoGetNode(TVI_ROOT), nullptr);
}

TEST_F(ChildRefConditions, OpenGroupsStayOpen)
{
    loaded({record(3, 7, "", "12", 1, 100), groupRecord(), record(3, 7, "", "13", 1, 100)});
    control->expand(control->model()->index(1, 0));
    control->mvRemoveChildRefConditions();
    EXPECT_EQ(rows(), "1 Or\n  " + kEnd + kEnd);
    EXPECT_TRUE(control->isExpanded(control->model()->index(0, 0)));
}

} // namespace
} // namespace condtree::test
