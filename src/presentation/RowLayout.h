#pragma once

#include <condtree/platform/WinTypes.h>
#include <condtree/presentation/ColumnShares.h>

#include <array>

namespace condtree {

/// The cells of a row as they are painted.
struct PaintedCells {
    /// What is erased and framed: from the text's left edge to the row's right edge.
    RECT body;
    /// The text of a row that is not divided into columns.
    RECT caption;
    /// The texts of the four columns; the second one stands behind the operator's picture.
    std::array<RECT, 4> text;
    /// The left edges of columns 1 to 3, where the separators stand.
    std::array<LONG, 3> separator;
    /// The top left corner of the operator's picture.
    POINT operatorImage;
};

/// The one place where the x offsets of a row are computed. There is one function a question,
/// because the rules differ on purpose.
class RowLayout {
public:
    /// row is the whole row; textLeft is where its text begins, behind indentation and picture. All
    /// in viewport co-ordinates and device-independent pixels.
    RowLayout(const RECT& row, LONG textLeft, const ColumnShares& shares, int smallIconWidth);

    [[nodiscard]] PaintedCells paintedCells() const;
    /// The column, 0 to 3, that a point lies in, by the shares themselves: a point on a boundary
    /// lies at its right. -1 outside the row.
    [[nodiscard]] int columnOfPoint(POINT point) const;
    /// Where the editor of a column is placed; the whole row for a column outside 0 to 3. Column 0
    /// begins at the text. The boundaries between columns are truncated widths that are not offset
    /// by the row's left edge: the cell is meant for rows that begin at 0.
    [[nodiscard]] RECT cellToEdit(int column) const;

private:
    RECT m_row;
    LONG m_textLeft;
    ColumnShares m_shares;
    int m_smallIconWidth;
};

/// Whether a press at x may begin to drag a row: in the first column, by the client's width.
[[nodiscard]] bool mayBeginDrag(LONG x, LONG clientWidth, const ColumnShares& shares);

} // namespace condtree
