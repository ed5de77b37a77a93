// What closes the picker, or keeps it from opening, beside the user's hand in it.
#include "PickingHand.h"

#include <QImage>
#include <QScrollBar>

namespace condtree::test {
namespace {

class DatePickingEnds : public PickingHand {
protected:
    struct Act {
        const char* name;
        std::function<void()> act;
    };
    /// Makes the picked row the last of some: a group of two, a text, and the date.
    VarTreeCtrlNode& loadRows()
    {
        loaded({groupRecord(), record(RowKindInGroup, 2, "Author", "a", ArgText, StringContains),
                record(RowKindTop, 2, "Author", "b", ArgText, StringContains), due("2024-03-14"),
                record(RowKindTop, 2, "Author", "c", ArgText, StringContains)});
        control->collapseAll();
        letEventsPass();
        return topRow(kDue);
    }
    void insert(bool first)
    {
        auto* node = new VarTreeCtrlNode(NodeVariable);
        control->mhAddNode(control->mpoGetNode(TVI_ROOT), node, first);
    }
    /// What a host may do while it is asked for something, at the first time only.
    void onceDuring(const std::string& port, const std::function<void()>& act)
    {
        hasActed = false;
        const auto once = [this, act] {
            if (!std::exchange(hasActed, true))
                act();
        };
        duringTime = [port, once](const std::string& asked) {
            if (asked == port)
                once();
        };
        duringMetric = [port, once](int metric) {
            if (port == "systemMetric" && metric == SM_CYDOUBLECLK)
                once();
        };
    }
    void begin()
    {
        duringTime = nullptr;
        duringMetric = nullptr;
        if (control == nullptr) {
            control = std::make_unique<OpenCtrl>(window.get(), services());
            control->setGeometry(0, 0, 800, 340);
            initialize();
            control->show();
        }
        loaded({due("2024-03-14")});
        letEventsPass();
    }
    /// What takes the picked row away.
    std::vector<Act> ends()
    {
        return {{"the row goes", [this] { control->mvDeleteNode(topRow(0).mhItem); }},
                {"another condition", [this] { loaded({due("2020-01-01")}); }},
                {"everything goes", [this] { control->mvDeleteNode(TVI_ROOT); }},
                {"the control goes", [this] { control.reset(); }}};
    }

    static constexpr int kDue = 2;
    bool hasActed = false;
};

TEST_F(DatePickingEnds, ItClosesWhenItsRowMoves)
{
    const std::vector<Act> moves = {
        {"a row comes above", [this] { insert(true); }},
        {"a row goes above", [this] { control->mvDeleteNode(topRow(1).mhItem); }},
        {"a group opens above", [this] { control->expand(indexOf(0)); }},
        {"the control is resized", [this] { control->resize(700, 300); }},
        {"a column is resized", [this] { control->mvResizeCol(0, 100, 800); }},
    };
    for (const Act& move : moves) {
        SCOPED_TRACE(move.name);
        loadRows();
        picking([this] { click(kDue, 2); }, move.act);
        EXPECT_FALSE(wasOpen);
    }
}

TEST_F(DatePickingEnds, ItClosesWhenAGroupAboveIsClosed)
{
    loadRows();
    control->expand(indexOf(0));
    letEventsPass();
    picking([this] { click(kDue, 2); }, [this] { control->collapse(indexOf(0)); });
    EXPECT_FALSE(wasOpen);
}

TEST_F(DatePickingEnds, ItClosesWhenTheRowsAreScrolled)
{
    loaded(std::vector<TransCond>(60, due("2024-03-14")));
    letEventsPass(); // a scroll bar comes
    clicking([this] { control->verticalScrollBar()->setValue(1); });
    EXPECT_FALSE(wasOpen);
}

TEST_F(DatePickingEnds, RowsBelowComeAndGoAndItStays)
{
    loadRows();
    picking([this] { click(kDue, 2); },
            [this] {
                insert(false);
                control->mvDeleteNode(topRow(kDue + 1).mhItem);
                QCoreApplication::processEvents();
                ASSERT_NE(picker(), nullptr);
                pickDay(20);
            });
    EXPECT_TRUE(wasOpen);
    EXPECT_EQ(topRow(kDue).mValue, QStringLiteral("2024-03-20"));
    EXPECT_EQ(changes, 1);
}

TEST_F(DatePickingEnds, ThePickedDateIsInTheCellWhileItIsOpen)
{
    only(due("2024-03-14"));
    const RECT cell = cellOf(0, 2);
    const QRect place(cell.left, cell.top, cell.right - cell.left, cell.bottom - cell.top);
    clicking([&] {
        const QImage before = control->viewport()->grab(place).toImage();
        pickDay(20);
        const QImage after = control->viewport()->grab(place).toImage();
        EXPECT_NE(before, after);
        pickDay(14);
        EXPECT_EQ(control->viewport()->grab(place).toImage(), before);
    });
}

TEST_F(DatePickingEnds, AHostThatIsAskedForTheTimeMayEndItBeforeItOpens)
{
    for (const char* port : {"localTime", "doubleClickTime", "systemMetric"}) {
        for (const Act& end : ends()) {
            for (const bool isAsked : {false, true}) {
                SCOPED_TRACE(std::string(port) + ", " + end.name + (isAsked ? ", asked" : ""));
                begin();
                const RECT cell = cellOf(0, 2);
                onceDuring(port, end.act);
                QTimer::singleShot(0, qApp, [this] {
                    if (QWidget* popup = QApplication::activePopupWidget()) {
                        ADD_FAILURE() << "it is open";
                        popup->close();
                    }
                });
                isAsked ? control->mvOnClickValue(topRow(0), 2, cell) : click(0, 2);
                EXPECT_TRUE(hasActed);
                letEventsPass();
                EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
                EXPECT_EQ(changes, 0);
            }
        }
    }
}

TEST_F(DatePickingEnds, AHostThatIsAskedForTheTimeOfAPressMayEndItThen)
{
    for (const Act& end : ends()) {
        SCOPED_TRACE(end.name);
        begin();
        clicking([&] {
            onceDuring("tickCount", end.act);
            pickDay(20);
        });
        EXPECT_TRUE(hasActed);
        EXPECT_FALSE(wasOpen);
        EXPECT_EQ(changes, 0);
    }
}

} // namespace
} // namespace condtree::test
