#include "CalendarHand.h"

#include "support/QtPrinters.h"

#include <QApplication>
#include <QFontMetrics>
#include <QLayout>
#include <QLocale>
#include <QSpinBox>

#include <memory>
#include <vector>

namespace condtree::test {
namespace {

/// A calendar in a window of its own, on Thursday, 14 March 2024.
class Calendar : public testing::Test {
protected:
    Calendar() { make(QLocale(QLocale::German, QLocale::Germany)); }
    ~Calendar() override { QLocale::setDefault(QLocale::c()); }

    void make(const QLocale& locale)
    {
        QLocale::setDefault(locale);
        calendar = std::make_unique<CMonthCalCtrlEx>(ports.services());
        calendar->selectSilently(QDate(2024, 3, 14));
        QObject::connect(calendar.get(), &CMonthCalCtrlEx::dateChosen, calendar.get(),
                         [this](QDate date) { chosen.push_back(date); });
        QObject::connect(calendar.get(), &CMonthCalCtrlEx::finished, calendar.get(),
                         [this] { ++finished; });
        calendar->resize(calendar->sizeHint());
        calendar->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(calendar.get()));
    }
    CalendarHand hand() { return CalendarHand(*calendar); }
    /// Both, or only the second one, may be dead afterwards.
    void expectChosen(const std::vector<QDate>& expected)
    {
        EXPECT_EQ(chosen, expected);
        chosen.clear();
    }

    CalendarPorts ports;
    std::unique_ptr<CMonthCalCtrlEx> calendar;
    std::vector<QDate> chosen;
    int finished = 0;
};

TEST_F(Calendar, CarriesItsControlId)
{
    EXPECT_EQ(calendar->property("controlId").toInt(), 1011);
    EXPECT_EQ(calendar->objectName(), QStringLiteral("1011"));
}

TEST_F(Calendar, BeginsOnTheDayOfTheClockPort)
{
    ports.now = {1999, 12, 5, 31, 23, 59, 59, 0};
    const CMonthCalCtrlEx fresh(ports.services());
    EXPECT_EQ(fresh.selectedDate(), QDate(1999, 12, 31));
    EXPECT_EQ(fresh.today(), QDate(1999, 12, 31));
    EXPECT_EQ(fresh.monthShown(), 12);
}

TEST_F(Calendar, AClockWithoutADateIsReplacedByTheRealOne)
{
    ports.now = {};
    const QDate before = QDate::currentDate();
    const CMonthCalCtrlEx fresh(ports.services());
    EXPECT_GE(fresh.today(), before);
    EXPECT_LE(fresh.today(), QDate::currentDate());
}

TEST_F(Calendar, ReachesFromTheFirstToTheLastAutomationDate)
{
    EXPECT_EQ(calendar->minimumDate(), QDate(100, 1, 1));
    EXPECT_EQ(calendar->maximumDate(), QDate(9999, 12, 31));
}

TEST_F(Calendar, NamesAndTheFirstDayOfTheWeekAreTheLocales)
{
    struct Row {
        QLocale locale;
        QString firstDay;
        QString month;
        QString today;
    };
    const Row rows[] = {
        {QLocale(QLocale::German, QLocale::Germany), QStringLiteral("Mo."), QStringLiteral("März"),
         QStringLiteral("05.03.2024")},
        {QLocale(QLocale::English, QLocale::UnitedStates), QStringLiteral("Sun"),
         QStringLiteral("March"), QStringLiteral("3/5/2024")},
        {QLocale(QLocale::Swedish, QLocale::Sweden), QStringLiteral("mån"), QStringLiteral("mars"),
         QStringLiteral("2024-03-05")},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.locale.name().toStdString());
        make(row.locale);
        EXPECT_EQ(hand().grid().model()->index(0, 0).data().toString(), row.firstDay);
        EXPECT_EQ(hand().part("qt_calendar_monthbutton").text(), row.month);
        EXPECT_EQ(dynamic_cast<QAbstractButton&>(hand().todayLink()).text(), row.today);
    }
}

TEST_F(Calendar, TheLineOfTodayFollowsAChangeOfTheLocale)
{
    calendar->setLocale(QLocale(QLocale::French, QLocale::France));
    EXPECT_EQ(dynamic_cast<QAbstractButton&>(hand().todayLink()).text(),
              QStringLiteral("05/03/2024"));
}

TEST_F(Calendar, CutsNothingInAnyLanguageOfOurs)
{
    for (const char* name : {"de_DE", "en_US", "es_ES", "fr_FR", "ja_JP", "sv_SE"}) {
        SCOPED_TRACE(name);
        make(QLocale(QLatin1String(name)));
        const QTableView& grid = hand().grid();
        const QFontMetrics metrics = grid.fontMetrics();
        for (int column = 0; column < 7; ++column) {
            // The style leaves three pixels free on both sides.
            const QString day = grid.model()->index(0, column).data().toString();
            EXPECT_GE(grid.columnWidth(column), metrics.horizontalAdvance(day) + 6)
                << day.toStdString();
        }
        for (int row = 0; row < 7; ++row)
            EXPECT_GE(grid.rowHeight(row), metrics.height());
        EXPECT_GE(hand().todayLink().height(), metrics.height());
        EXPECT_TRUE(calendar->rect().contains(hand().todayLink().geometry()));
        EXPECT_GE(hand().todayLink().width(), hand().todayLink().sizeHint().width());
    }
}

TEST_F(Calendar, AClickOnADayIsToldOnce)
{
    hand().click(hand().day(20));
    expectChosen({QDate(2024, 3, 20)});
    EXPECT_EQ(calendar->selectedDate(), QDate(2024, 3, 20));
}

TEST_F(Calendar, AClickOnTheSelectedDayIsToldAgainAndAgain)
{
    hand().click(hand().day(14));
    expectChosen({QDate(2024, 3, 14)});
    ports.tick += 1000;
    hand().click(hand().day(20));
    ports.tick += 1000;
    hand().click(hand().day(20));
    expectChosen({QDate(2024, 3, 20), QDate(2024, 3, 20)});
    EXPECT_EQ(finished, 0);
}

TEST_F(Calendar, AClickOnADayOfAnotherMonthIsToldAndTurnsThePage)
{
    hand().click(hand().day(-1)); // 28 February
    expectChosen({QDate(2024, 2, 28)});
    EXPECT_EQ(calendar->monthShown(), 2);
}

TEST_F(Calendar, PressesOfOtherButtonsSelectNothing)
{
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton})
        QTest::mouseClick(&hand().window(), button, {}, hand().day(20));
    hand().click(hand().cell(0, 3)); // the name of a day
    expectChosen({});
}

TEST_F(Calendar, TurningPagesSelectsNothing)
{
    hand().click(hand().middleOf(hand().part("qt_calendar_nextmonth")));
    EXPECT_EQ(calendar->monthShown(), 4);
    ports.tick += 1000;
    hand().click(hand().middleOf(hand().part("qt_calendar_prevmonth")));
    EXPECT_EQ(calendar->monthShown(), 3);
    expectChosen({});
    EXPECT_EQ(calendar->selectedDate(), QDate(2024, 3, 14));
}

TEST_F(Calendar, SelectingByCodeIsToldNobody)
{
    calendar->selectSilently(QDate(1871, 5, 6));
    EXPECT_EQ(calendar->selectedDate(), QDate(1871, 5, 6));
    EXPECT_EQ(calendar->yearShown(), 1871);
    expectChosen({});
}

TEST_F(Calendar, EveryKeyThatMovesTheSelectionIsToldOnce)
{
    struct Row {
        Qt::Key key;
        QDate date;
    };
    const Row rows[] = {
        {Qt::Key_Left, QDate(2024, 3, 13)},   {Qt::Key_Right, QDate(2024, 3, 15)},
        {Qt::Key_Up, QDate(2024, 3, 7)},      {Qt::Key_Down, QDate(2024, 3, 21)},
        {Qt::Key_PageUp, QDate(2024, 2, 14)}, {Qt::Key_PageDown, QDate(2024, 4, 14)},
        {Qt::Key_Home, QDate(2024, 3, 1)},    {Qt::Key_End, QDate(2024, 3, 31)},
    };
    for (const Row& row : rows) {
        calendar->selectSilently(QDate(2024, 3, 14));
        hand().key(row.key);
        expectChosen({row.date});
        EXPECT_EQ(calendar->selectedDate(), row.date);
        EXPECT_EQ(calendar->monthShown(), row.date.month());
    }
}

TEST_F(Calendar, KeysStopAtTheEndsOfWhatADateCanBe)
{
    calendar->selectSilently(QDate(9999, 12, 30));
    hand().key(Qt::Key_Down);
    expectChosen({QDate(9999, 12, 31)});
    hand().key(Qt::Key_Right);
    expectChosen({});
    calendar->selectSilently(QDate(100, 1, 1));
    hand().key(Qt::Key_Left);
    expectChosen({});
}

TEST_F(Calendar, ReturnFinishesAndSelectsNothing)
{
    hand().key(Qt::Key_Return);
    EXPECT_EQ(finished, 1);
    hand().key(Qt::Key_Enter);
    EXPECT_EQ(finished, 2);
    expectChosen({});
}

TEST_F(Calendar, ReturnInTheFieldOfTheYearEndsThereAndSelectsNothing)
{
    hand().click(hand().middleOf(hand().part("qt_calendar_yearbutton")));
    auto* year = calendar->findChild<QSpinBox*>();
    ASSERT_TRUE(year->isVisible());
    year->selectAll();
    for (const Qt::Key digit : {Qt::Key_2, Qt::Key_0, Qt::Key_3, Qt::Key_1})
        hand().key(digit);
    hand().key(Qt::Key_Return);
    EXPECT_FALSE(year->isVisible());
    EXPECT_EQ(calendar->yearShown(), 2031);
    EXPECT_EQ(finished, 0);
    expectChosen({});
}

TEST_F(Calendar, ATypedDigitOpensNothing)
{
    hand().key(Qt::Key_2);
    hand().key(Qt::Key_0);
    expectChosen({});
    EXPECT_EQ(calendar->selectedDate(), QDate(2024, 3, 14));
    EXPECT_EQ(QApplication::focusWidget(), &hand().grid());
}

TEST_F(Calendar, TheLineOfTodaySelectsTodayAndShowsItsMonth)
{
    calendar->selectSilently(QDate(1990, 7, 8));
    hand().click(hand().middleOf(hand().todayLink()));
    expectChosen({QDate(2024, 3, 5)});
    EXPECT_EQ(calendar->selectedDate(), QDate(2024, 3, 5));
    EXPECT_EQ(calendar->yearShown(), 2024);
    ports.tick += 1000;
    hand().click(hand().middleOf(hand().todayLink()));
    expectChosen({QDate(2024, 3, 5)});
    EXPECT_EQ(finished, 0);
}

TEST_F(Calendar, TheLineOfTodayWorksByKeyboard)
{
    hand().todayLink().setFocus(Qt::TabFocusReason);
    hand().key(Qt::Key_Space);
    expectChosen({QDate(2024, 3, 5)});
}

TEST_F(Calendar, TheSecondOfTwoPressesOnADayFinishesAndSelectsNothingMore)
{
    const QPoint day = hand().day(20);
    hand().click(day);
    ports.tick += 500;
    hand().press(day + QPoint(1, 2)); // the last pixel of 4 by 6
    EXPECT_EQ(finished, 1);
    expectChosen({QDate(2024, 3, 20)});
}

TEST_F(Calendar, WhatTheToolkitCallsADoubleClickIsJudgedByThePorts)
{
    const QPoint day = hand().day(20);
    QTest::mouseDClick(&hand().window(), Qt::LeftButton, {}, day);
    EXPECT_EQ(finished, 1);

    // Too slow for the ports: two clicks, neither of which is lost.
    ports.tick += 5000;
    chosen.clear();
    hand().click(day);
    ports.tick += 501;
    QTest::mousePress(&hand().window(), Qt::LeftButton, {}, day);
    QTest::mouseRelease(&hand().window(), Qt::LeftButton, {}, day, 1);
    ports.tick += 501;
    QTest::mouseDClick(&hand().window(), Qt::LeftButton, {}, hand().day(21));
    EXPECT_EQ(finished, 2);
    EXPECT_EQ(chosen.front(), QDate(2024, 3, 20));
    EXPECT_EQ(chosen.at(1), QDate(2024, 3, 20));
}

/// Sends what the window system does not make by itself: the toolkit's double click on a day.
void sendDoubleClick(QWidget& viewport, QPoint at)
{
    for (const QEvent::Type type : {QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, at, viewport.mapToGlobal(at), Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, {});
        QCoreApplication::sendEvent(&viewport, &event);
    }
}

TEST_F(Calendar, AToolkitsDoubleClickThatIsNoneSelectsAsAClick)
{
    hand().click(hand().day(20));
    ports.tick += 501;
    QWidget& viewport = *hand().grid().viewport();
    sendDoubleClick(viewport, viewport.mapFrom(calendar.get(), hand().day(21)));
    expectChosen({QDate(2024, 3, 20), QDate(2024, 3, 21)});
    EXPECT_EQ(finished, 0);
}

TEST_F(Calendar, TwoPressesTooFarApartAreTwoClicks)
{
    const QPoint day = hand().day(20);
    for (const QPoint beside : {QPoint(2, 0), QPoint(-3, 0), QPoint(0, 3), QPoint(0, -4)}) {
        ports.tick += 1000;
        hand().click(day);
        hand().click(day + beside);
        EXPECT_EQ(finished, 0) << beside.x() << ' ' << beside.y();
    }
}

TEST_F(Calendar, TwoPressesOnWhatIsNeitherADayNorTodayFinishNothing)
{
    const QPoint places[] = {hand().cell(0, 3),
                             hand().middleOf(hand().part("qt_calendar_nextmonth")),
                             hand().middleOf(hand().part("qt_calendar_prevmonth"))};
    for (const QPoint place : places) {
        for (int press = 0; press < 3; ++press)
            hand().click(place);
        ports.tick += 1000;
    }
    EXPECT_EQ(finished, 0);
    expectChosen({});
}

TEST_F(Calendar, AFirstPressElsewhereAtTheSamePlaceCounts)
{
    const QPoint place = hand().cell(0, 3);
    hand().click(place);
    hand().click(place);
    EXPECT_EQ(finished, 0);
    // It is in the calendar, so it was the first of two, wherever the second one lands.
    const QPoint border =
        hand().day(20) - QPoint(0, hand().day(20).y()) + QPoint(0, hand().topOfDays());
    hand().click(border - QPoint(0, 2));
    hand().press(border);
    EXPECT_EQ(finished, 1);
}

TEST_F(Calendar, TwoPressesOnADayOfAnotherMonthFinishAfterThePageHasTurned)
{
    const QPoint place = hand().day(-1); // 28 February
    hand().click(place);
    ports.tick += 100;
    hand().press(place);
    EXPECT_EQ(finished, 1);
    expectChosen({QDate(2024, 2, 28)});
}

TEST_F(Calendar, TwoPressesOnTheLineOfTodayFinish)
{
    const QPoint place = hand().middleOf(hand().todayLink());
    hand().click(place);
    ports.tick += 500;
    hand().press(place);
    EXPECT_EQ(finished, 1);
    expectChosen({QDate(2024, 3, 5)});
}

TEST_F(Calendar, DaysBeyondTheLastDateCannotBeClicked)
{
    calendar->selectSilently(QDate(9999, 12, 30));
    for (int press = 0; press < 2; ++press)
        hand().click(hand().day(32));
    expectChosen({});
    EXPECT_EQ(finished, 0);
}

TEST_F(Calendar, TodayIsFramedInTheGridAndInItsLine)
{
    const QRgb frame = calendar->palette().color(QPalette::Highlight).rgb();
    const QImage image = calendar->grab().toImage();
    const auto frameLeftOf = [&](QPoint middle, int reach) {
        for (int x = middle.x() - reach; x < middle.x(); ++x) {
            if (image.pixel(x, middle.y()) == frame)
                return true;
        }
        return false;
    };
    const int reach = hand().grid().columnWidth(0) / 2;
    EXPECT_TRUE(frameLeftOf(hand().day(5), reach));
    EXPECT_FALSE(frameLeftOf(hand().day(6), reach - 1));
    EXPECT_TRUE(frameLeftOf(hand().middleOf(hand().todayLink()), hand().todayLink().width() / 2));
}

TEST_F(Calendar, OnlyTheSelectedDayIsInTheColourOfASelection)
{
    const auto count = [this] {
        const QRgb selection = calendar->palette().color(QPalette::Highlight).rgb();
        const QImage image = calendar->grab().toImage();
        int pixels = 0;
        for (int x = 0; x < image.width(); ++x)
            pixels += image.pixel(x, 3) == selection ? 1 : 0;
        return pixels;
    };
    EXPECT_EQ(count(), 0); // the bar on top
    QPalette dark(QColor(60, 60, 60), QColor(45, 45, 48));
    calendar->setPalette(dark);
    EXPECT_EQ(count(), 0);
    const QPoint inBar(hand().part("qt_calendar_prevmonth").geometry().right() + 4, 6);
    EXPECT_EQ(calendar->grab().toImage().pixelColor(inBar).rgb(),
              dark.color(QPalette::Window).rgb());
}

} // namespace
} // namespace condtree::test
