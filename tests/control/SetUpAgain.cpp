// Rows that are there already when the control is set up, or set up once more.
#include "ControlFixture.h"

#include <condtree/control/TreeGeometry.h>

#include <QImage>
#include <QTest>

namespace condtree::test {
namespace {

class Observed final : public CondTreeCtrl {
public:
    using CondTreeCtrl::CondTreeCtrl;
    int paints = 0;
    int layouts = 0;
    void doItemsLayout() override
    {
        ++layouts;
        CondTreeCtrl::doItemsLayout();
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        CondTreeCtrl::paintEvent(event);
    }
};

class SetUpAgain : public ControlFixture {
protected:
    void setUp() { view.mvInitialize(library.get(), 120, KiroVaultType{}, TreeType{}); }
    /// Shown with one row, and painted.
    void show()
    {
        view.resize(403, 300);
        view.mvLoad({record(3, 2, "Author", "a", 1, 100)});
        view.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
        QCoreApplication::processEvents();
        ASSERT_GT(view.paints, 0);
        view.paints = view.layouts = 0;
    }
    /// The row shows the picture of variables in front of its text and one of operators.
    void expectPictures()
    {
        ASSERT_TRUE(placeOfRow(view, row()));
        const QImage image = view.viewport()->grab().toImage();
        const int middle = view.visualRect(row()).center().y();
        const int boundary = view.miGetColumnSize(0, view.viewport()->width());
        EXPECT_EQ(image.pixelColor(placeOfRow(view, row())->textLeft - 15, middle),
                  ColouredIcons::colour(3));
        EXPECT_EQ(image.pixelColor(boundary + 3, middle), ColouredIcons::colour(8));
    }
    [[nodiscard]] QModelIndex row() const { return view.model()->index(0, 0); }

    Observed view{nullptr, services()};
};

TEST_F(SetUpAgain, PicturesThatTheSecondSetUpBringsAreLaidOutAndPainted)
{
    icons->result = IconResult::NoLibrary;
    setUp();
    show();
    const int textLeft = placeOfRow(view, row())->textLeft;
    icons->result = IconResult::Loaded;
    setUp();
    EXPECT_TRUE(QTest::qWaitFor([this] { return view.layouts > 0 && view.paints > 0; }));
    EXPECT_GT(placeOfRow(view, row())->textLeft, textLeft);
    expectPictures();
}

TEST_F(SetUpAgain, RowsThatWereLoadedBeforeTheFirstSetUpGetTheirPictures)
{
    view.setIconSize(iconSize); // so that the size says nothing new
    show();
    setUp();
    EXPECT_TRUE(QTest::qWaitFor([this] { return view.layouts > 0 && view.paints > 0; }));
    expectPictures();
}

TEST_F(SetUpAgain, TheFirstSetUpGivesTheRowsTheSizeOfItsPictures)
{
    show();
    setUp();
    EXPECT_EQ(view.iconSize(), iconSize);
    EXPECT_TRUE(QTest::qWaitFor([this] { return view.paints > 0; }));
    expectPictures();
}

} // namespace
} // namespace condtree::test
