#include <condtree/presentation/ListIcon.h>

#include <condtree/presentation/ImgLst.h>

#include <gtest/gtest.h>

#include <QPainter>
#include <QPixmap>

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

TEST(ListIcon, TakesThePixelsOfTheDeviceFromTheList)
{
    auto list = std::make_shared<ImgLst>(QSize(4, 4));
    QImage strip(4, 4, QImage::Format_ARGB32);
    strip.fill(kBlue);
    QList<QSize> asked;
    list->appendStrip(strip, 0x00C0C0C0, [&asked](const QSize& cell) {
        asked << cell;
        QImage image(cell, QImage::Format_ARGB32);
        image.fill(Qt::red);
        return image;
    });
    EXPECT_EQ(drawn(listIcon(list, 0), QIcon::Normal, 1.5).pixel(9, 9), 0xFFFF0000);
    EXPECT_EQ(asked, QList<QSize>{QSize(6, 6)});
    EXPECT_EQ(listIcon(list, 0).pixmap(QSize(8, 8)).size(), QSize(8, 8));
    EXPECT_EQ(asked.last(), QSize(8, 8));
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
