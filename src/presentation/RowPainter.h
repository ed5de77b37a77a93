#pragma once

#include <condtree/presentation/RowPicture.h>

class QPainter;

namespace condtree {

class FittedTexts;
class ImgLst;

/// Executes a picture with the painter's font and pen colour; knows nothing of rows. Leaves the
/// painter as it was.
///
/// Lines run horizontally or vertically, on whole pixels of the device and equally thick. A text is
/// one line, elided at the end and clipped to its rectangle; control characters and line breaks are
/// drawn as blanks, and of a very long text only the beginning is looked at. Image indices outside
/// the list, images where the list is null, and rectangles without area, draw nothing.
///
/// texts remembers what was measured.
void paintRow(QPainter& painter, const RowPicture& picture, const ImgLst* operatorImages,
              FittedTexts& texts);

} // namespace condtree
