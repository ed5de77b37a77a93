#pragma once

#include <QAbstractButton>
#include <QDate>
#include <QLocale>
#include <QRect>

namespace condtree {

/// Frames what is today, in the grid of days as in the line below it.
void drawTodayMark(QPainter& painter, const QRect& rect, const QPalette& palette);

/// A date in its locale's short form, with the whole year.
[[nodiscard]] QString shortDate(const QLocale& locale, QDate date);

/// The line below a calendar that shows which day is today, and goes there when it is clicked.
class TodayLink final : public QAbstractButton {
public:
    explicit TodayLink(QDate today, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showDate();

    QDate m_today;
};

} // namespace condtree
