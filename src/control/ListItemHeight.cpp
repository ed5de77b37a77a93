// The one operation of CDPIHelper that knows widgets, which its own folder does not.
#include <condtree/control/RowHeightDelegate.h>
#include <condtree/presentation/CDPIHelper.h>

#include <QComboBox>
#include <QListView>

#include <algorithm>

namespace condtree {

namespace {

constexpr qsizetype kLongestClassName = 255;

void setRowHeight(QAbstractItemView& view, int height)
{
    auto* delegate = qobject_cast<RowHeightDelegate*>(view.itemDelegate());
    if (delegate == nullptr) {
        // The view's own delegate still draws and edits: a host may have chosen it.
        delegate = new RowHeightDelegate(view.itemDelegate(), &view);
        view.setItemDelegate(delegate);
    }
    delegate->setHeight(height);
}

} // namespace

void CDPIHelper::adjustListBoxAndComboBoxItemHeight(QWidget* window) const
{
    if (window == nullptr)
        return;
    const QLatin1String name(window->metaObject()->className());
    const QLatin1String read = name.left(std::min(name.size(), kLongestClassName));
    auto* combo = qobject_cast<QComboBox*>(window);
    auto* list = qobject_cast<QListView*>(window);
    if (read.contains(QLatin1String("Combo")) && combo != nullptr)
        setRowHeight(*combo->view(), getListAndComboBoxItemHeight());
    else if (read.contains(QLatin1String("List")) && list != nullptr)
        setRowHeight(*list, getListAndComboBoxItemHeight());
}

} // namespace condtree
