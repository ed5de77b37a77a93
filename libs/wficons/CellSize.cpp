#include "CellSize.h"

#include <condtree/platform/WfIcons.h>

#include <algorithm>

namespace condtree {

namespace {

constexpr int kDesignDpi = 96;
constexpr int kSmallIcon = 16;

int inRange(double pixels)
{
    return qRound(std::clamp(pixels, 1.0, double{kWfLargestHeight}));
}

} // namespace

QSize smallIconCell(const SIZE& dpi, double pixelsPerPoint)
{
    const int width = std::max(1, MulDiv(kSmallIcon, dpi.cx, kDesignDpi));
    const int height = std::max(1, MulDiv(kSmallIcon, dpi.cy, kDesignDpi));
    const int pixels = inRange(height * pixelsPerPoint);
    // A strip is cut at whole pixels, the fraction left out.
    const qint64 cut = qint64{width} * pixels / height;
    return {inRange(static_cast<double>(cut)), pixels};
}

} // namespace condtree
