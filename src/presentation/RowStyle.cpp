#include "RowStyle.h"

#include <condtree/presentation/RowMarks.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace condtree {

namespace {

/// The least contrast at which text of ordinary size counts as readable.
constexpr double kReadableContrast = 4.5;
/// The same of what is no text.
constexpr double kVisibleContrast = 3.0;

/// What is seen where a colour lies on an opaque one.
QColor laidOn(const QColor& ground, const QColor& colour, double alpha)
{
    const auto mixed = [alpha](double below, double above) {
        return static_cast<float>(above * alpha + below * (1.0 - alpha));
    };
    return QColor::fromRgbF(mixed(ground.redF(), colour.redF()),
                            mixed(ground.greenF(), colour.greenF()),
                            mixed(ground.blueF(), colour.blueF()));
}

double luminance(const QColor& colour)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
           + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QColor onWhite(const QColor& colour)
{
    return laidOn(Qt::white, colour, colour.alphaF());
}

/// Whether a text on white can be read there, and below the tints of marked rows.
bool isReadable(const QColor& text, const QColor& mark)
{
    constexpr double kOpaque = 255;
    constexpr std::array kTints{0, kHoveredTint, kSelectedTint};
    return std::all_of(kTints.begin(), kTints.end(), [&](int tint) {
        const double alpha = tint / kOpaque;
        return contrast(laidOn(onWhite(text), mark, alpha), laidOn(Qt::white, mark, alpha))
               >= kReadableContrast;
    });
}

constexpr std::array kGroups{QPalette::Active, QPalette::Inactive, QPalette::Disabled};
/// Texts, which may be what marks rows, and then the signs of open and closed groups.
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
    const QColor colour = contrast(onWhite(highlight), Qt::white) < kVisibleContrast
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
            const QColor mark = toQColor(markColour(palette, group));
            if (!isReadable(desktop.color(group, role), mark))
                palette.setColor(group, role, QColor(Qt::black));
        }
    }
    return palette;
}

} // namespace condtree
