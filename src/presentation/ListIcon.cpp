#include "ListIcon.h"

#include <condtree/presentation/ImgLst.h>

#include <QIconEngine>
#include <QPainter>

#include <utility>

namespace condtree {

namespace {

constexpr double kDisabledOpacity = 0.4;

class Engine final : public QIconEngine {
public:
    Engine(std::weak_ptr<const ImgLst> list, int index)
        : m_list(std::move(list))
        , m_index(index)
    {
    }

    // In the same colours whether or not the row is selected: they say which kind of row it is.
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const auto list = m_list.lock();
        if (list == nullptr)
            return;
        const double opacity = painter->opacity();
        if (mode == QIcon::Disabled)
            painter->setOpacity(opacity * kDisabledOpacity);
        list->draw(*painter, m_index, rect.topLeft());
        painter->setOpacity(opacity);
    }

    /// Never another size, so that it is never stretched.
    QSize actualSize(const QSize&, QIcon::Mode, QIcon::State) override
    {
        const auto list = m_list.lock();
        return list == nullptr ? QSize() : list->imageSize();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode, QIcon::State) override
    {
        const auto list = m_list.lock();
        return list == nullptr ? QPixmap() : QPixmap::fromImage(list->image(m_index, size));
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal) override
    {
        return pixmap(size, mode, state);
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
