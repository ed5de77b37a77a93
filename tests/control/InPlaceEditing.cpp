#include "CellHand.h"

namespace condtree::test {
namespace {

using InPlaceEditing = CellHand;

TransCond author(const char* value, const char* extra = "")
{
    return record(RowKindTop, 2, "Author", value, ArgText, StringContains, extra);
}

TEST_F(InPlaceEditing, AClickOnAValueOpensTheEditorWithItsTextAllSelected)
{
    only(author("pump", "note"));
    const RECT cell = cellOf(0, 2);
    click(0, 2);
    ASSERT_EQ(whatIsOpen(), "'pump'");
    EXPECT_EQ(field().selectedText(), QStringLiteral("pump"));
    EXPECT_EQ(editor()->geometry().topLeft(), QPoint(cell.left, cell.top));
    EXPECT_EQ(editor()->width(), cell.right - cell.left);
    EXPECT_GE(editor()->height(), 20);
    EXPECT_EQ(topRow(0).mlEditColumn, 2);
    EXPECT_EQ(editor()->property("controlId").toInt(), 902);
}

TEST_F(InPlaceEditing, AClickOnTheFourthColumnOpensTheEditorWithItsOwnText)
{
    only(author("pump", "note"));
    const RECT cell = cellOf(0, 3);
    click(0, 3);
    ASSERT_EQ(whatIsOpen(), "'note'");
    EXPECT_EQ(field().selectedText(), QStringLiteral("note"));
    EXPECT_EQ(editor()->x(), cell.left);
    EXPECT_EQ(topRow(0).mlEditColumn, 3);
}

TEST_F(InPlaceEditing, TheFocusArrivesByAPostedMessage)
{
    only(author("pump"));
    control->setFocus();
    control->mvOnClickValue(topRow(0), 2, cellOf(0, 2));
    EXPECT_EQ(QApplication::focusWidget(), control.get());
    QCoreApplication::sendPostedEvents();
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(QApplication::focusWidget(), &field());
}

TEST_F(InPlaceEditing, TypingAndReturnCommitOnceAndTellOnce)
{
    only(author("pump", "note"));
    click(0, 2);
    type("valve");
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("pump"));
    key(Qt::Key_Return);
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("valve"));
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(whatIsOpen(), "nothing");
    letEventsPass();
    clickBeside();
    letEventsPass();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(topRow(0).mExtra, QStringLiteral("note"));
}

TEST_F(InPlaceEditing, AtReturnTheHostIsToldAtOnce)
{
    only(author("pump"));
    click(0, 2);
    letEventsPass();
    type("valve");
    QTest::keyClick(&field(), Qt::Key_Return); // lets no other events pass
    EXPECT_EQ(changes, 1);
}

TEST_F(InPlaceEditing, TheTreeHasTheFocusAfterReturn)
{
    only(author("pump"));
    click(0, 2);
    key(Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), control.get());
}

TEST_F(InPlaceEditing, TypingAndAClickElsewhereCommitOnceAndTellOnce)
{
    for (const int column : {2, 3}) {
        only(author("pump", "note"));
        changes = 0;
        click(0, column);
        type("valve");
        clickBeside();
        letEventsPass();
        EXPECT_EQ(topRow(0).mValue, column == 2 ? QStringLiteral("valve") : QStringLiteral("pump"));
        EXPECT_EQ(topRow(0).mExtra, column == 3 ? QStringLiteral("valve") : QStringLiteral("note"));
        EXPECT_EQ(changes, 1);
        EXPECT_EQ(whatIsOpen(), "nothing");
        EXPECT_EQ(QApplication::focusWidget(), beside);
    }
}

TEST_F(InPlaceEditing, AnUnchangedTextTellsNothing)
{
    only(author("pump", "note"));
    for (const int column : {2, 3}) {
        click(0, column);
        key(Qt::Key_Return);
        click(0, column);
        type("x");
        key(Qt::Key_Backspace);
        field().setText(column == 2 ? QStringLiteral("pump") : QStringLiteral("note"));
        clickBeside();
        letEventsPass();
    }
    EXPECT_EQ(changes, 0);
}

TEST_F(InPlaceEditing, EscapeDoesNotCancel)
{
    only(author("pump"));
    click(0, 2);
    type("valve");
    key(Qt::Key_Escape);
    EXPECT_EQ(whatIsOpen(), "'valve'");
    clickBeside();
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("valve"));
}

TEST_F(InPlaceEditing, TheFourthColumnIsEditedForFourKindsOnly)
{
    const struct {
        LONG code;
        const char* opened;
    } cases[] = {{-1, "nothing"}, {0, "nothing"},   {1, "nothing"},   {3, "nothing"},
                 {4, "nothing"},  {5, "nothing"},   {6, "nothing"},   {7, "nothing"},
                 {8, "'note'"},   {9, "nothing"},   {10, "nothing"},  {11, "'note'"},
                 {12, "'note'"},  {999, "nothing"}, {1000, "'note'"}, {1001, "nothing"}};
    for (const auto& [code, opened] : cases) {
        VarTreeCtrlNode& node = only(author("pump", "note"));
        node.mlCode = code;
        click(0, 3);
        EXPECT_EQ(whatIsOpen(), opened) << code;
        EXPECT_EQ(topRow(0).mlEditColumn, 3) << code;
    }
}

TEST_F(InPlaceEditing, TheFourthColumnOfAFilePathClosesAnOpenEditor)
{
    loaded({author("pump"), record(RowKindTop, 1, "", "path", ArgText, StringContains)});
    ASSERT_EQ(topRow(1).mlCode, 5);
    click(0, 3);
    type("typed");
    click(1, 3);
    letEventsPass();
    EXPECT_EQ(whatIsOpen(), "nothing");
    EXPECT_EQ(topRow(0).mExtra, QStringLiteral("typed"));

    click(0, 2);
    type("told");
    tellClick(1, 3);
    EXPECT_EQ(whatIsOpen(), "nothing");
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("told"));
    letEventsPass();
    EXPECT_EQ(changes, 2);
}

TEST_F(InPlaceEditing, EachColumnKeepsItsTextWhenTheOtherIsClicked)
{
    for (const bool isTold : {false, true}) {
        only(author("pump", "note"));
        changes = 0;
        const auto go = [&](int column) { isTold ? tellClick(0, column) : click(0, column); };
        go(2);
        letEventsPass();
        type("valve");
        go(3);
        ASSERT_EQ(whatIsOpen(), "'note'");
        letEventsPass();
        type("remark");
        go(2);
        ASSERT_EQ(whatIsOpen(), "'valve'");
        letEventsPass();
        clickBeside();
        letEventsPass();
        EXPECT_EQ(topRow(0).mValue, QStringLiteral("valve"));
        EXPECT_EQ(topRow(0).mExtra, QStringLiteral("remark"));
        EXPECT_EQ(changes, 2);
    }
}

TEST_F(InPlaceEditing, AskingForTheValueEditorEditsTheValueWhateverWasEditedBefore)
{
    only(author("pump", "note"));
    click(0, 3);
    letEventsPass();
    type("remark");
    control->mvOnClickValue(topRow(0), 2, cellOf(0, 2));
    ASSERT_EQ(whatIsOpen(), "'pump'");
    letEventsPass();
    type("valve");
    key(Qt::Key_Return);
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("valve"));
    EXPECT_EQ(topRow(0).mExtra, QStringLiteral("remark"));
    EXPECT_EQ(changes, 2);
}

TEST_F(InPlaceEditing, ANodeOutsideTheTreeIsEditedToo)
{
    only(author("pump"));
    VarTreeCtrlNode node(NodeVariable);
    node.mValue = QStringLiteral("free");
    control->mvOnClickValue(node, 2, {10, 10, 210, 30});
    ASSERT_EQ(whatIsOpen(), "'free'");
    letEventsPass();
    type("typed");
    key(Qt::Key_Return);
    EXPECT_EQ(node.mValue, QStringLiteral("typed"));
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("pump"));
    EXPECT_EQ(changes, 1);
}

TEST_F(InPlaceEditing, ClickingAnotherRowsCellCommitsAndOpensThere)
{
    loaded({author("one"), author("two")});
    click(0, 2);
    type("first");
    click(1, 2);
    ASSERT_EQ(whatIsOpen(), "'two'");
    EXPECT_EQ(editor()->y(), cellOf(1, 2).top);
    type("second");
    key(Qt::Key_Return);
    letEventsPass();
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("first"));
    EXPECT_EQ(topRow(1).mValue, QStringLiteral("second"));
    EXPECT_EQ(changes, 2);
}

TEST_F(InPlaceEditing, OpeningAListCommits)
{
    for (const bool isTold : {false, true}) {
        for (const int column : {0, 1}) {
            only(author("pump"));
            changes = 0;
            click(0, 2);
            type("valve");
            isTold ? tellClick(0, column) : click(0, column);
            EXPECT_EQ(whatIsOpen(), "list") << isTold << column;
            EXPECT_EQ(topRow(0).mValue, QStringLiteral("valve"));
            letEventsPass();
            EXPECT_EQ(changes, 1);
            list()->closeList();
            letEventsPass();
        }
    }
}

TEST_F(InPlaceEditing, AnEditorTakesAnOpenListAwayAndAppliesNothing)
{
    for (const int column : {2, 3}) {
        only(author("pump", "note"));
        click(0, 1);
        ASSERT_EQ(whatIsOpen(), "list");
        const int other = list()->selection() == 0 ? 1 : 0;
        list()->select(other);
        tellClick(0, column);
        letEventsPass();
        EXPECT_EQ(whatIsOpen(), column == 2 ? "'pump'" : "'note'");
        EXPECT_EQ(topRow(0).mlOperator, StringContains);
    }
    EXPECT_EQ(changes, 0);
}

TEST_F(InPlaceEditing, AClickInTheEditorIsNoneOnTheRow)
{
    only(author("pump"));
    click(0, 2);
    type("valve");
    const FocusEdit* const before = editor();
    clickAt(field(), {4, 4});
    letEventsPass();
    EXPECT_EQ(editor(), before);
    EXPECT_EQ(whatIsOpen(), "'valve'");
}

} // namespace
} // namespace condtree::test
