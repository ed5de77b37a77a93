#pragma once

#include <condtree/platform/WinTypes.h>

#include <QImage>
#include <QSize>

#include <vector>

class QPainter;
class QPoint;

namespace condtree {

/// A list of pictures of one size, reached by index. The pictures may hold more pixels than the
/// size says, for screens with several pixels a point.
class ImgLst {
public:
    /// How pictures are kept: 8 bits a pixel or 32.
    enum class Depth { Indexed8, Colour32 };

    /// imageSize in device-independent pixels.
    explicit ImgLst(const QSize& imageSize, Depth depth = Depth::Colour32)
        : m_size(imageSize)
        , m_depth(depth)
    {
    }

    [[nodiscard]] QSize imageSize() const { return m_size; }
    [[nodiscard]] int count() const { return static_cast<int>(m_images.size()); }
    /// A null image for an index outside the list.
    [[nodiscard]] QImage image(int index) const;

    /// The size of a picture that is so many pixels high: imageSize, enlarged where height is more.
    [[nodiscard]] QSize pixelSize(int height) const;

    /// Appends one picture.
    void append(const QImage& image);
    /// Cuts a strip into pictures, pixelSize of its height each, from the left, and appends them;
    /// what is left over at the right is ignored. Pixels of the mask colour become transparent.
    void appendStrip(const QImage& strip, COLORREF mask);
    /// Draws a picture with its top left corner at a point, reduced to imageSize where it is
    /// larger; an index outside the list draws nothing. Leaves the painter as it was.
    void draw(QPainter& painter, int index, const QPoint& at) const;

private:
    QSize m_size;
    Depth m_depth;
    std::vector<QImage> m_images;
};

} // namespace condtree
