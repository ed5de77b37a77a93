#pragma once

#include <QPixmap>
#include <QWidget>

namespace condtree {

/// The translucent picture of a dragged row over a window. It takes no input and no focus, and is
/// laid over the window's other children rather than being a window of its own, which not every
/// window system lets follow the pointer.
class DragImage final : public QWidget {
    Q_OBJECT
public:
    /// over must not be null; it owns the picture, like any of its children.
    DragImage(QWidget* over, const QPixmap& picture);

    /// Puts the middle of the picture at a point of the widget that it lies over.
    void moveTo(const QPoint& point);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap m_picture;
};

} // namespace condtree
