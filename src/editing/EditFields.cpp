#include "EditField.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTextDocument>

#include <limits>

namespace condtree {

namespace {

bool pastesSelection(const QMouseEvent& event)
{
    return event.button() == Qt::MiddleButton && QGuiApplication::clipboard()->supportsSelection();
}

/// Hands the events of a widget of the toolkit to the field.
template <class Base>
class FieldOver : public Base, public EditField {
public:
    FieldOver(QWidget* parent, EditFieldOwner& owner)
        : Base(parent)
        , EditField(static_cast<QWidget&>(*this), owner)
    {
    }
    void setReadOnly(bool readOnly) override { Base::setReadOnly(readOnly); }

protected:
    bool event(QEvent* event) override
    {
        const Handling handling(*this);
        if (event->type() == QEvent::ShortcutOverride
            && isKeyOfDialogs(static_cast<QKeyEvent&>(*event))) {
            event->accept();
            return true;
        }
        return Base::event(event);
    }
    /// Tab is a key like any other.
    bool focusNextPrevChild(bool) override { return false; }
    void keyPressEvent(QKeyEvent* event) override { handleKey(*event); }
    void inputMethodEvent(QInputMethodEvent* event) override { handleComposition(*event); }
    void focusOutEvent(QFocusEvent* event) override
    {
        if (handleFocusOut(*event))
            Base::focusOutEvent(event);
    }
    void mousePressEvent(QMouseEvent* event) override
    {
        const QPointer<QWidget> alive(this);
        // The toolkit drops what is being composed.
        commitComposition();
        if (alive)
            Base::mousePressEvent(event);
    }
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        const QPointer<QWidget> alive(this);
        const bool pastes = pastesSelection(*event);
        Base::mouseReleaseEvent(event);
        if (alive)
            tellPasted(pastes);
    }
    void dropEvent(QDropEvent* event) override
    {
        const QPointer<QWidget> alive(this);
        const bool pastes = event->mimeData()->hasText();
        Base::dropEvent(event);
        if (alive)
            tellPasted(pastes);
    }

    void keyByDefault(QKeyEvent& event) override { Base::keyPressEvent(&event); }
    void compositionByDefault(QInputMethodEvent& event) override { Base::inputMethodEvent(&event); }
    [[nodiscard]] bool isReadOnly() const override { return Base::isReadOnly(); }
};

/// One line. Line breaks and control characters are kept, and drawn as blanks.
class LineField final : public FieldOver<QLineEdit> {
public:
    LineField(QWidget* parent, EditFieldOwner& owner)
        : FieldOver(parent, owner)
    {
        setFrame(false);
        setMaxLength(std::numeric_limits<int>::max());
        connect(this, &QLineEdit::textChanged, this, [this] { tellTextChanged(); });
    }
    [[nodiscard]] CString text() const override { return QLineEdit::text(); }
    void setText(const CString& text) override
    {
        forgetComposition();
        QLineEdit::setText(text);
    }
    void selectAll() override { QLineEdit::selectAll(); }

protected:
    void contextMenuEvent(QContextMenuEvent* event) override
    {
        showMenu(createStandardContextMenu(), event->globalPos());
    }
};

/// The line break that a text begins with; "\n" for a text without.
CString firstBreak(const CString& text)
{
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar unit = text.at(at);
        if (unit == u'\r' && at + 1 < text.size() && text.at(at + 1) == u'\n')
            return QStringLiteral("\r\n");
        if (unit == u'\r' || unit == u'\n' || unit == QChar::ParagraphSeparator)
            return unit;
    }
    return QStringLiteral("\n");
}

/// Several lines. A document has one kind of line break only: a text that was set comes back as it
/// was as long as it is the same, and a changed one has the breaks that it had first.
class LinesField final : public FieldOver<QPlainTextEdit> {
public:
    LinesField(QWidget* parent, EditFieldOwner& owner)
        : FieldOver(parent, owner)
    {
        setFrameShape(QFrame::NoFrame);
        setLineWrapMode(NoWrap);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        document()->setDocumentMargin(1);
        connect(this, &QPlainTextEdit::textChanged, this, [this] { tellTextChanged(); });
    }
    [[nodiscard]] CString text() const override
    {
        CString raw = document()->toRawText();
        return raw == m_rawAsSet ? m_set : raw.replace(QChar::ParagraphSeparator, m_break);
    }
    void setText(const CString& text) override
    {
        forgetComposition();
        const CString before = document()->toRawText();
        {
            // Not told before all of it is set.
            const QSignalBlocker silence(this);
            setPlainText(text);
        }
        m_set = text;
        m_break = firstBreak(text);
        m_rawAsSet = document()->toRawText();
        if (m_rawAsSet != before)
            tellTextChanged();
    }
    void selectAll() override
    {
        QPlainTextEdit::selectAll();
        ensureCursorVisible();
    }

protected:
    bool viewportEvent(QEvent* event) override
    {
        const Handling handling(*this);
        return FieldOver::viewportEvent(event);
    }
    void contextMenuEvent(QContextMenuEvent* event) override
    {
        showMenu(createStandardContextMenu(event->pos()), event->globalPos());
    }

private:
    CString m_set;
    CString m_rawAsSet;
    CString m_break;
};

} // namespace

EditField* EditField::make(bool multiLine, QWidget* parent, EditFieldOwner& owner)
{
    if (multiLine)
        return new LinesField(parent, owner);
    return new LineField(parent, owner);
}

} // namespace condtree
