#include "core/QSimpleThreadPack.h"

#include "support/TestLog.h"

#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <stdexcept>

namespace {

void count(void *argument)
{
    ++*static_cast<std::atomic<int> *>(argument);
}

TEST(QSimpleThreadPackTest, RunsItsFunctionWithItsArgumentAndCanBeStartedAgain)
{
    std::atomic<int> runs{0};
    QSimpleThreadPack pack(count, &runs);
    for (int i = 1; i <= 3; ++i) {
        pack.start();
        ASSERT_TRUE(pack.wait(5000));
        EXPECT_EQ(runs, i);
    }
}

TEST(QSimpleThreadPackTest, WithoutAFunctionItJustEnds)
{
    QSimpleThreadPack pack;
    pack.start();
    EXPECT_TRUE(pack.wait(5000));
}

TEST(QSimpleThreadPackTest, TheFunctionIsNotChangedWhileItRuns)
{
    static std::mutex gate;
    gate.lock();
    QSimpleThreadPack pack([](void *) { std::lock_guard<std::mutex> wait(gate); }, nullptr);
    pack.start();
    std::atomic<int> runs{0};
    EXPECT_FALSE(pack.setFunction(count, &runs));
    gate.unlock();
    ASSERT_TRUE(pack.wait(5000));
    EXPECT_TRUE(pack.setFunction(count, &runs));
    pack.start();
    ASSERT_TRUE(pack.wait(5000));
    EXPECT_EQ(runs, 1);
}

TEST(QSimpleThreadPackTest, DestructionWaitsForTheFunction)
{
    std::atomic<int> runs{0};
    {
        QSimpleThreadPack pack(count, &runs);
        pack.start();
    }
    EXPECT_EQ(runs, 1);
}

TEST(QSimpleThreadPackTest, AnErrorOfTheFunctionEndsTheThreadWithALogLine)
{
    QSimpleThreadPack pack([](void *) { throw std::runtime_error("broken"); }, nullptr);
    pack.start();
    ASSERT_TRUE(pack.wait(5000));
    EXPECT_EQ(TestLog::infoLines(), QStringList{"[Process] one-shot thread ended by an error: broken"});
}

} // namespace
