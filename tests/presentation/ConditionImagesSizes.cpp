#include <condtree/presentation/ConditionImages.h>

#include <gtest/gtest.h>

#include <QPainter>

#include <string>
#include <vector>

using namespace condtree;

namespace {

IconPixels plain(int width, int height, QRgb colour)
{
    IconPixels pixels{width, height, {}};
    for (int i = 0; i < width * height; ++i) {
        for (const int channel : {qBlue(colour), qGreen(colour), qRed(colour), qAlpha(colour)})
            pixels.bytes.push_back(static_cast<std::uint8_t>(channel));
    }
    return pixels;
}

constexpr QRgb kAsGiven = qRgb(200, 0, 0);
constexpr QRgb kForSize = qRgb(0, 0, 200);

/// A library of 16 pixels that draws for other sizes, too: red as given, blue for a size.
class Library final : public IconLibrary {
public:
    IconResult loadIcon(const CString& name, int, IconPixels& icon) override
    {
        icon = plain(16, 16, kAsGiven);
        return name == missing ? IconResult::NoImage : IconResult::Loaded;
    }
    IconResult loadImage(const CString& name, int, IconPixels& strip) override
    {
        strip = plain(picturesOf(name) * 16, 16, kAsGiven);
        return IconResult::Loaded;
    }
    IconResult loadAtSize(const CString& name, int height, IconPixels& pixels) override
    {
        requests.push_back(name.toStdString() + ' ' + std::to_string(height));
        const int side = height + wrongBy;
        const int pictures = picturesOf(name);
        pixels = plain(pictures * side, side, kForSize);
        return name == withoutSizes ? IconResult::NoImage : IconResult::Loaded;
    }
    static int picturesOf(const CString& name)
    {
        return !name.endsWith(QStringLiteral("_OPS"))     ? 1
               : name == QStringLiteral("PNG_YELLOW_OPS") ? 15
                                                          : 9;
    }

    CString missing;
    CString withoutSizes;
    int wrongBy = 0; ///< how much higher its pictures are than what is asked for
    std::vector<std::string> requests;
};

/// The colour in the middle of a row icon that is drawn at a ratio.
QRgb middleOfRowIcon(const ConditionImages& images, int index, double ratio)
{
    QImage sheet(qRound(16 * ratio), qRound(16 * ratio), QImage::Format_ARGB32_Premultiplied);
    sheet.setDevicePixelRatio(ratio);
    sheet.fill(Qt::green);
    QPainter painter(&sheet);
    images.rowIcon(index).paint(&painter, QRect(0, 0, 16, 16));
    return sheet.pixel(sheet.width() / 2, sheet.height() / 2);
}

TEST(ConditionImagesSizes, NothingIsAskedForUntilItIsDrawnInAnotherSize)
{
    Library library;
    ConditionImages images;
    images.append(library, {16, 16}, 32);
    EXPECT_EQ(middleOfRowIcon(images, 3, 1), kAsGiven);
    EXPECT_EQ(images.operators()->image(0, {16, 16}).pixel(8, 8), kAsGiven);
    EXPECT_TRUE(library.requests.empty());
}

TEST(ConditionImagesSizes, RowIconsAreFetchedForExactlyThePixelsThatTheyTake)
{
    Library library;
    ConditionImages images;
    images.append(library, {16, 16}, 32);
    EXPECT_EQ(middleOfRowIcon(images, 3, 1.25), kForSize);
    EXPECT_EQ(middleOfRowIcon(images, 7, 1.25), kForSize);
    EXPECT_EQ(library.requests,
              (std::vector<std::string>{"PNG_NEW_FILE 20", "PNG_AND 20", "PNG_OR 20",
                                        "PNG_ALL_CARD 20", "PNG_DELETE 20", "PNG_CATEGORIES 20",
                                        "PNG_USER 20", "PNG_GROUPS 20"}));
}

TEST(ConditionImagesSizes, EachOperatorStripIsFetchedWhenOneOfItsPicturesIsDrawn)
{
    Library library;
    ConditionImages images;
    images.append(library, {16, 16}, 32);
    EXPECT_EQ(images.operators()->image(41, {48, 48}).pixel(24, 24), kForSize);
    EXPECT_EQ(library.requests, std::vector<std::string>{"PNG_YELLOW_OPS 48"});
    EXPECT_EQ(images.operators()->image(9, {48, 48}).pixel(24, 24), kForSize);
    EXPECT_EQ(images.operators()->image(17, {48, 48}).pixel(24, 24), kForSize);
    EXPECT_EQ(library.requests, (std::vector<std::string>{"PNG_YELLOW_OPS 48", "PNG_RED_OPS 48"}));
}

TEST(ConditionImagesSizes, ALibraryWithoutOtherSizesHasItsOwnScaled)
{
    for (const int wrongBy : {1, -1}) { // likewise one that gives another size
        Library library;
        library.wrongBy = wrongBy;
        ConditionImages images;
        images.append(library, {16, 16}, 32);
        EXPECT_EQ(middleOfRowIcon(images, 0, 2), kAsGiven);
        EXPECT_EQ(images.operators()->image(0, {32, 32}).pixel(16, 16), kAsGiven);
        EXPECT_EQ(images.operators()->image(0, {32, 32}).size(), QSize(32, 32));
    }
}

TEST(ConditionImagesSizes, ASingleRowIconWithoutOtherSizesIsScaledBesideTheOthers)
{
    Library library;
    library.withoutSizes = QStringLiteral("PNG_OR");
    ConditionImages images;
    images.append(library, {16, 16}, 32);
    EXPECT_EQ(middleOfRowIcon(images, 1, 2), kForSize);
    EXPECT_EQ(middleOfRowIcon(images, 2, 2), kAsGiven);
    EXPECT_EQ(middleOfRowIcon(images, 3, 2), kForSize);
}

TEST(ConditionImagesSizes, ABlankRowIconIsBlankInEverySize)
{
    Library library;
    library.missing = QStringLiteral("PNG_OR");
    ConditionImages images;
    images.append(library, {16, 16}, 32);
    EXPECT_EQ(middleOfRowIcon(images, 2, 1), 0xFFFFFFFF);
    EXPECT_EQ(middleOfRowIcon(images, 2, 2), 0xFFFFFFFF);
    EXPECT_EQ(middleOfRowIcon(images, 3, 2), kForSize);
}

TEST(ConditionImagesSizes, SquarePicturesAreFittedToCellsThatAreNone)
{
    Library library;
    ConditionImages images;
    images.append(library, {16, 16}, 32);
    const QImage picture = images.operators()->image(14, {30, 20});
    EXPECT_EQ(picture.size(), QSize(30, 20));
    EXPECT_EQ(picture.pixel(15, 10), kForSize);
}

TEST(ConditionImagesSizes, RowIconsOutsideTheListAreNull)
{
    ConditionImages images;
    EXPECT_TRUE(images.rowIcon(0).isNull());
    Library library;
    images.append(library, {16, 16}, 32);
    EXPECT_FALSE(images.rowIcon(7).isNull());
    EXPECT_TRUE(images.rowIcon(8).isNull());
    EXPECT_TRUE(images.rowIcon(-1).isNull());
}

} // namespace
