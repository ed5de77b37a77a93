// What the host may do while a choice is applied: every call that goes out lets it in.
#include "EditedRows.h"

namespace condtree::test {
namespace {

/// A call that goes out.
enum class Call { Variables, States, Users, Groups, Report, Clock, Text, RowAdded, Opened };

/// A choice that makes it, the nth time that matters.
struct Way {
    const char* name;
    RowBefore row;
    LONG code;
    const char* text;
    Call call;
    int nth = 1;
};

void PrintTo(const Way& way, std::ostream* out)
{
    *out << way.name;
}

const std::vector<Way>& ways()
{
    static const std::vector<Way> all{
        {"a variable", {FilePath, "p"}, 1106, "Author", Call::Variables},
        {"a variable that fails", {FilePath, "p"}, 1106, "Author", Call::Report},
        {"its operator", {FilePath, "p"}, 1106, "Author", Call::Report, 2},
        {"another name", {FilePath, "p"}, 11, "Author", Call::Variables},
        {"another name that fails", {FilePath, "p"}, 11, "Author", Call::Report},
        {"another name's operator", {FilePath, "p"}, 11, "Author", Call::Report, 2},
        {"a state", {NodePlaceholder}, 8, "State", Call::States},
        {"a past state", {FilePath, "", "", "", 101}, 12, "State", Call::States},
        {"a state's operator", {ChildRefState, "", "a*", "", 108}, 100, "op", Call::States},
        {"a user", {FilePath, "p"}, 9, "User", Call::Users},
        {"users that fail", {FilePath, "p"}, 9, "User", Call::Report},
        {"a group", {NodePlaceholder}, 10, "Group", Call::Groups},
        {"groups that fail", {NodePlaceholder}, 10, "Group", Call::Report},
        {"a date variable", {FilePath, "", "", "", 120}, 1130, "Due", Call::Clock},
        {"a date operator", {NodeVariable, "Due", "", "", 106, 5}, 130, "op", Call::Clock},
        {"a placeholder's text", {NodePlaceholder}, 5, "FilePath", Call::Text},
        {"a group's text", {FilePath, "p"}, 1, "Or", Call::Text},
        {"a group's placeholder", {FilePath, "p"}, 1, "Or", Call::Text, 2},
        {"a placeholder behind", {NodePlaceholder}, 3, "Category", Call::RowAdded},
        {"a placeholder inside", {FilePath, "p"}, 1, "Or", Call::RowAdded},
        {"a group that opens", {FilePath, "p"}, 1, "Or", Call::Opened},
    };
    return all;
}

class CloseUpReentrancy : public EditedRows {
protected:
    using Host = std::function<void(HTREEITEM clicked)>;

    /// The tree after a choice during which the host did something, once.
    std::string after(const Way& way, const Host& host)
    {
        const HTREEITEM item = only(way.row).mhItem;
        int calls = 0;
        const auto letIn = [&] {
            if (++calls == way.nth)
                host(item);
        };
        QObject told;
        listen(way.call, letIn, told);
        end = choose(item, {way.code, QString::fromUtf8(way.text), 0});
        EXPECT_GE(calls, way.nth) << way.name << ": the host was not let in";
        listen(way.call, nullptr, told);
        return rows();
    }
    [[nodiscard]] static bool isLeft(const Way& way)
    {
        return way.call == Call::Report && way.code < 11;
    }

    CloseUpResult end;

private:
    void listen(Call call, const std::function<void()>& letIn, QObject& told)
    {
        library->getVariables.during = call == Call::Variables ? letIn : nullptr;
        library->getStates.during = call == Call::States ? letIn : nullptr;
        library->getUsers.during = call == Call::Users ? letIn : nullptr;
        library->getGroups.during = call == Call::Groups ? letIn : nullptr;
        duringReport = call == Call::Report ? letIn : nullptr;
        duringClock = call == Call::Clock ? letIn : nullptr;
        duringExpand = call == Call::Opened ? letIn : nullptr;
        duringString = nullptr;
        if (call == Call::Text && letIn)
            duringString = [letIn](LONG) { letIn(); };
        if (call == Call::RowAdded && letIn)
            QObject::connect(&model, &QAbstractItemModel::rowsInserted, &told, letIn);
        if (call == Call::Report)
            failEverything();
    }
    void failEverything()
    {
        for (auto* operation : {&library->getVariables, &library->getUsers, &library->getGroups})
            operation->results.assign(5, E_FAIL);
    }
};

/// One way a test, so that nothing is loaded before it.
class CloseUpWay : public CloseUpReentrancy, public testing::WithParamInterface<Way> {};

TEST_P(CloseUpWay, ARowThatTheHostDeletesIsNotTouchedAnyMore)
{
    EXPECT_EQ(after(GetParam(), [this](HTREEITEM clicked) { tree.remove(clicked); }), kEnd);
    EXPECT_EQ(end.end == CloseUpEnd::LeaveCombo, isLeft(GetParam()));
    EXPECT_FALSE(end.isChanged) << "the host knows what it did itself";
}

TEST_P(CloseUpWay, ATreeThatTheHostClearsStaysClear)
{
    EXPECT_EQ(after(GetParam(), [this](HTREEITEM) { tree.remove(TVI_ROOT); }), "no top");
    EXPECT_EQ(end.end == CloseUpEnd::LeaveCombo, isLeft(GetParam()));
    EXPECT_FALSE(end.isChanged);
}

TEST_P(CloseUpWay, AnotherConditionThatTheHostLoadsStaysAsItIs)
{
    const auto load = [this](HTREEITEM) {
        clear();
        add({NodeVariable, "other", "v"});
    };
    EXPECT_EQ(after(GetParam(), load), "1000 other | v img=3\n" + kEnd);
    EXPECT_EQ(end.end == CloseUpEnd::LeaveCombo, isLeft(GetParam()));
    EXPECT_FALSE(end.isChanged);
}

TEST_P(CloseUpWay, ARowThatTheHostAddsDoesNotStopTheChoice)
{
    const auto alone = after(GetParam(), [](HTREEITEM) {});
    reference = makeReference();
    const auto addRow = [this](HTREEITEM) { add({NodeVariable, "other", "v"}); };
    EXPECT_EQ(after(GetParam(), addRow), "1000 other | v img=3\n" + alone);
    EXPECT_EQ(end.end == CloseUpEnd::LeaveCombo, isLeft(GetParam()));
    EXPECT_TRUE(end.isChanged);
}

INSTANTIATE_TEST_SUITE_P(Ways, CloseUpWay, testing::ValuesIn(ways()), [](const auto& way) {
    std::string name = way.param.name;
    std::erase_if(name, [](char c) { return c == '\''; });
    std::ranges::replace(name, ' ', '_');
    return name;
});

TEST_F(CloseUpReentrancy, ARowThatIsRemovedByChoiceAndByTheHostIsRemovedOnce)
{
    VarTreeCtrlNode& row = only({FilePath, "p"});
    add({Revision, "r"});
    QObject host;
    const HTREEITEM item = row.mhItem;
    QObject::connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, &host,
                     [&] { EXPECT_EQ(tree.node(item), &row); });
    QObject::connect(&model, &QAbstractItemModel::rowsRemoved, &host, [&] { tree.remove(item); });
    EXPECT_EQ(choose(item, {Remove, {}, 0}), (CloseUpResult{CloseUpEnd::HideCombo, true}));
    EXPECT_EQ(rows(), "7 r img=5\n" + kEnd);
}

} // namespace
} // namespace condtree::test
