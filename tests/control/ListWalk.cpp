// The lists opened by a click, and chosen from by each of the ways that a hand has.
#include "ClickFixture.h"

#include <QScrollBar>

namespace condtree::test {
namespace {

class ListWalk : public ClickFixture {
protected:
    ListWalk()
    {
        library->docTypes = {{QStringLiteral("Drawing"), {}}, {QStringLiteral("Letter"), {}}};
    }

    void open(const VarTreeCtrlNode& row, int column)
    {
        click(row, column);
        ASSERT_TRUE(isOpen());
    }
    [[nodiscard]] std::string current() const
    {
        const QModelIndex index = list().currentIndex();
        return index.isValid() ? combo()->entry(index.row()).text.toStdString() : "";
    }
    /// Sends a key to a widget of the host, past the open list.
    static void sendKey(QWidget* to, char letter)
    {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_A + (letter - 'a'), {},
                        QString(QLatin1Char(letter)));
        QCoreApplication::sendEvent(to, &event);
    }
    /// Turns the wheel over a widget: the window system tells the window, which knows of popups.
    void turnWheel(const QWidget* over)
    {
        const QPoint at = over->mapTo(&window, QPoint(3, 3));
        QWheelEvent event(at, window.mapToGlobal(at), {}, {0, -120}, {}, {}, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(window.windowHandle(), &event);
    }
    void manyVariables()
    {
        library->variables.clear();
        for (int i = 0; i < 100; ++i)
            library->variables.push_back({i, VarText, QStringLiteral("Variable %1").arg(i)});
    }
};

/// A list and the choice of its last but one entry.
struct Walked {
    RowBefore row;
    int column;
    const char* text;   ///< the entry
    const char* prefix; ///< how it alone of its list begins
    const char* middle; ///< what it alone of its list contains
    std::string after;
};

std::vector<Walked> walks()
{
    return {{{NodeVariable, "Author", "a", "", 106, 1},
             0,
             "Due",
             "du",
             "ue",
             "1000 Due | a op=106 arg=5"},
            {{NodeVariable, "Author", "a", "", 106, 1},
             1,
             "Date Less Than or Equal",
             "date less than o",
             "te less than or",
             "1000 Author | a op=134 arg=1"},
            {{Category, "Category", "x", "", 100},
             2,
             "Drawing",
             "d",
             "aw",
             "3 Category | Drawing op=100"},
            {{ObjectType, "Object Type", "x", "", 100},
             2,
             "BOM",
             "b",
             "om",
             "6 Object Type | BOM op=100 object=1"},
            {{NodeVariable, "Approved", "", "", 139, 4},
             2,
             "Yes",
             "y",
             "es",
             "1000 Approved | Yes op=139 arg=4"},
            {{ChildRefState, "S", "", "", 100},
             2,
             "Release.Open",
             "release.o",
             "op",
             "8 S | Release.Open op=100 state=12"},
            {{User, "User", "", "", 100}, 2, "smith", "s", "mit", "9 User | smith op=100 id=7"},
            {{Group, "Group", "", "", 100},
             2,
             "Designers",
             "d",
             "sign",
             "10 Group | Designers op=100 id=3"}};
}

TEST_F(ListWalk, AHostMaySwitchTheFilterOff)
{
    start();
    const VarTreeCtrlNode& row = only({FilePath, "FilePath", "", "", StringContains});
    const auto shownAfter = [&](const char* letters) {
        click(row, 0);
        typeText(popup(), letters);
        const int shown = list().shownCount();
        closeAll();
        return shown;
    };
    EXPECT_EQ(shownAfter("visio"), 1) << "what contains it";
    control->setQuickFilter(false);
    click(row, 0);
    const int all = list().shownCount();
    closeAll();
    EXPECT_GT(all, 1);
    EXPECT_EQ(shownAfter("visio"), all);
    control->setQuickFilter(true);
    EXPECT_EQ(shownAfter("visio"), 1);
}

TEST_F(ListWalk, EveryListIsChosenFromByMouseKeysTypingAndTheFilter)
{
    using Hand = std::function<void(const Walked&)>;
    const std::vector<std::pair<const char*, Hand>> hands = {
        {"the mouse", [this](const Walked& w) { choose(w.text); }},
        {"the arrow keys",
         [this](const Walked& w) {
             key(Qt::Key_Home);
             for (int i = indexOf(w.text); i > 0; --i)
                 key(Qt::Key_Down);
             key(Qt::Key_Return);
         }},
        {"the end key",
         [this](const Walked& w) {
             key(Qt::Key_End);
             for (int i = combo()->entryCount() - 1; i > indexOf(w.text); --i)
                 key(Qt::Key_Up);
             key(Qt::Key_Enter);
         }},
        {"how it begins",
         [this](const Walked& w) {
             typeText(popup(), w.prefix);
             key(Qt::Key_Return);
         }},
        {"what it contains",
         [this](const Walked& w) {
             typeText(popup(), w.middle);
             EXPECT_EQ(list().shownCount(), 1);
             key(Qt::Key_Return);
         }},
        {"typing with the focus elsewhere",
         [this](const Walked& w) {
             hostField->setFocus();
             for (const char* letter = w.prefix; *letter != '\0'; ++letter)
                 sendKey(hostField, *letter);
             key(Qt::Key_Return);
         }},
    };
    start();
    for (const auto& [name, hand] : hands) {
        for (const Walked& w : walks()) {
            const VarTreeCtrlNode& row = only(w.row);
            SCOPED_TRACE(std::string(name) + ": " + toText(row) + " -> " + w.text);
            const int changesBefore = changes;
            const int closeUpsBefore = control->closeUps;
            open(row, w.column);
            hand(w);
            letEventsPass();
            EXPECT_EQ(toText(row), w.after);
            EXPECT_EQ(changes - changesBefore, 1);
            EXPECT_EQ(control->closeUps - closeUpsBefore, 1);
            EXPECT_EQ(combo(), nullptr);
        }
    }
    EXPECT_EQ(hostField->text(), QString());
}

TEST_F(ListWalk, WhatIsTypedAnywhereSelectsInTheOpenList)
{
    start();
    const VarTreeCtrlNode& row = only({FilePath, "FilePath", "", "", 106});
    for (QWidget* elsewhere : {static_cast<QWidget*>(control.get()), control->viewport(),
                               static_cast<QWidget*>(hostField), &window}) {
        open(row, 0);
        EXPECT_EQ(selected(), "FilePath");
        sendKey(elsewhere, 'w');
        EXPECT_EQ(current(), "Weight");
        EXPECT_EQ(list().shownCount(), 1);
        closeAll();
    }
    EXPECT_EQ(hostField->text(), QString()) << "and goes nowhere else";
}

TEST_F(ListWalk, TheWheelAnywhereScrollsTheOpenListAndNothingElse)
{
    manyVariables();
    start();
    std::vector<TransCond> records(80, record(3, 2, "Variable 1", "", 1, 106));
    loaded(records);
    click(topRow(1), 0);
    ASSERT_TRUE(isOpen());
    QScrollBar& bar = *list().verticalScrollBar();
    for (QWidget* elsewhere : {static_cast<QWidget*>(control.get()), control->viewport(),
                               static_cast<QWidget*>(hostField), &window}) {
        const int before = bar.value();
        turnWheel(elsewhere);
        EXPECT_GT(bar.value(), before);
        EXPECT_LE(bar.value() - before, 10 * list().rowHeight()) << "once";
        EXPECT_EQ(control->verticalScrollBar()->value(), 0);
    }
    closeAll();
    turnWheel(viewport);
    EXPECT_GT(control->verticalScrollBar()->value(), 0) << "without a list the rows scroll";
}

TEST_F(ListWalk, PreTranslationHandsOnAndAnswersFalse)
{
    manyVariables();
    start();
    const VarTreeCtrlNode& row = only({FilePath, "FilePath", "", "", 106});
    QKeyEvent typed(QEvent::KeyPress, Qt::Key_R, {}, QStringLiteral("r"));
    EXPECT_FALSE(control->PreTranslateMessage(&typed)) << "nothing is open";
    open(row, 0);
    EXPECT_FALSE(control->PreTranslateMessage(&typed));
    EXPECT_EQ(current(), "Revision");
    QWheelEvent turn({3, 3}, {3, 3}, {}, {0, -240}, {}, {}, Qt::NoScrollPhase, false);
    closeAll();
    open(row, 0);
    const int before = list().verticalScrollBar()->value();
    EXPECT_FALSE(control->PreTranslateMessage(&turn));
    EXPECT_GT(list().verticalScrollBar()->value(), before);

    const std::string selectedBefore = current();
    QKeyEvent released(QEvent::KeyRelease, Qt::Key_W, {}, QStringLiteral("w"));
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, {});
    EXPECT_FALSE(control->PreTranslateMessage(&released));
    EXPECT_FALSE(control->PreTranslateMessage(&down)) << "keys that type nothing are not routed";
    EXPECT_EQ(current(), selectedBefore);
    EXPECT_TRUE(isOpen());
}

TEST_F(ListWalk, AClosedListTakesNothingFromTheFocus)
{
    start();
    const VarTreeCtrlNode& row = only({User, "User", "smith", "", 100, 0, -1, 7});
    open(row, 2);
    combo()->closeList(); // what closing does comes with the next events
    hostField->setFocus();
    sendKey(hostField, 'a');
    EXPECT_EQ(hostField->text(), QStringLiteral("a"));
    letEventsPass();
    sendKey(hostField, 'b');
    EXPECT_EQ(hostField->text(), QStringLiteral("ab"));
}

TEST_F(ListWalk, AListThatStaysAndIsOpenedAgainIsTypedIntoFromAnywhere)
{
    start(KiroVaultType{0}, TreeTypeUsersAndGroups);
    library->getUsers.results = {E_FAIL};
    const VarTreeCtrlNode& row = only({FilePath, "FilePath", "", "", 106});
    open(row, 0);
    choose("User");
    ASSERT_NE(combo(), nullptr);
    QTest::keyClick(combo(), Qt::Key_F4);
    ASSERT_TRUE(isOpen());
    sendKey(hostField, 'w');
    EXPECT_EQ(current(), "Weight");
    EXPECT_EQ(hostField->text(), QString());
}

TEST_F(ListWalk, TheFocusReturnsToTheTree)
{
    start();
    const VarTreeCtrlNode& row = only({FilePath, "FilePath", "", "", 106});
    open(row, 0);
    choose("Author");
    EXPECT_EQ(QApplication::focusWidget(), control.get());
    open(row, 0);
    key(Qt::Key_Escape);
    letEventsPass();
    EXPECT_EQ(QApplication::focusWidget(), control.get());
}

TEST_F(ListWalk, TheCurrentChoiceIsSelectedFirst)
{
    struct Case {
        const char* name;
        RowBefore row;
        std::string selected;
    };
    const Case cases[] = {
        {"the placeholder", {NodePlaceholder}, ""},
        {"a group", {NodeOr}, "Or"},
        {"a category", {Category, "x"}, "Category"},
        {"a path", {FilePath, "x"}, "FilePath"},
        {"an object type", {ObjectType, "x"}, "Object Type"},
        {"a revision", {Revision, "x"}, "Revision"},
        {"a child's state", {ChildRefState, "x"}, "Child Reference State"},
        {"a user, who is not offered here", {User, "x"}, "Or"},
        {"a user group, likewise", {Group, "x"}, "Or"},
        {"a property", {NodeOtherName, "Author"}, "Or"},
        {"a history", {NodeHistoricState, "x"}, "Or"},
        {"a variable", {NodeVariable, "Due"}, "Due"},
        {"a variable in other letters", {NodeVariable, "dUE"}, "Due"},
        {"an unknown variable", {NodeVariable, "Du"}, ""},
        {"no variable", {NodeVariable, ""}, ""},
        {"a code of the saved kind", {106, "Title"}, "Title"},
        {"a variable of a fixed entry's name", {NodeVariable, "Revision"}, "Revision"},
        {"a row of code 4", {4, "Title"}, ""},
    };
    start();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        open(only(c.row), 0);
        EXPECT_EQ(selected(), c.selected);
        EXPECT_EQ(current(), c.selected) << "and lies under the hand";
    }
}

TEST_F(ListWalk, UsersAndGroupsAreSelectedWhereTheyAreOffered)
{
    start(KiroVaultType{0}, TreeTypeUsersAndGroups);
    open(only({User, "x"}), 0);
    EXPECT_EQ(selected(), "User");
    open(only({Group, "x"}), 0);
    EXPECT_EQ(selected(), "Group");
    open(only({ChildRefState, "x"}), 0);
    EXPECT_EQ(selected(), "Or") << "which is not offered here";
}

// The search begins behind the start index, which counts seven, the kinds that are offered at times
// and Remove; then it wraps.
TEST_F(ListWalk, OfVariablesOfOneNameTheOneBehindTheStartIsFoundFirst)
{
    library->variables = {{1, VarText, QStringLiteral("Same")},
                          {2, VarText, QStringLiteral("B")},
                          {3, VarText, QStringLiteral("same")},
                          {4, VarText, QStringLiteral("SAME")}};
    start();
    open(only({NodeVariable, "Same"}), 0); // 7 kinds, start 9
    EXPECT_EQ(combo()->selection(), 10);
    closeAll();
    VarTreeCtrlNode& group = only({NodeOr});
    open(add({NodeVariable, "Same"}, &group), 0); // 6 kinds, start 9
    EXPECT_EQ(combo()->selection(), 6) << "behind the last one the search begins anew";
    closeAll();
    control->mvSetTransitionType(1);
    open(only({NodeVariable, "same"}), 0); // 6 kinds, start 8
    EXPECT_EQ(combo()->selection(), 9);
    closeAll();
    initialize(KiroVaultType{0}, TreeTypeUsersAndGroups);
    open(only({NodeVariable, "same"}), 0); // 8 kinds, start 10
    EXPECT_EQ(combo()->selection(), 11);
}

TEST_F(ListWalk, AVariableCalledAnyVariableIsThatOfARowWithoutAName)
{
    library->variables.push_back({9, VarText, QStringLiteral("<any variable>")});
    start();
    open(only({NodeVariable, ""}), 0);
    EXPECT_EQ(selected(), "<any variable>");
    translations[44] = QStringLiteral("Due");
    open(only({NodeVariable, ""}), 0);
    EXPECT_EQ(selected(), "Due") << "in the user's language";
}

TEST_F(ListWalk, OperatorsAndValuesBeginWithNothingSelected)
{
    start();
    for (const RowBefore& row :
         {RowBefore{NodeVariable, "Author", "a", "", 106, 1}, RowBefore{FilePath, "x", "", "", 100},
          RowBefore{Revision, "x", "", "", 130}, RowBefore{ChildRefState, "x", "", "", 108}}) {
        open(only(row), 1);
        EXPECT_EQ(selected(), "");
        EXPECT_EQ(current(), "");
    }
    open(only({Group, "Group", "Checkers", "", 100, 0, -1, 4}), 2);
    EXPECT_EQ(selected(), "");
}

TEST_F(ListWalk, TheOperatorWhoseNumberIsTheRowsCodeIsSelected)
{
    translations[103] = QStringLiteral("Greater");
    start();
    open(only({103, "Author", "", "", 106, 1}), 1);
    EXPECT_EQ(selected(), "Greater");
}

TEST_F(ListWalk, AListIsAsWideAsItsLongestText)
{
    library->variables.push_back({9, VarText, QString(200, QLatin1Char('W'))});
    start();
    open(placeholder(), 0);
    const int wide = list().window()->width();
    EXPECT_GT(wide, 2 * combo()->width());
    const VarTreeCtrlNode& row = only({NodeVariable, "Approved", "", "", 139, 4});
    open(row, 2);
    EXPECT_LT(list().window()->width(), wide) << "each click measures anew";
    EXPECT_GE(list().window()->width(), combo()->width());
}

TEST_F(ListWalk, AHostMayAddEntriesOfItsOwn)
{
    translations[106] = QStringLiteral("Contains");
    start();
    const VarTreeCtrlNode& row = only({NodeVariable, "Approved", "", "", 139, 4});
    control->mvAddComboCmd(StringEqualTo, QStringLiteral("x"), 0, 0);
    EXPECT_EQ(combos(), 0) << "without a list there is nothing to add to";
    open(row, 2);
    control->mvAddComboCmd(StringContains, QStringLiteral("x"), -1, 1);
    control->mvAddComboCmd(static_cast<ComboCmd>(VariableBase + 106), QStringLiteral("Mine"), -1,
                           9);
    EXPECT_EQ(entries(), "140 Yes, 106 Contains, 141 No, 1106 Mine");
    choose("Contains");
    EXPECT_EQ(toText(row), "1000 Approved op=106 arg=4");
}

} // namespace
} // namespace condtree::test
