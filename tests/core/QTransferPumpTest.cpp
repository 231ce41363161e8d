#include "core/QTransferPump.h"

#include "core/QMutexGuard.h"
#include "support/TestLog.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

#include <condition_variable>
#include <future>
#include <mutex>
#include <stdexcept>
#include <thread>

namespace {

using Outcome = QTransferPump::Outcome;

// Blocks a thread until it is opened.
class Gate {
public:
    void open()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_open = true;
        m_changed.notify_all();
    }
    void pass()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [this] { return m_open; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_open{false};
};

// A pump on a thread of its own.
class QTransferPumpTest : public testing::Test {
protected:
    QTransferPumpTest()
    {
        m_pump->moveToThread(&m_thread);
        m_thread.start();
    }
    ~QTransferPumpTest() override
    {
        m_thread.quit();
        m_thread.wait();
        QUORIN_HAPPENS_AFTER(static_cast<testing::Test *>(this));
        delete m_pump;
    }

    QThread m_thread;
    QTransferPump *m_pump{new QTransferPump};
};

TEST_F(QTransferPumpTest, ACallRunsOnThePumpsThreadAndIsWaitedFor)
{
    QThread *ranOn = nullptr;
    EXPECT_EQ(m_pump->call([&] { ranOn = QThread::currentThread(); }), Outcome::Done);
    EXPECT_EQ(ranOn, &m_thread);
}

TEST_F(QTransferPumpTest, AResultComesBack)
{
    EXPECT_EQ(m_pump->link().ask([] { return 6 * 7; }), 42);
    EXPECT_EQ(m_pump->link().ask([] { return QString("text"); }), QString("text"));
}

TEST_F(QTransferPumpTest, ACallFromTheTargetThreadItselfRunsAtOnce)
{
    int runs = 0;
    EXPECT_EQ(m_pump->call([&] {
        EXPECT_EQ(m_pump->call([&] { ++runs; }), Outcome::Done);
        ++runs;
    }),
              Outcome::Done);
    EXPECT_EQ(runs, 2);
    QTransferPump own;
    EXPECT_EQ(own.call([&] { ++runs; }), Outcome::Done);
    EXPECT_EQ(runs, 3);
}

TEST_F(QTransferPumpTest, PostedCallsKeepTheirOrderAndDoNotWait)
{
    Gate gate;
    std::vector<int> order;
    m_pump->post([&] { gate.pass(); });
    for (int i = 0; i < 10; ++i)
        m_pump->post([&order, i] { order.push_back(i); });
    gate.open();
    EXPECT_EQ(m_pump->call([&] { order.push_back(10); }), Outcome::Done);
    EXPECT_EQ(order, (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
}

TEST_F(QTransferPumpTest, AnErrorOfTheCallableIsReportedAndThePumpGoesOn)
{
    EXPECT_EQ(m_pump->call([] { throw std::runtime_error("broken"); }), Outcome::Failed);
    EXPECT_EQ(m_pump->link().ask([]() -> int { throw 5; }), std::nullopt);
    EXPECT_EQ(m_pump->call([] {}), Outcome::Done);
    EXPECT_EQ(TestLog::infoLines(), (QStringList{"[Process] call to another thread failed: broken",
                                                 "[Process] call to another thread failed"}));
}

TEST_F(QTransferPumpTest, ACallThatDoesNotBeginInTimeNeverRuns)
{
    Gate gate;
    m_pump->post([&] { gate.pass(); });
    bool ran = false;
    EXPECT_EQ(m_pump->call([&] { ran = true; }, 50), Outcome::Abandoned);
    gate.open();
    EXPECT_EQ(m_pump->call([] {}), Outcome::Done);
    EXPECT_FALSE(ran);
}

TEST_F(QTransferPumpTest, ACallThatHasBegunIsWaitedForBeyondItsTime)
{
    Gate gate;
    std::atomic<bool> ended{false};
    std::promise<void> begun;
    std::thread opener([&] {
        begun.get_future().wait();
        gate.open();
    });
    EXPECT_EQ(m_pump->call(
                  [&] {
                      begun.set_value();
                      gate.pass();
                      ended = true;
                  },
                  1000),
              Outcome::Done);
    EXPECT_TRUE(ended);
    opener.join();
}

TEST_F(QTransferPumpTest, ThePumpsDeathWakesWhoeverWaits)
{
    Gate gate;
    const QTransferPump::Link link = m_pump->link();
    m_pump->post([&] {
        gate.pass();
        delete m_pump;
        m_pump = nullptr;
        QUORIN_HAPPENS_BEFORE(static_cast<testing::Test *>(this));
    });
    auto waiting = std::async(std::launch::async, [&] { return link.call([] { FAIL(); }); });
    // The call is in the queue once another one behind it could be given up.
    EXPECT_EQ(link.call([] {}, 20), Outcome::Abandoned);
    gate.open();
    ASSERT_EQ(waiting.wait_for(std::chrono::seconds(10)), std::future_status::ready);
    EXPECT_EQ(waiting.get(), Outcome::Abandoned);
    EXPECT_EQ(link.call([] {}), Outcome::Abandoned);
    EXPECT_FALSE(link.post([] {}));
    EXPECT_FALSE(link.sendEvent(1));
    EXPECT_FALSE(link.sendMessage(1));
}

TEST_F(QTransferPumpTest, TheEndOfThePumpsThreadWakesWhoeverWaits)
{
    Gate gate;
    const QTransferPump::Link link = m_pump->link();
    m_pump->post([&] {
        m_thread.quit();
        gate.pass();
    });
    auto waiting = std::async(std::launch::async, [&] { return link.call([] {}); });
    EXPECT_EQ(link.call([] {}, 20), Outcome::Abandoned);
    gate.open();
    ASSERT_TRUE(m_thread.wait(10000));
    ASSERT_EQ(waiting.wait_for(std::chrono::seconds(10)), std::future_status::ready);
    waiting.get();
    EXPECT_EQ(link.call([] {}), Outcome::Abandoned) << "a thread that has ended runs nothing any more";
}

TEST_F(QTransferPumpTest, AThreadThatIsStartedAgainServesAgain)
{
    EXPECT_EQ(m_pump->call([] {}), Outcome::Done);
    m_thread.quit();
    ASSERT_TRUE(m_thread.wait(10000));
    EXPECT_EQ(m_pump->call([] {}), Outcome::Abandoned);
    m_thread.start();
    EXPECT_EQ(m_pump->call([] {}), Outcome::Done);
}

TEST_F(QTransferPumpTest, ManyThreadsCallAtOnce)
{
    int sum = 0;
    std::vector<std::thread> callers;
    std::atomic<int> failed{0};
    for (int t = 0; t < 8; ++t) {
        callers.emplace_back([&] {
            for (int i = 0; i < 100; ++i) {
                if (m_pump->call([&] { ++sum; }) != Outcome::Done)
                    ++failed;
            }
        });
    }
    for (std::thread &caller : callers)
        caller.join();
    EXPECT_EQ(failed, 0);
    EXPECT_EQ(m_pump->link().ask([&] { return sum; }), 800);
}

TEST(QTransferPumpNewsTest, EventsAndMessagesArriveAsSignalsOnThePumpsThread)
{
    QTransferPump pump;
    QSignalSpy events(&pump, &QTransferPump::signal_event);
    QSignalSpy messages(&pump, &QTransferPump::signal_message);
    std::thread sender([link = pump.link()] {
        EXPECT_TRUE(link.sendEvent(3, "payload"));
        EXPECT_TRUE(link.sendMessage(4, 5, "six"));
    });
    sender.join();
    EXPECT_TRUE(events.isEmpty()) << "news is not delivered on the sender's thread";
    ASSERT_TRUE(messages.wait(5000));
    ASSERT_EQ(events.size(), 1);
    EXPECT_EQ(events[0][0].toInt(), 3);
    EXPECT_EQ(events[0][1].value<QVariant>().toString(), "payload");
    ASSERT_EQ(messages.size(), 1);
    EXPECT_EQ(messages[0][0].toInt(), 4);
    EXPECT_EQ(messages[0][1].value<QVariant>().toInt(), 5);
    EXPECT_EQ(messages[0][2].value<QVariant>().toString(), "six");
}

} // namespace
