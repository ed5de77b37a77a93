#pragma once

#include <condtree/editing/CMonthCalCtrlEx.h>

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLayout>
#include <QTableView>
#include <QTest>
#include <QWindow>

namespace condtree::test {

/// The ports that a calendar uses, in the hands of a test: it is 5 March 2024.
struct CalendarPorts {
    DWORD tick = 1000;
    SYSTEMTIME now{2024, 3, 2, 5, 14, 7, 9, 0};

    /// Keeps references to this.
    [[nodiscard]] Services services()
    {
        Services ports;
        ports.tickCount = [this] { return tick; };
        ports.localTime = [this] { return now; };
        ports.doubleClickTime = [] { return DWORD{500}; };
        ports.systemMetric = [](int metric) { return metric == SM_CXDOUBLECLK ? 4 : 6; };
        return ports;
    }
};

/// A user's hand at a shown calendar: everything goes through its window, as the window system
/// would send it.
class CalendarHand {
public:
    explicit CalendarHand(QCalendarWidget& calendar)
        : m_calendar(calendar)
    {
    }

    [[nodiscard]] QTableView& grid() const { return *m_calendar.findChild<QTableView*>(); }
    [[nodiscard]] QAbstractButton& part(const char* name) const
    {
        return *m_calendar.findChild<QAbstractButton*>(QLatin1String(name));
    }
    /// The line below the grid.
    [[nodiscard]] QWidget& todayLink() const
    {
        return *m_calendar.layout()->itemAt(m_calendar.layout()->count() - 1)->widget();
    }
    [[nodiscard]] QWindow& window() const { return *m_calendar.window()->windowHandle(); }
    [[nodiscard]] QPoint middleOf(const QWidget& part) const
    {
        return part.mapTo(m_calendar.window(), part.rect().center());
    }
    [[nodiscard]] QPoint cell(int row, int column) const
    {
        const QRect rect = grid().visualRect(grid().model()->index(row, column));
        return grid().viewport()->mapTo(m_calendar.window(), rect.center());
    }
    /// The first line of pixels below the names of the days.
    [[nodiscard]] int topOfDays() const
    {
        const QPoint top = grid().visualRect(grid().model()->index(1, 0)).topLeft();
        return grid().viewport()->mapTo(m_calendar.window(), top).y();
    }
    /// Where a day of the shown month is, or, for 0 and less and for what is too much, one of the
    /// months before and after.
    [[nodiscard]] QPoint day(int number) const
    {
        const int place = firstPlace() + number - 1;
        return cell(1 + place / 7, place % 7);
    }

    void press(QPoint at, Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mousePress(&window(), button, {}, at);
    }
    void click(QPoint at) const { QTest::mouseClick(&window(), Qt::LeftButton, {}, at); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(&window(), key, modifiers);
    }

private:
    /// How many days of the month before the grid shows.
    [[nodiscard]] int firstPlace() const
    {
        for (int place = 0; place < 42; ++place) {
            if (grid().model()->index(1 + place / 7, place % 7).data().toInt() == 1)
                return place;
        }
        ADD_FAILURE() << "no first day of a month is shown";
        return 0;
    }

    QCalendarWidget& m_calendar;
};

} // namespace condtree::test
