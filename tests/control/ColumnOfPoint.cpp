// Which column of a row a point lies in, and where that column's editor is placed.
#include "ClickFixture.h"

namespace condtree::test {
namespace {

using ColumnOfPoint = ClickFixture;

TEST_F(ColumnOfPoint, TheColumnOfAPointIsByTheSharesOfTheRow)
{
    start();
    window.resize(600, 300);
    letEventsPass();
    const VarTreeCtrlNode& row = only({FilePath, "FilePath", "a", "", 106});
    const QRect item = itemRect(row);
    const LONG width = viewport->width();
    const LONG y = item.center().y();
    const LONG top = item.top();
    const LONG bottom = item.top() + item.height();
    control->mvResizeCol(0, static_cast<int>(width / 3), static_cast<int>(width));
    const LONG w0 = control->miGetColumnSize(0, static_cast<int>(width));
    const LONG w1 = control->miGetColumnSize(1, static_cast<int>(width));
    const LONG w2 = control->miGetColumnSize(2, static_cast<int>(width));
    const auto cellAt = [&](LONG x, LONG atY) {
        RECT cell{-1, -1, -1, -1};
        const int column = control->miGetColumn({x, atY}, row.mhItem, cell);
        std::string text = std::to_string(column) + ":";
        for (const LONG edge : {cell.left, cell.top, cell.right, cell.bottom})
            text += " " + std::to_string(edge);
        return text;
    };
    const auto expected = [&](int column, LONG left, LONG right) {
        return std::to_string(column) + ": " + std::to_string(left) + " " + std::to_string(top)
               + " " + std::to_string(right) + " " + std::to_string(bottom);
    };
    RECT first{};
    ASSERT_EQ(control->miGetColumn({w0 - 2, y}, row.mhItem, first), 0);
    EXPECT_GT(first.left, item.left()) << "behind the picture";
    EXPECT_EQ(cellAt(0, y), expected(0, first.left, w0));
    EXPECT_EQ(cellAt(w0 + 2, y), expected(1, w0, w0 + w1));
    EXPECT_EQ(cellAt(w0 + w1 + 2, y), expected(2, w0 + w1, w0 + w1 + w2));
    EXPECT_EQ(cellAt(w0 + w1 + w2 + 2, y), expected(3, w0 + w1 + w2, width));
    EXPECT_EQ(cellAt(width - 1, top), expected(3, w0 + w1 + w2, width));
    const std::string outside = expected(-1, 0, width);
    EXPECT_EQ(cellAt(-1, y), outside);
    EXPECT_EQ(cellAt(width, y), outside);
    EXPECT_EQ(cellAt(10, top - 1), outside);
    EXPECT_EQ(cellAt(10, bottom), outside);
}

TEST_F(ColumnOfPoint, APointOnABoundaryLiesAtItsRight)
{
    start();
    const VarTreeCtrlNode& row = only({FilePath, "FilePath", "a", "", 106});
    const LONG y = itemRect(row).center().y();
    window.resize(window.width() - viewport->width() % 4, window.height());
    letEventsPass();
    const LONG quarter = viewport->width() / 4;
    ASSERT_EQ(viewport->width() % 4, 0);
    for (LONG column = 1; column <= 3; ++column) {
        RECT cell{};
        EXPECT_EQ(control->miGetColumn({column * quarter - 1, y}, row.mhItem, cell), column - 1);
        EXPECT_EQ(control->miGetColumn({column * quarter, y}, row.mhItem, cell), column);
    }
}

TEST_F(ColumnOfPoint, NoRowHasNoColumn)
{
    start();
    VarTreeCtrlNode& group = add({NodeOr});
    const VarTreeCtrlNode& hidden = add({FilePath, "FilePath", "a", "", 106}, &group);
    const HTREEITEM gone = add({FilePath}).mhItem;
    control->mvDeleteNode(gone);
    control->collapseAll();
    for (const HTREEITEM item : {HTREEITEM{}, gone, TVI_ROOT, hidden.mhItem}) {
        RECT cell{1, 2, 3, 4};
        EXPECT_EQ(control->miGetColumn({40, 10}, item, cell), -1);
        EXPECT_EQ(cell.left, 0);
        EXPECT_EQ(cell.bottom, 0);
    }
}

} // namespace
} // namespace condtree::test
