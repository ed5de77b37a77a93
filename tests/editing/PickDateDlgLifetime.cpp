// What the host may do to the row and to the tree while the picker is open.
#include "PickerFixture.h"

#include <QDialog>

#include <functional>
#include <vector>

namespace condtree::test {
namespace {

class PickerLifetime : public PickerFixture {
protected:
    /// A click on a day, on the line of today, or a key, each of which stores.
    [[nodiscard]] std::vector<std::function<void()>> choices()
    {
        return {[this] { hand().click(hand().day(20)); },
                [this] { hand().click(hand().middleOf(hand().todayLink())); },
                [this] { hand().key(Qt::Key_Right); }};
    }
    void renew()
    {
        window = std::make_unique<QWidget>();
        tree = new QWidget(window.get());
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        node = std::make_unique<VarTreeCtrlNode>(NodeVariable);
    }
};

TEST_F(PickerLifetime, ARowThatIsGoneClosesAtTheNextChoice)
{
    for (std::size_t choice = 0; choice < choices().size(); ++choice) {
        expectCloses("gone", [&] {
            node.reset();
            choices().at(choice)();
        });
        EXPECT_EQ(stored, 0);
        renew();
    }
}

TEST_F(PickerLifetime, NothingOpensForARowThatWasGoneBefore)
{
    picker = new PickDateDlg(
        tree, [] { return nullptr; }, cell, style, ports.services(), [] { FAIL(); });
    QTimer watch;
    watch.callOnTimeout([&] {
        ADD_FAILURE() << "it waits";
        picker->close();
    });
    watch.start(0);
    picker->DoModal();
    EXPECT_FALSE(picker->isVisible());
    delete picker;
}

TEST_F(PickerLifetime, TheTreeMayBeDeletedWhileItIsOpen)
{
    expectCloses("tree", [&] {
        delete tree;
        EXPECT_TRUE(picker.isNull());
    });
    renew();
    expectCloses("window", [&] { window.reset(); });
}

TEST_F(PickerLifetime, TheTreeMayBeDeletedWhenAValueIsStored)
{
    for (std::size_t choice = 0; choice < choices().size(); ++choice) {
        onStored = [this] { delete tree; };
        expectCloses("tree", choices().at(choice));
        EXPECT_TRUE(picker.isNull());
        renew();
        onStored = [this] { window.reset(); };
        expectCloses("window", choices().at(choice));
        EXPECT_TRUE(picker.isNull());
        renew();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (const QWidget* widget : QApplication::allWidgets())
        EXPECT_EQ(qobject_cast<const CMonthCalCtrlEx*>(widget), nullptr);
}

TEST_F(PickerLifetime, TheRowMayBeDeletedAndThePickerClosedWhenAValueIsStored)
{
    for (std::size_t choice = 0; choice < choices().size(); ++choice) {
        onStored = [this] {
            node.reset();
            picker->close();
        };
        expectCloses("row", choices().at(choice));
        node = std::make_unique<VarTreeCtrlNode>(NodeVariable);
    }
}

TEST_F(PickerLifetime, ThePickerMayBeDeletedWhenAValueIsStored)
{
    for (std::size_t choice = 0; choice < choices().size(); ++choice) {
        onStored = [this] { delete picker; };
        expectCloses("picker", choices().at(choice));
    }
}

TEST_F(PickerLifetime, TheTreeMayBeDeletedBetweenTheTwoPressesOfADoubleClick)
{
    expectCloses("tree", [&] {
        const QPoint day = hand().day(20);
        hand().click(day);
        hand().press(day);
        delete tree;
    });
}

TEST_F(PickerLifetime, AMessageOfTheHostThatOpensMeanwhileClosesIt)
{
    expectCloses("message", [&] {
        QDialog message(window.get());
        QTimer::singleShot(0, [&] {
            EXPECT_TRUE(QTest::qWaitFor([&] { return !isOpen(); }));
            message.reject();
        });
        message.exec();
    });
}

TEST_F(PickerLifetime, APickerThatWasNeverOpenedCanBeDeletedAndOutliveItsTree)
{
    makePicker();
    window->hide();
    QCoreApplication::processEvents();
    EXPECT_FALSE(picker.isNull());
    window.reset();
    EXPECT_TRUE(picker.isNull());
}

TEST_F(PickerLifetime, ATreeIsNotNeeded)
{
    tree = nullptr;
    makePicker();
    QTimer::singleShot(0, [&] {
        hand().click(hand().day(20));
        hand().key(Qt::Key_Escape);
    });
    picker->DoModal();
    EXPECT_EQ(node->mValue, QStringLiteral("2024-03-20"));
    delete picker;
}

} // namespace
} // namespace condtree::test
