#pragma once

#include <condtree/editing/ChoiceEntry.h>
#include <condtree/platform/TextRef.h>

#include <string>
#include <vector>

/// Lists of entries as text, and string libraries that show what they were asked.
namespace condtree::test {

using Lines = std::vector<std::string>;

/// A line an entry: `code|text|image`.
inline Lines toLines(const ChoiceEntries& entries)
{
    Lines lines;
    for (const ChoiceEntry& entry : entries)
        lines.push_back(std::to_string(entry.code) + '|' + entry.text.toStdString() + '|'
                        + std::to_string(entry.image));
    return lines;
}

/// Answers with the default.
inline const StringSource kEnglish = [](LONG, const char16_t*, const char16_t*,
                                        const char16_t* text) { return QString::fromUtf16(text); };

/// Answers with everything it was asked: `key section id (default)`.
inline const StringSource kAsked = [](LONG id, const char16_t* key, const char16_t* section,
                                      const char16_t* text) {
    return QString::fromUtf16(key) + QLatin1Char(' ') + QString::fromUtf16(section)
           + QLatin1Char(' ') + QString::number(id) + QLatin1String(" (") + QString::fromUtf16(text)
           + QLatin1Char(')');
};

} // namespace condtree::test
