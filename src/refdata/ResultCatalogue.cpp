#include "ResultCatalogue.h"

#include <condtree/platform/SystemRequirements.h>

#include <algorithm>
#include <array>
#include <optional>
#include <stdexcept>

namespace condtree {

namespace {

struct CatalogueEntry {
    std::optional<DWORD> code; ///< None for a part of a message of several texts.
    TextRef text;
};

constexpr auto kCatalogue = std::to_array<CatalogueEntry>({
#include "result_codes.inc"
});

static_assert(std::adjacent_find(kCatalogue.begin(), kCatalogue.end(),
                                 [](const CatalogueEntry& a, const CatalogueEntry& b) {
                                     return a.code.has_value() && a.code >= b.code;
                                 })
                  == kCatalogue.end(),
              "result_codes.tsv is not ascending by code, or has a code twice");

/// The text without a code that has an id; the build fails when there is not exactly one.
consteval TextRef partOfMessage(LONG id)
{
    const auto isIt = [id](const CatalogueEntry& entry) {
        return !entry.code.has_value() && entry.text.id == id;
    };
    if (std::count_if(kCatalogue.begin(), kCatalogue.end(), isIt) != 1)
        throw std::logic_error("result_codes.tsv lacks a part of a message, or has it twice");
    return std::find_if(kCatalogue.begin(), kCatalogue.end(), isIt)->text;
}

constexpr TextRef kDatabaseNotSupported = partOfMessage(183);
constexpr TextRef kSupportedVersions = partOfMessage(196);
constexpr TextRef kSystemNotSupported = partOfMessage(274);

// The same in every language.
constexpr const char16_t* kSupportedDatabases =
    u"\n  SQL Server 2019 or later.\n  For SQL Server 2019 Cumulative Update 22 or later.";

void append(CString& text, const char16_t* more)
{
    text += QStringView(more);
}

} // namespace

const TextRef* findResultText(DWORD code)
{
    const auto entry =
        std::lower_bound(kCatalogue.begin(), kCatalogue.end(), code,
                         [](const CatalogueEntry& e, DWORD value) { return e.code < value; });
    return entry == kCatalogue.end() || entry->code != code ? nullptr : &entry->text;
}

CString translated(const TextRef& text, const StringSource& strings)
{
    const CString found = strings ? text.from(strings) : CString();
    return found.isEmpty() ? QString::fromUtf16(text.defaultText) : found;
}

CString databaseVersionText(const StringSource& strings)
{
    CString text = translated(kDatabaseNotSupported, strings);
    text += u'\n';
    text += translated(kSupportedVersions, strings);
    append(text, kSupportedDatabases);
    return text;
}

CString systemVersionText(const StringSource& strings)
{
    CString text = translated(kSystemNotSupported, strings);
    for (const char16_t* line : systemRequirements()) {
        text += u'\n';
        append(text, line);
    }
    return text;
}

} // namespace condtree
