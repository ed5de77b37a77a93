#pragma once

#include <condtree/platform/WinTypes.h>

#include <QImage>
#include <QSize>

#include <vector>

class QPainter;
class QPoint;

namespace condtree {

/// A list of pictures of one size, reached by index.
class ImgLst {
public:
    /// imageSize in device-independent pixels.
    explicit ImgLst(const QSize& imageSize) : m_size(imageSize) {}

    [[nodiscard]] QSize imageSize() const { return m_size; }
    [[nodiscard]] int count() const { return static_cast<int>(m_images.size()); }
    /// A null image for an index outside the list.
    [[nodiscard]] QImage image(int index) const;

    /// Appends one picture.
    void append(const QImage& image);
    /// Cuts a strip into pictures of the list's width and appends them; pixels of the mask colour become
    /// transparent.
    void appendStrip(const QImage& strip, COLORREF mask);
    /// Draws a picture with its top left corner at a point; an index outside the list draws nothing.
    void draw(QPainter& painter, int index, const QPoint& at) const;

private:
    QSize m_size;
    std::vector<QImage> m_images;
};

} // namespace condtree
