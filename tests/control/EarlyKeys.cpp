#include "CellHand.h"

namespace condtree::test {
namespace {

/// A quick user, whose keys come before the editor that a click opened has got the focus.
class EarlyKeys : public CellHand {
protected:
    void SetUp() override
    {
        loaded({record(RowKindTop, 2, "Due", "2024-03-14", ArgDate, DateEqualTo, "note"),
                record(RowKindTop, 2, "Author", "pump", ArgText, StringContains, "note")});
        control->setFocus();
    }
    /// Nothing that is posted is delivered meanwhile.
    void clickAtOnce(int row, int column)
    {
        QTest::mouseClick(control->viewport(), Qt::LeftButton, {}, middleOf(row, column));
        ASSERT_NE(editor(), nullptr);
        ASSERT_EQ(QApplication::focusWidget(), control.get());
    }
    static void keyAtOnce(Qt::Key pressed, const QString& text = {})
    {
        QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), pressed, text, {});
    }
    static void typeAtOnce(const char* text)
    {
        for (const QChar letter : QString::fromUtf8(text))
            keyAtOnce(Qt::Key_unknown, letter);
    }
};

TEST_F(EarlyKeys, GoIntoTheRemarkOfADateRowAndLeaveItsDate)
{
    clickAtOnce(0, 3);
    typeAtOnce("remark");
    EXPECT_EQ(whatIsOpen(), "'remark'");
    letEventsPass();
    key(Qt::Key_Return);
    letEventsPass();
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("2024-03-14"));
    EXPECT_EQ(topRow(0).mExtra, QStringLiteral("remark"));
    EXPECT_EQ(changes, 1);
}

TEST_F(EarlyKeys, AreAllInTheText)
{
    clickAtOnce(1, 2);
    typeAtOnce("a b");
    EXPECT_EQ(whatIsOpen(), "'a b'");
    letEventsPass();
    type("c");
    EXPECT_EQ(whatIsOpen(), "'a bc'") << "the focus selects nothing when it comes";
    EXPECT_EQ(control->currentIndex(), indexOf(1));
}

TEST_F(EarlyKeys, ReturnCommits)
{
    clickAtOnce(1, 2);
    keyAtOnce(Qt::Key_Return);
    EXPECT_EQ(whatIsOpen(), "nothing");
    letEventsPass();
    EXPECT_EQ(changes, 0);

    clickAtOnce(1, 2);
    editor()->setText(QStringLiteral("valve"));
    keyAtOnce(Qt::Key_Return);
    EXPECT_EQ(whatIsOpen(), "nothing");
    EXPECT_EQ(topRow(1).mValue, QStringLiteral("valve"));
    letEventsPass();
    EXPECT_EQ(changes, 1);
}

TEST_F(EarlyKeys, ThatMoveTheSelectionOfRowsMoveTheCursor)
{
    clickAtOnce(1, 2);
    keyAtOnce(Qt::Key_Home);
    typeAtOnce("x");
    keyAtOnce(Qt::Key_Up);
    EXPECT_EQ(whatIsOpen(), "'xpump'");
    EXPECT_EQ(control->currentIndex(), indexOf(1));
}

} // namespace
} // namespace condtree::test
