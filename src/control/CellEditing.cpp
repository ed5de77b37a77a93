#include "CellEditing.h"

#include <condtree/control/ConditionModel.h>
#include <condtree/control/TreeGeometry.h>
#include <condtree/editing/NodeWatch.h>
#include <condtree/editing/ValueLists.h>
#include <condtree/platform/StoredProcs.h>
#include <condtree/presentation/CDPIHelper.h>
#include <condtree/refdata/ControlSettings.h>
#include <condtree/refdata/ErrorText.h>
#include <condtree/refdata/ManagerRef.h>
#include <condtree/refdata/OutOfMemory.h>
#include <condtree/refdata/ReferenceData.h>

#include <QKeyEvent>
#include <QScrollBar>

#include <utility>
#include <variant>

namespace condtree {

namespace {

constexpr int kValueColumn = 2;

// Not a blank, which selects.
bool typesCharacter(const QKeyEvent& key)
{
    constexpr auto kCommands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const QList<uint> typed = key.text().toUcs4();
    return !typed.isEmpty() && QChar::isPrint(typed.front()) && !QChar::isSpace(typed.front())
           && (key.modifiers() & kCommands) == 0;
}

// Opens the groups around a row and scrolls by as little as is needed for it to be seen. Not by
// scrollTo(), which goes on with the view when a host that hears of the scrolling has taken it
// away.
void showRow(QTreeView& view, const QModelIndex& index)
{
    for (QModelIndex around = index.parent(); around.isValid(); around = around.parent()) {
        if (!view.isExpanded(around))
            view.expand(around);
    }
    const QRect row = view.visualRect(index);
    const QRect room = view.viewport()->rect();
    QScrollBar& bar = *view.verticalScrollBar();
    const bool isAbove = row.top() < room.top();
    if (!row.isValid() || (!isAbove && row.bottom() <= room.bottom()))
        return;
    const int missing = isAbove ? room.top() - row.top() : row.bottom() - room.bottom();
    const int unit =
        view.verticalScrollMode() == QAbstractItemView::ScrollPerItem ? row.height() : 1;
    const int steps = (missing + unit - 1) / unit;
    bar.setValue(bar.value() + (isAbove ? -steps : steps));
}

} // namespace

CellEditing::CellEditing(const CellEditingNeeds& needs)
    : m_view(&needs.view)
    , m_needs(needs)
    , m_lists(needs.view, needs.services, needs.settings, needs.reference, needs.images, needs.tree)
    , m_inPlace(needs.view, needs.services, needs.settings, needs.tree)
{
}

std::optional<RowLayout> CellEditing::layoutOf(HTREEITEM item) const
{
    const std::optional<RowPlace> place =
        m_view.isNull() ? std::nullopt : placeOfRow(*m_view, m_needs.model.indexOf(item));
    if (!place)
        return std::nullopt;
    return RowLayout(place->row, place->textLeft, m_needs.columns,
                     m_needs.services.systemMetric(SM_CXSMICON));
}

int CellEditing::columnAt(POINT point, HTREEITEM item, RECT& cell) const
{
    const std::optional<RowLayout> layout = layoutOf(item);
    const int column = layout ? layout->columnOfPoint(point) : -1;
    cell = layout ? layout->cellToEdit(column) : RECT{};
    return column;
}

void CellEditing::click(POINT onScreen)
{
    m_lists.settle(); // for the row that was clicked before
    m_lists.begin();
    if (m_view.isNull())
        return;
    const QPoint at = m_view->viewport()->mapFromGlobal(QPoint(onScreen.x, onScreen.y));
    const POINT point{at.x(), at.y()};
    const TreeHit hit = hitTest(*m_view, m_needs.model, point);
    VarTreeCtrlNode* node = m_needs.model.node(hit.item);
    RECT cell{};
    const int column = node == nullptr ? -1 : columnAt(point, hit.item, cell);
    if (m_needs.model.node(hit.item) != node) // metrics are the host's
        return;
    const ClickAction action = decideClick(hit.flags, node, m_needs.model.top(), column);
    if (std::holds_alternative<IgnoreClick>(action))
        return;
    m_lists.setClicked(hit.item);
    rememberPlace(hit.item);
    // An editor that is still open commits into the column that it was opened for.
    if (!std::holds_alternative<OpenNothing>(action))
        m_inPlace.finish();
    if (m_needs.model.node(hit.item) == node)
        std::visit([&](const auto& what) { perform(what, *node, cell); }, action);
}

void CellEditing::perform(const IgnoreClick&, VarTreeCtrlNode&, const RECT&) {}

void CellEditing::perform(const OpenNothing&, VarTreeCtrlNode&, const RECT&) {}

RECT CellEditing::comboCellOf(const RECT& cell, int column) const
{
    CDPIHelper::get(); // the first one of the process makes it
    return comboCell(cell, column, m_needs.services.systemMetric(SM_CXSMICON));
}

void CellEditing::perform(const OpenKindList&, VarTreeCtrlNode&, const RECT& cell)
{
    m_lists.openKinds(comboCellOf(cell, 0));
}

void CellEditing::perform(const OpenOperatorList&, VarTreeCtrlNode&, const RECT& cell)
{
    m_lists.openOperators(comboCellOf(cell, 1));
}

void CellEditing::perform(const OpenValueEditor&, VarTreeCtrlNode& node, const RECT& cell)
{
    node.mlEditColumn = EditColumnValue;
    clickValue(node, cell);
}

void CellEditing::perform(const OpenExtraEditor&, VarTreeCtrlNode& node, const RECT& cell)
{
    node.mlEditColumn = EditColumnExtra;
    m_lists.dismiss();
    m_inPlace.edit(node, cell, node.mExtra);
}

void CellEditing::perform(const CloseExtraEditor&, VarTreeCtrlNode& node, const RECT&)
{
    node.mlEditColumn = EditColumnExtra;
}

ValueEditorChoice CellEditing::valueEditorOf(const VarTreeCtrlNode& node) const
{
    return chooseValueEditor(node.mlCode, node.mlOperator, m_needs.settings.vaultType,
                             m_needs.manager.get() != nullptr);
}

void CellEditing::clickValue(VarTreeCtrlNode& node, const RECT& cell)
{
    const NodeWatch watch(m_needs.tree, node);
    m_lists.settle(); // for the row that was clicked before
    m_inPlace.finish();
    if (m_view.isNull() || !watch.isThere())
        return;
    rememberPlace(node.mhItem);
    const ValueEditorChoice choice = valueEditorOf(node);
    if (const auto* list = std::get_if<OpenValueList>(&choice)) {
        openValueList(*list, cell);
    } else if (std::holds_alternative<OpenDatePicker>(choice)) {
        m_lists.dismiss();
        m_inPlace.pick(node, cell);
    } else if (std::holds_alternative<OpenInPlaceEditor>(choice)) {
        m_lists.dismiss();
        editValue(node, cell);
    }
}

void CellEditing::editValue(VarTreeCtrlNode& node, const RECT& cell)
{
    node.mlEditColumn = EditColumnValue;
    m_inPlace.edit(node, cell, node.mValue);
}

bool CellEditing::typeDate(const QKeyEvent& key)
{
    // What comes from a child was typed into another widget.
    if (m_view.isNull() || !m_view->hasFocus())
        return false;
    if (m_inPlace.isEditing()) { // it has not got the focus yet, and is meant all the same
        m_inPlace.type(key);
        return true;
    }
    if (!typesCharacter(key))
        return false;
    const QModelIndex current = m_view->currentIndex();
    const HTREEITEM item = m_needs.model.itemOf(current);
    const VarTreeCtrlNode* typedOn = m_needs.model.node(item);
    if (typedOn == nullptr || !std::holds_alternative<OpenDatePicker>(valueEditorOf(*typedOn)))
        return false;
    m_lists.settle();
    if (!m_view.isNull())
        showRow(*m_view, m_needs.model.indexOf(item));
    m_lists.dismiss();
    // All of that lets the host in.
    const std::optional<RowLayout> layout = layoutOf(item);
    VarTreeCtrlNode* node = m_needs.model.node(item);
    if (!layout || node == nullptr)
        return true;
    editValue(*node, layout->cellToEdit(kValueColumn));
    m_inPlace.type(key);
    return true;
}

void CellEditing::openValueList(const OpenValueList& list, RECT cell)
{
    cell.bottom += list.lowered;
    if (list.list == ValueList::DocumentTypes) {
        openDocumentTypes(cell);
        return;
    }
    const HTREEITEM item = m_lists.clicked();
    const SharedChoices values = valuesOf(list.list);
    // A message about a list lets the host in, who may have taken the row away.
    if (values != nullptr && m_lists.clicked() == item)
        m_lists.openValues(cell, values);
}

/// Null when a list cannot be loaded.
SharedChoices CellEditing::valuesOf(ValueList list)
{
    const auto made = [](ChoiceEntries entries) {
        return std::make_shared<const ChoiceEntries>(std::move(entries));
    };
    ReferenceData& lists = m_needs.reference;
    switch (list) {
    case ValueList::ObjectTypes:
        return made(objectTypeChoices(m_needs.settings.vaultType, m_needs.services.string));
    case ValueList::YesNo:
        return made(yesNoChoices(m_needs.services.string));
    case ValueList::Users:
        return lists.users.init()
                   ? m_lists.cache().users(lists.users.list(), m_needs.settings.shownUserName())
                   : nullptr;
    case ValueList::Groups:
        return lists.groups.init() ? m_lists.cache().groups(lists.groups.list()) : nullptr;
    case ValueList::States:
        return lists.states.mbInitWorkflowStates() ? stateValues() : nullptr;
    case ValueList::NoUsers:
    case ValueList::NoGroups:
    case ValueList::DocumentTypes:
        break;
    }
    return made({});
}

/// Null when the memory does not suffice, which is told.
SharedChoices CellEditing::stateValues()
{
    try {
        return raisingOutOfMemory([&] {
            return m_lists.cache().states(m_needs.reference.states, m_needs.services.string);
        });
    } catch (const _com_error& error) {
        m_needs.report(error.Error(), MB_ICONERROR);
        return nullptr;
    }
}

// A failure is told before the list opens, which then has no entries.
void CellEditing::openDocumentTypes(const RECT& cell)
{
    const HTREEITEM item = m_lists.clicked();
    auto entries = std::make_shared<ChoiceEntries>();
    const HRESULT code = fetchDocumentTypes(*entries);
    if (FAILED(code))
        m_needs.report(code, MB_ICONERROR);
    if (m_lists.clicked() == item)
        m_lists.openValues(cell, entries);
}

HRESULT CellEditing::fetchDocumentTypes(ChoiceEntries& entries) const
{
    auto* procedure = m_needs.manager.proc<SpDocType>(SPID_DOC_TYPE);
    if (procedure == nullptr)
        return S_OK;
    try {
        AutoLst<Lst<SpDocType::DocType*>> types;
        return raisingOutOfMemory([&] {
            const HRESULT code = procedure->mhGetDocTypes(types);
            if (SUCCEEDED(code))
                entries = docTypeChoices(types);
            return code;
        });
    } catch (const _com_error& error) {
        return error.Error();
    }
}

void CellEditing::rowsMove()
{
    m_lists.close();
    m_inPlace.finishMeanwhile();
    m_inPlace.closePicker();
}

std::optional<LONG> CellEditing::topOf(HTREEITEM item) const
{
    const std::optional<RowPlace> place =
        m_view.isNull() ? std::nullopt : placeOfRow(*m_view, m_needs.model.indexOf(item));
    return place ? std::optional(place->row.top) : std::nullopt;
}

void CellEditing::rememberPlace(HTREEITEM item)
{
    m_openFor = item;
    m_openAt = topOf(item);
}

void CellEditing::rowsAboutToShift()
{
    m_inPlace.finishMeanwhile();
}

// Where rows are is asked for only while something is open: it has the view lay them out.
void CellEditing::rowsShift()
{
    m_inPlace.finishMeanwhile();
    m_lists.forgetDeadRows();
    m_inPlace.forgetDeadRows();
    if ((!m_lists.isOpen() && !m_inPlace.isPicking()) || topOf(m_openFor) == m_openAt)
        return;
    m_lists.dismiss();
    m_inPlace.closePicker();
}

void CellEditing::shutDown()
{
    m_inPlace.shutDown();
    m_lists.shutDown();
    m_view.clear();
}

} // namespace condtree
