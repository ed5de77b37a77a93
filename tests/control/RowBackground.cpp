// What lies behind the rows where the base colour is not white.
#include "ControlFixture.h"

#include <condtree/control/RowDrawing.h>

#include <QApplication>
#include <QImage>
#include <QTest>

namespace condtree::test {
namespace {

/// Pictures in which nothing but one silver pixel in the middle is drawn.
class EmptyIcons final : public IconLibrary {
public:
    IconResult loadIcon(const CString&, int, IconPixels& icon) override
    {
        icon = {16, 16, std::vector<std::uint8_t>(std::size_t{16} * 16 * 4)};
        for (std::size_t channel = 0; channel < 4; ++channel)
            icon.bytes[(8 * 16 + 8) * 4 + channel] = channel == 3 ? 0xFF : 0xC0;
        return IconResult::Loaded;
    }
    IconResult loadImage(const CString&, int, IconPixels&) override { return IconResult::NoImage; }
};

class RowBackground : public ControlFixture {
protected:
    RowBackground()
    {
        iconSize = {16, 16};
        Services ports = services();
        ports.icons = std::make_shared<EmptyIcons>();
        control = std::make_unique<OpenCtrl>(nullptr, ports);
        initialize();
        control->resize(403, 300);
        loaded({record(3, 2, "Author", "a", 1, 100)});
    }
    ~RowBackground() override { QApplication::setPalette(m_before); }

    static QPalette withBase(QPalette palette, const QColor& base)
    {
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            palette.setColor(group, QPalette::Base, base);
            palette.setColor(group, QPalette::Window, base);
        }
        return palette;
    }
    void show()
    {
        control->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(control.get()));
        control->clearFocus();
        m_image = control->viewport()->grab().toImage();
        const QModelIndex first = control->model()->index(0, 0);
        const std::optional<RowPlace> place = placeOfRow(*control, first);
        ASSERT_TRUE(place);
        m_textLeft = place->textLeft;
        m_itemLeft = control->visualRect(first).left();
        m_middle = control->visualRect(first).center().y();
    }
    QColor indentation() const { return m_image.pixelColor(2, m_middle); }
    QColor margin() const { return m_image.pixelColor(m_itemLeft, m_middle); }
    QColor column() const { return m_image.pixelColor(m_textLeft + 1, m_middle); }
    QColor below() const { return m_image.pixelColor(200, 290); }
    /// All of a picture has one colour; invalid where it has several.
    QColor ofPicture() const
    {
        const int left = (m_itemLeft + m_textLeft) / 2 - 8;
        const QImage picture = m_image.copy(left, m_middle - 7, 16, 14);
        const QColor colour = picture.pixelColor(0, 0);
        QImage plain = picture;
        plain.fill(colour);
        return picture == plain ? colour : QColor();
    }

private:
    const QPalette m_before = QApplication::palette();
    QImage m_image;
    int m_textLeft = 0;
    int m_itemLeft = 0;
    int m_middle = 0;
};

TEST_F(RowBackground, IsWhiteEverywhereOnADarkDesktop)
{
    QApplication::setPalette(withBase(QApplication::palette(), Qt::black));
    show();
    for (const QColor& colour : {indentation(), margin(), ofPicture(), column(), below()})
        EXPECT_EQ(colour, QColor(Qt::white));
}

TEST_F(RowBackground, IsTheHostsAroundTheRowsAndWhiteBehindPicturesAndColumns)
{
    const QColor base(255, 255, 200);
    control->setPalette(withBase(control->palette(), base));
    show();
    EXPECT_EQ(indentation(), base);
    EXPECT_EQ(margin(), base);
    EXPECT_EQ(below(), base);
    EXPECT_EQ(ofPicture(), QColor(Qt::white));
    EXPECT_EQ(column(), QColor(Qt::white));
}

} // namespace
} // namespace condtree::test
