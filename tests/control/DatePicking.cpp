#include "PickingHand.h"

namespace condtree::test {
namespace {

using DatePicking = PickingHand;

TEST_F(DatePicking, APickedDayIsTheValueAtOnceAndIsToldOnce)
{
    only(due("2024-03-14"));
    clicking([this] {
        pickDay(20);
        EXPECT_EQ(topRow(0).mValue, QStringLiteral("2024-03-20"));
        EXPECT_EQ(changes, 1);
    });
    EXPECT_TRUE(wasOpen);
    EXPECT_EQ(toText(topRow(0)), "1000 Due | 2024-03-20 | note op=130 arg=5");
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(topRow(0).mlEditColumn, 2);
}

TEST_F(DatePicking, EveryOperatorOnDatesOpensTheCalendarByAClickAndByAsking)
{
    for (LONG op = 130; op <= 135; ++op) {
        only(due("2024-03-14")).mlOperator = op;
        clicking([this] { pickDay(1); });
        EXPECT_EQ(topRow(0).mValue, QStringLiteral("2024-03-01")) << op;
        picking([this] { control->mvOnClickValue(topRow(0), 2, cellOf(0, 2)); },
                [this] { pickDay(2); });
        EXPECT_EQ(topRow(0).mValue, QStringLiteral("2024-03-02")) << op;
    }
}

TEST_F(DatePicking, TheCalendarDropsDownFromTheCell)
{
    only(due("2024-03-14"));
    const RECT cell = cellOf(0, 2);
    clicking([this, cell] {
        EXPECT_EQ(picker()->pos(),
                  control->viewport()->mapToGlobal(QPoint(cell.left, cell.bottom)));
    });
}

TEST_F(DatePicking, TheDateIsWrittenInTheControlsStyle)
{
    control->mvInitialize(library.get(), 104, VaultTypeStandard, TreeType{0});
    only(due("14.03.2024"));
    clicking([this] { pickDay(5); });
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("05.03.2024"));
}

TEST_F(DatePicking, EachStoredDateIsToldOnceAndTheSameDateIsNot)
{
    only(due("2024-03-14"));
    clicking([this] {
        pickDay(15);
        hand().key(Qt::Key_Right);
        hand().key(Qt::Key_Left);
        hand().key(Qt::Key_Left); // the first date again, and yet another than before
    });
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("2024-03-14"));
    EXPECT_EQ(changes, 4);
    clicking([this] { pickDay(14); });
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("2024-03-14"));
    EXPECT_EQ(changes, 4);
}

TEST_F(DatePicking, TheCellIsPaintedAnew)
{
    class Paints final : public QObject {
    public:
        QRegion painted;
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() == QEvent::Paint)
                painted += static_cast<QPaintEvent*>(event)->region();
            return false;
        }
    } paints;
    only(due("2024-03-14"));
    const RECT cell = cellOf(0, 2);
    const QRect place(cell.left, cell.top, cell.right - cell.left, cell.bottom - cell.top);
    clicking([&] {
        letEventsPass();
        control->viewport()->installEventFilter(&paints);
        pickDay(20);
        letEventsPass();
        EXPECT_TRUE(paints.painted.contains(place.center()));
        EXPECT_TRUE((QRegion(place) - paints.painted).isEmpty());
    });
}

TEST_F(DatePicking, AnOpenEditorCommitsFirst)
{
    loaded({record(RowKindTop, 2, "Author", "Bo", ArgText, StringContains), due("2024-03-14")});
    for (const bool isAsked : {false, true}) {
        click(0, 2);
        letEventsPass();
        type(isAsked ? "Jo" : "Al");
        picking(
            [&] { isAsked ? control->mvOnClickValue(topRow(1), 2, cellOf(1, 2)) : click(1, 2); },
            [&] {
                EXPECT_EQ(editor(), nullptr);
                EXPECT_EQ(topRow(0).mValue.toStdString(), isAsked ? "Jo" : "Al");
            });
    }
    EXPECT_EQ(changes, 2);
}

TEST_F(DatePicking, TheHostMayEndItWhileItIsOpen)
{
    only(due("2024-03-14"));
    clicking([this] { loaded({due("2020-01-01"), due("2020-01-02")}); });
    EXPECT_FALSE(wasOpen) << "another condition";
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("2020-01-01"));

    clicking([this] { control->mvDeleteNode(topRow(0).mhItem); });
    EXPECT_FALSE(wasOpen) << "the row goes";
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("2020-01-02"));

    clicking([this] { control->mvDeleteNode(TVI_ROOT); });
    EXPECT_FALSE(wasOpen) << "everything goes";
    EXPECT_EQ(changes, 0);

    only(due("2024-03-14"));
    clicking([this] { control.reset(); });
    EXPECT_FALSE(wasOpen) << "the control goes";
    EXPECT_EQ(changes, 0);
}

TEST_F(DatePicking, AnotherRowThatGoesLeavesItOpen)
{
    loaded({due("2024-03-14"), due("2024-03-15")});
    clicking([this] {
        control->mvDeleteNode(topRow(1).mhItem);
        pickDay(20);
    });
    EXPECT_TRUE(wasOpen);
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("2024-03-20"));
}

TEST_F(DatePicking, TheHostMayEndItWhenItIsToldOfADate)
{
    const std::vector<std::function<void()>> ends = {
        [this] { loaded({due("2020-01-01")}); },
        [this] { control->mvDeleteNode(topRow(0).mhItem); },
        [this] { control->mvDeleteNode(TVI_ROOT); }, [this] { control.reset(); }};
    for (const auto& end : ends) {
        only(due("2024-03-14"));
        changes = 0;
        onChanged = [this, end] {
            ++changes;
            end();
        };
        clicking([this] { pickDay(20); });
        EXPECT_FALSE(wasOpen);
        EXPECT_EQ(changes, 1);
    }
}

TEST_F(DatePicking, TheWholeWindowMayGoWhileItIsOpen)
{
    only(due("2024-03-14"));
    const QPoint at = control->viewport()->mapTo(window.get(), middleOf(0, 2));
    const QPointer<CondTreeCtrl> alive(control.get());
    QPointer<QWidget> host(window.release());
    control.release(); // the window's now
    QTimer::singleShot(0, qApp, [&] { delete host; });
    QTest::mouseClick(host->windowHandle(), Qt::LeftButton, {}, at);
    EXPECT_EQ(alive, nullptr);
    letEventsPass();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(DatePicking, ASecondClickThatIsToldWhileItIsOpenOpensNothingMore)
{
    loaded({due("2024-03-14"), due("2024-03-15")});
    clicking([this] {
        const PickDateDlg* const before = picker();
        tellClick(1, 2);
        EXPECT_EQ(picker(), before);
        pickDay(20);
    });
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("2024-03-20"));
    EXPECT_EQ(topRow(1).mValue, QStringLiteral("2024-03-15"));
}

TEST_F(DatePicking, ANodeOutsideTheTreeIsPickedForToo)
{
    VarTreeCtrlNode node(NodeVariable);
    node.mlOperator = DateEqualTo;
    node.mValue = QStringLiteral("2024-03-14");
    picking([&] { control->mvOnClickValue(node, 2, {10, 10, 210, 30}); }, [this] { pickDay(20); });
    EXPECT_EQ(node.mValue, QStringLiteral("2024-03-20"));
}

} // namespace
} // namespace condtree::test
