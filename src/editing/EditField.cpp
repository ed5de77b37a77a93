#include "EditField.h"

#include <QAction>
#include <QApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>

#include <algorithm>
#include <utility>

namespace condtree {

namespace {

constexpr unsigned kReturnKey = 13;

/// The entry of a standard menu that pastes. The menu of a line edit gives its entries no names.
QAction* pasteEntry(const QMenu& menu)
{
    const auto entries = menu.actions();
    const auto found = std::find_if(entries.begin(), entries.end(), [](const QAction* entry) {
        return entry->objectName() == QLatin1String("edit-paste")
               || entry->text().startsWith(QLineEdit::tr("&Paste"));
    });
    return found == entries.end() ? nullptr : *found;
}

} // namespace

bool endsEdit(Qt::FocusReason reason, bool ownMenuIsOpen)
{
    return reason != Qt::PopupFocusReason && !ownMenuIsOpen;
}

bool isKeyOfDialogs(const QKeyEvent& event)
{
    if (event.modifiers().testFlag(Qt::AltModifier))
        return false;
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return !event.modifiers().testFlag(Qt::ControlModifier);
    default:
        return false;
    }
}

EditField::Handling::Handling(const EditField& field)
    : m_alive(&field.m_widget)
    , m_owner(field.m_owner)
{
    m_owner.entered();
}

EditField::Handling::~Handling()
{
    if (m_alive)
        m_owner.left();
}

EditField::EditField(QWidget& widget, EditFieldOwner& owner)
    : m_widget(widget)
    , m_owner(owner)
{
}

void EditField::commitComposition()
{
    const QPointer<QWidget> alive(&m_widget);
    if (!m_composed.isEmpty() && QGuiApplication::focusObject() == &m_widget)
        QGuiApplication::inputMethod()->commit();
    // An input method that has left already commits nothing any more.
    if (!alive || m_composed.isEmpty())
        return;
    QInputMethodEvent event;
    event.setCommitString(m_composed);
    handleComposition(event);
}

void EditField::handleKey(QKeyEvent& event)
{
    const QPointer<QWidget> alive(&m_widget);
    const TypedKey typed = typedKey(event);
    // All keys are the editor's.
    event.accept();
    if (typed.key == kReturnKey) {
        m_owner.returnTyped();
        return;
    }
    const bool keyIsTaken = typed.key != 0 && m_owner.filterKey(typed);
    if (!alive || (keyIsTaken && typed.characters.isEmpty()))
        return;
    const auto characters = filtered(typed.characters, typed.repeatCount, typed.flags);
    if (!characters)
        return;
    if (!characters->kept.isEmpty() || typed.characters.isEmpty())
        defaultKey(event, characters->kept);
    if (alive && characters->returns)
        m_owner.returnTyped();
}

void EditField::defaultKey(QKeyEvent& event, const CString& characters)
{
    const QPointer<QWidget> alive(&m_widget);
    const bool pastes = event.matches(QKeySequence::Paste);
    const bool isWhole = characters == typedKey(event).characters;
    QKeyEvent rest(event.type(), isWhole ? event.key() : Qt::Key_unknown,
                   isWhole ? event.modifiers() : Qt::NoModifier,
                   isWhole && !characters.isEmpty() ? event.text() : characters,
                   event.isAutoRepeat());
    keyByDefault(rest);
    if (alive)
        tellPasted(pastes);
}

std::optional<EditField::Characters> EditField::filtered(const CString& text, unsigned repeatCount,
                                                         unsigned flags)
{
    constexpr char16_t kReturn = u'\r';
    const QPointer<QWidget> alive(&m_widget);
    Characters left;
    for (const QChar character : text) {
        if (character == kReturn) {
            left.returns = true;
            break;
        }
        const bool isTaken = m_owner.filterCharacter(character.unicode(), repeatCount, flags);
        if (!alive)
            return std::nullopt;
        if (!isTaken)
            left.kept += character;
    }
    return left;
}

void EditField::handleComposition(QInputMethodEvent& event)
{
    const QPointer<QWidget> alive(&m_widget);
    m_composed = event.preeditString();
    const auto characters = filtered(event.commitString(), 1, 0);
    if (!characters)
        return;
    event.setCommitString(characters->kept, event.replacementStart(), event.replacementLength());
    compositionByDefault(event);
    if (alive && characters->returns)
        m_owner.returnTyped();
}

bool EditField::handleFocusOut(const QFocusEvent& event)
{
    const QPointer<QWidget> alive(&m_widget);
    const bool menuIsOpen = m_menu != nullptr;
    if (endsEdit(event.reason(), menuIsOpen))
        m_owner.focusLost();
    else
        m_lostFocusToMenu = menuIsOpen;
    return alive;
}

void EditField::showMenu(QMenu* menu, const QPoint& globalPos)
{
    m_menu = menu;
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // Queued: the menu may not be deleted while it is still at work.
    if (QAction* paste = pasteEntry(*menu)) {
        QObject::connect(
            paste, &QAction::triggered, &m_widget, [this] { tellPasted(true); },
            Qt::QueuedConnection);
    }
    QObject::connect(
        menu, &QObject::destroyed, &m_widget, [this] { menuClosed(); }, Qt::QueuedConnection);
    menu->popup(globalPos);
}

void EditField::menuClosed()
{
    if (!std::exchange(m_lostFocusToMenu, false))
        return;
    // Some window systems give the focus back a while after the menu is gone.
    if (QApplication::focusWidget() != nullptr)
        focusReturned(QApplication::focusWidget());
    else
        m_returning = QObject::connect(qApp, &QApplication::focusChanged, &m_widget,
                                       [this](QWidget*, QWidget* now) { focusReturned(now); });
}

void EditField::focusReturned(const QWidget* now)
{
    if (now == nullptr)
        return;
    QObject::disconnect(m_returning);
    if (now != &m_widget)
        m_owner.focusLost();
}

void EditField::tellPasted(bool pasted)
{
    if (pasted && !isReadOnly())
        m_owner.textPasted();
}

} // namespace condtree
