// A choice and what a quick hand, or the host, does before the event loop has told of it: the
// choice belongs to the row that it was made for.
#include "ClickFixture.h"

namespace condtree::test {
namespace {

constexpr RowBefore kFirst{NodeVariable, "Author", "a", "e", 106, 1};
constexpr RowBefore kSecond{NodeVariable, "Title", "b", "f", 106, 1};
constexpr RowBefore kUser{User, "User", "smith", "", 101, 0, -1, 7};
const char* const kChosen = "1000 Author | a | e op=100 arg=1";

class ListOrder : public ClickFixture {
protected:
    /// Two rows, and the first operator chosen for the first one by the keyboard. Nothing has told
    /// the control yet.
    VarTreeCtrlNode& chooseForTheFirst(const RowBefore& second)
    {
        closeAll();
        loaded({});
        m_second = &add(second);
        VarTreeCtrlNode& first = add(kFirst);
        letEventsPass();
        changes = 0;
        control->closeUps = 0;
        click(first, 1);
        EXPECT_TRUE(isOpen());
        QWidget& view = list();
        QTest::keyClick(&view, Qt::Key_Down);
        QTest::keyPress(&view, Qt::Key_Return);
        EXPECT_FALSE(isOpen());
        EXPECT_EQ(control->closeUps, 0) << "not told yet";
        EXPECT_EQ(toText(first), "1000 Author | a | e op=106 arg=1");
        return first;
    }
    VarTreeCtrlNode& second() { return *m_second; }
    /// A click before any posted event.
    void clickAtOnce(QPoint at)
    {
        QTest::mousePress(viewport.data(), Qt::LeftButton, {}, at);
        QTest::mouseRelease(viewport.data(), Qt::LeftButton, {}, at);
    }
    /// The choice was applied, once and to the first row, and stays the only one.
    void expectApplied(const VarTreeCtrlNode& first, const RowBefore& secondRow)
    {
        for (const char* when : {"at once", "later"}) {
            SCOPED_TRACE(when);
            EXPECT_EQ(toText(first), kChosen);
            EXPECT_EQ(toText(second()), toText(*makeNode(secondRow)));
            EXPECT_EQ(control->closeUps, 1);
            EXPECT_EQ(changes, 1);
            letEventsPass();
        }
    }
    void tellClick(QPoint inViewport)
    {
        const QPoint screen = viewport->mapToGlobal(inViewport);
        pointer = {screen.x(), screen.y()};
        LRESULT result = 0;
        control->OnNMClick(nullptr, &result);
    }
    /// The host's own list of users for a row, over no cell in particular.
    void offerUsersOf(VarTreeCtrlNode& row)
    {
        control->mvOnClickValue(row, 2, {100, 0, 250, 200});
        ASSERT_TRUE(isOpen());
    }

private:
    VarTreeCtrlNode* m_second = nullptr;
};

TEST_F(ListOrder, AClickOnAnotherRowRightAfterAChoiceComesAfterIt)
{
    start();
    const std::pair<int, const char*> editors[] = {{0, "list"}, {1, "list"}, {2, "b"}, {3, "f"}};
    for (const auto& [column, opened] : editors) {
        SCOPED_TRACE(column);
        const VarTreeCtrlNode& first = chooseForTheFirst(kSecond);
        clickAtOnce(placeOf(second(), column));
        const std::string found = isOpen()              ? "list"
                                  : editor() != nullptr ? editor()->text().toStdString()
                                                        : "nothing";
        EXPECT_EQ(found, opened);
        expectApplied(first, kSecond);
    }
}

TEST_F(ListOrder, AListOfValuesByCodeRightAfterAChoiceComesAfterIt)
{
    start();
    const VarTreeCtrlNode& first = chooseForTheFirst(kUser);
    offerUsersOf(second());
    expectApplied(first, kUser);
    EXPECT_TRUE(isOpen());
}

TEST_F(ListOrder, AnEditorByCodeRightAfterAChoiceComesAfterIt)
{
    start();
    const VarTreeCtrlNode& first = chooseForTheFirst(kSecond);
    control->mvOnClickValue(second(), 2, {100, 30, 250, 60});
    EXPECT_NE(editor(), nullptr);
    expectApplied(first, kSecond);
}

TEST_F(ListOrder, ACharacterTypedOnADateRightAfterAChoiceComesAfterIt)
{
    start();
    constexpr RowBefore kDate{NodeVariable, "Due", "2024-03-02", "", 130, 5};
    const VarTreeCtrlNode& first = chooseForTheFirst(kDate);
    control->setCurrentIndex(control->model()->index(1, 0));
    ASSERT_TRUE(control->hasFocus());
    QTest::keyPress(control.get(), Qt::Key_7);
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), QStringLiteral("7"));
    expectApplied(first, kDate);
}

TEST_F(ListOrder, FinishingAppliesAChoiceThatWasJustMade)
{
    start();
    const VarTreeCtrlNode& first = chooseForTheFirst(kSecond);
    control->finishEditing();
    expectApplied(first, kSecond);
}

TEST_F(ListOrder, WhatIsSavedAfterFinishingHasTheChoiceThatWasJustMade)
{
    start();
    chooseForTheFirst(kSecond);
    control->finishEditing();
    const std::vector<TransCond> records = savedRecords();
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].lOperator, StringEqualTo);
    EXPECT_EQ(records[1].lOperator, StringContains);
}

TEST_F(ListOrder, FinishingLeavesAnOpenListOpen)
{
    start();
    const VarTreeCtrlNode& row = only({FilePath, "FilePath", "", "", 120});
    click(row, 0);
    ASSERT_TRUE(isOpen());
    control->finishEditing();
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(control->closeUps, 0);
    EXPECT_EQ(toText(row), "5 FilePath op=120");
}

TEST_F(ListOrder, AClickThatASubclassKeptForItselfIsNotTakenForALaterOne)
{
    start();
    add(kSecond);
    const VarTreeCtrlNode& first = add(kFirst);
    control->looksAtClicks = false;
    click(first, 2);
    EXPECT_EQ(control->clicks, 1);
    EXPECT_EQ(editor(), nullptr);
    control->looksAtClicks = true;
    tellClick(placeOf(topRow(1), 3));
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), QStringLiteral("f")) << "where the pointer is";
}

TEST_F(ListOrder, AClickThatOpensNothingIsRememberedUntilTheNext)
{
    start();
    VarTreeCtrlNode& user = add(kUser);
    VarTreeCtrlNode& group = add({NodeOr});
    const std::string userBefore = toText(user);

    click(placeholder(), 1);
    EXPECT_EQ(combos(), 0);
    offerUsersOf(user);
    choose("jones");
    EXPECT_EQ(placeholder().mValue, QStringLiteral("jones"));
    EXPECT_EQ(placeholder().mlUserOrGroupId, 8);

    click({itemRect(group).left() + 2, itemRect(group).center().y()}); // the icon
    EXPECT_EQ(control->clicks, 2);
    offerUsersOf(user);
    choose("smith");
    EXPECT_EQ(placeholder().mValue, QStringLiteral("smith")) << "an icon is not dispatched";
    EXPECT_EQ(group.mValue, QString());

    click(group, 1);
    offerUsersOf(user);
    choose("jones");
    EXPECT_EQ(group.mValue, QStringLiteral("jones"));
    EXPECT_EQ(placeholder().mValue, QStringLiteral("smith"));
    EXPECT_EQ(toText(user), userBefore) << "nobody clicked it";
}

} // namespace
} // namespace condtree::test
