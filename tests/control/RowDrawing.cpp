#include "ControlFixture.h"

#include <condtree/control/RowDrawing.h>
#include <condtree/presentation/CDPIHelper.h>
#include <condtree/presentation/RowStyle.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <QTest>

#include <array>

namespace condtree::test {
namespace {

const QColor kLine(160, 160, 220);

class RowDrawing : public ControlFixture {
protected:
    RowDrawing()
    {
        initialize();
        control->resize(403, 300);
    }
    void show()
    {
        control->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(control.get()));
    }
    /// The viewport as it is drawn.
    QImage picture() { return control->viewport()->grab().toImage(); }
    QRect rowRect(const QModelIndex& index) const { return control->visualRect(index); }
    QModelIndex at(int row) const { return control->model()->index(row, 0); }
    LRESULT stage(DWORD drawStage, HTREEITEM item, QPainter* painter = nullptr, RECT rect = {})
    {
        NMTVCUSTOMDRAW draw{{control.get(), 0, NM_CUSTOMDRAW}, drawStage, painter, rect, item};
        LRESULT result = 77;
        control->OnNMCustomdraw(&draw.hdr, &result);
        return result;
    }
};

TEST_F(RowDrawing, EachStageHasItsAnswer)
{
    loaded({record(3, 2, "Author", "a", 1, 100)});
    const HTREEITEM item = topRow(0).mhItem;
    EXPECT_EQ(stage(CDDS_PREPAINT, nullptr), CDRF_NOTIFYITEMDRAW);
    EXPECT_EQ(stage(CDDS_ITEMPREPAINT, item), CDRF_NOTIFYPOSTPAINT);
    EXPECT_EQ(stage(CDDS_ITEMPOSTPAINT, item), CDRF_DODEFAULT);
    for (const DWORD other : {CDDS_POSTPAINT, CDDS_PREERASE, CDDS_POSTERASE, CDDS_ITEMPREERASE,
                              CDDS_ITEMPOSTERASE, CDDS_SUBITEM})
        EXPECT_EQ(stage(other, item), CDRF_DODEFAULT) << other;
}

TEST_F(RowDrawing, OnlyTheLastStagePaintsAndARowWithoutANodePaintsNothing)
{
    loaded({record(3, 2, "Author", "a", 1, 100)});
    show();
    const HTREEITEM item = topRow(0).mhItem;
    const RECT rect{0, 0, 403, 20};
    const auto paintsAt = [&](DWORD drawStage, HTREEITEM row) {
        QImage image(403, 40, QImage::Format_RGB32);
        image.fill(Qt::green);
        const QImage before = image;
        QPainter painter(&image);
        stage(drawStage, row, &painter, rect);
        painter.end();
        return image != before;
    };
    EXPECT_TRUE(paintsAt(CDDS_ITEMPOSTPAINT, item));
    EXPECT_FALSE(paintsAt(CDDS_ITEMPREPAINT, item));
    EXPECT_FALSE(paintsAt(CDDS_PREPAINT, item));
    EXPECT_FALSE(paintsAt(CDDS_ITEMPOSTPAINT, nullptr));
    EXPECT_TRUE(paintsAt(CDDS_ITEMPOSTPAINT, TVI_ROOT)); // the top, in the notification's rectangle
}

TEST_F(RowDrawing, AConditionIsFramedFromItsTextToTheRightEdgeAndDividedByTheShares)
{
    loaded({record(3, 2, "Author", "a", 1, 100)});
    show();
    const QRect rect = rowRect(at(0));
    const int right = control->viewport()->width() - 1;
    const std::optional<RowPlace> place = placeOfRow(*control, at(0));
    ASSERT_TRUE(place);
    const QImage image = picture();
    const auto colour = [&](int x, int y) { return image.pixelColor(x, y); };
    for (const int y : {rect.top(), rect.bottom()}) {
        EXPECT_EQ(colour(place->textLeft + 30, y), kLine);
        EXPECT_EQ(colour(right, y), kLine);
    }
    EXPECT_EQ(colour(place->textLeft, rect.center().y()), kLine);
    for (const double share : {0.25, 0.5, 0.75}) {
        const int width = control->viewport()->width() / 4;
        const int x = width * static_cast<int>(share * 4);
        EXPECT_EQ(colour(x, rect.center().y()), kLine) << share;
        EXPECT_EQ(colour(x + 1, rect.top() + 3), QColor(Qt::white)) << share;
    }
}

TEST_F(RowDrawing, ResizingAColumnMovesItsBoundary)
{
    loaded({record(3, 2, "Author", "a", 1, 100)});
    show();
    control->mvResizeCol(0, 200, control->viewport()->width());
    const int y = rowRect(at(0)).center().y();
    const int x = control->miGetColumnSize(0, control->viewport()->width());
    EXPECT_EQ(x, 200);
    EXPECT_EQ(picture().pixelColor(x, y), kLine);
    EXPECT_NE(picture().pixelColor(control->viewport()->width() / 4, y), kLine);
}

TEST_F(RowDrawing, GroupsAndPlaceholdersAreOneCaptionWithoutAFrame)
{
    loaded({groupRecord()});
    show();
    const QImage image = picture();
    for (const int row : {0, 1}) {
        const QRect rect = rowRect(at(row));
        for (int x = rect.left(); x < control->viewport()->width(); ++x) {
            ASSERT_NE(image.pixelColor(x, rect.top()), kLine) << row << " " << x;
            ASSERT_NE(image.pixelColor(x, rect.bottom()), kLine) << row << " " << x;
        }
    }
}

TEST_F(RowDrawing, ARowInAGroupIsFramedAllAround)
{
    loaded({groupRecord(), record(4, 2, "Author", "a", 1, 100)});
    control->expandAll();
    show();
    const QModelIndex index = control->model()->index(0, 0, at(0));
    const QRect rect = rowRect(index);
    EXPECT_EQ(picture().pixelColor(320, rect.bottom()), kLine);
    EXPECT_EQ(picture().pixelColor(320, rect.top()), kLine);
    EXPECT_GT(placeOfRow(*control, index)->textLeft, placeOfRow(*control, at(0))->textLeft);
}

TEST_F(RowDrawing, ARowInsideAnotherConditionHasAnOpenFrame)
{
    loaded({record(3, 2, "Author", "a", 1, 100)});
    auto* inner = new VarTreeCtrlNode(NodeVariable);
    control->mhAddNode(&topRow(0), inner, false);
    control->expandAll();
    show();
    const QRect rect = rowRect(control->model()->index(0, 0, at(0)));
    EXPECT_EQ(picture().pixelColor(320, rect.top()), kLine);
    EXPECT_EQ(picture().pixelColor(320, rect.bottom()), QColor(Qt::white));
    EXPECT_EQ(picture().pixelColor(control->viewport()->width() - 1, rect.center().y()), kLine);
}

// What the rows show, from their nodes.
TEST_F(RowDrawing, ARowsContentIsItsNodesWithTheParentOnlyBelowTheTop)
{
    loaded(
        {groupRecord(), record(4, 2, "Author", "a", 1, 103, "e"), record(3, 1, "", "p", 1, 101)});
    const VarTreeCtrlNode* top = control->mpoGetNode(TVI_ROOT);
    const RowContent inner = contentOfRow(*topRow(0).mChildren[0], top);
    EXPECT_EQ(inner.code, 1000);
    EXPECT_EQ(inner.name, QStringLiteral("Author"));
    EXPECT_EQ(inner.value, QStringLiteral("a"));
    EXPECT_EQ(inner.extra, QStringLiteral("e"));
    EXPECT_EQ(inner.op, 103);
    EXPECT_EQ(inner.parentCode, NodeOr);
    EXPECT_EQ(contentOfRow(topRow(1), top).parentCode, std::nullopt);
}

TEST_F(RowDrawing, PaintingChangesNoNode)
{
    loaded({record(3, 1, "", "p", 1, 101), groupRecord(), record(4, 7, "", "12", 1, 100)});
    control->expandAll();
    const std::string before = rows();
    show();
    picture();
    EXPECT_EQ(rows(), before);
}

TEST_F(RowDrawing, ARowInAClosedGroupHasNoPlace)
{
    loaded({groupRecord(), record(4, 2, "Author", "a", 1, 100)});
    show();
    EXPECT_FALSE(placeOfRow(*control, control->model()->index(0, 0, at(0))));
    EXPECT_FALSE(placeOfRow(*control, QModelIndex()));
    EXPECT_TRUE(placeOfRow(*control, at(0)));
}

TEST_F(RowDrawing, TheTextBeginsBehindThePictureAndARowSpansTheViewport)
{
    loaded({record(3, 2, "Author", "a", 1, 100)});
    show();
    const RowPlace place = placeOfRow(*control, at(0)).value();
    const QRect item = rowRect(at(0));
    EXPECT_EQ(place.row, (RECT{0, item.top(), control->viewport()->width(), item.bottom() + 1}));
    EXPECT_GE(place.textLeft, item.left() + control->iconSize().width());
    EXPECT_LT(place.textLeft, item.left() + control->iconSize().width() + 12);
}

TEST_F(RowDrawing, RowsAreAsHighAsTheResolutionAndTheFontAsk)
{
    loaded({});
    show();
    const int height = rowRect(at(0)).height();
    EXPECT_GE(height, CDPIHelper::get()->getTreeItemHeight());
    EXPECT_GE(height, control->fontMetrics().height() + 4);
    QFont font = control->font();
    font.setPixelSize(60);
    control->setFont(font);
    EXPECT_GE(rowRect(at(0)).height(), control->fontMetrics().height() + 4);
}

TEST_F(RowDrawing, RowsAreDarkOnWhiteAlsoOnADarkDesktop)
{
    const QPalette light = QApplication::palette();
    QPalette dark = light;
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);
    QApplication::setPalette(dark);
    loaded({record(3, 2, "Author", "a", 1, 100)});
    show();
    EXPECT_EQ(control->palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(control->palette().color(QPalette::Text), QColor(Qt::black));
    EXPECT_EQ(picture().pixelColor(5, 250), QColor(Qt::white));
    QApplication::setPalette(light);
    QCoreApplication::processEvents();
    EXPECT_EQ(control->palette().color(QPalette::Text), light.color(QPalette::Text));
}

TEST_F(RowDrawing, AChangedDesktopPaletteIsFollowed)
{
    loaded({});
    show();
    const QPalette before = QApplication::palette();
    QPalette blue = before;
    blue.setColor(QPalette::Text, QColor(0, 0, 120));
    QApplication::setPalette(blue);
    QCoreApplication::processEvents();
    EXPECT_EQ(control->palette().color(QPalette::Text), QColor(0, 0, 120));
    QApplication::setPalette(before);
}

TEST_F(RowDrawing, APaletteOfTheHostsOwnStays)
{
    loaded({});
    show();
    QPalette own = control->palette();
    own.setColor(QPalette::Text, QColor(90, 0, 0));
    control->setPalette(own);
    QCoreApplication::processEvents();
    EXPECT_EQ(control->palette().color(QPalette::Text), QColor(90, 0, 0));
}

TEST_F(RowDrawing, TheScreensColourDepthIsFourWhereItIsNotKnown)
{
    const std::array<std::pair<int, int>, 4> kRows{{{32, 32}, {16, 16}, {0, 4}, {-1, 4}}};
    for (const auto& [bits, resolution] : kRows) {
        bitsPerPixel = bits;
        EXPECT_EQ(control->miGetColorResolution(), resolution);
    }
}

} // namespace
} // namespace condtree::test
