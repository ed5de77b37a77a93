#include "CommandCombo.h"

#include <condtree/editing/ChoiceListView.h>
#include <condtree/editing/ChoiceModel.h>
#include <condtree/editing/ComboFace.h>
#include <condtree/platform/Services.h>
#include <condtree/presentation/ImgLst.h>

#include <QApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QLayout>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStyledItemDelegate>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace condtree {

namespace {

constexpr int kControlId = 900;
constexpr int kSpaceAroundRow = 6;
constexpr int kSpaceAroundPicture = 4;
// Wider than any screen; longer texts take long to shape.
constexpr qsizetype kMostDrawn = 1000;

QString drawnText(const QString& text)
{
    return text.left(kMostDrawn).replace(QLatin1Char('\n'), QLatin1Char(' '));
}

class Delegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    [[nodiscard]] QString displayText(const QVariant& value, const QLocale&) const override
    {
        return drawnText(value.toString());
    }
};

/// A line that can be seen on a light and on a dark ground; not every style draws one.
void frame(QFrame& popup, QPalette palette)
{
    const QColor text = palette.color(QPalette::Text);
    const QColor base = palette.color(QPalette::Base);
    palette.setColor(QPalette::WindowText,
                     QColor((text.red() + base.red()) / 2, (text.green() + base.green()) / 2,
                            (text.blue() + base.blue()) / 2));
    popup.setPalette(palette);
    popup.setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
    popup.setLineWidth(1);
}

bool isPopup(const QObject* object)
{
    return object->isWidgetType() && static_cast<const QWidget*>(object)->windowType() == Qt::Popup;
}

} // namespace

CommandCombo::CommandCombo(QWidget* parent, const RECT& cell,
                           const std::function<int(int)>& systemMetric)
    : QComboBox(parent)
    , m_model(new ChoiceModel(this))
    , m_view(new ChoiceListView)
    , m_arrowWidth(systemMetric(SM_CXVSCROLL))
    , m_margin(2 * systemMetric(SM_CXEDGE))
{
    hide();
    setObjectName(QString::number(kControlId));
    setProperty("controlId", kControlId);
    setFont(parent->font());
    setAccessibleName(parent->accessibleName());
    setFocusPolicy(Qt::ClickFocus);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setStyleSheet(QStringLiteral("QComboBox{combobox-popup:0}"));
    setModel(m_model);
    makeView();
    placeOver(cell);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &CommandCombo::closeIfFocusLeft,
            Qt::QueuedConnection);
}

// The popup goes with the combo, and nobody is told.
CommandCombo::~CommandCombo()
{
    m_isRetired = true;
    QComboBox::hidePopup();
}

void CommandCombo::makeView()
{
    setView(m_view);
    setItemDelegate(new Delegate(this));
    connect(m_view, &ChoiceListView::typed, this, &CommandCombo::type);
    connect(m_view, &ChoiceListView::backspacePressed, this, &CommandCombo::eraseTyped);
    connect(m_model, &ChoiceModel::rowsInserted, this, &CommandCombo::forgetKeys);
}

void CommandCombo::placeOver(const RECT& cell)
{
    const int rowHeight = std::max(fontMetrics().height() + kSpaceAroundRow,
                                   iconSize().height() + kSpaceAroundPicture);
    m_view->setRowHeight(rowHeight);
    setMaxVisibleItems(std::max((cell.bottom - cell.top) / rowHeight - 1, 1));
    setGeometry(cell.left, cell.top, cell.right - cell.left, rowHeight);
}

void CommandCombo::setImages(const ImgLst* images)
{
    m_model->setImages(images);
    if (images == nullptr)
        return;
    const RECT cell{x(), y(), x() + width(), y() + (maxVisibleItems() + 1) * m_view->rowHeight()};
    setIconSize(images->imageSize());
    placeOver(cell);
}

int CommandCombo::addEntry(ChoiceEntry entry, int position)
{
    const int before = selection();
    const int index = m_model->insert(std::move(entry), position);
    if (before < 0)
        setCurrentIndex(-1);
    return index;
}

void CommandCombo::addEntries(const ChoiceEntries& entries, int position)
{
    const int before = selection();
    m_model->insert(entries, position);
    if (before < 0)
        setCurrentIndex(-1);
}

void CommandCombo::setTail(SharedChoices tail, TailKeys keys)
{
    const int before = selection();
    m_model->setTail(std::move(tail));
    if (!m_model->tail()->empty())
        m_tailKeys = std::move(keys);
    if (before < 0)
        setCurrentIndex(-1);
}

int CommandCombo::entryCount() const
{
    return m_model->count();
}

const ChoiceEntry& CommandCombo::entry(int index) const
{
    return m_model->entry(index);
}

void CommandCombo::select(int index)
{
    setCurrentIndex(index < entryCount() ? std::max(index, -1) : -1);
    if (m_isDropped)
        showSearch(selection());
}

// The toolkit's frame around the view.
QFrame& CommandCombo::popup() const
{
    return static_cast<QFrame&>(*m_view->window());
}

void CommandCombo::dropDown()
{
    show();
    showPopup();
}

void CommandCombo::showPopup()
{
    if (m_isDropped || m_isRetired)
        return;
    frame(popup(), palette());
    const int edges = 2 * popup().frameWidth();
    const int widest = screen()->availableGeometry().width();
    m_view->setMinimumWidth(std::clamp(std::max(m_droppedWidth, width()), edges, widest) - edges);
    m_view->selectionModel()->clear();
    m_sinceTyped.invalidate();
    m_isDropped = true;
    qApp->installEventFilter(this);
    if (entryCount() > 0)
        QComboBox::showPopup();
    else
        showEmptyPopup();
    update();
}

void CommandCombo::showEmptyPopup()
{
    QFrame& box = popup();
    const int height = m_view->rowHeight() + 2 * box.frameWidth();
    const QRect room = screen()->availableGeometry();
    const QPoint below = mapToGlobal(rect().bottomLeft());
    const bool fits = below.y() + height <= room.bottom() + 1;
    box.layout()->activate();
    box.setGeometry(QRect(fits ? below : mapToGlobal(QPoint(0, 1 - height)),
                          QSize(std::max(width(), box.minimumWidth()), height)));
    box.show();
    m_view->setFocus();
}

void CommandCombo::hidePopup()
{
    QComboBox::hidePopup();
}

void CommandCombo::closeList()
{
    hidePopup();
}

void CommandCombo::retire()
{
    m_isRetired = true;
    hidePopup();
    hide();
    setObjectName(QString());
    setProperty("controlId", QVariant());
    deleteLater();
}

// The chosen entry becomes current only after the popup was hidden, so the news waits for that.
void CommandCombo::popupHidden()
{
    if (!m_isDropped)
        return;
    m_isDropped = false;
    qApp->removeEventFilter(this);
    m_search.clear();
    m_view->setShownRows({});
    update();
    m_isUntold = true;
    QMetaObject::invokeMethod(this, &CommandCombo::tellClosed, Qt::QueuedConnection);
}

void CommandCombo::tellClosed()
{
    if (std::exchange(m_isUntold, false) && !m_isRetired)
        Q_EMIT closedUp();
}

void CommandCombo::closeIfFocusLeft()
{
    const QWindow* focused = QGuiApplication::focusWindow();
    if (m_isDropped && focused != popup().windowHandle() && focused != window()->windowHandle())
        closeList();
}

// Installed on the application while the list is open: there it comes before the list's own
// filters, and sees other popups.
bool CommandCombo::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &popup()) {
        if (event->type() == QEvent::Hide)
            popupHidden();
        else if (event->type() == QEvent::Wheel) // turned beside the list
            forward(event);
        return false;
    }
    if (watched == m_view->viewport())
        return isLostOnList(*event);
    if (watched == m_view && closesEmptyHanded(*event)) {
        closeList();
        return true;
    }
    if (event->type() == QEvent::Show && isPopup(watched))
        closeList();
    return false;
}

// The toolkit chooses the current entry wherever on the list a button is released.
bool CommandCombo::isLostOnList(QEvent& event) const
{
    const auto type = event.type();
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonRelease)
        return false;
    return !m_view->indexAt(static_cast<QMouseEvent&>(event).position().toPoint()).isValid();
}

// Return without a current entry, which the toolkit ignores. What was typed in vain stays to be
// corrected.
bool CommandCombo::closesEmptyHanded(QEvent& event) const
{
    if (event.type() != QEvent::ShortcutOverride && event.type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<QKeyEvent&>(event).key();
    return (key == Qt::Key_Return || key == Qt::Key_Enter) && !m_view->currentIndex().isValid()
           && m_search.text().isEmpty();
}

void CommandCombo::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const int now = selection();
    ComboFace face;
    face.palette = palette();
    face.icon = now < 0 ? QIcon() : itemIcon(now);
    face.iconSize = iconSize();
    face.text = now < 0 ? QString() : drawnText(entry(now).text);
    face.searched = m_search.text();
    face.isOpen = m_isDropped;
    face.arrowWidth = m_arrowWidth;
    face.margin = m_margin;
    face.paint(painter, rect());
}

// Keys that open the list; no key changes the closed box.
void CommandCombo::keyPressEvent(QKeyEvent* event)
{
    const bool opens = event->key() == Qt::Key_F4 || event->key() == Qt::Key_Space
                       || (event->key() == Qt::Key_Down && (event->modifiers() & Qt::AltModifier));
    if (m_isDropped)
        passKey(*event);
    else if (opens)
        showPopup();
    else
        event->ignore();
}

void CommandCombo::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

// As a key comes to the list: first asked whether it is a shortcut there.
void CommandCombo::passKey(const QKeyEvent& event)
{
    for (const auto type : {QEvent::ShortcutOverride, QEvent::KeyPress}) {
        QKeyEvent key(type, event.key(), event.modifiers(), event.text(), event.isAutoRepeat(),
                      static_cast<quint16>(event.count()));
        if (m_isDropped)
            QCoreApplication::sendEvent(m_view, &key);
    }
}

void CommandCombo::forward(QEvent* event, const QObject* receiver)
{
    const bool isOwn = receiver == m_view || receiver == m_view->viewport() || receiver == &popup()
                       || receiver == popup().windowHandle();
    if (!m_isDropped || m_isForwarding || isOwn)
        return;
    const QScopedValueRollback guard(m_isForwarding, true);
    if (event->type() == QEvent::KeyPress)
        m_view->takeText(static_cast<const QKeyEvent&>(*event));
    else if (event->type() == QEvent::Wheel)
        m_view->takeWheel(static_cast<const QWheelEvent&>(*event));
}

// The list has changed: what was typed found something else in it.
void CommandCombo::forgetKeys()
{
    m_ownKeys.reset();
    m_tailKeys.reset();
    m_search.clear();
    m_view->setShownRows({});
}

ListKeys CommandCombo::keys()
{
    if (!m_ownKeys)
        m_ownKeys.emplace(m_model->own());
    if (m_tailKeys == nullptr)
        m_tailKeys = std::make_shared<std::optional<ChoiceKeys>>();
    if (!*m_tailKeys)
        m_tailKeys->emplace(*m_model->tail());
    return {&*m_ownKeys, &**m_tailKeys};
}

void CommandCombo::type(const QString& text)
{
    const bool afterPause =
        !m_sinceTyped.isValid() || m_sinceTyped.elapsed() >= QApplication::keyboardInputInterval();
    m_sinceTyped.start();
    showSearch(m_search.type(text, afterPause, m_view->currentIndex().row(), keys()));
}

void CommandCombo::eraseTyped()
{
    m_sinceTyped.start();
    showSearch(m_search.eraseLast(m_view->currentIndex().row(), keys()));
}

void CommandCombo::showSearch(int current)
{
    m_view->setShownRows(m_search.shown());
    m_view->setAccessibleDescription(m_search.text());
    if (current < 0)
        m_view->selectionModel()->clear();
    else
        m_view->setCurrentIndex(m_model->index(current));
    m_view->scrollTo(m_view->currentIndex());
    update();
}

} // namespace condtree
