#pragma once

#include "ControlFixture.h"

#include <condtree/editing/DragImage.h>
#include <condtree/platform/ButtonReleasedMessage.h>
#include <condtree/platform/TimerMessage.h>

#include <QApplication>
#include <QDialog>
#include <QPaintEvent>
#include <QPointer>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>

#include <map>

namespace condtree::test {

/// The control with its handlers in the open, which counts what it is told.
class DragCtrl final : public CondTreeCtrl {
public:
    using CondTreeCtrl::CondTreeCtrl;
    using CondTreeCtrl::mhMoveItem;
    using CondTreeCtrl::mvBegindrag;
    using CondTreeCtrl::OnLButtonDown;
    using CondTreeCtrl::OnLButtonUp;
    using CondTreeCtrl::OnMouseMove;

    int clicks = 0;
    std::vector<std::uintptr_t> timers;
    QRegion painted;
    std::function<void()> beforePainting; ///< what the host does, once, before the rows are drawn

    void OnNMCustomdraw(NMHDR* header, LRESULT* result) override
    {
        const DWORD stage = reinterpret_cast<NMTVCUSTOMDRAW*>(header)->dwDrawStage;
        if (stage == CDDS_PREPAINT && beforePainting)
            std::exchange(beforePainting, nullptr)();
        CondTreeCtrl::OnNMCustomdraw(header, result);
    }
    void OnNMClick(NMHDR*, LRESULT* result) override
    {
        *result = 0;
        ++clicks;
    }
    void OnTimer(std::uintptr_t id) override
    {
        timers.push_back(id);
        CondTreeCtrl::OnTimer(id);
    }
    void paintEvent(QPaintEvent* event) override
    {
        painted += event->region();
        CondTreeCtrl::paintEvent(event);
    }
};

/// A dialog that is told of releases.
class DragHost final : public QDialog {
public:
    int told = 0;
    std::function<void()> whenTold;

    bool event(QEvent* event) override
    {
        if (event->type() == ButtonReleasedMessage::messageType()) {
            ++told;
            if (whenTold)
                whenTold();
        }
        return QDialog::event(event);
    }
};

/// A control in a frame in a dialog, shown, with timers that run out when the test says so.
///
///     0 Or            open: Author "a", Title "b", placeholder
///     1 Author "x"
///     2 Cost "5"
///     3 Or            closed: Weight "7", placeholder
///     4 placeholder
class DragFixture : public ControlFixture {
protected:
    DragFixture()
    {
        dialog = new DragHost;
        auto* frame = new QWidget(dialog);
        (new QVBoxLayout(dialog))->addWidget(frame);
        Services ports = services();
        ports.startTimer = [this](QObject* receiver, std::uintptr_t id, unsigned ms) {
            EXPECT_EQ(receiver, timerOwner);
            running[id] = ms;
        };
        ports.stopTimer = [this](QObject* receiver, std::uintptr_t id) {
            EXPECT_EQ(receiver, timerOwner);
            running.erase(id);
        };
        tree = new DragCtrl(frame, ports);
        timerOwner = tree;
        (new QVBoxLayout(frame))->addWidget(tree);
        tree->mvInitialize(library.get(), 120, {}, {});
        QObject::connect(tree, &CondTreeCtrl::conditionChanged, [this] {
            ++changes;
            if (whenChanged)
                whenChanged();
        });
        load({groupRecord(), record(4, 2, "Author", "a", 1, 100),
              record(4, 2, "Title", "b", 1, 101), record(3, 2, "Author", "x", 1, 100, "note"),
              record(3, 2, "Cost", "5", 3, 120), groupRecord(),
              record(4, 2, "Weight", "7", 2, 121)});
        tree->expand(index({0}));
        dialog->resize(500, 400);
        dialog->show();
        dialog->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
        tree->setFocus();
    }
    ~DragFixture() override { delete dialog; }

    void load(const std::vector<TransCond>& records) { tree->mvLoad(records); }
    /// A row by its places from the top on.
    QModelIndex index(const std::vector<int>& path) const
    {
        QModelIndex found;
        for (const int row : path)
            found = tree->model()->index(row, 0, found);
        return found;
    }
    VarTreeCtrlNode* node(const std::vector<int>& path) const
    {
        VarTreeCtrlNode* found = tree->mpoGetNode(TVI_ROOT);
        for (const int row : path)
            found = found->mChildren.at(static_cast<std::size_t>(row));
        return found;
    }
    /// A point on a row's text.
    QPoint at(const std::vector<int>& path) const
    {
        const QRect rect = tree->visualRect(index(path));
        return {rect.left() + 40, rect.center().y()};
    }
    /// Below all rows.
    QPoint below() const { return {60, tree->viewport()->height() - 40}; }
    static POINT point(const QPoint& at) { return {at.x(), at.y()}; }

    QPoint inWindow(const QPoint& at) const { return tree->viewport()->mapTo(dialog, at); }
    void press(const QPoint& at)
    {
        QTest::mousePress(dialog->windowHandle(), Qt::LeftButton, {}, inWindow(at));
    }
    // Outside the window the events go on to the one that has the button.
    void move(const QPoint& at)
    {
        if (isOutside(at))
            send(QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton);
        else
            QTest::mouseMove(dialog->windowHandle(), inWindow(at));
    }
    void release(const QPoint& at)
    {
        if (isOutside(at))
            send(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
        else
            QTest::mouseRelease(dialog->windowHandle(), Qt::LeftButton, {}, inWindow(at));
    }
    bool isOutside(const QPoint& at) const { return !dialog->rect().contains(inWindow(at)); }
    /// A mouse event as the view gets it.
    void send(QEvent::Type type, const QPoint& to, Qt::MouseButton button,
              Qt::MouseButtons buttons) const
    {
        QMouseEvent event(type, to, tree->viewport()->mapToGlobal(to), button, buttons,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(tree->viewport(), &event);
    }
    /// A timer runs out, if it is running.
    void fire(std::uintptr_t id)
    {
        if (running.erase(id) == 0)
            return;
        TimerMessage message(id);
        QCoreApplication::sendEvent(tree, &message);
    }
    /// Presses on a row for long enough and moves a little further.
    void pick(const std::vector<int>& path)
    {
        press(at(path));
        fire(1000);
        move(at(path) + QPoint(3, 0));
        move(at(path) + QPoint(8, 2));
        move(at(path) + QPoint(9, 2));
    }
    void drag(const std::vector<int>& path, const QPoint& to)
    {
        pick(path);
        move(to);
        release(to);
    }

    /// The picture that is shown; null for none.
    DragImage* image() const { return imageIn(*dialog); }
    static DragImage* imageIn(const QWidget& window)
    {
        for (DragImage* image : window.findChildren<DragImage*>()) {
            if (!image->isHidden())
                return image;
        }
        return nullptr;
    }
    std::string text() const { return rowsBelow(*tree->mpoGetNode(TVI_ROOT)); }
    std::string records() const
    {
        std::vector<TransCond> saved;
        tree->mvSave(saved);
        return toText(saved);
    }
    /// Nothing of a drag is left.
    void expectNoDrag() const
    {
        EXPECT_EQ(image(), nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(dialog->findChildren<DragImage*>().size(), 0);
        EXPECT_FALSE(tree->viewport()->testAttribute(Qt::WA_SetCursor));
        EXPECT_EQ(running.size(), 0U);
    }

    QPointer<DragHost> dialog;
    QPointer<DragCtrl> tree;
    QObject* timerOwner = nullptr; ///< the tree, also while it is being destroyed
    std::map<std::uintptr_t, unsigned> running;
    int changes = 0;
    std::function<void()> whenChanged;
};

inline const std::string kPlaceholderRow = "-1 <Click here to add a condition>\n";

} // namespace condtree::test
