#include "TreeText.h"

#include <condtree/control/ConditionModel.h>
#include <condtree/presentation/ConditionImages.h>

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>

#include <functional>
#include <stdexcept>

namespace condtree {
namespace {

using test::rowsBelow;
using NodePtr = ConditionModel::NodePtr;

NodePtr row(const char* name, LONG code = NodeVariable)
{
    auto node = std::make_unique<VarTreeCtrlNode>(code);
    node->mName = QString::fromUtf8(name);
    return node;
}

class ConditionModelTest : public testing::Test {
protected:
    ConditionModelTest() { m_model.setTop(row("", NodeAnd)); }

    VarTreeCtrlNode& add(const char* name, LONG code = NodeVariable, bool first = false)
    {
        return addTo(*m_model.top(), name, code, first);
    }
    VarTreeCtrlNode& addTo(VarTreeCtrlNode& parent, const char* name, LONG code = NodeVariable,
                           bool first = false)
    {
        return *m_model.node(m_model.add(parent, row(name, code), first));
    }
    std::string text() const { return rowsBelow(*m_model.top()); }

    StringSource m_strings = [](LONG id, const char16_t* key, const char16_t* section,
                                const char16_t* text) {
        return QStringLiteral("%1/%2/%3/%4")
            .arg(id)
            .arg(QString::fromUtf16(key), QString::fromUtf16(section), QString::fromUtf16(text));
    };
    ConditionImages m_images;
    ConditionModel m_model{m_strings, m_images};
    QAbstractItemModelTester m_tester{&m_model,
                                      QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(ConditionModelTest, TheTopHasTheRootItemAndTheAndLabel)
{
    EXPECT_EQ(m_model.top()->mhItem, TVI_ROOT);
    EXPECT_EQ(m_model.node(TVI_ROOT), m_model.top());
    EXPECT_EQ(m_model.top()->mName, QStringLiteral("38/TS/Search/And"));
    EXPECT_EQ(m_model.top()->mpParent, nullptr);
}

TEST_F(ConditionModelTest, ANodeAddedLastStandsBehindItsSiblingsInTheViewAndTheList)
{
    const VarTreeCtrlNode& a = add("a");
    const VarTreeCtrlNode& b = add("b");
    EXPECT_EQ(text(), "1000 a\n1000 b\n");
    EXPECT_EQ(m_model.indexOf(a.mhItem).row(), 0);
    EXPECT_EQ(m_model.indexOf(b.mhItem).row(), 1);
    EXPECT_EQ(m_model.rowCount(), 2);
}

TEST_F(ConditionModelTest, ANodeAddedFirstStandsBeforeAllSiblingsInTheViewAndTheList)
{
    const VarTreeCtrlNode& a = add("a");
    add("b");
    const VarTreeCtrlNode& c = add("c", NodeVariable, true);
    EXPECT_EQ(text(), "1000 c\n1000 a\n1000 b\n");
    EXPECT_EQ(m_model.index(0, 0), m_model.indexOf(c.mhItem));
    EXPECT_EQ(m_model.index(1, 0), m_model.indexOf(a.mhItem));
}

TEST_F(ConditionModelTest, AddingSetsTheParentAndTheItemThatCarriesTheNode)
{
    VarTreeCtrlNode& group = add("", NodeOr);
    const VarTreeCtrlNode& inner = addTo(group, "inner");
    EXPECT_EQ(inner.mpParent, &group);
    EXPECT_EQ(m_model.node(inner.mhItem), &inner);
    EXPECT_EQ(m_model.itemOf(m_model.indexOf(inner.mhItem)), inner.mhItem);
    EXPECT_EQ(m_model.indexOf(inner.mhItem).parent(), m_model.indexOf(group.mhItem));
    EXPECT_TRUE(m_model.hasParentItem(inner.mhItem));
    EXPECT_FALSE(m_model.hasParentItem(group.mhItem));
    EXPECT_FALSE(m_model.hasParentItem(TVI_ROOT));
    EXPECT_FALSE(m_model.hasParentItem(nullptr));
}

TEST_F(ConditionModelTest, PlaceholdersAndGroupsTakeTheirLabelsOtherNodesKeepTheirs)
{
    EXPECT_EQ(add("x", NodePlaceholder).mName,
              QStringLiteral("70/TS/Search/<Click here to add a condition>"));
    EXPECT_EQ(add("x", NodeAnd).mName, QStringLiteral("38/TS/Search/And"));
    EXPECT_EQ(add("x", NodeOr).mName, QStringLiteral("39/TS/Search/Or"));
    for (const LONG code : {2, 3, 11, 12, 100, 1000})
        EXPECT_EQ(add("x", code).mName, QStringLiteral("x"));
}

// The string library is the host's, who may change the tree when asked for a text.
TEST_F(ConditionModelTest, ARowDeletedWhileItsLabelIsFetchedIsNotTouched)
{
    VarTreeCtrlNode& doomed = add("a", NodeOr);
    m_strings = [this](LONG, const char16_t*, const char16_t*, const char16_t*) {
        m_model.remove(TVI_ROOT);
        return QStringLiteral("late");
    };
    m_model.updateTypeName(doomed);
    EXPECT_EQ(m_model.top(), nullptr);
}

TEST_F(ConditionModelTest, RowsAppendedToALevelThatIsDeletedMeanwhileGoWithIt)
{
    VarTreeCtrlNode& level = add("a", NodeOr);
    m_strings = [this](LONG, const char16_t*, const char16_t*, const char16_t*) {
        m_model.remove(TVI_ROOT);
        return QStringLiteral("late");
    };
    std::vector<ConditionModel::NodePtr> nodes;
    nodes.push_back(row("b", NodeVariable));
    m_model.append(level, std::move(nodes));
    EXPECT_EQ(m_model.top(), nullptr);
}

TEST_F(ConditionModelTest, ATopSetWhileTheHostClearsTheTreeStandsAllTheSame)
{
    add("a");
    m_strings = [this](LONG, const char16_t*, const char16_t*, const char16_t*) {
        m_model.remove(TVI_ROOT);
        return QStringLiteral("late");
    };
    EXPECT_EQ(m_model.setTop(row("", NodeAnd)), nullptr) << "the top before it is gone already";
    ASSERT_NE(m_model.top(), nullptr);
    EXPECT_EQ(m_model.top()->mName, QStringLiteral("late"));
}

TEST_F(ConditionModelTest, UpdateTypeNameFollowsTheCode)
{
    VarTreeCtrlNode& node = add("kept");
    m_model.updateTypeName(node);
    EXPECT_EQ(node.mName, QStringLiteral("kept"));
    node.mlCode = NodeOr;
    m_model.updateTypeName(node);
    EXPECT_EQ(node.mName, QStringLiteral("39/TS/Search/Or"));
}

TEST_F(ConditionModelTest, ASubtreeComesWithItsNode)
{
    NodePtr group = row("", NodeOr);
    group->mChildren.push_back(row("inner").release());
    const HTREEITEM item = m_model.add(*m_model.top(), std::move(group), false);
    EXPECT_EQ(m_model.rowCount(m_model.indexOf(item)), 1);
    const VarTreeCtrlNode* inner = m_model.node(item)->mChildren[0];
    EXPECT_EQ(m_model.node(inner->mhItem), inner);
    EXPECT_EQ(inner->mpParent, m_model.node(item));
}

TEST_F(ConditionModelTest, RowsHaveNoTextOfTheirOwnButOneToBeRead)
{
    VarTreeCtrlNode& node = add("Author");
    node.mValue = QStringLiteral("smith");
    node.mlOperator = StringContains;
    const QModelIndex index = m_model.indexOf(node.mhItem);
    EXPECT_FALSE(m_model.data(index, Qt::DisplayRole).isValid());
    EXPECT_EQ(m_model.data(index, Qt::AccessibleTextRole).toString(),
              QStringLiteral("Author, 106/OpName/Search/?, smith"));
    EXPECT_EQ(m_model.data(m_model.indexOf(add("", NodeOr).mhItem), Qt::AccessibleTextRole),
              QStringLiteral("39/TS/Search/Or"));
}

TEST_F(ConditionModelTest, DeletingARowTakesItOutOfTheViewAndTheListWithItsSubtree)
{
    VarTreeCtrlNode& group = add("", NodeOr);
    const HTREEITEM inner = addTo(group, "inner").mhItem;
    const HTREEITEM groupItem = group.mhItem;
    add("b");
    m_model.remove(groupItem);
    EXPECT_EQ(text(), "1000 b\n");
    EXPECT_EQ(m_model.rowCount(), 1);
    EXPECT_EQ(m_model.node(inner), nullptr);
    EXPECT_EQ(m_model.node(groupItem), nullptr);
}

TEST_F(ConditionModelTest, AHandleThatNamesNoRowDeletesNothing)
{
    const HTREEITEM gone = add("gone").mhItem;
    m_model.remove(gone);
    add("a");
    m_model.remove(gone);
    m_model.remove(nullptr);
    m_model.remove(TVI_LAST);
    EXPECT_EQ(text(), "1000 a\n");
}

TEST_F(ConditionModelTest, ANodeThatItsParentDoesNotListIsStillDeleted)
{
    VarTreeCtrlNode& a = add("a");
    VarTreeCtrlNode& b = add("b");
    VarTreeCtrlNode& group = add("", NodeOr);
    const HTREEITEM item = a.mhItem;
    a.mpParent = &group; // as a host may do by mistake
    // The list still holds it, so it is taken out by hand: the deletion must not rely on the list.
    ASSERT_EQ(m_model.top()->mChildren.size(), 3U);
    m_model.top()->mChildren.erase(m_model.top()->mChildren.begin());
    m_model.remove(item);
    EXPECT_EQ(m_model.node(item), nullptr);
    EXPECT_EQ(m_model.node(b.mhItem), &b);
}

TEST_F(ConditionModelTest, DeletingTheRootEmptiesTheViewAndLeavesNoTop)
{
    add("a");
    m_model.remove(TVI_ROOT);
    EXPECT_EQ(m_model.top(), nullptr);
    EXPECT_EQ(m_model.node(TVI_ROOT), nullptr);
    EXPECT_EQ(m_model.rowCount(), 0);
    m_model.remove(TVI_ROOT);
    EXPECT_EQ(m_model.top(), nullptr);
}

TEST_F(ConditionModelTest, ANewTopGivesTheOldOneBackOutOfTheTree)
{
    const HTREEITEM item = add("a").mhItem;
    NodePtr next = row("", NodeAnd);
    next->mChildren.push_back(row("b").release());
    const NodePtr old = m_model.setTop(std::move(next));
    ASSERT_NE(old, nullptr);
    EXPECT_EQ(rowsBelow(*old), "1000 a\n");
    EXPECT_EQ(old->mhItem, nullptr);
    EXPECT_EQ(m_model.node(item), nullptr);
    EXPECT_EQ(text(), "1000 b\n");
}

TEST_F(ConditionModelTest, AttachWithoutAParentMakesTheTop)
{
    VarTreeCtrlNode* old = m_model.top();
    auto* next = new VarTreeCtrlNode(NodeAnd);
    EXPECT_EQ(m_model.attach(nullptr, next, false), TVI_ROOT);
    EXPECT_EQ(m_model.top(), next);
    EXPECT_EQ(m_model.attach(nullptr, next, false), TVI_ROOT);
    EXPECT_EQ(m_model.top(), next);
    delete old; // the caller's again
}

TEST_F(ConditionModelTest, AttachOfNothingDoesNothing)
{
    EXPECT_EQ(m_model.attach(m_model.top(), nullptr, false), nullptr);
    EXPECT_EQ(m_model.attach(nullptr, nullptr, false), nullptr);
    EXPECT_NE(m_model.top(), nullptr);
}

TEST_F(ConditionModelTest, ANodeThatHasItsPlaceKeepsIt)
{
    VarTreeCtrlNode& a = add("a");
    add("b");
    EXPECT_EQ(m_model.attach(m_model.top(), &a, false), a.mhItem);
    EXPECT_EQ(text(), "1000 a\n1000 b\n");
}

TEST_F(ConditionModelTest, AParentOutsideTheTreeTakesTheNodeWithoutARow)
{
    VarTreeCtrlNode outside(NodeOr);
    EXPECT_EQ(m_model.add(outside, row("a"), false), nullptr);
    EXPECT_EQ(rowsBelow(outside), "1000 a\n");
    EXPECT_EQ(outside.mChildren[0]->mpParent, &outside);
}

TEST_F(ConditionModelTest, NodesAppendedTogetherStandInTheirOrder)
{
    add("a");
    std::vector<NodePtr> rows;
    rows.push_back(row("b"));
    rows.push_back(row("", NodeOr));
    rows.back()->mChildren.push_back(row("", NodePlaceholder).release());
    m_model.append(*m_model.top(), std::move(rows));
    EXPECT_EQ(text(), "1000 a\n1000 b\n1 39/TS/Search/Or\n"
                      "  -1 70/TS/Search/<Click here to add a condition>\n");
    m_model.append(*m_model.top(), {});
    EXPECT_EQ(m_model.rowCount(), 3);
}

TEST_F(ConditionModelTest, RemovingPickedChildrenKeepsTheOthersInTheirOrder)
{
    for (const char* name : {"a", "x", "b", "x", "c", "x"})
        add(name);
    const HTREEITEM c = m_model.top()->mChildren[4]->mhItem;
    const HTREEITEM x = m_model.top()->mChildren[3]->mhItem;
    m_model.removeChildren(*m_model.top(), [](const VarTreeCtrlNode& node) {
        return node.mName == QStringLiteral("x");
    });
    EXPECT_EQ(text(), "1000 a\n1000 b\n1000 c\n");
    EXPECT_EQ(m_model.indexOf(c).row(), 2);
    EXPECT_EQ(m_model.node(x), nullptr);
}

TEST_F(ConditionModelTest, AFullLevelRefusesAnotherNode)
{
    ConditionModel small(m_strings, m_images, 2);
    small.setTop(row("", NodeAnd));
    small.add(*small.top(), row("a"), false);
    const auto expectRefusal = [&](const std::function<void()>& addition) {
        try {
            addition();
            FAIL() << "no exception";
        } catch (const std::length_error& error) {
            EXPECT_STREQ(error.what(), "list too long");
        }
    };
    expectRefusal([&] {
        std::vector<NodePtr> two;
        two.push_back(row("b"));
        two.push_back(row("c"));
        small.append(*small.top(), std::move(two));
    });
    small.add(*small.top(), row("b"), false);
    expectRefusal([&] { small.add(*small.top(), row("c"), true); });
    EXPECT_EQ(rowsBelow(*small.top()), "1000 a\n1000 b\n");
}

TEST_F(ConditionModelTest, ANodeOfTheTreeCannotBecomeItsTop)
{
    VarTreeCtrlNode& group = add("", NodeOr);
    VarTreeCtrlNode* top = m_model.top();
    EXPECT_EQ(m_model.attach(nullptr, &group, false), group.mhItem);
    EXPECT_EQ(m_model.top(), top);
}

TEST_F(ConditionModelTest, ABulkOfChangesIsOneReset)
{
    int resets = 0;
    int insertions = 0;
    QObject::connect(&m_model, &ConditionModel::modelReset, [&] { ++resets; });
    QObject::connect(&m_model, &ConditionModel::rowsInserted, [&] { ++insertions; });
    {
        const ConditionModel::Bulk outer(m_model);
        const ConditionModel::Bulk inner(m_model);
        VarTreeCtrlNode& group = add("", NodeOr);
        addTo(group, "inner");
        m_model.remove(add("gone").mhItem);
    }
    EXPECT_EQ(resets, 1);
    EXPECT_EQ(insertions, 0);
    EXPECT_EQ(text(), "1 39/TS/Search/Or\n  1000 inner\n");
    const VarTreeCtrlNode& inner = *m_model.top()->mChildren[0]->mChildren[0];
    EXPECT_EQ(m_model.indexOf(inner.mhItem).row(), 0);
}

TEST_F(ConditionModelTest, TheRevisionTellsOfEveryNodeThatComesOrGoes)
{
    std::uint64_t last = m_model.revision();
    const auto expectChange = [&](const char* what) {
        EXPECT_NE(m_model.revision(), last) << what;
        last = m_model.revision();
    };
    const HTREEITEM item = add("a").mhItem;
    expectChange("add");
    m_model.remove(item);
    expectChange("remove");
    std::vector<NodePtr> rows;
    rows.push_back(row("b"));
    m_model.append(*m_model.top(), std::move(rows));
    expectChange("append");
    m_model.removeChildren(*m_model.top(), [](const VarTreeCtrlNode&) { return true; });
    expectChange("removeChildren");
    m_model.setTop(nullptr);
    expectChange("setTop");
    EXPECT_EQ(m_model.revision(), last);
}

TEST_F(ConditionModelTest, ChangedTextsAreTold)
{
    int told = 0;
    QObject::connect(&m_model, &ConditionModel::textsChanged, [&] { ++told; });
    m_model.tellTextsChanged();
    EXPECT_EQ(told, 1);
}

TEST_F(ConditionModelTest, ExpandingAsksTheViewsButNotForTheRoot)
{
    const VarTreeCtrlNode& group = add("", NodeOr);
    std::vector<QModelIndex> asked;
    QObject::connect(&m_model, &ConditionModel::expandRequested,
                     [&](const QModelIndex& index) { asked.push_back(index); });
    m_model.expand(group.mhItem);
    m_model.expand(TVI_ROOT);
    m_model.expand(nullptr);
    ASSERT_EQ(asked.size(), 1U);
    EXPECT_EQ(asked[0], m_model.indexOf(group.mhItem));
}

} // namespace
} // namespace condtree
