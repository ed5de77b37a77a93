// Loading while the data-access library fails, and what the host may do while a message says so.
#include "ControlFixture.h"

namespace condtree::test {
namespace {

const std::string kEnd = "-1 <Click here to add a condition>\n";

class LoadingFailures : public ControlFixture {
protected:
    LoadingFailures() { initialize(); }
};

TEST_F(LoadingFailures, WithoutAManagerTheRowsStayWithEmptyValuesAndWithoutAMessage)
{
    control->mvInitialize(nullptr, 120, KiroVaultType{}, TreeType{});
    EXPECT_EQ(loaded({record(3, 7, "", "12", 1, 100), record(3, 8, "", "7", 1, 100),
                      record(3, 9, "", "3", 1, 100)}),
              "8 Child Reference State op=100 arg=1 state=12\n"
              "9 User op=100 arg=1 id=7\n10 Group op=100 arg=1 id=3\n"
                  + kEnd);
    EXPECT_TRUE(messages.empty());
}

TEST_F(LoadingFailures, AFailedLoadOfUsersIsReportedARowAndTriedAgainByTheNext)
{
    library->getUsers.results = {E_FAIL, E_FAIL};
    EXPECT_EQ(loaded({record(3, 8, "", "7", 1, 100), record(3, 8, "", "7", 1, 100),
                      record(3, 8, "", "7", 1, 100)}),
              "9 User op=100 arg=1 id=7\n9 User op=100 arg=1 id=7\n"
              "9 User | smith op=100 arg=1 id=7\n"
                  + kEnd);
    EXPECT_EQ(messages, std::vector<QString>(2, QStringLiteral("An unspecified error occurred.")));
    EXPECT_EQ(library->getUsers.calls, 3);
}

TEST_F(LoadingFailures, AFailedLoadOfGroupsIsReportedARowAndTriedAgainByTheNext)
{
    library->getGroups.results = {E_OUTOFMEMORY};
    EXPECT_EQ(loaded({record(3, 9, "", "3", 1, 100), record(3, 9, "", "3", 1, 100)}),
              "10 Group op=100 arg=1 id=3\n10 Group | Designers op=100 arg=1 id=3\n" + kEnd);
    EXPECT_EQ(messages,
              std::vector<QString>{QStringLiteral("Not enough memory to complete the operation.")});
}

TEST_F(LoadingFailures, AFailedLoadOfStatesIsNotReportedAndNotTriedAgain)
{
    library->getStates.results = {E_FAIL};
    EXPECT_EQ(loaded({record(3, 7, "", "12", 1, 100), record(3, 7, "", "12", 1, 100)}),
              "8 Child Reference State op=100 arg=1 state=12\n"
              "8 Child Reference State op=100 arg=1 state=12\n"
                  + kEnd);
    EXPECT_TRUE(messages.empty());
    EXPECT_EQ(library->getStates.calls, 1);
}

TEST_F(LoadingFailures, MissingProcedureObjectsLeaveEmptyValuesWithoutAMessage)
{
    library->missing = {SPID_USER_MGR, SPID_WORKFLOW, SPID_VARIABLE_DEFINITION};
    EXPECT_EQ(loaded({record(3, 7, "", "12", 1, 100), record(3, 8, "", "7", 1, 100),
                      record(3, 9, "", "3", 1, 100)}),
              "8 Child Reference State op=100 arg=1 state=12\n"
              "9 User op=100 arg=1 id=7\n10 Group op=100 arg=1 id=3\n"
                  + kEnd);
    EXPECT_TRUE(messages.empty());
}

TEST_F(LoadingFailures, TheHostsMessagesAreShownFromWhenTheyAreAdded)
{
    const auto code = static_cast<HRESULT>(0x80040501U);
    const auto texts = std::make_shared<ResultTexts>();
    Services ports = services();
    ports.resultTexts = texts;
    control = std::make_unique<OpenCtrl>(nullptr, ports);
    initialize();
    translations[400] = QStringLiteral("The translated one.");

    library->getUsers.results = {code, code, code};
    (void)loaded({record(3, 8, "", "7", 1, 100)});
    texts->add({code, 399, {}, {}, QStringLiteral("The host's."), ResultTextKind::Plain});
    (void)loaded({record(3, 8, "", "7", 1, 100)});
    texts->add({code, 400, {}, {}, QStringLiteral("The host's."), ResultTextKind::Plain});
    (void)loaded({record(3, 8, "", "7", 1, 100)});
    EXPECT_EQ(messages, (std::vector<QString>{QStringLiteral("IDispatch error #769"),
                                              QStringLiteral("The host's."),
                                              QStringLiteral("The translated one.")}));
}

TEST_F(LoadingFailures, ReferenceDataIsLoadedOnceForAllRows)
{
    std::vector<TransCond> records;
    for (int i = 0; i < 50; ++i) {
        for (const LONG type : {7, 8, 9})
            records.push_back(record(3, type, "", "7", 1, 100));
    }
    control->mvLoad(records);
    EXPECT_EQ(library->getStates.calls, 1);
    EXPECT_EQ(library->getUsers.calls, 1);
    EXPECT_EQ(library->getGroups.calls, 1);
    EXPECT_EQ(library->getVariables.calls, 0);
}

TEST_F(LoadingFailures, MessagesArePlainAndStandOverTheControl)
{
    library->getUsers.results = {E_FAIL};
    loaded({record(3, 8, "", "7", 1, 100)});
    EXPECT_EQ(messageOwners, std::vector<QWidget*>{control.get()});
    EXPECT_EQ(messageTypes, std::vector<unsigned>{0});
}

// What the host does while a message is open.

TEST_F(LoadingFailures, ATreeThatTheHostDeletesDuringAMessageStaysDeleted)
{
    library->getUsers.results = {E_FAIL, E_FAIL};
    duringMessage = [this] { control->mvDeleteNode(TVI_ROOT); };
    control->mvLoad({record(3, 8, "", "7", 1, 100), record(3, 8, "", "7", 1, 100)});
    EXPECT_EQ(control->mpoGetNode(TVI_ROOT), nullptr);
    EXPECT_EQ(messages.size(), 1U);
}

TEST_F(LoadingFailures, ALoadDuringAMessageOvertakesTheOneThatShowsIt)
{
    library->getUsers.results = {E_FAIL};
    duringMessage = [this] { control->mvLoad({groupRecord(), record(3, 1, "", "p", 1, 100)}); };
    control->mvLoad({record(3, 2, "Author", "a", 1, 100), record(3, 8, "", "7", 1, 100)});
    EXPECT_EQ(rows(), "1 Or\n  " + kEnd + "5 FilePath | p op=100 arg=1\n" + kEnd);
}

TEST_F(LoadingFailures, TheControlMayBeDeletedDuringAMessage)
{
    library->getUsers.results = {E_FAIL, E_FAIL, E_FAIL};
    duringMessage = [this] { control.reset(); };
    const std::vector<TransCond> records(3, record(3, 8, "", "7", 1, 100));
    control->mvLoad(records);
    EXPECT_EQ(control, nullptr);
    EXPECT_EQ(messages.size(), 1U);
    EXPECT_EQ(library->references(), 1);
}

} // namespace
} // namespace condtree::test
