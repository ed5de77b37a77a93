#include "NativeText.h"

#include <algorithm>
#include <array>
#include <limits>

namespace condtree {

namespace {

// The zeros of the scripts whose decimal digits the native platform reads as numbers; ascending.
constexpr std::array<char16_t, 18> kZeros{u'0',      u'\u0660', u'\u06F0', u'\u0966', u'\u09E6',
                                          u'\u0A66', u'\u0AE6', u'\u0B66', u'\u0C66', u'\u0CE6',
                                          u'\u0D66', u'\u0E50', u'\u0ED0', u'\u0F20', u'\u1040',
                                          u'\u17E0', u'\u1810', u'\uFF10'};

/// 0 to 9; -1 for what is no digit.
int decimalDigit(char16_t unit)
{
    const auto behind = std::upper_bound(kZeros.begin(), kZeros.end(), unit);
    if (behind == kZeros.begin())
        return -1;
    const int digit = unit - *(behind - 1);
    return digit <= 9 ? digit : -1;
}

struct FullFolding {
    char32_t letter;
    const char16_t* folded;
};

// The letters whose full case folding is longer than the letter, as far as canonical decomposition
// and simple folding leave them; ascending.
constexpr std::array<FullFolding, 16> kFullFoldings{{
    {u'\u00DF', u"ss"},
    {u'\u0149', u"\u02BCn"},
    {u'\u0587', u"\u0565\u0582"},
    {u'\u1E9A', u"a\u02BE"},
    {u'\uFB00', u"ff"},
    {u'\uFB01', u"fi"},
    {u'\uFB02', u"fl"},
    {u'\uFB03', u"ffi"},
    {u'\uFB04', u"ffl"},
    {u'\uFB05', u"st"},
    {u'\uFB06', u"st"},
    {u'\uFB13', u"\u0574\u0576"},
    {u'\uFB14', u"\u0574\u0565"},
    {u'\uFB15', u"\u0574\u056B"},
    {u'\uFB16', u"\u057E\u0576"},
    {u'\uFB17', u"\u0574\u056D"},
}};

const char16_t* fullFolding(char32_t codePoint)
{
    const auto found = std::lower_bound(
        kFullFoldings.begin(), kFullFoldings.end(), codePoint,
        [](const FullFolding& folding, char32_t letter) { return folding.letter < letter; });
    return found != kFullFoldings.end() && found->letter == codePoint ? found->folded : nullptr;
}

struct CodePoints {
    char32_t first;
    char32_t last;
};

// Code points that have no weight in a comparison: those that Unicode calls ignorable by default
// (joiners, soft hyphens, direction marks, variation selectors, fillers); ascending.
constexpr std::array<CodePoints, 17> kIgnorable{{
    {0xAD, 0xAD},
    {0x34F, 0x34F},
    {0x61C, 0x61C},
    {0x115F, 0x1160},
    {0x17B4, 0x17B5},
    {0x180B, 0x180F},
    {0x200B, 0x200F},
    {0x202A, 0x202E},
    {0x2060, 0x206F},
    {0x3164, 0x3164},
    {0xFE00, 0xFE0F},
    {0xFEFF, 0xFEFF},
    {0xFFA0, 0xFFA0},
    {0xFFF0, 0xFFF8},
    {0x1BCA0, 0x1BCA3},
    {0x1D173, 0x1D17A},
    {0xE0000, 0xE0FFF},
}};

bool isIgnorable(char32_t codePoint)
{
    const auto found = std::lower_bound(
        kIgnorable.begin(), kIgnorable.end(), codePoint,
        [](const CodePoints& range, char32_t value) { return range.last < value; });
    return found != kIgnorable.end() && found->first <= codePoint;
}

bool isAscii(QChar unit)
{
    return unit.unicode() < 0x80;
}

bool isAsciiCapital(QChar unit)
{
    return unit >= u'A' && unit <= u'Z';
}

/// Whether a unit is ASCII, no capital and no null.
bool isFoldedAscii(QChar unit)
{
    return isAscii(unit) && !isAsciiCapital(unit) && !unit.isNull();
}

/// The code point at an index: a pair of surrogates, or a single unit, half a pair included.
char32_t codePointAt(QStringView text, qsizetype i)
{
    const bool isPair =
        text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
    return isPair ? QChar::surrogateToUcs4(text[i], text[i + 1]) : char32_t{text[i].unicode()};
}

void appendCodePoint(CString& text, char32_t codePoint)
{
    text += QStringView(QChar::fromUcs4(codePoint));
}

/// What append(result, codePoint) builds, called for each code point of a text.
template <class Append>
CString rewritten(QStringView text, Append append)
{
    CString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size();) {
        const char32_t codePoint = codePointAt(text, i);
        append(result, codePoint);
        i += QChar::requiresSurrogates(codePoint) ? 2 : 1;
    }
    return result;
}

CString withoutIgnorables(QStringView text)
{
    return rewritten(text, [](CString& result, char32_t codePoint) {
        if (!isIgnorable(codePoint))
            appendCodePoint(result, codePoint);
    });
}

/// Not QString's own case folding, which damages halves of pairs.
CString caseFolded(QStringView text)
{
    return rewritten(text, [](CString& result, char32_t codePoint) {
        appendCodePoint(result, QChar::toCaseFolded(codePoint));
    });
}

CString withFullFoldings(QStringView text)
{
    return rewritten(text, [](CString& result, char32_t codePoint) {
        if (const char16_t* folded = fullFolding(codePoint))
            result += QStringView(folded);
        else
            appendCodePoint(result, codePoint);
    });
}

CString asciiFolded(QStringView text)
{
    CString result(text.size(), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), result.begin(), [](QChar unit) {
        return isAsciiCapital(unit) ? QChar(static_cast<char16_t>(unit.unicode() | 0x20)) : unit;
    });
    return result;
}

} // namespace

LONG leadingNumber(QStringView text)
{
    constexpr std::int64_t kMax = std::numeric_limits<LONG>::max();
    const auto end = text.end();
    auto at = std::find_if_not(text.begin(), end, [](QChar unit) { return unit.isSpace(); });
    bool isNegative = false;
    if (at != end && (*at == u'-' || *at == u'+'))
        isNegative = *at++ == u'-';

    std::int64_t magnitude = 0;
    for (; at != end; ++at) {
        const int digit = decimalDigit(at->unicode());
        if (digit < 0)
            break;
        magnitude = std::min(magnitude * 10 + digit, kMax + 1);
    }
    return static_cast<LONG>(isNegative ? -magnitude : std::min(magnitude, kMax));
}

CString localeFoldedKey(const CString& text)
{
    // Nearly every name is plain ASCII, and many are their own key already.
    const auto unfolded = std::find_if_not(text.begin(), text.end(), isFoldedAscii);
    if (unfolded == text.end())
        return text;

    // Names end at their first null, as native texts do.
    const QStringView name(text.begin(), std::find(unfolded, text.end(), QChar()));
    if (std::all_of(name.begin(), name.end(), isAscii))
        return asciiFolded(name);

    constexpr auto kDecomposed = QString::NormalizationForm_D;
    const CString folded = caseFolded(withoutIgnorables(name).normalized(kDecomposed));
    return withFullFoldings(folded).normalized(kDecomposed);
}

CString simpleFoldedKey(const CString& text)
{
    return std::all_of(text.begin(), text.end(), isFoldedAscii) ? text : caseFolded(text);
}

bool equalsNoCase(QStringView a, QStringView b)
{
    // Simple folding never changes the length.
    return a.size() == b.size() && a.compare(b, Qt::CaseInsensitive) == 0;
}

} // namespace condtree
