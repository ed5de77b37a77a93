#include "CustomDraw.h"

#include <condtree/platform/TreeVocabulary.h>

namespace condtree {

LRESULT customDrawAnswer(DWORD stage)
{
    switch (stage) {
    case CDDS_PREPAINT:
        return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT:
        return CDRF_NOTIFYPOSTPAINT;
    default:
        return CDRF_DODEFAULT;
    }
}

int colourResolution(int bitsPerPixel)
{
    constexpr int unknown = 4;
    return bitsPerPixel > 0 ? bitsPerPixel : unknown;
}

} // namespace condtree
