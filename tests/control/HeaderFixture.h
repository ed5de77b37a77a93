#pragma once

#include "ControlFixture.h"

#include "support/QtPrinters.h"

#include <condtree/control/ColumnHeader.h>

#include <QApplication>
#include <QImage>
#include <QProxyStyle>
#include <QStyleOptionHeader>
#include <QTest>
#include <QVBoxLayout>

#include <array>
#include <map>

namespace condtree::test {

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

} // namespace condtree::test
