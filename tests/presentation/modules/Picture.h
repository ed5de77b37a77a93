#pragma once

#include <condtree/platform/WfIcons.h>
#include <condtree/platform/WinTypes.h>

#include <cstddef>
#include <cstring>
#include <new>

/// What the test modules hand over, and how.
namespace condtree::test {

/// A picture of one colour (0xAARRGGBB), in one block.
inline WfImage* plainPicture(int width, int height, std::uint32_t colour)
{
    const auto bytes = static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4;
    auto* block = static_cast<std::uint8_t*>(CoTaskMemAlloc(sizeof(WfImage) + bytes));
    std::uint8_t* pixels = block + sizeof(WfImage);
    for (std::size_t i = 0; i < bytes; ++i)
        pixels[i] = static_cast<std::uint8_t>(colour >> (i % 4 * 8));
    return new (block) WfImage{sizeof(WfImage), kWfImageVersion, width, height, pixels};
}

/// How many pictures a name stands for: a strip has four.
inline int picturesOf(const char16_t* name)
{
    std::size_t length = 0;
    while (name[length] != 0)
        ++length;
    return length > 4 && name[length - 4] == u'_' && name[length - 3] == u'O' ? 4 : 1;
}

} // namespace condtree::test
