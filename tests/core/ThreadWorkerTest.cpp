#include "core/ThreadWorker.h"

#include "support/TestLog.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

#include <condition_variable>
#include <mutex>
#include <set>
#include <stdexcept>

namespace {

constexpr int kPatienceMs = 10000;

TEST(ThreadWorkerTest, WorkRunsElsewhereAndItsContinuationHere)
{
    ThreadWorker worker;
    QThread *workedOn = nullptr;
    QThread *continuedOn = nullptr;
    QSignalSpy finished(&worker, &ThreadWorker::signal_taskFinished);
    const quint64 id = worker.addTask([&] { workedOn = QThread::currentThread(); },
                                      [&] { continuedOn = QThread::currentThread(); });
    ASSERT_TRUE(finished.wait(kPatienceMs));
    EXPECT_EQ(finished[0][0].toULongLong(), id);
    EXPECT_NE(workedOn, QThread::currentThread());
    EXPECT_EQ(continuedOn, QThread::currentThread());
}

TEST(ThreadWorkerTest, OneThreadEndsItsTasksInOrder)
{
    ThreadWorker worker;
    std::vector<int> worked;
    std::vector<int> continued;
    for (int i = 0; i < 50; ++i)
        worker.addTask([&worked, i] { worked.push_back(i); }, [&continued, i] { continued.push_back(i); });
    ASSERT_TRUE(QTest::qWaitFor([&] { return continued.size() == 50; }, kPatienceMs));
    for (int i = 0; i < 50; ++i) {
        EXPECT_EQ(worked[i], i);
        EXPECT_EQ(continued[i], i);
    }
}

TEST(ThreadWorkerTest, AsManyTasksRunAtOnceAsThereAreThreads)
{
    ThreadWorker worker(1);
    worker.setThreadCount(4);
    EXPECT_EQ(worker.threadCount(), 4);
    worker.setThreadCount(2);
    EXPECT_EQ(worker.threadCount(), 4) << "a pool never shrinks";
    std::mutex mutex;
    std::condition_variable changed;
    int inside = 0;
    int done = 0;
    for (int i = 0; i < 4; ++i) {
        worker.addTask(
            [&] {
                std::unique_lock<std::mutex> lock(mutex);
                ++inside;
                changed.notify_all();
                changed.wait(lock, [&] { return inside == 4; });
            },
            [&] { ++done; });
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return done == 4; }, kPatienceMs));
}

TEST(ThreadWorkerTest, AnErrorOfATaskDoesNotEndTheThread)
{
    ThreadWorker worker;
    int done = 0;
    worker.addTask([] { throw std::runtime_error("broken"); }, [&] { ++done; });
    worker.addTask([] {}, [&] { ++done; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return done == 2; }, kPatienceMs));
    EXPECT_EQ(TestLog::infoLines(), QStringList{"[Process] task of a worker failed: broken"});
}

TEST(ThreadWorkerTest, DestructionForgetsWhatHasNotBegunAndAsksWhatRunsToStop)
{
    std::mutex mutex;
    std::condition_variable changed;
    bool begun = false;
    bool stopped = false;
    bool second = false;
    bool continued = false;
    {
        ThreadWorker worker;
        worker.addTask(
            [&] {
                {
                    std::lock_guard<std::mutex> lock(mutex);
                    begun = true;
                }
                changed.notify_all();
                while (!ThreadWorker::stopRequested())
                    QThread::yieldCurrentThread();
                std::lock_guard<std::mutex> lock(mutex);
                stopped = true;
            },
            [&] { continued = true; });
        worker.addTask([&] { second = true; });
        std::unique_lock<std::mutex> lock(mutex);
        changed.wait(lock, [&] { return begun; });
    }
    QCoreApplication::processEvents();
    std::lock_guard<std::mutex> lock(mutex);
    EXPECT_TRUE(stopped);
    EXPECT_FALSE(second);
    EXPECT_FALSE(continued) << "nobody is left to be told";
}

TEST(ThreadWorkerTest, ATaskThatIsStuckIsLeftBehind)
{
    // Outlives the test, as the task does.
    struct Shared {
        std::mutex mutex;
        std::condition_variable changed;
        bool begun{false};
        bool open{false};
        bool ended{false};
    };
    const auto shared = std::make_shared<Shared>();
    {
        ThreadWorker worker;
        worker.addTask([shared] {
            std::unique_lock<std::mutex> lock(shared->mutex);
            shared->begun = true;
            shared->changed.notify_all();
            shared->changed.wait(lock, [&] { return shared->open; });
            shared->ended = true;
            shared->changed.notify_all();
        });
        {
            std::unique_lock<std::mutex> lock(shared->mutex);
            shared->changed.wait(lock, [&] { return shared->begun; });
        }
        QElapsedTimer clock;
        clock.start();
        EXPECT_FALSE(worker.stop(50));
        EXPECT_LT(clock.elapsed(), kPatienceMs);
    }
    std::unique_lock<std::mutex> lock(shared->mutex);
    shared->open = true;
    shared->changed.notify_all();
    shared->changed.wait(lock, [&] { return shared->ended; });
    EXPECT_EQ(TestLog::infoLines(), QStringList{"[Process] a worker does not end and is left behind"});
}

TEST(ThreadWorkerTest, AContinuationMayDestroyThePool)
{
    auto *worker = new ThreadWorker;
    bool gone = false;
    QObject::connect(worker, &QObject::destroyed, [&] { gone = true; });
    worker->addTask([] {}, [&] { delete worker; });
    worker->addTask([] {});
    EXPECT_TRUE(QTest::qWaitFor([&] { return gone; }, kPatienceMs));
}

TEST(ThreadWorkerTest, AStoppedPoolIgnoresTasks)
{
    ThreadWorker worker;
    EXPECT_TRUE(worker.stop());
    EXPECT_TRUE(worker.stop());
    bool ran = false;
    worker.addTask([&] { ran = true; });
    QCoreApplication::processEvents();
    EXPECT_FALSE(ran);
}

} // namespace
