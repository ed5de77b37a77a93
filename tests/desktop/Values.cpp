#include "DesktopFixture.h"

#include <condtree/editing/PickDateDlg.h>

#include <QApplication>
#include <QProcess>
#include <QTest>
#include <QTimer>

namespace condtree::test {
namespace {

/// The date picker that is open; null for none.
QWidget* picker()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (qobject_cast<PickDateDlg*>(widget) != nullptr && widget->isVisible())
            return widget;
    }
    return nullptr;
}

class Values : public DesktopFixture {
protected:
    void SetUp() override
    {
        start();
        text = &add(NodeVariable, "Author", "smith", StringContains, ArgText);
        date = &add(NodeVariable, "Due Date", "2024-03-05", DateEqualTo, ArgDate);
    }

    VarTreeCtrlNode* text = nullptr;
    VarTreeCtrlNode* date = nullptr;

    // A click on a date waits for its picker: what is done meanwhile comes from the event loop.
    void clickDate(const std::function<void()>& meanwhile)
    {
        bool isDone = false;
        QTimer watch;
        watch.callOnTimeout([&] {
            if (picker() == nullptr)
                return;
            watch.stop();
            meanwhile();
            isDone = true;
        });
        watch.start(20);
        click(*date, 2);
        EXPECT_TRUE(QTest::qWaitFor([&] { return isDone && picker() == nullptr; }));
    }
};

TEST_F(Values, AreTypedIntoTheCellAndKeptByReturn)
{
    click(*text, 2);
    waitForEditor();
    Hand::screenshot(QStringLiteral("value-being-typed"));
    hand.type(QStringLiteral("jones"));
    hand.key("Return");
    EXPECT_EQ(text->mValue, QStringLiteral("jones"));
    EXPECT_EQ(changes, 1);
}

TEST_F(Values, AreKeptByAClickElsewhereEachInItsColumn)
{
    click(*text, 3);
    waitForEditor();
    hand.type(QStringLiteral("remark"));
    click(*text, 2);
    waitForEditor();
    hand.type(QStringLiteral("value"));
    hand.click(*hostField, hostField->rect().center());
    EXPECT_TRUE(QTest::qWaitFor([&] { return changes == 2; }));
    EXPECT_EQ(text->mExtra, QStringLiteral("remark"));
    EXPECT_EQ(text->mValue, QStringLiteral("value"));
}

TEST_F(Values, ADateIsPickedByKeysAndTheCalendarClosedByReturn)
{
    clickDate([this] {
        Hand::screenshot(QStringLiteral("date-picker"));
        hand.key("Down");
        hand.key("Right");
        hand.key("Return");
    });
    EXPECT_EQ(date->mValue.left(10), QStringLiteral("2024-03-13"));
    EXPECT_EQ(changes, 2) << "each day that was selected on the way";
}

TEST_F(Values, AClickBesideTheCalendarClosesItAndKeepsTheDate)
{
    clickDate([this] {
        hand.key("Right");
        hand.moveTo(window, QPoint(5, window.height() - 5));
        // The release is nobody's: the calendar is gone by then.
        QProcess::execute(QStringLiteral("xdotool"),
                          {QStringLiteral("click"), QStringLiteral("1")});
    });
    EXPECT_EQ(date->mValue.left(10), QStringLiteral("2024-03-06"));
}

TEST_F(Values, ATypedCharacterBeginsADateInPlace)
{
    clickDate([this] { hand.key("Escape"); });
    EXPECT_EQ(date->mValue, QStringLiteral("2024-03-05"));
    hand.type(QStringLiteral("2025"));
    hand.key("Return");
    EXPECT_EQ(date->mValue, QStringLiteral("2025"));
    EXPECT_EQ(text->mValue, QStringLiteral("smith"));
}

} // namespace
} // namespace condtree::test
