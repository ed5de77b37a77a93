#pragma once

#include <QIcon>

#include <memory>

namespace condtree {

class ImgLst;

/// A picture of an image list as the icon of a view, which draws it with exactly the pixels of the
/// device, paler in a disabled view. An icon that outlives its list is a null icon.
[[nodiscard]] QIcon listIcon(const std::weak_ptr<const ImgLst>& list, int index);

} // namespace condtree
