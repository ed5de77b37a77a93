#include "TempDatabase.h"
#include "support/QtPrinters.h"
#include "support/WarningGuard.h"

#include <gtest/gtest.h>

namespace condtree::test {
namespace {

constexpr auto kNoAccess = static_cast<HRESULT>(0x80040207U);

class ReferenceData : public testing::Test {
protected:
    void SetUp() override { ASSERT_NE(manager, nullptr); }
    TempDatabase database;
    ManagerPtr manager = database.connected();
};

QString nameOf(const char16_t* name)
{
    return QStringView(name).toString();
}

TEST_F(ReferenceData, VariablesComeByIdWithNameAndAnyType)
{
    database.run({QStringLiteral("INSERT INTO card_variables (id, name, type) VALUES "
                                 "(3, 'Weight', 3), (2147483647, 'Odd', -2147483648), "
                                 "(1, 'Größe 寸法 😀', 1)")});
    AutoLst<Lst<VarDef*>> list;
    ASSERT_EQ(procOf<SpUpdateVariableDefinition>(manager, SPID_VARIABLE_DEFINITION)
                  .mhGetVariables(list, false),
              S_OK);
    QStringList found;
    for (POSITION at = list.GetHeadPosition(); at != nullptr;) {
        const VarDef* variable = list.GetNext(at);
        found.append(QStringLiteral("%1 %2 %3")
                         .arg(variable->mlId)
                         .arg(variable->mlType)
                         .arg(nameOf(variable->mName)));
    }
    EXPECT_EQ(found, (QStringList{QStringLiteral("1 1 Größe 寸法 😀"), QStringLiteral("3 3 Weight"),
                                  QStringLiteral("2147483647 -2147483648 Odd")}));
}

TEST_F(ReferenceData, StatesComeByWorkflowWithBothNamesAndAllFlags)
{
    database.run({QStringLiteral("INSERT INTO workflows (id, name) VALUES (2, 'B'), (5, 'A')"),
                  QStringLiteral("INSERT INTO states (id, workflow_id, name, second_name, flags) "
                                 "VALUES (30, 2, 'Open', 'Offen', 4294967295), "
                                 "(10, 5, 'New', '', 0), (20, 2, 'Done', 'Fertig', 2)")});
    AutoLst<Lst<SpWorkflowState*>> list;
    ASSERT_EQ(procOf<SpWorkflow>(manager, SPID_WORKFLOW).mhGetAllStatesInAllWorkflows(0, list),
              S_OK);
    QStringList found;
    for (POSITION at = list.GetHeadPosition(); at != nullptr;) {
        const SpWorkflowState* state = list.GetNext(at);
        found.append(
            QStringLiteral("%1 %2 [%3] %4 %5")
                .arg(state->mlId)
                .arg(state->moName.str(), state->moSecondName.str(), state->moWorkflowName.str())
                .arg(state->mlFlags));
    }
    EXPECT_EQ(found, (QStringList{QStringLiteral("20 Done [Fertig] B 2"),
                                  QStringLiteral("30 Open [Offen] B 4294967295"),
                                  QStringLiteral("10 New [] A 0")}));
}

TEST_F(ReferenceData, UsersComeByIdWithLoginAndFullName)
{
    database.run({QStringLiteral("INSERT INTO users (id, login, full_name) VALUES "
                                 "(4, 'ana', ''), (3, 'ben', 'Ben Ås')")});
    AutoLst<Lst<SpuLightData*>> list;
    ASSERT_EQ(procOf<SpUserMgr>(manager, SPID_USER_MGR).mhGetUsers(list, 0, true), S_OK);
    QStringList found;
    for (POSITION at = list.GetHeadPosition(); at != nullptr;) {
        const SpuLightData* user = list.GetNext(at);
        found.append(QStringLiteral("%1 %2 [%3]")
                         .arg(user->mlId)
                         .arg(nameOf(user->mName), nameOf(user->mSecondName)));
    }
    EXPECT_EQ(found, (QStringList{QStringLiteral("1 admin [Administrator]"),
                                  QStringLiteral("3 ben [Ben Ås]"), QStringLiteral("4 ana []")}));
}

TEST_F(ReferenceData, GroupsComeByIdWithoutSecondName)
{
    database.run({QStringLiteral("INSERT INTO user_groups (id, name) VALUES (2, 'Quality'), "
                                 "(1, 'Design')")});
    AutoLst<Lst<SpuLightData*>> list;
    ASSERT_EQ(procOf<SpUserMgr>(manager, SPID_USER_MGR).mhGetGroups(list), S_OK);
    ASSERT_EQ(list.GetCount(), 2);
    POSITION at = list.GetHeadPosition();
    const SpuLightData* first = list.GetNext(at);
    const SpuLightData* second = list.GetNext(at);
    EXPECT_EQ(first->mlId, 1);
    EXPECT_EQ(nameOf(first->mName), QStringLiteral("Design"));
    EXPECT_EQ(nameOf(first->mSecondName), QString());
    EXPECT_EQ(second->mlId, 2);
    EXPECT_EQ(nameOf(second->mName), QStringLiteral("Quality"));
}

TEST_F(ReferenceData, DocumentTypesComeByIdWithBothTexts)
{
    database.run({QStringLiteral("INSERT INTO document_types (id, name, second_name) VALUES "
                                 "(9, 'Report', 'RPT'), (4, 'Drawing', '')")});
    AutoLst<Lst<SpDocType::DocType*>> list;
    ASSERT_EQ(procOf<SpDocType>(manager, SPID_DOC_TYPE).mhGetDocTypes(list), S_OK);
    ASSERT_EQ(list.GetCount(), 2);
    POSITION at = list.GetHeadPosition();
    const SpDocType::DocType* first = list.GetNext(at);
    const SpDocType::DocType* second = list.GetNext(at);
    EXPECT_EQ(first->moName.str(), QStringLiteral("Drawing"));
    EXPECT_EQ(first->moSecond.str(), QString());
    EXPECT_EQ(second->moName.str(), QStringLiteral("Report"));
    EXPECT_EQ(second->moSecond.str(), QStringLiteral("RPT"));
}

TEST_F(ReferenceData, AListIsAppendedTo)
{
    AutoLst<Lst<SpuLightData*>> list;
    auto& proc = procOf<SpUserMgr>(manager, SPID_USER_MGR);
    ASSERT_EQ(proc.mhGetUsers(list, 0, true), S_OK);
    ASSERT_EQ(proc.mhGetUsers(list, 0, true), S_OK);
    EXPECT_EQ(list.GetCount(), 2);
}

TEST_F(ReferenceData, AUsersIdIsFoundByLoginWhateverItsCase)
{
    database.run({QStringLiteral("INSERT INTO users (id, login) VALUES (77, 'Zoë')")});
    auto& proc = procOf<SpUser>(manager, SPID_USER);
    LONG id = 0;
    EXPECT_EQ(proc.mhGetUserID(u"ZOË", id), S_OK);
    EXPECT_EQ(id, 77);
    EXPECT_EQ(proc.mhGetUserID(u"nobody", id), kNoAccess);
    EXPECT_EQ(proc.mhGetUserID(u"", id), kNoAccess);
    EXPECT_EQ(proc.mhGetUserID(nullptr, id), E_POINTER);
    EXPECT_EQ(id, 77) << "a failure leaves the id alone";
}

TEST_F(ReferenceData, AUsersSettingsAreFilledInAndNoOthers)
{
    database.run({QStringLiteral("INSERT INTO users (id, login) VALUES (2, 'two'), (3, 'three')"),
                  QStringLiteral("INSERT INTO user_settings (user_id, entry, value) VALUES "
                                 "(2, 24, '1'), (2, -5, 'ü'), (2, 7, ''), (3, 24, '0')")});
    auto& proc = procOf<SpSettings>(manager, SPID_SETTINGS);
    SpSettingsData settings;
    settings.mvSet(99, QStringLiteral("kept"));
    ASSERT_EQ(proc.mhGetUserSettings(2, settings, false), S_OK);
    ASSERT_NE(settings.mpoGet(24), nullptr);
    EXPECT_EQ(*settings.mpoGet(24), QStringLiteral("1"));
    EXPECT_EQ(*settings.mpoGet(-5), QStringLiteral("ü"));
    EXPECT_EQ(*settings.mpoGet(7), QString());
    EXPECT_EQ(*settings.mpoGet(99), QStringLiteral("kept"));
    SpSettingsData none;
    EXPECT_EQ(proc.mhGetUserSettings(1, none, false), S_OK);
    EXPECT_EQ(none.mpoGet(24), nullptr);
    EXPECT_EQ(proc.mhGetUserSettings(0, none, false), kNoAccess);
    EXPECT_EQ(none.mpoGet(24), nullptr);
}

struct NameColumn {
    const char* what;
    QString insert; ///< %1 is the name.
    int longest;
};

const NameColumn kNameColumns[] = {
    {"variable", QStringLiteral("INSERT INTO card_variables (id, name, type) VALUES (50, '%1', 1)"),
     255},
    {"login", QStringLiteral("INSERT INTO users (id, login) VALUES (50, '%1')"), 1000},
    {"full name", QStringLiteral("INSERT INTO users (id, login, full_name) VALUES (51, 'x', '%1')"),
     255},
    {"group", QStringLiteral("INSERT INTO user_groups (id, name) VALUES (50, '%1')"), 1000},
};

/// The one name of that kind, through the library.
QString nameOfKind(const ManagerPtr& manager, const NameColumn& column)
{
    const bool isVariable = column.insert.contains(QStringLiteral("card_variables"));
    if (isVariable) {
        AutoLst<Lst<VarDef*>> list;
        EXPECT_EQ(procOf<SpUpdateVariableDefinition>(manager, SPID_VARIABLE_DEFINITION)
                      .mhGetVariables(list, false),
                  S_OK);
        POSITION at = list.GetHeadPosition();
        return nameOf(list.GetNext(at)->mName);
    }
    AutoLst<Lst<SpuLightData*>> list;
    auto& proc = procOf<SpUserMgr>(manager, SPID_USER_MGR);
    const bool isGroup = column.insert.contains(QStringLiteral("user_groups"));
    EXPECT_EQ(isGroup ? proc.mhGetGroups(list) : proc.mhGetUsers(list, 0, true), S_OK);
    POSITION at = list.GetHeadPosition();
    if (!isGroup)
        list.GetNext(at); // the administrator
    const SpuLightData* record = list.GetNext(at);
    return nameOf(column.insert.contains(QStringLiteral("full_name")) ? record->mSecondName
                                                                      : record->mName);
}

TEST(NameLengths, TheLongestNameComesBackWholeAndALongerOneIsRefusedByTheDatabase)
{
    for (const NameColumn& column : kNameColumns) {
        const TempDatabase database;
        const ManagerPtr manager = database.connected();
        RawConnection raw(database.path());
        for (const QString& tooLong :
             {QString(column.longest + 1, u'x'), QString(column.longest + 1, QChar(0x5BF8))})
            EXPECT_FALSE(raw.run(column.insert.arg(tooLong))) << column.what;
        const QString longest(column.longest, QChar(0x5BF8));
        EXPECT_TRUE(raw.run(column.insert.arg(longest))) << column.what;
        EXPECT_EQ(nameOfKind(manager, column), longest) << column.what;
    }
}

TEST(NameLengths, CodeUnitsThatTheDatabaseCannotCountAreCountedOnReading)
{
    const TempDatabase database;
    const ManagerPtr manager = database.connected();
    RawConnection raw(database.path());
    const auto name = [](int characters) { return QStringLiteral("😀").repeated(characters); };
    const QString insert = kNameColumns[0].insert;
    EXPECT_FALSE(raw.run(insert.arg(name(200)))) << "800 bytes are more than 255 units ever take";
    EXPECT_TRUE(raw.run(insert.arg(name(127)))) << "254 code units";
    AutoLst<Lst<VarDef*>> list;
    auto& proc = procOf<SpUpdateVariableDefinition>(manager, SPID_VARIABLE_DEFINITION);
    EXPECT_EQ(proc.mhGetVariables(list, false), S_OK);
    EXPECT_EQ(list.GetCount(), 1);
    EXPECT_TRUE(raw.run(QStringLiteral("INSERT INTO card_variables (id, name, type) "
                                       "VALUES (60, '%1', 1)")
                            .arg(name(128))));
    const ExpectWarning log(QStringLiteral("too long"));
    EXPECT_EQ(proc.mhGetVariables(list, false), kNoAccess);
    EXPECT_EQ(list.GetCount(), 1) << "nothing is appended, nothing is cut";
}

TEST(NameLengths, EmptyNamesAndNullsAreRefusedByTheDatabase)
{
    const TempDatabase database;
    (void)database.connected();
    RawConnection raw(database.path());
    for (const char* sql :
         {"INSERT INTO card_variables (name, type) VALUES ('', 1)",
          "INSERT INTO card_variables (name, type) VALUES ('a' || char(0), 1)",
          "INSERT INTO card_variables (name, type) VALUES (NULL, 1)",
          "INSERT INTO card_variables (name, type) VALUES ('a', 2147483648)",
          "INSERT INTO card_variables (name, type) VALUES ('a', 'text')",
          "INSERT INTO users (login) VALUES ('')", "INSERT INTO users (login) VALUES ('ADMIN')",
          "INSERT INTO users (id, login) VALUES (0, 'zero')",
          "INSERT INTO users (id, login) VALUES (2147483648, 'big')",
          "INSERT INTO user_groups (name) VALUES ('')", "INSERT INTO workflows (name) VALUES ('')"})
        EXPECT_FALSE(raw.run(QString::fromLatin1(sql))) << sql;
}

} // namespace
} // namespace condtree::test
