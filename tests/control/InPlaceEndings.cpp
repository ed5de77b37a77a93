#include "CellHand.h"

#include <QScrollBar>

namespace condtree::test {
namespace {

/// What ends an edit beside the keyboard and a click.
class InPlaceEndings : public CellHand {
protected:
    static TransCond author(const char* value, const char* extra = "")
    {
        return record(RowKindTop, 2, "Author", value, ArgText, StringContains, extra);
    }
    void loadMany(int count)
    {
        std::vector<TransCond> records;
        for (int i = 0; i < count; ++i)
            records.push_back(author("pump"));
        loaded(records);
        letEventsPass(); // a scroll bar comes
    }
    /// Types into the first row's value.
    void typeFirst()
    {
        click(0, 2);
        letEventsPass();
        type("valve");
        ASSERT_EQ(whatIsOpen(), "'valve'");
    }
    /// What was typed is committed once, nothing is open, and the host is told once.
    void expectCommitted()
    {
        EXPECT_EQ(whatIsOpen(), "nothing");
        EXPECT_EQ(topRow(0).mValue, QStringLiteral("valve"));
        letEventsPass();
        EXPECT_EQ(changes, 1);
    }
};

TEST_F(InPlaceEndings, ScrollingCommits)
{
    loadMany(60);
    typeFirst();
    QScrollBar* const bar = control->verticalScrollBar();
    bar->setValue(bar->value() + bar->singleStep());
    expectCommitted();
}

TEST_F(InPlaceEndings, ResizingCommits)
{
    loadMany(1);
    typeFirst();
    control->resize(700, 300);
    expectCommitted();
}

TEST_F(InPlaceEndings, TheHostIsNotLetInWhileTheControlIsResized)
{
    loadMany(1);
    typeFirst();
    onChanged = [this] { control.reset(); };
    control->resize(700, 300);
    ASSERT_NE(control, nullptr);
    letEventsPass();
    EXPECT_EQ(control, nullptr);
}

TEST_F(InPlaceEndings, AColumnThatBecomesWiderCommits)
{
    loadMany(1);
    typeFirst();
    const int width = control->viewport()->width();
    control->mvResizeCol(0, control->miGetColumnSize(0, width) + 20, width);
    expectCommitted();
}

TEST_F(InPlaceEndings, AnotherActiveWindowCommits)
{
    loadMany(1);
    typeFirst();
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    expectCommitted();
}

TEST_F(InPlaceEndings, ClosingTheWindowCommits)
{
    loadMany(1);
    typeFirst();
    window->close();
    expectCommitted();
}

TEST_F(InPlaceEndings, HidingTheControlCommits)
{
    loadMany(1);
    typeFirst();
    control->hide();
    expectCommitted();
}

TEST_F(InPlaceEndings, ARowThatComesOrGoesAboveCommits)
{
    for (const bool isNew : {false, true}) {
        loadMany(2);
        changes = 0;
        click(1, 2);
        letEventsPass();
        type("valve");
        const VarTreeCtrlNode& edited = topRow(1);
        if (isNew)
            control->mhAddNode(control->mpoGetNode(TVI_ROOT), new VarTreeCtrlNode(NodeVariable),
                               true);
        else
            control->mvDeleteNode(topRow(0).mhItem);
        EXPECT_EQ(whatIsOpen(), "nothing");
        EXPECT_EQ(edited.mValue, QStringLiteral("valve"));
        EXPECT_EQ(changes, 0) << "the host was let in while the tree changed";
        letEventsPass();
        EXPECT_EQ(changes, 1);
    }
}

TEST_F(InPlaceEndings, AGroupThatIsOpenedOrClosedByTheHostCommits)
{
    for (const bool opens : {false, true}) {
        loaded({author("pump"), groupRecord(),
                record(RowKindInGroup, 2, "Author", "inner", ArgText, StringContains)});
        changes = 0;
        control->setExpanded(indexOf(1), !opens);
        typeFirst();
        control->setExpanded(indexOf(1), opens);
        expectCommitted();
    }
}

TEST_F(InPlaceEndings, TheHostMayDeleteTheRow)
{
    loadMany(2);
    typeFirst();
    control->mvDeleteNode(topRow(0).mhItem);
    letEventsPass();
    EXPECT_EQ(whatIsOpen(), "nothing");
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("pump"));
    EXPECT_EQ(changes, 0);
}

TEST_F(InPlaceEndings, LoadingAnotherConditionLosesWhatWasTypedIntoTheOldOneAndTellsNothing)
{
    loadMany(1);
    typeFirst();
    loaded({author("new")});
    letEventsPass();
    EXPECT_EQ(whatIsOpen(), "nothing");
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("new"));
    EXPECT_EQ(changes, 0);
}

TEST_F(InPlaceEndings, AChangeThatIsStillToBeToldIsNotToldOfAnotherCondition)
{
    loadMany(1);
    typeFirst();
    control->resize(700, 300);
    loaded({author("new")});
    letEventsPass();
    EXPECT_EQ(changes, 0);
}

TEST_F(InPlaceEndings, SavingWritesWhatIsCommittedAndLeavesTheEditorOpen)
{
    loadMany(1);
    typeFirst();
    EXPECT_EQ(savedRecords().at(0).oValue.str(), QStringLiteral("pump"));
    EXPECT_EQ(whatIsOpen(), "'valve'");
    key(Qt::Key_Return);
    EXPECT_EQ(savedRecords().at(0).oValue.str(), QStringLiteral("valve"));
    EXPECT_EQ(changes, 1);
}

TEST_F(InPlaceEndings, FinishingEditingCommitsAndTellsBeforeItReturns)
{
    loadMany(1);
    typeFirst();
    control->finishEditing();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(QApplication::focusWidget(), control.get());
    expectCommitted();
    control->finishEditing();
    letEventsPass();
    EXPECT_EQ(changes, 1);
}

TEST_F(InPlaceEndings, FinishingEditingTellsOfWhatAnEditorCommittedByItself)
{
    loadMany(2);
    typeFirst();
    control->resize(700, 300);
    EXPECT_EQ(changes, 0);
    control->finishEditing();
    EXPECT_EQ(changes, 1);
    letEventsPass();
    EXPECT_EQ(changes, 1);
}

TEST_F(InPlaceEndings, FinishingEditingReachesAnEditorThatHasNoFocusYet)
{
    loadMany(1);
    control->mvOnClickValue(topRow(0), 2, cellOf(0, 2));
    field().setText(QStringLiteral("valve"));
    control->finishEditing();
    EXPECT_EQ(changes, 1);
    expectCommitted();
}

TEST_F(InPlaceEndings, TheControlMayBeDestroyedWithAnEditorOpen)
{
    loadMany(1);
    typeFirst();
    control.reset();
    letEventsPass();
    EXPECT_EQ(changes, 0);
}

TEST_F(InPlaceEndings, TheWindowMayBeDestroyedWithAnEditorOpen)
{
    loadMany(1);
    typeFirst();
    QPointer<CondTreeCtrl> alive(control.release());
    window.reset();
    letEventsPass();
    EXPECT_EQ(alive, nullptr);
    EXPECT_EQ(changes, 0);
}

TEST_F(InPlaceEndings, TheHostMayDeleteTheControlWhenItIsToldOfAChange)
{
    const std::vector<std::function<void()>> endings = {[this] { key(Qt::Key_Return); },
                                                        [this] { clickBeside(); },
                                                        [this] { click(0, 3); },
                                                        [this] { click(0, 1); },
                                                        [this] { tellClick(0, 3); },
                                                        [this] { tellClick(0, 0); },
                                                        [this] { control->finishEditing(); }};
    for (const auto& end : endings) {
        control = std::make_unique<OpenCtrl>(window.get(), services());
        control->setGeometry(0, 0, 800, 340);
        initialize();
        QObject::connect(control.get(), &CondTreeCtrl::conditionChanged, window.get(),
                         [this] { control.reset(); });
        control->show();
        loadMany(1);
        typeFirst();
        end();
        letEventsPass();
        EXPECT_EQ(control, nullptr);
    }
}

TEST_F(InPlaceEndings, TheHostMayLoadAnotherConditionWhenItIsToldOfAChange)
{
    onChanged = [this] {
        ++changes;
        loaded({author("new")});
    };
    for (const int column : {0, 1, 2, 3}) {
        loadMany(1);
        changes = 0;
        typeFirst();
        tellClick(0, column);
        letEventsPass();
        EXPECT_EQ(changes, 1);
        EXPECT_EQ(whatIsOpen(), "nothing") << column;
        EXPECT_EQ(topRow(0).mValue, QStringLiteral("new"));
    }
}

} // namespace
} // namespace condtree::test
