#pragma once

#include <condtree/platform/NativeText.h>

#include <QStringView>

#include <cstddef>

namespace condtree {

/// The index of the first entry, from the one behind start, round the end of the list to start
/// itself, whose whole text is text by simple case folding; -1 when there is none. A start that
/// names no entry, -1 among them, begins with the first. textOf(int) gives an entry's text.
template <class TextOf>
[[nodiscard]] int findStringExact(std::size_t count, TextOf textOf, QStringView text, int start)
{
    const int size = static_cast<int>(count);
    const int first = start >= 0 && start < size ? start + 1 : 0;
    const auto findBetween = [&](int from, int to) {
        while (from < to && !equalsNoCase(textOf(from), text))
            ++from;
        return from < to ? from : -1;
    };
    const int behind = findBetween(first, size);
    return behind >= 0 ? behind : findBetween(0, first);
}

} // namespace condtree
