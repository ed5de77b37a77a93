#pragma once

#include <condtree/platform/WinTypes.h>

#include <QStringView>

// How the native platform reads and compares texts.
namespace condtree {

/// The number at the start of a text: leading blanks, one sign, decimal digits, saturated to 32
/// bits. 0 for a text without digits there.
[[nodiscard]] CONDTREE_EXPORT LONG leadingNumber(QStringView text);

/// A key that two texts share exactly when the native locale-aware comparison, case ignored, calls
/// them equal: canonical equivalents, full case folding, ignorable characters.
[[nodiscard]] CONDTREE_EXPORT CString localeFoldedKey(const CString& text);

/// A key that two texts share exactly when they are equal by simple case folding, code point by
/// code point, without locale.
[[nodiscard]] CONDTREE_EXPORT CString simpleFoldedKey(const CString& text);

/// Whether two texts are equal by simple case folding; allocates nothing.
[[nodiscard]] CONDTREE_EXPORT bool equalsNoCase(QStringView a, QStringView b);

} // namespace condtree
