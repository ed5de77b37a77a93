#include "support/WarningGuard.h"

#include <QMutex>
#include <QMutexLocker>

#include <algorithm>
#include <array>
#include <iostream>

namespace condtree::test {

namespace {
QStringList g_unexpected;
ExpectWarning* g_expected = nullptr;
QMutex g_mutex;

// What the offscreen platform says of every window that has a size of its own, and of every popup.
constexpr std::array kOffscreenNoise{
    QLatin1String("This plugin does not support propagateSizeHints()"),
    QLatin1String("This plugin does not support raise()"),
    QLatin1String("This plugin does not support grabbing the keyboard")};

bool isNoise(const QString& text)
{
    return std::find(kOffscreenNoise.begin(), kOffscreenNoise.end(), text) != kOffscreenNoise.end();
}

void takeMessage(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    const QMutexLocker lock(&g_mutex);
    if (type == QtDebugMsg || type == QtInfoMsg || isNoise(text))
        return;
    for (ExpectWarning* expected = g_expected; expected != nullptr; expected = expected->outer()) {
        if (expected->take(text))
            return;
    }
    std::cerr << "warning: " << text.toStdString() << '\n';
    g_unexpected.append(text);
}

} // namespace

WarningGuard::WarningGuard()
{
    qInstallMessageHandler(takeMessage);
}

void WarningGuard::OnTestStart(const testing::TestInfo&)
{
    g_unexpected.clear();
}

void WarningGuard::OnTestEnd(const testing::TestInfo&)
{
    for (const QString& text : g_unexpected)
        ADD_FAILURE() << "unexpected warning: " << text.toStdString();
    g_unexpected.clear();
}

ExpectWarning::ExpectWarning(const QString& part)
    : m_part(part)
    , m_outer(g_expected)
{
    g_expected = this;
}

bool ExpectWarning::take(const QString& text)
{
    if (!text.contains(m_part))
        return false;
    ++m_count;
    return true;
}

ExpectWarning::~ExpectWarning()
{
    g_expected = m_outer;
    EXPECT_GT(m_count, 0) << "expected a warning with: " << m_part.toStdString();
}

} // namespace condtree::test
