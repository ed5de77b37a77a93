// The lists, opened and chosen from with a real pointer and a real keyboard.
#include "DesktopFixture.h"

#include <condtree/model/ComboCmd.h>

#include <QAbstractItemView>
#include <QScrollBar>
#include <QTest>

namespace condtree::test {
namespace {

const std::string kEnd = "-1 <Click here to add a condition>\n";

class Lists : public DesktopFixture {
protected:
    struct Walk {
        LONG code;
        const char* name;
        const char* value;
        LONG op;
        LONG arg;
        int column;
        const char* chosen;
        const char* typed; ///< finds it
        std::string after;
    };
    static std::vector<Walk> walks()
    {
        return {
            {NodeVariable, "Author", "a", 106, 1, 0, "Weight", "weig",
             "1000 Weight | a op=106 arg=3"},
            {NodeVariable, "Author", "a", 106, 1, 1, "Number Bigger Than or Equal",
             "number bigger than or", "1000 Author | a op=125 arg=1"},
            {Category, "Category", "", 100, 0, 2, "Data Sheet", "da",
             "3 Category | Data Sheet op=100"},
            {ObjectType, "Object Type", "", 100, 0, 2, "Item", "it",
             "6 Object Type | Item op=100 object=2"},
            {NodeVariable, "Approved", "", 139, 4, 2, "No", "n", "1000 Approved | No op=139 arg=4"},
            {ChildRefState, "State", "", 100, 0, 2, "Document Approval.Changes Requested",
             "document approval.ch",
             "8 State | Document Approval.Changes Requested op=100 state=3"},
            {User, "User", "", 100, 0, 2, "Friederike Hoffmann", "frie",
             "9 User | Friederike Hoffmann op=100 id=7"},
            {Group, "Group", "", 100, 0, 2, "Quality", "qua", "10 Group | Quality op=100 id=4"}};
    }
    void walk(const std::function<void(const Walk&)>& chooseOne)
    {
        start();
        int expected = 0;
        for (const Walk& w : walks()) {
            SCOPED_TRACE(w.chosen);
            control->mvLoad({});
            const VarTreeCtrlNode& row = add(w.code, w.name, w.value, w.op, w.arg);
            open(row, w.column);
            if (HasFatalFailure())
                return;
            chooseOne(w);
            expectClosed();
            EXPECT_EQ(toText(row), w.after);
            EXPECT_EQ(changes, ++expected);
            EXPECT_EQ(QApplication::focusWidget(), control);
        }
    }
};

TEST_F(Lists, EachIsChosenFromByTheMouse)
{
    walk([this](const Walk& w) { choose(w.chosen); });
}

TEST_F(Lists, EachIsChosenFromByArrowKeys)
{
    walk([this](const Walk& w) {
        hand.key("Home");
        for (int i = combo()->findText(QString::fromUtf8(w.chosen)); i > 0; --i)
            hand.key("Down");
        hand.key("Return");
    });
}

TEST_F(Lists, EachIsChosenFromByTyping)
{
    walk([this](const Walk& w) {
        hand.type(QString::fromLatin1(w.typed));
        if (w.code == User)
            Hand::screenshot(QStringLiteral("users-while-typing"));
        hand.key("Return");
    });
}

TEST_F(Lists, AConditionIsPutTogetherFromThePlaceholder)
{
    start();
    open(placeholder(), 0);
    ASSERT_TRUE(isOpen());
    Hand::screenshot(QStringLiteral("kinds-of-the-placeholder"));
    choose("Or");
    VarTreeCtrlNode& group = *control->mpoGetNode(TVI_ROOT)->mChildren.front();
    open(*group.mChildren.back(), 0);
    choose("Priority");
    open(*group.mChildren.front(), 1);
    Hand::screenshot(QStringLiteral("operators-of-a-number"));
    choose("Number Less Than");
    click(*group.mChildren.front(), 2);
    waitForEditor();
    hand.type(QStringLiteral("3"));
    hand.key("Return");
    open(placeholder(), 0);
    choose("FilePath");
    open(*control->mpoGetNode(TVI_ROOT)->mChildren[1], 0);
    Hand::screenshot(QStringLiteral("kinds-of-a-path"));
    hand.key("Escape");
    expectClosed();
    open(*group.mChildren.front(), 0);
    Hand::screenshot(QStringLiteral("kinds-of-a-variable"));
    hand.key("Escape");
    expectClosed();
    Hand::screenshot(QStringLiteral("condition"));
    EXPECT_EQ(rows(),
              "1 Or\n  1000 Priority | 3 op=120 arg=2\n  " + kEnd + "5 FilePath op=106\n" + kEnd)
        << "the list of kinds applied the variable again, and its default operator with it";
}

TEST_F(Lists, AClickElsewhereClosesAndAppliesWhatIsSelected)
{
    start();
    const VarTreeCtrlNode& path = add(FilePath, "FilePath", "", 120);
    const VarTreeCtrlNode& text = add(NodeVariable, "Author", "b", 106, 1);
    open(text, 1);
    click(path, 3);
    expectClosed();
    EXPECT_EQ(changes, 0);
    open(path, 0);
    click(text, 3);
    expectClosed();
    EXPECT_EQ(rows(), "1000 Author | b op=106 arg=1\n5 FilePath op=106\n" + kEnd);
    EXPECT_EQ(changes, 1);
}

TEST_F(Lists, TheQuickSecondClickAfterTheOneThatClosedAListIsAClick)
{
    start();
    const VarTreeCtrlNode& text = add(NodeVariable, "Author", "b", 106, 1);
    open(text, 1);
    hand.moveTo(*control->viewport(), placeOf(text, 3));
    hand.press();
    hand.release();
    expectClosed();
    hand.press();
    hand.release();
    waitForEditor();
    hand.type(QStringLiteral("new"));
    hand.key("Return");
    EXPECT_TRUE(QTest::qWaitFor([this] { return changes > 0; }));
    EXPECT_EQ(toText(text), "1000 Author | b | new op=106 arg=1");
    EXPECT_EQ(changes, 1);
}

TEST_F(Lists, TheHostsFieldGetsAClickAndTheListAnEnd)
{
    start();
    const VarTreeCtrlNode& text = add(NodeVariable, "Author", "b", 106, 1);
    open(text, 1);
    hand.click(*hostField, hostField->rect().center());
    expectClosed();
    hand.click(*hostField, {20, 5});
    hand.type(QStringLiteral("x"));
    EXPECT_EQ(hostField->text(), QStringLiteral("x"));
    EXPECT_EQ(toText(text), "1000 Author | b op=106 arg=1");
}

TEST_F(Lists, TheWheelScrollsTheOpenListWhereverThePointerIs)
{
    start();
    for (int i = 0; i < 60; ++i)
        add(NodeVariable, "Author", "b", 106, 1);
    const VarTreeCtrlNode& row = *control->mpoGetNode(TVI_ROOT)->mChildren.front();
    open(row, 0);
    QScrollBar& bar = *combo()->view()->verticalScrollBar();
    const int before = bar.value();
    hand.moveTo(*combo()->view()->viewport(), {10, 30});
    hand.turnWheel(2);
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar.value() > before; }));
    const int then = bar.value();
    hand.moveTo(*control->viewport(), placeOf(row, 3) + QPoint(0, 60));
    hand.turnWheel(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return bar.value() > then; }));
    EXPECT_EQ(control->verticalScrollBar()->value(), 0);
    hand.key("Escape");
    expectClosed();
    hand.turnWheel(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return control->verticalScrollBar()->value() > 0; }));
}

TEST_F(Lists, OtherButtonsOpenNothing)
{
    start();
    const VarTreeCtrlNode& text = add(NodeVariable, "Author", "b", 106, 1);
    click(text, 0, 3);
    click(text, 1, 2);
    EXPECT_EQ(combo(), nullptr);
    EXPECT_FALSE(control->currentIndex().isValid());
}

} // namespace
} // namespace condtree::test
