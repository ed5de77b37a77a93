#include "LogCapture.h"

namespace condtree::test {

namespace {

QStringList& entries()
{
    static QStringList all;
    return all;
}

void take(QtMsgType, const QMessageLogContext& context, const QString& text)
{
    entries().append(QString::fromLatin1(context.category) + QStringLiteral(": ") + text);
}

} // namespace

LogCapture::LogCapture()
{
    entries().clear();
    m_before = qInstallMessageHandler(take);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(m_before);
}

QStringList LogCapture::taken() const
{
    return entries();
}

} // namespace condtree::test
