#include "Pictures.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace condtree {

namespace {

/// Silver, transparent.
constexpr QRgb kMask = 0x00C0C0C0;
constexpr QRgb kAlpha = 0xFF000000;

constexpr std::array<const char*, 8> kRowDrawings{"add",    "and", "or",   "card",
                                                  "delete", "tag", "user", "groups"};

/// In the order of the operators' numbers: "equal", which every type has, then the comparisons that
/// have an order, then what only texts have.
constexpr std::array<const char*, 9> kOperatorDrawings{
    "equal",    "not-equal",    "less",   "greater", "less-or-equal", "greater-or-equal",
    "contains", "contains-not", "pattern"};

constexpr const char* kUnusedDrawing = "unused";

constexpr Picture rowIcon(std::u16string_view name, std::size_t drawing)
{
    return {name, Picture::Kind::RowIcon, nullptr, std::span(kRowDrawings).subspan(drawing, 1), 0};
}

constexpr Picture strip(std::u16string_view name, const char* tile, std::size_t operators,
                        int unused)
{
    return {name, Picture::Kind::OperatorStrip, tile, std::span(kOperatorDrawings).first(operators),
            unused};
}

constexpr std::array<Picture, 12> kPictures{
    rowIcon(u"PNG_NEW_FILE", 0),
    rowIcon(u"PNG_AND", 1),
    rowIcon(u"PNG_OR", 2),
    rowIcon(u"PNG_ALL_CARD", 3),
    rowIcon(u"PNG_DELETE", 4),
    rowIcon(u"PNG_CATEGORIES", 5),
    rowIcon(u"PNG_USER", 6),
    rowIcon(u"PNG_GROUPS", 7),
    strip(u"PNG_BLUE_OPS", "tile-text", 9, 0),
    strip(u"PNG_RED_OPS", "tile-number", 6, 3),
    strip(u"PNG_GREEN_OPS", "tile-date", 6, 3),
    strip(u"PNG_YELLOW_OPS", "tile-yesno", 1, 14),
};

/// The grids that drawings are made on. Every drawing is there on the first; those whose edges
/// would lie between the pixels at the sizes of the others are there on these, too.
constexpr int kGrid = 16;
constexpr std::array kFinerGrids{20, 24};

/// The file of the drawing that has its edges on whole pixels, if there is one for the size.
QString fileFor(const char* drawing, int side)
{
    const QString path = QStringLiteral(":/condtree/wficons/") + QLatin1String(drawing);
    for (const int grid : kFinerGrids) {
        const QString finer = QStringLiteral("%1-%2.svg").arg(path).arg(grid);
        if (side % kGrid != 0 && side % grid == 0 && QFile::exists(finer))
            return finer;
    }
    return path + QStringLiteral(".svg");
}

/// Draws into the largest square in the middle of a cell, on whole pixels.
void drawInto(QPainter& painter, const char* drawing, const QRect& cell)
{
    const int side = std::min(cell.width(), cell.height());
    const QRect square(cell.x() + (cell.width() - side) / 2, cell.y() + (cell.height() - side) / 2,
                       side, side);
    QSvgRenderer(fileFor(drawing, side)).render(&painter, square);
}

} // namespace

const Picture* findPicture(std::u16string_view name)
{
    const auto* const found = std::ranges::find(kPictures, name, &Picture::name);
    return found == kPictures.end() ? nullptr : found;
}

QImage drawPicture(const Picture& picture, const QSize& cell)
{
    const int used = static_cast<int>(picture.drawings.size());
    QImage image(cell.width() * (used + picture.unused), cell.height(),
                 QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QRect place({0, 0}, cell);
    for (const char* drawing : picture.drawings) {
        if (picture.tile != nullptr)
            drawInto(painter, picture.tile, place);
        drawInto(painter, drawing, place);
        place.translate(cell.width(), 0);
    }
    for (int i = 0; i < picture.unused; ++i, place.translate(cell.width(), 0))
        drawInto(painter, kUnusedDrawing, place);
    painter.end();

    image = std::move(image).convertToFormat(QImage::Format_ARGB32);
    if (picture.kind == Picture::Kind::OperatorStrip)
        applyMaskColour(image);
    return image;
}

void applyMaskColour(QImage& strip)
{
    for (int y = 0; y < strip.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(strip.scanLine(y));
        for (QRgb& pixel : std::span(line, static_cast<std::size_t>(strip.width()))) {
            if (qAlpha(pixel) == 0)
                pixel = kMask;
            else if ((pixel & ~kAlpha) == kMask)
                pixel ^= 1U; // one step of blue, which nobody sees
        }
    }
}

} // namespace condtree
