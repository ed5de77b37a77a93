#include "Hand.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QTest>
#include <QWidget>

#include <cstdlib>

namespace condtree::test {

namespace {

void runTool(const QStringList& arguments)
{
    QProcess tool;
    tool.start(QStringLiteral("xdotool"), arguments);
    ASSERT_TRUE(tool.waitForFinished()) << tool.errorString().toStdString();
    ASSERT_EQ(tool.exitCode(), 0) << tool.readAllStandardError().toStdString();
}

} // namespace

Hand::Hand()
{
    qApp->installEventFilter(this);
}

Hand::~Hand() = default;

// A window gets each event of the window system once, before it goes to a widget.
bool Hand::eventFilter(QObject* watched, QEvent* event)
{
    if (!watched->isWindowType() || !event->spontaneous())
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        ++m_presses;
        break;
    case QEvent::MouseButtonRelease:
        ++m_releases;
        break;
    case QEvent::Wheel:
        ++m_turns;
        break;
    case QEvent::KeyRelease:
        ++m_keys;
        break;
    default:
        break;
    }
    return false;
}

void Hand::run(const QStringList& arguments, const int& counter, int count)
{
    const int target = counter + count;
    runTool(arguments);
    EXPECT_TRUE(QTest::qWaitFor([&] { return counter >= target; }))
        << "did not arrive: " << arguments.join(u' ').toStdString();
}

void Hand::moveOnScreen(QPoint target)
{
    runTool(
        {QStringLiteral("mousemove"), QString::number(target.x()), QString::number(target.y())});
    EXPECT_TRUE(QTest::qWaitFor([&] { return QCursor::pos() == target; }));
    QCoreApplication::processEvents();
}

void Hand::moveTo(const QWidget& widget, QPoint at)
{
    moveOnScreen(widget.mapToGlobal(at));
}

void Hand::glideTo(const QWidget& widget, QPoint at, int steps)
{
    const QPoint from = QCursor::pos();
    const QPoint way = widget.mapToGlobal(at) - from;
    for (int step = 1; step <= steps; ++step)
        moveOnScreen(from + way * step / steps);
}

void Hand::press(int button)
{
    run({QStringLiteral("mousedown"), QString::number(button)}, m_presses, 1);
}

void Hand::release(int button)
{
    run({QStringLiteral("mouseup"), QString::number(button)}, m_releases, 1);
}

void Hand::click(const QWidget& widget, QPoint at, int button)
{
    moveTo(widget, at);
    press(button);
    release(button);
}

void Hand::turnWheel(int steps)
{
    const QString button = steps > 0 ? QStringLiteral("5") : QStringLiteral("4");
    for (int step = std::abs(steps); step > 0; --step)
        run({QStringLiteral("click"), button}, m_turns, 1);
}

void Hand::key(const char* name)
{
    run({QStringLiteral("key"), QString::fromLatin1(name)}, m_keys, 1);
}

void Hand::type(const QString& text)
{
    run({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("1"), text}, m_keys,
        static_cast<int>(text.size()));
}

void Hand::screenshot(const QString& name)
{
    const QDir folder(qEnvironmentVariable("CONDTREE_PICTURES", QStringLiteral(".")));
    QCoreApplication::processEvents();
    const QPixmap picture = QGuiApplication::primaryScreen()->grabWindow(0);
    EXPECT_TRUE(picture.save(folder.filePath(name + QStringLiteral(".png"))));
}

} // namespace condtree::test
