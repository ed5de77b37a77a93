#pragma once

#include <QIcon>

#include <memory>

namespace condtree {

class ImgLst;

/// A picture of an image list as the icon of a view: in its own colours in every row, which tell
/// what the row is, and paler in a disabled view.
///
/// It is drawn with exactly the pixels of the device. Sizes that are asked for are bounds: where
/// there is less room the icon is made smaller, in its proportions, and it is never larger than the
/// list's pictures are at the device's pixels a point. A pixmap is null for a size without area,
/// and where the list has no such picture. An icon that outlives its list is a null icon.
[[nodiscard]] QIcon listIcon(const std::weak_ptr<const ImgLst>& list, int index);

} // namespace condtree
