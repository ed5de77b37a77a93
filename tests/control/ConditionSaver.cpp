#include "ControlFixture.h"

#include <array>
#include <functional>

namespace condtree::test {
namespace {

class ConditionSaver : public ControlFixture {
protected:
    ConditionSaver() { initialize(); }

    /// Adds a row behind the top level's rows, before its placeholder is of concern: an empty tree.
    VarTreeCtrlNode& addTo(VarTreeCtrlNode* parent, LONG code, const char* name, const char* value,
                           LONG op)
    {
        auto* node = new VarTreeCtrlNode(code);
        node->mName = QString::fromUtf8(name);
        node->mValue = QString::fromUtf8(value);
        node->mlOperator = op;
        control->mhAddNode(parent, node, false);
        return *node;
    }
    VarTreeCtrlNode& add(LONG code, const char* name, const char* value, LONG op)
    {
        return addTo(control->mpoGetNode(TVI_ROOT), code, name, value, op);
    }
    void emptyTree()
    {
        control->mvDeleteNode(TVI_ROOT);
        control->mhAddNode(nullptr, new VarTreeCtrlNode(NodeAnd), false);
    }
};

TEST_F(ConditionSaver, ATreeWithOnlyThePlaceholderWritesNothing)
{
    loaded({});
    EXPECT_EQ(saved(), "");
}

TEST_F(ConditionSaver, WithoutATopNothingIsWritten)
{
    EXPECT_EQ(saved(), "");
    loaded({record(3, 2, "Author", "x", 1, 100)});
    control->mvDeleteNode(TVI_ROOT);
    EXPECT_EQ(saved(), "");
}

TEST_F(ConditionSaver, AGroupWithOnlyItsPlaceholderWritesJustItsRecord)
{
    loaded({groupRecord()});
    EXPECT_EQ(saved(), "0: kind 2 type 0 '' '' '' arg 0 op 0\n");
}

TEST_F(ConditionSaver, AGroupIsFollowedByItsRowsAndTheTopLevelGoesOn)
{
    loaded({record(3, 2, "Author", "a", 1, 106), groupRecord(), record(4, 1, "", "b", 1, 100, "x"),
            record(4, 2, "Title", "c", 1, 100), record(3, 3, "", "d", 1, 101)});
    EXPECT_EQ(saved(), "0: kind 3 type 2 'Author' '' 'a' arg 1 op 106\n"
                       "1: kind 2 type 0 '' '' '' arg 0 op 0\n"
                       "2: kind 4 type 1 'FilePath' 'x' 'b' arg 1 op 100\n"
                       "3: kind 4 type 2 'Title' '' 'c' arg 1 op 100\n"
                       "4: kind 3 type 3 'Revision' '' 'd' arg 1 op 101\n");
}

TEST_F(ConditionSaver, SavingOnlyAppendsAndTheIndexCountsWhatIsThere)
{
    loaded({record(3, 2, "Author", "a", 1, 100)});
    std::vector<TransCond> records(3);
    records[1].oName = QStringLiteral("host's");
    records[1].lIndex = 77;
    control->mvSave(records);
    control->mvSave(records);
    EXPECT_EQ(test::toText(records), "0: kind 0 type 0 '' '' '' arg 0 op 0\n"
                                     "77: kind 0 type 0 'host's' '' '' arg 0 op 0\n"
                                     "0: kind 0 type 0 '' '' '' arg 0 op 0\n"
                                     "3: kind 3 type 2 'Author' '' 'a' arg 1 op 100\n"
                                     "4: kind 3 type 2 'Author' '' 'a' arg 1 op 100\n");
}

TEST_F(ConditionSaver, TheHostsTagIsZero)
{
    TransCond tagged = record(3, 2, "Author", "a", 1, 100);
    tagged.lHostTag = 5;
    tagged.lIndex = 9;
    loaded({tagged, groupRecord()});
    for (const TransCond& saved : savedRecords())
        EXPECT_EQ(saved.lHostTag, 0);
}

TEST_F(ConditionSaver, AnUntouchedPlaceholderEndsItsLevelAtOnce)
{
    emptyTree();
    add(NodeVariable, "Author", "a", 100);
    VarTreeCtrlNode& group = add(NodeOr, "", "", -1);
    addTo(&group, NodePlaceholder, "", "", -1);
    addTo(&group, NodeVariable, "Author", "behind", 100);
    add(NodeVariable, "Author", "b", 100);
    add(NodePlaceholder, "", "", -1);
    add(NodeVariable, "Author", "behind", 100);
    add(NodeOr, "", "", -1);
    EXPECT_EQ(saved(), "0: kind 3 type 2 'Author' '' 'a' arg 1 op 100\n"
                       "1: kind 2 type 0 '' '' '' arg 0 op 0\n"
                       "2: kind 3 type 2 'Author' '' 'b' arg 1 op 100\n");
}

TEST_F(ConditionSaver, APlaceholderWithAnOperatorIsARowWithoutAType)
{
    emptyTree();
    add(NodePlaceholder, "", "v", 106).mExtra = QStringLiteral("e");
    EXPECT_EQ(saved(), "0: kind 3 type 0 'n/a' 'e' 'v' arg 1 op 106\n");
}

// Every code, also those that loading never makes: the type and the name that it is saved with.
TEST_F(ConditionSaver, EveryCodeIsSavedAsItsType)
{
    const auto expectType = [&](LONG code, LONG type) {
        emptyTree();
        add(code, "own", "", 100);
        const std::vector<TransCond> records = savedRecords();
        ASSERT_EQ(records.size(), 1U) << code;
        EXPECT_EQ(records[0].lCondType, type) << code;
        EXPECT_EQ(records[0].oName.str(), type == 0 ? QStringLiteral("n/a") : QStringLiteral("own"))
            << code;
    };
    const std::array<std::pair<LONG, LONG>, 11> kFixed{{{3, 4},
                                                        {4, 4},
                                                        {5, 1},
                                                        {6, 5},
                                                        {7, 3},
                                                        {8, 7},
                                                        {9, 8},
                                                        {10, 9},
                                                        {11, 6},
                                                        {12, 10},
                                                        {1000, 2}}};
    for (const auto& [code, type] : kFixed)
        expectType(code, type);
    for (const auto& [first, last] : {std::pair{100, 107}, {120, 125}, {130, 135}}) {
        for (LONG code = first; code <= last; ++code)
            expectType(code, 2);
    }
    for (const LONG code : {2, 13, 99, 108, 119, 126, 129, 136, 139, 142, 999, 1001, -2})
        expectType(code, 0);
}

TEST_F(ConditionSaver, ARowOfATopNodeWithCodeZeroIsARowToo)
{
    emptyTree();
    add(NodeAnd, "", "", 100);
    EXPECT_EQ(saved(), "0: kind 3 type 0 'n/a' '' '' arg 1 op 100\n");
}

TEST_F(ConditionSaver, AVariablesOwnTypeIsWrittenWhateverTheRowWasLoadedWith)
{
    loaded({record(3, 2, "Author", "x", 5, 101), record(3, 2, "weight", "1", 1, 101),
            record(3, 2, "COST", "1", 1, 101), record(3, 2, "Approved", "Yes", 1, 101),
            record(3, 2, "Due", "1", 1, 101)});
    std::string types;
    for (const TransCond& saved : savedRecords())
        types += std::to_string(saved.lArgType);
    EXPECT_EQ(types, "12345");
}

TEST_F(ConditionSaver, AnyOtherVariableTypeIsWrittenAsZero)
{
    library->variables = {{1, 0, QStringLiteral("a")},
                          {2, 6, QStringLiteral("b")},
                          {3, -1, QStringLiteral("c")},
                          {4, 77, QStringLiteral("d")},
                          {5, VarText, QStringLiteral("Text")}};
    loaded({record(3, 2, "a", "x", 1, 100), record(3, 2, "b", "x", 1, 100),
            record(3, 2, "c", "x", 1, 100), record(3, 2, "d", "x", 1, 100)});
    for (const TransCond& saved : savedRecords())
        EXPECT_EQ(saved.lArgType, 0) << saved.oName.str().toStdString();
}

TEST_F(ConditionSaver, TheFirstVariableOfANameWins)
{
    library->variables = {{1, VarDate, QStringLiteral("Twice")},
                          {2, VarText, QStringLiteral("twice")}};
    loaded({record(3, 2, "TWICE", "x", 1, 100)});
    EXPECT_EQ(savedRecords()[0].lArgType, VarDate);
}

TEST_F(ConditionSaver, AnUnknownVariableTakesTheTypeOfTheLastOne)
{
    library->variables.push_back({9, VarDate, QStringLiteral("Last")});
    loaded({record(3, 2, "nobody knows", "x", 1, 100), record(3, 6, "nor this", "x", 1, 100)});
    for (const TransCond& saved : savedRecords())
        EXPECT_EQ(saved.lArgType, VarDate);
}

TEST_F(ConditionSaver, WithoutVariablesTheTypeIsZero)
{
    library->variables.clear();
    loaded({record(3, 2, "Author", "x", 1, 100)});
    EXPECT_EQ(saved(), "0: kind 3 type 2 'Author' '' 'x' arg 0 op 100\n");
}

TEST_F(ConditionSaver, FixedKindsAreTextAndAskForNoVariable)
{
    std::vector<TransCond> records;
    for (const LONG type : {1, 3, 4, 5, 7, 8, 9, 10})
        records.push_back(record(3, type, "", "x", 5, 100));
    loaded(records);
    for (const TransCond& saved : savedRecords())
        EXPECT_EQ(saved.lArgType, ArgText) << saved.lCondType;
    EXPECT_EQ(library->getVariables.calls, 0);
}

TEST_F(ConditionSaver, AYesNoVariableIsYesOnlyWhenItShowsTheLabelExactly)
{
    translations = {{58, QStringLiteral("Ja")}};
    loaded({record(3, 2, "Approved", "yes", 4, 139), record(3, 2, "Approved", "no", 4, 139)});
    EXPECT_EQ(savedRecords()[0].oValue.str(), QStringLiteral("Yes"));
    EXPECT_EQ(savedRecords()[1].oValue.str(), QStringLiteral("No"));
    for (const char* other : {"ja", "JA", "Ja ", "Yes", ""}) {
        topRow(0).mValue = QString::fromUtf8(other);
        EXPECT_EQ(savedRecords()[0].oValue.str(), QStringLiteral("No")) << other;
    }
}

TEST_F(ConditionSaver, AnObjectTypeIsSavedByItsLabel)
{
    translations = {{734, QStringLiteral("Stückliste")}};
    loaded({record(3, 5, "", "3", 1, 100)});
    const std::array<std::pair<const char*, const char*>, 6> kRows{{{"Stückliste", "3"},
                                                                    {"Item", "4"},
                                                                    {"File", "1"},
                                                                    {"BOM", "1"},
                                                                    {"item", "1"},
                                                                    {"", "1"}}};
    for (const auto& [shown, stored] : kRows) {
        topRow(0).mValue = QString::fromUtf8(shown);
        EXPECT_EQ(savedRecords()[0].oValue.str().toStdString(), stored) << shown;
    }
}

TEST_F(ConditionSaver, TheObjectTypeLastPickedIsNeverSaved)
{
    loaded({record(3, 5, "", "3", 1, 100)});
    topRow(0).mlObjectType = 0;
    EXPECT_EQ(savedRecords()[0].oValue.str(), QStringLiteral("3"));
}

TEST_F(ConditionSaver, AChildReferenceStateIsSavedByItsIdOrAsTextWithTextCompare)
{
    loaded({record(3, 7, "", "-12", 1, 100), record(3, 10, "", "13", 1, 101),
            record(3, 7, "", "%Op_", 1, 108), record(3, 10, "", "99", 1, 108)});
    EXPECT_EQ(saved(), "0: kind 3 type 7 'Child Reference State' '' '12' arg 1 op 100\n"
                       "1: kind 3 type 10 'Child Reference historic State' '' '13' arg 1 op 101\n"
                       "2: kind 3 type 7 'Child Reference State' '' '%Op_' arg 1 op 108\n"
                       "3: kind 3 type 10 'Child Reference historic State' '' '99' arg 1 op 108\n");
    topRow(0).mlStateId = -1;
    EXPECT_EQ(savedRecords()[0].oValue.str(), QStringLiteral("-1"));
}

TEST_F(ConditionSaver, UsersAndGroupsAreSavedByTheirIds)
{
    loaded({record(3, 8, "", "7", 1, 100), record(3, 9, "", "-3", 1, 101)});
    topRow(0).mValue = QStringLiteral("someone else");
    EXPECT_EQ(saved(), "0: kind 3 type 8 'User' '' '7' arg 1 op 100\n"
                       "1: kind 3 type 9 'Group' '' '-3' arg 1 op 101\n");
}

TEST_F(ConditionSaver, AReducedVaultWritesNoCategoryStateUserOrGroup)
{
    std::vector<TransCond> records{groupRecord()};
    for (LONG type = 1; type <= 10; ++type)
        records.push_back(record(4, type, "n", "7", 1, 100));
    loaded(records);
    control->mvInitialize(library.get(), 120, VaultTypeReduced, TreeType{});
    std::string types;
    for (const TransCond& saved : savedRecords())
        types += std::to_string(saved.lCondType) + " ";
    EXPECT_EQ(types, "0 1 2 3 5 6 ");
}

TEST_F(ConditionSaver, AGivenNodeWritesItsOwnRows)
{
    loaded(
        {record(3, 2, "Author", "a", 1, 100), groupRecord(), record(4, 2, "Title", "b", 1, 100)});
    std::vector<TransCond> records;
    control->mvSave(records, &topRow(1));
    EXPECT_EQ(test::toText(records), "0: kind 4 type 2 'Title' '' 'b' arg 1 op 100\n");
    records.clear();
    control->mvSave(records, &topRow(0));
    EXPECT_TRUE(records.empty());
}

TEST_F(ConditionSaver, ARowInsideAnyOtherRowIsAMember)
{
    loaded({record(3, 2, "Author", "a", 1, 100)});
    addTo(&topRow(0), NodeVariable, "Title", "b", 100);
    std::vector<TransCond> records;
    control->mvSave(records, &topRow(0));
    EXPECT_EQ(test::toText(records), "0: kind 4 type 2 'Title' '' 'b' arg 1 op 100\n");
    EXPECT_EQ(saved(), "0: kind 3 type 2 'Author' '' 'a' arg 1 op 100\n");
}

TEST_F(ConditionSaver, AlteringArgumentsPutsTheOperatorIntoTheValueAndTheNode)
{
    loaded({record(3, 2, "Author", "a", 1, 106), record(3, 1, "", "p", 1, 107),
            record(3, 4, "", "c", 1, 101), record(3, 2, "Due", "d", 5, 135),
            record(3, 2, "Author", "e", 1, 100), record(3, 8, "", "7", 1, 101)});
    std::string values;
    for (const TransCond& saved : savedRecords(true))
        values += saved.oValue.str().toStdString() + " ";
    EXPECT_EQ(values, "%a% !=%p% !=c >=d e 7 ");
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("%a%"));
    EXPECT_EQ(topRow(5).mValue, QStringLiteral("!=smith"));
    EXPECT_EQ(savedRecords(true)[0].oValue.str(), QStringLiteral("%%a%%"));
}

TEST_F(ConditionSaver, AlteringArgumentsLeavesObjectTypesAndChildReferenceStatesAlone)
{
    loaded({record(3, 5, "", "3", 1, 101), record(3, 7, "", "12", 1, 101),
            record(3, 10, "", "x", 1, 108), record(3, 10, "", "13", 1, 101)});
    EXPECT_EQ(savedRecords(true)[0].oValue.str(), QStringLiteral("3"));
    EXPECT_EQ(topRow(3).mValue, QStringLiteral("Release.Done"));
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("BOM"));
    EXPECT_EQ(topRow(1).mValue, QStringLiteral("Release.Open"));
    EXPECT_EQ(savedRecords(true)[2].oValue.str(), QStringLiteral("x"));
}

TEST_F(ConditionSaver, AlteringArgumentsReachesTheRowsOfGroups)
{
    loaded({groupRecord(), record(4, 2, "Author", "a", 1, 106)});
    EXPECT_EQ(savedRecords(true)[1].oValue.str(), QStringLiteral("%a%"));
}

TEST_F(ConditionSaver, WithoutAlteringArgumentsTheNodesStayAsTheyAre)
{
    loaded({record(3, 2, "Author", "a", 1, 106)});
    const std::string before = rows();
    EXPECT_EQ(savedRecords()[0].oValue.str(), QStringLiteral("a"));
    EXPECT_EQ(rows(), before);
}

TEST_F(ConditionSaver, NothingIsValidated)
{
    emptyTree();
    add(NodeVariable, "", "", -1);
    EXPECT_EQ(saved(), "0: kind 3 type 2 '' '' '' arg 1 op -1\n");
}

TEST_F(ConditionSaver, AFailureToLoadTheVariablesIsShownARowAndSavingGoesOn)
{
    loaded({record(3, 2, "Author", "a", 1, 100), record(3, 1, "", "p", 1, 100),
            record(3, 2, "Due", "b", 5, 100), record(3, 2, "Due", "c", 5, 100)});
    library->getVariables.results = {E_FAIL, E_FAIL};
    EXPECT_EQ(saved(), "0: kind 3 type 2 'Author' '' 'a' arg 0 op 100\n"
                       "1: kind 3 type 1 'FilePath' '' 'p' arg 1 op 100\n"
                       "2: kind 3 type 2 'Due' '' 'b' arg 0 op 100\n"
                       "3: kind 3 type 2 'Due' '' 'c' arg 5 op 100\n");
    EXPECT_EQ(messages, std::vector<QString>(2, QStringLiteral("An unspecified error occurred.")));
    EXPECT_EQ(messageOwners, std::vector<QWidget*>(2, control.get()));
    EXPECT_EQ(messageTypes, std::vector<unsigned>(2, 0));
    EXPECT_EQ(library->getVariables.calls, 3);
    EXPECT_EQ(savedRecords().size(), 4U);
    EXPECT_EQ(library->getVariables.calls, 3);
    EXPECT_EQ(messages.size(), 2U);
}

TEST_F(ConditionSaver, AfterAFailureTheListServesAsItStands)
{
    loaded({record(3, 2, "weight", "a", 2, 120), record(3, 2, "Due", "b", 5, 130)});
    library->getVariables.results = {E_FAIL, E_FAIL};
    library->getVariables.recordsBeforeFailure = 2;
    const std::vector<TransCond> records = savedRecords();
    EXPECT_EQ(records[0].lArgType, VarNumberA);
    EXPECT_EQ(records[1].lArgType, VarNumberA); // unknown as yet: the last one of the list
    EXPECT_EQ(messages.size(), 2U);
}

TEST_F(ConditionSaver, WithoutAManagerOrItsProcedureTheListStaysEmptyWithoutAMessage)
{
    library->missing = {SPID_VARIABLE_DEFINITION};
    loaded({record(3, 2, "Author", "a", 1, 100)});
    EXPECT_EQ(savedRecords()[0].lArgType, 0);
    control->mvInitialize(nullptr, 120, KiroVaultType{}, TreeType{});
    EXPECT_EQ(savedRecords()[0].lArgType, 0);
    EXPECT_TRUE(messages.empty());
}

// What the host does while a message is open: the save ends where it is.

TEST_F(ConditionSaver, ATreeThatTheHostChangesDuringAMessageEndsTheSave)
{
    const std::vector<std::function<void()>> hosts{
        [this] { control->mvDeleteNode(TVI_ROOT); },
        [this] { control->mvDeleteNode(topRow(1).mhItem); },
        [this] { control->mvLoad({record(3, 1, "", "new", 1, 100)}); },
    };
    for (const auto& host : hosts) {
        loaded({record(3, 1, "", "first", 1, 100), groupRecord(),
                record(4, 2, "Author", "a", 1, 100), record(3, 1, "", "last", 1, 100)});
        messages.clear();
        library->getVariables.results = {E_FAIL, E_FAIL};
        duringMessage = host;
        EXPECT_EQ(saved(), "0: kind 3 type 1 'FilePath' '' 'first' arg 1 op 100\n"
                           "1: kind 2 type 0 '' '' '' arg 0 op 0\n");
        EXPECT_EQ(messages.size(), 1U);
    }
}

TEST_F(ConditionSaver, ASaveDuringAMessageDisturbsNothing)
{
    loaded({record(3, 2, "Author", "a", 1, 100)});
    library->getVariables.results = {E_FAIL};
    std::string inner;
    duringMessage = [&] { inner = saved(); };
    EXPECT_EQ(saved(), "0: kind 3 type 2 'Author' '' 'a' arg 1 op 100\n");
    EXPECT_EQ(inner, "0: kind 3 type 2 'Author' '' 'a' arg 1 op 100\n");
}

TEST_F(ConditionSaver, TheControlMayBeDeletedDuringAMessage)
{
    loaded({record(3, 2, "Author", "a", 1, 100), record(3, 2, "Author", "b", 1, 100)});
    library->getVariables.results = {E_FAIL, E_FAIL};
    duringMessage = [this] { control.reset(); };
    std::vector<TransCond> records;
    control->mvSave(records, nullptr, true);
    EXPECT_EQ(control, nullptr);
    EXPECT_TRUE(records.empty());
    EXPECT_EQ(messages.size(), 1U);
}

TEST_F(ConditionSaver, SavingEmitsNoChange)
{
    int changes = 0;
    QObject::connect(control.get(), &CondTreeCtrl::conditionChanged, [&] { ++changes; });
    loaded({record(3, 2, "Author", "a", 1, 106)});
    EXPECT_EQ(savedRecords(true).size(), 1U);
    EXPECT_EQ(changes, 0);
}

} // namespace
} // namespace condtree::test
