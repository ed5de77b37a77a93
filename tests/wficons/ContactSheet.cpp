// The sheet of the documentation against one that has just been drawn. Where this fails,
// libs/wficons/contact-sheet.sh draws the sheet anew.
#include "support/WarningGuard.h"

#include <gtest/gtest.h>

#include <QImage>

#include <algorithm>
#include <cstdlib>

namespace {

struct Sheets {
    QImage kept{QStringLiteral(CONDTREE_KEPT_SHEET)};
    QImage fresh{QStringLiteral(CONDTREE_FRESH_SHEET)};
};

TEST(ContactSheet, IsMadeOfTheDrawingsAsTheyAre)
{
    const Sheets sheets;
    const QString key = QStringLiteral("Drawings");
    ASSERT_EQ(sheets.fresh.text(key).size(), 64);
    EXPECT_EQ(sheets.kept.text(key).toStdString(), sheets.fresh.text(key).toStdString());
}

// In squares that are half as large as the smallest picture: what another version of the toolkit
// does to an edge, or another font to a name, is far from what another picture does.
TEST(ContactSheet, ShowsThePicturesInTheirPlaces)
{
    constexpr int square = 8;
    constexpr int another = 96;
    const Sheets sheets;
    ASSERT_FALSE(sheets.fresh.isNull());
    ASSERT_EQ(sheets.kept.size(), sheets.fresh.size());
    const auto reduced = [](const QImage& sheet) {
        return sheet.scaled(sheet.size() / square, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const QImage kept = reduced(sheets.kept);
    const QImage fresh = reduced(sheets.fresh);
    for (int y = 0; y < fresh.height(); ++y) {
        for (int x = 0; x < fresh.width(); ++x) {
            const QRgb a = kept.pixel(x, y);
            const QRgb b = fresh.pixel(x, y);
            const int most = std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                       std::abs(qBlue(a) - qBlue(b))});
            EXPECT_LT(most, another) << "at " << square * x << ',' << square * y;
        }
    }
}

} // namespace
