// Rows dragged with a real pointer.
#include "DesktopFixture.h"

#include <condtree/model/ComboCmd.h>

#include <QScrollBar>
#include <QTest>

namespace condtree::test {
namespace {

class Drag : public DesktopFixture {
protected:
    /// A closed group with a row in it, and two conditions behind it.
    void start()
    {
        DesktopFixture::start();
        second = &add(NodeVariable, "Author", "second", 106, 1);
        first = &add(NodeVariable, "Weight", "first", 120, 2);
        group = &add(NodeOr, "", "", -1);
        add(NodePlaceholder, "", "", -1, 0, group);
        add(NodeVariable, "Title", "inside", 100, 1, group);
    }
    QWidget& view() const { return *control->viewport(); }
    QWidget* image() const
    {
        for (QWidget* child : window.findChildren<QWidget*>(QStringLiteral("dragImage"))) {
            if (!child->isHidden())
                return child;
        }
        return nullptr;
    }
    QPoint handleOf(const VarTreeCtrlNode& row) const { return placeOf(row, 0) - QPoint(30, 0); }
    /// Presses on a row, holds until a movement drags it.
    void grab(const VarTreeCtrlNode& row)
    {
        const QPoint from = handleOf(row);
        hand.moveTo(view(), from);
        hand.press();
        int step = 0;
        EXPECT_TRUE(QTest::qWaitFor([&] {
            hand.moveTo(view(), from + QPoint(8 + ++step % 2, 1));
            return image() != nullptr;
        }));
    }
    void dragTo(const QPoint& to)
    {
        hand.glideTo(view(), to, 8);
        ASSERT_NE(image(), nullptr);
        EXPECT_EQ(image()->mapToGlobal(QPoint(image()->width() / 2, image()->height() / 2)),
                  view().mapToGlobal(to));
    }
    void expectNoImage()
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return image() == nullptr; }));
    }

    VarTreeCtrlNode* group = nullptr;
    VarTreeCtrlNode* first = nullptr;
    VarTreeCtrlNode* second = nullptr;
};

TEST_F(Drag, ARowIsDroppedOnAGroupThatOpens)
{
    start();
    grab(*second);
    dragTo(handleOf(*group));
    Hand::screenshot(QStringLiteral("drag-over-a-group"));
    hand.release();
    expectNoImage();
    ASSERT_EQ(group->mChildren.size(), 3U);
    EXPECT_EQ(group->mChildren[1]->mValue, QStringLiteral("second"));
    EXPECT_EQ(group->mChildren[2]->mlCode, NodePlaceholder);
    EXPECT_TRUE(control->isExpanded(control->model()->index(0, 0)));
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(combo(), nullptr) << "a drag is no click";
}

TEST_F(Drag, ARestOpensAGroupAndARowIsDroppedBelowAll)
{
    start();
    control->expandAll();
    grab(*group->mChildren[0]);
    control->collapseAll();
    dragTo(handleOf(*group));
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return control->isExpanded(control->model()->index(0, 0)); }));
    dragTo({60, view().height() - 60});
    Hand::screenshot(QStringLiteral("drag-below-all-rows"));
    hand.release();
    expectNoImage();
    const std::vector<VarTreeCtrlNode*>& top = control->mpoGetNode(TVI_ROOT)->mChildren;
    EXPECT_EQ(top[top.size() - 2]->mValue, QStringLiteral("inside"));
    EXPECT_EQ(changes, 1);
}

TEST_F(Drag, ADropOnAConditionAndADragThatIsEscapedChangeNothing)
{
    start();
    const std::string before = rows();
    grab(*first);
    dragTo(handleOf(*second));
    Hand::screenshot(QStringLiteral("drag-over-a-condition"));
    hand.release();
    expectNoImage();
    grab(*first);
    dragTo(handleOf(*group));
    hand.key("Escape");
    expectNoImage();
    hand.release();
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(changes, 0);
}

TEST_F(Drag, TheLowerEdgeScrollsUnderAStillPointer)
{
    start();
    for (int row = 0; row < 60; ++row)
        add(NodeVariable, "Author", "row", 106, 1);
    QCoreApplication::processEvents();
    grab(*control->mpoGetNode(TVI_ROOT)->mChildren[2]);
    dragTo({60, view().height() - 3});
    EXPECT_TRUE(QTest::qWaitFor([&] { return control->verticalScrollBar()->value() > 5; }));
    Hand::screenshot(QStringLiteral("drag-scrolls"));
    hand.key("Escape");
    expectNoImage();
    hand.release();
}

TEST_F(Drag, OutsideTheWindowARowIsDroppedAtTheTopLevel)
{
    start();
    control->expandAll();
    grab(*group->mChildren[0]);
    hand.glideTo(view(), {view().width() + 200, 100}, 8);
    hand.release();
    expectNoImage();
    const std::vector<VarTreeCtrlNode*>& top = control->mpoGetNode(TVI_ROOT)->mChildren;
    EXPECT_EQ(top[top.size() - 2]->mValue, QStringLiteral("inside"));
}

} // namespace
} // namespace condtree::test
