#pragma once

#include <condtree/platform/Services.h>

#include <QCalendarWidget>

namespace condtree {

/// A month calendar with a line below it that leads to today. Names of months and days, and the day
/// that a week begins with, are those of its locale; days are those that an automation date can be.
///
/// The arrow keys select the next day or week, Page Up and Page Down the same day of another month,
/// Home and End the first and last day of the month.
class CONDTREE_EXPORT CMonthCalCtrlEx : public QCalendarWidget {
    Q_OBJECT
public:
    /// The control id, which is the property controlId and, as a text, the object name.
    static constexpr int Id = 1011;

    /// Uses the ports localTime, tickCount, systemMetric and doubleClickTime, which must be there.
    /// Today, which is selected at first, is what localTime says now.
    explicit CMonthCalCtrlEx(const Services& services, QWidget* parent = nullptr);
    ~CMonthCalCtrlEx() override;

    [[nodiscard]] QDate today() const { return m_today; }
    /// Selects a day and shows its month; tells nobody.
    void selectSilently(QDate date);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user selected a day, by the mouse, a key or the line of today; once each time, also for
    /// the day that was selected already. The calendar is at work: delete it later, not now.
    void dateChosen(QDate date);
    /// The user is done: a day or the line of today was clicked twice, or Return was pressed. A
    /// double click is told at its second press, which selects nothing more. The calendar is not to
    /// be deleted now, either.
    void finished();

protected:
    void paintCell(QPainter* painter, const QRect& rect, QDate date) const override;
    void changeEvent(QEvent* event) override;

private:
    class Presses;

    void dress();
    void dressBar();
    void chooseToday();
    [[nodiscard]] int widthOfDays() const;
    [[nodiscard]] QSize withLink(const QSize& calendar) const;

    QDate m_today;
    QWidget* m_todayLink;
    bool m_isSilent = false;
    /// Whether the click that is being handled was told of.
    bool m_isTold = false;
};

} // namespace condtree
