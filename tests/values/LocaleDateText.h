#pragma once

#include <condtree/values/DateGrammar.h>

#include <QLocale>
#include <QString>

#include <gtest/gtest.h>

#include <optional>
#include <span>
#include <string>

namespace condtree::test {

/// The year in which the examples are read.
inline constexpr int kCurrentYear = 2026;

/// The fields that a text has in a locale ("de_DE") as "2024-03-05 14:07:33", or "none".
inline std::string read(const QString& text, const QString& locale)
{
    const auto fields = calendarFieldsOf(text, localeDateRules(QLocale(locale)), kCurrentYear);
    if (!fields)
        return "none";
    return QString::asprintf("%04d-%02d-%02d %02d:%02d:%02d", fields->wYear, fields->wMonth,
                             fields->wDay, fields->wHour, fields->wMinute, fields->wSecond)
        .toStdString();
}

struct DateExample {
    QString locale;
    QString text;
    /// As read() has it; a date alone stands for midnight.
    std::string expected;
};

inline void expectAll(std::span<const DateExample> examples)
{
    constexpr std::size_t kDateLength = 10;
    for (const auto& [locale, text, expected] : examples) {
        const bool isDateAlone = expected.size() == kDateLength;
        EXPECT_EQ(read(text, locale), isDateAlone ? expected + " 00:00:00" : expected)
            << locale.toStdString() << ": \"" << text.toStdString() << '"';
    }
}

} // namespace condtree::test
