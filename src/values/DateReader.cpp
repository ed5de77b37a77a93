#include "DateReader.h"

#include <condtree/values/MonthNames.h>

#include <algorithm>
#include <string_view>

namespace condtree {

namespace {

constexpr std::u16string_view kSeparators = u"T \t:-/\\.,;";

bool isSeparator(QChar c)
{
    return kSeparators.find(c.unicode()) != std::u16string_view::npos;
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// A letter in lower case; other characters become no letter.
char16_t lowered(QChar c)
{
    return static_cast<char16_t>(c.unicode() | 0x20);
}

bool isLetter(QChar c)
{
    return lowered(c) >= u'a' && lowered(c) <= u'z';
}

/// How many characters at the start of a text are of a kind.
template <class Kind>
qsizetype runLength(QStringView text, Kind isOfKind)
{
    return std::ranges::find_if_not(text, isOfKind) - text.begin();
}

/// A text of letters against one of the same length in any case.
bool equalsLetters(QStringView text, std::u16string_view other)
{
    return std::ranges::equal(text, other,
                              [](QChar a, char16_t b) { return lowered(a) == lowered(b); });
}

/// More than any field may be; a run of digits counts as this at most.
constexpr int kManyDigits = 100000;

int numberOf(QStringView digits)
{
    int number = 0;
    for (const QChar digit : digits)
        number = std::min(number * 10 + (digit.unicode() - u'0'), kManyDigits);
    return number;
}

int yearOf(QStringView digits)
{
    const int year = numberOf(digits);
    if (digits.size() != 2)
        return year;
    return year < 50 ? 2000 + year : 1900 + year;
}

} // namespace

void DateReader::skipSeparators()
{
    m_rest = m_rest.sliced(runLength(m_rest, isSeparator));
}

QStringView DateReader::takeDigits()
{
    const QStringView digits = m_rest.first(runLength(m_rest, isDigit));
    m_rest = m_rest.sliced(digits.size());
    return digits;
}

bool DateReader::pass(char16_t character)
{
    if (!m_rest.startsWith(QChar(character)))
        return false;
    m_rest = m_rest.sliced(1);
    return true;
}

std::optional<int> DateReader::ReadNumberInRange(int low, int high)
{
    skipSeparators();
    const QStringView digits = takeDigits();
    const int number = numberOf(digits);
    if (digits.isEmpty() || number < low || number > high)
        return std::nullopt;
    return number;
}

std::optional<int> DateReader::ReadYear()
{
    skipSeparators();
    const QStringView digits = takeDigits();
    if (digits.size() != 2 && digits.size() != 4)
        return std::nullopt;
    return yearOf(digits);
}

std::optional<int> DateReader::ReadMonthName()
{
    skipSeparators();
    const QStringView word = m_rest.first(runLength(m_rest, isLetter));
    m_rest = m_rest.sliced(word.size());
    const auto* found = std::ranges::find_if(
        MonthNames, [&](const MonthName& month) { return equalsLetters(word, month.shortName); });
    return found != MonthNames.end() ? std::optional(found->number) : std::nullopt;
}

std::optional<int> DateReader::takeTwoDigits(int low, int high)
{
    if (m_rest.size() < 2 || !std::ranges::all_of(m_rest.first(2), isDigit))
        return std::nullopt;
    const int number = numberOf(m_rest.first(2));
    m_rest = m_rest.sliced(2);
    return number >= low && number <= high ? std::optional(number) : std::nullopt;
}

std::optional<CompactDate> DateReader::ReadCompactDate(int yearDigits)
{
    skipSeparators();
    if (m_rest.size() < yearDigits || !std::ranges::all_of(m_rest.first(yearDigits), isDigit))
        return std::nullopt;
    const int year = yearOf(m_rest.first(yearDigits));
    m_rest = m_rest.sliced(yearDigits);
    const auto month = takeTwoDigits(1, 12);
    const auto day = month ? takeTwoDigits(1, 31) : std::nullopt;
    return day ? std::optional(CompactDate{year, *month, *day}) : std::nullopt;
}

std::optional<TimeOfDay> DateReader::readTime(int firstHour, int lastHour)
{
    const auto hour = ReadNumberInRange(firstHour, lastHour);
    const auto minute = hour ? ReadNumberInRange(0, 60) : std::nullopt;
    if (!minute)
        return std::nullopt;
    const auto second = ReadNumberInRange(0, 60);
    const auto millisecond = second ? ReadNumberInRange(0, 999) : std::nullopt;
    return TimeOfDay{*hour, *minute, second.value_or(0), millisecond.value_or(0)};
}

TimeOfDay DateReader::ReadTime12()
{
    auto time = readTime(1, 12);
    skipSeparators();
    const QStringView marker = m_rest.first(std::min<qsizetype>(m_rest.size(), 2));
    if (!time || (!equalsLetters(marker, u"AM") && !equalsLetters(marker, u"PM")))
        return {};
    if (equalsLetters(marker, u"PM"))
        time->hour = (time->hour + 12) % 24;
    return *time;
}

TimeOfDay DateReader::ReadTime24()
{
    return readTime(0, 23).value_or(TimeOfDay{});
}

} // namespace condtree
