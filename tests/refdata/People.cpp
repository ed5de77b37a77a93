#include <condtree/refdata/People.h>

#include "support/FakeLibrary.h"

#include <gtest/gtest.h>

#include <memory>

namespace condtree {
namespace {

using test::FakeLibrary;
using test::FakeLibraryHolder;

/// What users and groups have in common, once for each.
class PeopleTest : public testing::TestWithParam<People::Kind> {
protected:
    PeopleTest() { m_manager.reset(m_library.get()); }

    std::vector<FakeLibrary::Person>& contents()
    {
        return GetParam() == People::Kind::Users ? m_library->users : m_library->groups;
    }
    FakeLibrary::Operation& operation()
    {
        return GetParam() == People::Kind::Users ? m_library->getUsers : m_library->getGroups;
    }
    FakeLibrary::Operation& otherOperation()
    {
        return GetParam() == People::Kind::Users ? m_library->getGroups : m_library->getUsers;
    }
    [[nodiscard]] std::vector<LONG> listed() const
    {
        std::vector<LONG> ids;
        for (POSITION position = m_people.list().GetHeadPosition(); position != nullptr;) {
            const SpuLightData* person = m_people.list().GetNext(position);
            ids.push_back(person == nullptr ? -1 : person->mlId);
        }
        return ids;
    }
    [[nodiscard]] LONG idOf(const char16_t* name) const
    {
        return m_people.idOf(QString::fromUtf16(name), ShownName::First);
    }
    CString nameOf(LONG id) { return m_people.nameOf(id, ShownName::First); }

    FakeLibraryHolder m_library;
    ManagerRef m_manager;
    std::vector<HRESULT> m_reported;
    People m_people{GetParam(), m_manager,
                    [this](HRESULT result) { m_reported.push_back(result); }};
};

INSTANTIATE_TEST_SUITE_P(Both, PeopleTest,
                         testing::Values(People::Kind::Users, People::Kind::Groups),
                         [](const auto& row) {
                             return row.param == People::Kind::Users ? "Users" : "Groups";
                         });

const FakeLibrary::Person kAnn{11, QStringLiteral("Ann"), QStringLiteral("Ann Archer")};
const FakeLibrary::Person kBob{12, QStringLiteral("Bob"), QStringLiteral("Bob Baker")};

TEST_P(PeopleTest, LoadingKeepsTheOrderOfTheLibrary)
{
    contents() = {kBob, kAnn};
    EXPECT_TRUE(m_people.init());
    EXPECT_EQ(listed(), (std::vector<LONG>{12, 11}));
    EXPECT_EQ(otherOperation().calls, 0);
    EXPECT_EQ(m_library->procRequests[SPID_USER_MGR], 1);
}

TEST_P(PeopleTest, LoadingTwiceAfterASuccessCallsTheLibraryOnce)
{
    EXPECT_TRUE(m_people.init());
    EXPECT_TRUE(m_people.init());
    EXPECT_EQ(operation().calls, 1);
}

TEST_P(PeopleTest, WithoutAManagerLoadingFailsSilently)
{
    m_manager.reset(nullptr);
    EXPECT_FALSE(m_people.init());
    EXPECT_TRUE(m_reported.empty());
}

TEST_P(PeopleTest, WithoutTheProcedureObjectLoadingFailsSilentlyAndLeavesTheListAlone)
{
    contents() = {kAnn};
    operation().results = {E_FAIL};
    operation().recordsBeforeFailure = 1;
    EXPECT_FALSE(m_people.init());
    m_library->missing = {SPID_USER_MGR};
    EXPECT_FALSE(m_people.init());
    EXPECT_EQ(m_reported.size(), 1U);
    EXPECT_EQ(listed(), (std::vector<LONG>{11}));
    EXPECT_EQ(idOf(u"Ann"), 11);
    m_library->missing.clear();
    EXPECT_TRUE(m_people.init());
}

TEST_P(PeopleTest, EveryFailureIsReportedUntilACallSucceeds)
{
    operation().results = {E_FAIL, E_UNEXPECTED};
    EXPECT_FALSE(m_people.init());
    EXPECT_EQ(m_reported, (std::vector<HRESULT>{E_FAIL}));
    EXPECT_FALSE(m_people.init());
    EXPECT_EQ(m_reported, (std::vector<HRESULT>{E_FAIL, E_UNEXPECTED}));
    EXPECT_TRUE(m_people.init());
    EXPECT_TRUE(m_people.init());
    EXPECT_EQ(m_reported.size(), 2U);
    EXPECT_EQ(operation().calls, 3);
}

TEST_P(PeopleTest, AResultThatIsNotNegativeIsASuccess)
{
    operation().results = {S_FALSE};
    EXPECT_TRUE(m_people.init());
    EXPECT_TRUE(m_reported.empty());
}

TEST_P(PeopleTest, TheListIsEmptiedBeforeEachTry)
{
    contents() = {kAnn, kBob};
    operation().results = {E_FAIL, E_FAIL};
    operation().recordsBeforeFailure = 1;
    EXPECT_FALSE(m_people.init());
    EXPECT_EQ(listed(), (std::vector<LONG>{11}));
    EXPECT_FALSE(m_people.init());
    EXPECT_EQ(listed(), (std::vector<LONG>{11}));
    EXPECT_TRUE(m_people.init());
    EXPECT_EQ(listed(), (std::vector<LONG>{11, 12}));
}

TEST_P(PeopleTest, RecordsOfAnEarlierTryStayValidToTheEnd)
{
    contents() = {kAnn};
    operation().results = {E_FAIL};
    operation().recordsBeforeFailure = 1;
    EXPECT_FALSE(m_people.init());
    POSITION head = m_people.list().GetHeadPosition();
    const SpuLightData* early = m_people.list().GetNext(head);
    EXPECT_TRUE(m_people.init());
    EXPECT_EQ(early->mlId, 11);
}

TEST_P(PeopleTest, TheIndexesAreThoseOfTheLastTry)
{
    contents() = {kAnn};
    operation().results = {E_FAIL, E_FAIL};
    operation().recordsBeforeFailure = 1;
    EXPECT_FALSE(m_people.init());
    EXPECT_EQ(idOf(u"Ann"), 11);
    contents() = {kBob};
    EXPECT_FALSE(m_people.init());
    EXPECT_EQ(idOf(u"Ann"), 0);
    EXPECT_EQ(idOf(u"Bob"), 12);
    EXPECT_TRUE(m_people.init());
    EXPECT_EQ(nameOf(11), QString());
    EXPECT_EQ(nameOf(12), QStringLiteral("Bob"));
}

TEST_P(PeopleTest, TheReportMayEndTheList)
{
    int reports = 0;
    std::unique_ptr<People> people;
    people = std::make_unique<People>(GetParam(), m_manager, [&](HRESULT) {
        people.reset();
        ++reports;
    });
    operation().results = {E_FAIL};
    EXPECT_EQ(people->nameOf(11, ShownName::First), QString());
    EXPECT_EQ(reports, 1);
}

TEST_P(PeopleTest, ALoadThatRunsOutOfMemoryIsTriedAgain)
{
    contents() = {kAnn, kBob};
    operation().callsOutOfMemory = 1;
    operation().recordsBeforeFailure = 1;
    EXPECT_THROW(m_people.init(), _com_error);
    EXPECT_EQ(idOf(u"Bob"), 0);
    EXPECT_TRUE(m_people.init());
    EXPECT_EQ(listed(), (std::vector<LONG>{11, 12}));
}

TEST_P(PeopleTest, ANameIsFoundWhateverItsLetterCase)
{
    contents() = {kAnn, {13, QStringLiteral("\u00C5sa \u03A3"), {}}};
    EXPECT_TRUE(m_people.init());
    EXPECT_EQ(idOf(u"ANN"), 11);
    EXPECT_EQ(idOf(u"ann"), 11);
    EXPECT_EQ(idOf(u"\u00E5SA \u03C3"), 13);
}

TEST_P(PeopleTest, NamesAreComparedWholeAndLetterByLetter)
{
    contents() = {{14, QStringLiteral("Stra\u00DFe"), {}}, {15, QStringLiteral("caf\u00E9"), {}}};
    EXPECT_TRUE(m_people.init());
    EXPECT_EQ(idOf(u"Strasse"), 0);
    EXPECT_EQ(idOf(u"cafe\u0301"), 0);
    EXPECT_EQ(idOf(u"Stra\u00DF"), 0);
    EXPECT_EQ(idOf(u"Stra\u00DFe "), 0);
    EXPECT_EQ(idOf(u"STRA\u00DFE"), 14);
}

TEST_P(PeopleTest, OfTwoEqualNamesTheEarlierWins)
{
    contents() = {{21, QStringLiteral("Sam"), {}}, {22, QStringLiteral("SAM"), {}}};
    EXPECT_TRUE(m_people.init());
    EXPECT_EQ(idOf(u"SAM"), 21);
}

TEST_P(PeopleTest, OfTwoEqualIdsTheEarlierWins)
{
    contents() = {{21, QStringLiteral("Sam"), {}}, {21, QStringLiteral("Tom"), {}}};
    EXPECT_EQ(nameOf(21), QStringLiteral("Sam"));
    EXPECT_EQ(idOf(u"Tom"), 21);
}

TEST_P(PeopleTest, AnUnknownIdHasAnEmptyNameAndAnUnknownNameTheIdZero)
{
    contents() = {kAnn};
    EXPECT_EQ(nameOf(99), QString());
    EXPECT_EQ(idOf(u"Zoe"), 0);
    EXPECT_EQ(idOf(u""), 0);
}

TEST_P(PeopleTest, ANameGivesItsIdOnlyOnceTheListIsLoaded)
{
    contents() = {kAnn};
    EXPECT_EQ(idOf(u"Ann"), 0);
    EXPECT_EQ(operation().calls, 0);
    EXPECT_EQ(nameOf(11), QStringLiteral("Ann"));
    EXPECT_EQ(operation().calls, 1);
    EXPECT_EQ(idOf(u"Ann"), 11);
}

TEST_P(PeopleTest, ANameThatCannotBeLoadedIsEmpty)
{
    contents() = {kAnn};
    operation().results = {E_FAIL};
    operation().recordsBeforeFailure = 1;
    EXPECT_EQ(nameOf(11), QString());
    EXPECT_EQ(m_reported, (std::vector<HRESULT>{E_FAIL}));
    EXPECT_EQ(idOf(u"Ann"), 11) << "the list as it stands holds the record";
}

TEST_P(PeopleTest, ANegativeIdIsAnIdLikeAnyOther)
{
    contents() = {{-5, QStringLiteral("Ann"), {}}, {0, QStringLiteral("Nobody"), {}}};
    EXPECT_EQ(nameOf(-5), QStringLiteral("Ann"));
    EXPECT_EQ(nameOf(0), QStringLiteral("Nobody"));
}

TEST_P(PeopleTest, NullRecordsArePassedOver)
{
    const FakeLibrary::Person none{0, {}, {}, true};
    contents() = {none, kAnn, none};
    EXPECT_TRUE(m_people.init());
    EXPECT_EQ(listed(), (std::vector<LONG>{-1, 11, -1}));
    EXPECT_EQ(idOf(u"Ann"), 11);
}

TEST_P(PeopleTest, ANameThatFillsItsArrayEndsWithIt)
{
    const CString name(1001, u'n');
    contents() = {{31, name, QStringLiteral("second")}};
    EXPECT_EQ(nameOf(31), name);
    EXPECT_EQ(m_people.idOf(name, ShownName::First), 31);
}

TEST_P(PeopleTest, FiftyThousandNamesFindTheirFirstMatch)
{
    constexpr int kCount = 50000;
    for (int i = 0; i < kCount; ++i) {
        const CString name = QStringLiteral("Name %1").arg(i % (kCount / 2));
        contents().push_back({i + 1, i < kCount / 2 ? name : name.toUpper(), {}});
    }
    EXPECT_TRUE(m_people.init());
    for (int i = 0; i < kCount / 2; ++i) {
        const CString name = QStringLiteral("Name %1").arg(i);
        ASSERT_EQ(m_people.idOf(name.toUpper(), ShownName::First), i + 1);
        ASSERT_EQ(nameOf(i + 1), name);
    }
}

/// What only users have: a second name.
class SecondNames : public testing::Test {
protected:
    SecondNames() { m_manager.reset(m_library.get()); }

    FakeLibraryHolder m_library;
    ManagerRef m_manager;
    People m_users{People::Kind::Users, m_manager, {}};
    People m_groups{People::Kind::Groups, m_manager, {}};
};

TEST_F(SecondNames, TheUsersAreAskedForWithZeroAndTrue)
{
    m_library->usersNumber = 7;
    EXPECT_TRUE(m_users.init());
    EXPECT_EQ(m_library->usersNumber, 0);
    EXPECT_TRUE(m_library->usersFlag);
}

TEST_F(SecondNames, AUserIsResolvedByTheOneNameThatIsShown)
{
    m_library->users = {kAnn, kBob};
    EXPECT_EQ(m_users.nameOf(12, ShownName::First), QStringLiteral("Bob"));
    EXPECT_EQ(m_users.nameOf(12, ShownName::Second), QStringLiteral("Bob Baker"));
    EXPECT_EQ(m_users.idOf(QStringLiteral("bob"), ShownName::First), 12);
    EXPECT_EQ(m_users.idOf(QStringLiteral("bob"), ShownName::Second), 0);
    EXPECT_EQ(m_users.idOf(QStringLiteral("BOB BAKER"), ShownName::Second), 12);
    EXPECT_EQ(m_users.idOf(QStringLiteral("Bob Baker"), ShownName::First), 0);
}

TEST_F(SecondNames, AnEmptySecondNameFallsBackOnNothing)
{
    m_library->users = {{41, QStringLiteral("Eve"), {}}};
    EXPECT_EQ(m_users.nameOf(41, ShownName::Second), QString());
    EXPECT_EQ(m_users.idOf(QStringLiteral("Eve"), ShownName::Second), 0);
    EXPECT_EQ(m_users.idOf(QString(), ShownName::Second), 41);
}

TEST_F(SecondNames, OfTwoEqualSecondNamesTheEarlierWins)
{
    m_library->users = {{1, QStringLiteral("a"), QStringLiteral("Sam")},
                        {2, QStringLiteral("b"), QStringLiteral("sam")}};
    EXPECT_TRUE(m_users.init());
    EXPECT_EQ(m_users.idOf(QStringLiteral("sam"), ShownName::Second), 1);
}

TEST_F(SecondNames, ASecondNameThatFillsItsArrayEndsWithIt)
{
    const CString name(256, u's');
    m_library->users = {{51, QStringLiteral("x"), name}};
    EXPECT_EQ(m_users.nameOf(51, ShownName::Second), name);
    EXPECT_EQ(m_users.idOf(name, ShownName::Second), 51);
}

TEST_F(SecondNames, AGroupIsAlwaysResolvedByItsFirstName)
{
    m_library->groups = {{61, QStringLiteral("Staff"), QStringLiteral("second")}};
    EXPECT_EQ(m_groups.nameOf(61, ShownName::Second), QStringLiteral("Staff"));
    EXPECT_EQ(m_groups.idOf(QStringLiteral("staff"), ShownName::Second), 61);
    EXPECT_EQ(m_groups.idOf(QStringLiteral("second"), ShownName::Second), 0);
}

} // namespace
} // namespace condtree
