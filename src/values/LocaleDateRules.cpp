#include "LocaleDateRules.h"

#include <QStringList>

#include <algorithm>
#include <utility>

namespace condtree {

namespace {

using Words = std::vector<NamedDateWord>;

constexpr QStringView kDateFields = u"dMy";
constexpr QStringView kTimeFields = u"hHmszAaPpt";

constexpr Qt::CaseSensitivity kAnyCase = Qt::CaseInsensitive;

/// A field of a format ("yyyy"), or what stands between two fields, without its quotes.
struct FormatPart {
    bool isField;
    QString text;
};

std::vector<FormatPart> partsOf(QStringView format, QStringView fields)
{
    std::vector<FormatPart> parts;
    bool isQuoted = false;
    for (const QChar unit : format) {
        if (unit == u'\'') {
            isQuoted = !isQuoted;
            continue;
        }
        const bool isField = !isQuoted && fields.contains(unit);
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

/// Whether a part stands between hour and minute.
bool isInTime(const std::vector<FormatPart>& parts, std::size_t at)
{
    return at > 0 && at + 1 < parts.size() && parts[at - 1].text.startsWith(u'h', kAnyCase)
           && parts[at + 1].text.startsWith(u'm');
}

/// The words of what stands between two fields, but for one that touches the number before.
QStringList wordsOf(const FormatPart& part, bool isBehindNumber)
{
    QStringList pieces = part.text.simplified().split(u' ');
    if (isBehindNumber && !part.text.front().isSpace())
        pieces.removeFirst();
    QStringList words;
    for (QString& piece : pieces) {
        if (piece.endsWith(u','))
            piece.chop(1);
        if (!piece.isEmpty() && piece.front().isLetter())
            words.push_back(piece);
    }
    return words;
}

void addDateFillers(Words& words, const std::vector<FormatPart>& parts)
{
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (parts[i].isField)
            continue;
        for (const QString& word : wordsOf(parts[i], i > 0 && isNumber(parts[i - 1])))
            words.push_back({word, {.isFiller = true}});
    }
}

void addTimeFillers(Words& words, const std::vector<FormatPart>& parts)
{
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (parts[i].isField)
            continue;
        const bool joins = isInTime(parts, i);
        for (const QString& word : wordsOf(parts[i], i > 0 && parts[i - 1].isField))
            words.push_back({word, {.isTimeFiller = !joins, .joinsTime = joins}});
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

/// At one go: folding costs more by the call than by the letter.
void foldNames(LocaleDateRules& rules)
{
    constexpr QChar kBetweenNames(1);
    QString all;
    for (const NamedDateWord& word : rules.words)
        all += word.name + kBetweenNames;
    const QStringList names = rules.folded(all).split(kBetweenNames);
    for (std::size_t i = 0; i < rules.words.size(); ++i)
        rules.words[i].name = names[static_cast<qsizetype>(i)];
}

} // namespace

FieldOrder fieldOrderOf(QStringView dateFormat)
{
    return orderOf(partsOf(dateFormat, kDateFields));
}

QString LocaleDateRules::folded(QStringView text) const
{
    QString plain = text.toString().normalized(QString::NormalizationForm_C);
    for (QChar& unit : plain) {
        if (unit.isSpace())
            unit = u' ';
    }
    return locale.toLower(plain);
}

LocaleDateRules wordlessDateRules(const QLocale& locale)
{
    const auto date = partsOf(locale.dateFormat(QLocale::ShortFormat), kDateFields);
    const QString timeForm = locale.timeFormat(QLocale::ShortFormat);
    return {.order = orderOf(date),
            .stopSeparatesDates = hasStopBehindField(date),
            .stopClosesDates = isClosedByStop(date),
            .stopSeparatesTimes = timeForm.contains(u"h.m", kAnyCase),
            .halfLeads = timeForm.startsWith(u'a', kAnyCase),
            .words = {},
            .locale = locale};
}

LocaleDateRules localeDateRules(const QLocale& locale)
{
    LocaleDateRules rules = wordlessDateRules(locale);
    Words& words = rules.words;
    addNames(words, locale);
    addDayHalves(words, locale);
    addDateFillers(words, partsOf(locale.dateFormat(QLocale::LongFormat), kDateFields));
    addTimeFillers(words, partsOf(locale.timeFormat(QLocale::ShortFormat), kTimeFields));
    foldNames(rules);
    return rules;
}

} // namespace condtree
