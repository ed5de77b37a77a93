#include "NativeKey.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace condtree {

namespace {

constexpr unsigned kPacket = 231;
constexpr unsigned kUnknown = 255;
constexpr unsigned kKeypadDigit = 96;
constexpr unsigned kFirstFunctionKey = 112;

/// The native number of a key.
struct Row {
    int key;
    unsigned number;
};

constexpr std::array kKeypad{Row{Qt::Key_Asterisk, 106}, Row{Qt::Key_Plus, 107},
                             Row{Qt::Key_Comma, 108},    Row{Qt::Key_Minus, 109},
                             Row{Qt::Key_Period, 110},   Row{Qt::Key_Slash, 111}};

constexpr std::array kKeys{
    Row{Qt::Key_Backspace, 8},
    Row{Qt::Key_Tab, 9},
    Row{Qt::Key_Backtab, 9},
    Row{Qt::Key_Clear, 12},
    Row{Qt::Key_Return, 13},
    Row{Qt::Key_Enter, 13},
    Row{Qt::Key_Shift, 16},
    Row{Qt::Key_Control, 17},
    Row{Qt::Key_Pause, 19},
    Row{Qt::Key_CapsLock, 20},
    Row{Qt::Key_Escape, 27},
    Row{Qt::Key_Space, 32},
    Row{Qt::Key_PageUp, 33},
    Row{Qt::Key_PageDown, 34},
    Row{Qt::Key_End, 35},
    Row{Qt::Key_Home, 36},
    Row{Qt::Key_Left, 37},
    Row{Qt::Key_Up, 38},
    Row{Qt::Key_Right, 39},
    Row{Qt::Key_Down, 40},
    Row{Qt::Key_Print, 44},
    Row{Qt::Key_Insert, 45},
    Row{Qt::Key_Delete, 46},
    Row{Qt::Key_Help, 47},
    Row{Qt::Key_Meta, 91},
    Row{Qt::Key_Super_L, 91},
    Row{Qt::Key_Super_R, 92},
    Row{Qt::Key_Menu, 93},
    Row{Qt::Key_NumLock, 144},
    Row{Qt::Key_ScrollLock, 145},
    // A US keyboard's, without and with Shift.
    Row{Qt::Key_Exclam, '1'},
    Row{Qt::Key_At, '2'},
    Row{Qt::Key_NumberSign, '3'},
    Row{Qt::Key_Dollar, '4'},
    Row{Qt::Key_Percent, '5'},
    Row{Qt::Key_AsciiCircum, '6'},
    Row{Qt::Key_Ampersand, '7'},
    Row{Qt::Key_Asterisk, '8'},
    Row{Qt::Key_ParenLeft, '9'},
    Row{Qt::Key_ParenRight, '0'},
    Row{Qt::Key_Semicolon, 186},
    Row{Qt::Key_Colon, 186},
    Row{Qt::Key_Equal, 187},
    Row{Qt::Key_Plus, 187},
    Row{Qt::Key_Comma, 188},
    Row{Qt::Key_Less, 188},
    Row{Qt::Key_Minus, 189},
    Row{Qt::Key_Underscore, 189},
    Row{Qt::Key_Period, 190},
    Row{Qt::Key_Greater, 190},
    Row{Qt::Key_Slash, 191},
    Row{Qt::Key_Question, 191},
    Row{Qt::Key_QuoteLeft, 192},
    Row{Qt::Key_AsciiTilde, 192},
    Row{Qt::Key_BracketLeft, 219},
    Row{Qt::Key_BraceLeft, 219},
    Row{Qt::Key_Backslash, 220},
    Row{Qt::Key_Bar, 220},
    Row{Qt::Key_BracketRight, 221},
    Row{Qt::Key_BraceRight, 221},
    Row{Qt::Key_Apostrophe, 222},
    Row{Qt::Key_QuoteDbl, 222},
};

template <class Table>
unsigned numberIn(const Table& table, int key)
{
    const auto found =
        std::find_if(table.begin(), table.end(), [key](const Row& row) { return row.key == key; });
    return found == table.end() ? 0 : found->number;
}

bool isBetween(int key, int first, int last)
{
    return key >= first && key <= last;
}

unsigned keypadNumber(int key)
{
    if (isBetween(key, Qt::Key_0, Qt::Key_9))
        return kKeypadDigit + static_cast<unsigned>(key - Qt::Key_0);
    return numberIn(kKeypad, key);
}

unsigned keyNumber(const QKeyEvent& event)
{
    const int key = event.key();
    if (event.modifiers().testFlag(Qt::KeypadModifier)) {
        if (const unsigned number = keypadNumber(key); number != 0)
            return number;
    }
    if (isBetween(key, Qt::Key_A, Qt::Key_Z) || isBetween(key, Qt::Key_0, Qt::Key_9))
        return static_cast<unsigned>(key);
    if (isBetween(key, Qt::Key_F1, Qt::Key_F24))
        return kFirstFunctionKey + static_cast<unsigned>(key - Qt::Key_F1);
    if (const unsigned number = numberIn(kKeys, key); number != 0)
        return number;
    return event.text().isEmpty() ? kUnknown : kPacket;
}

bool isAltAlone(const QKeyEvent& event)
{
    const bool alt = event.modifiers().testFlag(Qt::AltModifier) || event.key() == Qt::Key_Alt
                     || event.key() == Qt::Key_AltGr;
    return alt && !event.modifiers().testFlag(Qt::ControlModifier);
}

/// Control, and neither Alt nor what makes other characters of keys.
bool isControlAlone(const QKeyEvent& event)
{
    return (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::ControlModifier;
}

CString controlCharacters(const QKeyEvent& event)
{
    constexpr int kAboveControl = Qt::Key_A - 1;
    if (isBetween(event.key(), Qt::Key_A, Qt::Key_Z))
        return QChar(event.key() - kAboveControl);
    return event.key() == Qt::Key_Backspace ? CString(QChar(127)) : CString();
}

CString charactersOf(const QKeyEvent& event)
{
    const CString text = event.text();
    if (isAltAlone(event))
        return !text.isEmpty() && text.at(0).isPrint() ? text : CString();
    switch (event.key()) {
    case Qt::Key_Escape:
        return QChar(27);
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return QChar(9);
    case Qt::Key_Delete:
        return {};
    default:
        break;
    }
    if (isControlAlone(event))
        return controlCharacters(event);
    return event.key() == Qt::Key_Backspace ? CString(QChar(8)) : text;
}

} // namespace

TypedKey typedKey(const QKeyEvent& event)
{
    TypedKey typed;
    typed.key = isAltAlone(event) ? 0 : keyNumber(event);
    typed.repeatCount = static_cast<unsigned>(event.count());
    typed.flags = (event.modifiers().testFlag(Qt::AltModifier) ? KeyAltHeld : 0)
                  | (event.isAutoRepeat() ? KeyRepeated : 0);
    typed.characters = charactersOf(event);
    return typed;
}

} // namespace condtree
