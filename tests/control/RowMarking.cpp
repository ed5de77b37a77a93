#include "ControlFixture.h"

#include <condtree/control/RowDrawing.h>
#include <condtree/control/TreeGeometry.h>

#include <QApplication>
#include <QImage>
#include <QItemSelectionModel>
#include <QPaintEvent>
#include <QTest>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

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
    /// The pointer over a row, by events.
    void hover(int row)
    {
        const QPoint over = rowRect(at(row)).center();
        const QPoint global = control->viewport()->mapToGlobal(over);
        pointer = {global.x(), global.y()};
        QTest::mouseMove(control->windowHandle(), control->viewport()->mapTo(control.get(), over));
        QCoreApplication::processEvents();
    }
    /// Marks the first row so.
    void setMark(bool isSelected, bool isHovered, bool isFocused)
    {
        QItemSelectionModel& selection = *control->selectionModel();
        selection.setCurrentIndex(at(0), QItemSelectionModel::Clear);
        if (isSelected)
            selection.select(at(0), QItemSelectionModel::Select);
        hover(isHovered ? 0 : 2);
        if (isFocused)
            control->setFocus();
        else
            control->clearFocus();
        QCoreApplication::processEvents();
        EXPECT_EQ(control->hasFocus(), isFocused);
    }
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
    hover(1);
    const QImage image = picture();
    const auto tintOf = [&](int row) { return image.pixelColor(6, rowRect(at(row)).center().y()); };
    EXPECT_LT(tintOf(1).lightness(), 255);
    EXPECT_GT(tintOf(1).lightness(), tintOf(0).lightness());
    EXPECT_EQ(tintOf(2), QColor(Qt::white));
    const int y = rowRect(at(1)).center().y();
    const POINT over = std::exchange(pointer, POINT{-1000, -1000});
    EXPECT_EQ(picture().pixelColor(6, y), QColor(Qt::white));
    pointer = over; // there again, but over another window
    control->viewport()->setAttribute(Qt::WA_UnderMouse, false);
    EXPECT_EQ(picture().pixelColor(6, y), QColor(Qt::white));
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
    hover(0);
    PaintedRegion painted(*control->viewport());
    hover(2);
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

/// The relative luminance of a colour, by the guidelines on accessibility (WCAG).
double luminance(const QColor& colour)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
           + 0.0722 * linear(colour.blueF());
}

/// The contrast of two colours, by the same guidelines.
double contrast(const QColor& one, const QColor& other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

struct DesktopColours {
    const char* name;
    QColor base, text, highlight;
};

const std::vector<DesktopColours> kDesktops{
    {"light", Qt::white, Qt::black, QColor(48, 140, 198)},
    {"light, dark highlight", Qt::white, Qt::black, QColor(0, 0, 60)},
    {"light, pale highlight", Qt::white, Qt::black, QColor(250, 230, 120)},
    {"light, blue texts", Qt::white, QColor(0, 0, 139), QColor(0, 120, 215)},
    {"light, grey texts", Qt::white, QColor(118, 118, 118), QColor(48, 140, 198)},
    {"light, grey texts and dark highlight", Qt::white, QColor(105, 105, 105), Qt::black},
    {"light, grey texts and pale highlight", Qt::white, QColor(118, 118, 118), Qt::white},
    {"dark", QColor(30, 30, 30), Qt::white, QColor(42, 130, 218)},
    {"dark, dark highlight", Qt::black, QColor(220, 220, 220), QColor(20, 20, 60)},
    {"dark, pale highlight", Qt::black, QColor(220, 220, 220), QColor(240, 240, 240)},
};

/// Gives the application a desktop's colours, while it lives.
class OnDesktop {
public:
    explicit OnDesktop(const DesktopColours& colours)
    {
        QPalette palette = m_before;
        palette.setColor(QPalette::Base, colours.base);
        palette.setColor(QPalette::Window, colours.base);
        palette.setColor(QPalette::Text, colours.text);
        palette.setColor(QPalette::WindowText, colours.text);
        palette.setColor(QPalette::Highlight, colours.highlight);
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
    }
    OnDesktop(const OnDesktop&) = delete;
    OnDesktop& operator=(const OnDesktop&) = delete;
    ~OnDesktop()
    {
        QApplication::setPalette(m_before);
        QCoreApplication::processEvents();
    }

private:
    QPalette m_before = QApplication::palette();
};

struct Mark {
    const char* name;
    bool isSelected, isHovered, isFocused;
};

TEST_F(RowMarking, TextsOfAMarkedRowKeepAContrastOfFourAndAHalf)
{
    QFont font = control->font();
    font.setBold(true); // some pixels are letters altogether
    font.setPixelSize(24);
    control->setFont(font);
    control->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(control.get()));
    const std::vector<Mark> marks{
        {"plain", false, false, false},   {"hovered", false, true, false},
        {"selected", true, false, false}, {"selected and hovered", true, true, false},
        {"focused", false, false, true},  {"all", true, true, true}};
    for (const DesktopColours& desktop : kDesktops) {
        const OnDesktop colours(desktop);
        ASSERT_EQ(control->palette().color(QPalette::Highlight), desktop.highlight);
        for (const Mark& mark : marks) {
            SCOPED_TRACE(std::string(desktop.name) + ", " + mark.name);
            setMark(mark.isSelected, mark.isHovered, mark.isFocused);
            const QImage image = picture();
            const QRect rect = rowRect(at(0));
            const QColor tint = image.pixelColor(6, rect.center().y());
            EXPECT_EQ(tint == QColor(Qt::white), !mark.isSelected && !mark.isHovered);
            QColor text = tint;
            for (int x = placeOfRow(*control, at(0))->textLeft + 3; x < 95; ++x) {
                for (int y = rect.top() + 2; y < rect.bottom() - 1; ++y)
                    text = luminance(image.pixelColor(x, y)) < luminance(text)
                               ? image.pixelColor(x, y)
                               : text;
            }
            EXPECT_GE(contrast(text, tint), 4.5);
        }
    }
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
