#include <condtree/presentation/ListIcon.h>

#include <condtree/presentation/ImgLst.h>

#include <gtest/gtest.h>

#include <QPainter>
#include <QPixmap>

#include <limits>
#include <vector>

using namespace condtree;

namespace {

constexpr QRgb kBlue = 0xFF0000FF;

std::shared_ptr<ImgLst> oneBlue()
{
    auto list = std::make_shared<ImgLst>(QSize(4, 4));
    QImage image(4, 4, QImage::Format_ARGB32);
    image.fill(kBlue);
    list->append(image);
    return list;
}

/// A white sheet of 12 x 12 points with the icon drawn into the rectangle (3,3)-(11,11).
QImage drawn(const QIcon& icon, QIcon::Mode mode = QIcon::Normal, qreal ratio = 1)
{
    QImage sheet(qRound(12 * ratio), qRound(12 * ratio), QImage::Format_ARGB32_Premultiplied);
    sheet.setDevicePixelRatio(ratio);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    icon.paint(&painter, QRect(3, 3, 8, 8), Qt::AlignCenter, mode);
    return sheet;
}

TEST(ListIcon, IsDrawnInTheMiddleAtTheListsSize)
{
    const auto list = oneBlue();
    const QImage sheet = drawn(listIcon(list, 0));
    EXPECT_EQ(sheet.pixel(4, 4), 0xFFFFFFFF);
    EXPECT_EQ(sheet.pixel(5, 5), kBlue);
    EXPECT_EQ(sheet.pixel(8, 8), kBlue);
    EXPECT_EQ(sheet.pixel(9, 9), 0xFFFFFFFF);
    EXPECT_EQ(listIcon(list, 0).actualSize({99, 99}), QSize(4, 4));
}

TEST(ListIcon, KeepsItsColoursInASelectedRowAndPalesInADisabledView)
{
    const auto list = oneBlue();
    EXPECT_EQ(drawn(listIcon(list, 0), QIcon::Selected).pixel(6, 6), kBlue);
    EXPECT_EQ(drawn(listIcon(list, 0), QIcon::Active).pixel(6, 6), kBlue);
    const QRgb pale = drawn(listIcon(list, 0), QIcon::Disabled).pixel(6, 6);
    EXPECT_GT(qRed(pale), 100);
    EXPECT_LT(qRed(pale), 200);
    EXPECT_EQ(qBlue(pale), 255);
}

/// A list of one picture of 4 x 4, blue as given and red for every other size, with all that was
/// redrawn.
struct Redrawn {
    QList<QSize> asked;
    std::shared_ptr<ImgLst> list = std::make_shared<ImgLst>(QSize(4, 4));
    Redrawn()
    {
        QImage strip(4, 4, QImage::Format_ARGB32);
        strip.fill(kBlue);
        list->appendStrip(strip, 0x00C0C0C0, [this](const QSize& cell) {
            asked << cell;
            QImage image(cell, QImage::Format_ARGB32);
            image.fill(Qt::red);
            return image;
        });
    }
};

TEST(ListIcon, TakesThePixelsOfTheDeviceFromTheList)
{
    const Redrawn redrawn;
    EXPECT_EQ(drawn(listIcon(redrawn.list, 0), QIcon::Normal, 1.5).pixel(9, 9), 0xFFFF0000);
    EXPECT_EQ(redrawn.asked, QList<QSize>{QSize(6, 6)});
    const QPixmap dense = listIcon(redrawn.list, 0).pixmap(QSize(4, 4), 2.0);
    EXPECT_EQ(dense.size(), QSize(8, 8));
    EXPECT_EQ(dense.devicePixelRatio(), 2.0);
    EXPECT_EQ(redrawn.asked.last(), QSize(8, 8));
}

struct Request {
    QSize size; ///< in points
    double ratio;
    QSize given; ///< in pixels; empty for a null pixmap
};

TEST(ListIcon, PixmapsAreNoLargerThanAFreshPictureOfTheDevice)
{
    const int most = std::numeric_limits<int>::max();
    const std::vector<Request> rows{
        {{4, 4}, 1, {4, 4}},
        {{8, 8}, 1, {4, 4}},
        {{8, 8}, 2, {8, 8}},
        {{4, 4}, 1.25, {5, 5}},
        {{4, 4}, 3, {12, 12}},
        {{100, 2}, 1, {2, 2}},
        {{3, 100}, 2, {6, 6}},
        {{most, most}, 1, {4, 4}},
        {{0, 4}, 1, {}},
        {{4, 0}, 2, {}},
        {{-4, -4}, 1, {}},
        {{100'000, 100'000}, 256, {1024, 1024}},
        {{100'000, 100'000}, 257, {}},
    };
    for (const Request& row : rows) {
        const Redrawn redrawn;
        const QPixmap pixmap = listIcon(redrawn.list, 0).pixmap(row.size, row.ratio);
        EXPECT_EQ(pixmap.size(), row.given.isEmpty() ? QSize(0, 0) : row.given)
            << row.size.width() << 'x' << row.size.height() << " at " << row.ratio;
        // Each is drawn for its size, or as it was given; nothing else is drawn on the way.
        const bool isRedrawn = !row.given.isEmpty() && row.given != QSize(4, 4);
        EXPECT_EQ(redrawn.asked, isRedrawn ? QList<QSize>{row.given} : QList<QSize>{})
            << row.size.width() << 'x' << row.size.height() << " at " << row.ratio;
    }
}

TEST(ListIcon, PixmapsKeepTheirColoursWhenSelectedAndPaleWhenDisabled)
{
    const auto list = oneBlue();
    for (const double ratio : {1.0, 2.0}) {
        const auto pixel = [&](QIcon::Mode mode) {
            const QImage image = listIcon(list, 0).pixmap(QSize(4, 4), ratio, mode).toImage();
            return image.convertToFormat(QImage::Format_ARGB32).pixel(1, 1);
        };
        for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Active, QIcon::Selected})
            EXPECT_EQ(pixel(mode), kBlue) << mode << ' ' << ratio;
        const QRgb pale = pixel(QIcon::Disabled);
        EXPECT_NEAR(qAlpha(pale), 102, 1) << ratio;
        EXPECT_EQ(qBlue(pale), 255) << ratio;
        EXPECT_EQ(qRed(pale), 0) << ratio;
    }
}

TEST(ListIcon, IsMadeSmallerInItsProportionsWhereThereIsLessRoom)
{
    auto list = std::make_shared<ImgLst>(QSize(8, 4));
    QImage image(8, 4, QImage::Format_ARGB32);
    image.fill(kBlue);
    list->append(image);
    const QIcon icon = listIcon(list, 0);
    EXPECT_EQ(icon.actualSize({4, 4}), QSize(4, 2));
    EXPECT_EQ(icon.actualSize({99, 2}), QSize(4, 2));
    QImage sheet(12, 12, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    icon.paint(&painter, QRect(3, 3, 4, 4));
    painter.end();
    for (int y = 0; y < 12; ++y) {
        for (int x = 0; x < 12; ++x)
            EXPECT_EQ(sheet.pixel(x, y), QRect(3, 4, 4, 2).contains(x, y) ? kBlue : 0xFFFFFFFF)
                << x << ',' << y;
    }
}

TEST(ListIcon, OutlivesItsListAsANullIcon)
{
    auto list = oneBlue();
    const QIcon icon = listIcon(list, 0);
    const QIcon copy = icon;
    EXPECT_FALSE(icon.isNull());
    list.reset();
    EXPECT_EQ(drawn(copy).pixel(6, 6), 0xFFFFFFFF);
    EXPECT_TRUE(icon.pixmap(QSize(4, 4)).isNull());
}

TEST(ListIcon, AnIndexOutsideTheListIsANullIcon)
{
    const auto list = oneBlue();
    EXPECT_TRUE(listIcon(list, 1).isNull());
    EXPECT_TRUE(listIcon(list, -1).isNull());
}

} // namespace
