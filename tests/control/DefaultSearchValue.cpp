#include "ControlFixture.h"

#include "support/QtPrinters.h"

#include <condtree/control/ConditionModel.h>

#include <QDateTime>

namespace condtree::test {
namespace {

class ClockedCtrl final : public CondTreeCtrl {
public:
    using CondTreeCtrl::CondTreeCtrl;
    using CondTreeCtrl::mvSetDefaultSearchVal;
};

class DefaultSearchValueTest : public ControlFixture {
protected:
    Services clocked()
    {
        Services ports = services();
        ports.localTime = [this] { return now; };
        return ports;
    }
    /// The value of a row that had one, after it was asked for its default.
    QString valueOf(LONG op, const char16_t* before = u"")
    {
        VarTreeCtrlNode node(NodeVariable);
        node.mlOperator = op;
        node.mValue = QString::fromUtf16(before);
        clock.mvSetDefaultSearchVal(node);
        EXPECT_EQ(node.mlOperator, op);
        EXPECT_EQ(node.mlCode, NodeVariable);
        EXPECT_TRUE(node.mExtra.isEmpty());
        return node.mValue;
    }

    SYSTEMTIME now{2024, 3, 2, 5, 14, 7, 9, 0};
    ClockedCtrl clock{nullptr, clocked()};
};

TEST_F(DefaultSearchValueTest, ADateRowGetsTheTimeOfTheClockInTheStyleOfTheControl)
{
    EXPECT_EQ(valueOf(DateEqualTo), u"2024-03-05"_qs);
    clock.mvInitialize(nullptr, 0, {}, {});
    EXPECT_EQ(valueOf(DateBiggerOrEqual), u"Mar 05 2024 02:07 PM"_qs);
    clock.mvInitialize(nullptr, 121, {}, {});
    EXPECT_EQ(valueOf(DateLessThan), u"2024-03-05 14:07:09.000"_qs);
    clock.mvInitialize(nullptr, -7, {}, {});
    EXPECT_EQ(valueOf(DateNotEqualTo), u"05 Mars 2024 14:07:09:000"_qs);
    now.wDay = 6;
    EXPECT_EQ(valueOf(DateLessOrEqual), u"06 Mars 2024 14:07:09:000"_qs);
}

TEST_F(DefaultSearchValueTest, OtherRowsKeepTheirValue)
{
    for (const LONG op : {-1, 100, 108, 120, 125, 129, 136, 139, 160, 1130}) {
        EXPECT_EQ(valueOf(op), QString()) << op;
        EXPECT_EQ(valueOf(op, u"5"), u"5"_qs) << op;
    }
}

TEST_F(DefaultSearchValueTest, AClockWithoutADateChangesNothing)
{
    now.wMonth = 13;
    EXPECT_EQ(valueOf(DateEqualTo), QString());
    EXPECT_EQ(valueOf(DateEqualTo, u"x"), u"x"_qs);
    now = {1899, 12, 6, 30, 0, 0, 0, 0};
    EXPECT_EQ(valueOf(DateEqualTo, u"x"), u"x"_qs);
}

TEST_F(DefaultSearchValueTest, ARowThatChangedIsDrawnAgainAndTheHostIsNotTold)
{
    int drawings = 0;
    int changes = 0;
    auto& model = dynamic_cast<ConditionModel&>(*clock.model());
    QObject::connect(&model, &ConditionModel::textsChanged, [&drawings] { ++drawings; });
    QObject::connect(&clock, &CondTreeCtrl::conditionChanged, [&changes] { ++changes; });
    valueOf(NumberEqualTo);
    EXPECT_EQ(drawings, 0);
    valueOf(DateEqualTo);
    EXPECT_EQ(drawings, 1);
    EXPECT_EQ(changes, 0);
}

TEST_F(DefaultSearchValueTest, TheClockMayDeleteTheControl)
{
    std::unique_ptr<ClockedCtrl> doomed;
    Services ports = services();
    ports.localTime = [&] {
        doomed.reset();
        return now;
    };
    doomed = std::make_unique<ClockedCtrl>(nullptr, std::move(ports));
    VarTreeCtrlNode node(NodeVariable);
    node.mlOperator = DateEqualTo;
    doomed->mvSetDefaultSearchVal(node);
    EXPECT_EQ(doomed, nullptr);
    EXPECT_EQ(node.mValue, u"2024-03-05"_qs);
}

TEST_F(DefaultSearchValueTest, TheClockMayDeleteTheRowOrItsControl)
{
    for (const bool deletesAll : {false, true}) {
        std::unique_ptr<ClockedCtrl> tree;
        auto* row = new VarTreeCtrlNode(NodeVariable); // the tree's
        Services ports = services();
        ports.localTime = [&] {
            const HTREEITEM item = row->mhItem;
            if (deletesAll)
                tree.reset();
            else
                tree->mvDeleteNode(item);
            return now;
        };
        tree = std::make_unique<ClockedCtrl>(nullptr, std::move(ports));
        auto* top = new VarTreeCtrlNode(NodeAnd);
        tree->mhAddNode(nullptr, top, false);
        ASSERT_NE(tree->mhAddNode(top, row, false), nullptr);
        row->mlOperator = DateEqualTo;
        tree->mvSetDefaultSearchVal(*row);
        EXPECT_EQ(tree == nullptr, deletesAll);
        EXPECT_TRUE(deletesAll || top->mChildren.empty());
    }
}

TEST_F(DefaultSearchValueTest, ARowOfTheTreeGetsItsValue)
{
    auto* top = new VarTreeCtrlNode(NodeAnd);
    clock.mhAddNode(nullptr, top, false);
    auto* row = new VarTreeCtrlNode(NodeVariable);
    clock.mhAddNode(top, row, false);
    row->mlOperator = DateEqualTo;
    clock.mvSetDefaultSearchVal(*row);
    EXPECT_EQ(row->mValue, u"2024-03-05"_qs);
}

TEST_F(DefaultSearchValueTest, WithoutAClockOfTheHostsItIsTheMachines)
{
    ClockedCtrl real(nullptr, services());
    real.mvInitialize(nullptr, 121, {}, {});
    VarTreeCtrlNode node(NodeVariable);
    node.mlOperator = DateEqualTo;
    const auto read = [] {
        return QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH:mm:ss.000"_qs);
    };
    QString before;
    do { // within one second
        before = read();
        real.mvSetDefaultSearchVal(node);
    } while (before != read());
    EXPECT_EQ(node.mValue, before);
}

} // namespace
} // namespace condtree::test
