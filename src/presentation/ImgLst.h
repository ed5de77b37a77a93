#pragma once

#include <condtree/platform/WfIcons.h>
#include <condtree/platform/WinTypes.h>

#include <QImage>
#include <QSize>

#include <functional>
#include <list>
#include <optional>
#include <utility>
#include <vector>

class QPainter;
class QPoint;

namespace condtree {

/// A list of pictures of one size, reached by index, each of them kept for the resolutions at which
/// it is drawn: sharp at all of them where the pictures' source draws them anew.
class ImgLst {
public:
    /// How pictures are kept: 8 bits a pixel or 32.
    enum class Depth { Indexed8, Colour32 };

    /// No place for a picture has a longer side; larger ones are enlarged by the painter.
    static constexpr int kLongestSide = kWfLargestHeight;

    /// Makes a strip again for pictures of so many pixels; a null image where it cannot.
    using Redraw = std::function<QImage(const QSize& cell)>;

    /// imageSize in device-independent pixels.
    explicit ImgLst(const QSize& imageSize, Depth depth = Depth::Colour32);
    // It owns its pictures; icons of views refer to the one list.
    ImgLst(const ImgLst&) = delete;
    ImgLst& operator=(const ImgLst&) = delete;
    virtual ~ImgLst();

    /// What pictures are shown on where they are transparent; nothing as long as this is not
    /// called.
    void setBackground(COLORREF colour);

    [[nodiscard]] QSize imageSize() const { return m_size; }
    [[nodiscard]] int count() const { return static_cast<int>(m_images.size()); }
    /// A picture as it was appended; a null image for an index outside the list.
    [[nodiscard]] QImage image(int index) const;
    /// A picture as it is shown in a place of so many pixels: redrawn, else fitted to it, on the
    /// background. A null image for an index outside the list, and for a side below 1 or above
    /// kLongestSide.
    [[nodiscard]] QImage image(int index, const QSize& pixels) const;
    /// How many pixels a picture takes on a device with so many a point: as many as imageSize, or
    /// fewer where it is smaller; no side is more than kLongestSide + 1. Empty for an index outside
    /// the list.
    [[nodiscard]] QSize place(int index, double scaleX, double scaleY) const;

    /// The size of a picture that is so many pixels high: imageSize, enlarged where height is more.
    [[nodiscard]] QSize pixelSize(int height) const;

    /// Appends one picture.
    void append(const QImage& image);
    /// Cuts a strip into pictures, pixelSize of its height each, from the left, and appends them;
    /// what is left over at the right is ignored. Pixels of the mask colour become transparent,
    /// then and whenever the strip is redrawn.
    void appendStrip(const QImage& strip, COLORREF mask, Redraw redraw = {});
    /// Draws a picture with its top left corner at a point, with as many pixels as imageSize has on
    /// the painter's device, each on one of the device's; an index outside the list draws nothing.
    /// Leaves the painter as it was.
    void draw(QPainter& painter, int index, const QPoint& at) const;

private:
    struct Strip {
        int first;
        int count;
        COLORREF mask;
        Redraw redraw;
    };
    /// Pictures of one size in pixels; null as long as nobody has asked.
    using Edition = std::vector<QImage>;

    [[nodiscard]] Edition& editionOf(const QSize& pixels) const;
    [[nodiscard]] QImage kept(const QImage& image) const;
    [[nodiscard]] QImage shown(const QImage& image) const;
    void fillEdition(Edition& edition, int index, const QSize& pixels) const;
    void redrawStrip(Edition& edition, const Strip& strip, const QSize& pixels) const;

    QSize m_size;
    Depth m_depth;
    std::optional<COLORREF> m_background;
    Edition m_images;
    std::vector<Strip> m_strips;
    // Asking for a picture in other pixels changes nothing that anyone can see. Few, and in the
    // order in which they were made.
    mutable std::list<std::pair<QSize, Edition>> m_editions;
};

} // namespace condtree
