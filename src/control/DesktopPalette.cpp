#include "DesktopPalette.h"

#include <condtree/presentation/RowStyle.h>

namespace condtree {

std::optional<QPalette> DesktopPalette::follow(const QPalette& desktop)
{
    if (m_desktop == desktop)
        return std::nullopt;
    m_desktop = desktop;
    return paletteOnWhite(desktop);
}

} // namespace condtree
