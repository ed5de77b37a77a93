#include "support/Golden.h"

#include <QFile>

namespace condtree::test {

std::optional<GoldenTable> goldenTable(const QString& directory, const QString& fileName)
{
    QFile file(directory + QLatin1Char('/') + fileName);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    const QStringList names = lines.value(0).split(QLatin1Char('\t'));
    GoldenTable table;
    for (qsizetype i = 1; i < lines.size(); ++i) {
        if (lines[i].isEmpty())
            continue;
        const QStringList cells = lines[i].split(QLatin1Char('\t'));
        auto& row = table.emplace_back();
        for (qsizetype column = 0; column < names.size(); ++column)
            row[names[column]] = cells.value(column);
    }
    return table;
}

QString unescaped(const QString& text)
{
    QString result;
    for (qsizetype i = 0; i < text.size();) {
        bool isNumber = false;
        if (text.mid(i, 2) == QLatin1String("\\u")) {
            const ushort unit = text.mid(i + 2, 4).toUShort(&isNumber, 16);
            if (isNumber) {
                result += QChar(unit);
                i += 6;
            }
        }
        if (!isNumber)
            result += text[i++];
    }
    return result;
}

} // namespace condtree::test
