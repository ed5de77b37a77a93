#include "ComboFixture.h"

using namespace condtree;
using namespace condtree::test;

namespace {

class CommandComboLifetime : public ComboFixture {
protected:
    CommandComboLifetime() { offer({QStringLiteral("One"), QStringLiteral("Two")}); }

    template <class Action>
    void whenClosed(Action action)
    {
        QObject::connect(combo, &CommandCombo::closedUp, qApp, action);
    }
};

TEST_F(CommandComboLifetime, ItMayBeDeletedWhenItIsClosed)
{
    whenClosed([this] { delete combo; });
    open();
    click(1);
    letEventsPass();
    EXPECT_EQ(combo, nullptr);
    EXPECT_EQ(closings, std::vector<int>{1});
}

TEST_F(CommandComboLifetime, ItsWindowMayBeDeletedWhenItIsClosed)
{
    whenClosed([this] { window.reset(); });
    open();
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    letEventsPass();
    EXPECT_EQ(combo, nullptr);
}

TEST_F(CommandComboLifetime, ItMayBeDeletedWhileTheListIsOpen)
{
    open();
    delete combo;
    letEventsPass();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(closings, std::vector<int>());
}

TEST_F(CommandComboLifetime, ItsWindowMayBeDeletedWhileTheListIsOpen)
{
    open();
    window.reset();
    letEventsPass();
    EXPECT_EQ(combo, nullptr);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(CommandComboLifetime, ItMayBeDeletedBetweenClosingAndTelling)
{
    open();
    combo->closeList();
    delete combo;
    letEventsPass();
    EXPECT_EQ(closings, std::vector<int>());
}

TEST_F(CommandComboLifetime, ARetiredOneClosesTellsNothingAndGoes)
{
    open();
    combo->retire();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_FALSE(combo->isVisible());
    EXPECT_FALSE(combo->property("controlId").isValid());
    EXPECT_EQ(combo->objectName(), QString());
    combo->dropDown();
    EXPECT_FALSE(combo->isDroppedDown());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    letEventsPass();
    EXPECT_EQ(combo, nullptr);
    EXPECT_EQ(closings, std::vector<int>());
}

TEST_F(CommandComboLifetime, ItMayBeRetiredFromWithinAnEventOfTheOpenList)
{
    // As a host does that deletes the row from a handler of its own.
    QObject::connect(combo, &QComboBox::highlighted, combo, &CommandCombo::retire);
    QObject::connect(view().selectionModel(), &QItemSelectionModel::currentChanged, combo,
                     &CommandCombo::retire);
    open();
    key(Qt::Key_Down);
    letEventsPass();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(combo, nullptr);
    EXPECT_EQ(closings, std::vector<int>());
}

TEST_F(CommandComboLifetime, ItMayOpenAgainWhenItIsClosed)
{
    whenClosed([this] { combo->dropDown(); });
    open();
    key(Qt::Key_Escape);
    letEventsPass();
    EXPECT_TRUE(combo->isDroppedDown());
    EXPECT_EQ(closings, std::vector<int>{-1});
}

} // namespace
