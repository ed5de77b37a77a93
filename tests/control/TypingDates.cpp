#include "CellHand.h"

#include <condtree/editing/PickDateDlg.h>

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

TEST_F(TypingDates, WhatIsTypedElsewhereIsNotForTheRow)
{
    beside->setFocus();
    type("2");
    EXPECT_EQ(whatIsOpen(), "nothing");
    EXPECT_EQ(beside->text(), QStringLiteral("2"));
}

} // namespace
} // namespace condtree::test
