#include "workbench/ConditionJson.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <limits>

using namespace condtree;
using namespace condtree::workbench;

namespace {

SpConditionRecord record(LONG rowKind, LONG condType, const QString& name, const QString& extra,
                         const QString& value, LONG argType, LONG op)
{
    return {rowKind, condType, name, extra, value, argType, op};
}

std::string written(const ConditionRecords& records)
{
    const Outcome<QByteArray> json = conditionToJson(records);
    return json.hasValue() ? json.value().toStdString() : json.failure().text.toStdString();
}

std::string refusal(const QByteArray& json)
{
    const Outcome<ConditionRecords> records = conditionFromJson(json);
    return records.hasValue() ? "(read)" : records.failure().text.toStdString();
}

/// A whole file with one record, in which one part is replaced by another.
QByteArray fileWith(const char* part, const char* replacement)
{
    QByteArray json = R"({"format":"condtree-condition","version":1,"records":[
{"rowKind":3,"condType":2,"name":"n","extra":"e","value":"v","argType":1,"operator":100}
]}
)";
    EXPECT_TRUE(json.contains(part)) << part;
    return json.replace(part, replacement);
}

TEST(ConditionJson, ARecordIsALineAndTheKeysHaveTheirOrder)
{
    EXPECT_EQ(written({record(3, 2, QStringLiteral("Author"), QStringLiteral("x"),
                              QStringLiteral("v"), 1, 100),
                       record(2, 0, {}, {}, {}, 0, 0)}),
              "{\"format\":\"condtree-condition\",\"version\":1,\"records\":[\n"
              "{\"rowKind\":3,\"condType\":2,\"name\":\"Author\",\"extra\":\"x\",\"value\":\"v\","
              "\"argType\":1,\"operator\":100},\n"
              "{\"rowKind\":2,\"condType\":0,\"name\":\"\",\"extra\":\"\",\"value\":\"\","
              "\"argType\":0,\"operator\":0}\n"
              "]}\n");
}

TEST(ConditionJson, AnEmptyConditionIsALine)
{
    EXPECT_EQ(written({}), "{\"format\":\"condtree-condition\",\"version\":1,\"records\":[]}\n");
    EXPECT_TRUE(conditionFromJson(QByteArray::fromStdString(written({}))).value().empty());
}

TEST(ConditionJson, OnlyQuotesBackslashesAndControlCharactersAreEscaped)
{
    const QString value = QStringLiteral("\"\\/\b\f\n\r\t\x01\x1f\x7fü顧\u2028\U0001F600");
    EXPECT_NE(written({record(3, 2, {}, {}, value, 1, 100)})
                  .find("\"value\":\"\\\"\\\\/\\b\\f\\n\\r\\t\\u0001\\u001f\x7fü顧\u2028"
                        "\U0001F600\""),
              std::string::npos);
}

TEST(ConditionJson, TheLargestAndSmallestNumbersAreKept)
{
    const LONG least = std::numeric_limits<LONG>::min();
    const LONG most = std::numeric_limits<LONG>::max();
    const ConditionRecords records{record(least, most, {}, {}, {}, least, most)};
    const Outcome<QByteArray> json = conditionToJson(records);
    EXPECT_TRUE(json.value().contains("\"rowKind\":-2147483648,\"condType\":2147483647"));
    EXPECT_EQ(conditionFromJson(json.value()).value(), records);
}

TEST(ConditionJson, TheWriterRefusesTextThatNoFileCarries)
{
    const QString high(QChar(0xD800));
    const QString low(QChar(0xDFFF));
    const SpConditionRecord good = record(3, 2, {}, {}, {}, 1, 100);
    struct Row {
        const char* name;
        ConditionRecords records;
        const char* line;
    };
    const Row rows[] = {
        {"a null in the first row",
         {record(3, 2, QString(QChar(0)), {}, {}, 1, 100)},
         "row 1: the field name holds U+0000, which a file cannot carry"},
        {"a high surrogate at the end",
         {good, record(3, 2, {}, QStringLiteral("a") + high, {}, 1, 1)},
         "row 2: the field extra holds the unpaired surrogate U+D800, which a file cannot carry"},
        {"a low surrogate",
         {good, good, record(3, 2, {}, {}, low + QStringLiteral("a"), 1, 1)},
         "row 3: the field value holds the unpaired surrogate U+DFFF, which a file cannot carry"},
        {"surrogates in the wrong order",
         {record(3, 2, {}, {}, low + high, 1, 1)},
         "row 1: the field value holds the unpaired surrogate U+DFFF, which a file cannot carry"},
        {"two high ones",
         {record(3, 2, {}, {}, high + high + low, 1, 1)},
         "row 1: the field value holds the unpaired surrogate U+D800, which a file cannot carry"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(written(row.records), row.line) << row.name;
}

TEST(ConditionJson, WhatIsWrittenIsReadBack)
{
    const ConditionRecords records{
        record(3, 1, QStringLiteral("FilePath"), {}, QStringLiteral("\\a\\ \"b\""), 1, 106),
        record(2, 0, {}, {}, {}, 0, 0),
        record(4, 99, QStringLiteral("ü顧"), QStringLiteral("\n"), QStringLiteral("\U0001F600"), 7,
               -1)};
    EXPECT_EQ(conditionFromJson(conditionToJson(records).value()).value(), records);
}

QString arbitraryText()
{
    QString text;
    for (const int unit : *rc::gen::container<std::vector<int>>(
             rc::gen::oneOf(rc::gen::inRange(1, 0x80), rc::gen::inRange(0x80, 0xD800),
                            rc::gen::inRange(0xE000, 0x110000))))
        text += QString::fromUcs4(reinterpret_cast<const char32_t*>(&unit), 1);
    return text;
}

RC_GTEST_PROP(ConditionJson, EveryConditionSurvivesTheFile, ())
{
    ConditionRecords records;
    const int count = *rc::gen::inRange(0, 5);
    for (int i = 0; i < count; ++i)
        records.push_back(record(*rc::gen::arbitrary<LONG>(), *rc::gen::arbitrary<LONG>(),
                                 arbitraryText(), arbitraryText(), arbitraryText(),
                                 *rc::gen::arbitrary<LONG>(), *rc::gen::arbitrary<LONG>()));
    const Outcome<QByteArray> json = conditionToJson(records);
    RC_ASSERT(json.hasValue());
    const Outcome<ConditionRecords> read = conditionFromJson(json.value());
    RC_ASSERT(read.hasValue());
    RC_ASSERT(read.value() == records);
    RC_ASSERT(conditionToJson(read.value()).value() == json.value());
    RC_ASSERT(json.value().count('\n') == (count == 0 ? 1 : count + 2));
}

RC_GTEST_PROP(ConditionJson, NoTruncatedFileIsRead, ())
{
    const QByteArray whole = conditionToJson({record(3, 2, QStringLiteral("ü"), {}, {}, 1, 100),
                                              record(2, 0, {}, {}, {}, 0, 0)})
                                 .value();
    // Without its last newline the file is still whole.
    const auto length = *rc::gen::inRange<qsizetype>(0, whole.size() - 1);
    RC_ASSERT(refusal(whole.first(length)) != "(read)");
}

RC_GTEST_PROP(ConditionJson, ReadingBytesOfAnyKindEndsInAnAnswer, ())
{
    QByteArray json = fileWith("3", "3");
    const auto flips = *rc::gen::container<std::vector<std::pair<unsigned, char>>>(
        rc::gen::pair(rc::gen::arbitrary<unsigned>(), rc::gen::arbitrary<char>()));
    for (const auto& [place, byte] : flips)
        json[static_cast<qsizetype>(place % static_cast<unsigned>(json.size()))] = byte;
    const std::string answer = refusal(json);
    RC_ASSERT(!answer.empty());
    RC_ASSERT(std::none_of(answer.begin(), answer.end(), [](char c) { return c == '\n'; }));
}

TEST(ConditionJson, KeysMayStandInAnyOrder)
{
    const auto read = conditionFromJson(
        R"( {"records" : [{"operator":1,"argType":2,"value":"v","extra":"e","name":"n",
        "condType":3,"rowKind":4}], "version":1, "format":"condtree-condition"} )");
    ASSERT_TRUE(read.hasValue());
    EXPECT_EQ(read.value(), ConditionRecords{record(4, 3, QStringLiteral("n"), QStringLiteral("e"),
                                                    QStringLiteral("v"), 2, 1)});
}

TEST(ConditionJson, AUtf8ByteOrderMarkIsSkippedAndCounted)
{
    EXPECT_EQ(refusal("\xEF\xBB\xBF" + fileWith("3", "3")), "(read)");
    EXPECT_EQ(refusal("[1,]"), "not JSON: object is missing after a comma (byte 4, line 1)");
    EXPECT_EQ(refusal("\xEF\xBB\xBF[1,]"),
              "not JSON: object is missing after a comma (byte 7, line 1)");
}

TEST(ConditionJson, NumbersMayBeWrittenInAnyWholeForm)
{
    struct Row {
        const char* number;
        LONG value;
    };
    const Row rows[] = {{"0", 0},      {"-0", 0},
                        {"1e3", 1000}, {"1.0", 1},
                        {"20E-1", 2},  {"-2147483648", std::numeric_limits<LONG>::min()}};
    for (const Row& row : rows) {
        const auto read =
            conditionFromJson(fileWith(":100", (QByteArray(":") + row.number).constData()));
        ASSERT_TRUE(read.hasValue()) << row.number << read.failure().text.toStdString();
        EXPECT_EQ(read.value().front().op, row.value) << row.number;
    }
}

TEST(ConditionJson, EscapedKeysAndTextsAreRead)
{
    const auto read = conditionFromJson(
        fileWith("\"value\":\"v\"", R"("val\u0075e":"\u00fc\/\"\\\b\f\n\r\t\ud83d\ude00")"));
    ASSERT_TRUE(read.hasValue()) << read.failure().text.toStdString();
    EXPECT_EQ(read.value().front().value.str(), QStringLiteral("ü/\"\\\b\f\n\r\t\U0001F600"));
}

struct Refused {
    const char* name;
    QByteArray json;
    const char* line;
};

void expectRefused(const std::vector<Refused>& rows)
{
    for (const Refused& row : rows)
        EXPECT_EQ(refusal(row.json), row.line) << row.name;
}

TEST(ConditionJson, WhatIsNoJsonIsRefusedWithItsPlace)
{
    expectRefused({
        {"empty", "", "the file is empty"},
        {"blank", " \n ", "not JSON: illegal value (byte 3, line 2)"},
        {"a word", "hello", "not JSON: illegal value (byte 1, line 1)"},
        {"a number", "1", "not JSON: illegal value (byte 1, line 1)"},
        {"cut", "{\"format\":\n\"cond", "not JSON: unterminated string (byte 16, line 2)"},
        {"a comma too many", "[1,]", "not JSON: object is missing after a comma (byte 4, line 1)"},
        {"more behind", fileWith("]}\n", "]}\nx"),
         "not JSON: garbage at the end of the document (byte 147, line 4)"},
        {"broken UTF-8", fileWith("\"v\"", "\"\xff\""),
         "not JSON: invalid UTF8 string (byte 113, line 2)"},
        {"a surrogate in UTF-8", fileWith("\"v\"", "\"\xed\xa0\x80\""),
         "not JSON: invalid UTF8 string (byte 113, line 2)"},
        {"a wide escape", fileWith("\"v\"", "\"\\u12x4\""),
         "not JSON: invalid escape sequence (byte 117, line 2)"},
        {"too deep", QByteArray(2000, '['),
         "not JSON: too deeply nested document (byte 1025, line 1)"},
        {"a number too large", fileWith(":100", ":1e999"),
         "not JSON: illegal number (byte 144, line 2)"},
    });
}

TEST(ConditionJson, WhatTheParserLetsThroughIsRefusedToo)
{
    expectRefused({
        {"a field twice", fileWith("\"name\":\"n\"", "\"name\":\"n\",\"name\":\"n\""),
         "not JSON: the key \"name\" is given twice (byte 92, line 2)"},
        {"a field twice, once escaped",
         fileWith("\"name\":\"n\"", "\"name\":\"n\",\"n\\u0061me\":\"m\""),
         "not JSON: the key \"name\" is given twice (byte 92, line 2)"},
        {"the format twice",
         fileWith("\"version\"", "\"format\":\"condtree-condition\",\"version\""),
         "not JSON: the key \"format\" is given twice (byte 31, line 1)"},
        {"a raw newline", fileWith("\"v\"", "\"\n\""),
         "not JSON: a control character in a text (byte 113, line 2)"},
        {"a raw null", fileWith("\"v\"", "\"~\"").replace('~', '\0'),
         "not JSON: a control character in a text (byte 113, line 2)"},
        {"an unknown escape", fileWith("\"v\"", "\"\\x41\""),
         "not JSON: an unknown escape sequence (byte 113, line 2)"},
        {"nothing after the point", fileWith(":100", ":1."),
         "not JSON: an incomplete number (byte 140, line 2)"},
        {"nothing before the point", fileWith(":100", ":.5"),
         "not JSON: an incomplete number (byte 139, line 2)"},
    });
}

TEST(ConditionJson, OtherEncodingsAreRefused)
{
    const char* line = "the text is in UTF-16 or UTF-32; UTF-8 is expected";
    const QByteArray plain = "{}";
    const auto wide = [&](int before, int after) {
        QByteArray text;
        for (const char c : plain)
            text += QByteArray(before, '\0') + c + QByteArray(after, '\0');
        return text;
    };
    expectRefused({
        {"UTF-16 little-endian with a mark", "\xFF\xFE" + wide(0, 1), line},
        {"UTF-16 big-endian with a mark", "\xFE\xFF" + wide(1, 0), line},
        {"UTF-16 little-endian", wide(0, 1), line},
        {"UTF-16 big-endian", wide(1, 0), line},
        {"UTF-32 little-endian", wide(0, 3), line},
        {"UTF-32 big-endian", wide(3, 0), line},
    });
}

TEST(ConditionJson, AHeadOfAnotherKindIsRefused)
{
    expectRefused({
        {"a list", "[]", "an object is expected, not a list"},
        {"nothing", "{}", "format: the field is missing"},
        {"no version", fileWith("\"version\":1,", ""), "version: the field is missing"},
        {"no records", R"({"format":"condtree-condition","version":1})",
         "records: the field is missing"},
        {"another format", fileWith("condtree-condition", "other\\n"),
         "format: \"condtree-condition\" is expected, not \"other\\u000a\""},
        {"a number for the format", fileWith("\"condtree-condition\"", "1"),
         "format: a text is expected, not a number"},
        {"a newer version", fileWith("\"version\":1", "\"version\":2"),
         "version: 1 is expected, not 2"},
        {"half a version", fileWith("\"version\":1", "\"version\":1.5"),
         "version: 1.5 is no whole number of 32 bits"},
        {"a text for the version", fileWith("\"version\":1", "\"version\":\"1\""),
         "version: a number is expected, not a text"},
        {"an object for the records", R"({"format":"condtree-condition","version":1,"records":{}})",
         "records: a list is expected, not an object"},
        {"one field more", fileWith("\"version\"", "\"note\":1,\"version\""),
         "the field \"note\" is unknown"},
        {"a field in another case", fileWith("\"version\"", "\"Version\""),
         "version: the field is missing"},
    });
}

TEST(ConditionJson, ARecordWithAFieldAmissIsRefusedByItsName)
{
    const QByteArray two = R"("operator":100},
{"rowKind":3,"condType":2,"name":"","extra":"","value":"","argType":1,"operator":"100"})";
    expectRefused({
        {"the second record", fileWith("\"operator\":100}", two.constData()),
         "records[1].operator: a number is expected, not a text"},
        {"no row kind", fileWith("\"rowKind\":3,", ""), "records[0].rowKind: the field is missing"},
        {"no type", fileWith("\"condType\":2,", ""), "records[0].condType: the field is missing"},
        {"no name", fileWith("\"name\":\"n\",", ""), "records[0].name: the field is missing"},
        {"no extra", fileWith("\"extra\":\"e\",", ""), "records[0].extra: the field is missing"},
        {"no value", fileWith("\"value\":\"v\",", ""), "records[0].value: the field is missing"},
        {"no argument type", fileWith("\"argType\":1,", ""),
         "records[0].argType: the field is missing"},
        {"no operator", fileWith(",\"operator\":100", ""),
         "records[0].operator: the field is missing"},
        {"one field more", fileWith("\"rowKind\"", "\"a\\nb\":1,\"rowKind\""),
         "records[0]: the field \"a\\u000ab\" is unknown"},
        {"no object", R"({"format":"condtree-condition","version":1,"records":[7]})",
         "records[0]: an object is expected, not a number"},
        {"a list for an object", R"({"format":"condtree-condition","version":1,"records":[[]]})",
         "records[0]: an object is expected, not a list"},
        {"a number for the name", fileWith("\"n\"", "1"),
         "records[0].name: a text is expected, not a number"},
        {"null for the extra", fileWith("\"e\"", "null"),
         "records[0].extra: a text is expected, not null"},
        {"true for the value", fileWith("\"v\"", "true"),
         "records[0].value: a text is expected, not true or false"},
        {"an object for the number", fileWith(":100", ":{}"),
         "records[0].operator: a number is expected, not an object"},
        {"a fraction", fileWith(":100", ":100.5"),
         "records[0].operator: 100.5 is no whole number of 32 bits"},
        {"a small fraction", fileWith(":100", ":1e-9"),
         "records[0].operator: 1e-09 is no whole number of 32 bits"},
        {"one too much", fileWith(":100", ":2147483648"),
         "records[0].operator: 2147483648 is no whole number of 32 bits"},
        {"one too little", fileWith(":100", ":-2147483649"),
         "records[0].operator: -2147483649 is no whole number of 32 bits"},
        {"far too much", fileWith(":100", ":1e300"),
         "records[0].operator: 1e+300 is no whole number of 32 bits"},
    });
}

TEST(ConditionJson, TextsThatNoDatabaseCarriesAreRefusedByTheirPlace)
{
    expectRefused({
        {"an unpaired high surrogate", fileWith("\"v\"", "\"a\\ud800b\""),
         "records[0].value: the text holds the unpaired surrogate U+D800"},
        {"an unpaired low surrogate", fileWith("\"n\"", "\"\\uDC00\""),
         "records[0].name: the text holds the unpaired surrogate U+DC00"},
        {"a null", fileWith("\"e\"", "\"a\\u0000\""), "records[0].extra: the text holds U+0000"},
    });
}

TEST(ConditionJson, TheWriterRefusesWhatCouldNotBeReadAgain)
{
    const SpConditionRecord large{3, 2, {}, {}, QString(16'000'000, QLatin1Char('x')), 1, 100};
    EXPECT_TRUE(conditionToJson(ConditionRecords(4, large)).hasValue());
    EXPECT_EQ(
        conditionToJson(ConditionRecords(5, large)).failure().text,
        QStringLiteral("the condition takes more than the 67108864 bytes that a file may have"));
}

TEST(ConditionJson, ControlCharactersAreWrittenShort)
{
    const SpConditionRecord record{3, 2, u"\b\f\n\r\t\u0001", {}, {}, 1, 100};
    EXPECT_TRUE(conditionToJson({record}).value().contains("\"\\b\\f\\n\\r\\t\\u0001\""));
    EXPECT_EQ(conditionFromJson(conditionToJson({record}).value()).value(),
              ConditionRecords{record});
}

TEST(ConditionJson, MoreValuesThanMemoryIsMeantForAreRefusedByTheirPlace)
{
    EXPECT_EQ(conditionFromJson("[\n" + QByteArray(4'000'000, ',')).failure().text,
              QStringLiteral("more than 4000000 values (byte 4000000, line 2)"));
    // Signs within texts are no values.
    EXPECT_EQ(conditionFromJson("[\"\\\"" + QByteArray(4'000'000, ',') + "\"]").failure().text,
              QStringLiteral("an object is expected, not a list"));
}

} // namespace
