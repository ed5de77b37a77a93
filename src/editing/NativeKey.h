#pragma once

#include <condtree/platform/WinTypes.h>

class QKeyEvent;

namespace condtree {

// Bits of the flags that come with a key or a character. Scan codes are not told.
inline constexpr unsigned KeyAltHeld = 1U << 13U;
inline constexpr unsigned KeyRepeated = 1U << 14U;

/// A key press as the native platform tells it: the key, and then the characters that it types.
///
/// Keys have the native virtual-key numbers: letters and digits their capital's code (65 to 90, 48
/// to 57), Return 13 on both keyboards, Escape 27, Tab 9 with and without Shift, Back 8, Delete 46,
/// Insert 45, End 35, Home 36, arrows 37 to 40, Page Up 33, Page Down 34, F1 to F24 112 to 135, the
/// keypad's digits 96 to 105. Punctuation has the numbers of a US keyboard, on any keyboard. Any
/// other key that types a character is 231, any other that types none is 255.
///
/// Control with a letter types the control characters 1 to 26, Escape 27, Tab 9, Back 8 (with
/// Control 127); Delete types none.
struct TypedKey {
    /// 0 for a key pressed with Alt alone, and for Alt itself: it goes to the window's menu, not to
    /// the editor.
    unsigned key = 0;
    unsigned repeatCount = 1;
    unsigned flags = 0;
    CString characters;
};

[[nodiscard]] TypedKey typedKey(const QKeyEvent& event);

} // namespace condtree
