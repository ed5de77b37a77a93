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

TEST_F(ChildRefConditions, OpenGroupsStayOpenAndTheCurrentRowStaysCurrent)
{
    loaded({record(3, 7, "", "12", 1, 100), groupRecord(), record(4, 7, "", "12", 1, 100),
            record(4, 1, "", "p", 1, 100), groupRecord(), record(4, 7, "", "12", 1, 100),
            groupRecord(), record(3, 7, "", "13", 1, 100)});
    const QAbstractItemModel& model = *control->model();
    control->expand(model.index(1, 0));
    control->expand(model.index(2, 0));
    control->setCurrentIndex(model.index(1, 0, model.index(1, 0)));
    const HTREEITEM current = topRow(1).mChildren[1]->mhItem;
    control->mvRemoveChildRefConditions();
    EXPECT_EQ(rows(), "1 Or\n  5 FilePath | p op=100 arg=1\n  " + kEnd + "1 Or\n  " + kEnd
                          + "1 Or\n  " + kEnd + kEnd);
    EXPECT_TRUE(control->isExpanded(model.index(0, 0)));
    EXPECT_TRUE(control->isExpanded(model.index(1, 0)));
    EXPECT_FALSE(control->isExpanded(model.index(2, 0)));
    EXPECT_EQ(control->currentIndex(), model.index(0, 0, model.index(0, 0)));
    EXPECT_EQ(control->mpoGetNode(current), topRow(0).mChildren[0]);
}

TEST_F(ChildRefConditions, AGroupThatBecomesEmptyStays)
{
    control->mhAddNode(nullptr, new VarTreeCtrlNode(NodeAnd), false);
    auto* group = new VarTreeCtrlNode(NodeOr);
    control->mhAddNode(control->mpoGetNode(TVI_ROOT), group, false);
    control->mhAddNode(group, new VarTreeCtrlNode(ChildRefState), false);
    control->mhAddNode(group, new VarTreeCtrlNode(NodeHistoricState), false);
    control->mvRemoveChildRefConditions();
    EXPECT_EQ(rows(), "1 Or\n");
}

TEST_F(ChildRefConditions, ManyGroupsAreOneChangeForTheView)
{
    std::vector<TransCond> records;
    for (int i = 0; i < 300; ++i) {
        records.push_back(groupRecord());
        records.push_back(record(4, 7, "", "12", 1, 100));
    }
    loaded(records);
    control->expandAll();
    int changes = 0;
    const QObject here; // ends the connections before the counter goes
    const QAbstractItemModel* model = control->model();
    QObject::connect(model, &QAbstractItemModel::modelReset, &here, [&] { ++changes; });
    QObject::connect(model, &QAbstractItemModel::rowsRemoved, &here, [&] { ++changes; });
    QObject::connect(model, &QAbstractItemModel::layoutChanged, &here, [&] { ++changes; });
    control->mvRemoveChildRefConditions();
    EXPECT_EQ(changes, 1);
    EXPECT_FALSE(control->mbHaveChildRefConditions());
}

} // namespace
} // namespace condtree::test
