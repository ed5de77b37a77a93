#include "InPlaceEditing.h"

#include <condtree/refdata/ControlSettings.h>

#include <QApplication>

#include <utility>

namespace condtree {

namespace {

RECT toScreen(const QWidget& viewport, const RECT& cell)
{
    const QPoint topLeft = viewport.mapToGlobal(QPoint(cell.left, cell.top));
    const QPoint bottomRight = viewport.mapToGlobal(QPoint(cell.right, cell.bottom));
    return {topLeft.x(), topLeft.y(), bottomRight.x(), bottomRight.y()};
}

QRect toRect(const RECT& cell)
{
    return {QPoint(cell.left, cell.top), QPoint(cell.right - 1, cell.bottom - 1)};
}

const CString& editedText(const VarTreeCtrlNode& node)
{
    return node.mlEditColumn == EditColumnExtra ? node.mExtra : node.mValue;
}

} // namespace

InPlaceEditing::InPlaceEditing(QTreeView& view, const Services& services,
                               const ControlSettings& settings, EditedTree& tree)
    : m_view(&view)
    , m_services(services)
    , m_settings(settings)
    , m_tree(tree)
{
}

void InPlaceEditing::setHook(std::function<void()> changed)
{
    m_changed = std::move(changed);
}

void InPlaceEditing::shutDown()
{
    finishMeanwhile();
    if (!m_picker.isNull())
        m_picker->close();
    m_view.clear();
}

void InPlaceEditing::edit(VarTreeCtrlNode& node, const RECT& cell)
{
    const HTREEITEM item = node.mhItem;
    finish();
    if (m_view.isNull() || m_tree.node(item) != &node)
        return;
    m_item = item;
    m_cell = toRect(cell);
    m_valueBefore = node.mValue;
    m_extraBefore = node.mExtra;
    m_editor = new FocusEdit;
    QObject::connect(m_editor, &FocusEdit::finished, m_view, [this] { finished(); });
    if (m_editor->Create(node, cell, m_view->viewport(), m_services))
        m_editor->setText(editedText(node));
}

void InPlaceEditing::finish()
{
    if (!m_editor.isNull())
        m_editor->finish();
}

void InPlaceEditing::finishMeanwhile()
{
    const bool wasChanging = std::exchange(m_isTreeChanging, true);
    finish();
    m_isTreeChanging = wasChanging;
}

// An editor that has lost the focus is inside the handling of what took it, a click perhaps, whose
// widget a host must not delete yet.
void InPlaceEditing::finished()
{
    const bool hasFocus = !m_editor.isNull() && m_editor->isAncestorOf(QApplication::focusWidget());
    m_editor.clear();
    const VarTreeCtrlNode* node = m_tree.node(m_item);
    if (node == nullptr || (node->mValue == m_valueBefore && node->mExtra == m_extraBefore))
        return;
    m_view->viewport()->update(m_cell);
    if (hasFocus && !m_isTreeChanging)
        tellChanged();
    else
        tellLater();
}

void InPlaceEditing::tellLater()
{
    const auto tell = [this, item = m_item] {
        if (m_tree.node(item) != nullptr)
            tellChanged();
    };
    QMetaObject::invokeMethod(m_view.data(), tell, Qt::QueuedConnection);
}

void InPlaceEditing::tellChanged()
{
    const std::function<void()> changed = m_changed;
    changed();
}

void InPlaceEditing::pick(VarTreeCtrlNode& node, const RECT& cell)
{
    const HTREEITEM item = node.mhItem;
    if (m_view.isNull() || !m_picker.isNull() || m_tree.node(item) != &node)
        return;
    QWidget* viewport = m_view->viewport();
    CString before = node.mValue;
    const auto stored = [this, item, &before, cell, viewport] {
        viewport->update(toRect(cell));
        const VarTreeCtrlNode* picked = m_tree.node(item);
        if (picked == nullptr || picked->mValue == before)
            return;
        before = picked->mValue;
        tellChanged();
    };
    m_pickedItem = item;
    m_picker = new PickDateDlg(
        viewport, [this, item] { return m_tree.node(item); }, toScreen(*viewport, cell),
        m_settings.dateStyle, m_services, stored);
    const QPointer<PickDateDlg> picker = m_picker;
    picker->DoModal();
    delete picker;
}

void InPlaceEditing::forgetDeadRows()
{
    if (!m_picker.isNull() && m_tree.node(m_pickedItem) == nullptr)
        m_picker->close();
}

} // namespace condtree
