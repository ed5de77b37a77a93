#include "TransitionList.h"

#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QTreeWidgetItemIterator>

namespace condtree::workbench {

namespace {

enum Column { NameColumn, CountColumn };
constexpr int kIdRole = Qt::UserRole;

/// Gives the rows air to be read and hit in.
class AiryRows final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const int air = option.fontMetrics.height() / 2;
        return QStyledItemDelegate::sizeHint(option, index) + QSize(air, air);
    }
};

} // namespace

TransitionList::TransitionList(QWidget* parent)
    : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("transitions"));
    //: What the list is to those who hear the window
    setAccessibleName(tr("Workflows and their transitions"));
    setColumnCount(2);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setItemDelegate(new AiryRows(this));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setExpandsOnDoubleClick(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    header()->setSectionResizeMode(CountColumn, QHeaderView::ResizeToContents);
    connect(this, &QTreeWidget::itemSelectionChanged, this, &TransitionList::tellSelection);
}

void TransitionList::setTransitions(const std::vector<SpTransition>& transitions)
{
    const QSignalBlocker quiet(this);
    const QList<QTreeWidgetItem*> selected = selectedItems();
    const auto chosen =
        selected.isEmpty()
            ? std::nullopt
            : std::optional<LONG>(selected.first()->data(NameColumn, kIdRole).toInt());
    const int scrolled = verticalScrollBar()->value();
    m_transitions = transitions;
    m_places.clear();
    clear();
    QTreeWidgetItem* workflow = nullptr;
    for (std::size_t i = 0; i < m_transitions.size(); ++i) {
        const SpTransition& transition = m_transitions[i];
        if (workflow == nullptr || workflow->text(NameColumn) != transition.workflow.str()) {
            workflow = new QTreeWidgetItem(this, {transition.workflow.str()});
            workflow->setFlags(Qt::ItemIsEnabled);
            // The second column may be wide in other languages; a workflow has nothing in it.
            workflow->setFirstColumnSpanned(true);
            workflow->setToolTip(NameColumn, transition.workflow.str().toHtmlEscaped());
            QFont bold = font();
            bold.setBold(true);
            workflow->setFont(NameColumn, bold);
        }
        auto* item = new QTreeWidgetItem(workflow);
        fillItem(*item, transition);
        if (!m_places.contains(transition.id))
            m_places.insert(transition.id, {item, i});
    }
    expandAll();
    select(chosen);
    verticalScrollBar()->setValue(scrolled);
}

void TransitionList::select(std::optional<LONG> id)
{
    const QSignalBlocker quiet(this);
    QTreeWidgetItem* item = id ? itemOf(*id) : nullptr;
    if (item == nullptr)
        clearSelection();
    else
        setCurrentItem(item);
    // With its signals blocked the model's selection has not reached the view.
    viewport()->update();
}

void TransitionList::setUnsaved(std::optional<LONG> id)
{
    const std::optional<LONG> before = std::exchange(m_unsaved, id);
    if (before == id)
        return;
    refill(before);
    refill(id);
}

QTreeWidgetItem* TransitionList::itemOf(LONG id) const
{
    const auto place = m_places.constFind(id);
    return place == m_places.cend() ? nullptr : place->item;
}

void TransitionList::changeEvent(QEvent* event)
{
    QTreeWidget::changeEvent(event);
    // The muted colour of the empty mark is the palette's.
    if (event->type() == QEvent::PaletteChange) {
        for (const Place& place : std::as_const(m_places))
            fillItem(*place.item, m_transitions[place.index]);
    }
}

void TransitionList::tellSelection()
{
    const QList<QTreeWidgetItem*> selected = selectedItems();
    if (!selected.isEmpty())
        Q_EMIT transitionChosen(selected.first()->data(NameColumn, kIdRole).toInt());
}

void TransitionList::refill(std::optional<LONG> id)
{
    const auto place = id ? m_places.constFind(*id) : m_places.cend();
    if (place != m_places.cend())
        fillItem(*place->item, m_transitions[place->index]);
}

void TransitionList::fillItem(QTreeWidgetItem& item, const SpTransition& transition) const
{
    const bool isUnsaved = m_unsaved == transition.id;
    const QString name = transition.name.str();
    item.setData(NameColumn, kIdRole, transition.id);
    // In front, where it is never elided.
    //: The mark in front of a transition whose condition has changes that are not saved
    item.setText(NameColumn, isUnsaved ? tr("* %1").arg(name) : name);
    item.setToolTip(NameColumn,
                    (isUnsaved ? tr("%1 (not saved)").arg(name) : name).toHtmlEscaped());
    const bool isEmpty = transition.records == 0;
    //: Stands in place of the number of rows of a condition; short, for a narrow column
    item.setText(CountColumn, isEmpty ? tr("empty") : QString::number(transition.records));
    item.setTextAlignment(CountColumn, Qt::AlignRight | Qt::AlignVCenter);
    item.setForeground(CountColumn, palette().brush(QPalette::PlaceholderText));
    QFont shown = font();
    shown.setItalic(isEmpty);
    item.setFont(CountColumn, shown);
    item.setToolTip(CountColumn, isEmpty ? tr("There is no condition yet")
                                         : tr("The condition has %n row(s) and group(s)", nullptr,
                                              transition.records));
}

} // namespace condtree::workbench
