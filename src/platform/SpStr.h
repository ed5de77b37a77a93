#pragma once

#include <condtree/platform/WinTypes.h>

#include <utility>

namespace condtree {

/// The data-access library's text: owned UTF-16, copied by value.
class SpStr {
public:
    SpStr() = default;
    SpStr(const CString& text)
        : m_text(text)
    {
    }
    /// Null gives the empty text.
    SpStr(const char16_t* text)
        : m_text(QStringView(text).toString())
    {
    }

    /// The length in UTF-16 code units.
    [[nodiscard]] int length() const { return static_cast<int>(m_text.size()); }
    [[nodiscard]] CString str() const { return m_text; }
    operator CString() const { return m_text; }

private:
    CString m_text;
};

// One exact overload for each right-hand side, so that no conversion is ambiguous.
[[nodiscard]] inline SpStr operator+(const SpStr& a, const CString& b)
{
    return SpStr(a.str() + b);
}
[[nodiscard]] inline SpStr operator+(const SpStr& a, const SpStr& b)
{
    return a + b.str();
}
[[nodiscard]] inline SpStr operator+(const SpStr& a, const char16_t* b)
{
    return a + QStringView(b).toString();
}
[[nodiscard]] inline bool operator==(const SpStr& a, const CString& b)
{
    return a.str() == b;
}
[[nodiscard]] inline bool operator==(const SpStr& a, const SpStr& b)
{
    return a.str() == b.str();
}
[[nodiscard]] inline bool operator==(const SpStr& a, const char16_t* b)
{
    return a.str() == QStringView(b);
}

} // namespace condtree
