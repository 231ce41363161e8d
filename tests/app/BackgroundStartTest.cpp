#include "app/BackgroundStart.h"

#include <QSemaphore>
#include <QStringList>
#include <QThread>

#include <gtest/gtest.h>

#include <memory>

namespace {

BackgroundTasks recording(QStringList *steps, bool update)
{
    return {[steps] {
                *steps << "read";
                return ProxyConfiguration{true, 1, "host", "8080", "user", "secret"};
            },
            [steps](const ProxyConfiguration &proxy) { *steps << "proxy " + proxy.host; },
            [steps] { *steps << "report"; }, [update] { return update; }, [steps] { *steps << "update"; }};
}

TEST(BackgroundStart, StepsRunInOrder)
{
    QStringList steps;
    BackgroundStart::runSteps(recording(&steps, true));
    EXPECT_EQ(steps, QStringList({"read", "proxy host", "report", "update"}));
}

TEST(BackgroundStart, NoUpdateCheckUnlessItIsWanted)
{
    QStringList steps;
    BackgroundStart::runSteps(recording(&steps, false));
    EXPECT_EQ(steps, QStringList({"read", "proxy host", "report"}));
}

TEST(BackgroundStart, RunsOnAThreadOfItsOwnAndTellsWhileItRuns)
{
    auto entered = std::make_shared<QSemaphore>();
    auto leave = std::make_shared<QSemaphore>();
    auto done = std::make_shared<QSemaphore>();
    QThread *const here = QThread::currentThread();
    auto elsewhere = std::make_shared<std::atomic<bool>>(false);
    BackgroundTasks tasks{[] { return ProxyConfiguration(); }, [](const ProxyConfiguration &) {},
                          [=] {
                              *elsewhere = QThread::currentThread() != here;
                              entered->release();
                              leave->acquire();
                          },
                          [=] {
                              done->release();
                              return false;
                          },
                          [] {}};
    auto *start = BackgroundStart::instance();
    start->start(tasks);
    ASSERT_TRUE(entered->tryAcquire(1, 10000));
    EXPECT_TRUE(start->isRunning());
    EXPECT_TRUE(*elsewhere);
    leave->release();
    ASSERT_TRUE(done->tryAcquire(1, 10000));
}

} // namespace
