#include "RowHeightDelegate.h"

#include <QSize>
#include <QStyleOptionViewItem>

namespace condtree {

RowHeightDelegate::RowHeightDelegate(QAbstractItemDelegate* inner, QObject* parent)
    : QAbstractItemDelegate(parent)
    , m_inner(inner)
{
    connect(inner, &QAbstractItemDelegate::commitData, this, &QAbstractItemDelegate::commitData);
    connect(inner, &QAbstractItemDelegate::closeEditor, this, &QAbstractItemDelegate::closeEditor);
    connect(inner, &QAbstractItemDelegate::sizeHintChanged, this,
            &QAbstractItemDelegate::sizeHintChanged);
}

void RowHeightDelegate::setHeight(int height)
{
    m_height = height;
    Q_EMIT sizeHintChanged({});
}

void RowHeightDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const
{
    if (m_inner != nullptr)
        m_inner->paint(painter, option, index);
}

QSize RowHeightDelegate::sizeHint(const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const
{
    const int width = m_inner == nullptr ? 0 : m_inner->sizeHint(option, index).width();
    return {width, m_height};
}

QWidget* RowHeightDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                         const QModelIndex& index) const
{
    return m_inner == nullptr ? nullptr : m_inner->createEditor(parent, option, index);
}

void RowHeightDelegate::destroyEditor(QWidget* editor, const QModelIndex& index) const
{
    if (m_inner != nullptr)
        m_inner->destroyEditor(editor, index);
    else
        QAbstractItemDelegate::destroyEditor(editor, index);
}

void RowHeightDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (m_inner != nullptr)
        m_inner->setEditorData(editor, index);
}

void RowHeightDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                     const QModelIndex& index) const
{
    if (m_inner != nullptr)
        m_inner->setModelData(editor, model, index);
}

void RowHeightDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                             const QModelIndex& index) const
{
    if (m_inner != nullptr)
        m_inner->updateEditorGeometry(editor, option, index);
}

bool RowHeightDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                    const QStyleOptionViewItem& option, const QModelIndex& index)
{
    return m_inner != nullptr && m_inner->editorEvent(event, model, option, index);
}

bool RowHeightDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                  const QStyleOptionViewItem& option, const QModelIndex& index)
{
    return m_inner != nullptr && m_inner->helpEvent(event, view, option, index);
}

bool RowHeightDelegate::eventFilter(QObject* object, QEvent* event)
{
    return m_inner != nullptr && m_inner->eventFilter(object, event);
}

} // namespace condtree
