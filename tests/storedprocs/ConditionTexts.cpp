#include "TempDatabase.h"
#include "support/QtPrinters.h"

#include <condtree/storedprocs/SpSample.h>

#include <gtest/gtest.h>

namespace condtree::test {
namespace {

using Field = SpSaveReport::Field;

/// A sample database and the condition of its first transition.
class ConditionTexts : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_EQ(SpMakeSampleDatabase(database.url()), S_OK);
        manager = database.connected();
        ASSERT_NE(manager, nullptr);
        ASSERT_EQ(transitions().mhLoadCondition(1, condition), S_OK);
    }
    SpTransitions& transitions() { return *SpTransitionsOf(manager.get()); }
    HRESULT save(SpSaveReport& report)
    {
        return transitions().mhSaveCondition(1, condition.records, condition.version, report);
    }

    TempDatabase database;
    ManagerPtr manager;
    SpCondition condition;
};

struct FieldRow {
    Field field;
    SpStr SpConditionRecord::*text;
    QString name;
};

const FieldRow kFields[] = {
    {Field::Name, &SpConditionRecord::name, QStringLiteral("name")},
    {Field::Extra, &SpConditionRecord::extra, QStringLiteral("extra text")},
    {Field::Value, &SpConditionRecord::value, QStringLiteral("value")},
};

struct RefusedText {
    const char* what;
    QString text;
    QString why;
};

QString units(std::initializer_list<char16_t> list)
{
    QString text;
    for (const char16_t unit : list)
        text += QChar(unit);
    return text;
}

TEST_F(ConditionTexts, ThatTheDatabaseCannotCarryAreRefusedByRowAndField)
{
    const QString null = QStringLiteral("holds the character U+0000");
    const QString half = QStringLiteral("holds half of a surrogate pair");
    const RefusedText texts[] = {
        {"a null alone", units({0}), null},
        {"a null at the start", units({0, u'a'}), null},
        {"a null inside", units({u'a', 0, u'b'}), null},
        {"a null at the end", units({u'a', 0}), null},
        {"a high surrogate alone", units({0xD800}), half},
        {"a high surrogate at the end", units({u'a', 0xDBFF}), half},
        {"a high surrogate before a letter", units({0xD83D, u'a'}), half},
        {"two high surrogates and a low one", units({0xD83D, 0xD83D, 0xDE00}), half},
        {"a low surrogate alone", units({0xDC00}), half},
        {"a low surrogate behind a pair", units({0xD83D, 0xDE00, 0xDFFF}), half},
        {"a pair the wrong way round", units({0xDE00, 0xD83D}), half},
    };
    const QStringList before = database.everything();
    const std::vector<SpConditionRecord> good = condition.records;
    for (const RefusedText& row : texts) {
        for (const FieldRow& field : kFields) {
            condition.records = good;
            condition.records[5].*field.text = SpStr(row.text);
            SpSaveReport report;
            EXPECT_EQ(save(report), SP_E_BAD_TEXT) << row.what;
            EXPECT_EQ(report.row, 5) << row.what;
            EXPECT_EQ(report.field, field.field) << row.what;
            EXPECT_EQ(report.message, QStringLiteral("Row 6: the %1 %2, which the database cannot "
                                                     "hold.")
                                          .arg(field.name, row.why))
                << row.what;
            EXPECT_EQ(report.version, 0) << row.what;
        }
    }
    EXPECT_EQ(database.everything(), before);
    EXPECT_EQ(SP_E_BAD_TEXT, static_cast<HRESULT>(0x80040502U));
}

TEST_F(ConditionTexts, TheFirstRefusedRowIsTheOneThatIsNamed)
{
    condition.records[2].value = SpStr(units({0xD800}));
    condition.records[0].extra = SpStr(units({0}));
    SpSaveReport report;
    EXPECT_EQ(save(report), SP_E_BAD_TEXT);
    EXPECT_EQ(report.row, 0);
    EXPECT_EQ(report.field, Field::Extra);
}

TEST_F(ConditionTexts, UnusualTextsComeBack)
{
    const QString texts[] = {
        QStringLiteral(""),
        QStringLiteral(" \t\r\n "),
        QStringLiteral("'; DROP TABLE condition_records; --"),
        QStringLiteral("\"?\" :name @name $name %1"),
        units({0xFFFE, u'a'}),
        units({0xFEFF, u'a'}),
        units({0xFEFF}),
        units({u'a', 0xFFFF, 0xFEFF, 0xFFFE, 1, 0x7F}),
        units({0xD800, 0xDC00, 0xDBFF, 0xDFFF}),
        units({u'e', 0x301, 0x200F, 0x202E}),
    };
    condition.records.clear();
    for (const QString& text : texts)
        condition.records.push_back({3, 2, SpStr(text), SpStr(text), SpStr(text), 1, 100});
    SpSaveReport report;
    ASSERT_EQ(save(report), S_OK);
    SpCondition back;
    ASSERT_EQ(transitions().mhLoadCondition(1, back), S_OK);
    EXPECT_EQ(toText(back.records), toText(condition.records));
}

constexpr qsizetype kLimit = 16 * 1024 * 1024;

struct Size {
    const char* what;
    char16_t unit;
    qsizetype count;
    bool fits;
};

TEST_F(ConditionTexts, OfSixteenMebibytesFitAndLargerOnesAreRefused)
{
    const Size sizes[] = {
        {"16 MiB as UTF-8", u'x', kLimit, true},
        {"a byte more", u'x', kLimit + 1, false},
        {"16 MiB as UTF-16", 0x5BF8, kLimit / 2, true},
        {"a character more", 0x5BF8, kLimit / 2 + 1, false},
        {"16 MiB as either", u'ä', kLimit / 2, true},
        {"a character more than either", u'ä', kLimit / 2 + 1, false},
    };
    for (const Size& size : sizes) {
        condition.records[3].value = SpStr(QString(size.count, QChar(size.unit)));
        SpSaveReport report;
        ASSERT_EQ(save(report), size.fits ? S_OK : SP_E_TOO_LONG) << size.what;
        SpCondition back;
        ASSERT_EQ(transitions().mhLoadCondition(1, back), S_OK) << size.what;
        EXPECT_EQ(back.records == condition.records, size.fits) << size.what;
        EXPECT_EQ(report.row, size.fits ? -1 : 3) << size.what;
        condition.version = back.version;
    }
    EXPECT_EQ(SP_E_TOO_LONG, static_cast<HRESULT>(0x80040503U));
}

TEST_F(ConditionTexts, ATextThatIsTooLargeIsNamed)
{
    condition.records[1].extra = SpStr(QString(kLimit + 1, u'x'));
    SpSaveReport report;
    EXPECT_EQ(save(report), SP_E_TOO_LONG);
    EXPECT_EQ(report.message,
              QStringLiteral("Row 2: the extra text is larger than 16 MiB, which the "
                             "database cannot hold."));
    EXPECT_EQ(report.field, Field::Extra);
}

} // namespace
} // namespace condtree::test
