#include "platform/AddressSpace.h"

#include "support/Sanitizers.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace {

TEST(AddressSpaceTest, BlocksLargerThanMemoryCanBeReserved)
{
    // ThreadSanitizer leaves a program less of the address space.
    constexpr int kWideBits = Sanitizers::WatchesThreads ? 36 : 40;
    constexpr std::size_t kSize = std::size_t(1) << (sizeof(void *) == 8 ? kWideBits : 28);
    void *first = reserveAddressSpace(kSize);
    void *second = reserveAddressSpace(kSize);
    ASSERT_NE(first, nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_NE(first, second);
    releaseAddressSpace(first, kSize);
    releaseAddressSpace(second, kSize);
}

TEST(AddressSpaceTest, NothingAndTooMuchGiveNull)
{
    EXPECT_EQ(reserveAddressSpace(0), nullptr);
    EXPECT_EQ(reserveAddressSpace(SIZE_MAX - 4096), nullptr);
    releaseAddressSpace(nullptr, 10);
}

TEST(AddressSpaceDeathTest, AReservedBlockHasNoMemory)
{
    auto *block = static_cast<volatile char *>(reserveAddressSpace(4096));
    ASSERT_NE(block, nullptr);
    EXPECT_DEATH(*block = 1, "");
    releaseAddressSpace(const_cast<char *>(block), 4096);
}

} // namespace
