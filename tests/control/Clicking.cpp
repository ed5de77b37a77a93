// What a user's clicks on the rows open.
#include "ClickFixture.h"

#include <QScrollBar>

namespace condtree::test {
namespace {

class Clicking : public ClickFixture {
protected:
    Clicking()
    {
        library->docTypes = {{QStringLiteral("Drawing"), {}}, {QStringLiteral("Letter"), {}}};
    }

    void send(QEvent::Type type, QPoint at, quint64 when, Qt::MouseButton button = Qt::LeftButton)
    {
        const bool isUp = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, at, viewport->mapToGlobal(at), button, isUp ? Qt::NoButton : button,
                          {});
        event.setTimestamp(when);
        QCoreApplication::sendEvent(viewport, &event);
    }
};

const char* const kVariables = "1106 Author img3, 1120 Weight img3, 1120 Cost img3, "
                               "1139 Approved img3, 1130 Due img3, 1106 Title img3";
const std::string kTopKinds = "list: 1 Or img2, 3 Category img5, 5 FilePath img5, "
                              "6 Object Type img5, 7 Revision img5, 8 Child Reference State img5, "
                              "2 Remove img4, "
                              + std::string(kVariables);
const std::string kStrings =
    "100 String Equal To img0, 101 String Not Equal To img1, 102 String Less Than img2, "
    "103 String Bigger Than img3, 104 String Less Than or Equal img4, "
    "105 String Bigger Than or Equal img5, 106 String Contains img6, "
    "107 String Does Not Contain img7, 108 Text Compare img8";
const std::string kNumbers =
    "120 Number Equal To img9, 121 Number Not Equal To img10, 122 Number Less Than img11, "
    "123 Number Bigger Than img12, 124 Number Less Than or Equal img13, "
    "125 Number Bigger Than or Equal img14";
const std::string kDates =
    "130 Date Equal To img18, 131 Date Not Equal To img19, 132 Date Less Than img20, "
    "133 Date Bigger Than img21, 134 Date Less Than or Equal img22, "
    "135 Date Bigger Than or Equal img23";
const std::string kEqual = "list: 100 String Equal To img0, 101 String Not Equal To img1";
const std::string kNothing = "nothing";

TEST_F(Clicking, EachColumnOfEachKindOfRowOpensItsEditor)
{
    struct Case {
        const char* name;
        RowBefore row;
        std::string operators;
        std::string value;
        std::string extra;
    };
    const Case cases[] = {
        {"a group", {NodeOr}, kNothing, "editor: ", kNothing},
        {"a category",
         {Category, "Category", "Drawing", "", 100},
         kEqual,
         "list: 4 Drawing, 4 Letter",
         kNothing},
        {"a path",
         {FilePath, "FilePath", "x", "", 106},
         "list: " + kStrings,
         "editor: x",
         kNothing},
        {"an object type",
         {ObjectType, "Object Type", "File", "", 100},
         kEqual,
         "list: 136 File, 137 BOM, 138 Item",
         kNothing},
        {"a revision",
         {Revision, "Revision", "B", "", 100},
         "list: " + kStrings + ", " + kNumbers + ", " + kDates,
         "editor: B",
         kNothing},
        {"a child's state",
         {ChildRefState, "State", "Release.Open", "e", 100, 0, 12},
         kEqual + ", 108 Text Compare img8",
         "list: 142 Release.Open, 142 Release.Done",
         "editor: e"},
        {"a child's state by text",
         {ChildRefState, "State", "R%", "e", 108},
         kEqual + ", 108 Text Compare img8",
         "editor: R%",
         "editor: e"},
        {"a user",
         {User, "User", "smith", "", 100, 0, -1, 7},
         kEqual,
         "list: 2001 smith img0, 2001 jones img0",
         kNothing},
        {"a user group",
         {Group, "Group", "Checkers", "", 100, 0, -1, 4},
         kEqual,
         "list: 3000 Designers img0, 3000 Checkers img0",
         kNothing},
        {"a property",
         {NodeOtherName, "Author", "p", "e", 106, 1},
         "list: " + kStrings + ", " + kNumbers + ", " + kDates,
         "editor: p",
         "editor: e"},
        {"a child's history",
         {NodeHistoricState, "History", "Release.Open", "e", 101, 0, 12},
         kEqual + ", 108 Text Compare img8",
         "list: 142 Release.Open, 142 Release.Done",
         "editor: e"},
        {"a text",
         {NodeVariable, "Author", "a", "e", 106, 1},
         "list: " + kStrings + ", " + kNumbers + ", " + kDates,
         "editor: a",
         "editor: e"},
        {"a number",
         {NodeVariable, "Weight", "1", "e", 120, 2},
         "list: " + kNumbers + ", " + kStrings,
         "editor: 1",
         "editor: e"},
        {"another number",
         {NodeVariable, "Cost", "1", "e", 120, 3},
         "list: " + kNumbers + ", " + kStrings,
         "editor: 1",
         "editor: e"},
        {"yes or no",
         {NodeVariable, "Approved", "Yes", "e", 139, 4},
         "list: 139 Binary Equal To img27",
         "list: 140 Yes, 141 No",
         "editor: e"},
        {"a date",
         {NodeVariable, "Due", "2024-01-02", "e", 130, 5},
         "list: " + kDates + ", " + kStrings,
         "picker",
         "editor: e"},
        {"a type that is none",
         {NodeVariable, "Odd", "o", "e", 100, 9},
         "list: ",
         "editor: o",
         "editor: e"},
    };
    start();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const VarTreeCtrlNode& row = only(c.row);
        const std::string before = rows();
        EXPECT_EQ(opens(row, 0), kTopKinds);
        EXPECT_EQ(opens(row, 1), c.operators);
        EXPECT_EQ(opens(row, 2), c.value);
        EXPECT_EQ(opens(row, 3), c.extra);
        EXPECT_EQ(rows(), before);
        EXPECT_EQ(changes, 0);
    }
}

TEST_F(Clicking, ThePlaceholderOpensTheKindsAndTheValueEditorOnly)
{
    start();
    const std::string kinds = "list: 1 Or img2, 3 Category img5, 5 FilePath img5, "
                              "6 Object Type img5, 7 Revision img5, 8 Child Reference State img5, "
                              + std::string(kVariables);
    EXPECT_EQ(opens(placeholder(), 0), kinds);
    EXPECT_EQ(opens(placeholder(), 1), kNothing);
    EXPECT_EQ(opens(placeholder(), 2), "editor: ");
    EXPECT_EQ(opens(placeholder(), 3), kNothing);
}

TEST_F(Clicking, ARowInAGroupIsOfferedNoGroup)
{
    start();
    VarTreeCtrlNode& group = add({NodeOr});
    const VarTreeCtrlNode& row = add({FilePath, "FilePath", "", "", 106}, &group);
    EXPECT_EQ(opens(row, 0), "list: 3 Category img5, 5 FilePath img5, 6 Object Type img5, "
                             "7 Revision img5, 8 Child Reference State img5, 2 Remove img4, "
                                 + std::string(kVariables));
}

TEST_F(Clicking, VaultTreeAndTransitionDecideWhatIsOffered)
{
    start(VaultTypeReduced);
    EXPECT_EQ(opens(placeholder(), 0),
              "list: 1 Or img2, 5 FilePath img5, 6 Object Type img5, 7 Revision img5, "
                  + std::string(kVariables));
    const VarTreeCtrlNode& type = only({ObjectType, "Object Type", "File", "", 100});
    EXPECT_EQ(opens(type, 2), "list: 136 File");
    const VarTreeCtrlNode& user = only({User, "User", "smith", "", 100});
    EXPECT_EQ(opens(user, 2), "list: ");

    initialize(KiroVaultType{0}, TreeTypeUsersAndGroups);
    EXPECT_EQ(opens(placeholder(), 0),
              "list: 1 Or img2, 3 Category img5, 5 FilePath img5, 6 Object Type img5, "
              "7 Revision img5, 9 User img6, 10 Group img7, "
                  + std::string(kVariables));

    initialize();
    control->mvSetTransitionType(1);
    EXPECT_EQ(opens(placeholder(), 0), "list: 1 Or img2, 3 Category img5, 5 FilePath img5, "
                                       "6 Object Type img5, 7 Revision img5, "
                                           + std::string(kVariables));
}

TEST_F(Clicking, WithoutAManagerTheListOfKindsStaysHidden)
{
    control->mvInitialize(nullptr, 120, KiroVaultType{0}, TreeType{0});
    loaded({});
    window.setGeometry(40, 40, 700, 400);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    click(placeholder(), 0);
    EXPECT_EQ(combo(), nullptr);
    ASSERT_EQ(combos(), 1);
    EXPECT_EQ(window.findChild<CommandCombo*>()->entryCount(), 6);
    EXPECT_TRUE(messages.empty());
}

TEST_F(Clicking, OnlyTheLabelAndWhatIsRightOfItOpen)
{
    start();
    VarTreeCtrlNode& group = add({NodeOr});
    const VarTreeCtrlNode& row = add({FilePath, "FilePath", "", "", 106}, &group);
    const QRect item = itemRect(row);
    const int y = item.center().y();
    const int text = item.left() + iconSize.width() + 2; // behind the picture, within the label
    RECT cell{};
    ASSERT_EQ(control->miGetColumn({text, y}, row.mhItem, cell), 0);
    EXPECT_EQ(opens({5, y}), kNothing) << "the outer indent";
    EXPECT_EQ(opens({item.left() - 1, y}), kNothing) << "the indent";
    EXPECT_EQ(opens({item.left(), y}), kNothing) << "the icon";
    EXPECT_EQ(opens({cell.left - 1, y}), kNothing) << "the icon's end";
    EXPECT_NE(opens({cell.left, y}), kNothing) << "the label";
    EXPECT_NE(opens({cell.left + 60, y}), kNothing) << "right of the label";
    EXPECT_NE(opens({cell.left, item.top()}), kNothing) << "the first line";
    EXPECT_NE(opens({cell.left, item.bottom()}), kNothing) << "the last line";
    EXPECT_EQ(opens({cell.left, viewport->height() - 2}), kNothing) << "below the rows";

    const QRect groupItem = itemRect(group);
    const QPoint button(groupItem.left() - control->indentation() / 2, groupItem.center().y());
    EXPECT_EQ(opens(button), kNothing) << "the button";
    EXPECT_FALSE(control->isExpanded(control->model()->index(0, 0))) << "but it closes the group";
}

TEST_F(Clicking, ARowThatIsScrolledIntoViewOpensWhereItIs)
{
    start();
    std::vector<TransCond> records;
    for (int i = 0; i < 60; ++i)
        records.push_back(record(3, 2, "Author", std::to_string(i).c_str(), 1, 106));
    loaded(records);
    control->scrollToBottom();
    ASSERT_GT(control->verticalScrollBar()->value(), 0);
    EXPECT_EQ(opens(topRow(59), 2), "editor: 59");
    click(topRow(58), 1);
    ASSERT_TRUE(isOpen());
    EXPECT_EQ(combo()->y(), itemRect(topRow(58)).top());
}

TEST_F(Clicking, AListLiesOverItsCellAndInTheFirstColumnOverThePictureToo)
{
    start();
    const VarTreeCtrlNode& row = only({FilePath, "FilePath", "", "", 106});
    const QPoint at = placeOf(row, 0);
    RECT cell{};
    ASSERT_EQ(control->miGetColumn({at.x(), at.y()}, row.mhItem, cell), 0);
    click(row, 0);
    ASSERT_TRUE(isOpen());
    EXPECT_EQ(combo()->x(), cell.left - iconSize.width() - 4);
    EXPECT_EQ(combo()->y(), cell.top);
    EXPECT_EQ(combo()->geometry().right() + 1, cell.right);
    closeAll();
    click(row, 1);
    ASSERT_TRUE(isOpen());
    EXPECT_EQ(combo()->x(), control->miGetColumnSize(0, viewport->width()));
    EXPECT_EQ(combo()->width(), control->miGetColumnSize(1, viewport->width()));
}

TEST_F(Clicking, OtherButtonsSelectNothingAndOpenNothing)
{
    start();
    VarTreeCtrlNode& group = add({NodeOr});
    const VarTreeCtrlNode& row = add({FilePath, "FilePath", "", "", 106});
    control->setCurrentIndex({});
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton}) {
        SCOPED_TRACE(button);
        click(placeOf(row, 0), button);
        letEventsPass();
        EXPECT_FALSE(control->currentIndex().isValid());
        EXPECT_TRUE(control->selectionModel()->selectedIndexes().isEmpty());
        EXPECT_EQ(combos(), 0);
        QTest::mouseDClick(window.windowHandle(), button, {},
                           viewport->mapTo(&window, placeOf(group, 0)));
        EXPECT_TRUE(control->isExpanded(control->model()->index(1, 0)));
    }
    EXPECT_EQ(control->clicks, 0);
    click(row, 0);
    EXPECT_EQ(control->clicks, 1);
    EXPECT_EQ(control->currentIndex().row(), 0) << "the left button does";
}

TEST_F(Clicking, AReleaseBeyondFourPixelsIsNoClick)
{
    start();
    const VarTreeCtrlNode& row = only({FilePath, "FilePath", "a", "", 106});
    const QPoint at = placeOf(row, 2);
    struct Case {
        QPoint by;
        bool isClick;
    };
    for (const Case& c : {Case{{4, 0}, true}, Case{{5, 0}, false}, Case{{-4, -4}, true},
                          Case{{-5, 0}, false}, Case{{0, 4}, true}, Case{{0, 5}, false}}) {
        SCOPED_TRACE(testing::PrintToString(c.by.x()) + "," + testing::PrintToString(c.by.y()));
        const int before = control->clicks;
        press(at);
        release(at + c.by);
        EXPECT_EQ(control->clicks - before, c.isClick ? 1 : 0);
        EXPECT_EQ(editor() != nullptr, c.isClick);
        closeAll();
    }
    press(at);
    move(at + QPoint(9, 0));
    release(at);
    EXPECT_EQ(editor(), nullptr) << "it went away meanwhile";
}

TEST_F(Clicking, TheSecondPressOfADoubleClickIsNoClick)
{
    start();
    VarTreeCtrlNode& group = add({NodeOr});
    const QPoint at = placeOf(group, 1); // where a click opens nothing
    ASSERT_TRUE(control->isExpanded(control->model()->index(0, 0)));
    press(at);
    release(at);
    EXPECT_EQ(control->clicks, 1);
    QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, viewport->mapTo(&window, at));
    EXPECT_EQ(control->clicks, 2) << "the first click of the two";
    EXPECT_FALSE(control->isExpanded(control->model()->index(0, 0)));
}

// Events as the desktop's clock stamps them: a double click's within its interval.
TEST_F(Clicking, ASecondPressThatTheViewTakesForAFirstIsNoClickEither)
{
    start();
    VarTreeCtrlNode& group = add({NodeOr});
    const QPoint at = placeOf(group, 1);
    send(QEvent::MouseButtonPress, at, 1000);
    send(QEvent::MouseButtonRelease, at, 1050);
    EXPECT_EQ(control->clicks, 1);
    control->mvLoad({groupRecord()}); // the row that was pressed is not there any more
    send(QEvent::MouseButtonDblClick, at, 1100);
    send(QEvent::MouseButtonRelease, at, 1150);
    EXPECT_EQ(control->clicks, 1);
}

TEST_F(Clicking, ADoubleClickWithAnotherButtonRightAfterAClickFoldsNothing)
{
    start();
    VarTreeCtrlNode& group = add({NodeOr});
    const QPoint at = placeOf(group, 1);
    send(QEvent::MouseButtonPress, at, 1000);
    send(QEvent::MouseButtonRelease, at, 1050);
    send(QEvent::MouseButtonDblClick, at, 1100, Qt::RightButton);
    EXPECT_TRUE(control->isExpanded(control->model()->index(0, 0)));
    send(QEvent::MouseButtonDblClick, at, 1200);
    EXPECT_FALSE(control->isExpanded(control->model()->index(0, 0))) << "the left one does";
}

TEST_F(Clicking, TheResultIsZeroWhateverIsHit)
{
    start();
    const VarTreeCtrlNode& row = only({FilePath, "FilePath", "a", "", 106});
    for (const QPoint at : {placeOf(row, 0), placeOf(row, 2), placeOf(row, 3), QPoint(2, 2),
                            QPoint(40, viewport->height() - 3)}) {
        control->clickResult = 7;
        click(at);
        EXPECT_EQ(control->clickResult, 0);
        closeAll();
    }
}

TEST_F(Clicking, AClickThatIsToldByCodeIsWhereThePointerIs)
{
    start();
    const VarTreeCtrlNode& row = only({FilePath, "FilePath", "a", "", 106});
    const auto tell = [this](QPoint inViewport) {
        const QPoint screen = viewport->mapToGlobal(inViewport);
        pointer = {screen.x(), screen.y()};
        LRESULT result = 9;
        control->OnNMClick(nullptr, &result);
        EXPECT_EQ(result, 0);
    };
    tell(placeOf(row, 2));
    ASSERT_NE(editor(), nullptr);
    closeAll();
    tell(placeOf(row, 1));
    ASSERT_TRUE(isOpen());
    closeAll();
    tell({placeOf(row, 1).x(), -3});
    EXPECT_EQ(combos(), 0);
    pointer = {-1000, -1000};
    click(row, 2);
    EXPECT_NE(editor(), nullptr) << "a click of the hand is where the hand is";
}

TEST_F(Clicking, APointRightOfTheClientOpensNothing)
{
    start();
    const VarTreeCtrlNode& row = only({FilePath, "FilePath", "a", "", 106});
    const QPoint beside =
        viewport->mapToGlobal(QPoint(viewport->width(), itemRect(row).center().y()));
    pointer = {beside.x(), beside.y()};
    LRESULT result = 9;
    control->OnNMClick(nullptr, &result);
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(combos(), 0);
}

TEST_F(Clicking, OneListAndOneEditorAtMost)
{
    start();
    const VarTreeCtrlNode& path = add({FilePath, "FilePath", "a", "", 106});
    const VarTreeCtrlNode& text = add({NodeVariable, "Author", "b", "e", 106, 1});
    click(text, 0);
    click(path, 1);
    letEventsPass();
    EXPECT_EQ(combos(), 1);
    closeAll();
    click(text, 3);
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), QStringLiteral("e"));
    click(path, 2);
    letEventsPass();
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), QStringLiteral("a"));
    EXPECT_EQ(window.findChildren<FocusEdit*>(QStringLiteral("902")).size(), 1);
    click(path, 3);
    letEventsPass();
    EXPECT_EQ(editor(), nullptr) << "a row without a fourth column closes it";
    EXPECT_EQ(path.mlEditColumn, 3);
}

TEST_F(Clicking, TheEditedColumnIsThatOfTheLastClickOnAnEditor)
{
    start();
    const VarTreeCtrlNode& row = only({FilePath, "FilePath", "a", "", 106});
    EXPECT_EQ(row.mlEditColumn, 0);
    opens(row, 2);
    EXPECT_EQ(row.mlEditColumn, 2);
    opens(row, 0);
    opens(row, 1);
    EXPECT_EQ(row.mlEditColumn, 2);
    opens(row, 3);
    EXPECT_EQ(row.mlEditColumn, 3);
}

} // namespace
} // namespace condtree::test
