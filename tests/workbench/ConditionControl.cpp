#include "workbench/ConditionControl.h"

#include "support/FakeLibrary.h"

#include <gtest/gtest.h>

using namespace condtree;
using namespace condtree::test;
using namespace condtree::workbench;

namespace {

SpConditionRecord variable(const char* name, const char* value, LONG rowKind = 3, LONG op = 100)
{
    return {rowKind, 2, QString::fromUtf8(name), {}, QString::fromUtf8(value), 1, op};
}

SpConditionRecord user(const char* id)
{
    return {3, 8, QStringLiteral("User"), {}, QString::fromUtf8(id), 1, 100};
}

class ConditionControls : public testing::Test {
protected:
    Services services()
    {
        Services made = realServices();
        made.messageBox = [this](QWidget*, const CString& text, unsigned) {
            m_shown.append(text);
            return 0;
        };
        return made;
    }

    FakeLibraryHolder m_library;
    QStringList m_shown;
};

TEST_F(ConditionControls, RecordsGoInAndComeOut)
{
    m_library->variables = {{1, VarText, QStringLiteral("Author")}};
    ConditionControl control(m_library.get(), nullptr, services());
    const ConditionRecords records{
        variable("Author", "me"), {2, 0, {}, {}, {}, 0, 0}, variable("Author", "you", 4, 107)};
    EXPECT_TRUE(control.setRecords(records).isEmpty());
    EXPECT_EQ(control.records().value(), records);
}

TEST_F(ConditionControls, ReadingTheRecordsLeavesTheShownValuesAlone)
{
    m_library->variables = {{1, VarText, QStringLiteral("Author")}};
    ConditionControl control(m_library.get(), nullptr, services());
    control.setRecords({variable("Author", "!=me", 3, 160)});
    const VarTreeCtrlNode* row = control.mpoGetNode(TVI_ROOT)->mChildren.front();
    EXPECT_EQ(row->mValue, QStringLiteral("me"));
    EXPECT_EQ(control.records().value(), ConditionRecords{variable("Author", "me", 3, 101)});
    EXPECT_EQ(row->mValue, QStringLiteral("me"));
}

TEST_F(ConditionControls, ItKnowsTheMessagesOfTheDataAccessLibrary)
{
    Services bare = services();
    bare.resultTexts.reset();
    for (const Services& ports : {services(), bare}) {
        ConditionControl control(m_library.get(), nullptr, ports);
        m_library->getUsers.results = {SP_E_CHANGED};
        EXPECT_EQ(control.setRecords({user("7")}),
                  QStringList{QStringLiteral(
                      "The condition was saved by somebody else after it was loaded; your changes "
                      "were not saved. Load the condition again and repeat your changes.")});
    }
}

TEST_F(ConditionControls, EveryGroupIsOpenAfterLoading)
{
    ConditionControl control(m_library.get(), nullptr, services());
    const SpConditionRecord group{2, 0, {}, {}, {}, 0, 0};
    control.setRecords({group, variable("a", "1", 4), group, group});
    ASSERT_EQ(control.model()->rowCount(), 4);
    for (int row = 0; row < 3; ++row)
        EXPECT_TRUE(control.isExpanded(control.model()->index(row, 0))) << row;
}

TEST_F(ConditionControls, ItIsSetUpForAFullVault)
{
    ConditionControl control(m_library.get(), nullptr, services());
    EXPECT_EQ(control.miGetDateFmt(), 120);
    EXPECT_NE(control.meGetVaultType(), VaultTypeReduced);
}

TEST_F(ConditionControls, AFailureWhileLoadingIsToldOnceAndShownToNobody)
{
    m_library->getUsers.results = {E_FAIL, E_FAIL, E_FAIL};
    ConditionControl control(m_library.get(), nullptr, services());
    const QStringList failures = control.setRecords({user("7"), user("8"), user("9")});
    EXPECT_EQ(failures.size(), 1);
    EXPECT_TRUE(m_shown.isEmpty());
    // The names are missing, the people are not.
    EXPECT_EQ(control.records().value(), (ConditionRecords{user("7"), user("8"), user("9")}));
}

TEST_F(ConditionControls, NamesAreTriedOnceForAllRows)
{
    m_library->getUsers.results = {E_FAIL};
    ConditionControl control(m_library.get(), nullptr, services());
    const ConditionRecords records{user("7"), user("8"), user("9")};
    const auto failure = control.prepare(records);
    ASSERT_TRUE(failure.has_value());
    EXPECT_FALSE(failure->text.isEmpty());
    EXPECT_TRUE(m_shown.isEmpty());
    EXPECT_EQ(control.model()->rowCount(), 0);
    // The library has recovered.
    EXPECT_FALSE(control.prepare(records).has_value());
    EXPECT_TRUE(control.setRecords(records).isEmpty());
}

TEST_F(ConditionControls, NamesThatNoRowShowsAreNotLoaded)
{
    m_library->getUsers.results = {E_FAIL};
    ConditionControl control(m_library.get(), nullptr, services());
    EXPECT_FALSE(control.prepare({variable("a", "1")}).has_value());
    EXPECT_TRUE(control.prepare({user("7")}).has_value());
}

TEST_F(ConditionControls, RecordsWithUnknownTypesAreNotGivenOut)
{
    m_library->variables = {{1, VarText, QStringLiteral("Author")}};
    m_library->getVariables.results = {E_FAIL};
    ConditionControl control(m_library.get(), nullptr, services());
    EXPECT_TRUE(control.setRecords({variable("Author", "a"), variable("Author", "b")}).isEmpty());
    const auto refused = control.records();
    ASSERT_FALSE(refused.hasValue());
    EXPECT_FALSE(refused.failure().text.isEmpty());
    EXPECT_TRUE(m_shown.isEmpty());
    // The library has recovered.
    EXPECT_EQ(control.records().value(),
              (ConditionRecords{variable("Author", "a"), variable("Author", "b")}));
}

} // namespace
