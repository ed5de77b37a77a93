#include <condtree/control/CondTreeCtrl.h>

#include <gtest/gtest.h>

#include <QIcon>
#include <QImage>

#include <vector>

namespace condtree {

namespace {

/// A control as a host has it, over nothing of the user's settings.
struct Host {
    CondTreeCtrl control;
    Host()
    {
        control.mvInitialize(nullptr, 120, KiroVaultType{}, TreeType{});
        std::vector<TransCond> records(1);
        records[0].lRowKind = 3;
        records[0].lCondType = 2;
        records[0].lOperator = 100;
        records[0].lArgType = 1;
        control.mvLoad(records);
        control.resize(400, 200);
    }
    [[nodiscard]] QIcon icon(int row) const
    {
        return control.model()->index(row, 0).data(Qt::DecorationRole).value<QIcon>();
    }
};

// No setting names a folder, and none is on the loader's path.
TEST(InstalledIcons, AHostFindsTheModuleThatIsInstalledWithTheControl)
{
    const Host host;
    EXPECT_FALSE(host.icon(0).isNull());
    EXPECT_NE(host.icon(0).pixmap(QSize(16, 16)).toImage(),
              host.icon(1).pixmap(QSize(16, 16)).toImage());
}

TEST(InstalledIcons, ASecondControlShowsTheSamePictures)
{
    const Host first;
    const Host second;
    EXPECT_EQ(first.icon(0).pixmap(QSize(24, 24)).toImage(),
              second.icon(0).pixmap(QSize(24, 24)).toImage());
}

TEST(InstalledIcons, TheOperatorsColourIsInItsColumn)
{
    Host host;
    const QRect row = host.control.visualRect(host.control.model()->index(0, 0));
    const int left = host.control.miGetColumnSize(0, host.control.viewport()->width());
    for (const qreal ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        QImage image(host.control.viewport()->size() * ratio, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        host.control.viewport()->render(&image);
        const QRect place(qRound((left + 3) * ratio), qRound((row.top() + 1) * ratio),
                          qRound(16 * ratio), qRound(16 * ratio));
        int blue = 0;
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x) {
                const QColor pixel = image.pixelColor(x, y);
                blue += pixel.blue() > pixel.red() + 60 ? 1 : 0;
            }
        }
        EXPECT_GT(blue, place.width() * place.height() / 3) << ratio;
    }
}

} // namespace

} // namespace condtree
