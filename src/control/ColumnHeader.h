#pragma once

#include <condtree/control/CondTreeCtrl.h>
#include <condtree/platform/TextRef.h>

#include <QPointer>
#include <QWidget>

#include <array>
#include <optional>

namespace condtree {

/// A strip with the titles of the columns, to be placed above the control without a gap: its
/// boundaries stand above those of the rows, wherever the control's frame and scroll bar leave the
/// rows. Dragging a boundary resizes the columns while the mouse moves; Escape takes it back. A
/// double click on a boundary gives all columns the shares that they had when the header was made.
///
/// By keyboard: Left and Right choose a boundary, plus and minus (or Ctrl with Left and Right) move
/// it, Home does what the double click does.
class CONDTREE_EXPORT ColumnHeader : public QWidget {
    Q_OBJECT
public:
    /// The control may go before the header, which is empty then. Of services the texts are used.
    explicit ColumnHeader(CondTreeCtrl& control, QWidget* parent = nullptr,
                          const Services& services = realServices());
    ~ColumnHeader() override;

    [[nodiscard]] std::array<CString, 4> titles() const;
    /// Titles of the host's own, in place of the localised ones.
    void setTitles(const std::array<CString, 4>& titles);
    /// Gives the columns the shares that they had when the header was made.
    void resetColumns();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// A boundary under the pressed mouse button.
    struct Drag {
        int column;
        int pressX;
        int boundaryX;
        int x; ///< where the mouse was last
        std::array<double, 3> shares;
        bool givesFocusBack;
    };
    [[nodiscard]] std::optional<int> boundaryAt(const QMouseEvent& event) const;
    void choose(int column);
    void dragTo(int x);
    void endDrag();
    bool pressKey(const QKeyEvent& event);
    void moveBoundary(int column, int x);
    void moveChosenBy(int pixels);
    void showShares();
    void showTexts();
    void drawTitle(QPainter& painter, int column) const;
    void drawChosen(QPainter& painter) const;

    QPointer<CondTreeCtrl> m_control;
    StringSource m_strings;
    std::optional<std::array<CString, 4>> m_titles;
    std::array<double, 3> m_firstShares;
    int m_chosen = 0;
    std::optional<Drag> m_drag;
};

} // namespace condtree
