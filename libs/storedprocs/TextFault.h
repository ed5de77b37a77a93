#pragma once

#include <QStringView>

#include <cstdint>

namespace condtree {

/// Why a database cannot carry a text as it is.
enum class TextFault {
    None,
    Null,     ///< It holds U+0000, which ends texts early.
    Unpaired, ///< It holds half of a surrogate pair, which UTF-8 has no bytes for.
    TooLong   ///< It is too large.
};

/// The first fault of a text. bytesAllowed is compared with its size as UTF-16 or as UTF-8,
/// whichever is smaller; negative means any size.
[[nodiscard]] TextFault textFault(QStringView text, std::int64_t bytesAllowed = -1);

} // namespace condtree
