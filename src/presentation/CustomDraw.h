#pragma once

#include <condtree/platform/WinTypes.h>

namespace condtree {

/// The answer to a stage of drawing: rows are asked for, and each again after the tree has painted
/// it. Any other stage answers 0.
[[nodiscard]] LRESULT customDrawAnswer(DWORD stage);

/// The bits a pixel that drawing reckons with, from what the screen says; 4 when it says nothing.
[[nodiscard]] int colourResolution(int bitsPerPixel);

} // namespace condtree
