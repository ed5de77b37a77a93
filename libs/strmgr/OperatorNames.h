#pragma once

#include <condtree/platform/WinTypes.h>

#include <string_view>

namespace condtree {

/// The English name of a comparison operator, as the text of its number under the key "OpName";
/// empty for other numbers. Rows ask for operators with "?" in the default's place, so that the
/// English names have to come from here.
[[nodiscard]] std::u16string_view englishOperatorName(LONG id);

} // namespace condtree
