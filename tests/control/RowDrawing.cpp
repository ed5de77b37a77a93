#include "ControlFixture.h"

#include <condtree/control/RowDrawing.h>
#include <condtree/control/TreeGeometry.h>
#include <condtree/presentation/CDPIHelper.h>
#include <condtree/presentation/RowStyle.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <QTest>

#include <algorithm>
#include <array>

namespace condtree::test {
namespace {

const QColor kLine(160, 160, 220);

struct PaintCounter : QObject {
    int count = 0;
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

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
        control->clearFocus(); // its frame would cover lines
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
}

// Painted here a second time, from the rules: white up to the right edge, and the text 3 pixels in.
TEST_F(RowDrawing, TheRootItemIsItsNodesCaptionAloneInTheNotificationsRectangle)
{
    loaded({record(3, 2, "Author", "a", 1, 100)});
    const RECT rect{17, 5, 390, 33};
    QImage image(403, 40, QImage::Format_RGB32);
    image.fill(Qt::green);
    QImage expected = image;
    {
        QPainter painter(&image);
        stage(CDDS_ITEMPOSTPAINT, TVI_ROOT, &painter, rect);
    }
    QPainter painter(&expected);
    painter.fillRect(17, 5, 373, 28, Qt::white);
    const QFontMetrics metrics = painter.fontMetrics();
    painter.drawText(17 + 3, 5 + (28 - metrics.height()) / 2 + metrics.ascent(),
                     QStringLiteral("And"));
    painter.end();
    EXPECT_TRUE(image == expected);
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

TEST_F(RowDrawing, TextsThatSavingAltersAreDrawnAgain)
{
    loaded({record(3, 2, "Author", "a", 1, 106)});
    show();
    QCoreApplication::processEvents();
    PaintCounter paints;
    control->viewport()->installEventFilter(&paints);
    EXPECT_EQ(savedRecords(true).size(), 1U);
    QCoreApplication::processEvents();
    EXPECT_GT(paints.count, 0);
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
    const int margin = control->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
    EXPECT_EQ(place.textLeft, item.left() + control->iconSize().width() + 2 * margin);
}

TEST_F(RowDrawing, RowsAreAsHighAsTheResolutionAndTheFontAsk)
{
    loaded({});
    show();
    for (const int pixels : {6, 13, 60}) {
        QFont font = control->font();
        font.setPixelSize(pixels);
        control->setFont(font);
        EXPECT_EQ(rowRect(at(0)).height(), std::max(CDPIHelper::get()->getTreeItemHeight(),
                                                    control->fontMetrics().height() + 6));
    }
}

// The view's own row comes first (its picture, its branch mark), the columns over it.
TEST_F(RowDrawing, TheColumnsAreDrawnOverTheViewsOwnRow)
{
    loaded({record(3, 2, "Author", "a", 1, 100)});
    show();
    const RowPlace place = placeOfRow(*control, at(0)).value();
    const int middle = rowRect(at(0)).center().y();
    const QPoint inPicture(place.textLeft - 15, middle);
    const QPoint inValue(2 * control->viewport()->width() / 4 + 60, middle);
    const QImage plain = picture();
    EXPECT_EQ(plain.pixelColor(inPicture), ColouredIcons::colour(3));
    EXPECT_EQ(plain.pixelColor(inValue), QColor(Qt::white));
}

TEST_F(RowDrawing, TheOperatorsPictureIsOfItsListBehindTheFirstBoundary)
{
    loaded({record(3, 2, "Author", "a", 1, 103)});
    show();
    const int boundary = control->miGetColumnSize(0, control->viewport()->width());
    const QRect rect = rowRect(at(0));
    // The strips are requested behind the eight row pictures, so the first one has the ninth
    // colour.
    EXPECT_EQ(picture().pixelColor(boundary + 3, rect.center().y()), ColouredIcons::colour(8));
    EXPECT_EQ(picture().pixelColor(boundary + 22, rect.center().y()), ColouredIcons::colour(8));
    EXPECT_EQ(picture().pixelColor(boundary + 2, rect.center().y()), QColor(Qt::white));
}

TEST_F(RowDrawing, PicturesOfMorePixelsAreDrawnAtTheSizeOfSmallIcons)
{
    iconSize = QSize(10, 12); // the library's are twice as large
    control = std::make_unique<OpenCtrl>(nullptr, services());
    initialize();
    control->resize(403, 300);
    loaded({record(3, 2, "Author", "a", 1, 100)});
    show();
    const RowPlace place = placeOfRow(*control, at(0)).value();
    const int middle = rowRect(at(0)).center().y();
    int coloured = 0;
    for (int x = 0; x < place.textLeft; ++x)
        coloured += picture().pixelColor(x, middle) == ColouredIcons::colour(3) ? 1 : 0;
    EXPECT_EQ(coloured, 10);
}

TEST_F(RowDrawing, TextsAreTheStringLibrarysInTheWidgetsColour)
{
    loaded({record(3, 2, "", "", 1, 103)});
    show();
    const QImage before = picture();
    translations = {{44, QStringLiteral("XXXXXXX")}};
    EXPECT_NE(picture(), before);
    translations = {{103, QStringLiteral("YYYYYYY")}};
    EXPECT_NE(picture(), before);
    QPalette red = control->palette();
    red.setColor(QPalette::Text, QColor(200, 0, 0));
    control->setPalette(red);
    const QImage inRed = picture();
    const QRect name(placeOfRow(*control, at(0))->textLeft + 2, rowRect(at(0)).top() + 2, 60, 16);
    int ink = 0;
    for (int x = name.left(); x < name.right(); ++x) {
        for (int y = name.top(); y < name.bottom(); ++y) {
            const QColor pixel = inRed.pixelColor(x, y);
            ink += pixel.red() > pixel.blue() + 60 ? 1 : 0;
        }
    }
    EXPECT_GT(ink, 20);
}

TEST_F(RowDrawing, TheNamesOfOperatorsStandBehindASmallIconsWidth)
{
    const auto inkBehindBoundary = [this](int width) {
        iconSize = QSize(width, 24);
        control = std::make_unique<OpenCtrl>(nullptr, services());
        icons->result = IconResult::NoLibrary;
        initialize();
        control->resize(403, 300);
        loaded({record(3, 2, "", "", 1, 103)});
        show();
        const QImage image = picture();
        const int boundary = control->miGetColumnSize(0, control->viewport()->width());
        const QRect rect = rowRect(at(0));
        for (int x = boundary + 1; x < image.width(); ++x) {
            for (int y = rect.top() + 2; y < rect.bottom() - 1; ++y) {
                if (image.pixelColor(x, y).lightness() < 128)
                    return x - boundary;
            }
        }
        return 0;
    };
    const int narrow = inkBehindBoundary(20);
    EXPECT_GE(narrow, 3 + 20 + 3);
    EXPECT_EQ(inkBehindBoundary(40), narrow + 20);
}

// A subclass that answers the stages otherwise.
class OtherDrawing final : public CondTreeCtrl {
public:
    using CondTreeCtrl::CondTreeCtrl;
    LRESULT onPaint = CDRF_NOTIFYITEMDRAW;
    LRESULT onRow = CDRF_NOTIFYPOSTPAINT;
    std::vector<DWORD> stages;

protected:
    void OnNMCustomdraw(NMHDR* header, LRESULT* result) override
    {
        CondTreeCtrl::OnNMCustomdraw(header, result);
        const DWORD stage = reinterpret_cast<NMTVCUSTOMDRAW*>(header)->dwDrawStage;
        stages.push_back(stage);
        *result = stage == CDDS_PREPAINT ? onPaint : stage == CDDS_ITEMPREPAINT ? onRow : *result;
    }
};

TEST_F(RowDrawing, RowsAreToldAsTheAnswersAsk)
{
    OtherDrawing other(nullptr, services());
    other.mvInitialize(nullptr, 120, KiroVaultType{}, TreeType{});
    other.mvLoad({});
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&other));
    const auto stagesOf = [&](LRESULT onPaint, LRESULT onRow) {
        other.onPaint = onPaint;
        other.onRow = onRow;
        other.stages.clear();
        other.viewport()->grab();
        return other.stages;
    };
    EXPECT_EQ(stagesOf(CDRF_NOTIFYITEMDRAW, CDRF_NOTIFYPOSTPAINT),
              (std::vector<DWORD>{CDDS_PREPAINT, CDDS_ITEMPREPAINT, CDDS_ITEMPOSTPAINT}));
    EXPECT_EQ(stagesOf(CDRF_NOTIFYITEMDRAW, CDRF_DODEFAULT),
              (std::vector<DWORD>{CDDS_PREPAINT, CDDS_ITEMPREPAINT}));
    EXPECT_EQ(stagesOf(CDRF_DODEFAULT, CDRF_NOTIFYPOSTPAINT), std::vector<DWORD>{CDDS_PREPAINT});
}

TEST_F(RowDrawing, LinesAreCrispAndInTheirPlacesAtTwiceThePixels)
{
    loaded({record(3, 2, "Author", "a", 1, 100)});
    show();
    QImage image(control->viewport()->size() * 2, QImage::Format_RGB32);
    image.setDevicePixelRatio(2);
    control->viewport()->render(&image);
    const int y = 2 * rowRect(at(0)).center().y();
    const int boundary = 2 * control->miGetColumnSize(0, control->viewport()->width());
    EXPECT_EQ(image.pixelColor(boundary, y), kLine);
    EXPECT_EQ(image.pixelColor(boundary + 1, y), kLine);
    EXPECT_EQ(image.pixelColor(boundary - 1, y), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(boundary + 2, y), QColor(Qt::white));
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

// Such as an application that switches between themes of its own.
TEST_F(RowDrawing, EveryChangeOfTheApplicationsPaletteIsFollowed)
{
    loaded({});
    show();
    const QPalette before = QApplication::palette();
    struct Theme {
        QColor window, text, highlight, shownText;
    };
    const std::array<Theme, 4> themes{{{Qt::white, QColor(0, 0, 120), Qt::red, QColor(0, 0, 120)},
                                       {Qt::black, Qt::white, Qt::blue, Qt::black},
                                       {Qt::white, QColor(90, 0, 0), Qt::green, QColor(90, 0, 0)},
                                       {Qt::black, Qt::yellow, Qt::gray, Qt::black}}};
    for (const Theme& theme : themes) {
        QPalette palette = before;
        for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base})
            palette.setColor(role, theme.window);
        for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text})
            palette.setColor(role, theme.text);
        palette.setColor(QPalette::Highlight, theme.highlight);
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        EXPECT_EQ(control->palette().color(QPalette::Text), theme.shownText);
        EXPECT_EQ(control->palette().color(QPalette::Highlight), theme.highlight);
        EXPECT_EQ(control->palette().color(QPalette::Base), QColor(Qt::white));
    }
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
