#include "ControlFixture.h"

#include <condtree/values/TypedValue.h>

#include <QAbstractItemModelTester>

#include <array>
#include <limits>

namespace condtree::test {
namespace {

const std::string kEnd = "-1 <Click here to add a condition>\n";

class ConditionLoader : public ControlFixture {
protected:
    ConditionLoader() { initialize(); }
};

TEST_F(ConditionLoader, AnEmptyVectorGivesTheTopWithASinglePlaceholder)
{
    control->mvLoad({});
    EXPECT_EQ(toText(*control), "0 And\n  " + kEnd);
    EXPECT_EQ(control->mpoGetNode(TVI_ROOT)->mhItem, TVI_ROOT);
}

TEST_F(ConditionLoader, AGroupWithoutMembersHoldsOnlyItsPlaceholder)
{
    EXPECT_EQ(loaded({groupRecord()}), "1 Or\n  " + kEnd + kEnd);
}

TEST_F(ConditionLoader, AGroupDirectlyAfterAGroupIsItsSibling)
{
    EXPECT_EQ(loaded({groupRecord(), groupRecord()}), "1 Or\n  " + kEnd + "1 Or\n  " + kEnd + kEnd);
}

TEST_F(ConditionLoader, AMemberRecordBeforeAnyGroupGoesToTheTop)
{
    EXPECT_EQ(loaded({record(4, 2, "Author", "x", 1, 100)}),
              "1000 Author | x op=100 arg=1\n" + kEnd);
}

TEST_F(ConditionLoader, AMemberRecordAfterATopLevelRowGoesToTheTop)
{
    EXPECT_EQ(loaded({groupRecord(), record(4, 2, "Author", "a", 1, 100),
                      record(3, 2, "Author", "b", 1, 100), record(4, 2, "Author", "c", 1, 100)}),
              "1 Or\n  1000 Author | a op=100 arg=1\n  " + kEnd
                  + "1000 Author | b op=100 arg=1\n1000 Author | c op=100 arg=1\n" + kEnd);
}

TEST_F(ConditionLoader, AMemberRecordJoinsTheMostRecentGroup)
{
    EXPECT_EQ(loaded({groupRecord(), groupRecord(), record(4, 2, "Author", "a", 1, 100)}),
              "1 Or\n  " + kEnd + "1 Or\n  1000 Author | a op=100 arg=1\n  " + kEnd + kEnd);
}

TEST_F(ConditionLoader, AnyOtherRowKindStandsAtTheTopAndClosesTheGroup)
{
    for (const LONG kind : {3, 0, 1, 5, -4}) {
        EXPECT_EQ(loaded({groupRecord(), record(kind, 2, "Author", "a", 1, 100),
                          record(4, 2, "Author", "b", 1, 100)}),
                  "1 Or\n  " + kEnd + "1000 Author | a op=100 arg=1\n1000 Author | b op=100 arg=1\n"
                      + kEnd)
            << kind;
    }
}

TEST_F(ConditionLoader, ARecordOfAGroupReadsNothingButItsKind)
{
    TransCond group = record(2, 9, "name", "7", 4, 106, "extra");
    EXPECT_EQ(loaded({group}), "1 Or\n  " + kEnd + kEnd);
}

// The code and the first column of every type of record. Fixed kinds ignore the record's name.
TEST_F(ConditionLoader, EveryTypeBecomesItsNodeCodeAndLabel)
{
    struct Row {
        LONG type, code;
        const char* name;
    };
    constexpr std::array<Row, 14> kRows{{{1, 5, "FilePath"},
                                         {2, 1000, "own name"},
                                         {3, 7, "Revision"},
                                         {4, 3, "Category"},
                                         {5, 6, "Object Type"},
                                         {6, 11, "own name"},
                                         {7, 8, "Child Reference State"},
                                         {8, 9, "User"},
                                         {9, 10, "Group"},
                                         {10, 12, "Child Reference historic State"},
                                         {0, -1, "<Click here to add a condition>"},
                                         {11, -1, "<Click here to add a condition>"},
                                         {-1, -1, "<Click here to add a condition>"},
                                         {2000000000, -1, "<Click here to add a condition>"}}};
    for (const Row& row : kRows) {
        control->mvLoad({record(3, row.type, "own name", "", 1, 100)});
        EXPECT_EQ(topRow(0).mlCode, row.code) << row.type;
        EXPECT_EQ(topRow(0).mName.toStdString(), row.name) << row.type;
    }
}

TEST_F(ConditionLoader, LabelsAreTheStringLibrarys)
{
    translations = {{20, QStringLiteral("Pfad")},    {21, QStringLiteral("Rev.")},
                    {87, QStringLiteral("Kat.")},    {732, QStringLiteral("Objekt")},
                    {756, QStringLiteral("Status")}, {40, QStringLiteral("Wer")},
                    {180, QStringLiteral("Gruppe")}, {757, QStringLiteral("Alt")},
                    {38, QStringLiteral("Und")},     {39, QStringLiteral("Oder")},
                    {70, QStringLiteral("Hier")}};
    std::vector<TransCond> records{groupRecord()};
    for (const LONG type : {1, 3, 4, 5, 7, 8, 9, 10})
        records.push_back(record(3, type, "", "", 1, 108));
    control->mvLoad(records);
    std::string names;
    for (const VarTreeCtrlNode* row : control->mpoGetNode(TVI_ROOT)->mChildren)
        names += row->mName.toStdString() + " ";
    EXPECT_EQ(names, "Oder Pfad Rev. Kat. Objekt Status Wer Gruppe Alt Hier ");
    EXPECT_EQ(control->mpoGetNode(TVI_ROOT)->mName, QStringLiteral("Und"));
}

TEST_F(ConditionLoader, ALabelOfBlanksGivesWayToTheRecordsName)
{
    translations = {{20, QStringLiteral(" \t ")}, {21, QStringLiteral("  Rev  ")}};
    control->mvLoad({record(3, 1, " path ", "", 1, 100), record(3, 3, "x", "", 1, 100)});
    EXPECT_EQ(topRow(0).mName, QStringLiteral(" path "));
    EXPECT_EQ(topRow(1).mName, QStringLiteral("Rev"));
}

TEST_F(ConditionLoader, ExtraTypeAndOperatorAreTakenOver)
{
    EXPECT_EQ(loaded({record(3, 2, "Author", "x", 77, 1234, " extra ")}),
              "1000 Author | x |  extra  op=1234 arg=77\n" + kEnd);
}

// Yes and no, by any spelling; other texts are no.
TEST_F(ConditionLoader, AYesNoValueShowsItsLabelWhateverTheTypeOfTheRow)
{
    translations = {{58, QStringLiteral("Ja")}, {59, QStringLiteral("Nein")}};
    const std::array<std::pair<const char*, const char*>, 6> kRows{{{"Yes", "Ja"},
                                                                    {"yes", "Ja"},
                                                                    {"YES", "Ja"},
                                                                    {"No", "Nein"},
                                                                    {"", "Nein"},
                                                                    {"Yes ", "Nein"}}};
    for (const LONG type : {1, 2, 3, 4, 5, 6, 0}) {
        for (const auto& [stored, shown] : kRows) {
            control->mvLoad({record(3, type, "Approved", stored, 4, 139)});
            EXPECT_EQ(topRow(0).mValue.toStdString(), shown) << type << " " << stored;
        }
    }
}

TEST_F(ConditionLoader, AnObjectTypeShowsItsLabel)
{
    translations = {
        {733, QStringLiteral("F")}, {734, QStringLiteral("B")}, {15, QStringLiteral("I")}};
    const std::array<std::pair<const char*, const char*>, 9> kRows{{{"1", "F"},
                                                                    {"3", "B"},
                                                                    {"4", "I"},
                                                                    {"2", "F"},
                                                                    {"", "F"},
                                                                    {"x", "F"},
                                                                    {" 3", "B"},
                                                                    {"4th", "I"},
                                                                    {"-3", "F"}}};
    for (const auto& [stored, shown] : kRows) {
        control->mvLoad({record(3, 5, "", stored, 1, 100)});
        EXPECT_EQ(topRow(0).mValue.toStdString(), shown) << stored;
    }
}

TEST_F(ConditionLoader, AChildReferenceStateShowsTheStateOfItsId)
{
    for (const LONG type : {7, 10}) {
        control->mvLoad({record(3, type, "", "12", 1, 100)});
        EXPECT_EQ(topRow(0).mValue, QStringLiteral("Release.Open"));
        EXPECT_EQ(topRow(0).mlStateId, 12);
    }
}

TEST_F(ConditionLoader, ANegativeStateIdIsLookedUpAgainByItsAbsoluteValue)
{
    control->mvLoad({record(3, 7, "", "-12", 1, 100)});
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("Release.Open"));
    EXPECT_EQ(topRow(0).mlStateId, 12);
}

TEST_F(ConditionLoader, ANegativeStateIdWithANameOfItsOwnIsKept)
{
    library->states.push_back({-12, QStringLiteral("Release"), QStringLiteral("Old"), {}, 0});
    control->mvLoad({record(3, 7, "", "-12", 1, 100)});
    EXPECT_EQ(topRow(0).mValue, QStringLiteral("Release.Old"));
    EXPECT_EQ(topRow(0).mlStateId, -12);
}

TEST_F(ConditionLoader, AnUnknownStateIdGivesEmptyTextAndTheIdLookedUpLast)
{
    control->mvLoad({record(3, 7, "", "99", 1, 100), record(3, 7, "", "-99", 1, 100),
                     record(3, 7, "", "-2147483648", 1, 100), record(3, 7, "", "x", 1, 100)});
    EXPECT_EQ(rows(), "8 Child Reference State op=100 arg=1 state=99\n"
                      "8 Child Reference State op=100 arg=1 state=99\n"
                      "8 Child Reference State op=100 arg=1 state=-2147483648\n"
                      "8 Child Reference State op=100 arg=1 state=0\n"
                          + kEnd);
}

TEST_F(ConditionLoader, AChildReferenceStateWithTextCompareShowsItsTextAndHasNoState)
{
    EXPECT_EQ(loaded({record(3, 7, "", "12", 1, 108), record(3, 10, "", " %Op% ", 1, 108)}),
              "8 Child Reference State | 12 op=108 arg=1\n"
              "12 Child Reference historic State |  %Op%  op=108 arg=1\n"
                  + kEnd);
    EXPECT_EQ(library->getStates.calls, 0);
}

TEST_F(ConditionLoader, AUserShowsTheNameOfTheFirstUserWithTheId)
{
    library->users.push_back({7, QStringLiteral("other"), QStringLiteral("Other")});
    EXPECT_EQ(loaded({record(3, 8, "", "7", 1, 100)}), "9 User | smith op=100 arg=1 id=7\n" + kEnd);
}

TEST_F(ConditionLoader, AUserShowsTheSecondNameWhenTheSettingSaysSo)
{
    library->settings = {{24, QStringLiteral("1")}};
    initialize();
    EXPECT_EQ(loaded({record(3, 8, "", "7", 1, 100)}),
              "9 User | Ann Smith op=100 arg=1 id=7\n" + kEnd);
}

TEST_F(ConditionLoader, AGroupShowsItsFirstNameWhateverTheSetting)
{
    library->settings = {{24, QStringLiteral("1")}};
    library->groups = {{3, QStringLiteral("Designers"), QStringLiteral("second")}};
    initialize();
    EXPECT_EQ(loaded({record(3, 9, "", "3", 1, 101)}),
              "10 Group | Designers op=101 arg=1 id=3\n" + kEnd);
}

TEST_F(ConditionLoader, UnknownUsersAndGroupsKeepTheirIdsAndShowNothing)
{
    EXPECT_EQ(loaded({record(3, 8, "", "99", 1, 100), record(3, 9, "", "-5x", 1, 100)}),
              "9 User op=100 arg=1 id=99\n10 Group op=100 arg=1 id=-5\n" + kEnd);
}

TEST_F(ConditionLoader, AShownNameLosesAnOperatorInFrontLikeAnyValue)
{
    library->users = {{7, QStringLiteral(">=smith"), {}}};
    EXPECT_EQ(loaded({record(3, 8, "", "7", 1, 101)}), "9 User | smith op=101 arg=1 id=7\n" + kEnd);
}

TEST_F(ConditionLoader, TheOperator160IsReplacedByTheTextsAnyOtherIsKept)
{
    EXPECT_EQ(
        loaded({record(3, 2, "Due", ">=2024-01-01", 5, 160),
                record(3, 2, "Author", "%pump%", 1, 160), record(3, 2, "Weight", "  >5 ", 2, 160),
                record(3, 2, "Author", "!x", 1, 160), record(3, 2, "Author", "!=open", 1, 106),
                record(3, 2, "Author", ">x", 1, 100), record(3, 2, "Weight", ">5", 2, 125)}),
        "1000 Due | 2024-01-01 op=135 arg=5\n"
        "1000 Author | pump op=106 arg=1\n"
        "1000 Weight | 5 op=123 arg=2\n"
        "1000 Author | x arg=1\n"
        "1000 Author | open op=106 arg=1\n"
        "1000 Author | >x op=100 arg=1\n"
        "1000 Weight | 5 op=125 arg=2\n"
            + kEnd);
}

TEST_F(ConditionLoader, AReducedVaultDropsCategoriesAndChildReferenceStatesButNotUsersAndGroups)
{
    initialize(VaultTypeReduced);
    std::vector<TransCond> records;
    for (LONG type = 1; type <= 10; ++type)
        records.push_back(record(3, type, "n", "7", 1, 100));
    control->mvLoad(records);
    std::string codes;
    for (const VarTreeCtrlNode* row : control->mpoGetNode(TVI_ROOT)->mChildren)
        codes += std::to_string(row->mlCode) + " ";
    EXPECT_EQ(codes, "5 1000 7 6 11 9 10 -1 ");
}

TEST_F(ConditionLoader, ADroppedRecordDoesNotCloseTheGroupBeforeIt)
{
    initialize(VaultTypeReduced);
    EXPECT_EQ(
        loaded({groupRecord(), record(3, 4, "", "x", 1, 100), record(4, 2, "Author", "a", 1, 100)}),
        "1 Or\n  1000 Author | a op=100 arg=1\n  " + kEnd + kEnd);
}

TEST_F(ConditionLoader, AReducedVaultDropsAGroupRecordOfADroppedType)
{
    initialize(VaultTypeReduced);
    EXPECT_EQ(loaded({record(2, 4, "", "", 0, 0), record(4, 2, "Author", "a", 1, 100)}),
              "1000 Author | a op=100 arg=1\n" + kEnd);
}

TEST_F(ConditionLoader, LoadingAgainReplacesTheTree)
{
    loaded({record(3, 2, "Author", "a", 1, 100)});
    const HTREEITEM gone = topRow(0).mhItem;
    EXPECT_EQ(loaded({record(3, 2, "Title", "b", 1, 100)}), "1000 Title | b op=100 arg=1\n" + kEnd);
    EXPECT_EQ(control->mpoGetNode(gone), nullptr);
}

TEST_F(ConditionLoader, WithTheTopGivenTheRecordsAreAddedAndEveryGroupIsClosedAgain)
{
    loaded({groupRecord()});
    control->mvLoad({groupRecord(), record(3, 2, "Author", "a", 1, 100)},
                    control->mpoGetNode(TVI_ROOT));
    EXPECT_EQ(rows(), "1 Or\n  " + kEnd + "  " + kEnd + kEnd + "1 Or\n  " + kEnd
                          + "1000 Author | a op=100 arg=1\n" + kEnd);
}

TEST_F(ConditionLoader, WithAGroupGivenTheRowsStillGoToTheTopAndThePlaceholderToTheGroup)
{
    loaded({groupRecord()});
    control->mvLoad({record(3, 2, "Author", "a", 1, 100), groupRecord()}, &topRow(0));
    EXPECT_EQ(rows(),
              "1 Or\n  " + kEnd + "  " + kEnd + kEnd + "1000 Author | a op=100 arg=1\n1 Or\n");
    const QModelIndex group = control->model()->index(0, 0);
    EXPECT_TRUE(control->isExpanded(group));
}

TEST_F(ConditionLoader, WithANodeGivenAndNoTopTheTopIsMadeFirst)
{
    VarTreeCtrlNode outside(NodeOr);
    control->mvLoad({record(3, 2, "Author", "a", 1, 100)}, &outside);
    EXPECT_EQ(toText(*control), "0 And\n  1000 Author | a op=100 arg=1\n");
    EXPECT_EQ(rowsBelow(outside), kEnd);
}

TEST_F(ConditionLoader, GroupsAreClosedAfterLoading)
{
    loaded({groupRecord(), record(4, 2, "Author", "a", 1, 100)});
    EXPECT_FALSE(control->isExpanded(control->model()->index(0, 0)));
    EXPECT_EQ(control->model()->rowCount(control->model()->index(0, 0)), 2);
}

TEST_F(ConditionLoader, LoadingReportsNothingAndEmitsNoChange)
{
    int changes = 0;
    QObject::connect(control.get(), &CondTreeCtrl::conditionChanged, [&] { ++changes; });
    loaded({record(3, 2, "nobody knows", "", 99, -77), record(9, 44, "", "", 0, 0)});
    EXPECT_TRUE(messages.empty());
    EXPECT_EQ(changes, 0);
}

TEST_F(ConditionLoader, TheModelKeepsItsPromisesThroughLoads)
{
    const QAbstractItemModelTester tester(control->model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    loaded({groupRecord(), record(4, 2, "Author", "a", 1, 100), record(3, 1, "", "b", 1, 100)});
    control->mvLoad({groupRecord()}, control->mpoGetNode(TVI_ROOT));
    control->mvLoad({}, &topRow(0));
    loaded({});
    EXPECT_EQ(rows(), kEnd);
}

TEST_F(ConditionLoader, EveryGroupBelowTheGivenNodeIsClosedAgain)
{
    loaded({groupRecord()});
    control->mhAddNode(&topRow(0), new VarTreeCtrlNode(NodeOr), true);
    control->mvLoad({}, &topRow(0));
    EXPECT_EQ(rows(), "1 Or\n  1 Or\n    " + kEnd + "  " + kEnd + "  " + kEnd + kEnd);
}

TEST_F(ConditionLoader, AddingToTheTreeKeepsOpenRowsOpen)
{
    loaded({groupRecord(), groupRecord()});
    control->expand(control->model()->index(1, 0));
    control->setCurrentIndex(control->model()->index(1, 0));
    control->mvLoad({groupRecord()}, control->mpoGetNode(TVI_ROOT));
    EXPECT_FALSE(control->isExpanded(control->model()->index(0, 0)));
    EXPECT_TRUE(control->isExpanded(control->model()->index(1, 0)));
    EXPECT_EQ(control->currentIndex(), control->model()->index(1, 0));
}

TEST_F(ConditionLoader, AnyVaultTypeButOneIsAFullVault)
{
    for (const LONG vault : {0, 2, -1}) {
        initialize(static_cast<KiroVaultType>(vault));
        std::vector<TransCond> records;
        for (LONG type = 1; type <= 10; ++type)
            records.push_back(record(3, type, "Author", "12", 1, 100));
        control->mvLoad(records);
        EXPECT_EQ(control->mpoGetNode(TVI_ROOT)->mChildren.size(), 11U) << vault;
        EXPECT_EQ(savedRecords().size(), 10U) << vault;
    }
}

TEST_F(ConditionLoader, TheTreeTypeChangesNothingThatIsLoadedOrSaved)
{
    std::vector<TransCond> records;
    for (LONG type = 1; type <= 10; ++type)
        records.push_back(record(3, type, "Author", "12", 1, 100));
    std::vector<std::string> results;
    for (const LONG type : {0, 1, 7}) {
        initialize(KiroVaultType{}, static_cast<TreeType>(type));
        const std::string shown = loaded(records);
        results.push_back(shown + saved());
    }
    EXPECT_EQ(results[0], results[1]);
    EXPECT_EQ(results[0], results[2]);
}

} // namespace
} // namespace condtree::test
