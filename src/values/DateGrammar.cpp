#include "DateGrammar.h"

#include "DateElements.h"
#include "DateTokens.h"

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

constexpr std::uint16_t field(int value)
{
    return static_cast<std::uint16_t>(value);
}

class DateReader final {
public:
    DateReader(std::span<const DateToken> tokens, const LocaleDateRules& rules, int currentYear)
        : m_tokens(tokens)
        , m_rules(rules)
        , m_currentYear(currentYear)
    {
    }

    /// Date, date and time, time, or time and date.
    std::optional<SYSTEMTIME> read()
    {
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

    /// A number alone is none: a separator or a half of the day makes it one.
    [[nodiscard]] bool startsTime() const
    {
        if (m_rules.halfLeads && isDayHalf() && is(Kind::Number, 1))
            return true;
        return is(Kind::Number) && (is(Kind::TimeSeparator, 1) || isDayHalf(1));
    }

    bool readTime()
    {
        DayHalf half = takeDayHalf();
        std::array<int, 3> parts{};
        parts[0] = m_tokens[m_at++].number;
        for (std::size_t i = 1; i < parts.size() && is(Kind::TimeSeparator); ++i) {
            ++m_at;
            if (!is(Kind::Number))
                return false;
            parts[i] = m_tokens[m_at++].number;
        }
        if (half == DayHalf::None)
            half = takeDayHalf();
        auto [hour, minute, second] = parts;
        if (hour > 23 || minute > 59 || second > 59)
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
    const auto tokens = dateTokensOf(null < 0 ? text : text.first(null), rules);
    return tokens ? DateReader(*tokens, rules, currentYear).read() : std::nullopt;
}

} // namespace condtree
