#include "core/Singleton.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace {

class Counted final : public Singleton<Counted> {
public:
    Counted() { ++made; }
    inline static std::atomic<int> made{0};
};

TEST(SingletonTest, ManyThreadsAtOnceMakeOneObject)
{
    std::vector<std::thread> threads;
    std::atomic<Counted *> first{nullptr};
    std::atomic<int> different{0};
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([&] {
            Counted *object = Counted::instance();
            Counted *expected = nullptr;
            if (!first.compare_exchange_strong(expected, object) && expected != object)
                ++different;
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(Counted::made, 1);
    EXPECT_EQ(different, 0);
}

} // namespace
