#include <condtree/presentation/RowStyle.h>

#include <gtest/gtest.h>

#include <vector>

using namespace condtree;

namespace {

const std::vector<QPalette::ColorGroup> kGroups{QPalette::Active, QPalette::Inactive,
                                                QPalette::Disabled};

TEST(RowStyle, AColourIsBlueGreenRedFromTheTop)
{
    EXPECT_EQ(toQColor(0x00123456), QColor(0x56, 0x34, 0x12));
    EXPECT_EQ(toQColor(kRowLineColour), QColor(160, 160, 220));
    EXPECT_EQ(toQColor(kRowBackground), QColor(Qt::white));
}

TEST(RowStyle, AColoursHighestByteIsIgnored)
{
    EXPECT_EQ(toQColor(0xFF0000FF), QColor(255, 0, 0));
}

QPalette darkDesktop()
{
    QPalette palette;
    for (const QPalette::ColorGroup group : kGroups) {
        palette.setColor(group, QPalette::Base, QColor(30, 30, 30));
        palette.setColor(group, QPalette::AlternateBase, QColor(40, 40, 40));
        palette.setColor(group, QPalette::Text, Qt::white);
        palette.setColor(group, QPalette::WindowText, QColor(200, 200, 200));
        palette.setColor(group, QPalette::Highlight, QColor(20, 20, 120));
        palette.setColor(group, QPalette::HighlightedText, QColor(250, 250, 200));
    }
    return palette;
}

TEST(RowStyle, RowsAreWhiteInEveryGroup)
{
    const QPalette palette = paletteOnWhite(darkDesktop());
    for (const QPalette::ColorGroup group : kGroups) {
        EXPECT_EQ(palette.color(group, QPalette::Base), QColor(Qt::white));
        EXPECT_EQ(palette.color(group, QPalette::AlternateBase), QColor(Qt::white));
    }
}

TEST(RowStyle, LightTextsBecomeBlackInEveryGroup)
{
    const QPalette palette = paletteOnWhite(darkDesktop());
    for (const QPalette::ColorGroup group : kGroups) {
        EXPECT_EQ(palette.color(group, QPalette::Text), QColor(Qt::black));
        EXPECT_EQ(palette.color(group, QPalette::WindowText), QColor(Qt::black));
    }
}

TEST(RowStyle, TheHighlightIsTheDesktops)
{
    const QPalette palette = paletteOnWhite(darkDesktop());
    for (const QPalette::ColorGroup group : kGroups) {
        EXPECT_EQ(palette.color(group, QPalette::Highlight), QColor(20, 20, 120));
        EXPECT_EQ(palette.color(group, QPalette::HighlightedText), QColor(250, 250, 200));
    }
}

struct Text {
    const char* name;
    QColor desktop;
    QColor shown;
};

TEST(RowStyle, TextsThatCanBeReadOnWhiteKeepTheirColour)
{
    const std::vector<Text> rows{
        {"black", Qt::black, Qt::black},
        {"dark blue", QColor(0, 0, 139), QColor(0, 0, 139)},
        {"blue", Qt::blue, Qt::blue},
        {"red", Qt::red, Qt::black},
        {"green", Qt::green, Qt::black},
        {"yellow", Qt::yellow, Qt::black},
        {"white", Qt::white, Qt::black},
        {"faint black", QColor(0, 0, 0, 60), Qt::black},
        {"strong black", QColor(0, 0, 0, 200), QColor(0, 0, 0, 200)},
    };
    for (const Text& row : rows) {
        QPalette desktop;
        for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText}) {
            desktop.setColor(role, row.desktop);
            EXPECT_EQ(paletteOnWhite(desktop).color(role), row.shown) << row.name;
        }
    }
}

struct Grey {
    const char* name;
    QColor highlight;
    int darkEnough;
    int tooLight;
};

// On white grey reaches the contrast of 4.5 at 118, and needs to be darker where the row is marked.
TEST(RowStyle, TextsThatCannotBeReadOnASelectedRowBecomeBlack)
{
    const std::vector<Grey> rows{
        {"bright blue", QColor(0, 120, 215), 100, 101},
        {"a lighter blue", QColor(48, 140, 198), 98, 99},
        {"navy", QColor(20, 20, 120), 107, 108},
        {"black", Qt::black, 109, 110},
        {"grey", QColor(148, 148, 148), 96, 97},
        {"so pale that the text's own colour is the mark", Qt::white, 100, 103},
    };
    for (const Grey& row : rows) {
        QPalette desktop;
        desktop.setColor(QPalette::Highlight, row.highlight);
        const auto shown = [&](int level) {
            desktop.setColor(QPalette::Text, QColor(level, level, level));
            return paletteOnWhite(desktop).color(QPalette::Text).red();
        };
        EXPECT_EQ(shown(row.darkEnough), row.darkEnough) << row.name;
        EXPECT_EQ(shown(row.tooLight), 0) << row.name;
    }
}

TEST(RowStyle, OnlyWhatIsNotTheDesktopsCountsAsSet)
{
    QPalette desktop = darkDesktop();
    desktop.setColor(QPalette::Text, QColor(0, 0, 139));
    const QPalette onWhite = paletteOnWhite(desktop);
    const auto isSet = [&](QPalette::ColorRole role) {
        return onWhite.isBrushSet(QPalette::Active, role);
    };
    EXPECT_TRUE(isSet(QPalette::Base));
    EXPECT_TRUE(isSet(QPalette::AlternateBase));
    EXPECT_TRUE(isSet(QPalette::WindowText));
    EXPECT_FALSE(isSet(QPalette::Text));
    EXPECT_FALSE(isSet(QPalette::Highlight));
    EXPECT_FALSE(isSet(QPalette::Button));
}

TEST(RowStyle, EachGroupIsJudgedByItself)
{
    QPalette desktop;
    desktop.setColor(QPalette::Active, QPalette::Text, QColor(0, 0, 139));
    desktop.setColor(QPalette::Inactive, QPalette::Text, QColor(139, 0, 0));
    desktop.setColor(QPalette::Disabled, QPalette::Text, QColor(190, 190, 190));
    const QPalette palette = paletteOnWhite(desktop);
    EXPECT_EQ(palette.color(QPalette::Active, QPalette::Text), QColor(0, 0, 139));
    EXPECT_EQ(palette.color(QPalette::Inactive, QPalette::Text), QColor(139, 0, 0));
    EXPECT_EQ(palette.color(QPalette::Disabled, QPalette::Text), QColor(Qt::black));
}

TEST(RowStyle, TheMarkIsTheHighlightWhereItStandsOutOnWhite)
{
    QPalette palette;
    palette.setColor(QPalette::Active, QPalette::Text, QColor(10, 20, 30));
    palette.setColor(QPalette::Inactive, QPalette::Text, QColor(40, 50, 60));
    const auto markOf = [&](const QColor& highlight) {
        palette.setColor(QPalette::Active, QPalette::Highlight, highlight);
        return markColour(palette, QPalette::Active);
    };
    EXPECT_EQ(markOf(QColor(0, 120, 215)), 0x00D77800U);
    // Grey reaches the contrast of 3 between 148 and 149.
    EXPECT_EQ(markOf(QColor(148, 148, 148)), 0x00949494U);
    EXPECT_EQ(markOf(QColor(149, 149, 149)), 0x001E140AU);
    EXPECT_EQ(markOf(QColor(255, 255, 0)), 0x001E140AU);
    palette.setColor(QPalette::Inactive, QPalette::Highlight, Qt::white);
    EXPECT_EQ(markColour(palette, QPalette::Inactive), 0x003C3228U);
}

} // namespace
