#include <condtree/control/RealTimers.h>

#include <condtree/platform/TimerMessage.h>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <vector>

namespace condtree {
namespace {

/// Remembers the messages that it gets.
class Receiver final : public QObject {
public:
    std::vector<std::uintptr_t> ids;

protected:
    void customEvent(QEvent* event) override
    {
        if (event->type() == TimerMessage::messageType())
            ids.push_back(static_cast<TimerMessage*>(event)->id());
    }
};

bool hears(const Receiver& receiver, std::size_t messages)
{
    return QTest::qWaitFor([&] { return receiver.ids.size() >= messages; });
}

TEST(RealTimers, ATimerTellsItsReceiverOnce)
{
    Receiver receiver;
    startRealTimer(&receiver, 100, 1);
    startRealTimer(&receiver, 1000, 20);
    ASSERT_TRUE(hears(receiver, 2));
    EXPECT_EQ(receiver.ids, (std::vector<std::uintptr_t>{100, 1000}));
    Receiver later;
    startRealTimer(&later, 1, 40);
    ASSERT_TRUE(hears(later, 1));
    EXPECT_EQ(receiver.ids.size(), 2U) << "a timer runs once";
}

TEST(RealTimers, AStoppedTimerIsSilent)
{
    Receiver receiver;
    startRealTimer(&receiver, 100, 1);
    stopRealTimer(&receiver, 100);
    stopRealTimer(&receiver, 7);
    startRealTimer(&receiver, 1000, 20);
    ASSERT_TRUE(hears(receiver, 1));
    EXPECT_EQ(receiver.ids, std::vector<std::uintptr_t>{1000});
}

TEST(RealTimers, ATimerThatIsStartedAgainStartsAnew)
{
    Receiver receiver;
    startRealTimer(&receiver, 100, 1);
    startRealTimer(&receiver, 100, 60000);
    startRealTimer(&receiver, 1000, 20);
    ASSERT_TRUE(hears(receiver, 1));
    EXPECT_EQ(receiver.ids, std::vector<std::uintptr_t>{1000});
    EXPECT_EQ(receiver.findChildren<QTimer*>().size(), 2);
}

TEST(RealTimers, ATimerDiesWithItsReceiver)
{
    auto* gone = new Receiver;
    startRealTimer(gone, 100, 1);
    delete gone;
    Receiver receiver;
    startRealTimer(&receiver, 1, 10);
    EXPECT_TRUE(hears(receiver, 1));
}

TEST(RealTimers, AReceiverMayDieOfItsMessage)
{
    class Mortal final : public QObject {
    protected:
        void customEvent(QEvent*) override { delete this; }
    };
    const QPointer<Mortal> mortal = new Mortal;
    startRealTimer(mortal, 1, 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return mortal.isNull(); }));
}

TEST(RealTimers, NobodyIsNoReceiver)
{
    startRealTimer(nullptr, 1, 1);
    stopRealTimer(nullptr, 1);
}

} // namespace
} // namespace condtree
