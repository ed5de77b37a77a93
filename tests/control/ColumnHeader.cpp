#include "ControlFixture.h"

#include "support/QtPrinters.h"

#include <condtree/control/ColumnHeader.h>

#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QProxyStyle>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyleOptionHeader>
#include <QTest>
#include <QVBoxLayout>

#include <array>
#include <map>

namespace condtree::test {
namespace {

using Shares = std::array<double, 3>;

/// A style that remembers what the header draws.
class SpyStyle final : public QProxyStyle {
public:
    mutable std::map<int, QRect> sections; ///< by column
    mutable std::map<int, QString> texts;
    mutable std::map<int, int> textLefts;

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        if (const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option)) {
            if (element == CE_HeaderSection)
                sections[header->section] = header->rect;
            if (element == CE_HeaderLabel) {
                texts[header->section] = header->text;
                textLefts[header->section] = header->rect.left();
            }
        }
        QProxyStyle::drawControl(element, option, painter, widget);
    }
    void forget() const
    {
        sections.clear();
        texts.clear();
        textLefts.clear();
    }
};

/// A shown window with the header above the control, whose rows are 400 pixels wide.
class ColumnHeaders : public ControlFixture {
protected:
    ColumnHeaders()
    {
        initialize();
        auto* layout = new QVBoxLayout(&m_window);
        layout->setSpacing(0);
        m_header = new ColumnHeader(*control, &m_window, services());
        m_header->setStyle(&m_style);
        layout->addWidget(m_header);
        layout->addWidget(control.get(), 1);
        m_window.resize(500, 300);
        loaded({record(3, 2, "Author", "a", 1, 100)});
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        setRowWidth(400);
    }
    ~ColumnHeaders() override { control.release(); } // the window's

    void setRowWidth(int width)
    {
        m_window.resize(m_window.width() + width - control->viewport()->width(), 300);
        QCoreApplication::processEvents();
        ASSERT_EQ(control->viewport()->width(), width);
    }
    /// Where the rows begin in the header.
    [[nodiscard]] int left() const
    {
        const QPoint origin = control->viewport()->mapTo(&m_window, QPoint());
        return m_header->mapFrom(&m_window, origin).x();
    }
    /// Where the control says that the boundary behind a column is, in the header.
    [[nodiscard]] int boundary(int column) const
    {
        int x = left();
        for (int before = 0; before <= column; ++before)
            x += control->miGetColumnSize(before, control->viewport()->width());
        return x;
    }
    [[nodiscard]] std::array<int, 4> widths() const
    {
        const int row = control->viewport()->width();
        return {control->miGetColumnSize(0, row), control->miGetColumnSize(1, row),
                control->miGetColumnSize(2, row), control->miGetColumnSize(3, row)};
    }
    [[nodiscard]] QPoint at(int x) const { return {x, m_header->height() / 2}; }
    void press(int x) { QTest::mousePress(m_header, Qt::LeftButton, {}, at(x)); }
    void release(int x) { QTest::mouseRelease(m_header, Qt::LeftButton, {}, at(x)); }
    /// The pressed mouse moves.
    void move(int x, Qt::MouseButtons buttons = Qt::LeftButton)
    {
        const QPoint to = at(x);
        QMouseEvent event(QEvent::MouseMove, to, m_header->mapToGlobal(to), Qt::NoButton, buttons,
                          {});
        QApplication::sendEvent(m_header, &event);
    }
    void drag(int from, int to)
    {
        press(from);
        move((from + to) / 2);
        move(to);
        release(to);
    }
    void key(Qt::Key which, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(m_header, which, modifiers);
    }
    /// Draws the header anew.
    const SpyStyle& drawn()
    {
        m_style.forget();
        m_header->grab();
        return m_style;
    }
    void expectHeaderAboveSeparators(const char* when)
    {
        const SpyStyle& style = drawn();
        for (int column = 0; column < 3; ++column)
            EXPECT_EQ(style.sections.at(column).right(), boundary(column)) << when << column;
        EXPECT_EQ(style.sections.at(3).right() + 1, left() + control->viewport()->width()) << when;
        EXPECT_EQ(style.sections.at(0).left(), left()) << when;
    }
    /// Whether a line of one pixel is drawn in the first row at an x of the header.
    [[nodiscard]] bool hasSeparator(int x) const
    {
        const QImage image = control->viewport()->grab().toImage();
        const int y = control->visualRect(control->model()->index(0, 0)).center().y();
        const auto colour = [&](int column) {
            const QPointF place = QPointF(column - left() + 0.5, y) * image.devicePixelRatio();
            return image.pixelColor(int(place.x()), int(place.y()));
        };
        return colour(x) != colour(x - 2) && colour(x - 2) == colour(x + 2);
    }

    SpyStyle m_style;
    QWidget m_window;
    ColumnHeader* m_header = nullptr;
};

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

TEST_F(ColumnHeaders, TheKeyboardChoosesABoundaryAndMovesIt)
{
    m_header->setFocus(Qt::TabFocusReason);
    key(Qt::Key_Plus);
    EXPECT_EQ(widths(), (std::array{110, 90, 100, 100}));
    key(Qt::Key_Right);
    key(Qt::Key_Minus);
    EXPECT_EQ(widths(), (std::array{110, 80, 110, 100}));
    key(Qt::Key_Right);
    key(Qt::Key_Right); // there is no other
    key(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(widths(), (std::array{110, 80, 100, 110}));
    key(Qt::Key_Left);
    key(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(widths(), (std::array{110, 90, 90, 110}));
    key(Qt::Key_Home);
    EXPECT_EQ(control->columnShares(), (Shares{0.25, 0.25, 0.25}));
    EXPECT_TRUE(m_header->hasFocus());
}

TEST_F(ColumnHeaders, TheChosenBoundaryIsMarkedWhileTheHeaderHasTheFocus)
{
    const QColor highlight = m_header->palette().color(QPalette::Highlight);
    const auto marked = [&](int column) {
        const QImage image = m_header->grab().toImage();
        const QPointF place = QPointF(boundary(column) + 0.5, 5) * image.devicePixelRatio();
        return image.pixelColor(int(place.x()), int(place.y())) == highlight;
    };
    control->setFocus();
    EXPECT_FALSE(marked(0));
    m_header->setFocus();
    EXPECT_TRUE(marked(0));
    key(Qt::Key_Right);
    EXPECT_FALSE(marked(0));
    EXPECT_TRUE(marked(1));
}

TEST_F(ColumnHeaders, OtherKeysAreLeftToTheWindow)
{
    m_header->setFocus();
    for (const Qt::Key which : {Qt::Key_Escape, Qt::Key_A, Qt::Key_End}) {
        QKeyEvent event(QEvent::KeyPress, which, {});
        QApplication::sendEvent(m_header, &event);
        EXPECT_FALSE(event.isAccepted()) << which;
    }
}

TEST_F(ColumnHeaders, ADoubleClickOnABoundaryBringsTheFirstSharesBack)
{
    control->setColumnShares({0.1, 0.2, 0.3});
    QTest::mouseClick(m_header, Qt::LeftButton, {}, at(boundary(1)));
    QTest::mouseDClick(m_header, Qt::LeftButton, {}, at(boundary(1)));
    EXPECT_EQ(control->columnShares(), (Shares{0.25, 0.25, 0.25}));
    control->setColumnShares({0.1, 0.2, 0.3});
    QTest::mouseDClick(m_header, Qt::LeftButton, {}, at(boundary(1) + 20));
    EXPECT_EQ(control->columnShares(), (Shares{0.1, 0.2, 0.3}));
}

TEST_F(ColumnHeaders, AnEditorInARowCommitsAndTheFocusGoesBackToTheRows)
{
    auto* editor = new QLineEdit(control->viewport());
    editor->show();
    editor->setFocus();
    QTest::keyClicks(editor, QStringLiteral("typed"));
    QSignalSpy commits(editor, &QLineEdit::editingFinished);
    press(boundary(0));
    EXPECT_EQ(commits.count(), 1);
    EXPECT_TRUE(m_header->hasFocus());
    release(boundary(0));
    EXPECT_TRUE(control->hasFocus());
}

TEST_F(ColumnHeaders, TheHostMayGiveTitlesWhichAreElidedWhenTheyAreLong)
{
    m_header->setTitles({QStringLiteral("A & B"), QString(300, u'm'), {}, QStringLiteral("d")});
    const SpyStyle& style = drawn();
    EXPECT_EQ(style.texts.at(0), QStringLiteral("A & B"));
    EXPECT_TRUE(style.texts.at(1).endsWith(u'…')) << style.texts.at(1).toStdString();
    EXPECT_LE(m_header->fontMetrics().horizontalAdvance(style.texts.at(1)), 97);
    EXPECT_EQ(style.texts.at(3), QStringLiteral("d"));
    EXPECT_EQ(m_header->titles()[0], QStringLiteral("A & B"));
}

TEST_F(ColumnHeaders, AChangedLanguageChangesItsTexts)
{
    translations = {{1, QStringLiteral("Uno")}, {5, QStringLiteral("Cinco")}};
    QEvent change(QEvent::LanguageChange);
    QApplication::sendEvent(m_header, &change);
    EXPECT_EQ(drawn().texts.at(0), QStringLiteral("Uno"));
    EXPECT_EQ(m_header->accessibleName(), QStringLiteral("Cinco"));
}

TEST_F(ColumnHeaders, ItTellsWhoHearsTheWindowWhatIsChosenAndHowWideItIs)
{
    const auto heard = [&](QAccessible::Text text) {
        return QAccessible::queryAccessibleInterface(m_header)->text(text);
    };
    const QString help = QStringLiteral(
        "Left and Right choose a boundary, plus and minus move it, Home resets the columns.");
    EXPECT_EQ(heard(QAccessible::Name), QStringLiteral("Columns"));
    EXPECT_EQ(heard(QAccessible::Description), QStringLiteral("Variable: 25 %. ") + help);
    m_header->setFocus();
    key(Qt::Key_Right);
    EXPECT_EQ(heard(QAccessible::Description), QStringLiteral("Operator: 25 %. ") + help);
    control->mvResizeCol(1, 40, 400);
    EXPECT_EQ(heard(QAccessible::Description), QStringLiteral("Operator: 10 %. ") + help);
}

TEST_F(ColumnHeaders, AControlThatIsGoneLeavesAnEmptyHeader)
{
    press(boundary(0));
    delete control.release();
    move(200);
    release(200);
    press(100);
    for (const Qt::Key which : {Qt::Key_Right, Qt::Key_Plus, Qt::Key_Home, Qt::Key_Escape})
        key(which);
    m_header->resetColumns();
    EXPECT_TRUE(drawn().sections.empty());
    control = std::make_unique<OpenCtrl>(&m_window, services());
}

TEST_F(ColumnHeaders, AHostMayDeleteBothWhileADragResizes)
{
    QPointer<ColumnHeader> header(m_header);
    QObject::connect(control.get(), &CondTreeCtrl::columnsResized, m_header, [&] {
        delete m_header;
        delete control.release();
    });
    press(boundary(0));
    move(boundary(0) + 40);
    EXPECT_TRUE(header.isNull());
    control = std::make_unique<OpenCtrl>(&m_window, services());
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
