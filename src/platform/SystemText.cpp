#include "SystemText.h"

#include <algorithm>
#include <array>

namespace condtree {

namespace {

struct SystemEntry {
    DWORD code;
    const char16_t* text;
};

constexpr auto kSystemTexts = std::to_array<SystemEntry>({
#include "system_texts.inc"
});

static_assert(std::adjacent_find(kSystemTexts.begin(), kSystemTexts.end(),
                                 [](const SystemEntry& a, const SystemEntry& b) {
                                     return a.code >= b.code;
                                 })
                  == kSystemTexts.end(),
              "system_texts.tsv is not ascending by code, or has a code twice");

} // namespace

CString systemText(HRESULT code)
{
    const auto wanted = static_cast<DWORD>(code);
    const auto found =
        std::lower_bound(kSystemTexts.begin(), kSystemTexts.end(), wanted,
                         [](const SystemEntry& entry, DWORD value) { return entry.code < value; });
    if (found == kSystemTexts.end() || found->code != wanted)
        return {};
    return QString::fromUtf16(found->text);
}

} // namespace condtree
