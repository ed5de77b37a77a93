#include "EditedRows.h"

#include <condtree/editing/NodeChange.h>

namespace condtree::test {
namespace {

class NodeChange : public EditedRows {
protected:
    bool change(VarTreeCtrlNode& node, LONG code)
    {
        return changeNodeType(node, code, tree, strings);
    }
    /// The tree after the one row of it was given a code.
    std::string changed(const RowBefore& row, LONG code)
    {
        EXPECT_TRUE(change(only(row), code));
        return rows();
    }
};

TEST_F(NodeChange, ANodeThatHasTheCodeIsLeftAlone)
{
    EXPECT_EQ(changed({NodePlaceholder}, -1), kEnd);
    EXPECT_EQ(changed({NodeOr, "", "v", "", 101}, 1), "1 Or | v op=101 img=4\n" + kEnd);
    EXPECT_EQ(changed({StringEqualTo, "n", "v", "x", 106, 1, 5, 6, 2}, 100),
              "100 n | v | x op=106 arg=1 state=5 id=6 object=2 img=4\n" + kEnd);
    EXPECT_EQ(changed({DocTypeChoice, "n", "v", "", -1, 0, -1, -1, 2}, 4),
              "4 n | v object=2 img=4\n" + kEnd);
}

TEST_F(NodeChange, EveryCodeDoesWhatItSaysToARowOfAVariable)
{
    const RowBefore row{NodeVariable, "n", "v", "x", 106, 1, 5, 6, 2};
    const struct {
        LONG code;
        const char* after;
    } cases[] = {
        {1, "1 Or |  | x op=106 arg=1 state=5 id=6 img=2 opened\n"},
        {0, "1000 n |  | x op=0 arg=1 state=5 id=6 img=3 opened\n"},
        {-1, "1000 n |  | x arg=1 state=5 id=6 img=3 opened\n"},
        {-7, "1000 n |  | x op=-7 arg=1 state=5 id=6 img=3 opened\n"},
        {2, "1000 n | v | x op=2 arg=1 state=5 id=6 img=3\n"},
        {3, "1000 n | v | x op=3 arg=1 state=5 id=6 img=3\n"},
        {4, "1000 n | v | x op=106 arg=1 state=5 id=6 img=3\n"},
        {5, "1000 n | v | x op=5 arg=1 state=5 id=6 img=3\n"},
        {100, "1000 n | v | x op=100 arg=1 state=5 id=6 img=3\n"},
        {135, "1000 n | v | x op=135 arg=1 state=5 id=6 img=3\n"},
        {136, "1000 n | v | x op=106 arg=1 state=5 id=6 object=0 img=3\n"},
        {137, "1000 n | v | x op=106 arg=1 state=5 id=6 object=1 img=3\n"},
        {138, "1000 n | v | x op=106 arg=1 state=5 id=6 object=2 img=3\n"},
        {139, "1000 n | v | x op=139 arg=1 state=5 id=6 img=3\n"},
        {140, "1000 n | v | x op=140 arg=1 state=5 id=6 img=3\n"},
        {142, "1000 n | v | x op=106 arg=1 state=5 id=6 img=3\n"},
        {1106, "1000 n | v | x op=1106 arg=1 state=5 id=6 img=3\n"},
        {3000, "1000 n | v | x op=3000 arg=1 state=5 id=6 img=3\n"},
    };
    for (const auto& [code, after] : cases)
        EXPECT_EQ(changed(row, code), after + (code <= 1 ? kChildEnd : std::string()) + kEnd)
            << code;
}

TEST_F(NodeChange, APlaceholderBecomesARowAndLeavesAFreshOneBehind)
{
    EXPECT_EQ(changed({NodePlaceholder}, 1), "1 Or img=2 opened\n" + kChildEnd + kEnd);
    EXPECT_EQ(changed({NodePlaceholder}, 0),
              "1000 " + kPlaceholder.toStdString() + " op=0 img=3 opened\n" + kChildEnd + kEnd);
    EXPECT_EQ(changed({NodePlaceholder}, 106),
              "1000 " + kPlaceholder.toStdString() + " op=106 img=3\n" + kEnd);
    EXPECT_EQ(changed({NodePlaceholder}, 137),
              "1000 " + kPlaceholder.toStdString() + " object=1 img=3\n" + kEnd);
    EXPECT_EQ(changed({NodePlaceholder}, 142),
              "1000 " + kPlaceholder.toStdString() + " img=3\n" + kEnd);
    const VarTreeCtrlNode& fresh = *model.top()->mChildren.back();
    EXPECT_EQ(toText(fresh), "-1 " + kPlaceholder.toStdString());
    EXPECT_NE(fresh.mhItem, model.top()->mChildren.front()->mhItem);
}

TEST_F(NodeChange, APlaceholderOfAGroupLeavesOneBehindInTheGroup)
{
    VarTreeCtrlNode& group = only({NodeOr});
    VarTreeCtrlNode& placeholder = addTo(group, {NodePlaceholder});
    EXPECT_TRUE(change(placeholder, 120));
    EXPECT_EQ(rows(), "1 Or img=4\n  1000 " + kPlaceholder.toStdString() + " op=120 img=3\n"
                          + kChildEnd + kEnd);
}

TEST_F(NodeChange, AFreshPlaceholderIsTheLastOfItsLevelWhereverTheOldOneStood)
{
    VarTreeCtrlNode& placeholder = *model.top()->mChildren[0];
    tree.add(*model.top(), makeNode({FilePath, "p"}), false);
    EXPECT_TRUE(change(placeholder, 120));
    EXPECT_EQ(rows(), "1000 " + kPlaceholder.toStdString() + " op=120 img=3\n5 p img=5\n" + kEnd);
}

TEST_F(NodeChange, AGroupKeepsItsRowsAsAGroupAndLosesThemAsAnythingElse)
{
    const auto group = [this]() -> VarTreeCtrlNode& {
        VarTreeCtrlNode& node = only({NodeOr, "", "v"});
        node.mName = QStringLiteral("renamed");
        addTo(node, {FilePath, "p"});
        addTo(addTo(node, {NodeOr}), {Revision, "r"});
        return node;
    };
    EXPECT_TRUE(change(group(), 0));
    EXPECT_EQ(rows(), "1 Or op=0 img=2\n  5 p img=5\n  1 Or img=2\n    7 r img=5\n" + kEnd);
    EXPECT_TRUE(opened.empty());
    for (const LONG code : {2, 4, 100, 136, 142}) {
        EXPECT_TRUE(change(group(), code));
        const std::string number = code == 100   ? " op=100"
                                   : code == 2   ? " op=2"
                                   : code == 136 ? " object=0"
                                                 : "";
        EXPECT_EQ(rows(), "1 renamed | v" + number + " img=2\n" + kEnd) << code;
    }
}

TEST_F(NodeChange, ALabelIsTakenFromTheCodeThatTheNodeHasThen)
{
    VarTreeCtrlNode& node = only({NodeAnd});
    node.mName = QStringLiteral("renamed");
    EXPECT_TRUE(change(node, -1));
    EXPECT_EQ(rows(), "0 And img=1 opened\n" + kChildEnd + kEnd);
}

TEST_F(NodeChange, ThePictureFollowsTheCodeOfTheNode)
{
    const std::map<LONG, int> expected = {
        {0, 1}, {1, 2},  {2, 3},  {3, 5},  {4, 5},   {5, 5},   {6, 5},   {7, 5},    {8, 5},
        {9, 6}, {10, 7}, {11, 3}, {12, 5}, {101, 3}, {120, 3}, {135, 3}, {1000, 3}, {-1, 3}};
    for (const auto& [nodeCode, image] : expected) {
        VarTreeCtrlNode& node = only({nodeCode});
        EXPECT_TRUE(change(node, 130));
        EXPECT_EQ(imageOf(node.mhItem), image) << nodeCode;
    }
    EXPECT_TRUE(change(only({13}), 130));
    EXPECT_EQ(imageOf(model.top()->mChildren[0]->mhItem), -1) << "no such picture in the list";
}

TEST_F(NodeChange, ANodeOutsideTheTreeChangesToo)
{
    const auto row = makeNode({NodeVariable, "n", "v"});
    EXPECT_TRUE(change(*row, 1));
    EXPECT_EQ(toText(*row) + "\n" + rowsBelow(*row, "  "),
              "1 Or\n  -1 " + kPlaceholder.toStdString() + "\n");
    EXPECT_TRUE(change(*row, 100));
    EXPECT_EQ(toText(*row) + rowsBelow(*row), "1 Or op=100");
    const auto placeholder = makeNode({NodePlaceholder});
    EXPECT_TRUE(change(*placeholder, 100));
    EXPECT_EQ(toText(*placeholder), "1000  op=100");
    EXPECT_EQ(rows(), kEnd);
}

TEST_F(NodeChange, ATopThatIsAPlaceholderLeavesNoneBehind)
{
    model.setTop(makeNode({NodePlaceholder}));
    EXPECT_TRUE(change(*model.top(), 100));
    EXPECT_EQ(toText(*model.top()), "1000 " + kPlaceholder.toStdString() + " op=100");
    EXPECT_TRUE(model.top()->mChildren.empty());
}

// What the host does while it is asked for a text, or told of a change.

TEST_F(NodeChange, AHostThatDeletesTheRowWhileATextIsFetchedFindsItGone)
{
    for (const LONG code : {-1, 0, 1, 5}) {
        for (const LONG chosen : {1, 0, 120}) {
            int fetched = 0;
            VarTreeCtrlNode& node = only({code});
            duringString = [&, item = node.mhItem](LONG) {
                ++fetched;
                tree.remove(item);
            };
            const bool isThere = change(node, chosen);
            duringString = nullptr;
            EXPECT_EQ(isThere, fetched == 0 || code == chosen) << code << " " << chosen;
            if (!isThere) {
                EXPECT_EQ(rows(), kEnd) << code << " " << chosen;
            }
        }
    }
}

TEST_F(NodeChange, AHostThatDeletesTheTreeWhileATextIsFetchedFindsItGone)
{
    for (const LONG code : {-1, 1, 5}) {
        VarTreeCtrlNode& node = only({code});
        duringString = [this](LONG) { tree.remove(TVI_ROOT); };
        EXPECT_FALSE(change(node, 0));
        duringString = nullptr;
        EXPECT_EQ(rows(), "no top");
    }
}

TEST_F(NodeChange, AHostThatLoadsSomethingElseWhileATextIsFetchedKeepsIt)
{
    VarTreeCtrlNode& node = only({NodePlaceholder});
    duringString = [this](LONG) {
        duringString = nullptr;
        clear();
        add({FilePath, "p"});
    };
    EXPECT_FALSE(change(node, 1));
    EXPECT_EQ(rows(), "5 p img=5\n" + kEnd);
}

TEST_F(NodeChange, AHostThatDeletesTheRowWhenItIsToldOfAChangeFindsItGone)
{
    const auto expectGone = [this](const RowBefore& row, LONG code, auto signal) {
        VarTreeCtrlNode& node = only(row);
        if (row.code == NodeOr)
            addTo(node, {FilePath, "p"});
        QObject host;
        QObject::connect(&model, signal, &host, [this, item = node.mhItem] { tree.remove(item); });
        EXPECT_FALSE(change(node, code)) << code;
        EXPECT_EQ(rows(), kEnd);
    };
    expectGone({NodePlaceholder}, 106, &QAbstractItemModel::rowsInserted);
    expectGone({FilePath}, 1, &QAbstractItemModel::rowsInserted);
    expectGone({FilePath}, 1, &ConditionModel::expandRequested);
    expectGone({NodeOr}, 106, &QAbstractItemModel::rowsRemoved);
    expectGone({FilePath}, 106, &QAbstractItemModel::dataChanged);
}

} // namespace
} // namespace condtree::test
