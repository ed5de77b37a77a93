#pragma once

#include <condtree/platform/Services.h>

#include <QFrame>
#include <QPointer>

#include <functional>

namespace condtree {

class CMonthCalCtrlEx;
class VarTreeCtrlNode;

/// The date picker: a calendar that drops down from a cell. Every day that the user selects is the
/// node's value at once, written by a date style code; there is no cancel.
///
/// It closes on a double click on a day, on Return and Escape, on a press of any button outside,
/// when another window or application becomes active, and when the tree or its window is hidden.
///
/// It is the tree's child and may die with it while it is open, so make it with new:
///
///     const QPointer<PickDateDlg> picker(new PickDateDlg(...));
///     picker->DoModal();
///     delete picker;
class CONDTREE_EXPORT PickDateDlg : public QFrame {
    Q_OBJECT
public:
    /// Answers the node whose value is picked; null when it is not there any more, upon which the
    /// picker closes.
    using NodeSource = std::function<VarTreeCtrlNode*()>;

    /// The cell is in screen co-ordinates. Takes from the services what CMonthCalCtrlEx needs. With
    /// each value stored, repaintCell is called, last of all; it may delete the tree.
    PickDateDlg(QWidget* tree, NodeSource node, const RECT& cellOnScreen, LONG dateStyle,
                const Services& services, std::function<void()> repaintCell);
    ~PickDateDlg() override;

    /// Shows the picker on the date that the node's value is, else on today, and waits until it is
    /// closed: by the user, by close(), or by its end. Does nothing while it is open, and without a
    /// node.
    void DoModal();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// It is hidden.
    void closed();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void closeWhenLeft();
    void followApplication(Qt::ApplicationState state);
    void closeSoon();
    void selectValue();
    void place();
    void store(QDate date);

    NodeSource m_node;
    RECT m_cell;
    std::uint32_t m_dateStyle;
    std::function<void()> m_repaintCell;
    CMonthCalCtrlEx* m_calendar;
    bool m_isTelling = false;
    bool m_isAway = false;      ///< another application is active
    QPointer<QWidget> m_window; ///< the one that the tree is in
};

} // namespace condtree
