#include "ConditionJson.h"

#include "JsonFlaws.h"
#include "Messages.h"

#include <QCoreApplication>
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
constexpr int kMostValues = 4'000'000;

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

QString translated(const char* text)
{
    return QCoreApplication::translate("ConditionJson", text);
}

/// A character that no file can carry.
struct TextFlaw {
    bool isSurrogate;
    QString name; ///< The Unicode number: U+0000.
};

std::optional<TextFlaw> flawOfText(const QString& text)
{
    const auto flawAt = [&](qsizetype i) {
        const QString number = QString::number(text[i].unicode(), 16).toUpper();
        return TextFlaw{text[i].isSurrogate(),
                        QStringLiteral("U+%1").arg(number, 4, QLatin1Char('0'))};
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].isNull())
            return flawAt(i);
        if (!text[i].isSurrogate())
            continue;
        const bool isPair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (!isPair)
            return flawAt(i);
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

Failure cannotCarry(std::size_t row, const Field& field, const TextFlaw& flaw)
{
    //: %2 is the field's name in the file, %3 a character as U+0000
    const char* const plain = QT_TRANSLATE_NOOP(
        "ConditionJson", "row %1: the field %2 holds %3, which a file cannot carry");
    //: %2 is the field's name in the file, %3 a character as U+D800
    const char* const surrogate = QT_TRANSLATE_NOOP(
        "ConditionJson",
        "row %1: the field %2 holds the unpaired surrogate %3, which a file cannot carry");
    return {translated(flaw.isSurrogate ? surrogate : plain)
                .arg(QString::number(row + 1), QLatin1String(field.key), flaw.name)};
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
            return cannotCarry(row, field, *flaw);
        appendText(json, text);
    }
    json += '}';
    return std::nullopt;
}

/// What a value is in a message.
QString typeName(QJsonValue::Type type)
{
    switch (type) {
    case QJsonValue::Bool:
        //: Behind "a number is expected, not"; so are the other kinds of value
        return QCoreApplication::translate("ConditionJson", "true or false");
    case QJsonValue::Double:
        return QCoreApplication::translate("ConditionJson", "a number");
    case QJsonValue::String:
        return QCoreApplication::translate("ConditionJson", "a text");
    case QJsonValue::Array:
        return QCoreApplication::translate("ConditionJson", "a list");
    case QJsonValue::Object:
        return QCoreApplication::translate("ConditionJson", "an object");
    default:
        //: The word of JSON for no value
        return QCoreApplication::translate("ConditionJson", "null");
    }
}

/// One of the types that are ever expected: a number, a text, a list, an object.
QString expectedText(QJsonValue::Type expected)
{
    switch (expected) {
    case QJsonValue::Double:
        return QCoreApplication::translate("ConditionJson", "a number is expected, not %1");
    case QJsonValue::String:
        return QCoreApplication::translate("ConditionJson", "a text is expected, not %1");
    case QJsonValue::Array:
        return QCoreApplication::translate("ConditionJson", "a list is expected, not %1");
    default:
        return QCoreApplication::translate("ConditionJson", "an object is expected, not %1");
    }
}

/// An empty place is the whole file.
Failure wrongType(const QString& place, QJsonValue::Type expected, const QJsonValue& found)
{
    const QString what = expectedText(expected).arg(typeName(found.type()));
    return {place.isEmpty() ? what : atPlace(place, what)};
}

MaybeFailure readNumber(const QString& place, const QJsonValue& value, LONG& number)
{
    if (!value.isDouble())
        return wrongType(place, QJsonValue::Double, value);
    const double read = value.toDouble();
    if (read != std::trunc(read) || read < std::numeric_limits<LONG>::min()
        || read > std::numeric_limits<LONG>::max())
        return Failure{atPlace(
            place, QCoreApplication::translate("ConditionJson", "%1 is no whole number of 32 bits")
                       .arg(QString::number(read, 'g', 15)))};
    number = static_cast<LONG>(read);
    return std::nullopt;
}

MaybeFailure readText(const QString& place, const QJsonValue& value, SpStr& text)
{
    if (!value.isString())
        return wrongType(place, QJsonValue::String, value);
    if (const auto flaw = flawOfText(value.toString())) {
        //: %1 is a character as U+0000
        const char* const plain = QT_TRANSLATE_NOOP("ConditionJson", "the text holds %1");
        //: %1 is a character as U+D800
        const char* const surrogate =
            QT_TRANSLATE_NOOP("ConditionJson", "the text holds the unpaired surrogate %1");
        return Failure{
            atPlace(place, translated(flaw->isSurrogate ? surrogate : plain).arg(flaw->name))};
    }
    text = value.toString();
    return std::nullopt;
}

/// Fails when object lacks one of the keys or has another one. place is the object's; empty for the
/// whole.
MaybeFailure checkKeys(const QString& place, const QJsonObject& object, const QStringList& keys)
{
    for (const QString& key : keys) {
        if (!object.contains(key))
            return Failure{
                atPlace(place.isEmpty() ? key : place + QLatin1Char('.') + key,
                        QCoreApplication::translate("ConditionJson", "the field is missing"))};
    }
    for (auto i = object.begin(); i != object.end(); ++i) {
        if (keys.contains(i.key()))
            continue;
        const QString what = QCoreApplication::translate("ConditionJson", "the field %1 is unknown")
                                 .arg(quoted(i.key()));
        return Failure{place.isEmpty() ? what : atPlace(place, what)};
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
        return wrongType(place, QJsonValue::Object, value);
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

Failure unexpected(const QString& place, const QString& expected, const QString& found)
{
    //: %1 and %2 are values: 1, "condtree-condition"
    return {atPlace(place, QCoreApplication::translate("ConditionJson", "%1 is expected, not %2")
                               .arg(expected, found))};
}

MaybeFailure checkHead(const QJsonObject& root)
{
    const QString format = QStringLiteral("format");
    const QString version = QStringLiteral("version");
    const QString records = QStringLiteral("records");
    if (const auto failure = checkKeys({}, root, QStringList{format, version, records}))
        return failure;
    if (!root[format].isString())
        return wrongType(format, QJsonValue::String, root[format]);
    if (root[format].toString() != QLatin1String(kFormat))
        return unexpected(format, quoted(QLatin1String(kFormat)), quoted(root[format].toString()));
    LONG number = 0;
    if (const auto failure = readNumber(version, root[version], number))
        return failure;
    if (number != kVersion)
        return unexpected(version, QString::number(kVersion), QString::number(number));
    if (!root[records].isArray())
        return wrongType(records, QJsonValue::Array, root[records]);
    return std::nullopt;
}

/// A failure at a byte of the whole file.
Failure failureAt(const QByteArray& json, const QString& what, qsizetype offset)
{
    const qsizetype at = std::min(offset, json.size());
    const qsizetype line = QByteArrayView(json).first(at).count('\n') + 1;
    //: %1 is what is wrong in a file, %2 and %3 the place
    return {QCoreApplication::translate("ConditionJson", "%1 (byte %2, line %3)")
                .arg(what, QString::number(at), QString::number(line))};
}

Failure notJson(const QByteArray& json, const QString& what, qsizetype offset)
{
    //: %1 is the reason, perhaps in the words of the toolkit
    const QString sentence = QCoreApplication::translate("ConditionJson", "not JSON: %1").arg(what);
    return failureAt(json, sentence, offset);
}

QString tooManyValues()
{
    //: %1 is 4000000; values are objects, lists and whatever stands in them
    return QCoreApplication::translate("ConditionJson", "more than %1 values").arg(kMostValues);
}

MaybeFailure checkEncoding(const QByteArray& json)
{
    if (json.isEmpty())
        return Failure{QCoreApplication::translate("ConditionJson", "the file is empty")};
    // The first character of a JSON text is ASCII, so that a null byte beside it tells wider
    // encodings.
    const bool isWide = json.startsWith("\xFF\xFE") || json.startsWith("\xFE\xFF")
                        || json.first(std::min<qsizetype>(json.size(), 2)).contains('\0');
    if (isWide)
        return Failure{QCoreApplication::translate(
            "ConditionJson", "the text is in UTF-16 or UTF-32; UTF-8 is expected")};
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
            return Failure{QCoreApplication::translate(
                               "ConditionJson",
                               "the condition takes more than the %1 bytes that a file may have")
                               .arg(kLargestJson)};
    }
    json += records.empty() ? "]}\n" : end;
    if (findTooManyValues(json, kMostValues))
        //: %1 is 4000000
        return Failure{
            QCoreApplication::translate(
                "ConditionJson", "the condition has more than %1 values, which no file may have")
                .arg(kMostValues)};
    return json;
}

Outcome<ConditionRecords> conditionFromJson(const QByteArray& json)
{
    const Outcome<QJsonDocument> document = parsed(json);
    if (!document.hasValue())
        return document.failure();
    if (!document.value().isObject())
        return wrongType({}, QJsonValue::Object, document.value().array());
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
