// The lines of rows on screens of every density: crisp, equally thick, and without gaps.
#include <condtree/presentation/FittedTexts.h>
#include <condtree/presentation/RowPainter.h>

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include <array>
#include <set>
#include <vector>

using namespace condtree;

namespace {

constexpr QRgb kOutside = 0xFF00FF00;
constexpr QRgb kPaper = 0xFFFFFFFF;
constexpr QRgb kLine = 0xFFA0A0DC;
constexpr COLORREF kLineColour = 0x00DCA0A0;

constexpr LONG kLeft = 5;
constexpr LONG kRight = 130;
constexpr LONG kTop = 2;
constexpr LONG kRowHeight = 23;
constexpr int kRows = 6;
constexpr std::array<LONG, 3> kSeparators{37, 70, 101};

/// A row as the control draws it, but for its texts; one with an odd number is open below.
RowPicture rowPicture(int row)
{
    const LONG top = kTop + row * kRowHeight;
    const LONG bottom = top + kRowHeight;
    RowPicture picture{FillPrimitive{{kLeft, top, kRight, bottom}, 0x00FFFFFF}};
    if (row % 2 == 0)
        picture.push_back(FramePrimitive{{kLeft, top, kRight, bottom}, kLineColour});
    else
        picture.push_back(PolylinePrimitive{
            {{{kLeft, bottom}, {kLeft, top}, {kRight - 1, top}, {kRight - 1, bottom}}},
            kLineColour});
    for (const LONG x : kSeparators)
        picture.push_back(LinePrimitive{{x, top + 1}, {x, bottom}, kLineColour});
    return picture;
}

struct Device {
    double ratio;
    int thickness; ///< of a line, in pixels
    bool isSoft = false;
    QPoint origin{}; ///< of the rows, in points
};

/// Densities with and without soft edges, and rows that begin between two pixels.
std::vector<Device> devices()
{
    std::vector<Device> all;
    for (const auto& [ratio, thickness] : std::vector<std::pair<double, int>>{{1, 1},
                                                                              {1.1, 1},
                                                                              {1.25, 1},
                                                                              {1.5, 1},
                                                                              {1.75, 1},
                                                                              {2, 2},
                                                                              {2.25, 2},
                                                                              {2.5, 2},
                                                                              {3, 3},
                                                                              {3.5, 3}}) {
        for (const bool isSoft : {false, true}) {
            for (const QPoint& origin : {QPoint(0, 0), QPoint(1, 1), QPoint(2, 1)})
                all.push_back({ratio, thickness, isSoft, origin});
        }
    }
    return all;
}

class Rows {
public:
    explicit Rows(const Device& device)
        : m_device(device)
        , m_image(qRound(140 * device.ratio), qRound(150 * device.ratio), QImage::Format_RGB32)
    {
        m_image.setDevicePixelRatio(device.ratio);
        m_image.fill(kOutside);
        QPainter painter(&m_image);
        painter.setRenderHint(QPainter::Antialiasing, device.isSoft);
        m_ratio = painter.deviceTransform().m11(); // which has fewer digits than was asked for
        painter.translate(device.origin);
        FittedTexts texts;
        for (int row = 0; row < kRows; ++row)
            paintRow(painter, rowPicture(row), nullptr, texts);
        EXPECT_EQ(painter.testRenderHint(QPainter::Antialiasing), device.isSoft);
    }

    [[nodiscard]] int x(LONG at) const { return pixel(at, m_device.origin.x()); }
    [[nodiscard]] int y(LONG at) const { return pixel(at, m_device.origin.y()); }
    /// The first line of pixels of a row, and of the one behind the last.
    [[nodiscard]] int top(int row) const { return y(kTop + row * kRowHeight); }
    [[nodiscard]] QRgb at(int x, int y) const { return m_image.pixel(x, y); }

    [[nodiscard]] std::set<QRgb> colours() const
    {
        std::set<QRgb> all;
        for (int line = 0; line < m_image.height(); ++line) {
            for (int column = 0; column < m_image.width(); ++column) {
                if (column == 0 || at(column, line) != at(column - 1, line))
                    all.insert(at(column, line));
            }
        }
        return all;
    }
    /// Where lines cross a line of pixels: where each begins, and how thick it is.
    [[nodiscard]] std::vector<std::pair<int, int>> across(int line) const
    {
        return runs(m_image.width(), [&](int i) { return at(i, line); });
    }
    [[nodiscard]] std::vector<std::pair<int, int>> down(int column) const
    {
        return runs(m_image.height(), [&](int i) { return at(column, i); });
    }

private:
    [[nodiscard]] int pixel(LONG at, int origin) const
    {
        return qRound(at * m_ratio + origin * m_ratio);
    }
    template <typename Pixel>
    static std::vector<std::pair<int, int>> runs(int count, Pixel pixel)
    {
        std::vector<std::pair<int, int>> found;
        for (int i = 0; i < count; ++i) {
            if (pixel(i) != kLine)
                continue;
            if (!found.empty() && found.back().first + found.back().second == i)
                ++found.back().second;
            else
                found.emplace_back(i, 1);
        }
        return found;
    }

    Device m_device;
    double m_ratio = 1;
    QImage m_image;
};

/// Runs a check on the rows of every device.
template <typename Check>
void onEveryDevice(Check check)
{
    for (const Device& device : devices()) {
        SCOPED_TRACE(testing::Message()
                     << "ratio " << device.ratio << (device.isSoft ? ", soft" : "") << ", from "
                     << device.origin.x());
        check(Rows(device), device.thickness);
    }
}

TEST(RowLines, AreOfOneColourAndNeverBlurred)
{
    onEveryDevice([](const Rows& rows, int) {
        EXPECT_EQ(rows.colours(), (std::set<QRgb>{kOutside, kPaper, kLine}));
    });
}

TEST(RowLines, AreEquallyThickAndStandInOneColumnInEveryRow)
{
    onEveryDevice([](const Rows& rows, int thickness) {
        std::vector<std::pair<int, int>> expected{{rows.x(kLeft), thickness}};
        for (const LONG x : kSeparators)
            expected.emplace_back(rows.x(x), thickness);
        expected.emplace_back(rows.x(kRight) - thickness, thickness);
        for (int row = 0; row < kRows; ++row)
            EXPECT_EQ(rows.across((rows.top(row) + rows.top(row + 1)) / 2), expected) << row;
    });
}

// A closed frame touches the row below; an open one has no line there.
TEST(RowLines, OfNeighbouringRowsTouch)
{
    onEveryDevice([](const Rows& rows, int thickness) {
        std::vector<std::pair<int, int>> expected{{rows.top(0), thickness}};
        for (int row = 1; row < kRows; ++row) {
            if (row % 2 == 1)
                expected.emplace_back(rows.top(row) - thickness, 2 * thickness);
            else
                expected.emplace_back(rows.top(row), thickness);
        }
        EXPECT_EQ(rows.down(rows.x(50)), expected);
    });
}

TEST(RowLines, HaveNoGapsFromTheFirstRowToTheLast)
{
    onEveryDevice([](const Rows& rows, int thickness) {
        std::vector<int> columns{rows.x(kLeft), rows.x(kRight) - thickness};
        for (const LONG x : kSeparators)
            columns.push_back(rows.x(x));
        for (const int first : columns) {
            for (int x = first; x < first + thickness; ++x) {
                const auto lines = rows.down(x);
                ASSERT_EQ(lines.size(), 1U) << x;
                EXPECT_EQ(lines[0].first, rows.top(0)) << x;
                EXPECT_GE(lines[0].second, rows.top(kRows) - rows.top(0)) << x;
            }
        }
        for (int row = 0; row < kRows; ++row)
            EXPECT_EQ(
                rows.across(rows.top(row)),
                (std::vector<std::pair<int, int>>{{rows.x(kLeft), rows.x(kRight) - rows.x(kLeft)}}))
                << row;
    });
}

} // namespace
