#include "player/EngineHandle.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <thread>

TEST(EngineHandle, IsEmptyWithoutAnObject)
{
    EngineHandle<int> handle;
    EXPECT_FALSE(handle.isSet());
    EXPECT_FALSE(handle.use());
    EXPECT_EQ(handle.take(), nullptr);
    handle.drain();
}

TEST(EngineHandle, AUseAfterTheTakeIsEmptyAndTheOneBeforeStaysGood)
{
    int object = 5;
    EngineHandle<int> handle;
    handle.set(&object);
    const auto before = handle.use();
    EXPECT_EQ(handle.take(), &object);
    EXPECT_FALSE(handle.use());
    ASSERT_TRUE(before);
    EXPECT_EQ(*before, 5);
}

TEST(EngineHandle, DrainWaitsForTheLastUse)
{
    int object = 0;
    EngineHandle<int> handle;
    handle.set(&object);
    std::promise<void> entered;
    std::promise<void> leave;
    std::atomic_bool left{false};
    std::thread user([&] {
        const auto use = handle.use();
        entered.set_value();
        leave.get_future().wait();
        left = true;
    });
    entered.get_future().wait();
    EXPECT_EQ(handle.take(), &object);
    std::thread drain([&] {
        handle.drain();
        EXPECT_TRUE(left);
    });
    leave.set_value();
    user.join();
    drain.join();
}
