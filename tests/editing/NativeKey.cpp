#include <condtree/editing/NativeKey.h>

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QKeyEvent>

namespace condtree {
namespace {

struct Row {
    int key;
    Qt::KeyboardModifiers modifiers;
    const char* text;
    unsigned number;
    CString characters;
};

void expectTyped(const Row& row)
{
    const QKeyEvent event(QEvent::KeyPress, row.key, row.modifiers, CString::fromUtf8(row.text));
    const TypedKey typed = typedKey(event);
    EXPECT_EQ(typed.key, row.number) << std::hex << row.key;
    EXPECT_EQ(typed.characters, row.characters) << std::hex << row.key;
}

TEST(NativeKey, LettersAndDigitsHaveTheirCapitalsCode)
{
    for (int letter = 'A'; letter <= 'Z'; ++letter) {
        const CString small = QChar(letter).toLower();
        expectTyped({letter, Qt::NoModifier, small.toUtf8().constData(),
                     static_cast<unsigned>(letter), small});
        expectTyped({letter, Qt::ControlModifier, small.toUtf8().constData(),
                     static_cast<unsigned>(letter), QChar(letter - 64)});
    }
    for (int digit = '0'; digit <= '9'; ++digit) {
        const CString text = QChar(digit);
        expectTyped(
            {digit, Qt::NoModifier, text.toUtf8().constData(), static_cast<unsigned>(digit), text});
        expectTyped({digit, Qt::KeypadModifier, text.toUtf8().constData(),
                     static_cast<unsigned>(digit) + 48, text});
        expectTyped({digit,
                     Qt::ControlModifier,
                     text.toUtf8().constData(),
                     static_cast<unsigned>(digit),
                     {}});
    }
}

TEST(NativeKey, FunctionKeysBeginAt112)
{
    for (int index = 0; index < 24; ++index)
        expectTyped(
            {Qt::Key_F1 + index, Qt::NoModifier, "", 112U + static_cast<unsigned>(index), {}});
}

TEST(NativeKey, KeysThatEditHaveTheNativeNumbers)
{
    const std::vector<Row> rows{
        {Qt::Key_Return, Qt::NoModifier, "\r", 13, QStringLiteral("\r")},
        {Qt::Key_Enter, Qt::KeypadModifier, "\r", 13, QStringLiteral("\r")},
        {Qt::Key_Escape, Qt::NoModifier, "", 27, QChar(27)},
        {Qt::Key_Tab, Qt::NoModifier, "\t", 9, QChar(9)},
        {Qt::Key_Backtab, Qt::ShiftModifier, "", 9, QChar(9)},
        {Qt::Key_Backspace, Qt::NoModifier, "\b", 8, QChar(8)},
        {Qt::Key_Backspace, Qt::ControlModifier, "\b", 8, QChar(127)},
        {Qt::Key_Delete, Qt::NoModifier, "\x7f", 46, {}},
        {Qt::Key_Insert, Qt::ShiftModifier, "", 45, {}},
        {Qt::Key_End, Qt::NoModifier, "", 35, {}},
        {Qt::Key_Home, Qt::NoModifier, "", 36, {}},
        {Qt::Key_Left, Qt::NoModifier, "", 37, {}},
        {Qt::Key_Up, Qt::NoModifier, "", 38, {}},
        {Qt::Key_Right, Qt::NoModifier, "", 39, {}},
        {Qt::Key_Down, Qt::NoModifier, "", 40, {}},
        {Qt::Key_PageUp, Qt::NoModifier, "", 33, {}},
        {Qt::Key_PageDown, Qt::NoModifier, "", 34, {}},
        {Qt::Key_Space, Qt::NoModifier, " ", 32, QStringLiteral(" ")},
        {Qt::Key_Shift, Qt::ShiftModifier, "", 16, {}},
        {Qt::Key_Control, Qt::ControlModifier, "", 17, {}},
    };
    for (const Row& row : rows)
        expectTyped(row);
}

TEST(NativeKey, PunctuationIsThatOfAUsKeyboard)
{
    const std::vector<std::pair<const char*, unsigned>> rows{
        {"!1", 49},   {"@2", 50},  {"#3", 51},  {"$4", 52},  {"%5", 53},  {"^6", 54},
        {"&7", 55},   {"*8", 56},  {"(9", 57},  {")0", 48},  {";:", 186}, {"=+", 187},
        {",<", 188},  {"-_", 189}, {".>", 190}, {"/?", 191}, {"`~", 192}, {"[{", 219},
        {"\\|", 220}, {"]}", 221}, {"'\"", 222}};
    for (const auto& [both, number] : rows) {
        for (const char key : std::string(both))
            expectTyped({key, Qt::NoModifier, std::string(1, key).c_str(), number,
                         QChar(QLatin1Char(key))});
    }
    expectTyped({Qt::Key_Asterisk, Qt::KeypadModifier, "*", 106, QStringLiteral("*")});
    expectTyped({Qt::Key_Slash, Qt::KeypadModifier, "/", 111, QStringLiteral("/")});
}

TEST(NativeKey, OtherKeysAreTwoNumbersByWhatTheyType)
{
    expectTyped({0x0416, Qt::NoModifier, "ж", 231, QStringLiteral("ж")});
    expectTyped({Qt::Key_unknown, Qt::NoModifier, "😀", 231, QStringLiteral("😀")});
    expectTyped({Qt::Key_Dead_Acute, Qt::NoModifier, "", 255, {}});
}

TEST(NativeKey, WithAltNoKeyIsToldButWhatWouldBeTyped)
{
    expectTyped({Qt::Key_O, Qt::AltModifier, "o", 0, QStringLiteral("o")});
    expectTyped({Qt::Key_Return, Qt::AltModifier, "\r", 0, {}});
    expectTyped({Qt::Key_Alt, Qt::NoModifier, "", 0, {}});
    expectTyped({Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier, "@", 81, QStringLiteral("@")});
}

TEST(NativeKey, FlagsTellAltAndRepetition)
{
    const auto flags = [](Qt::KeyboardModifiers modifiers, bool repeats) {
        return typedKey(
            QKeyEvent(QEvent::KeyPress, Qt::Key_A, modifiers, QStringLiteral("a"), repeats, 3));
    };
    EXPECT_EQ(flags(Qt::NoModifier, false).flags, 0U);
    EXPECT_EQ(flags(Qt::AltModifier, false).flags, 0x2000U);
    EXPECT_EQ(flags(Qt::NoModifier, true).flags, 0x4000U);
    EXPECT_EQ(flags(Qt::NoModifier, true).repeatCount, 3U);
}

} // namespace
} // namespace condtree
