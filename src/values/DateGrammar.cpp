#include "DateGrammar.h"

#include "DateElements.h"
#include "DateTokens.h"

#include <algorithm>
#include <array>
#include <span>

namespace condtree {

namespace {

using Kind = DateToken::Kind;

constexpr bool isDateSeparator(Kind kind)
{
    return kind == Kind::DateSeparator || kind == Kind::Comma || kind == Kind::Stop;
}

bool isFiller(const DateToken& token)
{
    return token.word.isFiller && token.word.month == 0 && !token.word.isWeekday;
}

/// Whether day, month and year are there.
bool isWhole(std::span<const DateToken> elements)
{
    const auto numbers = std::ranges::count(elements, Kind::Number, &DateToken::kind);
    const bool hasMonth =
        std::ranges::any_of(elements, [](const DateToken& token) { return token.word.month != 0; });
    return numbers == 3 || (numbers == 2 && hasMonth);
}

constexpr int kHours = 24;
constexpr int kMinutes = 60;

constexpr std::uint16_t field(int value)
{
    return static_cast<std::uint16_t>(value);
}

class LocaleDateReader final {
public:
    LocaleDateReader(std::span<const DateToken> tokens, const LocaleDateRules& rules,
                     int currentYear)
        : m_tokens(tokens)
        , m_rules(rules)
        , m_currentYear(currentYear)
    {
    }

    /// Date, date and time, time, or time and date.
    std::optional<SYSTEMTIME> read()
    {
        if (isStopGroupAlone())
            return std::nullopt;
        const bool timeLeads = startsTime();
        if (timeLeads && !readTime())
            return std::nullopt;
        if (timeLeads && atEnd())
            return m_fields;
        if (timeLeads && is(Kind::Comma))
            ++m_at;
        if (!readDate())
            return std::nullopt;
        if (!timeLeads && !atEnd() && !readTime())
            return std::nullopt;
        return atEnd() ? std::optional(m_fields) : std::nullopt;
    }

private:
    [[nodiscard]] bool atEnd() const { return m_at == m_tokens.size(); }

    [[nodiscard]] bool is(Kind kind, std::size_t ahead = 0) const
    {
        return m_at + ahead < m_tokens.size() && m_tokens[m_at + ahead].kind == kind;
    }

    [[nodiscard]] bool isDayHalf(std::size_t ahead = 0) const
    {
        return is(Kind::Word, ahead) && m_tokens[m_at + ahead].word.half != DayHalf::None;
    }

    [[nodiscard]] bool isTimeFiller(std::size_t ahead) const
    {
        return is(Kind::Word, ahead) && m_tokens[m_at + ahead].word.isTimeFiller;
    }

    [[nodiscard]] bool isTimeJoint(std::size_t ahead) const
    {
        return is(Kind::TimeSeparator, ahead)
               || (is(Kind::Word, ahead) && m_tokens[m_at + ahead].word.joinsTime);
    }

    /// "14.07" where both dates and times are written so.
    [[nodiscard]] bool isStopGroup() const
    {
        return m_rules.stopSeparatesDates && m_rules.stopSeparatesTimes && is(Kind::Number)
               && is(Kind::Stop, 1) && is(Kind::Number, 2);
    }

    /// Such a group is all that there is, and could be a time as well as a date.
    [[nodiscard]] bool isStopGroupAlone() const
    {
        return isStopGroup() && m_tokens.size() == 3 && m_tokens[0].number < kHours
               && m_tokens[2].number < kMinutes;
    }

    /// A number alone is none: a separator or a half of the day makes it one.
    [[nodiscard]] bool startsTime() const
    {
        std::size_t at = behindTimeFillers(0);
        if (m_rules.halfLeads && isDayHalf(at) && is(Kind::Number, behindTimeFillers(at + 1)))
            return true;
        return is(Kind::Number, at) && (isTimeJoint(at + 1) || isDayHalf(at + 1));
    }

    [[nodiscard]] std::size_t behindTimeFillers(std::size_t ahead) const
    {
        while (isTimeFiller(ahead))
            ++ahead;
        return ahead;
    }

    void skipTimeFillers() { m_at += behindTimeFillers(0); }

    bool readTime()
    {
        skipTimeFillers();
        DayHalf half = takeDayHalf();
        skipTimeFillers();
        const bool hasStops = isStopGroup();
        std::array<int, 3> parts{};
        parts[0] = m_tokens[m_at++].number;
        for (std::size_t i = 1; i < parts.size(); ++i) {
            if (hasStops ? !is(Kind::Stop) : !isTimeJoint(0))
                break;
            ++m_at;
            if (!is(Kind::Number))
                return false;
            parts[i] = m_tokens[m_at++].number;
        }
        if (half == DayHalf::None)
            half = takeDayHalf();
        skipTimeFillers();
        return setTime(parts, half);
    }

    bool setTime(std::array<int, 3> parts, DayHalf half)
    {
        auto [hour, minute, second] = parts;
        if (hour >= kHours || minute >= kMinutes || second >= kMinutes)
            return false;
        if (half == DayHalf::Am && hour == 12)
            hour = 0;
        else if (half == DayHalf::Pm && hour < 12)
            hour += 12;
        m_fields.wHour = field(hour);
        m_fields.wMinute = field(minute);
        m_fields.wSecond = field(second);
        return true;
    }

    DayHalf takeDayHalf() { return isDayHalf() ? m_tokens[m_at++].word.half : DayHalf::None; }

    /// Up to the end or to where a time starts.
    bool readDate()
    {
        DateTokens elements;
        bool isBehindSeparator = true;
        for (; !atEnd() && !startsTime(); ++m_at) {
            if (isStopTimeBehind(elements, isBehindSeparator))
                break;
            const DateToken& token = m_tokens[m_at];
            const bool isSeparator = isDateSeparator(token.kind);
            const bool isSecond = isSeparator && isBehindSeparator && !isCommaBehindClosingStop();
            if (isSecond || token.kind == Kind::TimeSeparator)
                return false;
            isBehindSeparator = isSeparator;
            if (isSeparator || (isFiller(token) && !elements.isEmpty()))
                continue;
            elements.append(token);
        }
        if (isBehindSeparator && !mayEndDate())
            return false;
        const QDate date = dateOfElements(elements, m_rules.order, m_currentYear);
        m_fields.wYear = field(date.year());
        m_fields.wMonth = field(date.month());
        m_fields.wDay = field(date.day());
        return date.isValid();
    }

    /// As in "28.12.2024 14.07": nothing but a blank or a comma joins it to a date that is whole.
    [[nodiscard]] bool isStopTimeBehind(std::span<const DateToken> elements,
                                        bool isBehindSeparator) const
    {
        return isStopGroup() && isWhole(elements)
               && (!isBehindSeparator || m_tokens[m_at - 1].kind == Kind::Comma);
    }

    [[nodiscard]] bool isBehindClosingStop() const
    {
        return m_rules.stopClosesDates && m_at > 0 && m_tokens[m_at - 1].kind == Kind::Stop;
    }

    /// As in "2024. december 28., szombat".
    [[nodiscard]] bool isCommaBehindClosingStop() const
    {
        return is(Kind::Comma) && isBehindClosingStop();
    }

    /// Whether a date may end in the separator that was read last.
    [[nodiscard]] bool mayEndDate() const
    {
        const bool isBehindComma = m_at > 0 && m_tokens[m_at - 1].kind == Kind::Comma;
        return (isBehindComma && !atEnd()) || isBehindClosingStop();
    }

    std::span<const DateToken> m_tokens;
    const LocaleDateRules& m_rules;
    int m_currentYear;
    std::size_t m_at = 0;
    SYSTEMTIME m_fields{.wYear = 1899,
                        .wMonth = 12,
                        .wDayOfWeek = 0,
                        .wDay = 30,
                        .wHour = 0,
                        .wMinute = 0,
                        .wSecond = 0,
                        .wMilliseconds = 0};
};

} // namespace

std::optional<SYSTEMTIME> calendarFieldsOf(QStringView text, const LocaleDateRules& rules,
                                           int currentYear)
{
    const qsizetype null = text.indexOf(QChar::Null);
    if (null >= 0)
        text = text.first(null);
    const QString folded = mayHoldDateWords(text) ? rules.folded(text) : QString();
    const auto tokens = dateTokensOf(folded.isNull() ? text : folded, rules);
    return tokens ? LocaleDateReader(*tokens, rules, currentYear).read() : std::nullopt;
}

} // namespace condtree
