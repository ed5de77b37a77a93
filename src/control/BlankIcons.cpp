#include "BlankIcons.h"

#include <condtree/platform/Services.h>

#include <array>
#include <string_view>
#include <utility>

namespace condtree {

namespace {

// How many pictures each operator strip holds; 42 in all.
constexpr std::array<std::pair<QStringView, int>, 4> kStrips{{
    {u"PNG_BLUE_OPS", 9},
    {u"PNG_RED_OPS", 9},
    {u"PNG_GREEN_OPS", 9},
    {u"PNG_YELLOW_OPS", 15},
}};

} // namespace

BlankIcons::BlankIcons(std::function<int(int metric)> systemMetric)
    : m_systemMetric(std::move(systemMetric))
{
}

IconPixels BlankIcons::blank(int images) const
{
    IconPixels pixels{m_systemMetric(SM_CXSMICON) * images, m_systemMetric(SM_CYSMICON), {}};
    pixels.bytes.assign(
        static_cast<std::size_t>(pixels.width) * 4 * static_cast<std::size_t>(pixels.height), 0);
    return pixels;
}

IconResult BlankIcons::loadIcon(const CString&, int, IconPixels& icon)
{
    icon = blank(1);
    return IconResult::Loaded;
}

IconResult BlankIcons::loadImage(const CString& name, int, IconPixels& strip)
{
    for (const auto& [stripName, images] : kStrips) {
        if (stripName == name) {
            strip = blank(images);
            return IconResult::Loaded;
        }
    }
    return IconResult::NoImage;
}

} // namespace condtree
