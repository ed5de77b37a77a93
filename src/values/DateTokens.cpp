#include "DateTokens.h"

#include <algorithm>

namespace condtree {

namespace {

using Kind = DateToken::Kind;

constexpr int kTooLarge = 100'000;

constexpr bool isDigit(QChar unit)
{
    return unit >= u'0' && unit <= u'9';
}

void merge(DateWord& into, const DateWord& other)
{
    if (into.month == 0)
        into.month = other.month;
    if (into.half == DayHalf::None)
        into.half = other.half;
    into.isWeekday |= other.isWeekday;
    into.isFiller |= other.isFiller;
    into.isTimeFiller |= other.isTimeFiller;
    into.joinsTime |= other.joinsTime;
}

class DateTokenizer final {
public:
    DateTokenizer(QStringView text, const LocaleDateRules& rules)
        : m_rest(text)
        , m_rules(rules)
    {
    }

    std::optional<DateTokens> tokens()
    {
        DateTokens found;
        for (skipBlanks(); !m_rest.isEmpty(); skipBlanks()) {
            const auto token = next();
            if (!token)
                return std::nullopt;
            if (token->kind == Kind::TimeSeparator && !found.isEmpty()
                && found.back().kind == Kind::TimeSeparator)
                continue;
            if (found.size() == kMostDateTokens)
                return std::nullopt;
            found.append(*token);
        }
        return found;
    }

private:
    void skipBlanks()
    {
        const auto* end =
            std::find_if(m_rest.begin(), m_rest.end(), [](QChar unit) { return !unit.isSpace(); });
        m_rest = m_rest.sliced(end - m_rest.begin());
    }

    std::optional<DateToken> next()
    {
        if (isDigit(m_rest.front()))
            return number();
        const auto kind = separator(m_rest.front());
        if (!kind)
            return longestWord();
        m_rest = m_rest.sliced(1);
        return DateToken{*kind};
    }

    DateToken number()
    {
        int value = 0;
        qsizetype length = 0;
        for (; length < m_rest.size() && isDigit(m_rest[length]); ++length)
            value = std::min(value * 10 + (m_rest[length].unicode() - u'0'), kTooLarge);
        m_rest = m_rest.sliced(length);
        return {Kind::Number, value};
    }

    /// With all that it can mean.
    std::optional<DateToken> longestWord()
    {
        qsizetype length = 0;
        DateToken token{Kind::Word};
        for (const auto& [name, meaning] : m_rules.words) {
            // What has no lower case of its own ("ς") may still be the same letter.
            if (name.size() < length || !m_rest.startsWith(name, Qt::CaseInsensitive))
                continue;
            if (name.size() > length)
                token.word = meaning;
            else
                merge(token.word, meaning);
            length = name.size();
        }
        m_rest = m_rest.sliced(length);
        return length > 0 ? std::optional(token) : std::nullopt;
    }

    [[nodiscard]] std::optional<Kind> separator(QChar unit) const
    {
        switch (unit.unicode()) {
        case u'-':
        case u'/':
            return Kind::DateSeparator;
        case u',':
            return Kind::Comma;
        case u'.':
            return m_rules.stopSeparatesDates ? Kind::Stop : Kind::TimeSeparator;
        case u':':
            return Kind::TimeSeparator;
        default:
            return std::nullopt;
        }
    }

    QStringView m_rest;
    const LocaleDateRules& m_rules;
};

} // namespace

bool mayHoldDateWords(QStringView text)
{
    static constexpr QStringView kSeparators = u"-/,.:";
    return std::any_of(text.begin(), text.end(), [](QChar unit) {
        return !isDigit(unit) && !unit.isSpace() && !kSeparators.contains(unit);
    });
}

std::optional<DateTokens> dateTokensOf(QStringView text, const LocaleDateRules& rules)
{
    return DateTokenizer(text, rules).tokens();
}

} // namespace condtree
