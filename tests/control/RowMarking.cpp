#include "ControlFixture.h"

#include <condtree/control/RowDrawing.h>
#include <condtree/control/TreeGeometry.h>

#include <QImage>
#include <QPaintEvent>
#include <QTest>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace condtree::test {
namespace {

/// A shown control of two rows and the placeholder, with the focus elsewhere.
class RowMarking : public ControlFixture {
protected:
    RowMarking()
    {
        initialize();
        control->resize(403, 300);
        loaded({record(3, 2, "Author", "a", 1, 100), record(3, 2, "Title", "b", 1, 100)});
        control->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(control.get()));
        control->clearFocus();
    }
    /// The viewport as it is drawn.
    QImage picture() { return control->viewport()->grab().toImage(); }
    QRect rowRect(const QModelIndex& index) const { return control->visualRect(index); }
    QModelIndex at(int row) const { return control->model()->index(row, 0); }
};

// Marks lie over the finished row, columns included.
TEST_F(RowMarking, ASelectedRowIsTintedFromEdgeToEdgeWithABarInFront)
{
    const QColor highlight = control->palette().color(QPalette::Highlight);
    control->setCurrentIndex(at(1));
    const QImage image = picture();
    const QRect row = rowRect(at(1));
    for (int x = 0; x < 3; ++x) {
        EXPECT_EQ(image.pixelColor(x, row.top()), highlight) << x;
        EXPECT_EQ(image.pixelColor(x, row.bottom()), highlight) << x;
    }
    const int y = row.center().y();
    const QColor tint = image.pixelColor(3, y);
    EXPECT_NE(tint, highlight);
    EXPECT_NE(tint, QColor(Qt::white));
    EXPECT_GT(tint.lightness(), 200);
    for (const int column : {1, 2, 3}) // just before their separators
        EXPECT_EQ(image.pixelColor(column * control->viewport()->width() / 4 - 2, y), tint);
    EXPECT_EQ(image.pixelColor(control->viewport()->width() - 2, y), tint);
    EXPECT_EQ(image.pixelColor(3, rowRect(at(0)).center().y()), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(3, rowRect(at(2)).center().y()), QColor(Qt::white));
}

TEST_F(RowMarking, TheRowUnderThePointerIsTintedPalerThanTheSelectedOne)
{
    control->setCurrentIndex(at(0));
    const QPoint over = rowRect(at(1)).center();
    const QPoint global = control->viewport()->mapToGlobal(over);
    pointer = {global.x(), global.y()};
    QTest::mouseMove(control->windowHandle(), control->viewport()->mapTo(control.get(), over));
    QCoreApplication::processEvents();
    const QImage image = picture();
    const auto tintOf = [&](int row) { return image.pixelColor(6, rowRect(at(row)).center().y()); };
    EXPECT_LT(tintOf(1).lightness(), 255);
    EXPECT_GT(tintOf(1).lightness(), tintOf(0).lightness());
    EXPECT_EQ(tintOf(2), QColor(Qt::white));
    pointer = {-1000, -1000};
    EXPECT_EQ(picture().pixelColor(6, over.y()), QColor(Qt::white));
    pointer = {global.x(), global.y()}; // there again, but over another window
    control->viewport()->setAttribute(Qt::WA_UnderMouse, false);
    EXPECT_EQ(picture().pixelColor(6, over.y()), QColor(Qt::white));
}

/// Which part of a widget was painted.
class PaintedRegion final : public QObject {
public:
    explicit PaintedRegion(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            m_region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
    QRegion take() { return std::exchange(m_region, QRegion()); }

private:
    QRegion m_region;
};

TEST_F(RowMarking, AMovingPointerPaintsTheRowsThatItLeavesAndEnters)
{
    const auto moveTo = [&](int row) {
        const QPoint over = rowRect(at(row)).center();
        const QPoint global = control->viewport()->mapToGlobal(over);
        pointer = {global.x(), global.y()};
        QTest::mouseMove(control->windowHandle(), control->viewport()->mapTo(control.get(), over));
        QCoreApplication::processEvents();
    };
    moveTo(0);
    PaintedRegion painted(*control->viewport());
    moveTo(2);
    const QRegion region = painted.take();
    const int right = control->viewport()->width() - 2;
    for (const int row : {0, 2}) {
        const int y = rowRect(at(row)).center().y();
        EXPECT_TRUE(region.contains(QPoint(2, y))) << row;
        EXPECT_TRUE(region.contains(QPoint(right, y))) << row;
    }
    EXPECT_FALSE(region.contains(QPoint(2, rowRect(at(1)).center().y())));
}

TEST_F(RowMarking, TheCurrentRowIsFramedWhileTheControlHasTheFocus)
{
    control->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(control.get()));
    control->setCurrentIndex(at(1));
    const QColor highlight = control->palette().color(QPalette::Highlight);
    const auto corners = [&](int row) {
        const QImage image = picture();
        const QRect rect = rowRect(at(row));
        const int right = control->viewport()->width() - 1;
        return int(image.pixelColor(200, rect.top()) == highlight)
               + int(image.pixelColor(200, rect.bottom()) == highlight)
               + int(image.pixelColor(right, rect.center().y()) == highlight);
    };
    EXPECT_EQ(corners(1), 0);
    control->setFocus();
    ASSERT_TRUE(control->hasFocus());
    EXPECT_EQ(corners(1), 3);
    EXPECT_EQ(corners(2), 0);
}

TEST_F(RowMarking, AMarkedRowStaysReadable)
{
    const auto darkest = [&] {
        const QImage image = picture();
        const QRect rect = rowRect(at(0));
        int lightness = 255;
        for (int x = placeOfRow(*control, at(0))->textLeft + 3; x < 95; ++x) {
            for (int y = rect.top() + 2; y < rect.bottom() - 1; ++y)
                lightness = std::min(lightness, image.pixelColor(x, y).lightness());
        }
        return lightness;
    };
    const int before = darkest();
    control->setCurrentIndex(at(0));
    EXPECT_LT(darkest(), before + 60);
}

// The control repaints whole rows: what was marked before is not left over anywhere.
TEST_F(RowMarking, SelectingAnotherRowRepaintsBothFromEdgeToEdge)
{
    control->setCurrentIndex(at(0));
    QCoreApplication::processEvents();
    struct Regions : QObject {
        QRegion painted;
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() == QEvent::Paint)
                painted += static_cast<QPaintEvent*>(event)->region();
            return false;
        }
    } regions;
    control->viewport()->installEventFilter(&regions);
    control->setCurrentIndex(at(1));
    QCoreApplication::processEvents();
    for (const int row : {0, 1}) {
        QRect whole = rowRect(at(row));
        whole.setLeft(0);
        whole.setRight(control->viewport()->width() - 1);
        EXPECT_TRUE(QRegion(whole).subtracted(regions.painted).isEmpty()) << row;
    }
}

// A handler of a subclass that deletes every row that it is told of.
class DeletingCtrl final : public CondTreeCtrl {
public:
    using CondTreeCtrl::CondTreeCtrl;
    bool isArmed = false;

protected:
    void OnNMCustomdraw(NMHDR* header, LRESULT* result) override
    {
        const auto& draw = *reinterpret_cast<const NMTVCUSTOMDRAW*>(header);
        const HTREEITEM item = draw.dwItemSpec;
        CondTreeCtrl::OnNMCustomdraw(header, result);
        if (isArmed && draw.dwDrawStage == CDDS_ITEMPOSTPAINT) {
            isArmed = false;
            mvDeleteNode(item);
        }
    }
};

TEST_F(RowMarking, ARowThatIsGoneWhenItIsFinishedIsNotMarked)
{
    DeletingCtrl other(nullptr, services());
    other.mvInitialize(nullptr, 120, KiroVaultType{}, TreeType{});
    other.mvLoad({record(3, 2, "Author", "a", 1, 100)});
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    other.setFocus();
    other.setCurrentIndex(QModelIndex()); // neither current nor hovered
    other.isArmed = true;
    const QImage image = other.viewport()->grab().toImage();
    EXPECT_FALSE(other.isArmed);
    EXPECT_EQ(image.pixelColor(2, 0), QColor(Qt::white)); // no frame, no tint
    EXPECT_EQ(image.pixelColor(2, 10), QColor(Qt::white));
}

} // namespace
} // namespace condtree::test
