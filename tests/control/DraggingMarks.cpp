// What is seen of a drag, and what it does to the view: the picture, the mark, scrolling and
// opening.
#include "DragFixture.h"

#include <QImage>
#include <QScrollBar>
#include <QSplitter>

namespace condtree::test {
namespace {

class DraggingMarks : public DragFixture {
protected:
    QImage picture() const { return tree->viewport()->grab().toImage(); }
    /// Whether a row has the frame of one below a drag: two pixels wide.
    bool isMarked(const std::vector<int>& path) const
    {
        const QColor colour = tree->palette().color(QPalette::Highlight);
        const QImage image = picture();
        const QRect row = tree->visualRect(index(path));
        const int x = image.width() - 20;
        for (const int y : {row.top(), row.top() + 1, row.bottom() - 1, row.bottom()}) {
            if (y < image.height() && image.pixelColor(x, y) != colour)
                return false;
        }
        return row.height() > 4;
    }
    int marked() const
    {
        int count = 0;
        for (const std::vector<int>& path :
             {std::vector<int>{0}, {0, 0}, {0, 1}, {0, 2}, {1}, {2}, {3}, {4}})
            count += isMarked(path) ? 1 : 0;
        return count;
    }
};

TEST_F(DraggingMarks, ThePictureHasThePointerInItsMiddle)
{
    pick({1});
    ASSERT_NE(image(), nullptr);
    EXPECT_EQ(image()->parentWidget(), dialog);
    EXPECT_TRUE(image()->isVisible());
    for (const QPoint& to : {at({0}), at({2}), QPoint(-300, -300), QPoint(900, 900)}) {
        move(to);
        EXPECT_EQ(image()->pos() + QPoint(image()->width() / 2, image()->height() / 2),
                  inWindow(to));
    }
}

TEST_F(DraggingMarks, ThePictureIsTheRowsOwnAndTranslucent)
{
    tree->setCurrentIndex(index({4})); // its own mark aside
    const QRect row = tree->visualRect(index({1}));
    tree->mvBegindrag(point(at({1})));
    ASSERT_NE(image(), nullptr);
    EXPECT_EQ(image()->height(), row.height());
    EXPECT_EQ(image()->width(), tree->miGetColumnSize(0, tree->viewport()->width()) - row.left())
        << "its first column, from the icon on";
    QImage shown(image()->size(), QImage::Format_ARGB32);
    shown.fill(Qt::transparent);
    image()->render(&shown, QPoint(), QRegion(), {});
    const QImage drawn = picture();
    int inked = 0;
    for (int x = 0; x < shown.width(); ++x) {
        for (int y = 0; y < shown.height(); ++y) {
            const QColor there = drawn.pixelColor(row.left() + x, row.top() + y);
            const QColor here = shown.pixelColor(x, y);
            ASSERT_GT(here.alpha(), 120);
            ASSERT_LT(here.alpha(), 220);
            ASSERT_NEAR(here.red(), there.red(), 3) << x << "," << y;
            ASSERT_NEAR(here.blue(), there.blue(), 3) << x << "," << y;
            inked += there.lightness() < 128 ? 1 : 0;
        }
    }
    EXPECT_GT(inked, 20) << "it has letters";
}

TEST_F(DraggingMarks, ThePictureTakesNoInput)
{
    pick({1});
    EXPECT_TRUE(image()->testAttribute(Qt::WA_TransparentForMouseEvents));
    EXPECT_EQ(image()->focusPolicy(), Qt::NoFocus);
    EXPECT_TRUE(tree->hasFocus());
    EXPECT_EQ(dialog->childAt(inWindow(at({1}))), tree->viewport());
}

TEST_F(DraggingMarks, TheRowBelowIsMarkedWhetherItIsATargetOrNot)
{
    pick({1});
    for (const std::vector<int>& path : {std::vector<int>{0}, {2}, {4}, {3}, {0, 1}, {1}}) {
        move(at(path));
        EXPECT_TRUE(isMarked(path));
        EXPECT_EQ(marked(), 1);
    }
    move(below());
    EXPECT_EQ(marked(), 0);
    move(at({0}));
    release(at({2}));
    EXPECT_EQ(marked(), 0);
}

TEST_F(DraggingMarks, TheMarkIsDrawnWithoutOtherRows)
{
    pick({1});
    move(at({2}));
    QCoreApplication::processEvents();
    tree->painted = {};
    move(at({0}));
    QCoreApplication::processEvents();
    EXPECT_TRUE(tree->painted.contains(tree->visualRect(index({2}))));
    EXPECT_TRUE(tree->painted.contains(tree->visualRect(index({0}))));
    EXPECT_FALSE(tree->painted.contains(tree->visualRect(index({4})).center()));
}

TEST_F(DraggingMarks, ThePointerTellsWhereADropDoesNothing)
{
    struct {
        std::vector<int> path;
        Qt::CursorShape shape;
    } const rows[]{{{0}, Qt::ArrowCursor},     {{2}, Qt::ForbiddenCursor},
                   {{3}, Qt::ArrowCursor},     {{4}, Qt::ForbiddenCursor},
                   {{1}, Qt::ForbiddenCursor}, {{0, 1}, Qt::ForbiddenCursor}};
    pick({1});
    for (const auto& row : rows) {
        move(at(row.path));
        EXPECT_EQ(tree->viewport()->cursor().shape(), row.shape) << row.path[0];
    }
    move(below());
    EXPECT_EQ(tree->viewport()->cursor().shape(), Qt::ArrowCursor);
    release(below());
    EXPECT_FALSE(tree->viewport()->testAttribute(Qt::WA_SetCursor));
}

TEST_F(DraggingMarks, ARestOpensAClosedGroup)
{
    pick({1});
    move(at({3}));
    EXPECT_EQ(running[1002], 700U);
    EXPECT_FALSE(tree->isExpanded(index({3})));
    fire(1002);
    EXPECT_TRUE(tree->isExpanded(index({3})));
    move(at({3, 0}));
    EXPECT_TRUE(isMarked({3, 0}));
    move(at({0}));
    EXPECT_EQ(running.count(1002), 0U) << "an open group has nothing to open";
}

TEST_F(DraggingMarks, APassOpensNone)
{
    pick({1});
    move(at({3}));
    move(at({4}));
    EXPECT_EQ(running.count(1002), 0U);
    EXPECT_FALSE(tree->isExpanded(index({3})));
}

/// A tree of a group and many rows.
class DraggingFar : public DraggingMarks {
protected:
    DraggingFar()
    {
        std::vector<TransCond> records{groupRecord()};
        for (int n = 0; n < 200; ++n)
            records.push_back(record(3, 2, "Author", std::to_string(n).c_str(), 1, 100));
        load(records);
        QCoreApplication::processEvents();
    }
    int scrolled() const { return tree->verticalScrollBar()->value(); }
    QPoint lower(int distance) const { return {60, tree->viewport()->height() - 1 - distance}; }
    int rowAt(const QPoint& at) const { return tree->indexAt(at).row(); }
};

TEST_F(DraggingFar, TheEdgeScrollsUnderAStillPointer)
{
    pick({1});
    move(lower(5));
    const unsigned pause = running[1001];
    EXPECT_GT(pause, 0U);
    for (int step = 1; step <= 20; ++step) {
        fire(1001);
        EXPECT_EQ(scrolled(), step);
        EXPECT_EQ(running[1001], pause);
        EXPECT_TRUE(isMarked({rowAt(lower(5))})) << "the row that came below the pointer";
    }
    move({60, 2});
    for (int step = 0; step < 40; ++step)
        fire(1001);
    EXPECT_EQ(scrolled(), 0);
    EXPECT_EQ(rowAt({60, 2}), 0);
    release({60, 2});
    EXPECT_EQ(node({0, 0})->mValue, QStringLiteral("0")) << "dropped on the group that came back";
}

TEST_F(DraggingFar, TheNearerTheEdgeTheShorterThePauses)
{
    pick({1});
    move(lower(20));
    const unsigned far = running[1001];
    move(lower(1));
    fire(1001);
    EXPECT_LT(running[1001], far);
    move({60, tree->viewport()->height() + 200});
    fire(1001);
    EXPECT_GT(scrolled(), 3) << "several rows at a time beyond the edge";
}

TEST_F(DraggingFar, AwayFromTheEdgesNothingScrolls)
{
    pick({1});
    move(lower(5));
    move({60, tree->viewport()->height() / 2});
    fire(1001);
    EXPECT_EQ(scrolled(), 0);
    EXPECT_EQ(running.count(1001), 0U);
}

TEST_F(DraggingFar, PixelsScrollByARow)
{
    tree->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    QCoreApplication::processEvents();
    pick({1});
    move(lower(5));
    fire(1001);
    EXPECT_EQ(scrolled(), tree->visualRect(index({1})).height());
}

TEST_F(DraggingFar, TheWheelScrollsUnderADragToo)
{
    pick({1});
    move(lower(100));
    tree->verticalScrollBar()->setValue(50);
    EXPECT_TRUE(isMarked({rowAt(lower(100))}));
    EXPECT_EQ(rowAt(lower(100)), index({rowAt(lower(100))}).row());
}

TEST_F(DraggingMarks, ASplitterDoesNotTakeThePictureForAPane)
{
    QSplitter window;
    auto* inPane = new DragCtrl(&window, services());
    window.addWidget(inPane);
    inPane->mvInitialize(library.get(), 120, {}, {});
    inPane->mvLoad({record(3, 2, "Author", "x", 1, 100)});
    window.resize(400, 300);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    const QPoint on = inPane->visualRect(inPane->model()->index(0, 0)).center();
    inPane->mvBegindrag({60, on.y()});
    ASSERT_NE(window.findChild<DragImage*>(), nullptr);
    EXPECT_EQ(window.count(), 1);
    inPane->OnMouseMove(0, {100, on.y()});
    const auto* shown = window.findChild<DragImage*>();
    EXPECT_EQ(shown->pos() + QPoint(shown->width() / 2, shown->height() / 2),
              inPane->viewport()->mapTo(inPane, QPoint(100, on.y())));
}

TEST_F(DraggingMarks, AControlThatIsAWindowShowsThePictureOverItself)
{
    DragCtrl alone(nullptr, services());
    alone.mvInitialize(library.get(), 120, {}, {});
    alone.mvLoad({record(3, 2, "Author", "x", 1, 100)});
    alone.resize(400, 300);
    alone.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&alone));
    alone.mvBegindrag({60, alone.visualRect(alone.model()->index(0, 0)).center().y()});
    const auto* shown = alone.findChild<DragImage*>();
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(shown->parentWidget(), &alone);
}

} // namespace
} // namespace condtree::test
