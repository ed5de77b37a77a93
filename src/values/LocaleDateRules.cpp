#include "LocaleDateRules.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace condtree {

namespace {

using Words = std::vector<NamedDateWord>;

/// A field of a date format ("yyyy"), or what stands between two fields, without its quotes.
struct FormatPart {
    bool isField;
    QString text;
};

std::vector<FormatPart> partsOf(QStringView format)
{
    constexpr QStringView kFields = u"dMy";
    std::vector<FormatPart> parts;
    bool isQuoted = false;
    for (const QChar unit : format) {
        if (unit == u'\'') {
            isQuoted = !isQuoted;
            continue;
        }
        const bool isField = !isQuoted && kFields.contains(unit);
        const bool continues = !parts.empty() && parts.back().isField == isField
                               && (!isField || parts.back().text.back() == unit);
        if (continues)
            parts.back().text += unit;
        else
            parts.push_back({isField, QString(unit)});
    }
    return parts;
}

/// Longer days and months are names.
bool isNumber(const FormatPart& part)
{
    return part.isField && (part.text.front() == u'y' || part.text.size() <= 2);
}

/// Day, month and year where the format does not tell.
FieldOrder orderOf(const std::vector<FormatPart>& parts)
{
    QString fields;
    for (const FormatPart& part : parts) {
        const bool isWeekday = part.text.front() == u'd' && !isNumber(part);
        if (part.isField && !isWeekday && !fields.contains(part.text.front()))
            fields += part.text.front();
    }
    if (fields.size() != 3)
        fields = u"dMy"_qs;
    const auto place = [&fields](QChar field) { return static_cast<int>(fields.indexOf(field)); };
    return {place(u'y'), place(u'M'), place(u'd')};
}

bool isClosedByStop(const std::vector<FormatPart>& parts)
{
    return !parts.empty() && !parts.back().isField && parts.back().text == u".";
}

bool hasStopBehindField(const std::vector<FormatPart>& parts)
{
    return std::any_of(parts.begin(), parts.end(), [](const FormatPart& part) {
        return !part.isField && part.text.startsWith(u'.');
    });
}

/// Words of a format that stand between its fields, but for those that touch the number before.
void addFillers(Words& words, const std::vector<FormatPart>& parts)
{
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (parts[i].isField)
            continue;
        QStringList pieces = parts[i].text.simplified().split(u' ');
        if (i > 0 && isNumber(parts[i - 1]) && !parts[i].text.front().isSpace())
            pieces.removeFirst();
        for (QString& piece : pieces) {
            if (piece.endsWith(u','))
                piece.chop(1);
            if (!piece.isEmpty() && piece.front().isLetter())
                words.push_back({piece, {.isFiller = true}});
        }
    }
}

void addNames(Words& words, const QLocale& locale)
{
    for (const auto length : {QLocale::LongFormat, QLocale::ShortFormat}) {
        for (int month = 1; month <= 12; ++month) {
            words.push_back({locale.monthName(month, length), {.month = month}});
            words.push_back({locale.standaloneMonthName(month, length), {.month = month}});
        }
        for (int day = 1; day <= 7; ++day) {
            words.push_back({locale.dayName(day, length), {.isWeekday = true}});
            words.push_back({locale.standaloneDayName(day, length), {.isWeekday = true}});
        }
    }
}

void addDayHalves(Words& words, const QLocale& locale)
{
    words.push_back({u"AM"_qs, {.half = DayHalf::Am}});
    words.push_back({u"PM"_qs, {.half = DayHalf::Pm}});
    words.push_back({locale.amText(), {.half = DayHalf::Am}});
    words.push_back({locale.pmText(), {.half = DayHalf::Pm}});
}

} // namespace

LocaleDateRules localeDateRules(const QLocale& locale)
{
    const auto shortForm = partsOf(locale.dateFormat(QLocale::ShortFormat));
    Words words;
    addNames(words, locale);
    addDayHalves(words, locale);
    addFillers(words, partsOf(locale.dateFormat(QLocale::LongFormat)));
    const QString time = locale.timeFormat(QLocale::ShortFormat);
    return {orderOf(shortForm), hasStopBehindField(shortForm), isClosedByStop(shortForm),
            time.startsWith(u'a', Qt::CaseInsensitive), std::move(words)};
}

} // namespace condtree
