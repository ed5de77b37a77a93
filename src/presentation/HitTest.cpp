#include "HitTest.h"

namespace condtree {

namespace {

unsigned flagsOutside(POINT point, const RECT& client)
{
    unsigned flags = 0;
    if (point.x < client.left)
        flags |= TVHT_TOLEFT;
    else if (point.x >= client.right)
        flags |= TVHT_TORIGHT;
    if (point.y < client.top)
        flags |= TVHT_ABOVE;
    else if (point.y >= client.bottom)
        flags |= TVHT_BELOW;
    return flags;
}

} // namespace

unsigned hitFlags(POINT point, const RECT& client, const std::optional<RowAreas>& rowAtPoint)
{
    if (const unsigned outside = flagsOutside(point, client); outside != 0)
        return outside;
    if (!rowAtPoint || flagsOutside(point, rowAtPoint->row) != 0)
        return TVHT_NOWHERE;
    const RowAreas& areas = *rowAtPoint;
    if (point.x >= areas.buttonLeft && point.x < areas.buttonRight)
        return TVHT_ONITEMBUTTON;
    if (point.x < areas.pictureLeft)
        return TVHT_ONITEMINDENT;
    if (point.x < areas.textLeft)
        return TVHT_ONITEMICON;
    return point.x < areas.textRight ? TVHT_ONITEMLABEL : TVHT_ONITEMRIGHT;
}

} // namespace condtree
