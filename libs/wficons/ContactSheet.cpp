// contact_sheet MODULE FOLDER PNG: draws every picture of an icon library, found in the module as
// the control finds it, at the usual sizes with its name. The sheet carries a checksum of the
// drawings in the folder, which tells whether it still shows them.
#include <condtree/platform/WfIcons.h>
#include <condtree/platform/WinTypes.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QLibrary>
#include <QPainter>

#include <array>

using namespace condtree;

namespace {

constexpr std::array kRowIcons{u"PNG_NEW_FILE", u"PNG_AND",        u"PNG_OR",   u"PNG_ALL_CARD",
                               u"PNG_DELETE",   u"PNG_CATEGORIES", u"PNG_USER", u"PNG_GROUPS"};
constexpr std::array kStrips{u"PNG_BLUE_OPS", u"PNG_RED_OPS", u"PNG_GREEN_OPS", u"PNG_YELLOW_OPS"};
constexpr std::array kHeights{16, 24, 32, 48};

constexpr QSize kSheet(816, 940);
constexpr int kMargin = 32;
constexpr int kIconsInARow = 4;
constexpr QSize kIconPitch(196, 106);
constexpr int kGap = 12;
constexpr int kTextHeight = 20;
constexpr QRgb kText = 0xFF47566B;

class Sheet {
public:
    Sheet(WfLoadAtSize* load, QPainter& painter)
        : m_load(load)
        , m_painter(painter)
    {
    }

    /// The sizes of an icon beside one another, standing on one line.
    void drawIcon(const char16_t* name, const QPoint& at) const
    {
        int x = at.x();
        for (const int height : kHeights)
            x += drawPicture(name, height, {x, at.y() + kHeights.back() - height}) + kGap;
        drawName(name, {at.x(), at.y() + kHeights.back()});
    }

    /// The two smaller sizes of a strip beside one another, the larger below. Returns the height.
    [[nodiscard]] int drawStrip(const char16_t* name, const QPoint& at) const
    {
        int y = at.y();
        const int width = drawPicture(name, kHeights[0], {at.x(), y + kHeights[1] - kHeights[0]});
        drawPicture(name, kHeights[1], {at.x() + width + kGap, y});
        y += kHeights[1] + kGap;
        for (std::size_t i = 2; i < kHeights.size(); ++i) {
            drawPicture(name, kHeights[i], {at.x(), y});
            y += kHeights[i] + kGap;
        }
        drawName(name, {at.x(), y - kGap});
        return y - at.y() + kTextHeight + kGap;
    }

private:
    /// Returns the picture's width.
    int drawPicture(const char16_t* name, int height, const QPoint& at) const
    {
        WfImage* image = m_load(name, height);
        if (image == nullptr)
            qFatal("no %s of %d pixels", qPrintable(QString::fromUtf16(name)), height);
        const QImage picture(image->bytes, image->width, image->height, QImage::Format_ARGB32);
        m_painter.drawImage(at, picture);
        const int width = picture.width();
        CoTaskMemFree(image);
        return width;
    }

    void drawName(const char16_t* name, const QPoint& below) const
    {
        const QRect line(below, QSize(kIconPitch.width(), kTextHeight + kGap / 2));
        m_painter.drawText(line, Qt::AlignLeft | Qt::AlignBottom, QString::fromUtf16(name));
    }

    WfLoadAtSize* m_load;
    QPainter& m_painter;
};

void drawEverything(const Sheet& sheet)
{
    int y = kMargin;
    for (int i = 0; i < int{kRowIcons.size()}; ++i) {
        const QPoint place(i % kIconsInARow * kIconPitch.width(),
                           i / kIconsInARow * kIconPitch.height());
        sheet.drawIcon(kRowIcons[static_cast<std::size_t>(i)], QPoint(kMargin, y) + place);
    }
    y += int{kRowIcons.size()} / kIconsInARow * kIconPitch.height();
    for (const char16_t* name : kStrips)
        y += sheet.drawStrip(name, {kMargin, y});
}

/// Of the names and contents of the drawings in a folder, in hexadecimal digits.
QString checksum(const QString& folder)
{
    const QDir drawings(folder, QStringLiteral("*.svg"), QDir::Name, QDir::Files);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const QString& name : drawings.entryList()) {
        QFile file(drawings.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("%s cannot be read", qPrintable(file.fileName()));
        const QByteArray content = file.readAll();
        hash.addData(name.toUtf8() + ' ' + QByteArray::number(content.size()) + '\n' + content);
    }
    return QString::fromLatin1(hash.result().toHex());
}

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 4)
        qFatal("usage: contact_sheet MODULE FOLDER PNG");
    QLibrary module(arguments[1]);
    auto* load = reinterpret_cast<WfLoadAtSize*>(module.resolve(kWfLoadAtSizeEntry));
    if (load == nullptr)
        qFatal("%s", qPrintable(module.errorString()));

    QImage page(kSheet, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    painter.setPen(QColor(kText));
    QFont font = painter.font();
    font.setPixelSize(13);
    painter.setFont(font);
    drawEverything(Sheet(load, painter));
    painter.end();
    page.setText(QStringLiteral("Drawings"), checksum(arguments[2]));
    if (!page.save(arguments[3]))
        qFatal("%s cannot be written", qPrintable(arguments[3]));
}
