#pragma once

#include "ControlFixture.h"

#include "support/WarningGuard.h"

#include <condtree/editing/CommandCombo.h>
#include <condtree/editing/FocusEdit.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QWindow>

#include <memory>
#include <string>
#include <vector>

namespace condtree::test {

/// A control in a host's window, beside another field, and a user's hand at its cells: everything
/// goes through the window, as the window system would send it.
class CellHand : public ControlFixture {
protected:
    CellHand()
    {
        QGuiApplication::setQuitOnLastWindowClosed(false);
        window->setGeometry(40, 30, 800, 420);
        control->setParent(window.get());
        control->setGeometry(0, 0, 800, 340);
        beside->setGeometry(0, 360, 800, 30);
        QObject::connect(control.get(), &CondTreeCtrl::conditionChanged, window.get(),
                         [this] { onChanged(); });
        initialize();
        window->show();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    // The window must not delete it.
    ~CellHand() override { control.reset(); }

    /// A row on a card variable, with the control's only record.
    VarTreeCtrlNode& only(const TransCond& condition)
    {
        loaded({condition});
        return topRow(0);
    }
    [[nodiscard]] QModelIndex indexOf(int row) const { return control->model()->index(row, 0); }
    /// The middle of a cell of a row of the top level, in the control's viewport.
    [[nodiscard]] QPoint middleOf(int row, int column) const
    {
        const int width = control->viewport()->width();
        int left = 0;
        for (int before = 0; before < column; ++before)
            left += control->miGetColumnSize(before, width);
        const int share = column == 3 ? width - left : control->miGetColumnSize(column, width);
        return {left + share / 2, control->visualRect(indexOf(row)).center().y()};
    }
    [[nodiscard]] RECT cellOf(int row, int column)
    {
        const QPoint at = middleOf(row, column);
        RECT cell{};
        EXPECT_EQ(control->miGetColumn({at.x(), at.y()},
                                       topRow(static_cast<std::size_t>(row)).mhItem, cell),
                  column);
        return cell;
    }
    /// Presses and releases the left button over a point of a widget of the window.
    void clickAt(const QWidget& widget, QPoint at)
    {
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {},
                          widget.mapTo(window.get(), at));
    }
    void click(int row, int column) { clickAt(*control->viewport(), middleOf(row, column)); }
    void clickBeside() { clickAt(*beside, beside->rect().center()); }
    /// What a click on a cell tells the control when it is asked where the pointer is.
    void tellClick(int row, int column)
    {
        const QPoint at = control->viewport()->mapToGlobal(middleOf(row, column));
        pointer = {at.x(), at.y()};
        LRESULT result = -1;
        control->OnNMClick(nullptr, &result);
        EXPECT_EQ(result, 0);
    }
    void key(Qt::Key pressed, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(window->windowHandle(), pressed, modifiers);
    }
    void type(const char* text)
    {
        for (const QChar letter : QString::fromUtf8(text))
            QTest::keyClick(window->windowHandle(), letter.toLatin1());
    }
    static void letEventsPass()
    {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// The editor that stands open; null for none.
    [[nodiscard]] FocusEdit* editor() const
    {
        const auto found = control->findChildren<FocusEdit*>(QStringLiteral("902"));
        EXPECT_LE(found.size(), 1);
        return found.empty() ? nullptr : found.front();
    }
    [[nodiscard]] QLineEdit& field() const
    {
        return *qobject_cast<QLineEdit*>(editor()->focusProxy());
    }
    /// The list over a cell, if it is open.
    [[nodiscard]] CommandCombo* list() const
    {
        auto* combo = control->findChild<CommandCombo*>(QStringLiteral("900"));
        return combo != nullptr && combo->isDroppedDown() ? combo : nullptr;
    }
    /// The editor that stands open, the text in it, or what else is open.
    [[nodiscard]] std::string whatIsOpen() const
    {
        if (list() != nullptr)
            return editor() != nullptr ? "list and editor" : "list";
        return editor() != nullptr ? "'" + editor()->text().toStdString() + "'" : "nothing";
    }

    int changes = 0;
    std::function<void()> onChanged = [this] { ++changes; };
    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    QLineEdit* beside = new QLineEdit(window.get());
};

} // namespace condtree::test
