#include "CloseUpFixture.h"

#include <QSignalSpy>

namespace condtree::test {
namespace {

// Groups and removing

TEST_F(CloseUp, OrTurnsARowIntoAGroupWithAPlaceholder)
{
    expect({FilePath, "p", "v", "x", 106, 1}, 1, "Or",
           "1 Or |  | x op=106 arg=1 img=2 opened\n  " + kEnd.substr(0, kEnd.size() - 1));
    expect({NodePlaceholder}, 1, "Or", "1 Or img=2 opened\n  " + kEnd.substr(0, kEnd.size() - 1));
    expect({NodeOr}, 1, "Or", "1 Or img=4", kHiddenSame);
    expect({FilePath, "p", "v", "", 106}, 0, "And",
           "5 p op=0 img=5 opened\n  " + kEnd.substr(0, kEnd.size() - 1));
}

TEST_F(CloseUp, RemoveDeletesTheRowWithItsSubtreeAndNoOther)
{
    VarTreeCtrlNode& group = filledGroup();
    add({FilePath, "other"});
    const HTREEITEM inner = group.mChildren[0]->mhItem;
    EXPECT_EQ(apply(inner, {Remove, {}, 0}), kHiddenChanged);
    EXPECT_EQ(rows(), "5 other img=5\n1 Or img=4\n  1 Or img=2\n    7 r img=5\n" + kEnd);
    EXPECT_EQ(apply(group.mhItem, {Remove, {}, 0}), kHiddenChanged);
    EXPECT_EQ(rows(), "5 other img=5\n" + kEnd);
    EXPECT_EQ(apply(TVI_ROOT, {Remove, {}, 0}), kHiddenChanged);
    EXPECT_EQ(rows(), "no top");
}

// Fixed kinds

TEST_F(CloseUp, ACategoryOrAnObjectTypeKeepsAnEqualityAndLosesTheValueOfAnotherKind)
{
    for (const LONG kind : {3, 6}) {
        const std::string k = std::to_string(kind) + " Kind";
        for (const LONG op : {-1, 102, 106, 108, 115, 120, 130, 139})
            expect({NodeVariable, "Author", "v", "x", op, 1}, kind, "Kind",
                   k + " op=100 arg=1 img=5");
        expect({NodeVariable, "Author", "v", "x", 100, 1}, kind, "Kind", k + " op=100 arg=1 img=5");
        expect({NodeVariable, "Author", "v", "x", 101, 1, 5, 6}, kind, "Kind",
               k + " op=101 arg=1 state=5 id=6 img=5");
        expect({kind, "Kind", "v", "x", 101, 1}, kind, "Kind", k + " | v op=101 arg=1 img=5");
        expect({kind, "Kind", "v", "", 101, 1, -1, -1, 2}, kind, "Kind",
               k + " | v op=101 arg=1 img=5", kHiddenSame);
        expect({9 - kind, "Kind", "v", "", 101, 1}, kind, "Kind", k + " op=101 arg=1 img=5");
        expect({NodePlaceholder}, kind, "Kind", k + " op=100 img=5");
    }
}

TEST_F(CloseUp, AFilePathKeepsTheOperatorsOnTextsAndTheValue)
{
    for (LONG op = 100; op <= 108; ++op)
        expect({NodeVariable, "Author", "v", "x", op, 1}, 5, "FilePath",
               "5 FilePath | v op=" + std::to_string(op) + " arg=1 img=5");
    for (const LONG op : {-1, 99, 109, 120, 130, 139})
        expect({User, "User", "v", "x", op}, 5, "FilePath", "5 FilePath | v op=106 img=5");
    expect({NodePlaceholder}, 5, "FilePath", "5 FilePath op=106 img=5");
    expect({FilePath, "FilePath", "v", "", 102}, 5, "FilePath", "5 FilePath | v op=102 img=5",
           kHiddenSame);
}

TEST_F(CloseUp, ARevisionKeepsTheWholeBandOfOperatorsAndLosesTheValueOfAnotherKind)
{
    for (const LONG op : {100, 108, 109, 115, 119, 120, 125, 126, 130, 135})
        expect({NodeVariable, "Author", "v", "x", op, 1}, 7, "Revision",
               "7 Revision op=" + std::to_string(op) + " arg=1 img=5");
    for (const LONG op : {-1, 99, 136, 139})
        expect({NodeVariable, "Author", "v", "x", op, 4}, 7, "Revision",
               "7 Revision op=100 arg=4 img=5");
    expect({Revision, "Revision", "v", "x", 120}, 7, "Revision", "7 Revision | v op=120 img=5");
    expect({NodePlaceholder}, 7, "Revision", "7 Revision op=100 img=5");
}

TEST_F(CloseUp, AnythingButAGroupLosesTheRowsOfTheGroupThatItWas)
{
    const struct {
        LONG code;
        const char* after;
    } cases[] = {{3, "3 Text op=100 img=5"},
                 {5, "5 Text op=106 img=5"},
                 {6, "6 Text op=100 img=5"},
                 {7, "7 Text op=100 img=5"},
                 {8, "8 Text | Release.Open op=100 state=12 img=5"},
                 {9, "9 Text | smith op=100 id=7 img=6"},
                 {10, "10 Text | Designers op=100 id=3 img=7"},
                 {11, "11 Text op=106 arg=1 img=3"},
                 {12, "12 Text | Release.Open op=100 state=12 img=5"},
                 {4, "1 Or | Text img=2"},
                 {138, "1 Or | Text object=2 img=2"},
                 {142, "1 Or | Text img=2"},
                 {101, "1 Or op=101 img=2"},
                 {139, "1 Or op=139 img=2"},
                 {1106, "1000 Text op=106 arg=1 img=3"}};
    for (const auto& [code, after] : cases) {
        EXPECT_EQ(apply(filledGroup().mhItem, {code, QStringLiteral("Text"), 7}), kHiddenChanged);
        EXPECT_EQ(rows(), after + ("\n" + kEnd)) << code;
    }
}

TEST_F(CloseUp, AChoiceInsideAGroupStaysInside)
{
    VarTreeCtrlNode& group = only({NodeOr});
    const HTREEITEM item = addTo(group, {NodePlaceholder}).mhItem;
    EXPECT_EQ(apply(item, {FilePath, QStringLiteral("FilePath"), 0}), kHiddenChanged);
    EXPECT_EQ(rows(), "1 Or img=4\n  5 FilePath op=106 img=5\n" + kChildEnd + kEnd);
}

// States of child references

TEST_F(CloseUp, AChildReferencesStateBeginsWithTheFirstState)
{
    for (const LONG kind : {8, 12}) {
        const std::string k = std::to_string(kind) + " State";
        expect({NodePlaceholder}, kind, "State", k + " | Release.Open op=100 state=12 img=5");
        expect({NodeVariable, "n", "", "x", 101}, kind, "State",
               k + " | Release.Open | x op=101 state=12 img=5");
        for (const LONG op : {-1, 99, 102, 107, 109, 120, 139})
            expect({NodeVariable, "n", "v", "x", op}, kind, "State", k + " | v | x op=100 img=5");
        expect({kind, "State", "Release.Done", "", 101, 1, 13}, kind, "State",
               k + " | Release.Done op=101 arg=1 state=13 img=5", kHiddenSame);
    }
    EXPECT_EQ(library->getStates.calls, 1);
}

TEST_F(CloseUp, AChildReferencesStateComparedAsTextNeedsNoStates)
{
    for (const LONG kind : {8, 12})
        expect({FilePath, "n", "", "x", 108}, kind, "State",
               std::to_string(kind) + " State |  | x op=108 img=5");
    EXPECT_EQ(library->getStates.calls, 0);
}

TEST_F(CloseUp, AChildReferencesStateWithoutAManagerStopsHalfWay)
{
    manager.reset(nullptr);
    expect({FilePath, "n", "", "x", 102}, 8, "State", "8 State |  | x op=100 img=5", kLeftChanged);
    expect({ChildRefState, "State", "", "", 100}, 8, "State", "8 State op=100 img=5", "left same");
    expect({ChildRefState, "State", "v", "", 100}, 101, "op", "8 State | v op=101 img=5",
           kLeftChanged);
    EXPECT_TRUE(reports.empty());
}

TEST_F(CloseUp, WithoutStatesARowKeepsTheIdThatItHas)
{
    library->getStates.results = {E_FAIL};
    expect({NodePlaceholder}, 8, "State", "8 State op=100 img=5");
    expect({ChildRefState, "State", "", "", 100, 1, 77}, 101, "op",
           "8 State op=101 arg=1 state=77 img=5");
    expect({ChildRefState, "State", "any*", "", 108, 1}, 101, "op", "8 State op=101 arg=1 img=5");
    EXPECT_TRUE(reports.empty());
}

TEST_F(CloseUp, AStateIsTakenByItsPlaceInTheTable)
{
    ASSERT_TRUE(reference->states.mbInitWorkflowStates());
    expect({ChildRefState, "State", "", "", 101}, 142, "Release.Done",
           "8 State | Release.Done op=101 state=13 img=5", kHiddenChanged, 1);
    expect({NodeHistoricState, "State", "", "", 101, 0, 13}, 142, "Release.Done",
           "12 State | Release.Done op=101 state=12 img=5", kHiddenChanged, 0);
    for (const int index : {-1, 2, 1000})
        expect({ChildRefState, "State", "v", "", 101, 0, 13}, 142, "Release.Done",
               "8 State | Release.Done op=101 img=5", kHiddenChanged, index);
    EXPECT_EQ(reference->states.inOrder().size(), 2U);
}

TEST_F(CloseUp, TheOperatorOfAChildReferencesStateDecidesWhatItsValueIs)
{
    for (const LONG kind : {8, 12}) {
        const std::string k = std::to_string(kind) + " State";
        // From a state to a text and back.
        expect({kind, "State", "Release.Done", "", 100, 1, 13}, 108, "op",
               k + " op=108 arg=1 img=5");
        expect({kind, "State", "any*", "", 108, 1}, 100, "op",
               k + " | Release.Open op=100 arg=1 state=12 img=5");
        expect({kind, "State", "any*", "", 108, 1}, 120, "op",
               k + " | Release.Open op=120 arg=1 state=12 img=5");
        // From one equality to the other.
        expect({kind, "State", "Release.Done", "", 100, 1, 13}, 101, "op",
               k + " | Release.Done op=101 arg=1 state=13 img=5");
        expect({kind, "State", "", "", 100, 1, 13}, 101, "op",
               k + " | Release.Open op=101 arg=1 state=12 img=5");
        // To the same.
        for (const LONG op : {100, 101, 108}) {
            const std::string number = std::to_string(op);
            expect({kind, "State", "v", "", op, 1, 13}, op, "op",
                   k + " | v op=" + number + " arg=1 state=13 img=5", kHiddenSame);
            expect({kind, "State", "", "", op, 1, 13}, op, "op",
                   k + " op=" + number + " arg=1 state=13 img=5", kHiddenSame);
        }
    }
    EXPECT_EQ(library->getStates.calls, 1);
}

TEST_F(CloseUp, TheOperatorOfAnotherRowLeavesValueAndStateAlone)
{
    for (const LONG kind : {3, 5, 6, 7, 9, 10, 11, 1000}) {
        const std::string text = toText(*makeNode({kind, "n", "v", "x", 108, 1, 13, 6})) + " img="
                                 + (kind == 9    ? "6"
                                    : kind == 10 ? "7"
                                    : kind > 10  ? "3"
                                                 : "5");
        expect({kind, "n", "v", "x", 100, 1, 13, 6}, 108, "op", text);
    }
    EXPECT_EQ(library->getStates.calls, 0);
}

// Users and groups

TEST_F(CloseUp, AUserRowBeginsWithTheFirstUser)
{
    expect({NodePlaceholder}, 9, "User", "9 User | smith op=100 id=7 img=6");
    expect({NodeVariable, "n", "v", "x", 101, 1, 5}, 9, "User",
           "9 User | smith op=101 arg=1 state=5 id=7 img=6");
    expect({User, "User", "jones", "x", 120, 1, -1, 8}, 9, "User",
           "9 User | smith op=100 arg=1 id=7 img=6");
    expect({User, "User", "smith", "", 100, 1, -1, 7}, 9, "User",
           "9 User | smith op=100 arg=1 id=7 img=6", kHiddenSame);
    EXPECT_EQ(library->getUsers.calls, 1);
}

TEST_F(CloseUp, AFirstUserIsShownByTheSecondNameWhereThereIsOne)
{
    showSecondNames();
    expect({NodePlaceholder}, 9, "User", "9 User | Ann Smith op=100 id=7 img=6");
}

TEST_F(CloseUp, AFirstUserWithoutASecondNameIsShownByTheFirst)
{
    showSecondNames();
    library->users.erase(library->users.begin());
    library->users.insert(library->users.begin(), {1, {}, {}, true});
    expect({NodePlaceholder}, 9, "User", "9 User | jones op=100 id=8 img=6");
}

TEST_F(CloseUp, AGroupRowBeginsWithTheFirstGroup)
{
    showSecondNames();
    library->groups[0].secondName = QStringLiteral("not shown");
    expect({NodePlaceholder}, 10, "Group", "10 Group | Designers op=100 id=3 img=7");
    expect({User, "User", "jones", "x", 101, 1, -1, 8}, 10, "Group",
           "10 Group | Designers op=101 arg=1 id=3 img=7");
    EXPECT_EQ(library->getGroups.calls, 1);
    EXPECT_EQ(library->getUsers.calls, 0);
}

TEST_F(CloseUp, WithoutUsersOrGroupsTheRowHasNoValue)
{
    library->users.clear();
    library->groups.clear();
    expect({NodePlaceholder}, 9, "User", "9 User op=100 img=6");
    expect({NodePlaceholder}, 10, "Group", "10 Group op=100 img=7");
    expect({User, "User", "smith", "", 100, 1, -1, 7}, 9, "User", "9 User op=100 arg=1 id=7 img=6");
    expect({Group, "Group", "Designers", "", 100, 1, -1, 3}, 10, "Group",
           "10 Group op=100 arg=1 id=3 img=7");
}

TEST_F(CloseUp, UsersOrGroupsThatCannotBeLoadedLeaveTheRowHalfChanged)
{
    library->getUsers.results = {E_FAIL};
    library->getGroups.results = {E_OUTOFMEMORY};
    expect({FilePath, "p", "v", "x", 106, 1, -1, 5}, 9, "User", "9 User op=100 arg=1 id=5 img=6",
           kLeftChanged);
    expect({NodePlaceholder}, 10, "Group", "10 Group op=100 img=7", kLeftChanged);
    EXPECT_EQ(reports, (std::vector<HRESULT>{E_FAIL, E_OUTOFMEMORY}));
    expect({NodePlaceholder}, 9, "User", "9 User | smith op=100 id=7 img=6");
}

TEST_F(CloseUp, WithoutAManagerOrItsObjectUsersAndGroupsStopHalfWayWithoutAMessage)
{
    library->missing = {SPID_USER_MGR};
    expect({NodePlaceholder}, 9, "User", "9 User op=100 img=6", kLeftChanged);
    manager.reset(nullptr);
    expect({NodePlaceholder}, 10, "Group", "10 Group op=100 img=7", kLeftChanged);
    EXPECT_TRUE(reports.empty());
}

TEST_F(CloseUp, AChosenUserIsFoundAgainByTheShownName)
{
    ASSERT_TRUE(reference->users.init());
    const RowBefore row{User, "User", "smith", "x", 101, 1, -1, 7};
    for (const LONG code : {2000, 2001, 2999})
        expect(row, code, "JONES", "9 User | JONES | x op=101 arg=1 id=8 img=4");
    expect(row, 2001, "nobody", "9 User | nobody | x op=101 arg=1 id=0 img=4");
    expect(row, 2001, "smith", "9 User | smith | x op=101 arg=1 id=7 img=4", kHiddenSame);
    expect({User, "User", "smith", "", 101, 1, -1, 99}, 2001, "smith",
           "9 User | smith op=101 arg=1 id=7 img=4");
    showSecondNames();
    expect(row, 2001, "Ann Smith", "9 User | Ann Smith | x op=101 arg=1 id=7 img=4");
    expect(row, 2001, "jones", "9 User | jones | x op=101 arg=1 id=0 img=4");
}

TEST_F(CloseUp, AChosenUserGroupIsFoundAgainByItsName)
{
    showSecondNames();
    const RowBefore row{Group, "Group", "", "", 101};
    expect(row, 3000, "Checkers", "10 Group | Checkers op=101 id=0 img=4");
    ASSERT_TRUE(reference->groups.init());
    for (const LONG code : {3000, 3001, std::numeric_limits<LONG>::max()})
        expect(row, code, "checkers", "10 Group | checkers op=101 id=4 img=4");
}

// Everything else

TEST_F(CloseUp, ACodeThatNoListKnowsChangesNothing)
{
    for (const LONG code : {13, 50, 99, -1, -1000, std::numeric_limits<LONG>::min()}) {
        expect({NodeVariable, "n", "v", "x", 106, 1, 5, 6, 2}, code, "Text",
               "1000 n | v | x op=106 arg=1 state=5 id=6 object=2 img=4", kHiddenSame);
        EXPECT_EQ(apply(only({NodePlaceholder}).mhItem, {code, {}, 0}), kHiddenSame);
        EXPECT_EQ(rows(), kEnd);
    }
}

TEST_F(CloseUp, ARowThatIsGoneLeavesTheListAsItIs)
{
    const HTREEITEM gone = only({FilePath}).mhItem;
    clear();
    QSignalSpy drawn(&model, &ConditionModel::textsChanged);
    for (const LONG code : {1, 2, 5, 106, 1106, 3000}) {
        EXPECT_EQ(apply(gone, {code, {}, 0}), "left same");
        EXPECT_EQ(apply(nullptr, {code, {}, 0}), "left same");
    }
    EXPECT_EQ(rows(), kEnd);
    model.setTop(nullptr);
    EXPECT_EQ(apply(TVI_ROOT, {Remove, {}, 0}), "left same");
    EXPECT_EQ(drawn.count(), 0);
}

TEST_F(CloseUp, TheRowsAreDrawnAnewOnceAChoice)
{
    QSignalSpy drawn(&model, &ConditionModel::textsChanged);
    EXPECT_EQ(apply(only({FilePath}).mhItem, {Revision, {}, 0}), kHiddenChanged);
    EXPECT_EQ(drawn.count(), 1);
    EXPECT_EQ(apply(only({FilePath}).mhItem, {99, {}, 0}), kHiddenSame);
    EXPECT_EQ(drawn.count(), 2);
    library->getUsers.results = {E_FAIL};
    EXPECT_EQ(apply(only({FilePath}).mhItem, {User, {}, 0}), kLeftChanged);
    EXPECT_EQ(drawn.count(), 3) << "what was done stays done, and is shown";
}

TEST_F(CloseUp, TheTopNodeIsARowLikeOthers)
{
    EXPECT_EQ(apply(TVI_ROOT, {FilePath, QStringLiteral("FilePath"), 0}), kHiddenChanged);
    EXPECT_EQ(toText(*model.top()), "5 FilePath op=106");
    EXPECT_TRUE(model.top()->mChildren.empty());
}

} // namespace
} // namespace condtree::test
