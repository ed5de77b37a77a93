#include <condtree/presentation/ConditionImages.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

using namespace condtree;

namespace {

constexpr QSize kSize{16, 16};

struct Colour {
    std::uint8_t blue, green, red, alpha;
};

IconPixels plain(int width, int height, Colour colour)
{
    IconPixels pixels{width, height, {}};
    for (int i = 0; i < width * height; ++i)
        pixels.bytes.insert(pixels.bytes.end(),
                            {colour.blue, colour.green, colour.red, colour.alpha});
    return pixels;
}

/// A library that writes down what it is asked for. Its icons are plain, each a little redder than
/// the one before; its strips hold 9, 9, 9 and 15 pictures.
class Library final : public IconLibrary {
public:
    IconResult loadIcon(const CString& name, int use, IconPixels& icon) override
    {
        requests.push_back("icon " + name.toStdString() + ' ' + std::to_string(use));
        icon = plain(side, side, {0x20, 0x40, static_cast<std::uint8_t>(10 * ++m_icons), 0xFF});
        if (name == damagedName)
            icon = damaged;
        return resultOf(name, icons);
    }

    IconResult loadImage(const CString& name, int use, IconPixels& strip) override
    {
        requests.push_back("strip " + name.toStdString() + ' ' + std::to_string(use));
        const int pictures = name == QStringLiteral("PNG_YELLOW_OPS") ? 15 : 9;
        strip = plain(pictures * side, side, {0xC0, 0xC0, 0xC0, 0xFF});
        // One dot a picture, as far from the left as the strip is from the first.
        for (int i = 0; i < pictures; ++i)
            dot(strip, i * side + m_strips);
        m_strips = (m_strips + 1) % 4;
        if (name == damagedName)
            strip = damaged;
        return resultOf(name, strips);
    }

    /// What every icon and every strip but the missing one gives.
    IconResult icons = IconResult::Loaded;
    IconResult strips = IconResult::Loaded;
    int side = 16;
    CString missing;
    CString damagedName;
    IconPixels damaged;
    std::vector<std::string> requests;

private:
    [[nodiscard]] IconResult resultOf(const CString& name, IconResult result) const
    {
        return name == missing ? IconResult::NoImage : result;
    }
    static void dot(IconPixels& strip, int x)
    {
        const auto at = static_cast<std::size_t>(x) * 4;
        strip.bytes[at] = 0xFF; // blue
        strip.bytes[at + 1] = 0;
        strip.bytes[at + 2] = 0;
    }
    int m_icons = 0;
    int m_strips = 0;
};

TEST(ConditionImages, ThereAreNoListsBeforeTheFirstCall)
{
    const ConditionImages images;
    EXPECT_EQ(images.rows(), nullptr);
    EXPECT_EQ(images.operators(), nullptr);
}

TEST(ConditionImages, EveryPictureIsAskedForInOrderWithTheUseThree)
{
    Library library;
    ConditionImages images;
    images.append(library, kSize, 32);
    EXPECT_EQ(library.requests,
              (std::vector<std::string>{
                  "icon PNG_NEW_FILE 3", "icon PNG_AND 3", "icon PNG_OR 3", "icon PNG_ALL_CARD 3",
                  "icon PNG_DELETE 3", "icon PNG_CATEGORIES 3", "icon PNG_USER 3",
                  "icon PNG_GROUPS 3", "strip PNG_BLUE_OPS 3", "strip PNG_RED_OPS 3",
                  "strip PNG_GREEN_OPS 3", "strip PNG_YELLOW_OPS 3"}));
}

TEST(ConditionImages, TheListsHoldEightRowsAndFortyTwoOperators)
{
    Library library;
    ConditionImages images;
    images.append(library, kSize, 32);
    ASSERT_NE(images.rows(), nullptr);
    ASSERT_NE(images.operators(), nullptr);
    EXPECT_EQ(images.rows()->count(), 8);
    EXPECT_EQ(images.operators()->count(), 42);
    EXPECT_EQ(images.rows()->imageSize(), kSize);
    EXPECT_EQ(images.operators()->imageSize(), kSize);
}

TEST(ConditionImages, ASecondCallAppendsEverythingAgainToTheSameLists)
{
    Library library;
    ConditionImages images;
    images.append(library, kSize, 32);
    const ImgLst* rows = images.rows();
    const ImgLst* operators = images.operators();
    images.append(library, {20, 20}, 8);
    EXPECT_EQ(images.rows(), rows);
    EXPECT_EQ(images.operators(), operators);
    EXPECT_EQ(rows->count(), 16);
    EXPECT_EQ(operators->count(), 84);
    // Size and depth are the first call's.
    EXPECT_EQ(rows->imageSize(), kSize);
    EXPECT_EQ(rows->image(15).depth(), 32);
    EXPECT_EQ(library.requests.size(), 24U);
}

TEST(ConditionImages, TheRowIconsKeepTheirOrder)
{
    Library library;
    ConditionImages images;
    images.append(library, kSize, 32);
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(images.rows()->image(i).pixel(3, 5), qRgb(10 * (i + 1), 0x40, 0x20)) << i;
}

TEST(ConditionImages, TheOperatorsAreCountedThroughTheFourStrips)
{
    Library library;
    ConditionImages images;
    images.append(library, kSize, 32);
    for (int i = 0; i < 42; ++i) {
        const int strip = i < 9 ? 0 : i < 18 ? 1 : i < 27 ? 2 : 3;
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(qAlpha(images.operators()->image(i).pixel(x, 0)), x == strip ? 255 : 0) << i;
    }
}

TEST(ConditionImages, SilverIsTransparentInTheStrips)
{
    Library library;
    ConditionImages images;
    images.append(library, kSize, 32);
    EXPECT_EQ(images.operators()->image(0).pixel(0, 0), 0xFF0000FF);
    EXPECT_EQ(qAlpha(images.operators()->image(0).pixel(8, 8)), 0);
}

TEST(ConditionImages, RowIconsLieOnWhiteAndSilverIsTransparentInThem)
{
    Library library;
    library.damagedName = QStringLiteral("PNG_OR");
    library.damaged = plain(16, 16, {0, 0, 0, 0});
    library.damaged.bytes[0] = library.damaged.bytes[1] = library.damaged.bytes[2] = 0xC0;
    library.damaged.bytes[3] = 0xFF;
    ConditionImages images;
    images.append(library, kSize, 32);
    EXPECT_EQ(qAlpha(images.rows()->image(2).pixel(0, 0)), 0);
    EXPECT_EQ(images.rows()->image(2).pixel(1, 0), 0xFFFFFFFF);
}

TEST(ConditionImages, TheBackgroundOfTheRowListIsWhiteAndTheOperatorsHaveNone)
{
    Library library;
    library.damagedName = QStringLiteral("PNG_OR");
    library.damaged = plain(16, 16, {0xC0, 0xC0, 0xC0, 0xFF});
    ConditionImages images;
    images.append(library, kSize, 32);
    for (const QSize& size : {kSize, QSize(24, 24)}) {
        EXPECT_EQ(images.rows()->image(2, size).pixel(8, 8), 0xFFFFFFFF);
        EXPECT_EQ(qAlpha(images.operators()->image(0, size).pixel(12, 12)), 0);
    }
}

TEST(ConditionImages, AHalfTransparentPixelOfARowIconIsMixedWithWhite)
{
    Library library;
    library.damagedName = QStringLiteral("PNG_OR");
    library.damaged = plain(16, 16, {0xFF, 0, 0, 0x80});
    ConditionImages images;
    images.append(library, kSize, 32);
    const QRgb pixel = images.rows()->image(2).pixel(4, 4);
    EXPECT_EQ(qBlue(pixel), 255);
    EXPECT_NEAR(qRed(pixel), 127, 2);
    EXPECT_EQ(qAlpha(pixel), 255);
}

struct Depth {
    int bitsPerPixel;
    int depth;
};

TEST(ConditionImages, TheRowListHasEightBitsOnAScreenOfLessThanTwentyFour)
{
    for (const Depth& row :
         {Depth{4, 8}, Depth{8, 8}, Depth{16, 8}, Depth{23, 8}, Depth{24, 32}, Depth{32, 32}}) {
        Library library;
        ConditionImages images;
        images.append(library, kSize, row.bitsPerPixel);
        ASSERT_EQ(images.rows()->count(), 8);
        EXPECT_EQ(images.rows()->image(7).depth(), row.depth) << row.bitsPerPixel;
        EXPECT_EQ(images.operators()->image(41).depth(), 32) << row.bitsPerPixel;
    }
}

TEST(ConditionImages, WithoutTheLibraryTheListsAreThereAndEmpty)
{
    Library library;
    library.icons = library.strips = IconResult::NoLibrary;
    ConditionImages images;
    images.append(library, kSize, 32);
    ASSERT_NE(images.rows(), nullptr);
    ASSERT_NE(images.operators(), nullptr);
    EXPECT_EQ(images.rows()->count(), 0);
    EXPECT_EQ(images.operators()->count(), 0);
}

TEST(ConditionImages, ALibraryThatIsFoundLaterFillsTheEmptyLists)
{
    Library library;
    library.icons = library.strips = IconResult::NoLibrary;
    ConditionImages images;
    images.append(library, kSize, 32);
    library.icons = library.strips = IconResult::Loaded;
    images.append(library, kSize, 32);
    EXPECT_EQ(images.rows()->count(), 8);
    EXPECT_EQ(images.operators()->count(), 42);
}

TEST(ConditionImages, OneMissingEntryPointLeavesTheOtherListAlone)
{
    Library iconless;
    iconless.icons = IconResult::NoLibrary;
    ConditionImages operatorsOnly;
    operatorsOnly.append(iconless, kSize, 32);
    EXPECT_EQ(operatorsOnly.rows()->count(), 0);
    EXPECT_EQ(operatorsOnly.operators()->count(), 42);

    Library stripless;
    stripless.strips = IconResult::NoLibrary;
    ConditionImages rowsOnly;
    rowsOnly.append(stripless, kSize, 32);
    EXPECT_EQ(rowsOnly.rows()->count(), 8);
    EXPECT_EQ(rowsOnly.operators()->count(), 0);
}

void expectThatTheSecondIconIsBlank(Library& library)
{
    ConditionImages images;
    images.append(library, kSize, 32);
    ASSERT_EQ(images.rows()->count(), 8);
    QImage white(kSize, QImage::Format_ARGB32_Premultiplied);
    white.fill(Qt::white);
    EXPECT_EQ(images.rows()->image(1), white);
    EXPECT_EQ(images.rows()->image(2).pixel(0, 0), qRgb(30, 0x40, 0x20));
}

TEST(ConditionImages, AMissingRowIconIsBlankSoThatTheIndicesStay)
{
    Library library;
    library.missing = QStringLiteral("PNG_AND");
    expectThatTheSecondIconIsBlank(library);
}

TEST(ConditionImages, ALibraryWithoutAnyIconGivesEightBlankOnes)
{
    Library library;
    library.icons = IconResult::NoImage;
    ConditionImages images;
    images.append(library, kSize, 32);
    EXPECT_EQ(images.rows()->count(), 8);
    EXPECT_EQ(images.rows()->image(7).size(), kSize);
}

TEST(ConditionImages, AMissingStripIsLeftOut)
{
    Library library;
    library.missing = QStringLiteral("PNG_RED_OPS");
    ConditionImages images;
    images.append(library, kSize, 32);
    EXPECT_EQ(images.operators()->count(), 33);
}

std::vector<std::pair<const char*, IconPixels>> damagedPictures()
{
    IconPixels shortOfOne = plain(16, 16, {0, 0, 0, 0xFF});
    shortOfOne.bytes.pop_back();
    return {{"no size", {0, 0, std::vector<std::uint8_t>(1024)}},
            {"no height", {16, 0, std::vector<std::uint8_t>(1024)}},
            {"negative width", {-16, 16, std::vector<std::uint8_t>(1024)}},
            {"negative height", {16, -16, std::vector<std::uint8_t>(1024)}},
            {"both negative", {-16, -16, std::vector<std::uint8_t>(1024)}},
            {"no bytes", {16, 16, {}}},
            {"a byte short", shortOfOne},
            {"sizes whose product overflows", {65536, 65536, std::vector<std::uint8_t>(1024)}},
            {"the largest sizes", {2147483647, 2147483647, std::vector<std::uint8_t>(1024)}}};
}

TEST(ConditionImages, ADamagedRowIconIsBlank)
{
    for (const auto& [name, pixels] : damagedPictures()) {
        SCOPED_TRACE(name);
        Library library;
        library.damagedName = QStringLiteral("PNG_AND");
        library.damaged = pixels;
        expectThatTheSecondIconIsBlank(library);
    }
}

TEST(ConditionImages, AnAbsurdlyLargeRowIconIsBlank)
{
    for (const auto& [width, height] : {std::pair{1, 1025}, std::pair{1025, 1}}) {
        Library library;
        library.damagedName = QStringLiteral("PNG_AND");
        library.damaged = plain(width, height, {0, 0, 0, 0xFF});
        expectThatTheSecondIconIsBlank(library);
    }
}

TEST(ConditionImages, ADamagedStripIsLeftOut)
{
    for (const auto& [name, pixels] : damagedPictures()) {
        Library library;
        library.damagedName = QStringLiteral("PNG_RED_OPS");
        library.damaged = pixels;
        ConditionImages images;
        images.append(library, kSize, 32);
        EXPECT_EQ(images.operators()->count(), 33) << name;
    }
}

TEST(ConditionImages, PicturesForADenseScreenKeepTheirPixels)
{
    Library library;
    library.side = 32;
    ConditionImages images;
    images.append(library, kSize, 32);
    ASSERT_EQ(images.rows()->count(), 8);
    ASSERT_EQ(images.operators()->count(), 42);
    EXPECT_EQ(images.rows()->image(0).size(), QSize(32, 32));
    EXPECT_EQ(images.operators()->image(41).size(), QSize(32, 32));
    EXPECT_EQ(images.rows()->image(7).pixel(31, 31), qRgb(80, 0x40, 0x20));
}

TEST(ConditionImages, ARowIconOfAnotherSizeIsFittedToTheOthers)
{
    Library library;
    library.damagedName = QStringLiteral("PNG_AND");
    library.damaged = plain(8, 8, {0x20, 0x40, 0xAA, 0xFF});
    ConditionImages images;
    images.append(library, kSize, 32);
    EXPECT_EQ(images.rows()->image(1).size(), kSize);
    EXPECT_EQ(images.rows()->image(1).pixel(15, 15), qRgb(0xAA, 0x40, 0x20));
}

TEST(ConditionImages, ListsOfNoSizeStayEmpty)
{
    Library library;
    ConditionImages images;
    images.append(library, {0, 0}, 32);
    EXPECT_EQ(images.rows()->count(), 0);
    EXPECT_EQ(images.operators()->count(), 0);
}

} // namespace
