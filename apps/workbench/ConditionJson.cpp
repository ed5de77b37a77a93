#include "ConditionJson.h"

#include "JsonFlaws.h"
#include "Messages.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <cmath>
#include <limits>

namespace condtree::workbench {

namespace {

constexpr const char* kFormat = "condtree-condition";
constexpr int kVersion = 1;
constexpr qsizetype kMostValues = 4'000'000;

using Number = LONG SpConditionRecord::*;
using Text = SpStr SpConditionRecord::*;

/// A field of a record, under its key in the file.
struct Field {
    const char* key;
    std::variant<Number, Text> member;
};

// The keys and their order are persisted; append only, with another version.
constexpr std::array<Field, 7> kFields{{
    {"rowKind", &SpConditionRecord::rowKind},
    {"condType", &SpConditionRecord::condType},
    {"name", &SpConditionRecord::name},
    {"extra", &SpConditionRecord::extra},
    {"value", &SpConditionRecord::value},
    {"argType", &SpConditionRecord::argType},
    {"operator", &SpConditionRecord::op},
}};

/// What no file can carry of a text, by its Unicode number; none when all can be.
std::optional<QString> flawOfText(const QString& text)
{
    const auto name = [&](qsizetype i) {
        return QStringLiteral("U+%1").arg(QString::number(text[i].unicode(), 16).toUpper(), 4,
                                          QLatin1Char('0'));
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].isNull())
            return name(i);
        if (!text[i].isSurrogate())
            continue;
        const bool isPair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (!isPair)
            return QStringLiteral("the unpaired surrogate %1").arg(name(i));
        ++i;
    }
    return std::nullopt;
}

void appendText(QByteArray& json, const QString& text)
{
    json += '"';
    for (const char c : text.toUtf8()) {
        if (c == '"' || c == '\\')
            (json += '\\') += c;
        else if (c == '\n')
            json += "\\n";
        else if (c == '\r')
            json += "\\r";
        else if (c == '\t')
            json += "\\t";
        else if (c == '\b')
            json += "\\b";
        else if (c == '\f')
            json += "\\f";
        else if (c >= 0 && c < 0x20)
            json += "\\u00" + QByteArray(1, c).toHex();
        else
            json += c;
    }
    json += '"';
}

MaybeFailure appendRecord(QByteArray& json, const SpConditionRecord& record, std::size_t row)
{
    char separator = '{';
    for (const Field& field : kFields) {
        ((json += separator) += '"') += QByteArray(field.key) + "\":";
        separator = ',';
        if (const auto* number = std::get_if<Number>(&field.member)) {
            json += QByteArray::number(record.**number);
            continue;
        }
        const QString text = (record.*std::get<Text>(field.member)).str();
        if (const auto flaw = flawOfText(text))
            return Failure{QStringLiteral("row %1: the %2 holds %3, which a file cannot carry")
                               .arg(row + 1)
                               .arg(QLatin1String(field.key), *flaw)};
        appendText(json, text);
    }
    json += '}';
    return std::nullopt;
}

QString typeName(const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return QStringLiteral("true or false");
    case QJsonValue::Double:
        return QStringLiteral("a number");
    case QJsonValue::String:
        return QStringLiteral("a text");
    case QJsonValue::Array:
        return QStringLiteral("a list");
    case QJsonValue::Object:
        return QStringLiteral("an object");
    default:
        return QStringLiteral("null");
    }
}

Failure wrongType(const QString& place, const char* expected, const QJsonValue& found)
{
    return {QStringLiteral("%1: %2 is expected, not %3")
                .arg(place, QLatin1String(expected), typeName(found))};
}

MaybeFailure readNumber(const QString& place, const QJsonValue& value, LONG& number)
{
    if (!value.isDouble())
        return wrongType(place, "a number", value);
    const double read = value.toDouble();
    if (read != std::trunc(read) || read < std::numeric_limits<LONG>::min()
        || read > std::numeric_limits<LONG>::max())
        return Failure{QStringLiteral("%1: %2 is no whole number of 32 bits")
                           .arg(place, QString::number(read, 'g', 15))};
    number = static_cast<LONG>(read);
    return std::nullopt;
}

MaybeFailure readText(const QString& place, const QJsonValue& value, SpStr& text)
{
    if (!value.isString())
        return wrongType(place, "a text", value);
    if (const auto flaw = flawOfText(value.toString()))
        return Failure{QStringLiteral("%1: the text holds %2").arg(place, *flaw)};
    text = value.toString();
    return std::nullopt;
}

/// Fails when object lacks one of the keys or has another one. place is the object's; empty for the
/// whole.
MaybeFailure checkKeys(const QString& place, const QJsonObject& object, const QStringList& keys)
{
    const auto at = [&](const char* separator) {
        return place.isEmpty() ? QString() : place + QLatin1String(separator);
    };
    for (const QString& key : keys) {
        if (!object.contains(key))
            return Failure{QStringLiteral("%1%2: the field is missing").arg(at("."), key)};
    }
    for (auto i = object.begin(); i != object.end(); ++i) {
        if (!keys.contains(i.key()))
            return Failure{
                QStringLiteral("%1the field %2 is unknown").arg(at(": "), quoted(i.key()))};
    }
    return std::nullopt;
}

QStringList fieldKeys()
{
    QStringList keys;
    for (const Field& field : kFields)
        keys += QLatin1String(field.key);
    return keys;
}

Outcome<SpConditionRecord> readRecord(const QString& place, const QJsonValue& value,
                                      const QStringList& keys)
{
    if (!value.isObject())
        return wrongType(place, "an object", value);
    const QJsonObject object = value.toObject();
    if (const auto failure = checkKeys(place, object, keys))
        return *failure;
    SpConditionRecord record;
    for (std::size_t i = 0; i < kFields.size(); ++i) {
        const QString& key = keys[static_cast<qsizetype>(i)];
        const QString fieldPlace = place + QLatin1Char('.') + key;
        const auto* number = std::get_if<Number>(&kFields[i].member);
        const MaybeFailure failure =
            number != nullptr
                ? readNumber(fieldPlace, object[key], record.**number)
                : readText(fieldPlace, object[key], record.*std::get<Text>(kFields[i].member));
        if (failure)
            return *failure;
    }
    return record;
}

MaybeFailure checkHead(const QJsonObject& root)
{
    const QString format = QStringLiteral("format");
    const QString version = QStringLiteral("version");
    const QString records = QStringLiteral("records");
    if (const auto failure = checkKeys({}, root, QStringList{format, version, records}))
        return failure;
    if (!root[format].isString())
        return wrongType(format, "a text", root[format]);
    if (root[format].toString() != QLatin1String(kFormat))
        return Failure{QStringLiteral("format: %1 is expected, not %2")
                           .arg(quoted(QLatin1String(kFormat)), quoted(root[format].toString()))};
    LONG number = 0;
    if (const auto failure = readNumber(version, root[version], number))
        return failure;
    if (number != kVersion)
        return Failure{QStringLiteral("version: %1 is expected, not %2").arg(kVersion).arg(number)};
    if (!root[records].isArray())
        return wrongType(records, "a list", root[records]);
    return std::nullopt;
}

/// A failure at a byte of the whole file.
Failure failureAt(const QByteArray& json, const QString& what, qsizetype offset)
{
    const qsizetype at = std::min(offset, json.size());
    return {QStringLiteral("%1 (byte %2, line %3)")
                .arg(what)
                .arg(at)
                .arg(QByteArrayView(json).first(at).count('\n') + 1)};
}

Failure notJson(const QByteArray& json, const QString& what, qsizetype offset)
{
    return failureAt(json, QStringLiteral("not JSON: %1").arg(what), offset);
}

QString tooManyValues()
{
    return QStringLiteral("more than %1 values").arg(kMostValues);
}

MaybeFailure checkEncoding(const QByteArray& json)
{
    if (json.isEmpty())
        return Failure{QStringLiteral("the file is empty")};
    // The first character of a JSON text is ASCII, so that a null byte beside it tells wider
    // encodings.
    const bool isWide = json.startsWith("\xFF\xFE") || json.startsWith("\xFE\xFF")
                        || json.first(std::min<qsizetype>(json.size(), 2)).contains('\0');
    if (isWide)
        return Failure{QStringLiteral("the text is in UTF-16 or UTF-32; UTF-8 is expected")};
    return std::nullopt;
}

/// The document of a whole file; fails on everything that is no strict JSON.
Outcome<QJsonDocument> parsed(const QByteArray& json)
{
    if (const auto failure = checkEncoding(json))
        return *failure;
    const qsizetype mark = json.startsWith("\xEF\xBB\xBF") ? 3 : 0;
    const QByteArray text = QByteArray::fromRawData(json.constData() + mark, json.size() - mark);
    // The document takes many times the memory of its text when that is all brackets.
    if (const auto offset = findTooManyValues(text, kMostValues))
        return failureAt(json, tooManyValues(), *offset + mark);
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError)
        return notJson(json, error.errorString(), error.offset + mark);
    if (const auto flaw = findJsonFlaw(text))
        return notJson(json, flaw->what, flaw->offset + mark);
    return document;
}

} // namespace

Outcome<QByteArray> conditionToJson(const ConditionRecords& records)
{
    const QByteArray end = "\n]}\n";
    QByteArray json = R"({"format":")" + QByteArray(kFormat) + R"(","version":)"
                      + QByteArray::number(kVersion) + R"(,"records":[)";
    for (std::size_t i = 0; i < records.size(); ++i) {
        json += i == 0 ? "\n" : ",\n";
        if (const auto failure = appendRecord(json, records[i], i))
            return *failure;
        if (json.size() > kLargestJson - end.size())
            return Failure{QStringLiteral("the condition takes more than the %1 bytes that a file "
                                          "may have")
                               .arg(kLargestJson)};
    }
    json += records.empty() ? "]}\n" : end;
    if (findTooManyValues(json, kMostValues))
        return Failure{
            QStringLiteral("the condition has %1, which no file may have").arg(tooManyValues())};
    return json;
}

Outcome<ConditionRecords> conditionFromJson(const QByteArray& json)
{
    const Outcome<QJsonDocument> document = parsed(json);
    if (!document.hasValue())
        return document.failure();
    if (!document.value().isObject())
        return Failure{QStringLiteral("an object is expected, not a list")};
    const QJsonObject root = document.value().object();
    if (const auto failure = checkHead(root))
        return *failure;
    const QJsonArray array = root[QStringLiteral("records")].toArray();
    const QStringList keys = fieldKeys();
    ConditionRecords records;
    records.reserve(static_cast<std::size_t>(array.size()));
    for (qsizetype i = 0; i < array.size(); ++i) {
        Outcome<SpConditionRecord> record =
            readRecord(QStringLiteral("records[%1]").arg(i), array[i], keys);
        if (!record.hasValue())
            return record.failure();
        records.push_back(std::move(record).value());
    }
    return records;
}

} // namespace condtree::workbench
