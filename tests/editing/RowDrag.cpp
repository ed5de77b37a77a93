#include <condtree/editing/RowDrag.h>
#include <condtree/model/VarTreeCtrlNode.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace condtree {
namespace {

HTREEITEM handle(std::uintptr_t number)
{
    return reinterpret_cast<HTREEITEM>(number);
}

std::string toText(HTREEITEM item)
{
    if (item == TVI_ROOT)
        return "top";
    return item == nullptr ? "none" : std::to_string(reinterpret_cast<std::uintptr_t>(item));
}

std::string toText(POINT point)
{
    return std::to_string(point.x) + "," + std::to_string(point.y);
}

struct EffectText {
    std::string operator()(const StartDragTimer& what) const
    {
        return "start " + std::to_string(what.id) + " " + std::to_string(what.milliseconds);
    }
    std::string operator()(const StopDragTimer& what) const
    {
        return "stop " + std::to_string(what.id);
    }
    std::string operator()(const BeginDrag&) const { return "begin"; }
    std::string operator()(const ShowDragImage& what) const
    {
        return "show " + toText(what.item) + " " + toText(what.at);
    }
    std::string operator()(const MoveDragImage& what) const { return "move " + toText(what.at); }
    std::string operator()(const EndDragImage&) const { return "end"; }
    std::string operator()(const HighlightRow& what) const
    {
        return "mark " + toText(what.item) + (what.isTarget ? "+" : "");
    }
    std::string operator()(const ScrollRows& what) const
    {
        return "scroll " + std::to_string(what.rows);
    }
    std::string operator()(const OpenGroup& what) const { return "open " + toText(what.item); }
    std::string operator()(const DropRow& what) const
    {
        return "drop " + toText(what.item) + " " + toText(what.target);
    }
    std::string operator()(const RepaintRows&) const { return "repaint"; }
    std::string operator()(const TellRelease&) const { return "tell"; }
};

std::string toText(const DragEffects& effects)
{
    std::string text;
    for (const DragEffect& effect : effects)
        text += (text.empty() ? "" : "; ") + std::visit(EffectText(), effect);
    return text;
}

using State = RowDrag::State;

/// A machine, and rows: 1 and 2 are groups, 2 closed; 5 and 6 conditions, 8 a placeholder.
class RowDragTest : public testing::Test {
protected:
    static DragPlace on(std::uintptr_t item, std::optional<LONG> code, unsigned flags = 0x4)
    {
        return {{10, 20}, handle(item), flags, code, false, {}, nullptr};
    }
    static DragPlace below() { return {{10, 90}, nullptr, 0x1, std::nullopt, false, {}, nullptr}; }
    static DragPlace group() { return on(1, 1); }
    static DragPlace closedGroup()
    {
        DragPlace place = on(2, 1);
        place.isClosed = true;
        return place;
    }
    static DragPlace condition(std::uintptr_t item = 5) { return on(item, 1000); }
    static DragPlace placeholder() { return on(8, -1); }

    std::string press(bool mayBegin = true) { return toText(drag.press(mayBegin)); }
    std::string move(const DragPlace& place, bool held = true)
    {
        return toText(drag.move(place, held));
    }
    std::string timer(std::uintptr_t id, const DragPlace& place = {})
    {
        return toText(drag.timer(id, place));
    }
    std::string release(const VarTreeCtrlNode* node = nullptr)
    {
        return toText(drag.release(node));
    }
    /// Up to the drag of row 5, which has just begun.
    void begin()
    {
        press();
        timer(1000);
        toText(drag.move({}, false));
        toText(drag.begin(condition()));
        drag.imageShown();
        ASSERT_EQ(drag.state(), State::Dragging);
        ASSERT_EQ(drag.dragged(), handle(5));
        ASSERT_EQ(drag.target(), nullptr);
    }
    RowDrag drag;
};

TEST_F(RowDragTest, APressInTheFirstColumnHoldsForSeventyMilliseconds)
{
    EXPECT_EQ(press(), "start 1000 70");
    EXPECT_EQ(drag.state(), State::Held);
    EXPECT_EQ(timer(1000), "stop 1000");
    EXPECT_EQ(drag.state(), State::Allowed);
    EXPECT_EQ(timer(1000), "") << "none runs any more";
}

TEST_F(RowDragTest, APressElsewhereArmsNothing)
{
    EXPECT_EQ(press(false), "");
    EXPECT_EQ(drag.state(), State::Idle);
    EXPECT_EQ(timer(1000), "");
    EXPECT_EQ(timer(0), "") << "0 is no timer";
    EXPECT_EQ(drag.state(), State::Idle);
}

TEST_F(RowDragTest, APressElsewhereTakesBackWhatAPressBeforeItArmed)
{
    press();
    EXPECT_EQ(press(false), "stop 1000");
    EXPECT_EQ(drag.state(), State::Idle);
    press();
    timer(1000);
    EXPECT_EQ(press(false), "");
    EXPECT_EQ(drag.state(), State::Idle);
}

TEST_F(RowDragTest, EachPressHoldsAnew)
{
    press();
    EXPECT_EQ(press(), "stop 1000; start 1000 70");
    timer(1000);
    EXPECT_EQ(press(), "start 1000 70");
    EXPECT_EQ(drag.state(), State::Held);
}

TEST_F(RowDragTest, OtherTimersDoNothing)
{
    press();
    for (const std::uintptr_t id : {0, 1, 100, 999, 1001, 1002})
        EXPECT_EQ(timer(id), "") << id;
    EXPECT_EQ(drag.state(), State::Held);
}

TEST_F(RowDragTest, TheFirstMovementArmsTheTopLevelOnly)
{
    press();
    timer(1000);
    EXPECT_EQ(drag.target(), nullptr);
    EXPECT_EQ(move(condition()), "");
    EXPECT_EQ(drag.target(), TVI_ROOT);
    EXPECT_EQ(move(condition()), "begin");
    EXPECT_EQ(move(condition()), "begin") << "until one begins";
}

struct MoveRow {
    const char* name;
    bool isPressed, isAllowed, isHeld;
    const char* effects;
};

TEST_F(RowDragTest, AMovementBeginsADragOnlyWhenAllowedAndHeld)
{
    const MoveRow rows[]{
        {"nothing", false, false, false, ""},
        {"a button pressed elsewhere", false, false, true, ""},
        {"too early", true, false, true, ""},
        {"released", true, true, false, ""},
        {"early and released", true, false, false, ""},
        {"held for long enough", true, true, true, "begin"},
    };
    for (const MoveRow& row : rows) {
        SCOPED_TRACE(row.name);
        drag = RowDrag();
        move({}, false);
        if (row.isPressed)
            press();
        if (row.isAllowed)
            timer(1000);
        EXPECT_EQ(move(condition(), row.isHeld), row.effects);
    }
}

struct BeginRow {
    const char* name;
    LONG code;
    unsigned flags;
    const char* effects;
    HTREEITEM dragged;
    HTREEITEM target;
    State state;
};

TEST_F(RowDragTest, ADragBeginsOnConditionsOnly)
{
    const BeginRow rows[]{
        {"a condition", 3, 0x4, "show 5 10,20", handle(5), nullptr, State::Allowed},
        {"a variable by its icon", 1000, 0x2, "show 5 10,20", handle(5), nullptr, State::Allowed},
        {"right of it", 12, 0x20, "show 5 10,20", handle(5), nullptr, State::Allowed},
        {"its button", 1000, 0x10, "", nullptr, TVI_ROOT, State::Allowed},
        {"outside", 1000, 0x400, "", nullptr, TVI_ROOT, State::Allowed},
        {"code 2", 2, 0x4, "", nullptr, TVI_ROOT, State::Idle},
        {"an OR group", 1, 0x4, "", nullptr, TVI_ROOT, State::Idle},
        {"an AND group", 0, 0x4, "", nullptr, TVI_ROOT, State::Idle},
        {"a placeholder", -1, 0x4, "", nullptr, TVI_ROOT, State::Idle},
    };
    for (const BeginRow& row : rows) {
        SCOPED_TRACE(row.name);
        drag = RowDrag();
        press();
        timer(1000);
        move({}, false);
        EXPECT_EQ(toText(drag.begin(on(5, row.code, row.flags))), row.effects);
        EXPECT_EQ(drag.dragged(), row.dragged);
        EXPECT_EQ(drag.target(), row.target);
        EXPECT_EQ(drag.state(), row.state) << "no drag without its picture";
    }
}

TEST_F(RowDragTest, ARowWithoutANodeIsNotDragged)
{
    press();
    timer(1000);
    EXPECT_EQ(toText(drag.begin(on(5, std::nullopt))), "");
    EXPECT_EQ(drag.state(), State::Idle);
}

TEST_F(RowDragTest, ADragFollowsThePointerAndLooksForItsTarget)
{
    struct {
        const char* name;
        DragPlace place;
        const char* effects;
        HTREEITEM target;
    } const rows[]{
        {"a group", group(), "move 10,20; mark 1+", handle(1)},
        {"another condition", condition(6), "move 10,20; mark 6", nullptr},
        {"itself", condition(), "move 10,20; mark 5", nullptr},
        {"a placeholder", placeholder(), "move 10,20; mark 8", nullptr},
        {"a row without a node", on(9, std::nullopt), "move 10,20; mark 9+", handle(9)},
        {"the AND group", on(3, 0), "move 10,20; mark 3+", handle(3)},
        {"nothing", below(), "move 10,90; mark none+", TVI_ROOT},
    };
    begin();
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(move(row.place), row.effects);
        EXPECT_EQ(drag.target(), row.target);
    }
    EXPECT_EQ(move(group(), false), "move 10,20; mark 1+") << "whatever is held";
}

TEST_F(RowDragTest, ADropMovesTheRowAndTells)
{
    begin();
    move(group());
    EXPECT_EQ(release(), "end; mark none; drop 5 1; tell");
    EXPECT_EQ(drag.state(), State::Idle);
    EXPECT_EQ(drag.dragged(), nullptr);
    EXPECT_EQ(drag.target(), handle(1)) << "kept for the next drag";
}

TEST_F(RowDragTest, ADropThatStopsEarlyTellsNobody)
{
    VarTreeCtrlNode dragged(1000);
    dragged.mhItem = handle(5);
    VarTreeCtrlNode inside(1);
    inside.mpParent = &dragged;
    struct {
        const char* name;
        DragPlace place;
        const VarTreeCtrlNode* node;
        const char* effects;
    } const rows[]{
        {"nowhere", condition(6), nullptr, "end; mark none; repaint"},
        {"on itself", on(5, std::nullopt), nullptr, "end; mark none"},
        {"into itself", on(7, 1), &inside, "end; mark none"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        drag = RowDrag();
        begin();
        move(row.place);
        EXPECT_EQ(release(row.node), row.effects);
        EXPECT_EQ(drag.state(), State::Idle);
    }
}

TEST_F(RowDragTest, ADragThatNeverMovedDropsNothing)
{
    begin();
    EXPECT_EQ(release(), "end; mark none; repaint");
}

TEST_F(RowDragTest, AReleaseWithoutADragTells)
{
    EXPECT_EQ(release(), "tell");
    press();
    EXPECT_EQ(release(), "stop 1000; tell");
    EXPECT_EQ(drag.state(), State::Idle);
    press();
    timer(1000);
    EXPECT_EQ(release(), "tell");
    EXPECT_EQ(drag.state(), State::Idle);
}

TEST_F(RowDragTest, TheHoldTimerEndsWithTheDrop)
{
    press();
    toText(drag.begin(condition())); // without waiting
    drag.imageShown();
    move(group());
    EXPECT_EQ(release(), "end; mark none; drop 5 1; stop 1000; tell");
    EXPECT_EQ(timer(1000), "");
}

TEST_F(RowDragTest, TheHoldTimerDuringADragAllowsNoOther)
{
    press();
    toText(drag.begin(condition()));
    drag.imageShown();
    EXPECT_EQ(timer(1000), "stop 1000");
    EXPECT_EQ(drag.state(), State::Dragging);
}

TEST_F(RowDragTest, ACancelledDragDropsNothingAndTheNextReleaseTells)
{
    begin();
    move(group());
    EXPECT_EQ(toText(drag.cancel()), "end; mark none");
    EXPECT_EQ(drag.state(), State::Idle);
    EXPECT_EQ(move(condition()), "") << "the button is still held";
    EXPECT_EQ(release(), "tell");
    press();
    EXPECT_EQ(toText(drag.cancel()), "stop 1000");
    EXPECT_EQ(toText(drag.cancel()), "");
}

TEST_F(RowDragTest, APressWhileDraggingEndsTheDrag)
{
    begin();
    EXPECT_EQ(press(), "end; mark none; start 1000 70");
    EXPECT_EQ(drag.state(), State::Held);
}

TEST_F(RowDragTest, ASecondBeginningEndsTheFirstDrag)
{
    begin();
    EXPECT_EQ(toText(drag.begin(condition(6))), "end; mark none; show 6 10,20");
    EXPECT_EQ(drag.dragged(), handle(6));
}

TEST_F(RowDragTest, ARestOnAClosedGroupOpensIt)
{
    begin();
    EXPECT_EQ(move(closedGroup()), "move 10,20; mark 2+; start 1002 700");
    EXPECT_EQ(move(closedGroup()), "move 10,20; mark 2+") << "the time runs on";
    EXPECT_EQ(timer(1002), "open 2");
    EXPECT_EQ(timer(1002), "");
}

TEST_F(RowDragTest, AGroupThatIsLeftBeforeStaysClosed)
{
    begin();
    move(closedGroup());
    EXPECT_EQ(move(group()), "move 10,20; mark 1+; stop 1002");
    EXPECT_EQ(timer(1002), "");
    move(closedGroup());
    DragPlace other = closedGroup();
    other.item = handle(4);
    EXPECT_EQ(move(other), "move 10,20; mark 4+; stop 1002; start 1002 700");
    EXPECT_EQ(release(), "stop 1002; end; mark none; drop 5 4; tell");
}

TEST_F(RowDragTest, AnEdgeScrollsForAsLongAsThePointerIsThere)
{
    begin();
    DragPlace edge = condition(6);
    edge.scroll = {-2, 40};
    EXPECT_EQ(move(edge), "move 10,20; mark 6; start 1001 40");
    EXPECT_EQ(move(edge), "move 10,20; mark 6") << "it runs";
    EXPECT_EQ(timer(1001, edge), "start 1001 40; scroll -2");
    edge.scroll = {3, 30};
    EXPECT_EQ(timer(1001, edge), "start 1001 30; scroll 3");
    EXPECT_EQ(timer(1001, condition(6)), "") << "away from the edge";
    EXPECT_EQ(timer(1001, edge), "") << "it had ended";
    move(edge);
    EXPECT_EQ(release(), "stop 1001; end; mark none; repaint");
    EXPECT_EQ(timer(1001, edge), "");
}

TEST_F(RowDragTest, WithoutADragNothingScrollsOrOpens)
{
    DragPlace edge = closedGroup();
    edge.scroll = {1, 40};
    press();
    timer(1000);
    move(edge, false);
    EXPECT_EQ(move(edge, false), "");
    EXPECT_EQ(timer(1001, edge), "");
    EXPECT_EQ(timer(1002, edge), "");
}

TEST_F(RowDragTest, RowsThatAreGoneAreForgotten)
{
    std::set<HTREEITEM> there{handle(1), handle(2), handle(5)};
    const auto forget = [&] {
        return toText(drag.forget([&](HTREEITEM item) { return there.count(item) != 0; }));
    };
    begin();
    move(group());
    EXPECT_EQ(forget(), "");
    EXPECT_EQ(drag.target(), handle(1));
    there.erase(handle(1));
    EXPECT_EQ(forget(), "");
    EXPECT_EQ(drag.target(), nullptr);
    move(below());
    EXPECT_EQ(forget(), "");
    EXPECT_EQ(drag.target(), TVI_ROOT) << "the top level is no row";
    move(closedGroup());
    there.erase(handle(2));
    EXPECT_EQ(forget(), "stop 1002");
    EXPECT_EQ(timer(1002), "") << "nothing is left to open";
    there.erase(handle(5));
    EXPECT_EQ(forget(), "end; mark none");
    EXPECT_EQ(drag.state(), State::Idle);
    EXPECT_EQ(release(), "tell");
}

} // namespace
} // namespace condtree
