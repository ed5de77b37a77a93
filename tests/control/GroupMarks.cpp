#include "ControlFixture.h"

#include <QImage>
#include <QItemSelectionModel>
#include <QTest>
#include <QWindow>

#include <cstdlib>
#include <string>
#include <vector>

namespace condtree::test {
namespace {

/// A shown control of a group with one row in it, a condition and the placeholder.
class GroupMarks : public ControlFixture {
protected:
    GroupMarks()
    {
        initialize();
        control->resize(403, 300);
        loaded({groupRecord(), record(4, 2, "Author", "a", 1, 100),
                record(3, 2, "Title", "b", 1, 100)});
        control->show();
        control->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(control.get()));
    }
    QModelIndex at(int row) const { return control->model()->index(row, 0); }
    QModelIndex inGroup() const { return control->model()->index(0, 0, at(0)); }
    /// Where a row's mark is: the last step of its indentation.
    QRect markRect(const QModelIndex& index) const
    {
        const QRect item = control->visualRect(index);
        const int step = control->indentation();
        return {item.left() - step, item.top(), step, item.height()};
    }
    /// What is drawn there, without the bar and the frame of a marked row.
    QImage markPicture(const QModelIndex& index) const
    {
        return control->viewport()->grab(markRect(index).adjusted(4, 2, 0, -2)).toImage();
    }
    /// How many pixels there stand out from what the row is drawn on.
    int markInk(const QModelIndex& index) const
    {
        const QImage image = markPicture(index);
        const int ground = image.pixelColor(0, 0).lightness();
        int ink = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                ink += std::abs(image.pixelColor(x, y).lightness() - ground) > 80 ? 1 : 0;
        }
        return ink;
    }
    void click(const QModelIndex& index)
    {
        QTest::mouseClick(control->windowHandle(), Qt::LeftButton, {},
                          control->viewport()->mapTo(control.get(), markRect(index).center()));
    }
    void mark(const QModelIndex& index, bool isSelected, bool isFocused)
    {
        control->selectionModel()->setCurrentIndex(
            index, isSelected ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::Clear);
        if (isFocused)
            control->setFocus();
        else
            control->clearFocus();
    }
};

struct State {
    const char* name;
    bool isSelected, isFocused;
};

const std::vector<State> kStates{{"plain", false, false},
                                 {"focused", false, true},
                                 {"selected", true, false},
                                 {"selected and focused", true, true}};

TEST_F(GroupMarks, AGroupShowsWhetherItIsOpenHoweverItIsMarked)
{
    for (const State& state : kStates) {
        SCOPED_TRACE(state.name);
        mark(at(0), state.isSelected, state.isFocused);
        control->collapse(at(0));
        const QImage closed = markPicture(at(0));
        EXPECT_GT(markInk(at(0)), 6);
        control->expand(at(0));
        EXPECT_GT(markInk(at(0)), 6);
        EXPECT_NE(markPicture(at(0)), closed);
    }
}

TEST_F(GroupMarks, RowsThatHoldNoOthersShowNone)
{
    control->expand(at(0));
    for (const State& state : kStates) {
        for (const QModelIndex& index : {inGroup(), at(1), at(2)}) {
            SCOPED_TRACE(state.name);
            mark(index, state.isSelected, state.isFocused);
            EXPECT_EQ(markInk(index), 0);
        }
    }
}

TEST_F(GroupMarks, AClickOnAMarkOpensAndClosesItsGroup)
{
    const std::string before = saved();
    for (const State& state : kStates) {
        SCOPED_TRACE(state.name);
        mark(at(0), state.isSelected, state.isFocused);
        ASSERT_FALSE(control->isExpanded(at(0)));
        click(at(0));
        EXPECT_TRUE(control->isExpanded(at(0)));
        EXPECT_FALSE(control->visualRect(inGroup()).isEmpty());
        click(at(0));
        EXPECT_FALSE(control->isExpanded(at(0)));
        EXPECT_TRUE(control->visualRect(inGroup()).isEmpty());
    }
    EXPECT_EQ(saved(), before);
}

TEST_F(GroupMarks, AClickInFrontOfAnotherRowOpensNothing)
{
    click(at(1));
    click(at(2));
    for (const int row : {0, 1, 2})
        EXPECT_FALSE(control->isExpanded(at(row))) << row;
}

} // namespace
} // namespace condtree::test
