#pragma once

#include <condtree/platform/WinTypes.h>

#include <QColor>
#include <QPalette>

namespace condtree {

/// The colour of frames and separators.
inline constexpr COLORREF kRowLineColour = 0x00DCA0A0;
/// The colour of the rows' background.
inline constexpr COLORREF kRowBackground = 0x00FFFFFF;

/// An opaque colour; the highest byte is ignored.
[[nodiscard]] QColor toQColor(COLORREF colour);

/// The colour that marks rows as selected: the palette's highlight where it stands out on white (a
/// contrast of at least 3), else its text colour.
[[nodiscard]] COLORREF markColour(const QPalette& palette, QPalette::ColorGroup group);

/// A palette for rows on white, made from the desktop's, in every group of it: its colours of texts
/// and marks where they can be read on white, plain and below the tints of marked rows (a contrast
/// of at least 4.5), else black; its highlight is kept. Only what is not the desktop's own counts
/// as set, so that a widget follows the desktop in everything else.
[[nodiscard]] QPalette paletteOnWhite(const QPalette& desktop);

} // namespace condtree
