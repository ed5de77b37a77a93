#include <condtree/presentation/PixelGrid.h>

#include <gtest/gtest.h>

#include <QTransform>

#include <vector>

using namespace condtree;

namespace {

/// In pixels.
QRectF onDevice(const QRectF& area, double scale, const QPointF& offset = {})
{
    return {area.x() * scale + offset.x(), area.y() * scale + offset.y(), area.width() * scale,
            area.height() * scale};
}

void expectNear(const QRectF& found, const QRectF& expected)
{
    constexpr double rounding = 1e-9;
    EXPECT_NEAR(found.x(), expected.x(), rounding);
    EXPECT_NEAR(found.y(), expected.y(), rounding);
    EXPECT_NEAR(found.width(), expected.width(), rounding);
    EXPECT_NEAR(found.height(), expected.height(), rounding);
}

struct Row {
    const char* name;
    double scale;
    POINT from, to;
    QRectF pixels;
};

TEST(PixelGrid, ALineLeavesOutItsEnd)
{
    const std::vector<Row> rows{
        {"down", 1, {3, 2}, {3, 6}, {3, 2, 1, 4}},
        {"up", 1, {3, 6}, {3, 2}, {3, 3, 1, 4}},
        {"right", 1, {2, 3}, {6, 3}, {2, 3, 4, 1}},
        {"left", 1, {6, 3}, {2, 3}, {3, 3, 4, 1}},
        {"to itself", 1, {2, 2}, {2, 2}, {2, 2, 1, 0}},
        {"down, two pixels a unit", 2, {3, 2}, {3, 6}, {6, 4, 2, 8}},
        {"up, two pixels a unit", 2, {3, 6}, {3, 2}, {6, 6, 2, 8}},
        // 1.5 is rounded up, and the line above it ends at 1.
        {"down behind a line", 1.5, {3, 1}, {3, 6}, {5, 1, 1, 8}},
        {"right behind a line", 1.5, {1, 3}, {6, 3}, {1, 5, 8, 1}},
        {"less than a pixel a unit", 0.5, {4, 2}, {4, 6}, {2, 2, 1, 1}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const PixelGrid grid(QTransform::fromScale(row.scale, row.scale));
        expectNear(onDevice(grid.line(row.from, row.to), row.scale), row.pixels);
    }
}

TEST(PixelGrid, AreasThatTouchInUnitsTouchInPixels)
{
    for (const double scale : {1.0, 1.1, 1.25, 1.3, 1.5, 1.75, 2.0, 3.0}) {
        const PixelGrid grid(QTransform::fromScale(scale, scale));
        for (LONG at = 0; at < 200; ++at) {
            const QRectF first = onDevice(grid.area({at, 0, at + 7, 1}), scale);
            const QRectF second = onDevice(grid.area({at + 7, 0, at + 9, 1}), scale);
            EXPECT_NEAR(first.right(), second.left(), 1e-9) << scale << ' ' << at;
            EXPECT_NEAR(second.left(), qRound(second.left()), 1e-9) << scale << ' ' << at;
        }
    }
    EXPECT_TRUE(PixelGrid(QTransform()).area({5, 5, 3, 9}).isEmpty());
}

TEST(PixelGrid, AFrameEndsWhereItsRectangleDoes)
{
    const QTransform device(1.5, 0, 0, 1.5, 0.5, 0.25);
    const auto sides = PixelGrid(device).frame({1, 2, 8, 6}); // 2-12.5 and 3.25-9.25
    const std::vector<QRectF> expected{{2, 3, 11, 1}, {2, 8, 11, 1}, {2, 3, 1, 6}, {12, 3, 1, 6}};
    for (std::size_t i = 0; i < 4; ++i)
        expectNear(onDevice(sides.at(i), 1.5, {0.5, 0.25}), expected[i]);
}

TEST(PixelGrid, APolylinesSidesLieLikeAFramesAndItsLastPointIsLeftOut)
{
    const PixelGrid grid(QTransform::fromScale(1.5, 1.5));
    const auto lines = grid.polyline({{{1, 7}, {1, 2}, {8, 2}, {8, 7}}});
    // 8 to 9 is 12 to 13.5; 7 to 8 is 10.5 to 12.
    expectNear(onDevice(lines[0], 1.5), {2, 3, 1, 9});
    expectNear(onDevice(lines[1], 1.5), {2, 3, 12, 1});
    expectNear(onDevice(lines[2], 1.5), {13, 3, 1, 8});
    const auto back = grid.polyline({{{8, 7}, {8, 2}, {1, 2}, {1, 7}}});
    expectNear(onDevice(back[0], 1.5), {13, 3, 1, 9});
    expectNear(onDevice(back[1], 1.5), {2, 3, 12, 1});
    expectNear(onDevice(back[2], 1.5), {2, 3, 1, 8});
    const auto up = grid.polyline({{{1, 2}, {1, 7}, {8, 7}, {8, 2}}});
    expectNear(onDevice(up[2], 1.5), {13, 4, 1, 8}); // behind the line at the top
}

TEST(PixelGrid, ATurnedShearedOrMirroredPainterHasUnitsForPixels)
{
    for (const QTransform& device :
         {QTransform().rotate(30), QTransform().shear(0.5, 0), QTransform::fromScale(-1.5, 1.5),
          QTransform::fromScale(1, -2), QTransform::fromScale(0, 1)})
        expectNear(PixelGrid(device).line({3, 2}, {3, 6}), {3, 2, 1, 4});
}

// Far beyond what a screen shows, but a printer's device may come near.
TEST(PixelGrid, FarAwayPointsDoNotOverflow)
{
    const LONG far = 1 << 28;
    const PixelGrid grid(QTransform::fromScale(100, 100));
    expectNear(onDevice(grid.line({far, 0}, {far, 1}), 100), {100.0 * far, 0, 100, 100});
}

} // namespace
