#include "SystemText.h"

#include <algorithm>
#include <array>

namespace condtree {

namespace {

struct SystemEntry {
    DWORD code;
    const char16_t* text;
};

// The codes of the platform that a data-access library is likely to pass on. Ascending.
constexpr std::array<SystemEntry, 16> kSystemTexts{{
    {0x80004002, u"The object does not offer the interface that was asked for."},
    {0x80004004, u"The operation was aborted."},
    {0x80020009, u"The called object raised an exception."},
    {0x80040154, u"The class is not registered."},
    {0x800401F0, u"The component library has not been initialised."},
    {0x80070002, u"The file was not found."},
    {0x80070003, u"The path was not found."},
    {0x80070005, u"Access is denied."},
    {0x80070006, u"The handle is invalid."},
    {0x80070013, u"The medium is write-protected."},
    {0x80070020, u"The file is in use by another process."},
    {0x80070035, u"The network path was not found."},
    {0x80070070, u"There is not enough space on the disk."},
    {0x800700B7, u"The file exists already."},
    {0x800704C7, u"The user cancelled the operation."},
    {0x800705B4, u"The operation took too long and was given up."},
}};

static_assert(std::is_sorted(kSystemTexts.begin(), kSystemTexts.end(),
                             [](const SystemEntry& a, const SystemEntry& b) {
                                 return a.code < b.code;
                             }));

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
