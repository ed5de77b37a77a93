#include <condtree/refdata/RegFile.h>

#include "refdata/SettingsFolder.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace condtree {
namespace {

using test::bytesOf;
using Bytes = std::vector<std::uint8_t>;

constexpr const char* kHeader = "Windows Registry Editor Version 5.00\n";
constexpr const char* kSection = "[HKEY_CURRENT_USER\\A]\n";
const CString kKey = QStringLiteral("HKEY_CURRENT_USER\\A");

/// What a text parses to; fails the test when it is malformed.
RegFile parsed(const QByteArray& text)
{
    auto result = RegFile::parse(text);
    if (const auto* error = std::get_if<RegFileError>(&result)) {
        ADD_FAILURE() << "line " << error->line << ": " << error->what.toStdString();
        return {};
    }
    return std::get<RegFile>(result);
}

/// The value of a single line of a key.
RegValue valueOf(const QByteArray& line, const CString& name = QStringLiteral("x"))
{
    const RegFile file = parsed(kHeader + QByteArray(kSection) + line);
    const RegValue* value = file.value(kKey, name);
    if (value == nullptr) {
        ADD_FAILURE() << "no value";
        return {};
    }
    return *value;
}

QByteArray utf16(const QString& text)
{
    return "\xFF\xFE" + QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
}

TEST(RegFile, TheHeaderAloneIsAnEmptyFile)
{
    EXPECT_EQ(parsed(kHeader), RegFile());
    EXPECT_EQ(parsed("Windows Registry Editor Version 5.00"), RegFile());
    EXPECT_EQ(RegFile().write(), QByteArray(kHeader));
}

struct DataRow {
    const char* line;
    RegValue value;
};

TEST(RegFile, ReadsEveryKindOfData)
{
    const CString x = QStringLiteral("x");
    const DataRow rows[] = {
        {"\"x\"=\"text\"", {x, REG_SZ, bytesOf(QStringLiteral("text"))}},
        {"\"x\"=\"\"", {x, REG_SZ, {0, 0}}},
        {"\"x\"=\"a\\\\b\\\"c\"", {x, REG_SZ, bytesOf(QStringLiteral("a\\b\"c"))}},
        {"\"x\"=\"C:\\\\\"", {x, REG_SZ, bytesOf(QStringLiteral("C:\\"))}},
        {"\"x\"=\"; no comment\"", {x, REG_SZ, bytesOf(QStringLiteral("; no comment"))}},
        {"\"x\"=\"\xC3\xA5\"", {x, REG_SZ, {0xE5, 0, 0, 0}}},
        {"\"x\"=dword:0000000a", {x, REG_DWORD, {10, 0, 0, 0}}},
        {"\"x\"=dword:DEADBEEF", {x, REG_DWORD, {0xEF, 0xBE, 0xAD, 0xDE}}},
        {"\"x\"=DWORD:1", {x, REG_DWORD, {1, 0, 0, 0}}},
        {"\"x\"=hex:01,fF,00", {x, REG_BINARY, {1, 0xFF, 0}}},
        {"\"x\"=hex:", {x, REG_BINARY, {}}},
        {"\"x\"=hex(0):", {x, REG_NONE, {}}},
        {"\"x\"=hex(1):41,00", {x, REG_SZ, {0x41, 0}}},
        {"\"x\"=hex(2):25,00,00,00", {x, REG_EXPAND_SZ, {0x25, 0, 0, 0}}},
        {"\"x\"=hex(4):01,02", {x, REG_DWORD, {1, 2}}},
        {"\"x\"=hex(5):00,01,00,00", {x, REG_DWORD_BIG_ENDIAN, {0, 1, 0, 0}}},
        {"\"x\"=hex(7):41,00,00,00,00,00", {x, REG_MULTI_SZ, {0x41, 0, 0, 0, 0, 0}}},
        {"\"x\"=hex(b):08,07,06,05,04,03,02,01", {x, REG_QWORD, {8, 7, 6, 5, 4, 3, 2, 1}}},
        {"\"x\"=hex(ffff0001):", {x, 0xFFFF0001U, {}}},
        {"\"x\"=hex:01,\\\n  02,03,\\\r\n04", {x, REG_BINARY, {1, 2, 3, 4}}},
        {"\"x\"=hex:\\\n  02", {x, REG_BINARY, {2}}},
        {" \"x\" = hex: 01 , 02 ; why", {x, REG_BINARY, {1, 2}}},
        {"\"x\"=dword:1 ; why", {x, REG_DWORD, {1, 0, 0, 0}}},
        {"\"x\"=\"text\" ; why", {x, REG_SZ, bytesOf(QStringLiteral("text"))}},
        {"\"x\"=dword:1\n\"X\"=dword:2", {x, REG_DWORD, {2, 0, 0, 0}}},
    };
    for (const DataRow& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(valueOf(row.line), row.value);
    }
}

TEST(RegFile, ReadsTheDefaultValueOfAKey)
{
    EXPECT_EQ(valueOf("@=\"v\"", {}), (RegValue{{}, REG_SZ, bytesOf(QStringLiteral("v"))}));
}

TEST(RegFile, ReadsNamesWithBackslashesAndQuotes)
{
    const CString name = QStringLiteral("a\\b\"c=d;");
    EXPECT_EQ(valueOf("\"a\\\\b\\\"c=d;\"=dword:1", name).name, name);
}

TEST(RegFile, ReadsTheEncodingsThatExportsComeIn)
{
    const QString text =
        QStringLiteral("Windows Registry Editor Version 5.00\r\n\r\n"
                       "[HKEY_CURRENT_USER\\\u00C5\u4E2D]\r\n\"\U0001F600\"=\"\u00E9\"\r\n");
    const RegFile plain = parsed(text.toUtf8());
    EXPECT_NE(plain.value(QStringLiteral("HKEY_CURRENT_USER\\\u00C5\u4E2D"),
                          QStringLiteral("\U0001F600")),
              nullptr);
    EXPECT_EQ(parsed("\xEF\xBB\xBF" + text.toUtf8()), plain);
    EXPECT_EQ(parsed(utf16(text)), plain);
}

TEST(RegFile, PassesOverCommentsAndEmptyLines)
{
    const RegFile file = parsed(kHeader + QByteArray("\n; a comment\\\n  ; [HKEY_USERS\\No]\n\t\n")
                                + "[HKEY_CURRENT_USER\\A] ; a comment\n;\"x\"=\"v\"\n");
    EXPECT_TRUE(file.hasKey(kKey));
    EXPECT_FALSE(file.hasKey(QStringLiteral("HKEY_USERS")));
    EXPECT_EQ(file.value(kKey, QStringLiteral("x")), nullptr);
}

TEST(RegFile, JoinsSectionsOfOneKey)
{
    const RegFile file = parsed(kHeader
                                + QByteArray("[HKEY_CURRENT_USER\\A]\n\"x\"=dword:1\n"
                                             "[hkey_current_user\\a]\n\"y\"=dword:2\n"));
    EXPECT_NE(file.value(kKey, QStringLiteral("x")), nullptr);
    EXPECT_NE(file.value(kKey, QStringLiteral("Y")), nullptr);
}

TEST(RegFile, ObeysTheLinesThatDelete)
{
    const RegFile file =
        parsed(kHeader
               + QByteArray("[HKEY_CURRENT_USER\\A]\n\"x\"=dword:1\n\"y\"=dword:1\n"
                            "\"X\"=-\n"
                            "[HKEY_CURRENT_USER\\B]\n[HKEY_CURRENT_USER\\B\\C]\n"
                            "[HKEY_CURRENT_USER\\Bc]\n"
                            "[-HKEY_CURRENT_USER\\b]\n\"z\"=dword:1\n"));
    EXPECT_EQ(file.value(kKey, QStringLiteral("x")), nullptr);
    EXPECT_NE(file.value(kKey, QStringLiteral("y")), nullptr);
    EXPECT_FALSE(file.hasKey(QStringLiteral("HKEY_CURRENT_USER\\B")));
    EXPECT_TRUE(file.hasKey(QStringLiteral("HKEY_CURRENT_USER\\Bc")));
}

TEST(RegFile, AKeyImpliesThoseAboveIt)
{
    RegFile file;
    file.addKey(QStringLiteral("HKEY_CURRENT_USER\\Software\\Maker"));
    EXPECT_TRUE(file.hasKey(QStringLiteral("hkey_current_user\\SOFTWARE\\maker")));
    EXPECT_TRUE(file.hasKey(QStringLiteral("HKEY_CURRENT_USER\\Software")));
    EXPECT_TRUE(file.hasKey(QStringLiteral("HKEY_CURRENT_USER")));
    EXPECT_FALSE(file.hasKey(QStringLiteral("HKEY_CURRENT_USER\\Soft")));
    EXPECT_FALSE(file.hasKey(QStringLiteral("HKEY_CURRENT_USER\\Software\\Maker\\x")));
}

TEST(RegFile, KeepsTheFirstSpellingOfNames)
{
    RegFile file;
    file.setValue(QStringLiteral("HKEY_CURRENT_USER\\Abc"),
                  {QStringLiteral("Name"), REG_DWORD, {}});
    file.setValue(QStringLiteral("HKEY_CURRENT_USER\\ABC"),
                  {QStringLiteral("NAME"), REG_BINARY, {1}});
    EXPECT_EQ(file.write(), QByteArray(kHeader) + "\n[HKEY_CURRENT_USER\\Abc]\n\"Name\"=hex:01\n");
}

struct MalformedRow {
    const char* why;
    QByteArray text;
    int line;
};

const QByteArray kStart = kHeader + QByteArray(kSection); // two lines

const std::vector<MalformedRow> kMalformed{
    {"an empty file", "", 1},
    {"another header", "REGEDIT4\n", 1},
    {"an empty line before the header", "\n" + QByteArray(kHeader), 1},
    {"a value outside any key", kHeader + QByteArray("\n\"x\"=dword:1\n"), 3},
    {"a key without its bracket", kHeader + QByteArray("[HKEY_CURRENT_USER\\A\n"), 2},
    {"an unknown root", kHeader + QByteArray("[Software\\A]\n"), 2},
    {"a root's abbreviation", kHeader + QByteArray("[HKCU\\A]\n"), 2},
    {"an empty key", kHeader + QByteArray("[]\n"), 2},
    {"an empty part of a key", kHeader + QByteArray("[HKEY_CURRENT_USER\\\\A]\n"), 2},
    {"a backslash at a key's end", kHeader + QByteArray("[HKEY_CURRENT_USER\\A\\]\n"), 2},
    {"text behind a key", kHeader + QByteArray("[HKEY_CURRENT_USER\\A] x\n"), 2},
    {"a control character in a key", kHeader + QByteArray("[HKEY_CURRENT_USER\\A\tB]\n"), 2},
    {"bare text", kStart + "x\n", 3},
    {"a name without its quote", kStart + "\"x=dword:1\n", 3},
    {"a name without a value", kStart + "\"x\"\n", 3},
    {"a text without its quote", kStart + "\"x\"=\"text\n\"y\"=dword:1\n", 3},
    {"a text whose quote is escaped", kStart + "\"x\"=\"C:\\\"\n", 3},
    {"a text that ends in a backslash", kStart + "\"x\"=\"C:\\\n", 3},
    {"a single backslash", kStart + "\"x\"=\"C:\\Prog\"\n", 3},
    {"text behind a text", kStart + "\"x\"=\"a\" b\n", 3},
    {"a control character in a text", kStart + "\"x\"=\"a\tb\"\n", 3},
    {"no data", kStart + "\"x\"=\n", 3},
    {"data of an unknown kind", kStart + "\"x\"=qword:1\n", 3},
    {"a number without digits", kStart + "\"x\"=dword:\n", 3},
    {"a number of nine digits", kStart + "\"x\"=dword:000000001\n", 3},
    {"a number that is none", kStart + "\"x\"=dword:xyz\n", 3},
    {"a number with a sign", kStart + "\"x\"=dword:-1\n", 3},
    {"a number with a prefix", kStart + "\"x\"=dword:0x1\n", 3},
    {"a type without its bracket", kStart + "\"x\"=hex(2:00\n", 3},
    {"a type that is none", kStart + "\"x\"=hex(z):00\n", 3},
    {"no type", kStart + "\"x\"=hex():00\n", 3},
    {"a byte that is none", kStart + "\"x\"=hex:0g\n", 3},
    {"a byte too large", kStart + "\"x\"=hex:100\n", 3},
    {"a missing byte", kStart + "\"x\"=hex:00,,01\n", 3},
    {"a comma at the end", kStart + "\"x\"=hex:00,\n", 3},
    {"a continued line without a comma", kStart + "\"x\"=hex:00\\\n01\n", 3},
    {"a continued line with a bad byte", kStart + "\"x\"=hex:00,\\\n01,\\\n0x2\n", 5},
    {"a last line that goes on", kStart + "\"x\"=hex:00,\\", 3},
    {"text behind a deletion", kStart + "\"x\"=-1\n", 3},
    {"bytes that are no UTF-8", kStart + ";\n\"x\"=\"\xFF\"\n", 4},
    {"a null", kStart + QByteArray("\"x\"=\"a\0b\"\n", 10), 3},
    {"half a unit of UTF-16", utf16(QStringLiteral("Windows Registry Editor Version 5.00\n")) + "x",
     2},
    {"half a pair in UTF-16",
     utf16(QStringLiteral("Windows Registry Editor Version 5.00\n[HKEY_CURRENT_USER\\A")
           + QChar(0xD800) + QStringLiteral("]\n")),
     2},
};

TEST(RegFile, AMalformedFileIsRefusedWithItsLine)
{
    for (const MalformedRow& row : kMalformed) {
        SCOPED_TRACE(row.why);
        const auto result = RegFile::parse(row.text);
        const auto* error = std::get_if<RegFileError>(&result);
        ASSERT_NE(error, nullptr);
        EXPECT_EQ(error->line, row.line);
        EXPECT_FALSE(error->what.isEmpty());
    }
}

TEST(RegFile, WritesEachTypeInTheFormThatExportsUse)
{
    const CString x = QStringLiteral("x");
    const DataRow rows[] = {
        {"\"x\"=\"a\\\\b\\\"c\"", {x, REG_SZ, bytesOf(QStringLiteral("a\\b\"c"))}},
        {"\"x\"=\"\xC3\xA5\"", {x, REG_SZ, bytesOf(QStringLiteral("\u00E5"))}},
        {"\"x\"=dword:0000000a", {x, REG_DWORD, {10, 0, 0, 0}}},
        {"\"x\"=hex:01,ff", {x, REG_BINARY, {1, 0xFF}}},
        {"\"x\"=hex(5):00,01,00,00", {x, REG_DWORD_BIG_ENDIAN, {0, 1, 0, 0}}},
        {"\"x\"=hex(b):01,00,00,00,00,00,00,00", {x, REG_QWORD, {1, 0, 0, 0, 0, 0, 0, 0}}},
        {"\"x\"=hex(2):41,00,00,00", {x, REG_EXPAND_SZ, {0x41, 0, 0, 0}}},
        // Texts that quotes cannot carry, and a number of the wrong size
        {"\"x\"=hex(1):", {x, REG_SZ, {}}},
        {"\"x\"=hex(1):41,00", {x, REG_SZ, {0x41, 0}}},
        {"\"x\"=hex(1):41,00,00,00,00,00", {x, REG_SZ, {0x41, 0, 0, 0, 0, 0}}},
        {"\"x\"=hex(1):0a,00,00,00", {x, REG_SZ, {0x0A, 0, 0, 0}}},
        {"\"x\"=hex(1):00,d8,00,00", {x, REG_SZ, {0, 0xD8, 0, 0}}},
        {"\"x\"=hex(1):41,00,00", {x, REG_SZ, {0x41, 0, 0}}},
        {"\"x\"=hex(4):01,00", {x, REG_DWORD, {1, 0}}},
        {"@=hex:", {{}, REG_BINARY, {}}},
    };
    for (const DataRow& row : rows) {
        SCOPED_TRACE(row.line);
        RegFile file;
        file.setValue(kKey, row.value);
        EXPECT_EQ(file.write(), QByteArray(kHeader) + "\n" + kSection + row.line + "\n");
    }
}

TEST(RegFile, BreaksLongData)
{
    RegFile file;
    file.setValue(kKey, {QStringLiteral("x"), REG_BINARY, Bytes(26, 7)});
    const QByteArray line = "\"x\"=hex:" + QByteArray("07,").repeated(25) + "\\\n  07\n";
    EXPECT_TRUE(file.write().endsWith(line));
    EXPECT_EQ(parsed(file.write()), file);
}

TEST(RegFile, TellsWhatCanBeANameAndAPath)
{
    EXPECT_TRUE(RegFile::isName(QString()));
    EXPECT_TRUE(RegFile::isName(QStringLiteral("a \"b\" \\ ] \U0001F600")));
    EXPECT_FALSE(RegFile::isName(QStringLiteral("a\nb")));
    EXPECT_FALSE(RegFile::isName(QString(QChar(0))));
    EXPECT_FALSE(RegFile::isName(QString(QChar(0xDC00))));
    EXPECT_TRUE(RegFile::isPath(QStringLiteral("HKEY_LOCAL_MACHINE\\a]b")));
    EXPECT_TRUE(RegFile::isPath(QStringLiteral("HKEY_USERS")));
    EXPECT_FALSE(RegFile::isPath(QString()));
    EXPECT_FALSE(RegFile::isPath(QStringLiteral("HKEY_LOCAL_MACHINE\\")));
    EXPECT_FALSE(RegFile::isPath(QStringLiteral("HKEY_LOCAL_MACHINES\\a")));
}

/// A text of units that are likely to be trouble, fit for a name.
rc::Gen<CString> anyName()
{
    const auto unit = rc::gen::oneOf(
        rc::gen::element<char16_t>(u'"', u'\\', u']', u'[', u';', u'=', u'-', u'@', u' ', u'A',
                                   u'a', u'\u00E5', u'\uFEFF', u'\u2028'),
        rc::gen::inRange<char16_t>(0x20, 0x7F), rc::gen::inRange<char16_t>(0xA0, 0xD7FF));
    return rc::gen::map(rc::gen::container<std::vector<char16_t>>(unit),
                        [](const auto& units) { return QStringView(units).toString(); });
}

/// The path of a key of up to three parts below a root.
rc::Gen<CString> anyPath()
{
    return rc::gen::map(rc::gen::container<std::vector<CString>>(anyName()), [](const auto& names) {
        CString path = QStringLiteral("HKEY_LOCAL_MACHINE");
        for (CString name : names) {
            name.remove(u'\\');
            if (!name.isEmpty())
                path += u'\\' + name;
        }
        return path;
    });
}

RC_GTEST_PROP(RegFileProperty, WhatIsWrittenIsReadBack, ())
{
    RegFile file;
    const auto keys = *rc::gen::inRange(0, 5);
    for (int k = 0; k < keys; ++k) {
        const CString path = *anyPath();
        file.addKey(path);
        const auto values = *rc::gen::inRange(0, 5);
        for (int v = 0; v < values; ++v) {
            const auto type = *rc::gen::oneOf(rc::gen::element<DWORD>(0, 1, 2, 3, 4, 5, 7, 11),
                                              rc::gen::arbitrary<DWORD>());
            const Bytes data = *rc::gen::oneOf(
                rc::gen::arbitrary<Bytes>(),
                rc::gen::map(anyName(), [](const CString& text) { return bytesOf(text); }));
            file.setValue(path, {*anyName(), type, data});
        }
    }
    const auto result = RegFile::parse(file.write());
    RC_ASSERT(std::holds_alternative<RegFile>(result));
    RC_ASSERT(std::get<RegFile>(result) == file);
    RC_ASSERT(std::get<RegFile>(result).write() == file.write());
}

RC_GTEST_PROP(RegFileProperty, AnyTextIsReadOrRefused, (const std::string& body))
{
    const auto result =
        RegFile::parse(kHeader + QByteArray(kSection) + QByteArray::fromStdString(body));
    if (const auto* error = std::get_if<RegFileError>(&result))
        RC_ASSERT(error->line >= 1);
    else
        RC_ASSERT(std::get<RegFile>(result).hasKey(kKey));
}

} // namespace
} // namespace condtree
