// What choosing each entry of each list makes of a row, by clicks of the mouse alone.
#include "ClickFixture.h"

namespace condtree::test {
namespace {

class ListWalkChanges : public ClickFixture {
protected:
    ListWalkChanges()
    {
        library->docTypes = {{QStringLiteral("Drawing"), {}}, {QStringLiteral("Letter"), {}}};
        now = SYSTEMTIME{2024, 3, 6, 2, 14, 7, 9, 0};
    }

    struct Case {
        RowBefore row;
        int column;
        const char* chosen;
        std::string after; ///< the rows without the placeholder that ends them
        int changes = 1;
    };

    void walk(const std::vector<Case>& cases)
    {
        for (const Case& c : cases) {
            const VarTreeCtrlNode& row = only(c.row);
            SCOPED_TRACE(toText(row) + ", column " + std::to_string(c.column) + ", " + c.chosen);
            const int changesBefore = changes;
            const int closeUpsBefore = control->closeUps;
            click(row, c.column);
            choose(c.chosen);
            EXPECT_EQ(rows(), (c.after.empty() ? "" : c.after + "\n") + kEnd);
            EXPECT_EQ(changes - changesBefore, c.changes);
            EXPECT_EQ(control->closeUps - closeUpsBefore, 1);
            EXPECT_EQ(combo(), nullptr) << "hidden";
        }
        EXPECT_TRUE(messages.empty());
    }

    static inline const std::string kEnd = "-1 <Click here to add a condition>\n";
};

const RowBefore kPlaceholderRow{NodePlaceholder};
constexpr RowBefore kText{NodeVariable, "Author", "a", "e", 106, 1};

TEST_F(ListWalkChanges, ThePlaceholderBecomesWhatIsChosenAndANewOneFollows)
{
    start();
    walk({{kPlaceholderRow, 0, "Or", "1 Or\n  -1 <Click here to add a condition>"},
          {kPlaceholderRow, 0, "Category", "3 Category op=100"},
          {kPlaceholderRow, 0, "FilePath", "5 FilePath op=106"},
          {kPlaceholderRow, 0, "Object Type", "6 Object Type op=100"},
          {kPlaceholderRow, 0, "Revision", "7 Revision op=100"},
          {kPlaceholderRow, 0, "Child Reference State",
           "8 Child Reference State | Release.Open op=100 state=12"},
          {kPlaceholderRow, 0, "Author", "1000 Author op=106 arg=1"},
          {kPlaceholderRow, 0, "Weight", "1000 Weight op=120 arg=2"},
          {kPlaceholderRow, 0, "Cost", "1000 Cost op=120 arg=3"},
          {kPlaceholderRow, 0, "Approved", "1000 Approved op=139 arg=4"},
          {kPlaceholderRow, 0, "Due", "1000 Due | 2024-03-02 op=130 arg=5"}});
}

TEST_F(ListWalkChanges, UsersAndGroupsBeginWithTheFirst)
{
    start(KiroVaultType{0}, TreeTypeUsersAndGroups);
    walk({{kPlaceholderRow, 0, "User", "9 User | smith op=100 id=7"},
          {kPlaceholderRow, 0, "Group", "10 Group | Designers op=100 id=3"},
          {{User, "User", "jones", "e", 101, 0, -1, 8}, 0, "User", "9 User | smith op=101 id=7"},
          {{User, "User", "smith", "", 101, 0, -1, 7}, 0, "User", "9 User | smith op=101 id=7", 0},
          {{User, "User", "jones", "", 101, 0, -1, 8},
           0,
           "Group",
           "10 Group | Designers op=101 id=3"}});
}

TEST_F(ListWalkChanges, AKindTakesTheRowOverAndKeepsWhatSuitsIt)
{
    start();
    walk({{kText, 0, "Category", "3 Category op=100 arg=1"},
          {{NodeVariable, "Author", "a", "e", 101, 1}, 0, "Category", "3 Category op=101 arg=1"},
          {{Category, "Category", "Drawing", "", 101},
           0,
           "Category",
           "3 Category | Drawing op=101",
           0},
          {{Category, "Category", "Drawing", "", 101}, 0, "Object Type", "6 Object Type op=101"},
          {{FilePath, "FilePath", "x", "e", 120}, 0, "FilePath", "5 FilePath | x op=106"},
          {{FilePath, "FilePath", "x", "", 103}, 0, "FilePath", "5 FilePath | x op=103", 0},
          {kText, 0, "FilePath", "5 FilePath | a op=106 arg=1"},
          {{FilePath, "FilePath", "x", "", 125}, 0, "Revision", "7 Revision op=125"},
          {{Revision, "Revision", "B", "", 135}, 0, "Revision", "7 Revision | B op=135", 0},
          {{NodeVariable, "Approved", "Yes", "", 139, 4}, 0, "Revision", "7 Revision op=100 arg=4"},
          {{NodeVariable, "Author", "a", "e", 108, 1},
           0,
           "Child Reference State",
           "8 Child Reference State | a | e op=108 arg=1"},
          {kText, 0, "Child Reference State", "8 Child Reference State | a | e op=100 arg=1"},
          {kText, 0, "Remove", ""}});
}

TEST_F(ListWalkChanges, AGroupIsMadeAndUnmade)
{
    start();
    walk({{kText, 0, "Or", "1 Or |  | e op=106 arg=1\n  -1 <Click here to add a condition>"},
          {{NodeOr}, 0, "Or", "1 Or\n  -1 <Click here to add a condition>", 0},
          {{NodeOr}, 0, "FilePath", "5 FilePath op=106"},
          {{NodeOr}, 0, "Remove", ""}});
}

TEST_F(ListWalkChanges, AVariableKeepsAnOperatorThatSuitsItsType)
{
    start();
    walk({{kText, 0, "Title", "1000 Title | a | e op=106 arg=1"},
          {kText, 0, "Weight", "1000 Weight | a | e op=120 arg=2"},
          {kText, 0, "Cost", "1000 Cost | a | e op=106 arg=3"},
          {kText, 0, "Approved", "1000 Approved |  | e op=139 arg=4"},
          {kText, 0, "Due", "1000 Due | a | e op=106 arg=5"},
          {{NodeVariable, "Weight", "1", "", 124, 2}, 0, "Weight", "1000 Weight | 1 op=120 arg=2"},
          {{NodeVariable, "Cost", "1", "", 124, 3}, 0, "Cost", "1000 Cost | 1 op=124 arg=3", 0},
          {{NodeVariable, "Cost", "1", "", 124, 3}, 0, "Due", "1000 Due | 1 op=130 arg=5"},
          {{NodeVariable, "Due", "", "", 131, 5},
           0,
           "Title",
           "1000 Title | 2024-03-02 op=131 arg=1"},
          {{NodeVariable, "Approved", "Yes", "", 139, 4},
           0,
           "Approved",
           "1000 Approved | Yes op=139 arg=4",
           0}});
}

TEST_F(ListWalkChanges, AnOperatorIsTakenAndGivesARowOnDatesToday)
{
    start();
    walk({{kText, 1, "String Equal To", "1000 Author | a | e op=100 arg=1"},
          {kText, 1, "String Contains", "1000 Author | a | e op=106 arg=1", 0},
          {kText, 1, "Number Less Than or Equal", "1000 Author | a | e op=124 arg=1"},
          {{NodeVariable, "Author", "", "", 106, 1},
           1,
           "Date Bigger Than",
           "1000 Author | 2024-03-02 op=133 arg=1"},
          {{NodeVariable, "Approved", "Yes", "", 100, 4},
           1,
           "Binary Equal To",
           "1000 Approved | Yes op=139 arg=4"},
          {{Category, "Category", "Drawing", "", 100},
           1,
           "String Not Equal To",
           "3 Category | Drawing op=101"}});
}

TEST_F(ListWalkChanges, TheOperatorOfAStateDecidesWhatItsValueIs)
{
    start();
    for (const LONG code : {LONG{ChildRefState}, LONG{NodeHistoricState}}) {
        const std::string c = std::to_string(code);
        walk({{{code, "S", "Release.Done", "e", 100, 0, 13},
               1,
               "Text Compare",
               c + " S |  | e op=108"},
              {{code, "S", "R%", "", 108},
               1,
               "String Not Equal To",
               c + " S | Release.Open op=101 state=12"},
              {{code, "S", "", "", 100},
               1,
               "String Not Equal To",
               c + " S | Release.Open op=101 state=12"},
              {{code, "S", "Release.Done", "", 100, 0, 13},
               1,
               "String Not Equal To",
               c + " S | Release.Done op=101 state=13"},
              {{code, "S", "", "", 100}, 1, "String Equal To", c + " S op=100", 0}});
    }
}

TEST_F(ListWalkChanges, AValueIsTakenFromItsList)
{
    start();
    walk(
        {{{Category, "Category", "Drawing", "", 100}, 2, "Letter", "3 Category | Letter op=100"},
         {{Category, "Category", "Letter", "", 100}, 2, "Letter", "3 Category | Letter op=100", 0},
         {{ObjectType, "Object Type", "", "", 100},
          2,
          "File",
          "6 Object Type | File op=100 object=0"},
         {{ObjectType, "Object Type", "", "", 100},
          2,
          "BOM",
          "6 Object Type | BOM op=100 object=1"},
         {{ObjectType, "Object Type", "File", "", 100},
          2,
          "Item",
          "6 Object Type | Item op=100 object=2"},
         {{NodeVariable, "Approved", "", "", 139, 4}, 2, "Yes", "1000 Approved | Yes op=139 arg=4"},
         {{NodeVariable, "Approved", "Yes", "", 139, 4},
          2,
          "No",
          "1000 Approved | No op=139 arg=4"},
         {{User, "User", "smith", "", 100, 0, -1, 7}, 2, "jones", "9 User | jones op=100 id=8"},
         {{Group, "Group", "", "", 100}, 2, "Checkers", "10 Group | Checkers op=100 id=4"},
         {{ChildRefState, "S", "Release.Open", "", 100, 0, 12},
          2,
          "Release.Done",
          "8 S | Release.Done op=100 state=13"}});
}

TEST_F(ListWalkChanges, StatesOfOneNameAreToldApartByTheirPlace)
{
    library->states = {{20, QStringLiteral("W"), QStringLiteral("Same"), {}, 0},
                       {21, {}, QStringLiteral("Nobody's"), {}, 0},
                       {22, QStringLiteral("W"), QStringLiteral("Same"), {}, 0}};
    start();
    const VarTreeCtrlNode& row = only({ChildRefState, "S", "W.Same", "", 100, 0, 20});
    click(row, 2);
    ASSERT_TRUE(isOpen());
    ASSERT_EQ(combo()->entryCount(), 2);
    clickEntry(1);
    EXPECT_EQ(toText(row), "8 S | W.Same op=100 state=22");
    EXPECT_EQ(changes, 1);
}

TEST_F(ListWalkChanges, ARowInAGroupChangesInItsGroup)
{
    start();
    VarTreeCtrlNode& group = add({NodeOr});
    click(*group.mChildren.back(), 0);
    choose("Author");
    EXPECT_EQ(rows(), "1 Or\n  1000 Author op=106 arg=1\n  " + kEnd + kEnd);
    click(*group.mChildren.front(), 0);
    choose("Remove");
    EXPECT_EQ(rows(), "1 Or\n  " + kEnd + kEnd);
    EXPECT_EQ(changes, 2);
}

TEST_F(ListWalkChanges, ANewGroupIsOpenAndANoLongerOneLosesItsRows)
{
    start();
    click(placeholder(), 0);
    choose("Or");
    EXPECT_TRUE(control->isExpanded(control->model()->index(0, 0)));
    VarTreeCtrlNode& group = topRow(0);
    add(kText, &group);
    add(kText, &group);
    click(group, 0);
    choose("Author");
    EXPECT_EQ(rows(), "1000 Author op=106 arg=1\n" + kEnd);
    EXPECT_EQ(changes, 2);
}

TEST_F(ListWalkChanges, NamesBeyondTheBufferAreCutAndFoundNoMore)
{
    const QString name(300, QLatin1Char('n'));
    library->users = {{7, name, {}}};
    library->groups = {{3, name, {}}};
    library->states = {{12, QStringLiteral("W"), name, {}, 0}};
    start();
    const std::string cut(256, 'n');
    for (const LONG code : {LONG{User}, LONG{Group}}) {
        const VarTreeCtrlNode& row = only({code, "Who", "x", "", 100, 0, -1, 5});
        click(row, 2);
        ASSERT_TRUE(isOpen());
        clickEntry(0);
        EXPECT_EQ(toText(row), std::to_string(code) + " Who | " + cut + " op=100 id=0");
    }
    const VarTreeCtrlNode& row = only({ChildRefState, "S", "x", "", 100});
    click(row, 2);
    ASSERT_TRUE(isOpen());
    clickEntry(0);
    EXPECT_EQ(toText(row), "8 S | W." + cut.substr(2) + " op=100 state=12");
}

TEST_F(ListWalkChanges, WhereAListCannotBeLoadedTheComboStaysAndTheRowIsHalfChanged)
{
    start(KiroVaultType{0}, TreeTypeUsersAndGroups);
    library->getUsers.results = {E_FAIL};
    const VarTreeCtrlNode& row = only(kText);
    click(row, 0);
    choose("User");
    EXPECT_EQ(toText(row), "9 User op=100 arg=1");
    EXPECT_EQ(messages.size(), 1U);
    EXPECT_EQ(changes, 1);
    ASSERT_NE(combo(), nullptr) << "left visible";
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(selected(), "User");

    QTest::keyClick(combo(), Qt::Key_F4);
    ASSERT_TRUE(isOpen());
    clickEntry(combo()->selection());
    EXPECT_EQ(toText(row), "9 User | smith op=100 arg=1 id=7") << "the next attempt";
    EXPECT_EQ(combo(), nullptr);
    EXPECT_EQ(changes, 2);
}

TEST_F(ListWalkChanges, AChoiceForARowThatIsGoneLeavesTheListAlone)
{
    start();
    const VarTreeCtrlNode& row = only({User, "User", "smith", "", 100, 0, -1, 7});
    // A host's own list for no row at all: nobody has clicked.
    control->mvOnClickValue(const_cast<VarTreeCtrlNode&>(row), 2, {100, 0, 250, 20});
    ASSERT_TRUE(isOpen());
    choose("jones");
    EXPECT_NE(combo(), nullptr);
    EXPECT_EQ(toText(row), "9 User | smith op=100 id=7");
    EXPECT_EQ(changes, 0);
}

} // namespace
} // namespace condtree::test
