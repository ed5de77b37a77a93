#include "FormatInto.h"

#include <QVarLengthArray>

#include <array>

namespace condtree {

namespace {

// Longer than any date, so that the heap is taken once, by the target.
using Text = QVarLengthArray<char16_t, 128>;

void appendNumber(Text& text, int number, int width)
{
    std::array<char16_t, 10> digits{};
    auto first = digits.end();
    unsigned rest = number < 0 ? 0U - static_cast<unsigned>(number) : static_cast<unsigned>(number);
    do {
        *--first = static_cast<char16_t>(u'0' + rest % 10);
        rest /= 10;
    } while (rest != 0);

    auto length = digits.end() - first;
    if (number < 0) {
        text.append(u'-');
        ++length;
    }
    for (; length < width; ++length)
        text.append(u'0');
    for (; first != digits.end(); ++first)
        text.append(*first);
}

void appendText(Text& text, const char16_t* appended)
{
    for (; *appended != u'\0'; ++appended)
        text.append(*appended);
}

} // namespace

void FormatInto(CString& target, const char16_t* format, std::span<const FormatArgument> arguments)
{
    Text text;
    auto argument = arguments.begin();
    for (const char16_t* at = format; *at != u'\0'; ++at) {
        if (*at != u'%') {
            text.append(*at);
        } else if (at[1] == u's') {
            appendText(text, std::get<const char16_t*>(*argument++));
            at += 1;
        } else {
            appendNumber(text, std::get<int>(*argument++), at[2] - u'0');
            at += 3;
        }
    }
    target.setUtf16(reinterpret_cast<const ushort*>(text.constData()), text.size());
}

} // namespace condtree
