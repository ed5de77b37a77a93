#pragma once

#include <condtree/platform/StoredProcs.h>

// The entrance of the data-access library over SQL.
namespace condtree {

class ResultTexts;

// The result codes that the library answers with beside S_OK, E_OUTOFMEMORY, E_INVALIDARG,
// E_POINTER, E_NOTIMPL, E_UNEXPECTED and E_FAIL. All have a text in the catalogue of result codes;
// those of SpTransitions.h get theirs from SpAddResultTexts.

/// The database is newer than this library, or its driver is missing.
inline constexpr HRESULT SP_E_NOT_INITIALISED = static_cast<HRESULT>(0x80040201U);
/// The file may not be read, or not be written.
inline constexpr HRESULT SP_E_PERMISSION = static_cast<HRESULT>(0x80040203U);
/// No such user: nobody is logged in.
inline constexpr HRESULT SP_E_NOT_LOGGED_IN = static_cast<HRESULT>(0x80040204U);
/// The database cannot be opened or reached, is damaged, has lost a table, or is none of ours.
inline constexpr HRESULT SP_E_CANNOT_OPEN = static_cast<HRESULT>(0x80040206U);
/// There is no such record, or it breaks the rules of its table or does not fit.
inline constexpr HRESULT SP_E_NO_ACCESS_TO_ITEM = static_cast<HRESULT>(0x80040207U);
/// Somebody else held the database for longer than the busy timeout.
inline constexpr HRESULT SP_E_LOCKED = static_cast<HRESULT>(0x8004020AU);

/// Opens a database and logs a user in. Returns a manager with one reference, to be given back by
/// Release(); null on failure. *result, unless result is null, receives S_OK or the failure. What
/// the database itself said of a failure goes to the log (category condtree.storedprocs) and
/// nowhere else.
///
/// url is sqlite:///PATH with an absolute path, in which %XX stands for a byte of UTF-8
/// (SpSqliteUrl makes one). A missing or empty file becomes a new database, whose only user is
/// "admin"; its folder must exist. An older database is brought up to date. ?busy_timeout=MS, 0 to
/// 60000, says how long to wait for somebody else's lock; 1000 where it is missing. postgresql://
/// answers E_NOTIMPL.
///
/// userName is a login, case ignored. An empty one means the user of the operating system where the
/// database knows that login, else the user with the lowest id.
///
/// The manager and its procedure objects belong to the calling thread and answer E_UNEXPECTED on
/// any other; AddRef and Release may be called anywhere. A QCoreApplication must exist.
[[nodiscard]] CONDTREE_EXPORT SpMgr* SpConnect(const CString& url, const CString& userName,
                                               HRESULT* result);

/// Adds the messages of the library's own result codes (SP_E_CHANGED, SP_E_BAD_TEXT, SP_E_TOO_LONG)
/// to those that a control knows: English, with the ids, the key and the section "StoredProcs" that
/// translations are kept under. To be called by hosts, once for each Services::resultTexts.
CONDTREE_EXPORT void SpAddResultTexts(ResultTexts& texts);

/// The URL of a database file, given by an absolute path. Empty for a relative path and for text
/// that no path can hold (U+0000, unpaired surrogates).
[[nodiscard]] CONDTREE_EXPORT CString SpSqliteUrl(const CString& path);

} // namespace condtree
