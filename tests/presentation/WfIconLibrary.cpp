#include <condtree/presentation/WfIconLibrary.h>

#include "presentation/ModuleFiles.h"
#include "support/QtPrinters.h"
#include "support/WarningGuard.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

namespace condtree::test {

namespace {

const QString kIcon = QStringLiteral("PNG_AND");
const QString kStrip = QStringLiteral("PNG_RED_OPS");

/// The icon library of a process of its own, which looks for the files that the test names.
class WfIconLibraryTest : public testing::Test {
protected:
    void useModule(const char* name) { places = {files.copy(name)}; }

    /// The first pixel as 0xAARRGGBB, with the picture's size; else the result.
    static std::string text(IconResult result, const IconPixels& pixels)
    {
        if (result == IconResult::NoImage)
            return "no image";
        if (result == IconResult::NoLibrary)
            return "no library";
        const auto& bytes = pixels.bytes;
        EXPECT_EQ(bytes.size(), std::size_t(pixels.width) * std::size_t(pixels.height) * 4);
        return QStringLiteral("%1 x %2 %3")
            .arg(pixels.width)
            .arg(pixels.height)
            .arg(bytes[0] | bytes[1] << 8 | bytes[2] << 16 | std::uint32_t{bytes[3]} << 24, 8, 16,
                 QLatin1Char('0'))
            .toStdString();
    }
    std::string icon(const QString& name = kIcon, int use = 3)
    {
        IconPixels pixels;
        const IconResult result = library.loadIcon(name, use, pixels);
        return text(result, pixels);
    }
    std::string strip(const QString& name = kStrip, int use = 3)
    {
        IconPixels pixels;
        const IconResult result = library.loadImage(name, use, pixels);
        return text(result, pixels);
    }
    std::string atSize(const QString& name, int height)
    {
        IconPixels pixels;
        const IconResult result = library.loadAtSize(name, height, pixels);
        return text(result, pixels);
    }

    ModuleFiles files;
    QStringList places;
    int searches = 0;
    IconEntryPoints bound;
    WfIconLibrary library{[this] {
                              ++searches;
                              return places;
                          },
                          ModuleTrust::ofProcess(), bound};
};

TEST_F(WfIconLibraryTest, PicturesComeFromTheModulesEntryPointsWithNameAndUse)
{
    useModule("Good");
    EXPECT_EQ(icon(), "16 x 16 ff800000");
    EXPECT_EQ(strip(), "64 x 16 80008000");
    EXPECT_EQ(atSize(kIcon, 33), "33 x 33 ff000080");
    EXPECT_EQ(atSize(kStrip, 20), "80 x 20 ff000080");
}

TEST_F(WfIconLibraryTest, EachEntryPointIsBoundOnceAndForGood)
{
    useModule("Good");
    icon();
    EXPECT_EQ(searches, 1);
    icon();
    icon(QStringLiteral("PNG_OR"));
    EXPECT_EQ(searches, 1);
    strip();
    EXPECT_EQ(searches, 2);
    places.clear(); // it stays loaded, too, when its file is gone
    strip();
    icon();
    atSize(kIcon, 20);
    EXPECT_EQ(searches, 2);
}

TEST_F(WfIconLibraryTest, ASecondControlSharesWhatIsBound)
{
    useModule("Good");
    icon();
    WfIconLibrary second({}, {}, bound); // it has nowhere to look
    IconPixels pixels;
    EXPECT_EQ(second.loadIcon(kIcon, 3, pixels), IconResult::Loaded);
    EXPECT_EQ(second.loadAtSize(kIcon, 20, pixels), IconResult::Loaded);
}

TEST_F(WfIconLibraryTest, TheProcessHasOneSetOfEntryPointsUnboundAtFirst)
{
    IconEntryPoints& ofProcess = IconEntryPoints::ofProcess();
    EXPECT_EQ(&ofProcess, &IconEntryPoints::ofProcess());
    EXPECT_EQ(ofProcess.loadIcon, nullptr);
    EXPECT_EQ(ofProcess.loadImage, nullptr);
    EXPECT_EQ(ofProcess.loadAtSize, nullptr);
}

TEST_F(WfIconLibraryTest, AMissingLibraryIsOneLineInTheLogAndTriedAgain)
{
    const ExpectWarning warning(QStringLiteral("there is no icon library"));
    EXPECT_EQ(icon(), "no library");
    EXPECT_EQ(strip(), "no library");
    EXPECT_EQ(atSize(kIcon, 20), "no library");
    EXPECT_EQ(searches, 2);
    EXPECT_EQ(warning.count(), 1);
    useModule("Good");
    EXPECT_EQ(icon(), "16 x 16 ff800000");
    EXPECT_EQ(strip(), "64 x 16 80008000");
}

TEST_F(WfIconLibraryTest, AnotherSizeAloneLooksForNoLibrary)
{
    useModule("Good");
    EXPECT_EQ(atSize(kIcon, 20), "no library");
    EXPECT_EQ(searches, 0);
}

TEST_F(WfIconLibraryTest, TheFirstFileThatIsThereIsTaken)
{
    places = {files.path("nothing"), files.path("no folder/file"), files.copy("OnlyStrips"),
              files.copy("Good")};
    EXPECT_EQ(strip(), "64 x 16 ff808000");
}

TEST_F(WfIconLibraryTest, AFileThatIsRefusedIsNotReplacedByALaterOne)
{
    places = {files.write("text", "hello"), files.copy("Good")};
    const ExpectWarning warning(QStringLiteral("text is not loaded: it is no ELF file"));
    EXPECT_EQ(icon(), "no library");
    EXPECT_EQ(icon(), "no library");
    EXPECT_EQ(strip(), "no library");
    EXPECT_EQ(warning.count(), 1);
}

TEST_F(WfIconLibraryTest, WhatOthersMayWriteIsRefused)
{
    struct Row {
        mode_t folder;
        mode_t file;
        const char* problem;
    };
    const std::vector<Row> rows{
        {0700, 0646, "others may write it"},
        {0700, 0664, "others may write it"},
        {0707, 0644, "others may write a folder that it lies in"},
        {0777, 0644, "others may write a folder that it lies in"},
    };
    for (const Row& row : rows) {
        const ModuleFiles open;
        const QString place = open.copy("Good");
        chmod(place.toUtf8().constData(), row.file);
        chmod(open.path("").toUtf8().constData(), row.folder);
        places = {place, files.copy("Good")};
        WfIconLibrary each([this] { return places; }, {{0, geteuid()}, std::nullopt}, bound);
        const ExpectWarning warning(place + QStringLiteral(" is not loaded: ")
                                    + QString::fromUtf8(row.problem));
        IconPixels pixels;
        EXPECT_EQ(each.loadIcon(kIcon, 3, pixels), IconResult::NoLibrary) << row.problem;
        EXPECT_EQ(each.loadImage(kStrip, 3, pixels), IconResult::NoLibrary) << row.problem;
        EXPECT_EQ(warning.count(), 1) << row.problem;
    }
}

TEST_F(WfIconLibraryTest, ARelativePlaceIsPassedOverAndTold)
{
    // It is there, seen from the current folder.
    const QString relative = QDir::current().relativeFilePath(files.copy("OnlyStrips"));
    places = {relative, files.copy("Good")};
    const ExpectWarning warning(relative
                                + QStringLiteral(" is not looked for: its location is relative"));
    EXPECT_EQ(strip(), "64 x 16 80008000");
    EXPECT_EQ(warning.count(), 1);
}

TEST_F(WfIconLibraryTest, ARelativePlaceAloneIsOneLine)
{
    places = {QStringLiteral("icons/WfIcons.dll"), files.path("nothing")};
    const ExpectWarning warning(QStringLiteral("icons/WfIcons.dll is not looked for"));
    EXPECT_EQ(icon(), "no library");
    EXPECT_EQ(strip(), "no library");
    EXPECT_EQ(warning.count(), 1);
}

TEST_F(WfIconLibraryTest, AMissingEntryPointIsOneLineAndTheOtherIsBound)
{
    useModule("OnlyStrips");
    const ExpectWarning warning(
        QStringLiteral("the icon library has no ghLoadWFPngImageIconAsPerDPI"));
    EXPECT_EQ(icon(), "no library");
    EXPECT_EQ(icon(), "no library");
    EXPECT_EQ(strip(), "64 x 16 ff808000");
    EXPECT_EQ(atSize(kStrip, 20), "no library");
    EXPECT_EQ(warning.count(), 1);
    EXPECT_EQ(searches, 3);
    useModule("Good"); // the icons of this, the strips of the other
    EXPECT_EQ(icon(), "16 x 16 ff800000");
    EXPECT_EQ(strip(), "64 x 16 ff808000");
    EXPECT_EQ(atSize(kIcon, 20), "20 x 20 ff000080");
}

TEST_F(WfIconLibraryTest, AModuleWithoutEntryPointsIsLetGo)
{
    useModule("NoEntryPoints");
    const ExpectWarning warning(
        QStringLiteral("the icon library has no ghLoadWFPngImageIconAsPerDPI"));
    EXPECT_EQ(icon(), "no library");
    EXPECT_EQ(strip(), "no library");
    EXPECT_EQ(warning.count(), 1);
    QFile maps(QStringLiteral("/proc/self/maps"));
    ASSERT_TRUE(maps.open(QIODevice::ReadOnly));
    EXPECT_FALSE(maps.readAll().contains("/NoEntryPoints"));
    EXPECT_EQ(bound.loadIcon, nullptr);
}

TEST_F(WfIconLibraryTest, ALibraryWithoutPicturesIsBoundAndSaysSoOnce)
{
    useModule("NoPictures");
    const ExpectWarning warning(QStringLiteral("the icon library has no picture PNG_AND"));
    EXPECT_EQ(icon(), "no image");
    EXPECT_EQ(icon(), "no image");
    EXPECT_EQ(strip(), "no image");
    EXPECT_EQ(atSize(kIcon, 20), "no image");
    EXPECT_EQ(warning.count(), 1);
    EXPECT_NE(bound.loadIcon, nullptr);
}

// The picture is there, and is scaled.
TEST_F(WfIconLibraryTest, APictureThatIsMissingAtASizeOnlyIsNoLine)
{
    useModule("NoPictureAtASize");
    EXPECT_EQ(icon(), "16 x 16 ff800000");
    EXPECT_EQ(strip(), "64 x 16 80008000");
    EXPECT_EQ(atSize(kIcon, 24), "no image");
    EXPECT_EQ(atSize(kStrip, 24), "no image");
    EXPECT_EQ(atSize(kIcon, 20), "20 x 20 ff000080");
    // One that is missing at all is told as ever.
    const ExpectWarning warning(QStringLiteral("the icon library has no picture PNG_AND"));
    EXPECT_EQ(icon(kIcon, 4), "no image");
    EXPECT_EQ(atSize(kIcon, 24), "no image");
    EXPECT_EQ(warning.count(), 1);
}

TEST_F(WfIconLibraryTest, AnotherUseIsPassedThrough)
{
    useModule("Good");
    const ExpectWarning warning(QStringLiteral("the icon library has no picture PNG_AND"));
    EXPECT_EQ(icon(kIcon, 4), "no image");
    EXPECT_EQ(warning.count(), 1);
}

TEST_F(WfIconLibraryTest, PicturesOfAnotherVersionAreNotLookedAt)
{
    useModule("Foreign");
    const ExpectWarning warning(QStringLiteral("the icon library is of another version"));
    EXPECT_EQ(icon(), "no image");  // another size field
    EXPECT_EQ(strip(), "no image"); // another version
    EXPECT_EQ(warning.count(), 1);
}

TEST_F(WfIconLibraryTest, PicturesThatMakeNoSenseAreNoPictures)
{
    useModule("Damaged");
    const ExpectWarning warning(QStringLiteral("is damaged"));
    const std::vector<const char*> names{"a no width", "b negative height", "c no pixels",
                                         "d largest sizes", "e too high"};
    for (const char* name : names)
        EXPECT_EQ(icon(QString::fromUtf8(name)), "no image") << name;
    EXPECT_EQ(warning.count(), 1);
    EXPECT_EQ(icon(QStringLiteral("z")), "1 x 1 ffffffff");
}

} // namespace

} // namespace condtree::test
