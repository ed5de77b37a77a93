#pragma once

#include "LocaleDateRules.h"

#include <QStringView>
#include <QVarLengthArray>

#include <optional>

namespace condtree {

struct DateToken {
    enum class Kind { Number, Word, Comma, Stop, DateSeparator, TimeSeparator };

    Kind kind;
    /// The value of a number; what is too large for any field stays so.
    int number = 0;
    DateWord word = {};
};

/// No date or time is made of more; longer texts are given up.
inline constexpr qsizetype kMostDateTokens = 24;

using DateTokens = QVarLengthArray<DateToken, kMostDateTokens>;

/// False for a text that is cut the same way without the words of a locale.
[[nodiscard]] bool mayHoldDateWords(QStringView text);

/// Cuts a text, folded as the rules have it, into numbers, words of the locale and separators;
/// blanks only end a number. A run of separators of times is one. None when there is anything else
/// in the text.
[[nodiscard]] std::optional<DateTokens> dateTokensOf(QStringView text,
                                                     const LocaleDateRules& rules);

} // namespace condtree
