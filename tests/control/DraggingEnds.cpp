// However a drag ends, its picture, mark, cursor and timers go, and nothing is dropped but by the
// button.
#include "DragFixture.h"

#include <QHideEvent>

namespace condtree::test {
namespace {

class DraggingEnds : public DragFixture {
protected:
    /// In the middle of a drag over the edge of a closed group, with all timers running.
    void SetUp() override
    {
        before = text();
        pick({1});
        move(at({3}));
        ASSERT_NE(image(), nullptr);
        ASSERT_TRUE(tree->viewport()->testAttribute(Qt::WA_SetCursor));
        ASSERT_EQ(running.count(1002), 1U);
        QPoint edge(20, tree->viewport()->height() - 2);
        move(edge);
        ASSERT_EQ(running.count(1001), 1U);
        move(at({3}));
    }
    void expectEndedWithoutDrop()
    {
        expectNoDrag();
        EXPECT_EQ(text(), before);
        EXPECT_EQ(changes, 0);
    }
    std::string before;
};

TEST_F(DraggingEnds, ByEscape)
{
    QTest::keyClick(dialog->windowHandle(), Qt::Key_Escape);
    expectEndedWithoutDrop();
    EXPECT_TRUE(dialog->isVisible()) << "the key was the drag's, not the dialog's";
    move(at({0}));
    move(at({0}) + QPoint(5, 0));
    EXPECT_EQ(image(), nullptr) << "the button is still held";
    release(at({0}));
    expectEndedWithoutDrop();
    EXPECT_EQ(dialog->told, 1);
    EXPECT_EQ(tree->clicks, 0);
    QTest::keyClick(dialog->windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible()) << "the next one is the dialog's";
}

TEST_F(DraggingEnds, NotByOtherKeys)
{
    for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_F5})
        QTest::keyClick(dialog->windowHandle(), key);
    EXPECT_NE(image(), nullptr);
}

TEST_F(DraggingEnds, WhenTheFocusGoes)
{
    tree->clearFocus();
    expectEndedWithoutDrop();
}

TEST_F(DraggingEnds, WhenTheWindowIsDeactivated)
{
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    expectEndedWithoutDrop();
}

TEST_F(DraggingEnds, WhenTheControlIsHidden)
{
    tree->hide();
    expectEndedWithoutDrop();
}

TEST_F(DraggingEnds, WhenTheDialogIsHidden)
{
    dialog->hide();
    expectEndedWithoutDrop();
}

TEST_F(DraggingEnds, WhenTheControlIsDisabled)
{
    tree->setEnabled(false);
    expectEndedWithoutDrop();
}

TEST_F(DraggingEnds, WhenTheReleaseGotLost)
{
    const QPoint on = at({0});
    send(QEvent::MouseMove, on, Qt::NoButton, Qt::NoButton);
    expectEndedWithoutDrop();
}

TEST_F(DraggingEnds, WhenTheButtonGoesDownAgain)
{
    tree->OnLButtonDown(MK_LBUTTON, {tree->viewport()->width() - 4, 4});
    expectEndedWithoutDrop();
}

TEST_F(DraggingEnds, WhenTheDraggedRowIsDeleted)
{
    tree->mvDeleteNode(node({1})->mhItem);
    expectNoDrag();
    EXPECT_EQ(node({1})->mValue, QStringLiteral("5"));
    const std::string rows = text();
    release(at({0}));
    EXPECT_EQ(text(), rows);
    EXPECT_EQ(changes, 0);
}

TEST_F(DraggingEnds, WhenTheTreeIsDeleted)
{
    tree->mvDeleteNode(TVI_ROOT);
    expectNoDrag();
    release(at({0}));
    EXPECT_EQ(tree->mpoGetNode(TVI_ROOT), nullptr);
    EXPECT_EQ(changes, 0);
}

TEST_F(DraggingEnds, WhenTheTreeIsLoadedAnew)
{
    load({record(3, 2, "Cost", "1", 3, 120)});
    expectNoDrag();
    release(at({0}));
    EXPECT_EQ(text(), "1000 Cost | 1 op=120 arg=3\n" + kPlaceholderRow);
}

TEST_F(DraggingEnds, WhenTheControlIsDeleted)
{
    running.clear();
    delete tree;
    EXPECT_EQ(image(), nullptr);
}

TEST_F(DraggingEnds, WhenTheDialogIsDeleted)
{
    delete dialog;
    SUCCEED() << "the picture goes with its window or before it";
}

TEST_F(DraggingEnds, AtTheTopLevelWhenReleasedOutsideTheWindow)
{
    struct {
        std::vector<int> path;
        QPoint out;
        const char* value;
    } const rows[]{{{1}, {-200, 40}, "x"}, {{0, 0}, {40, -200}, "a"}, {{0, 0}, {2000, 40}, "b"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value);
        pick(row.path);
        move(row.out);
        release(row.out);
        expectNoDrag();
        const int last = static_cast<int>(node({})->mChildren.size()) - 1;
        EXPECT_EQ(node({last})->mlCode, -1);
        EXPECT_EQ(node({last - 1})->mValue, QLatin1String(row.value));
        EXPECT_EQ(tree->currentIndex(), index({last - 1}));
    }
    EXPECT_EQ(changes, 3);
}

TEST_F(DraggingEnds, ATargetThatIsDeletedIsNone)
{
    tree->mvDeleteNode(node({3})->mhItem);
    EXPECT_NE(image(), nullptr) << "the row itself is still dragged";
    EXPECT_EQ(running.count(1002), 0U);
    const std::string rows = text();
    tree->OnLButtonUp(0, point(at({3})));
    EXPECT_EQ(text(), rows);
    EXPECT_EQ(changes, 0);
    expectNoDrag();
}

TEST_F(DraggingEnds, TheHostsOwnCursorComesBack)
{
    QTest::keyClick(dialog->windowHandle(), Qt::Key_Escape);
    release(at({0}));
    tree->viewport()->setCursor(Qt::CrossCursor);
    drag({1}, at({2}));
    EXPECT_EQ(tree->viewport()->cursor().shape(), Qt::CrossCursor);
    tree->viewport()->unsetCursor();
}

} // namespace
} // namespace condtree::test
