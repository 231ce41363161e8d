#include "player/FrameStore.h"

#include <gtest/gtest.h>

#include <vector>

TEST(FrameStore, KeepsACopyOfItsOwn)
{
    FrameStore store(QImage::Format_RGBA8888);
    std::vector<unsigned char> pixels{1, 2, 3, 4, 5, 6, 7, 8};
    const FrameStore::Frame frame = store.keep(pixels.data(), 2, 1);
    std::fill(pixels.begin(), pixels.end(), 0xEE);
    ASSERT_NE(frame.pixels, nullptr);
    EXPECT_EQ(std::vector<unsigned char>(frame.pixels, frame.pixels + 8),
              (std::vector<unsigned char>{1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(store.last().pixelColor(1, 0), QColor(5, 6, 7, 8));
}

TEST(FrameStore, APictureThatIsNoneGivesNone)
{
    FrameStore store(QImage::Format_ARGB32);
    const std::vector<unsigned char> pixels(16, 0);
    EXPECT_EQ(store.keep(nullptr, 2, 2).pixels, nullptr);
    EXPECT_EQ(store.keep(pixels.data(), 0, 2).pixels, nullptr);
    EXPECT_EQ(store.keep(pixels.data(), 2, -1).pixels, nullptr);
    EXPECT_EQ(store.keep(pixels.data(), 1 << 30, 4).pixels, nullptr);
    EXPECT_TRUE(store.last().isNull());
}

TEST(FrameStore, ForgetsOnlyWhatIsDeliveredAndKeepsTheNewestThree)
{
    FrameStore store(QImage::Format_ARGB32);
    const std::vector<unsigned char> pixels(4, 7);
    quint64 lastTicket = 0;
    for (int shot = 0; shot < 10; ++shot)
        lastTicket = store.keep(pixels.data(), 1, 1).ticket;
    EXPECT_EQ(store.count(), 10);
    store.delivered(lastTicket - 5);
    EXPECT_EQ(store.count(), 5);
    store.delivered(lastTicket);
    EXPECT_EQ(store.count(), 3);
}
