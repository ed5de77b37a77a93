// An icon library of another version: its icons have another size field, its strips another
// version.
#include <condtree/platform/WfIcons.h>
#include <condtree/platform/WinTypes.h>

using namespace condtree;

namespace {
const std::uint8_t kPixel[4] = {1, 2, 3, 255};
WfImage g_larger{sizeof(WfImage) + 8, kWfImageVersion, 1, 1, kPixel};
WfImage g_newer{sizeof(WfImage), kWfImageVersion + 1, 1, 1, kPixel};
} // namespace

extern "C" {

CONDTREE_EXPORT WfImage* ghLoadWFPngImageIconAsPerDPI(const char16_t*, int)
{
    return &g_larger;
}

CONDTREE_EXPORT WfImage* ghLoadWFPNGImageAsPerDPI(const char16_t*, int)
{
    return &g_newer;
}
}
