#pragma once

#include "NativeKey.h"

#include <QEvent>
#include <QPointer>
#include <QWidget>

#include <optional>

class QFocusEvent;
class QInputMethodEvent;
class QKeyEvent;
class QMenu;

namespace condtree {

/// Whether an edit ends when its field loses the focus so. A list or menu that pops up takes the
/// focus for a while only; so may the field's own menu, whatever the window system calls it.
[[nodiscard]] bool endsEdit(Qt::FocusReason reason, bool ownMenuIsOpen);

/// Whether the dialog around an editor would take a key that is the editor's: Return, Escape, Tab.
[[nodiscard]] bool isKeyOfDialogs(const QKeyEvent& event);

/// What a field tells the editor around it. Any of it may delete the field, but for entered() and
/// left().
class EditFieldOwner {
public:
    EditFieldOwner() = default;
    EditFieldOwner(const EditFieldOwner&) = delete;
    EditFieldOwner& operator=(const EditFieldOwner&) = delete;

    /// True when the key press, or the character, is consumed.
    virtual bool filterKey(const TypedKey& key) = 0;
    virtual bool filterCharacter(char16_t character, unsigned repeatCount, unsigned flags) = 0;
    virtual void returnTyped() = 0;
    virtual void focusLost() = 0;
    virtual void textPasted() = 0;
    virtual void textChanged() = 0;
    /// The field begins to handle an event, and is done with it: between the two it must not be
    /// deleted later, which a nested event loop would do too early.
    virtual void entered() = 0;
    virtual void left() = 0;

protected:
    ~EditFieldOwner() = default;
};

/// The part of an editor that the user types into, over a widget of the toolkit: one line or
/// several. It lives as a child widget.
class EditField {
public:
    EditField(const EditField&) = delete;
    EditField& operator=(const EditField&) = delete;
    /// The owner must outlive the field.
    [[nodiscard]] static EditField* make(bool multiLine, QWidget* parent, EditFieldOwner& owner);

    [[nodiscard]] QWidget& widget() const { return m_widget; }
    /// The text as it was set and changed by the user, without what is being composed.
    [[nodiscard]] virtual CString text() const = 0;
    virtual void setText(const CString& text) = 0;
    /// Selects everything and shows the caret, which stands at the end.
    virtual void selectAll() = 0;
    virtual void setReadOnly(bool readOnly) = 0;
    /// Takes what an input method is composing into the text.
    void commitComposition();

protected:
    EditField(QWidget& widget, EditFieldOwner& owner);
    ~EditField() = default;

    /// Tells the owner that an event is being handled.
    class Handling {
    public:
        explicit Handling(const EditField& field);
        Handling(const Handling&) = delete;
        Handling& operator=(const Handling&) = delete;
        ~Handling();

    private:
        QPointer<QWidget> m_alive;
        EditFieldOwner& m_owner;
    };

    // What the toolkit's widget does of itself.
    virtual void keyByDefault(QKeyEvent& event) = 0;
    virtual void compositionByDefault(QInputMethodEvent& event) = 0;
    [[nodiscard]] virtual bool isReadOnly() const = 0;

    void handleKey(QKeyEvent& event);
    void handleComposition(QInputMethodEvent& event);
    /// False when the field is gone.
    [[nodiscard]] bool handleFocusOut(const QFocusEvent& event);
    void showMenu(QMenu* menu, const QPoint& globalPos);
    void tellTextChanged() { m_owner.textChanged(); }
    /// After an event that may have pasted: the text on the way, if there was any.
    void tellPasted(bool pasted);
    void forgetComposition() { m_composed.clear(); }

private:
    /// What is left of typed characters.
    struct Characters {
        CString kept;
        bool returns = false;
    };

    void defaultKey(QKeyEvent& event, const CString& characters);
    /// None when the field is gone.
    std::optional<Characters> filtered(const CString& text, unsigned repeatCount, unsigned flags);
    void menuClosed();
    void focusReturned(const QWidget* now);

    QWidget& m_widget;
    EditFieldOwner& m_owner;
    CString m_composed;
    QPointer<QMenu> m_menu;
    bool m_lostFocusToMenu = false;
    QMetaObject::Connection m_returning;
};

} // namespace condtree
