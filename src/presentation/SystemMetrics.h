#pragma once

#include <condtree/platform/WinTypes.h>

#include <optional>

namespace condtree {

/// The logical resolution of the primary screen, horizontally and vertically, in dots per inch.
/// None without a graphical application or a screen.
[[nodiscard]] std::optional<SIZE> primaryScreenDpi();

/// A metric (SM_...) at a resolution, in device-independent pixels; 0 for a metric that is not
/// known.
[[nodiscard]] int systemMetricAt(int metric, const SIZE& dpi);

/// A metric (SM_...) at the primary screen's resolution, 96 dots per inch where there is none.
[[nodiscard]] int realSystemMetric(int metric);

} // namespace condtree
