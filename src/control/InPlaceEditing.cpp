#include "InPlaceEditing.h"

#include <condtree/refdata/ControlSettings.h>

#include <QApplication>
#include <QKeyEvent>

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

// What the picker asks while it is made is asked before: the host may take the view away then.
Services knowingThePresent(Services services)
{
    const SYSTEMTIME now = services.localTime();
    const DWORD doubleClickTime = services.doubleClickTime();
    const int width = services.systemMetric(SM_CXDOUBLECLK);
    const int height = services.systemMetric(SM_CYDOUBLECLK);
    services.localTime = [now] { return now; };
    services.doubleClickTime = [doubleClickTime] { return doubleClickTime; };
    services.systemMetric = [width, height](int metric) {
        return metric == SM_CXDOUBLECLK ? width : height;
    };
    return services;
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
    closePicker();
    m_view.clear();
}

InPlaceEditing::Edited InPlaceEditing::editedOf(VarTreeCtrlNode& node) const
{
    const bool isRow = m_tree.node(node.mhItem) == &node;
    return Edited{&node, isRow ? node.mhItem : nullptr};
}

VarTreeCtrlNode* InPlaceEditing::nodeOf(const Edited& edited) const
{
    return edited.row == nullptr ? edited.node : m_tree.node(edited.row);
}

void InPlaceEditing::edit(VarTreeCtrlNode& node, const RECT& cell, const CString& text)
{
    if (m_view.isNull() || !m_editor.isNull())
        return;
    m_edited = editedOf(node);
    m_cell = toRect(cell);
    m_valueBefore = node.mValue;
    m_extraBefore = node.mExtra;
    m_hadFocus = false;
    m_editor = new FocusEdit;
    m_editor->addListener(*this);
    QObject::connect(m_editor, &FocusEdit::finished, m_view, [this] { finished(); });
    if (!m_editor->Create(node, cell, m_view->viewport(), m_services))
        delete m_editor;
    else if (m_editor->text() != text)
        m_editor->setText(text);
}

void InPlaceEditing::type(const QKeyEvent& key)
{
    if (m_editor.isNull())
        return;
    m_editor->setFocus(Qt::OtherFocusReason);
    QKeyEvent copy(key.type(), key.key(), key.modifiers(), key.text(), key.isAutoRepeat());
    if (!m_editor.isNull())
        QCoreApplication::sendEvent(m_editor->focusProxy(), &copy);
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

void InPlaceEditing::settle()
{
    finish();
    while (!m_untold.empty())
        tellNext();
}

// The last moment at which the editor may have the focus: it hands it back before it closes.
void InPlaceEditing::editFinished(FocusEdit* editor, const CString&)
{
    m_hadFocus = editor->isAncestorOf(QApplication::focusWidget());
}

// An editor that has lost the focus is inside the handling of what took it, a click perhaps, whose
// widget a host must not delete yet.
void InPlaceEditing::finished()
{
    m_editor.clear();
    const VarTreeCtrlNode* node = nodeOf(m_edited);
    if (node == nullptr || (node->mValue == m_valueBefore && node->mExtra == m_extraBefore))
        return;
    m_view->viewport()->update(m_cell);
    m_untold.push_back(m_edited);
    if (m_hadFocus && !m_isTreeChanging)
        tellNext();
    else
        QMetaObject::invokeMethod(
            m_view.data(), [this] { tellNext(); }, Qt::QueuedConnection);
}

void InPlaceEditing::tellNext()
{
    if (m_untold.empty())
        return;
    const Edited first = m_untold.front();
    m_untold.erase(m_untold.begin());
    if (!m_view.isNull() && nodeOf(first) != nullptr)
        tellChanged();
}

void InPlaceEditing::tellChanged()
{
    const std::function<void()> changed = m_changed;
    changed();
}

void InPlaceEditing::pick(VarTreeCtrlNode& node, const RECT& cell)
{
    if (m_view.isNull() || !m_picker.isNull())
        return;
    const Edited edited = editedOf(node);
    const Services services = knowingThePresent(m_services);
    if (m_view.isNull() || nodeOf(edited) == nullptr)
        return;
    QWidget* viewport = m_view->viewport();
    m_picked = edited;
    CString before = node.mValue;
    const auto stored = [this, edited, &before, cell, viewport] {
        viewport->update(toRect(cell));
        const VarTreeCtrlNode* picked = nodeOf(edited);
        if (picked == nullptr || picked->mValue == before)
            return;
        before = picked->mValue;
        tellChanged();
    };
    m_picker = new PickDateDlg(
        viewport, [this, edited] { return nodeOf(edited); }, toScreen(*viewport, cell),
        m_settings.dateStyle, services, stored);
    const QPointer<PickDateDlg> picker = m_picker;
    picker->DoModal();
    delete picker;
}

void InPlaceEditing::closePicker()
{
    if (!m_picker.isNull())
        m_picker->close();
}

void InPlaceEditing::forgetDeadRows()
{
    if (nodeOf(m_picked) == nullptr)
        closePicker();
}

} // namespace condtree
