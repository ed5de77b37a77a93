#include "SystemMetrics.h"

#include <condtree/platform/Services.h>

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <array>

namespace condtree {

namespace {

constexpr int kDesignDpi = 96;

struct Metric {
    int metric;
    /// At 96 dots per inch.
    int size;
    /// Which of the two resolutions it grows with.
    LONG SIZE::*axis;
};

constexpr std::array<Metric, 9> kMetrics{{
    {SM_CXVSCROLL, 17, &SIZE::cx},
    {SM_CXICON, 32, &SIZE::cx},
    {SM_CYICON, 32, &SIZE::cy},
    {SM_CYMENU, 19, &SIZE::cy},
    {SM_CXDOUBLECLK, 4, &SIZE::cx},
    {SM_CYDOUBLECLK, 4, &SIZE::cy},
    {SM_CXEDGE, 2, &SIZE::cx},
    {SM_CXSMICON, 16, &SIZE::cx},
    {SM_CYSMICON, 16, &SIZE::cy},
}};

} // namespace

std::optional<SIZE> primaryScreenDpi()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr)
        return std::nullopt;
    return SIZE{qRound(screen->logicalDotsPerInchX()), qRound(screen->logicalDotsPerInchY())};
}

int systemMetricAt(int metric, const SIZE& dpi)
{
    const auto* const found = std::find_if(
        kMetrics.begin(), kMetrics.end(), [metric](const Metric& m) { return m.metric == metric; });
    return found == kMetrics.end() ? 0 : MulDiv(found->size, dpi.*(found->axis), kDesignDpi);
}

int realSystemMetric(int metric)
{
    return systemMetricAt(metric, primaryScreenDpi().value_or(SIZE{kDesignDpi, kDesignDpi}));
}

} // namespace condtree
