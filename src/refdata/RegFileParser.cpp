#include "RegFile.h"

#include <condtree/platform/RegistryStore.h>

#include <QStringDecoder>
#include <QStringList>

#include <algorithm>
#include <cstring>

namespace condtree {

namespace {

/// Ends the reading; it never leaves this file.
struct Malformed {
    int line;
    const char16_t* what;
};

QStringList decodedUtf16Lines(const QByteArray& bytes)
{
    QStringDecoder decode(QStringDecoder::Utf16LE, QStringDecoder::Flag::Stateless);
    const QStringList lines = QString(decode(bytes)).split(u'\n');
    if (bytes.size() % 2 != 0 || decode.hasError())
        throw Malformed{static_cast<int>(lines.size()), u"the text is not UTF-16"};
    return lines;
}

QStringList decodedUtf8Lines(const QByteArray& bytes)
{
    QStringList lines;
    for (const QByteArray& line : bytes.split('\n')) {
        QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        lines += decode(line);
        if (decode.hasError())
            throw Malformed{static_cast<int>(lines.size()), u"the text is not UTF-8"};
    }
    return lines;
}

/// Reads the lines of a file one after the other.
class Parser {
public:
    explicit Parser(const QByteArray& bytes)
        : m_lines(bytes.startsWith("\xFF\xFE")       ? decodedUtf16Lines(bytes.mid(2))
                  : bytes.startsWith("\xEF\xBB\xBF") ? decodedUtf8Lines(bytes.mid(3))
                                                     : decodedUtf8Lines(bytes))
    {
    }

    RegFile file();

private:
    [[noreturn]] void fail(const char16_t* what) const { throw Malformed{m_number, what}; }
    bool nextLine();
    void requireEnd(QStringView rest) const;
    void parseSection();
    void parseValue();
    CString takeQuoted(QStringView& rest) const;
    void parseData(RegValue& value, QStringView rest);
    [[nodiscard]] DWORD takeNumber(QStringView digits) const;
    void parseHex(RegValue& value, QStringView rest);
    void appendBytes(RegValue& value, QStringView bytes) const;

    QStringList m_lines;
    int m_number = 0; ///< Of the line being read, from 1.
    QStringView m_line;
    RegFile m_file;
    CString m_path;           ///< Of the section being read; empty before the first.
    bool m_isDeleted = false; ///< The section deletes its key.
};

bool Parser::nextLine()
{
    if (m_number == m_lines.size())
        return false;
    m_line = QStringView(m_lines[m_number++]).trimmed();
    return true;
}

RegFile Parser::file()
{
    nextLine();
    if (m_line != u"Windows Registry Editor Version 5.00")
        fail(u"the header is missing");
    while (nextLine()) {
        if (m_line.isEmpty() || m_line.startsWith(u';'))
            continue;
        if (m_line.startsWith(u'['))
            parseSection();
        else
            parseValue();
    }
    return std::move(m_file);
}

/// Nothing but a comment may stand behind what was read.
void Parser::requireEnd(QStringView rest) const
{
    rest = rest.trimmed();
    if (!rest.isEmpty() && !rest.startsWith(u';'))
        fail(u"unexpected text behind the entry");
}

void Parser::parseSection()
{
    const qsizetype end = m_line.lastIndexOf(u']');
    if (end < 0)
        fail(u"a key without its closing bracket");
    requireEnd(m_line.sliced(end + 1));
    QStringView path = m_line.sliced(1, end - 1);
    m_isDeleted = path.startsWith(u'-');
    if (m_isDeleted)
        path = path.sliced(1);
    m_path = path.toString();
    if (!RegFile::isPath(m_path))
        fail(u"not the path of a key");
    if (m_isDeleted)
        m_file.removeKey(m_path);
    else
        m_file.addKey(m_path);
}

void Parser::parseValue()
{
    RegValue value;
    QStringView rest = m_line;
    if (rest.startsWith(u'@'))
        rest = rest.sliced(1);
    else if (rest.startsWith(u'"'))
        value.name = takeQuoted(rest);
    else
        fail(u"neither a key nor a value");
    rest = rest.trimmed();
    if (!rest.startsWith(u'='))
        fail(u"a value without an equals sign");
    if (m_path.isEmpty())
        fail(u"a value outside any key");
    rest = rest.sliced(1).trimmed();
    if (rest.startsWith(u'-')) {
        requireEnd(rest.sliced(1));
        m_file.removeValue(m_path, value.name);
        return;
    }
    parseData(value, rest);
    if (!m_isDeleted)
        m_file.setValue(m_path, value);
}

/// The text at the front of rest, which begins with its quote; rest goes on behind it.
CString Parser::takeQuoted(QStringView& rest) const
{
    CString text;
    for (qsizetype i = 1; i < rest.size(); ++i) {
        if (rest[i] == u'"') {
            rest = rest.sliced(i + 1);
            if (!RegFile::isName(text))
                fail(u"a character that no text may hold");
            return text;
        }
        if (rest[i] == u'\\' && ++i < rest.size() && rest[i] != u'\\' && rest[i] != u'"')
            fail(u"a backslash that is not doubled");
        if (i < rest.size())
            text += rest[i];
    }
    fail(u"a text without its closing quote");
}

void Parser::parseData(RegValue& value, QStringView rest)
{
    if (rest.startsWith(u'"')) {
        const CString text = takeQuoted(rest);
        requireEnd(rest);
        value.type = REG_SZ;
        value.data.resize((static_cast<std::size_t>(text.size()) + 1) * sizeof(char16_t));
        std::memcpy(value.data.data(), text.utf16(), value.data.size());
    } else if (rest.startsWith(u"dword:", Qt::CaseInsensitive)) {
        const DWORD number = takeNumber(rest.sliced(6).split(u';').front().trimmed());
        value.type = REG_DWORD;
        value.data.resize(sizeof number);
        std::memcpy(value.data.data(), &number, sizeof number);
    } else if (rest.startsWith(u"hex:", Qt::CaseInsensitive)) {
        value.type = REG_BINARY;
        parseHex(value, rest.sliced(4));
    } else if (rest.startsWith(u"hex(", Qt::CaseInsensitive)) {
        const qsizetype end = rest.indexOf(u"):");
        if (end < 0)
            fail(u"a type without its closing bracket and colon");
        value.type = takeNumber(rest.sliced(4, end - 4));
        parseHex(value, rest.sliced(end + 2));
    } else {
        fail(u"data of an unknown kind");
    }
}

DWORD Parser::takeNumber(QStringView digits) const
{
    bool isNumber = false;
    const DWORD number = digits.toUInt(&isNumber, 16);
    const bool isHex = std::all_of(digits.begin(), digits.end(), [](QChar unit) {
        return (unit >= u'0' && unit <= u'9') || (unit.toLower() >= u'a' && unit.toLower() <= u'f');
    });
    if (!isNumber || !isHex || digits.size() > 8)
        fail(u"not a hexadecimal number of up to 8 digits");
    return number;
}

/// Bytes with commas between them; a backslash at the end of a line joins the next one.
void Parser::parseHex(RegValue& value, QStringView rest)
{
    for (;;) {
        QStringView part = rest.split(u';').front().trimmed();
        const bool goesOn = part.endsWith(u'\\');
        if (goesOn)
            part = part.chopped(1).trimmed();
        if (goesOn && part.endsWith(u','))
            part = part.chopped(1);
        else if (goesOn && !part.isEmpty())
            fail(u"a continued line without a comma at its end");
        appendBytes(value, part);
        if (!goesOn)
            return;
        if (!nextLine())
            fail(u"the last line announces another one");
        rest = m_line;
    }
}

void Parser::appendBytes(RegValue& value, QStringView bytes) const
{
    if (bytes.isEmpty())
        return;
    for (const QStringView digits : bytes.split(u',')) {
        const DWORD number = takeNumber(digits.trimmed());
        if (number > 0xFF)
            fail(u"a byte above ff");
        value.data.push_back(static_cast<std::uint8_t>(number));
    }
}

} // namespace

std::variant<RegFile, RegFileError> RegFile::parse(const QByteArray& text)
{
    try {
        return Parser(text).file();
    } catch (const Malformed& error) {
        return RegFileError{error.line, QString::fromUtf16(error.what)};
    }
}

} // namespace condtree
