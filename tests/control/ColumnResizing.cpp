// A column's boundary that moves while an editor is open over a cell.
#include "ControlFixture.h"

#include <condtree/editing/FocusEdit.h>

#include <QComboBox>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

namespace condtree::test {
namespace {

class ColumnResizing : public ControlFixture {
protected:
    void SetUp() override
    {
        initialize();
        control->resize(400, 300);
        loaded({record(3, 2, "Author", "a", 1, 106)});
        control->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(control.get()));
        control->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(control.get()));
    }
    /// Clicks on a column of the only row.
    void click(int column)
    {
        const QRect row = control->visualRect(control->model()->index(0, 0));
        const int x = control->viewport()->width() * column / 4 + 40;
        QTest::mouseClick(control->viewport(), Qt::LeftButton, {}, {x, row.center().y()});
    }
    void moveBoundary() { control->mvResizeCol(0, 50, control->viewport()->width()); }
};

TEST_F(ColumnResizing, AnOpenInPlaceEditorFinishesAndKeepsWhatWasTyped)
{
    click(2);
    const QPointer<FocusEdit> edit = control->findChild<FocusEdit*>();
    ASSERT_FALSE(edit.isNull());
    ASSERT_TRUE(edit->isVisible());
    QTest::keyClicks(edit->focusProxy() == nullptr ? edit : edit->focusProxy(),
                     QStringLiteral("typed"));
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("a"));

    QSignalSpy changed(control.get(), &CondTreeCtrl::conditionChanged);
    moveBoundary();
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("typed"));
    EXPECT_TRUE(edit.isNull() || !edit->isVisible());
    QCoreApplication::processEvents();
    EXPECT_EQ(changed.count(), 1);
    EXPECT_NEAR(control->miGetColumnSize(0, control->viewport()->width()), 50, 1);
}

TEST_F(ColumnResizing, AnOpenListClosesAndChangesNothing)
{
    click(1);
    const QPointer<QComboBox> combo = control->findChild<QComboBox*>();
    ASSERT_FALSE(combo.isNull());
    ASSERT_TRUE(combo->isVisible());
    const std::string before = rows();
    moveBoundary();
    QCoreApplication::processEvents();
    EXPECT_TRUE(combo.isNull() || !combo->isVisible());
    EXPECT_EQ(rows(), before);
}

TEST_F(ColumnResizing, AHostMayDeleteTheControlWhenItHearsOfWhatWasTyped)
{
    click(2);
    auto* edit = control->findChild<FocusEdit*>();
    ASSERT_NE(edit, nullptr);
    QTest::keyClicks(edit->focusProxy() == nullptr ? edit : edit->focusProxy(),
                     QStringLiteral("typed"));
    QObject::connect(control.get(), &CondTreeCtrl::conditionChanged, control.get(),
                     [this] { control.reset(); });
    moveBoundary();
    QCoreApplication::processEvents();
    EXPECT_EQ(control, nullptr);
}

} // namespace
} // namespace condtree::test
