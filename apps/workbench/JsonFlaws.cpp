#include "JsonFlaws.h"

#include "Messages.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <vector>

namespace condtree::workbench {

namespace {

/// A key's text, from its bytes with the quotes around them; it may refer to them.
QByteArray decodedKey(QByteArrayView raw)
{
    if (!raw.contains('\\'))
        return QByteArray::fromRawData(raw.data() + 1, raw.size() - 2);
    return QJsonDocument::fromJson('[' + raw.toByteArray() + ']').array().at(0).toString().toUtf8();
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

class Scanner {
public:
    explicit Scanner(QByteArrayView json)
        : m_json(json)
    {
    }

    std::optional<JsonFlaw> run()
    {
        while (m_at < m_json.size() && !m_flaw)
            takeToken();
        return m_flaw;
    }

private:
    /// An object or a list that is open.
    struct Level {
        bool isObject;
        bool expectsKey;
        QSet<QByteArray> keys;
    };

    void takeToken()
    {
        const char c = m_json[m_at];
        if (c == '{' || c == '[')
            m_levels.push_back({c == '{', c == '{', {}});
        else if (c == '}' || c == ']')
            m_levels.pop_back();
        else if (c == ',')
            m_levels.back().expectsKey = m_levels.back().isObject;
        else if (c == '"')
            return takeText();
        else if (c == '.')
            checkPoint();
        ++m_at;
    }

    void takeText()
    {
        const qsizetype start = m_at++;
        for (; m_json[m_at] != '"'; ++m_at) {
            if (static_cast<unsigned char>(m_json[m_at]) < 0x20)
                //: Behind "not JSON: "; so are the next ones
                return refuse(
                    QCoreApplication::translate("JsonFlaws", "a control character in a text"),
                    m_at);
            if (m_json[m_at] != '\\')
                continue;
            ++m_at;
            if (!QByteArrayView("\"\\/bfnrtu").contains(m_json[m_at]))
                return refuse(
                    QCoreApplication::translate("JsonFlaws", "an unknown escape sequence"),
                    m_at - 1);
        }
        ++m_at;
        if (!m_levels.back().expectsKey)
            return;
        m_levels.back().expectsKey = false;
        const QByteArray key = decodedKey(m_json.sliced(start, m_at - start));
        if (m_levels.back().keys.contains(key))
            return refuse(QCoreApplication::translate("JsonFlaws", "the key %1 is given twice")
                              .arg(quoted(QString::fromUtf8(key))),
                          start);
        m_levels.back().keys.insert(key);
    }

    // A parsed text neither begins nor ends with a number.
    void checkPoint()
    {
        if (!isDigit(m_json[m_at - 1]) || !isDigit(m_json[m_at + 1]))
            refuse(QCoreApplication::translate("JsonFlaws", "an incomplete number"), m_at);
    }

    void refuse(const QString& what, qsizetype offset) { m_flaw = JsonFlaw{what, offset}; }

    QByteArrayView m_json;
    qsizetype m_at = 0;
    std::vector<Level> m_levels;
    std::optional<JsonFlaw> m_flaw;
};

} // namespace

std::optional<qsizetype> findTooManyValues(QByteArrayView json, qsizetype limit)
{
    qsizetype values = 1;
    bool isText = false;
    for (qsizetype i = 0; i < json.size(); ++i) {
        const char c = json[i];
        if (c == '"')
            isText = !isText;
        else if (isText && c == '\\')
            ++i;
        else if (!isText && (c == ',' || c == '[' || c == '{') && ++values > limit)
            return i;
    }
    return std::nullopt;
}

std::optional<JsonFlaw> findJsonFlaw(QByteArrayView json)
{
    return Scanner(json).run();
}

} // namespace condtree::workbench
