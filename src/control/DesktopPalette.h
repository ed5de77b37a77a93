#pragma once

#include <QPalette>

#include <optional>

namespace condtree {

/// Follows the desktop's palette: rows stay on white, in a text colour that can be read there.
class DesktopPalette {
public:
    /// The palette for the rows when the desktop's is another one than at the call before; else
    /// none, so that a palette that the host chose stays.
    [[nodiscard]] std::optional<QPalette> follow(const QPalette& desktop);

private:
    std::optional<QPalette> m_desktop;
};

} // namespace condtree
