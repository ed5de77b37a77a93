#include "ListIcon.h"

#include <condtree/presentation/ImgLst.h>

#include <QIconEngine>
#include <QPainter>

#include <cmath>
#include <utility>

namespace condtree {

namespace {

constexpr double kDisabledOpacity = 0.4;

/// A size, or the largest of its proportions that there is room for.
QSize within(const QSize& size, const QSize& room)
{
    const bool hasRoom = size.width() <= room.width() && size.height() <= room.height();
    return hasRoom ? size : size.scaled(room, Qt::KeepAspectRatio);
}

QImage faded(const QImage& image)
{
    QImage pale(image.size(), QImage::Format_ARGB32_Premultiplied);
    pale.fill(Qt::transparent);
    QPainter painter(&pale);
    painter.setOpacity(kDisabledOpacity);
    painter.drawImage(0, 0, image);
    return pale;
}

class Engine final : public QIconEngine {
public:
    Engine(std::weak_ptr<const ImgLst> list, int index)
        : m_list(std::move(list))
        , m_index(index)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const auto list = m_list.lock();
        if (list == nullptr)
            return;
        const double opacity = painter->opacity();
        if (mode == QIcon::Disabled)
            painter->setOpacity(opacity * kDisabledOpacity);
        if (const QSize room = within(list->imageSize(), rect.size()); room == list->imageSize()) {
            list->draw(*painter, m_index, rect.topLeft());
        } else {
            const QTransform device = painter->deviceTransform();
            const bool isUpright = device.type() <= QTransform::TxScale;
            const QSizeF pixels(room.width() * (isUpright ? std::abs(device.m11()) : 1),
                                room.height() * (isUpright ? std::abs(device.m22()) : 1));
            painter->drawImage(QRect(rect.topLeft(), room), list->image(m_index, pixels.toSize()));
        }
        painter->setOpacity(opacity);
    }

    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override
    {
        const auto list = m_list.lock();
        return list == nullptr || size.isEmpty() ? QSize() : within(list->imageSize(), size);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1.0);
    }

    /// size in pixels.
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal scale) override
    {
        const auto list = m_list.lock();
        if (list == nullptr || size.isEmpty())
            return {};
        const QImage image = list->image(m_index, within(list->place(m_index, scale, scale), size));
        return QPixmap::fromImage(mode == QIcon::Disabled && !image.isNull() ? faded(image)
                                                                             : image);
    }

    [[nodiscard]] QIconEngine* clone() const override { return new Engine(m_list, m_index); }

    bool isNull() override
    {
        const auto list = m_list.lock();
        return list == nullptr || list->image(m_index).isNull();
    }

private:
    std::weak_ptr<const ImgLst> m_list;
    int m_index;
};

} // namespace

QIcon listIcon(const std::weak_ptr<const ImgLst>& list, int index)
{
    return QIcon(new Engine(list, index));
}

} // namespace condtree
