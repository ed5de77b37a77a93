#include "HeaderFixture.h"

#include <QScrollBar>
#include <QSignalSpy>

namespace condtree::test {
namespace {

TEST_F(ColumnHeaders, TheTitlesStandWhereTheColumnsAre)
{
    expectHeaderAboveSeparators("at first");
    const SpyStyle& style = drawn();
    EXPECT_EQ(style.texts.at(0), QStringLiteral("Variable"));
    EXPECT_EQ(style.texts.at(1), QStringLiteral("Operator"));
    EXPECT_EQ(style.texts.at(2), QStringLiteral("Value"));
    EXPECT_EQ(style.texts.at(3), QStringLiteral("Remark"));
    for (int column = 1; column < 4; ++column)
        EXPECT_EQ(style.textLefts.at(column), boundary(column - 1) + 3) << column;
    for (int column = 0; column < 3; ++column)
        EXPECT_TRUE(hasSeparator(boundary(column))) << column;
}

TEST_F(ColumnHeaders, ItFollowsTheControlsSizeFrameAndScrollBar)
{
    setRowWidth(403);
    expectHeaderAboveSeparators("an odd width");
    control->setFrameShape(QFrame::NoFrame);
    QCoreApplication::processEvents();
    EXPECT_EQ(left(), 0);
    expectHeaderAboveSeparators("no frame");
    control->setFrameShape(QFrame::StyledPanel);
    control->setLineWidth(5);
    QCoreApplication::processEvents();
    EXPECT_GT(left(), 0);
    expectHeaderAboveSeparators("a frame");
    const int before = control->viewport()->width();
    control->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    QCoreApplication::processEvents();
    ASSERT_LT(control->viewport()->width(), before);
    expectHeaderAboveSeparators("a scroll bar");
}

TEST_F(ColumnHeaders, ItIsDrawnAnewWhenTheRowsChangeTheirWidthOrTheColumnsTheirs)
{
    const auto expectDrawn = [&](const char* why, const auto& change) {
        QCoreApplication::processEvents();
        m_style.forget();
        change();
        QCoreApplication::processEvents();
        EXPECT_EQ(m_style.sections.size(), 4U) << why;
    };
    expectDrawn("scroll bar", [&] { control->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); });
    expectDrawn("mvResizeCol", [&] { control->mvResizeCol(0, 50, 400); });
    expectDrawn("shares", [&] { control->setColumnShares({0.1, 0.2, 0.3}); });
    expectDrawn("titles", [&] { m_header->setTitles({}); });
    QCoreApplication::processEvents();
    m_style.forget();
    QCoreApplication::processEvents();
    EXPECT_TRUE(m_style.sections.empty());
}

TEST_F(ColumnHeaders, ADragResizesTheColumnsWhileItLasts)
{
    press(boundary(0) + 2);
    EXPECT_EQ(widths(), (std::array{100, 100, 100, 100}));
    move(boundary(0) + 2 + 50);
    EXPECT_EQ(widths(), (std::array{150, 50, 100, 100}));
    expectHeaderAboveSeparators("in the drag");
    EXPECT_TRUE(hasSeparator(boundary(0)));
    move(left() + 60 + 2);
    EXPECT_EQ(widths(), (std::array{60, 140, 100, 100}));
    release(left() + 60 + 2);
    move(left() + 90);
    EXPECT_EQ(widths(), (std::array{60, 140, 100, 100}));
}

struct EdgeCase {
    const char* name;
    int column;
    int to; ///< in the rows
    std::array<int, 4> widths;
};

// What the rules of resizing say of a row of 400 pixels.
constexpr std::array kEdgeCases{
    EdgeCase{"the first grows into the second", 0, 190, {190, 10, 100, 100}},
    EdgeCase{"the first pushes the second", 0, 191, {191, 10, 99, 100}},
    EdgeCase{"the first pushes the third", 0, 286, {286, 10, 5, 99}},
    EdgeCase{"the first at its limit", 0, 385, {385, 10, 5, 0}},
    EdgeCase{"the first is pinned", 0, 386, {385, 5, 5, 5}},
    EdgeCase{"the first is pinned from far", 0, 800, {385, 5, 5, 5}},
    EdgeCase{"the first to nothing", 0, -50, {0, 200, 100, 100}},
    EdgeCase{"the second to nothing", 1, 60, {100, 0, 200, 100}},
    EdgeCase{"the second takes the third", 1, 300, {100, 200, 0, 100}},
    EdgeCase{"the second leaves the fourth", 1, 800, {100, 200, 0, 100}},
    EdgeCase{"the third to nothing", 2, 100, {100, 100, 0, 200}},
    EdgeCase{"the third at its limit", 2, 395, {100, 100, 195, 5}},
    EdgeCase{"the third beyond its limit", 2, 399, {100, 100, 195, 5}},
};

TEST_F(ColumnHeaders, DragsReachEveryLimit)
{
    for (const EdgeCase& row : kEdgeCases) {
        control->setColumnShares({0.25, 0.25, 0.25});
        drag(boundary(row.column), left() + row.to);
        EXPECT_EQ(widths(), row.widths) << row.name;
    }
}

TEST_F(ColumnHeaders, TheSecondColumnLeavesTenPixelsBehindIt)
{
    control->setColumnShares({0.25, 0.25, 0.5});
    drag(boundary(1), left() + 800);
    EXPECT_EQ(widths(), (std::array{100, 290, 10, 0}));
}

TEST_F(ColumnHeaders, WhatADragPushedComesBackWithTheMouse)
{
    press(boundary(0));
    move(left() + 800);
    EXPECT_EQ(widths(), (std::array{385, 5, 5, 5}));
    move(left() + 110);
    EXPECT_EQ(widths(), (std::array{110, 90, 100, 100}));
    move(left() + 100);
    EXPECT_EQ(control->columnShares(), (Shares{0.25, 0.25, 0.25}));
}

TEST_F(ColumnHeaders, ManySmallMovesLeaveTheOtherBoundariesWhereTheyAre)
{
    setRowWidth(601);
    const int second = boundary(1);
    const int third = boundary(2);
    const int from = boundary(0);
    press(from);
    for (int x = from; x > left() + 20; --x) {
        move(x);
        EXPECT_NEAR(boundary(1), second, 2) << x; // each width is truncated
        EXPECT_NEAR(boundary(2), third, 2) << x;
    }
    release(left() + 20);
}

TEST_F(ColumnHeaders, AClickOnABoundaryChangesNothing)
{
    setRowWidth(403);
    QSignalSpy spy(control.get(), &CondTreeCtrl::columnsResized);
    drag(boundary(0) + 1, boundary(0) + 1);
    EXPECT_EQ(spy.count(), 0);
    EXPECT_EQ(control->columnShares(), (Shares{0.25, 0.25, 0.25}));
}

TEST_F(ColumnHeaders, ADragThatEndsWhereItBeganChangesNothing)
{
    setRowWidth(403);
    const int x = boundary(0) + 1;
    press(x);
    move(x + 50);
    EXPECT_EQ(widths()[0], 150);
    move(x);
    EXPECT_EQ(control->columnShares(), (Shares{0.25, 0.25, 0.25}));
    release(x);
    EXPECT_EQ(control->columnShares(), (Shares{0.25, 0.25, 0.25}));
}

TEST_F(ColumnHeaders, ResettingEndsADrag)
{
    press(boundary(0));
    move(left() + 150);
    key(Qt::Key_Home);
    move(left() + 200);
    EXPECT_EQ(control->columnShares(), (Shares{0.25, 0.25, 0.25}));
}

TEST_F(ColumnHeaders, ASqueezedColumnCanBeOpenedAgain)
{
    drag(boundary(1), boundary(0) - 30);
    ASSERT_EQ(widths(), (std::array{100, 0, 200, 100}));
    EXPECT_EQ(drawn().texts.count(1), 0U);
    drag(boundary(0), boundary(0) + 80);
    EXPECT_EQ(widths(), (std::array{100, 80, 120, 100}));
}

TEST_F(ColumnHeaders, OnlyTheLeftButtonOnABoundaryDrags)
{
    drag(boundary(0) + 20, boundary(0) + 60);
    QTest::mousePress(m_header, Qt::RightButton, {}, at(boundary(0)));
    move(boundary(0) + 40);
    QTest::mouseRelease(m_header, Qt::RightButton, {}, at(boundary(0) + 40));
    EXPECT_EQ(widths(), (std::array{100, 100, 100, 100}));
}

TEST_F(ColumnHeaders, AReleaseThatWentElsewhereEndsTheDrag)
{
    press(boundary(0));
    move(boundary(0) + 30, Qt::NoButton);
    move(boundary(0) + 60);
    EXPECT_EQ(widths(), (std::array{100, 100, 100, 100}));
    press(boundary(0));
    m_header->hide();
    m_header->show();
    move(boundary(0) + 60);
    EXPECT_EQ(widths(), (std::array{100, 100, 100, 100}));
}

TEST_F(ColumnHeaders, EscapeTakesADragBack)
{
    press(boundary(0));
    move(left() + 300);
    EXPECT_EQ(widths()[0], 300);
    key(Qt::Key_Escape);
    EXPECT_EQ(control->columnShares(), (Shares{0.25, 0.25, 0.25}));
    move(left() + 200);
    EXPECT_EQ(widths()[0], 100);
}

TEST_F(ColumnHeaders, TheCursorTellsWhereABoundaryIs)
{
    const auto cursorAt = [&](int x) {
        QTest::mouseMove(m_header, at(x));
        QCoreApplication::processEvents();
        return m_header->cursor().shape();
    };
    EXPECT_EQ(cursorAt(boundary(1)), Qt::SplitHCursor);
    EXPECT_EQ(cursorAt(boundary(1) + 20), Qt::ArrowCursor);
}

TEST_F(ColumnHeaders, TheThirdColumnStaysInTheRowWhenTheFirstShrinksWithNothingBehindTheSecond)
{
    control->setColumnShares({0.5, 0.4975, 0});
    ASSERT_EQ(widths(), (std::array{200, 199, 0, 1}));
    drag(boundary(0), left() + 150);
    EXPECT_EQ(widths()[0], 150);
    EXPECT_EQ(widths()[1], 249);
    EXPECT_GE(widths()[3], 0);
    EXPECT_TRUE(control->setColumnShares(control->columnShares()));
}

TEST_F(ColumnHeaders, InARowTooNarrowForItsMarginsNothingMoves)
{
    m_window.layout()->removeWidget(control.get());
    control->resize(10, 100);
    QCoreApplication::processEvents();
    const Shares before = control->columnShares();
    m_header->setFocus();
    for (const Qt::Key which : {Qt::Key_Plus, Qt::Key_Minus})
        key(which);
    drag(boundary(2), boundary(2) + 50);
    EXPECT_EQ(control->columnShares(), before);
}

} // namespace
} // namespace condtree::test
