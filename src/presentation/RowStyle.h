#pragma once

#include <condtree/platform/WinTypes.h>

#include <QColor>
#include <QPalette>

namespace condtree {

/// The colour of frames and separators.
inline constexpr COLORREF kRowLineColour = 0x00DCA0A0;
/// The colour of the rows' background.
inline constexpr COLORREF kRowBackground = 0x00FFFFFF;

[[nodiscard]] QColor toQColor(COLORREF colour);

/// A palette for rows on white, made from the desktop's: its text colour where that can be read on
/// white, else black; its highlight is kept.
[[nodiscard]] QPalette paletteOnWhite(const QPalette& desktop);

} // namespace condtree
