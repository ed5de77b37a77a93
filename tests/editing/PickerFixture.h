#pragma once

#include "CalendarHand.h"

#include "support/QtPrinters.h"

#include <condtree/editing/PickDateDlg.h>
#include <condtree/model/VarTreeCtrlNode.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

namespace condtree::test {

/// What is pressed, moved and released over a widget.
class MouseLog final : public QObject {
public:
    explicit MouseLog(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        presses += event->type() == QEvent::MouseButtonPress ? 1 : 0;
        presses += event->type() == QEvent::MouseButtonDblClick ? 1 : 0;
        releases += event->type() == QEvent::MouseButtonRelease ? 1 : 0;
        return false;
    }

    int presses = 0;
    int releases = 0;
};

/// A host's window with a tree in it, and a picker that drops down from a cell of the tree.
class PickerFixture : public testing::Test {
protected:
    PickerFixture()
    {
        window->setGeometry(20, 10, 400, 300);
        tree->setGeometry(0, 0, 400, 100);
        window->show();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    void makePicker()
    {
        picker = new PickDateDlg(
            tree, [this] { return node.get(); }, cell, style, ports.services(),
            [this] { onStored(); });
    }
    /// Opens the picker on a value and runs a script while it is open.
    void open(const QString& value, const std::function<void()>& script)
    {
        node->mValue = value;
        makePicker();
        bool hasRun = false;
        QTimer::singleShot(0, [&] {
            script();
            hasRun = true;
            QCoreApplication::processEvents();
            isOpenAfterScript = isOpen();
            if (isOpenAfterScript)
                picker->close();
        });
        picker->DoModal();
        EXPECT_TRUE(hasRun);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        delete picker;
    }
    /// What a script leaves behind is to be a closed picker.
    void expectCloses(const char* name, const std::function<void()>& script)
    {
        SCOPED_TRACE(name);
        open(QStringLiteral("2024-03-14"), script);
        EXPECT_FALSE(isOpenAfterScript);
    }
    void expectStaysOpen(const char* name, const std::function<void()>& script)
    {
        SCOPED_TRACE(name);
        open(QStringLiteral("2024-03-14"), script);
        EXPECT_TRUE(isOpenAfterScript);
    }

    [[nodiscard]] bool isOpen() const { return !picker.isNull() && picker->isVisible(); }
    [[nodiscard]] CMonthCalCtrlEx& calendar() const
    {
        return *QApplication::activePopupWidget()->findChild<CMonthCalCtrlEx*>();
    }
    [[nodiscard]] CalendarHand hand() const { return CalendarHand(calendar()); }

    CalendarPorts ports;
    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    QWidget* tree = new QWidget(window.get());
    std::unique_ptr<VarTreeCtrlNode> node = std::make_unique<VarTreeCtrlNode>(NodeVariable);
    RECT cell{60, 40, 160, 60};
    LONG style = 120;
    QPointer<PickDateDlg> picker;
    bool isOpenAfterScript = false;
    int stored = 0;
    std::function<void()> onStored = [this] { ++stored; };
};

} // namespace condtree::test
