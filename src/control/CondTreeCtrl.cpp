#include "CondTreeCtrl.h"

#include <condtree/control/ChildRefConditions.h>
#include <condtree/control/CondTreeParts.h>
#include <condtree/control/ViewState.h>
#include <condtree/editing/NodeChange.h>
#include <condtree/platform/NativeText.h>
#include <condtree/presentation/CustomDraw.h>
#include <condtree/values/CommandCatalogue.h>
#include <condtree/values/DefaultValue.h>
#include <condtree/values/OperatorRules.h>
#include <condtree/values/TypedValue.h>

#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QPointer>

#include <optional>
#include <utility>

namespace condtree {

namespace {

// One column as wide as the viewport: the rows are divided by the control itself.
void makeOneColumn(QHeaderView& header)
{
    header.hide();
    header.setMinimumSectionSize(0);
    header.setStretchLastSection(true);
}

// Left to right whatever the desktop: the columns are laid out from the left edge.
void setUpView(QTreeView& view)
{
    makeOneColumn(*view.header());
    view.setLayoutDirection(Qt::LeftToRight);
    view.setUniformRowHeights(true);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.setMouseTracking(true); // movements without a button are movements too
    // Not every style asks for it, and without it no row is painted anew when the pointer moves.
    view.viewport()->setAttribute(Qt::WA_Hover);
}

NMTVCUSTOMDRAW notification(const QWidget* from, QPainter* painter, const QRect& rect,
                            HTREEITEM item)
{
    return {{const_cast<QWidget*>(from), 0, NM_CUSTOMDRAW},
            0,
            painter,
            {rect.left(), rect.top(), rect.right() + 1, rect.bottom() + 1},
            item};
}

} // namespace

// Operations that may show a message hold on to the parts: the host may delete the control
// meanwhile.

CondTreeCtrl::CondTreeCtrl(QWidget* parent, Services services)
    : QTreeView(parent)
    , m_parts(std::make_shared<CondTreeParts>(*this, std::move(services)))
{
    setUpView(*this);
    followDesktop();
    setItemDelegate(&m_parts->delegate);
    setModel(&m_parts->model);
    connectModel();
    connectEditors();
}

// The tree goes now, also when an operation that shows a message still holds the parts: it sees
// that it was overtaken.
CondTreeCtrl::~CondTreeCtrl()
{
    m_parts->dragging.shutDown();
    m_parts->cells.shutDown();
    m_parts->model.remove(TVI_ROOT);
}

void CondTreeCtrl::mvInitialize(SpMgr* manager, LONG dateStyle, KiroVaultType vaultType,
                                TreeType treeType)
{
    m_parts->setUp(manager, dateStyle, vaultType, treeType);
    setIconSize(m_parts->appendImages());
    // Pictures may have come without another size.
    scheduleDelayedItemsLayout();
    viewport()->update();
}

void CondTreeCtrl::mvSetTransitionType(LONG transitionType)
{
    m_parts->settings.transitionType = transitionType;
}

void CondTreeCtrl::mvSetStateIdNodeNameMap(const std::map<LONG, CString>& names)
{
    m_parts->reference.states.setNames(names);
}

LONG CondTreeCtrl::miGetDateFmt() const
{
    return m_parts->settings.dateStyle;
}

KiroVaultType CondTreeCtrl::meGetVaultType() const
{
    return m_parts->settings.vaultType;
}

void CondTreeCtrl::mvLoad(const std::vector<TransCond>& records, VarTreeCtrlNode* node)
{
    const auto parts = m_parts;
    const ViewState state(*this, parts->model);
    parts->loader.load(records, node);
    state.restore();
}

void CondTreeCtrl::mvSave(std::vector<TransCond>& records, VarTreeCtrlNode* node,
                          bool alterArguments)
{
    const auto parts = m_parts;
    parts->saver.save(records, node, alterArguments);
}

HTREEITEM CondTreeCtrl::mhAddNode(VarTreeCtrlNode* parent, VarTreeCtrlNode* node, bool insertFirst)
{
    return m_parts->model.attach(parent, node, insertFirst);
}

void CondTreeCtrl::mvDeleteNode(HTREEITEM item)
{
    const auto parts = m_parts;
    parts->model.remove(item);
}

VarTreeCtrlNode* CondTreeCtrl::mpoGetNode(HTREEITEM item) const
{
    return m_parts->model.node(item);
}

bool CondTreeCtrl::mbHaveChildRefConditions(VarTreeCtrlNode* node)
{
    return hasChildRefConditions(node == nullptr ? m_parts->model.top() : node);
}

void CondTreeCtrl::mvRemoveChildRefConditions(VarTreeCtrlNode* node)
{
    const auto parts = m_parts;
    const ViewState state(*this, parts->model);
    removeChildRefConditions(parts->model, node == nullptr ? parts->model.top() : node);
    state.restore();
}

int CondTreeCtrl::miGetColumnSize(int column, int totalWidth) const
{
    return m_parts->columns.width(column, totalWidth);
}

void CondTreeCtrl::mvResizeCol(int column, int newWidth, int totalWidth)
{
    ColumnShares columns = m_parts->columns;
    columns.resize(column, newWidth, totalWidth);
    setColumns(columns);
}

std::array<double, 3> CondTreeCtrl::columnShares() const
{
    return m_parts->columns.shares();
}

bool CondTreeCtrl::setColumnShares(const std::array<double, 3>& shares)
{
    const std::optional<ColumnShares> usable = usableShares(shares);
    if (usable)
        setColumns(*usable);
    return usable.has_value();
}

CString CondTreeCtrl::moGetNameForUserId(LONG id)
{
    const auto parts = m_parts;
    return parts->reference.users.nameOf(id, parts->settings.shownUserName());
}

CString CondTreeCtrl::moGetNameForGroupId(LONG id)
{
    const auto parts = m_parts;
    return parts->reference.groups.nameOf(id, ShownName::First);
}

bool CondTreeCtrl::mbInitVars()
{
    const auto parts = m_parts;
    return parts->reference.variables.mbInitVars();
}

bool CondTreeCtrl::mbInitWorkflowStates()
{
    return m_parts->reference.states.mbInitWorkflowStates();
}

bool CondTreeCtrl::mbInitUsers()
{
    const auto parts = m_parts;
    return parts->reference.users.init();
}

bool CondTreeCtrl::mbInitGroups()
{
    const auto parts = m_parts;
    return parts->reference.groups.init();
}

bool CondTreeCtrl::mbInitSettings()
{
    return m_parts->settings.mbInitSettings();
}

bool CondTreeCtrl::mbChildRefStateEnabled()
{
    return m_parts->settings.mbChildRefStateEnabled();
}

LONG CondTreeCtrl::mlGetIDForUserName(CString name)
{
    return m_parts->reference.users.idOf(name, m_parts->settings.shownUserName());
}

LONG CondTreeCtrl::mlGetIDForGroupName(CString name)
{
    return m_parts->reference.groups.idOf(name, ShownName::First);
}

CString CondTreeCtrl::moGetWorkflowAndStateName(const TransCond& record)
{
    return m_parts->reference.states.nameOf(leadingNumber(record.oValue.str()));
}

ComboCmd CondTreeCtrl::meParseString(CString& text)
{
    return parseString(text);
}

ComboCmd CondTreeCtrl::meParseNumber(CString& text)
{
    return parseNumber(text);
}

ComboCmd CondTreeCtrl::meParseDate(CString& text)
{
    return parseDate(text);
}

ComboCmd CondTreeCtrl::meGetCompareType(CString& text, ArgType type, ComboCmd current)
{
    return compareType(text, type, current);
}

void CondTreeCtrl::mvAlterArgument(CString& text, ComboCmd op)
{
    alterArgument(text, op);
}

ComboCmd CondTreeCtrl::meGetDefaultOp(VariableType type)
{
    return defaultOperator(type);
}

ComboCmd CondTreeCtrl::meGetDefaultOp(const CString& variable)
{
    const auto parts = m_parts;
    return parts->reference.variables.meGetDefaultOp(variable);
}

ArgType CondTreeCtrl::meGetArgumentType(const CString& variable)
{
    const auto parts = m_parts;
    return parts->reference.variables.meGetArgumentType(variable);
}

ComboCmd CondTreeCtrl::meVerifyDefaultOp(ComboCmd op, const CString&)
{
    return op;
}

bool CondTreeCtrl::mbResetComparisonOperator(ArgType type, ComboCmd op)
{
    return mustResetOperator(type, op);
}

void CondTreeCtrl::mvSetDefaultSearchVal(VarTreeCtrlNode& node)
{
    const auto parts = m_parts;
    const auto style = static_cast<std::uint32_t>(parts->settings.dateStyle);
    const HTREEITEM item = node.mhItem;
    const bool isRow = parts->model.node(item) == &node;
    const SYSTEMTIME now = parts->services.localTime();
    // The clock is the host's, who may have deleted the row meanwhile.
    if (isRow && parts->model.node(item) != &node)
        return;
    if (const auto value = defaultSearchValue(node.mlOperator, now, style)) {
        node.mValue = *value;
        parts->model.tellTextsChanged();
    }
}

void CondTreeCtrl::mvUpdateTypeName(VarTreeCtrlNode& node)
{
    const auto parts = m_parts;
    parts->model.updateTypeName(node);
    parts->model.tellTextsChanged();
}

int CondTreeCtrl::miGetImage(ComboCmd nodeCode)
{
    return rowImageIndex(nodeCode);
}

int CondTreeCtrl::miGetColumn(POINT point, HTREEITEM item, RECT& cell)
{
    return m_parts->cells.columnAt(point, item, cell);
}

void CondTreeCtrl::mvAddComboCmd(ComboCmd command, const CString& text, int image, int position)
{
    const auto parts = m_parts;
    parts->cells.lists().session().add(command, text, image, position);
}

void CondTreeCtrl::mvClearCombo()
{
    m_parts->cells.lists().clear();
}

void CondTreeCtrl::mvChangeNodeType(VarTreeCtrlNode& node, ComboCmd command)
{
    const auto parts = m_parts;
    if (changeNodeType(node, command, parts->tree, parts->services.string))
        parts->tree.invalidate();
}

void CondTreeCtrl::mvOnClickValue(VarTreeCtrlNode& node, int, RECT cell)
{
    const auto parts = m_parts;
    parts->cells.clickValue(node, cell);
}

void CondTreeCtrl::OnNMCustomdraw(NMHDR* header, LRESULT* result)
{
    const auto& draw = *reinterpret_cast<const NMTVCUSTOMDRAW*>(header);
    *result = m_parts->drawing.handle(draw, *this);
}

int CondTreeCtrl::miGetColorResolution()
{
    return colourResolution(m_parts->services.bitsPerPixel());
}

std::function<LRESULT(NMTVCUSTOMDRAW&)> CondTreeCtrl::stage()
{
    return [this](NMTVCUSTOMDRAW& draw) {
        LRESULT answer = CDRF_DODEFAULT;
        OnNMCustomdraw(&draw.hdr, &answer);
        return answer;
    };
}

void CondTreeCtrl::paintEvent(QPaintEvent* event)
{
    m_parts->drawing.begin(notification(this, nullptr, viewport()->rect(), nullptr), stage(),
                           *this);
    QTreeView::paintEvent(event);
}

void CondTreeCtrl::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const
{
    const auto stage =
        const_cast<CondTreeCtrl*>(this)->stage(); // a subclass's handler may change things
    NMTVCUSTOMDRAW draw = notification(this, painter, option.rect, m_parts->model.itemOf(index));
    const bool isTold = m_parts->drawing.beginRow(draw, stage);
    QTreeView::drawRow(painter, RowDrawing::plain(option), index);
    m_parts->drawing.endRow(draw, stage, isTold, *this);
}

void CondTreeCtrl::changeEvent(QEvent* event)
{
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        followDesktop();
}

void CondTreeCtrl::followDesktop()
{
    if (const auto palette = m_parts->palette.follow(QApplication::palette(this)))
        setPalette(*palette);
}

// The signal comes last: the host may delete the control in it.
void CondTreeCtrl::setColumns(const ColumnShares& columns)
{
    const auto parts = m_parts;
    const QPointer<CondTreeCtrl> self(this);
    if (std::exchange(parts->columns, columns) == columns)
        return;
    viewport()->update();
    parts->cells.rowsMove();
    if (!self.isNull())
        Q_EMIT columnsResized();
}

} // namespace condtree
