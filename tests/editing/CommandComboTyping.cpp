#include "ComboFixture.h"

#include <support/QtPrinters.h>

#include <QScrollBar>

using namespace condtree;
using namespace condtree::test;

namespace {

class CommandComboTyping : public ComboFixture {
protected:
    CommandComboTyping()
    {
        offer({QStringLiteral("Category"), QStringLiteral("FilePath"),
               QStringLiteral("Object Type"), QStringLiteral("Revision"), QStringLiteral("Remove"),
               QStringLiteral("Approver")});
    }

    QKeyEvent letter(char16_t unit, Qt::KeyboardModifiers modifiers = {})
    {
        return QKeyEvent(QEvent::KeyPress, Qt::Key_unknown, modifiers, QString(QChar(unit)));
    }
};

TEST_F(CommandComboTyping, FindsAndFiltersAndReturnChooses)
{
    open();
    QTest::keyClick(popup(), Qt::Key_R);
    EXPECT_EQ(current(), 3);
    QTest::keyClick(popup(), Qt::Key_E);
    QTest::keyClick(popup(), Qt::Key_M);
    EXPECT_EQ(current(), 4);
    EXPECT_EQ(shownTexts(), QStringList{QStringLiteral("Remove")});
    key(Qt::Key_Return);
    letEventsPass();
    EXPECT_EQ(closings, std::vector<int>{4});
    EXPECT_EQ(combo->currentText(), QStringLiteral("Remove"));
}

TEST_F(CommandComboTyping, TheSameLetterGoesFromEntryToEntry)
{
    open();
    typeText(QStringLiteral("r"));
    EXPECT_EQ(current(), 3);
    typeText(QStringLiteral("r"));
    EXPECT_EQ(current(), 4);
    typeText(QStringLiteral("r"));
    EXPECT_EQ(current(), 3);
}

TEST_F(CommandComboTyping, AClickOnAFilteredListChoosesWhatIsThere)
{
    open();
    typeText(QStringLiteral("v"));
    EXPECT_EQ(shownTexts(), (QStringList{QStringLiteral("Revision"), QStringLiteral("Remove"),
                                         QStringLiteral("Approver")}));
    const QPoint third = placeOf(3) + QPoint(0, 2 * view().rowHeight());
    QTest::mouseClick(popup(), Qt::LeftButton, {}, third);
    letEventsPass();
    EXPECT_EQ(closings, std::vector<int>{5});
}

TEST_F(CommandComboTyping, KeysMoveThroughTheShownEntriesOnly)
{
    open();
    typeText(QStringLiteral("v"));
    EXPECT_EQ(current(), 3);
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    EXPECT_EQ(current(), 5);
    key(Qt::Key_Down);
    EXPECT_EQ(current(), 5);
    key(Qt::Key_Home);
    EXPECT_EQ(current(), 3);
}

TEST_F(CommandComboTyping, EscapeRestoresAndTheNextOpeningShowsAll)
{
    combo->select(1);
    open();
    typeText(QStringLiteral("rem"));
    key(Qt::Key_Escape);
    letEventsPass();
    EXPECT_EQ(closings, std::vector<int>{1});
    open();
    EXPECT_EQ(shownTexts().size(), 6);
    EXPECT_EQ(current(), 1);
    typeText(QStringLiteral("o"));
    EXPECT_EQ(current(), 2);
}

TEST_F(CommandComboTyping, WhatFindsNothingMayBeTakenBack)
{
    open();
    typeText(QStringLiteral("rx"));
    EXPECT_EQ(shownTexts(), QStringList());
    EXPECT_EQ(current(), -1);
    key(Qt::Key_Return);
    EXPECT_TRUE(combo->isDroppedDown());
    key(Qt::Key_Backspace);
    EXPECT_EQ(current(), 3);
    key(Qt::Key_Backspace);
    EXPECT_EQ(shownTexts().size(), 6);
    EXPECT_EQ(current(), 3);
}

TEST_F(CommandComboTyping, WithoutTheFilterAllStaysShown)
{
    combo->setQuickFilter(false);
    open();
    typeText(QStringLiteral("re"));
    EXPECT_EQ(current(), 3);
    EXPECT_EQ(shownTexts().size(), 6);
    typeText(QStringLiteral("q"));
    EXPECT_EQ(current(), 3);
}

TEST_F(CommandComboTyping, AfterThePauseOfTheDesktopASearchBeginsAnew)
{
    const int interval = QApplication::keyboardInputInterval();
    QApplication::setKeyboardInputInterval(0); // every character comes after a pause
    combo->setQuickFilter(false);
    open();
    typeText(QStringLiteral("rc"));
    QApplication::setKeyboardInputInterval(interval);
    EXPECT_EQ(current(), 0);
}

TEST_F(CommandComboTyping, SpacesAreTypedToo)
{
    open();
    QTest::keyClicks(&view(), QStringLiteral("object t"));
    EXPECT_EQ(current(), 2);
    EXPECT_EQ(shownTexts().size(), 1);
    EXPECT_TRUE(combo->isDroppedDown());
}

TEST_F(CommandComboTyping, CommandsAreNotTyped)
{
    open();
    for (const auto modifier : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
        QKeyEvent event = letter(u'r', modifier);
        QCoreApplication::sendEvent(&view(), &event);
    }
    EXPECT_EQ(current(), -1);
    EXPECT_EQ(shownTexts().size(), 6);
}

TEST_F(CommandComboTyping, AnInputMethodTypesToo)
{
    open();
    EXPECT_TRUE(view().inputMethodQuery(Qt::ImEnabled).toBool());
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("App"));
    QCoreApplication::sendEvent(&view(), &event);
    EXPECT_EQ(current(), 5);
}

TEST_F(CommandComboTyping, EntriesThatComeMeanwhileEndTheFilter)
{
    open();
    typeText(QStringLiteral("rem"));
    combo->addEntry({1, QStringLiteral("Or"), -1}, 0);
    EXPECT_EQ(shownTexts().size(), 7);
    typeText(QStringLiteral("o"));
    EXPECT_EQ(current(), 0);
    combo->addEntry({1, QStringLiteral("zz"), -1}, -1);
    typeText(QStringLiteral("z"));
    EXPECT_EQ(current(), 7);
}

TEST_F(CommandComboTyping, WhatAnotherWidgetGotIsForwarded)
{
    QKeyEvent event = letter(u'r');
    combo->forward(&event);
    EXPECT_EQ(shownTexts().size(), 6);
    open();
    combo->forward(&event, window.get());
    EXPECT_EQ(current(), 3);
    EXPECT_EQ(shownTexts().size(), 4);
    QKeyEvent back(QEvent::KeyPress, Qt::Key_Backspace, {}, QStringLiteral("\b"));
    combo->forward(&back);
    EXPECT_EQ(shownTexts().size(), 6);
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, {}, QStringLiteral("\r"));
    combo->forward(&enter);
    EXPECT_TRUE(combo->isDroppedDown());
}

TEST_F(CommandComboTyping, WhatTheListItselfGetsIsNotForwarded)
{
    open();
    QKeyEvent event = letter(u'r');
    for (QObject* receiver :
         {static_cast<QObject*>(&view()), static_cast<QObject*>(view().viewport()),
          static_cast<QObject*>(view().window()), static_cast<QObject*>(popup())})
        combo->forward(&event, receiver);
    EXPECT_EQ(current(), -1);
}

TEST_F(CommandComboTyping, AWheelTurnOfAnotherWidgetScrolls)
{
    combo->setTail(std::make_shared<const ChoiceEntries>(manyChoices(100)));
    open();
    QWheelEvent turn(QPointF(1, 1), QPointF(51, 51), {}, QPoint(0, -120), {}, {}, Qt::NoScrollPhase,
                     false);
    combo->forward(&turn);
    EXPECT_GT(view().verticalScrollBar()->value(), 0);
}

} // namespace
