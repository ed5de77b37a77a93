#pragma once

#include <condtree/platform/Export.h>

#include <QString>

#include <cstddef>
#include <cstdint>

namespace condtree {

using LONG = std::int32_t;
using DWORD = std::uint32_t;
/// A result code: negative means failure.
using HRESULT = std::int32_t;
/// A colour as 0x00BBGGRR.
using COLORREF = std::uint32_t;
using LRESULT = std::intptr_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;

struct POINT {
    LONG x, y;
    bool operator==(const POINT&) const = default;
};

struct SIZE {
    LONG cx, cy;
    bool operator==(const SIZE&) const = default;
};
using CSize = SIZE;

/// A rectangle; right and bottom are exclusive.
struct RECT {
    LONG left, top, right, bottom;
    bool operator==(const RECT&) const = default;
};

struct SYSTEMTIME {
    std::uint16_t wYear, wMonth, wDayOfWeek, wDay, wHour, wMinute, wSecond, wMilliseconds;
};

/// Owned UTF-16 text, implicitly shared. Lengths count code units.
using CString = QString;
using _bstr_t = QString;

inline constexpr HRESULT S_OK = 0;
inline constexpr HRESULT S_FALSE = 1;
inline constexpr HRESULT E_NOTIMPL = static_cast<HRESULT>(0x80004001U);
inline constexpr HRESULT E_POINTER = static_cast<HRESULT>(0x80004003U);
inline constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005U);
inline constexpr HRESULT E_UNEXPECTED = static_cast<HRESULT>(0x8000FFFFU);
inline constexpr HRESULT E_OUTOFMEMORY = static_cast<HRESULT>(0x8007000EU);
inline constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057U);

[[nodiscard]] constexpr bool FAILED(HRESULT hr)
{
    return hr < 0;
}

[[nodiscard]] constexpr bool SUCCEEDED(HRESULT hr)
{
    return hr >= 0;
}

[[nodiscard]] constexpr COLORREF RGB(unsigned red, unsigned green, unsigned blue)
{
    return red | (green << 8U) | (blue << 16U);
}

/// number * numerator / denominator in 64 bits, rounded half away from zero.
/// -1 when the denominator is 0 or the result does not fit an int.
[[nodiscard]] CONDTREE_EXPORT int MulDiv(int number, int numerator, int denominator);

/// Memory that one library allocates and another frees. Null when the memory is exhausted.
[[nodiscard]] CONDTREE_EXPORT void* CoTaskMemAlloc(std::size_t bytes);
/// Frees what CoTaskMemAlloc returned; null does nothing.
CONDTREE_EXPORT void CoTaskMemFree(void* memory);

/// The exception that carries a result code.
class CONDTREE_EXPORT _com_error {
public:
    explicit _com_error(HRESULT code) noexcept
        : m_code(code)
    {
    }
    [[nodiscard]] HRESULT Error() const noexcept { return m_code; }

private:
    HRESULT m_code;
};

} // namespace condtree
