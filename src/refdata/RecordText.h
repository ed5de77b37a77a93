#pragma once

#include <QStringView>

#include <algorithm>
#include <cstddef>

namespace condtree {

/// The text of a record's fixed array: up to its null, or all of it when it has none.
template <std::size_t N>
[[nodiscard]] QStringView recordText(const char16_t (&array)[N])
{
    return QStringView(array, std::find(array, array + N, u'\0'));
}

} // namespace condtree
