#include "Messages.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace condtree::workbench {

namespace {

constexpr qsizetype kLongestQuote = 80;

bool mustBeEscaped(const QString& text, qsizetype i)
{
    const QChar unit = text[i];
    if (unit.isHighSurrogate())
        return i + 1 == text.size() || !text[i + 1].isLowSurrogate();
    if (unit.isLowSurrogate())
        return i == 0 || !text[i - 1].isHighSurrogate();
    return unit.category() == QChar::Other_Control || unit == QChar::LineSeparator
           || unit == QChar::ParagraphSeparator;
}

} // namespace

QString oneLine(const QString& text)
{
    QString line;
    line.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (mustBeEscaped(text, i))
            line += QStringLiteral("\\u%1").arg(text[i].unicode(), 4, 16, QLatin1Char('0'));
        else
            line += text[i];
    }
    return line;
}

QString quoted(const QString& text)
{
    const QString shown =
        text.size() <= kLongestQuote ? text : text.left(kLongestQuote) + QChar(0x2026);
    return QLatin1Char('"') + oneLine(shown) + QLatin1Char('"');
}

QString programTitle()
{
    //: The name of the program, in titles of windows
    return QCoreApplication::translate("Messages", "CondTree Workbench");
}

QString atPlace(const QString& place, const QString& what)
{
    //: %1 is a file, a field, a transition or what could not be done, %2 what is wrong with it
    return QCoreApplication::translate("Messages", "%1: %2").arg(place, what);
}

QByteArray errorLine(const QString& text)
{
    // Sentences of libraries come on lines of their own.
    const QRegularExpression breaks(QStringLiteral("\\s*[\\r\\n]\\s*"));
    const QString joined = QString(text).replace(breaks, QStringLiteral(" ")).trimmed();
    return "condtree-workbench: " + oneLine(joined).toUtf8() + '\n';
}

} // namespace condtree::workbench
