#include "MessageBox.h"

#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QPointer>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QStringList>
#include <QWindow>

namespace condtree {

namespace {

// As wide as QMessageBox makes a text that it wraps: a narrower one it would not wrap.
constexpr int kScrolledWidth = 500;
// How much of the height of the screen the text may take.
constexpr double kShareOfHeight = 0.6;

// QLabel wraps between words alone: longer ones than a line take get places to break at, which
// have no width.
QString withBreaksInLongWords(QString text)
{
    static const QRegularExpression wordsPart(QStringLiteral("(\\S{60})(?=\\S)"));
    return text.replace(wordsPart, QStringLiteral("\\1\u200B"));
}

/// A message over a window. Not the window's child, which would die with it, but its transient:
/// that is what the toolkit goes by when it blocks the window.
class MessageBox final : public QMessageBox {
public:
    explicit MessageBox(QWidget* window);

    [[nodiscard]] bool isOpenOver(const QWidget* window) const;
    /// Adds a text below those that the box has, unless it is one of them.
    void add(const CString& text, unsigned type);

    void setVisible(bool visible) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void makeTextSelectable();
    [[nodiscard]] QSize mostOfText() const;
    [[nodiscard]] bool isHigh(const QString& text) const;
    void letTextScroll();
    void followWindow();
    void stayOnScreen();

    QPointer<QWidget> m_window;
    bool m_isOverWindow; ///< also when the window is gone
    QPointer<QWidget> m_activeBefore;
    QStringList m_texts;
    QLabel* m_label; ///< QMessageBox's own
    bool m_isScrolled = false;
};

MessageBox::MessageBox(QWidget* window)
    : m_window(window)
    , m_isOverWindow(window != nullptr)
    , m_activeBefore(QApplication::activeWindow())
    , m_label(findChild<QLabel*>(QStringLiteral("qt_msgbox_label")))
{
    setWindowTitle(QApplication::applicationDisplayName());
    setIcon(NoIcon);
    setTextFormat(Qt::PlainText);
    setStandardButtons(Ok);
    setDefaultButton(Ok);
    setEscapeButton(Ok);
    makeTextSelectable();
    // Whether the application ends is decided by the host's windows alone.
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowModality(m_isOverWindow ? Qt::WindowModal : Qt::ApplicationModal);
    if (!m_isOverWindow)
        return;
    window->installEventFilter(this);
    followWindow();
}

// A label whose text can be selected still has to be put where the Tab key goes.
void MessageBox::makeTextSelectable()
{
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    if (m_label != nullptr)
        m_label->setFocusPolicy(Qt::StrongFocus);
}

// QMessageBox goes back to what a new style says of the text.
void MessageBox::changeEvent(QEvent* event)
{
    QMessageBox::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        makeTextSelectable();
}

bool MessageBox::isOpenOver(const QWidget* window) const
{
    return isVisible() && m_window == window && m_isOverWindow == (window != nullptr);
}

void MessageBox::add(const CString& text, unsigned type)
{
    if ((type & MB_ICONERROR) != 0)
        setIcon(Critical);
    if (m_texts.contains(text))
        return;
    m_texts.append(text);
    const QString all = m_texts.join(QStringLiteral("\n\n"));
    const QString shown = withBreaksInLongWords(all);
    if (!m_isScrolled && m_label != nullptr && isHigh(shown))
        letTextScroll();
    setText(shown);
    setAccessibleDescription(all);
    if (!isVisible())
        return;
    stayOnScreen();
    // Screen readers read an alert's description at once.
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

QSize MessageBox::mostOfText() const
{
    const QScreen* screen = m_window.isNull() ? this->screen() : m_window->screen();
    const QSize room = screen->availableSize();
    return {qMin(kScrolledWidth, room.width() * 3 / 4),
            static_cast<int>(room.height() * kShareOfHeight)};
}

bool MessageBox::isHigh(const QString& text) const
{
    const QSize most = mostOfText();
    const QFontMetrics metrics(m_label->font());
    return metrics.boundingRect(0, 0, most.width(), 0, Qt::TextWordWrap, text).height()
           > most.height();
}

// QMessageBox grows with its text, until OK is below the screen.
void MessageBox::letTextScroll()
{
    m_isScrolled = true;
    auto* area = new QScrollArea(this);
    delete layout()->replaceWidget(m_label, area);
    area->setWidget(m_label);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus); // the label's, which hands on the keys that scroll
    area->setMinimumSize(mostOfText());
    area->show(); // the box may be open
}

void MessageBox::stayOnScreen()
{
    const QRect room = screen()->availableGeometry();
    const QPoint beyond = frameGeometry().bottomRight() - room.bottomRight();
    move(qMax(room.left(), x() - qMax(0, beyond.x())), qMax(room.top(), y() - qMax(0, beyond.y())));
}

// The focus goes back by hand: the toolkit returns it to the window of a child only.
void MessageBox::setVisible(bool visible)
{
    const bool isActive = QApplication::activeWindow() == this;
    const QPointer<QWidget> before = m_activeBefore;
    QMessageBox::setVisible(visible);
    if (!visible && isActive && !before.isNull() && before->isVisible())
        before->activateWindow();
}

// A window has something to be the transient of from its showing on, and a new one whenever its
// flags change.
bool MessageBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_window && event->type() == QEvent::Show)
        followWindow();
    return QMessageBox::eventFilter(watched, event);
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

void showMessage(QWidget* owner, const CString& text, unsigned type)
{
    QWidget* window = owner == nullptr ? nullptr : owner->window();
    if (MessageBox* open = openBox(window)) {
        open->add(text, type);
        return;
    }
    const QPointer<MessageBox> box(new MessageBox(window));
    box->add(text, type);
    box->exec();
    delete box;
}

} // namespace condtree
