#include "FocusEdit.h"

#include "CompletionRules.h"
#include "EditField.h"
#include <condtree/editing/ClassNameMessage.h>
#include <condtree/platform/TimerMessage.h>
#include <condtree/presentation/CDPIHelper.h>

#include <QCoreApplication>
#include <QPainter>
#include <QPointer>

#include <algorithm>

namespace condtree {

namespace {

constexpr int kControlId = 902;
constexpr std::uintptr_t kTimer = 100;
constexpr unsigned kPauseMilliseconds = 500;
constexpr int kLeastHeight = 20;
constexpr int kDesignDpi = 96;

const char* const kControlIdProperty = "controlId";

/// Posted by the editor to itself.
QEvent::Type takeFocusMessage()
{
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

bool isMouseButton(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease
           || type == QEvent::MouseButtonDblClick;
}

QRect placeOver(const RECT& cell)
{
    const int least = MulDiv(kLeastHeight, CDPIHelper::get()->getDPI_OS_Y(), kDesignDpi);
    return {cell.left, cell.top, std::max(cell.right - cell.left, 0),
            std::max(cell.bottom - cell.top, least)};
}

} // namespace

/// Hears the field. Whatever comes after the end of the edit is consumed.
class FocusEdit::Link final : public EditFieldOwner {
public:
    explicit Link(FocusEdit& editor)
        : m_editor(editor)
    {
    }

    bool filterKey(const TypedKey& key) override
    {
        return object() == nullptr || object()->mbFilterKey(key.key, key.repeatCount, key.flags);
    }
    bool filterCharacter(char16_t character, unsigned repeatCount, unsigned flags) override
    {
        return object() == nullptr || object()->mbFilterChar(character, repeatCount, flags);
    }
    void returnTyped() override { m_editor.finish(); }
    void focusLost() override { m_editor.finishByItself(); }
    void textPasted() override
    {
        if (object() != nullptr)
            object()->mvAfterPaste();
    }
    void textChanged() override
    {
        if (!m_editor.isFinished())
            m_editor.restartPauseTimer();
    }
    void entered() override { m_editor.enter(); }
    void left() override { m_editor.leave(); }

private:
    [[nodiscard]] FocusEditValue* object() const
    {
        return m_editor.isFinished() ? nullptr : m_editor.m_object;
    }

    FocusEdit& m_editor;
};

FocusEdit::FocusEdit()
    : m_link(std::make_unique<Link>(*this))
{
}

FocusEdit::~FocusEdit()
{
    m_isFinished = true;
    stopPauseTimer();
    // Before what it talks to.
    if (m_field != nullptr)
        delete &m_field->widget();
}

bool FocusEdit::Create(FocusEditValue& object, const RECT& cell, QWidget* parent,
                       const Services& services)
{
    if (parent == nullptr || m_object != nullptr || m_field != nullptr || m_isFinished)
        return false;
    m_completions.clear();
    m_object = &object;
    m_isCompletionOn = true;
    m_commitsOnFinish = true;
    m_startTimer = services.startTimer;
    m_stopTimer = services.stopTimer;

    const QPointer<FocusEdit> alive(this);
    const QPointer<QWidget> around(parent);
    const bool isMultiLine = object.mbIsMultiLine();
    const bool hasBorder = object.mbHasBorder();
    const bool isReadOnly = object.mbIsReadOnly(this);
    const CString text = object.moGetEditText();
    if (!alive || !around || m_object == nullptr)
        return false;
    m_hasBorder = hasBorder;
    makeWindow(cell, *parent, isMultiLine);
    m_field->setReadOnly(isReadOnly);
    m_isSettingText = true;
    m_field->setText(text);
    m_isSettingText = false;
    show();
    m_field->selectAll();
    QCoreApplication::postEvent(this, new QEvent(takeFocusMessage()));
    return true;
}

void FocusEdit::makeWindow(const RECT& cell, QWidget& parent, bool isMultiLine)
{
    setParent(&parent);
    rememberAncestors();
    setProperty(kControlIdProperty, kControlId);
    setObjectName(CString::number(kControlId));
    setGeometry(placeOver(cell));
    m_field = EditField::make(isMultiLine, this, *m_link);
    m_field->widget().setFont(parent.font());
    setFocusProxy(&m_field->widget());
    placeField();
}

CString FocusEdit::text() const
{
    return m_field == nullptr ? CString() : m_field->text();
}

void FocusEdit::setText(const CString& text)
{
    if (!isOpen())
        return;
    m_field->setText(text);
    m_field->selectAll();
}

void FocusEdit::addCompletion(const CString& text, const CString& fullText, bool mustMatch)
{
    m_completions[text.toLower()] = {fullText, mustMatch};
}

void FocusEdit::addListener(FocusEditListener& listener)
{
    if (std::find(m_listeners.begin(), m_listeners.end(), &listener) == m_listeners.end())
        m_listeners.push_back(&listener);
}

void FocusEdit::removeListener(FocusEditListener& listener)
{
    std::erase(m_listeners, &listener);
}

QEvent::Type FocusEdit::classNameMessage()
{
    return ClassNameMessage::messageType();
}

void FocusEdit::restartPauseTimer()
{
    stopPauseTimer();
    m_timer = kTimer;
    if (m_startTimer)
        m_startTimer(this, kTimer, kPauseMilliseconds);
}

void FocusEdit::stopPauseTimer()
{
    if (const std::uintptr_t running = std::exchange(m_timer, 0); running != 0 && m_stopTimer)
        m_stopTimer(this, running);
}

void FocusEdit::onPause()
{
    stopPauseTimer();
    if (!isOpen() || m_isSettingText || !m_isCompletionOn)
        return;
    if (const std::optional<CString> reported = reportedText(m_completions, text()))
        updateLive(*reported);
}

void FocusEdit::updateLive(const CString& text)
{
    const QPointer<FocusEdit> alive(this);
    tellListeners([&](FocusEditListener& listener) { listener.beforeLiveUpdate(this, text); });
    if (!alive || !isOpen())
        return;
    if (m_updatesLive)
        m_object->mvSetEditText(this, text);
    if (!alive || !isOpen())
        return;
    tellListeners([&](FocusEditListener& listener) { listener.afterLiveUpdate(this, text); });
}

template <class Call>
void FocusEdit::tellListeners(Call call)
{
    const QPointer<FocusEdit> alive(this);
    const std::vector<FocusEditListener*> listeners = m_listeners;
    for (FocusEditListener* listener : listeners) {
        if (std::find(m_listeners.begin(), m_listeners.end(), listener) != m_listeners.end())
            call(*listener);
        if (!alive)
            return;
    }
}

void FocusEdit::finish()
{
    const QPointer<FocusEdit> alive(this);
    // What the input method still holds belongs to the text. Its characters are filtered, and the
    // filter may finish the edit.
    if (isOpen() && !std::exchange(m_isTakingComposition, true))
        m_field->commitComposition();
    if (!alive || !isOpen())
        return;
    m_isFinished = true;
    stopPauseTimer();
    if (m_commitsOnFinish)
        commit();
    if (alive)
        tellFinished();
    if (alive)
        closeWindow();
}

void FocusEdit::commit()
{
    if (const std::optional<CString> committed = committedText(m_completions, text()))
        m_object->mvSetEditText(this, *committed);
}

void FocusEdit::tellFinished()
{
    if (m_listeners.empty())
        return;
    // The object may have gone while it was committed into.
    const CString current = m_object != nullptr ? m_object->moGetEditText() : text();
    tellListeners([&](FocusEditListener& listener) { listener.editFinished(this, current); });
}

void FocusEdit::abandon()
{
    m_object = nullptr;
    if (!isOpen())
        return;
    m_isFinished = true;
    stopPauseTimer();
    closeWindow();
}

void FocusEdit::finishByItself()
{
    if (isAncestorDying()) {
        m_object = nullptr;
        m_isFinished = true;
        stopPauseTimer();
    }
    finish();
}

void FocusEdit::closeWindow()
{
    const QPointer<FocusEdit> alive(this);
    m_isClosed = true;
    // Nobody finds it in the place of the next one.
    setObjectName({});
    setProperty(kControlIdProperty, {});
    handFocusBack();
    if (!alive)
        return;
    hide();
    if (!alive)
        return;
    if (m_handling == 0)
        deleteLater();
    Q_EMIT finished();
}

void FocusEdit::handFocusBack()
{
    // Left to itself, the focus would go on to the next widget of the dialog.
    if (window()->focusWidget() == &m_field->widget())
        parentWidget()->setFocus(Qt::OtherFocusReason);
}

void FocusEdit::enter()
{
    ++m_handling;
}

void FocusEdit::leave()
{
    if (--m_handling == 0 && m_isClosed)
        deleteLater();
}

void FocusEdit::rememberAncestors()
{
    m_ancestors.clear();
    for (const QWidget* ancestor = parentWidget(); ancestor != nullptr;
         ancestor = ancestor->parentWidget())
        m_ancestors.emplace_back(ancestor, &typeid(*ancestor));
}

bool FocusEdit::isAncestorDying() const
{
    for (const QWidget* ancestor = parentWidget(); ancestor != nullptr;
         ancestor = ancestor->parentWidget()) {
        const auto isSame = [&](const auto& entry) { return entry.first == ancestor; };
        const auto found = std::find_if(m_ancestors.begin(), m_ancestors.end(), isSame);
        if (found != m_ancestors.end() && *found->second != typeid(*ancestor))
            return true;
    }
    return false;
}

bool FocusEdit::event(QEvent* event)
{
    const QPointer<FocusEdit> alive(this);
    enter();
    bool isHandled = true;
    if (event->type() == TimerMessage::messageType()
        && static_cast<TimerMessage*>(event)->id() == kTimer)
        onPause();
    else if (event->type() == classNameMessage())
        static_cast<ClassNameMessage*>(event)->answer(u"FocusEdit");
    else if (event->type() == takeFocusMessage())
        setFocus(Qt::OtherFocusReason);
    else if (isMouseButton(event->type()))
        event->accept(); // a click on the border is none on what lies below
    else
        isHandled = QWidget::event(event);
    if (alive)
        leave();
    return isHandled;
}

void FocusEdit::hideEvent(QHideEvent*)
{
    finishByItself();
}

void FocusEdit::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QColor base = palette().color(QPalette::Base);
    base.setAlpha(255);
    painter.fillRect(rect(), base);
    if (m_hasBorder) {
        const QColor line = palette().color(QPalette::Text);
        painter.fillRect(0, 0, width(), 1, line);
        painter.fillRect(0, height() - 1, width(), 1, line);
        painter.fillRect(0, 0, 1, height(), line);
        painter.fillRect(width() - 1, 0, 1, height(), line);
    }
}

void FocusEdit::resizeEvent(QResizeEvent*)
{
    if (m_field != nullptr)
        placeField();
}

void FocusEdit::placeField()
{
    const int border = m_hasBorder ? 1 : 0;
    m_field->widget().setGeometry(rect().adjusted(border, border, -border, -border));
}

} // namespace condtree
