#pragma once

#include <condtree/presentation/RowPicture.h>

class QPainter;

namespace condtree {

class ImgLst;

/// Executes a picture with the painter's font and pen colour; knows nothing of rows. Image indices outside
/// the list draw nothing. Leaves the painter as it was.
void paintRow(QPainter& painter, const RowPicture& picture, const ImgLst& operatorImages);

} // namespace condtree
