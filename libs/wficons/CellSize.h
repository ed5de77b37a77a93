#pragma once

#include <condtree/platform/WinTypes.h>

#include <QSize>

namespace condtree {

/// The pixels of a small icon, which is 16 by 16 at 96 dots per inch, at a logical resolution on a
/// screen with so many pixels a point. As wide for its height as an image list cuts strips; no side
/// is less than 1 or more than kWfLargestHeight.
[[nodiscard]] QSize smallIconCell(const SIZE& dpi, double pixelsPerPoint);

} // namespace condtree
