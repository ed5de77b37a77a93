#include "CellHand.h"

#include <QScrollBar>

namespace condtree::test {
namespace {

/// A date row has a calendar for the mouse, and for the keyboard its text.
class TypingDates : public CellHand {
protected:
    void SetUp() override
    {
        loaded({record(RowKindTop, 2, "Due", "2024-03-14", ArgDate, DateEqualTo, "note"),
                record(RowKindTop, 2, "Author", "Bo", ArgText, StringContains)});
        selectRow(0);
    }
    void selectRow(int row)
    {
        control->setFocus();
        control->setCurrentIndex(indexOf(row));
        ASSERT_EQ(QApplication::focusWidget(), control.get());
    }
};

TEST_F(TypingDates, ACharacterOnADateRowBeginsANewText)
{
    const RECT cell = cellOf(0, 2);
    type("2");
    ASSERT_EQ(whatIsOpen(), "'2'");
    EXPECT_EQ(editor()->geometry().topLeft(), QPoint(cell.left, cell.top));
    EXPECT_EQ(QApplication::focusWidget(), &field());
    type("025");
    key(Qt::Key_Return);
    letEventsPass();
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("2025"));
    EXPECT_EQ(topRow(0).mExtra, QStringLiteral("note"));
    EXPECT_EQ(changes, 1);
}

TEST_F(TypingDates, NoCharacterIsLostWhenSeveralComeAtOnce)
{
    for (const QChar letter : QStringLiteral("14.3."))
        QTest::sendKeyEvent(QTest::Press, QApplication::focusWidget(), Qt::Key_unknown, letter, {});
    EXPECT_EQ(whatIsOpen(), "'14.3.'");
    letEventsPass();
    type("2");
    EXPECT_EQ(whatIsOpen(), "'14.3.2'");
}

TEST_F(TypingDates, EveryOperatorOnDatesIsADateRowAndNoOtherIs)
{
    for (LONG op = 128; op <= 140; ++op) {
        topRow(0).mlOperator = op;
        topRow(0).mValue = QStringLiteral("before");
        type("x");
        EXPECT_EQ(whatIsOpen(), op >= 130 && op <= 135 ? "'x'" : "nothing") << op;
        control->finishEditing();
    }
}

TEST_F(TypingDates, AKindWhoseValuesAreListedIsNoDateRow)
{
    topRow(0).mlCode = User;
    type("2");
    EXPECT_EQ(whatIsOpen(), "nothing");
}

TEST_F(TypingDates, OtherRowsAreFoundByTheirKeysAsEver)
{
    selectRow(1);
    type("2");
    EXPECT_EQ(whatIsOpen(), "nothing");
    key(Qt::Key_Up);
    EXPECT_EQ(control->currentIndex(), indexOf(0));
}

TEST_F(TypingDates, KeysThatTypeNothingDoOnADateRowWhatTheyDoElsewhere)
{
    for (const Qt::Key pressed : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Backspace,
                                  Qt::Key_Space, Qt::Key_F2, Qt::Key_Shift, Qt::Key_Home}) {
        selectRow(0);
        key(pressed);
        EXPECT_EQ(whatIsOpen(), "nothing") << pressed;
    }
    selectRow(0);
    for (const Qt::KeyboardModifier held :
         {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
        QTest::keyClick(window->windowHandle(), '2', held);
        EXPECT_EQ(whatIsOpen(), "nothing") << held;
    }
    key(Qt::Key_Down);
    EXPECT_EQ(control->currentIndex(), indexOf(1));
    EXPECT_EQ(changes, 0);
}

TEST_F(TypingDates, AShiftedCharacterCountsToo)
{
    QTest::keyClick(window->windowHandle(), '<', Qt::ShiftModifier);
    EXPECT_EQ(whatIsOpen(), "'<'");
}

TEST_F(TypingDates, ARowThatIsScrolledAwayIsShownFirst)
{
    std::vector<TransCond> records;
    for (int i = 0; i < 60; ++i)
        records.push_back(record(RowKindTop, 2, "Due", "2024-03-14", ArgDate, DateEqualTo));
    loaded(records);
    letEventsPass(); // a scroll bar comes
    selectRow(0);
    control->scrollToBottom();
    type("2");
    ASSERT_EQ(whatIsOpen(), "'2'");
    EXPECT_TRUE(control->viewport()->rect().contains(editor()->geometry()));
    EXPECT_EQ(editor()->y(), cellOf(0, 2).top);
}

TEST_F(TypingDates, ARowBelowTheOthersIsScrolledToByNoMoreThanIsNeeded)
{
    loaded(std::vector<TransCond>(
        60, record(RowKindTop, 2, "Due", "2024-03-14", ArgDate, DateEqualTo)));
    letEventsPass(); // a scroll bar comes
    selectRow(40);
    control->scrollToTop();
    type("2");
    ASSERT_EQ(whatIsOpen(), "'2'");
    const QRect row = control->visualRect(indexOf(40));
    const QRect room = control->viewport()->rect();
    EXPECT_LE(row.bottom(), room.bottom());
    EXPECT_GT(row.bottom() + row.height(), room.bottom());
}

TEST_F(TypingDates, ARowInAClosedGroupIsShownFirst)
{
    loaded({groupRecord(), record(RowKindInGroup, 2, "Due", "2024-03-14", ArgDate, DateEqualTo)});
    control->expand(indexOf(0));
    const QModelIndex row = control->model()->index(0, 0, indexOf(0));
    control->setCurrentIndex(row);
    control->collapse(indexOf(0));
    control->setCurrentIndex(row);
    letEventsPass();
    type("2");
    EXPECT_TRUE(control->isExpanded(indexOf(0)));
    ASSERT_EQ(whatIsOpen(), "'2'");
    EXPECT_EQ(editor()->y(), control->visualRect(row).top());
}

TEST_F(TypingDates, AHostMayEndItWhenTheRowIsScrolledTo)
{
    const std::function<void()> ends[] = {[this] { control->mvDeleteNode(topRow(0).mhItem); },
                                          [this] { control->mvDeleteNode(TVI_ROOT); },
                                          [this] { control.reset(); }};
    for (const auto& end : ends) {
        loaded(std::vector<TransCond>(
            60, record(RowKindTop, 2, "Due", "2024-03-14", ArgDate, DateEqualTo)));
        letEventsPass(); // a scroll bar comes
        selectRow(0);
        control->scrollToBottom();
        bool hasEnded = false;
        QObject::connect(control->verticalScrollBar(), &QScrollBar::valueChanged, window.get(),
                         [&] {
                             if (!std::exchange(hasEnded, true))
                                 end();
                         });
        type("2");
        EXPECT_TRUE(hasEnded);
        if (control != nullptr) {
            control->verticalScrollBar()->disconnect(window.get());
            EXPECT_EQ(whatIsOpen(), "nothing");
        }
    }
    EXPECT_EQ(changes, 0);
}

TEST_F(TypingDates, AHostMayEndItWhenItIsAskedForAMetric)
{
    const std::function<void()> ends[] = {[this] { control->mvDeleteNode(topRow(0).mhItem); },
                                          [this] { control->mvDeleteNode(TVI_ROOT); },
                                          [this] { control.reset(); }};
    for (const auto& end : ends) {
        loaded({record(RowKindTop, 2, "Due", "2024-03-14", ArgDate, DateEqualTo)});
        selectRow(0);
        letEventsPass();
        bool hasEnded = false;
        duringMetric = [&](int metric) {
            if (metric == SM_CXSMICON && !std::exchange(hasEnded, true))
                end();
        };
        QTest::sendKeyEvent(QTest::Press, control.get(), Qt::Key_2, QStringLiteral("2"), {});
        duringMetric = nullptr;
        EXPECT_TRUE(hasEnded);
        if (control != nullptr) {
            EXPECT_EQ(whatIsOpen(), "nothing");
        }
    }
    EXPECT_EQ(changes, 0);
}

TEST_F(TypingDates, ACharacterOutsideTheBasicPlaneCountsToo)
{
    const QString typed = QStringLiteral("\U0001F600");
    QTest::sendKeyEvent(QTest::Press, QApplication::focusWidget(), Qt::Key_unknown, typed, {});
    EXPECT_EQ(whatIsOpen(), "'" + typed.toStdString() + "'");
}

TEST_F(TypingDates, WhatIsTypedElsewhereIsNotForTheRow)
{
    beside->setFocus();
    type("2");
    EXPECT_EQ(whatIsOpen(), "nothing");
    EXPECT_EQ(beside->text(), QStringLiteral("2"));
}

} // namespace
} // namespace condtree::test
