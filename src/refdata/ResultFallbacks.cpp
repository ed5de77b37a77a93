#include "ResultFallbacks.h"

#include <condtree/platform/SystemText.h>

#include <algorithm>
#include <array>

namespace condtree {

namespace {

/// The texts of the platform's internet transfer, by the low half of their code.
struct TransferEntry {
    int number;
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

CString transferText(int number)
{
    const auto entry =
        std::find_if(kTransferTexts.begin(), kTransferTexts.end(),
                     [number](const TransferEntry& e) { return e.number == number; });
    return entry == kTransferTexts.end()
               ? QString::asprintf("A WinINet error occured (code=%d).", number)
               : QString::fromLatin1(entry->text);
}

CString archiveText(DWORD code)
{
    return QString::asprintf("Archive server revision control error %d (0x0%X)",
                             static_cast<int>(code - kFirstArchiveCode), code);
}

CString unknownText(DWORD code)
{
    const bool isInterface = code >= kFirstInterfaceCode && code <= kLastInterfaceCode;
    if (isInterface && lowHalf(code) != kInterfaceBase)
        return QString::asprintf("IDispatch error #%d", lowHalf(code) - kInterfaceBase);
    return QString::asprintf("Unknown error 0x%0lX", static_cast<unsigned long>(code));
}

} // namespace

CString withoutLineEnd(CString text)
{
    if (text.endsWith(u'\n'))
        text.chop(1);
    if (text.endsWith(u'\r'))
        text.chop(1);
    return text;
}

CString fallbackText(HRESULT code)
{
    const auto bits = static_cast<DWORD>(code);
    if (bits >= kFirstTransferCode && bits <= kLastTransferCode)
        return transferText(lowHalf(bits));
    if (bits >= kFirstArchiveCode && bits <= kLastArchiveCode)
        return archiveText(bits);
    CString text = withoutLineEnd(systemText(code));
    return text.isEmpty() ? unknownText(bits) : text;
}

} // namespace condtree
