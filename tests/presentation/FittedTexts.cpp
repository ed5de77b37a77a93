#include <condtree/presentation/FittedTexts.h>

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QImage>
#include <QPainter>

using namespace condtree;

namespace {

const QString kLong = QStringLiteral("a text that is too long for its place");

class FittedTextsTest : public testing::Test {
protected:
    QImage sheet{100, 100, QImage::Format_RGB32};
    QPainter painter{&sheet};
    FittedTexts texts;
};

TEST_F(FittedTextsTest, ATextThatFitsStaysWhole)
{
    const int width = painter.fontMetrics().horizontalAdvance(kLong);
    for (int i = 0; i < 2; ++i) { // measured, then remembered
        const FittedText fitted = texts.fit(painter, kLong, width, true);
        EXPECT_EQ(fitted.text, kLong);
        EXPECT_EQ(fitted.width, width);
        EXPECT_EQ(texts.count(), 1);
    }
}

TEST_F(FittedTextsTest, ATextThatIsTooLongEndsInAnEllipsisInsideItsPlace)
{
    const int width = painter.fontMetrics().horizontalAdvance(kLong) - 1;
    for (int i = 0; i < 2; ++i) {
        const FittedText fitted = texts.fit(painter, kLong, width, true);
        EXPECT_TRUE(fitted.text.endsWith(QChar(0x2026)));
        EXPECT_LE(fitted.width, width);
        EXPECT_EQ(fitted.width, painter.fontMetrics().horizontalAdvance(fitted.text));
    }
}

TEST_F(FittedTextsTest, ATextThatIsNotElidedTellsItsWholeWidth)
{
    const FittedText fitted = texts.fit(painter, kLong, 10, false);
    EXPECT_EQ(fitted.text, kLong);
    EXPECT_EQ(fitted.width, painter.fontMetrics().horizontalAdvance(kLong));
    EXPECT_NE(texts.fit(painter, kLong, 10, true).text, kLong);
}

TEST_F(FittedTextsTest, EachWidthHasItsOwnEllipsis)
{
    const QString narrow = texts.fit(painter, kLong, 60, true).text;
    const QString wide = texts.fit(painter, kLong, 120, true).text;
    EXPECT_LT(narrow.size(), wide.size());
    EXPECT_EQ(texts.fit(painter, kLong, 60, true).text, narrow);
}

TEST_F(FittedTextsTest, AnotherFontMeasuresAnew)
{
    const int before = texts.fit(painter, kLong, 1000, true).width;
    QFont large = painter.font();
    large.setPixelSize(40);
    painter.setFont(large);
    EXPECT_GT(texts.fit(painter, kLong, 1000, true).width, before);
}

TEST_F(FittedTextsTest, AnotherDeviceMeasuresAnew)
{
    QFont font = painter.font();
    font.setPointSize(10);
    painter.setFont(font);
    const int before = texts.fit(painter, kLong, 1000, true).width;
    QImage dense(10, 10, QImage::Format_RGB32);
    dense.setDotsPerMeterX(20000);
    dense.setDotsPerMeterY(20000);
    QPainter densePainter(&dense);
    densePainter.setFont(font);
    EXPECT_GT(texts.fit(densePainter, kLong, 1000, true).width, 2 * before);
}

TEST_F(FittedTextsTest, NoMoreThanAFewWindowsFullAreRemembered)
{
    for (int i = 0; i < 3 * FittedTexts::kMost; ++i) {
        texts.fit(painter, QString::number(i), 100, true);
        ASSERT_LE(texts.count(), FittedTexts::kMost);
    }
    EXPECT_EQ(texts.fit(painter, QStringLiteral("7"), 100, true).text, QStringLiteral("7"));
}

TEST_F(FittedTextsTest, ATextThatIsRememberedForgetsNothing)
{
    for (int i = 0; i < FittedTexts::kMost; ++i)
        texts.fit(painter, QString::number(i), 100, true);
    ASSERT_EQ(texts.count(), FittedTexts::kMost);
    texts.fit(painter, QStringLiteral("7"), 100, true);
    EXPECT_EQ(texts.count(), FittedTexts::kMost);
    texts.fit(painter, QStringLiteral("a new one"), 100, true);
    EXPECT_EQ(texts.count(), 1);
}

} // namespace
