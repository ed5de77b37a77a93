#include "RowStyle.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace condtree {

namespace {

/// The least contrast at which text of ordinary size counts as readable.
constexpr double kReadableContrast = 4.5;
/// The same of what is no text.
constexpr double kVisibleContrast = 3.0;

/// A channel of what is seen where a colour lies on white, linear in light.
double linearOnWhite(double channel, double alpha)
{
    const double seen = channel * alpha + (1.0 - alpha);
    return seen <= 0.04045 ? seen / 12.92 : std::pow((seen + 0.055) / 1.055, 2.4);
}

double contrastWithWhite(const QColor& colour)
{
    const double alpha = colour.alphaF();
    const double luminance = 0.2126 * linearOnWhite(colour.redF(), alpha)
                             + 0.7152 * linearOnWhite(colour.greenF(), alpha)
                             + 0.0722 * linearOnWhite(colour.blueF(), alpha);
    return 1.05 / (luminance + 0.05);
}

constexpr std::array kGroups{QPalette::Active, QPalette::Inactive, QPalette::Disabled};
/// Texts, and the marks of open and closed groups.
constexpr std::array kForegrounds{QPalette::Text, QPalette::WindowText};
constexpr std::array kBackgrounds{QPalette::Base, QPalette::AlternateBase};

} // namespace

QColor toQColor(COLORREF colour)
{
    const auto channel = [colour](unsigned shift) {
        return static_cast<int>(colour >> shift & 0xFFU);
    };
    return {channel(0), channel(8), channel(16)};
}

COLORREF markColour(const QPalette& palette, QPalette::ColorGroup group)
{
    const QColor highlight = palette.color(group, QPalette::Highlight);
    const QColor colour = contrastWithWhite(highlight) < kVisibleContrast
                              ? palette.color(group, QPalette::Text)
                              : highlight;
    return RGB(colour.red(), colour.green(), colour.blue());
}

QPalette paletteOnWhite(const QPalette& desktop)
{
    QPalette palette = desktop;
    // What is the desktop's own must not count as set by us: a view takes no notice of a change of
    // the desktop's where all its colours are set.
    palette.setResolveMask(0);
    for (const QPalette::ColorGroup group : kGroups) {
        for (const QPalette::ColorRole role : kBackgrounds)
            palette.setColor(group, role, toQColor(kRowBackground));
        for (const QPalette::ColorRole role : kForegrounds) {
            if (contrastWithWhite(desktop.color(group, role)) < kReadableContrast)
                palette.setColor(group, role, QColor(Qt::black));
        }
    }
    return palette;
}

} // namespace condtree
