#include "MessageBox.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QEvent>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QStringList>
#include <QTextDocument>
#include <QTextEdit>
#include <QVBoxLayout>
#include <QWindow>

#include <cmath>

namespace condtree {

namespace {

// The widest line, in characters, and how much of the screen's height the text may take.
constexpr int kLineLength = 90;
constexpr double kShareOfHeight = 0.6;
constexpr int kMargin = 16;

/// The text of a message: it wraps wherever it must, scrolls when it is long, and can be selected.
class MessageText final : public QTextEdit {
public:
    explicit MessageText(QWidget* parent);
    /// Sets the text and takes the size that it needs, at most a share of the room.
    void show(const QString& text, const QSize& room);
};

MessageText::MessageText(QWidget* parent)
    : QTextEdit(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setFocusPolicy(Qt::StrongFocus);
    setTabChangesFocus(true);
    document()->setDocumentMargin(0);
    setBackgroundRole(QPalette::Window);
    setForegroundRole(QPalette::WindowText);
    viewport()->setAutoFillBackground(false);
    QPalette colours = palette();
    colours.setColor(QPalette::Text, colours.color(QPalette::WindowText));
    setPalette(colours);
}

// Measured in a document of its own: the widget's is laid out anew to the size that it has so far.
void MessageText::show(const QString& text, const QSize& room)
{
    QTextDocument measured;
    measured.setDefaultFont(font());
    measured.setDefaultTextOption(document()->defaultTextOption());
    measured.setDocumentMargin(0);
    measured.setPlainText(text);
    measured.setTextWidth(
        qMin(kLineLength * fontMetrics().averageCharWidth(), room.width() * 3 / 4));
    const int width = static_cast<int>(std::ceil(measured.idealWidth())) + 1;
    measured.setTextWidth(width);
    const int height = static_cast<int>(std::ceil(measured.size().height()));
    const int highest = static_cast<int>(room.height() * kShareOfHeight);
    const int bar = height > highest ? verticalScrollBar()->sizeHint().width() + kMargin / 2 : 0;
    setPlainText(text);
    setFixedSize(width + bar, qMin(height, highest));
}

/// A message over a window. Not the window's child, which would die with it, but its transient:
/// that is what the toolkit goes by when it blocks the window.
class MessageBox final : public QDialog {
public:
    explicit MessageBox(QWidget* window);

    [[nodiscard]] bool isOpenOver(const QWidget* window) const;
    /// Adds a text below those that the box has, unless it is one of them.
    void add(const CString& text);

    void setVisible(bool visible) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void layOut();
    void followWindow();
    void stayOnScreen();
    void announce();

    QPointer<QWidget> m_window;
    bool m_isOverWindow; ///< also when the window is gone
    QPointer<QWidget> m_activeBefore;
    QStringList m_texts;
    MessageText m_text;
    QDialogButtonBox m_buttons;
};

MessageBox::MessageBox(QWidget* window)
    : m_window(window)
    , m_isOverWindow(window != nullptr)
    , m_activeBefore(QApplication::activeWindow())
    , m_text(this)
    , m_buttons(QDialogButtonBox::Ok, this)
{
    setObjectName(QStringLiteral("message"));
    setWindowTitle(QApplication::applicationDisplayName());
    layOut();
    // Whether the application ends is decided by the host's windows alone.
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowModality(m_isOverWindow ? Qt::WindowModal : Qt::ApplicationModal);
    if (!m_isOverWindow)
        return;
    window->installEventFilter(this);
    followWindow();
}

void MessageBox::layOut()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kMargin);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(&m_text);
    layout->addWidget(&m_buttons);
    connect(&m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    QPushButton* ok = m_buttons.button(QDialogButtonBox::Ok);
    ok->setDefault(true);
    ok->setFocus();
}

bool MessageBox::isOpenOver(const QWidget* window) const
{
    return isVisible() && m_window == window && m_isOverWindow == (window != nullptr);
}

void MessageBox::add(const CString& text)
{
    if (m_texts.contains(text))
        return;
    m_texts.append(text);
    const QString all = m_texts.join(QStringLiteral("\n\n"));
    const QScreen* screen = m_window.isNull() ? this->screen() : m_window->screen();
    m_text.show(all, screen->availableSize());
    setAccessibleDescription(all);
    if (!isVisible())
        return;
    layout()->activate();
    stayOnScreen();
    announce();
}

void MessageBox::stayOnScreen()
{
    const QRect room = screen()->availableGeometry();
    const int below = frameGeometry().bottom() - room.bottom();
    if (below > 0)
        move(x(), qMax(room.top(), y() - below));
}

// Screen readers read an alert's description at once.
void MessageBox::announce()
{
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

// The focus goes back by hand: the toolkit returns it to the window of a child only.
void MessageBox::setVisible(bool visible)
{
    const bool isActive = QApplication::activeWindow() == this;
    const QPointer<QWidget> before = m_activeBefore;
    QDialog::setVisible(visible);
    if (!visible && isActive && !before.isNull() && before->isVisible())
        before->activateWindow();
}

// A window has something to be the transient of from its showing on, and a new one whenever its
// flags change.
bool MessageBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_window && event->type() == QEvent::Show)
        followWindow();
    return QDialog::eventFilter(watched, event);
}

void MessageBox::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous())
        announce();
}

void MessageBox::followWindow()
{
    create();
    windowHandle()->setTransientParent(m_window->windowHandle());
}

// The open boxes themselves are what is known of them: so the controls of one window share a box,
// and nothing has to outlive a control that is deleted meanwhile.
MessageBox* openBox(const QWidget* window)
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* box = dynamic_cast<MessageBox*>(widget);
        if (box != nullptr && box->isOpenOver(window))
            return box;
    }
    return nullptr;
}

} // namespace

void showMessage(QWidget* owner, const CString& text)
{
    QWidget* window = owner == nullptr ? nullptr : owner->window();
    if (MessageBox* open = openBox(window)) {
        open->add(text);
        return;
    }
    const QPointer<MessageBox> box(new MessageBox(window));
    box->add(text);
    box->exec();
    delete box;
}

} // namespace condtree
