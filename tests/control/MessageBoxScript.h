#pragma once

#include <condtree/control/RealServices.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>
#include <utility>
#include <vector>

namespace condtree::test {

/// The open messages.
inline std::vector<QMessageBox*> openBoxes()
{
    std::vector<QMessageBox*> boxes;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* box = qobject_cast<QMessageBox*>(widget); box != nullptr && box->isVisible())
            boxes.push_back(box);
    }
    return boxes;
}

/// The label that shows the text.
inline QLabel& textOf(const QMessageBox& box)
{
    return *box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
}

/// Calls something that shows a message and runs a script while the message is open. A box that the
/// script leaves open is closed.
inline void duringMessage(const std::function<void()>& call,
                          const std::function<void(QMessageBox&)>& script)
{
    bool hasRun = false;
    QPointer<QMessageBox> box;
    QTimer::singleShot(0, [&] {
        box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_FALSE(box.isNull());
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == box; }));
        script(*box);
        hasRun = true;
        if (!box.isNull())
            box->accept();
    });
    call();
    EXPECT_TRUE(hasRun);
    EXPECT_TRUE(box.isNull());
}

/// Calls something that shows a message which joins the open box. A box of its own is a failure,
/// and is closed.
inline void expectToJoin(const std::function<void()>& call)
{
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [] {
        ADD_FAILURE() << "the message waits in a box of its own";
        QApplication::activeModalWidget()->close();
    });
    watch.start(0);
    call();
}

inline void joinMessage(QWidget* owner, const QString& text, unsigned type = MB_OK)
{
    expectToJoin([&] { realServices().messageBox(owner, text, type); });
}

/// Shows a message with the real port and runs a script while it is open.
inline void showMessageDuring(QWidget* owner, const QString& text,
                              const std::function<void(QMessageBox&)>& script,
                              const Services& ports = realServices())
{
    duringMessage([&] { ports.messageBox(owner, text, MB_OK); }, script);
}

/// A window with a button that counts the clicks which reach it.
struct ClickedWindow : QWidget {
    explicit ClickedWindow(QPoint at = {})
    {
        button.setGeometry(10, 10, 80, 30);
        setGeometry(QRect(at, QSize(200, 100)));
        QObject::connect(&button, &QPushButton::clicked, this, [this] { ++clicks; });
    }
    void showActive()
    {
        show();
        activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(this));
    }
    /// A click through the window system, which a modal window may swallow.
    int clicksAfterOneMore()
    {
        QTest::mouseClick(windowHandle(), Qt::LeftButton, {}, button.geometry().center());
        return clicks;
    }

    QPushButton button{this};
    int clicks = 0;
};

} // namespace condtree::test
