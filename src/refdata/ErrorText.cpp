#include "ErrorText.h"

#include <condtree/platform/SystemText.h>
#include <condtree/refdata/OutOfMemory.h>

#include <algorithm>
#include <array>

namespace condtree {

namespace {

/// The key and the section under which the messages of result codes are translated.
constexpr const char16_t* kErrorKey = u"ErrorCodes";
constexpr const char16_t* kErrorSection = u"ErrorCodes";

struct CatalogueEntry {
    DWORD code;
    LONG id;
    const char16_t* defaultText; ///< Empty where no English text is known.
};

constexpr const char16_t* kUnspecified = u"An unspecified error occurred.";
constexpr const char16_t* kNoDatabase =
    u"Could not open database. This could happen if the network connection is broken or if the "
    u"database has been removed.";

// Ascending by code; the ids name the translations and stay as they are.
constexpr std::array<CatalogueEntry, 23> kCatalogue{{
    {0x00000000, 0, u"The method was successfully executed."},
    {0x00000001, 1, u"The method was successfully executed but returned 'false'."},
    {0x00040218, 26,
     u"Administrated plugins successfully. You should now recreate the plugin menu."},
    {0x00040219, 27, u"Menu item not valid in this context due to specified flags."},
    {0x80004001, 64, u"The called method is not implemented."},
    {0x80004003, 32, u"An invalid pointer was supplied to the method."},
    {0x80004005, 66, kUnspecified},
    {0x8000FFFF, 66, kUnspecified},
    {0x80040200, 2, u""},
    {0x80040201, 3, u"The program used an object without initializing it properly first."},
    {0x80040202, 4, u"The folder does not have a parent."},
    {0x80040203, 5, u"You don't have permission to perform this action."},
    {0x80040204, 6, u"You haven't logged in on the file vault."},
    {0x80040205, 7, u"You tried to log in twice."},
    {0x80040206, 8, kNoDatabase},
    {0x80040207, 9, u"Could not access the item in the database."},
    {0x80040208, 10, u"You tried to get an element from a list where the cursor is off-right."},
    {0x80040209, 11, u"Error accessing the revision management system. Network connection down?"},
    {0x8004020A, 12,
     u"An attempt was made to access a record in the database that is locked by another user.\n"
     u"This can sometimes happen during high workload on the database.\n"
     u"Usually this is solved if you try the operation again."},
    {0x8004020B, 13,
     u"An attempt was made to access a file that is exclusively opened by another application."},
    {0x80040221, 8, kNoDatabase},
    {0x8007000E, 33, u"Not enough memory to complete the operation."},
    {0x80070057, 34, u"An invalid argument was given to the method."},
}};

static_assert(std::is_sorted(kCatalogue.begin(), kCatalogue.end(),
                             [](const CatalogueEntry& a, const CatalogueEntry& b) {
                                 return a.code < b.code;
                             }));

/// The texts of the platform's internet transfer, by the low half of their code; not translated.
struct TransferEntry {
    DWORD number;
    const char* text;
};

constexpr DWORD kFirstTransferCode = 0x80072EE0;
constexpr DWORD kLastTransferCode = 0x80072FA0;
constexpr std::array<TransferEntry, 5> kTransferTexts{{
    {12007, "The server name could not be resolved."},
    {12029, "The attempt to connect to the server failed."},
    {12030, "The connection with the server has been terminated."},
    {12031, "The connection with the server has been reset."},
    {12163, "The Internet connection has been lost"},
}};

constexpr DWORD kFirstArchiveCode = 0x80040232;
constexpr DWORD kLastArchiveCode = 0x800402C4;

constexpr DWORD kFirstInterfaceCode = 0x80040000;
constexpr DWORD kLastInterfaceCode = 0x8004FFFF;
/// Where an interface's own codes begin in the low half; that very code is none of them.
constexpr int kInterfaceBase = 0x200;

constexpr int lowHalf(DWORD code)
{
    return static_cast<int>(code & 0xFFFFU);
}

CString catalogueText(DWORD code, const StringSource& strings)
{
    const auto entry =
        std::lower_bound(kCatalogue.begin(), kCatalogue.end(), code,
                         [](const CatalogueEntry& e, DWORD value) { return e.code < value; });
    if (entry == kCatalogue.end() || entry->code != code)
        return {};
    const TextRef text{entry->id, kErrorKey, kErrorSection, entry->defaultText};
    const CString translated = strings ? text.from(strings) : CString();
    return translated.isEmpty() ? QString::fromUtf16(entry->defaultText) : translated;
}

CString transferText(DWORD code)
{
    if (code < kFirstTransferCode || code > kLastTransferCode)
        return {};
    const int number = lowHalf(code);
    for (const TransferEntry& entry : kTransferTexts) {
        if (static_cast<int>(entry.number) == number)
            return QString::fromLatin1(entry.text);
    }
    return QString::asprintf("A WinINet error occured (code=%d).", number);
}

CString archiveText(DWORD code)
{
    if (code < kFirstArchiveCode || code > kLastArchiveCode)
        return {};
    return QString::asprintf("Archive server revision control error %d (0x0%X)",
                             static_cast<int>(code - kFirstArchiveCode), code);
}

CString unknownText(DWORD code)
{
    const bool isInterface = code >= kFirstInterfaceCode && code <= kLastInterfaceCode;
    if (isInterface && lowHalf(code) != kInterfaceBase)
        return QString::asprintf("IDispatch error #%d", lowHalf(code) - kInterfaceBase);
    return QString::asprintf("Unknown error 0x%0X", code);
}

CString resultText(HRESULT result, const StringSource& strings)
{
    const auto code = static_cast<DWORD>(result);
    CString text = catalogueText(code, strings);
    if (text.isEmpty())
        text = transferText(code);
    if (text.isEmpty())
        text = archiveText(code);
    if (text.isEmpty())
        text = systemText(result);
    return text.isEmpty() ? unknownText(code) : text;
}

} // namespace

_bstr_t ResultCodeText(HRESULT code, const StringSource& strings)
{
    return raisingOutOfMemory([&] { return resultText(code, strings); });
}

} // namespace condtree
