#include "PickerFixture.h"

#include <QScreen>

#include <vector>

namespace condtree::test {
namespace {

class Picker : public PickerFixture {};

TEST_F(Picker, OpensOnTheDateThatTheValueIs)
{
    struct Row {
        LONG style;
        const char16_t* value;
        QDate date;
    };
    const Row rows[] = {
        {120, u"2024-03-14", QDate(2024, 3, 14)},
        {120, u"2024-03-14 and more", QDate(2024, 3, 14)},
        {103, u"5.3.24", QDate(2024, 3, 5)},
        {107, u"mar 05, 1987", QDate(1987, 3, 5)},
        {112, u"18660703", QDate(1866, 7, 3)},
        {121, u"2024-12-31 23:59:59.000", QDate(2024, 12, 31)},
        {120, u"0100-01-01", QDate(100, 1, 1)},
        {120, u"9999-12-31", QDate(9999, 12, 31)},
        // What is no date opens on today.
        {120, u"", QDate(2024, 3, 5)},
        {120, u"never", QDate(2024, 3, 5)},
        {121, u"2023/01/01", QDate(2024, 3, 5)},
    };
    for (const Row& row : rows) {
        const QString value = QString::fromUtf16(row.value);
        style = row.style;
        open(value, [&] {
            EXPECT_EQ(calendar().selectedDate(), row.date);
            EXPECT_EQ(calendar().monthShown(), row.date.month());
            EXPECT_EQ(calendar().yearShown(), row.date.year());
        });
        // Opening stores nothing.
        EXPECT_EQ(node->mValue, value);
    }
    EXPECT_EQ(stored, 0);
}

TEST_F(Picker, WritesTheChosenDayIntoTheValueAtOnce)
{
    struct Row {
        LONG style;
        const char16_t* value;
    };
    // Midnight of 20 March, whatever the time was.
    const Row rows[] = {
        {0, u"Mar 20 2024 00:00 AM"},
        {1, u"03/20/24"},
        {104, u"20.03.2024"},
        {112, u"20240320"},
        {113, u"20 Mars 2024 00:00:00:000"},
        {120, u"2024-03-20"},
        {121, u"2024-03-20 00:00:00.000"},
        {999, u"20 Mars 2024 00:00:00:000"},
    };
    for (const Row& row : rows) {
        style = row.style;
        stored = 0;
        open(QStringLiteral("?"), [&] {
            hand().click(hand().day(20));
            EXPECT_EQ(node->mValue, QString::fromUtf16(row.value));
            EXPECT_EQ(stored, 1);
        });
        EXPECT_TRUE(isOpenAfterScript);
        EXPECT_EQ(node->mValue, QString::fromUtf16(row.value));
    }
}

TEST_F(Picker, WritesTheTimeOfAValueAsMidnight)
{
    style = 121;
    open(QStringLiteral("2024-03-14 14:07:09.000"), [&] { hand().click(hand().day(14)); });
    EXPECT_EQ(node->mValue, QStringLiteral("2024-03-14 00:00:00.000"));
}

TEST_F(Picker, WritesIntoTheValueWhicheverColumnWasEditedLast)
{
    node->mlEditColumn = EditColumnExtra;
    node->mExtra = QStringLiteral("mine");
    open(QString(), [&] { hand().click(hand().day(20)); });
    EXPECT_EQ(node->mValue, QStringLiteral("2024-03-20"));
    EXPECT_EQ(node->mExtra, QStringLiteral("mine"));
}

TEST_F(Picker, ChoosingTheSelectedDayStoresIt)
{
    open(QStringLiteral("5.3.2024 or so"), [&] {
        hand().click(hand().day(calendar().selectedDate().day()));
        EXPECT_EQ(stored, 1);
    });
    EXPECT_EQ(node->mValue, QStringLiteral("2024-03-05"));
}

TEST_F(Picker, EveryKeyThatMovesTheSelectionStoresIt)
{
    open(QStringLiteral("2024-03-14"), [&] {
        hand().key(Qt::Key_Right);
        EXPECT_EQ(node->mValue, QStringLiteral("2024-03-15"));
        hand().key(Qt::Key_Down);
        EXPECT_EQ(node->mValue, QStringLiteral("2024-03-22"));
        hand().key(Qt::Key_PageDown);
        EXPECT_EQ(node->mValue, QStringLiteral("2024-04-22"));
        hand().key(Qt::Key_End);
        EXPECT_EQ(node->mValue, QStringLiteral("2024-04-30"));
        EXPECT_EQ(stored, 4);
    });
    EXPECT_TRUE(isOpenAfterScript);
}

TEST_F(Picker, TheLineOfTodayStoresToday)
{
    open(QStringLiteral("1990-01-01"), [&] {
        hand().click(hand().middleOf(hand().todayLink()));
        EXPECT_EQ(node->mValue, QStringLiteral("2024-03-05"));
    });
    EXPECT_TRUE(isOpenAfterScript);
    EXPECT_EQ(stored, 1);
}

// 30 December 1899 is the zero date, which means that there is none.
TEST_F(Picker, ADayThatCannotBeWrittenLeavesTheValueAlone)
{
    open(QStringLiteral("1899-12-14"), [&] {
        hand().click(hand().day(30));
        EXPECT_EQ(calendar().selectedDate(), QDate(1899, 12, 30));
        EXPECT_EQ(node->mValue, QStringLiteral("1899-12-14"));
        EXPECT_EQ(stored, 0);
        ports.tick += 1000;
        hand().click(hand().day(31));
        EXPECT_EQ(node->mValue, QStringLiteral("1899-12-31"));
    });
}

TEST_F(Picker, IsDirectlyBelowTheCellAtItsLeftEdge)
{
    open(QString(), [&] { EXPECT_EQ(picker->pos(), QPoint(60, 60)); });
}

TEST_F(Picker, GoesAboveACellAtTheBottomOfTheScreenAndStaysInItsWidth)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    cell = {screen.right() - 50, screen.bottom() - 60, screen.right() - 10, screen.bottom() - 40};
    open(QString(), [&] {
        EXPECT_EQ(picker->geometry().bottom() + 1, cell.top);
        EXPECT_EQ(picker->geometry().right(), screen.right());
    });
}

TEST_F(Picker, HasTheSizeOfItsDialogUnitsUnlessTheCalendarNeedsMore)
{
    open(QString(), [&] {
        const QFontMetrics metrics = picker->fontMetrics();
        const int width = qRound(143 * metrics.averageCharWidth() / 4.0);
        const int height = qRound(95 * metrics.height() / 8.0);
        const QSize needed = calendar().sizeHint() + QSize(2, 2);
        EXPECT_EQ(picker->size(), QSize(width, height).expandedTo(needed));
        EXPECT_EQ(calendar().geometry(), picker->rect().adjusted(1, 1, -1, -1));
    });
}

TEST_F(Picker, IsAFramelessPopupOfTheTreesWindow)
{
    open(QString(), [&] {
        EXPECT_EQ(QApplication::activePopupWidget(), picker);
        EXPECT_EQ(picker->windowType(), Qt::Popup);
        EXPECT_TRUE(picker->windowFlags().testFlag(Qt::FramelessWindowHint));
        EXPECT_EQ(picker->windowHandle()->transientParent(), window->windowHandle());
        EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
        EXPECT_EQ(tree->findChild<QWidget*>(QStringLiteral("1011")), &calendar());
        EXPECT_EQ(QApplication::focusWidget(), &hand().grid());
    });
}

TEST_F(Picker, HasAThinBorder)
{
    open(QString(), [&] {
        const QImage image = picker->grab().toImage();
        const QRgb border = picker->palette().color(QPalette::Mid).rgb();
        const int right = image.width() - 1;
        const int bottom = image.height() - 1;
        for (const QPoint corner :
             {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)})
            EXPECT_EQ(image.pixel(corner), border);
        EXPECT_NE(image.pixel(1, 1), border);
        EXPECT_NE(image.pixel(right - 1, bottom - 1), border);
    });
}

TEST_F(Picker, CanBeOpenedAgainAndOpensOnWhatWasStored)
{
    open(QString(), [&] { hand().click(hand().day(20)); });
    open(node->mValue, [&] { EXPECT_EQ(calendar().selectedDate(), QDate(2024, 3, 20)); });
}

} // namespace
} // namespace condtree::test
