#include "preview/PreviewCache.h"

#include <gtest/gtest.h>

namespace {

QImage picture(int value)
{
    QImage image(10, 10, QImage::Format_RGBA8888);
    image.fill(QColor(value, value, value));
    return image;
}

constexpr qint64 Size = 400; // of one picture

} // namespace

TEST(PreviewCache, OnePictureAnswersFromItsKeyFrameToTheLatestPositionItWasFetchedFor)
{
    PreviewCache cache(10 * Size);
    cache.insert(9000, 8000, picture(1));
    EXPECT_TRUE(cache.find(7999).isNull());
    EXPECT_EQ(cache.find(8000), picture(1));
    EXPECT_EQ(cache.find(8500), picture(1));
    EXPECT_EQ(cache.find(9000), picture(1));
    EXPECT_TRUE(cache.find(9001).isNull());
    cache.insert(11000, 8000, picture(1));
    EXPECT_EQ(cache.find(10500), picture(1));
    EXPECT_EQ(cache.count(), 1);
    EXPECT_EQ(cache.bytes(), Size);
}

TEST(PreviewCache, APictureBehindThePositionAnswersForTheWayToIt)
{
    PreviewCache cache(10 * Size);
    cache.insert(0, 400, picture(1));
    EXPECT_EQ(cache.find(0), picture(1));
    EXPECT_EQ(cache.find(400), picture(1));
    EXPECT_TRUE(cache.find(401).isNull());
}

TEST(PreviewCache, APictureOfUnknownTimeAnswersForItsPositionAlone)
{
    PreviewCache cache(10 * Size);
    cache.insert(5000, -1, picture(1));
    EXPECT_FALSE(cache.find(5000).isNull());
    EXPECT_TRUE(cache.find(4999).isNull());
    EXPECT_TRUE(cache.find(5001).isNull());
}

TEST(PreviewCache, NeverHoldsMoreBytesThanItMayAndDropsWhatWasNotUsedForLongest)
{
    PreviewCache cache(3 * Size);
    for (int i = 0; i < 3; ++i)
        cache.insert(i * 1000, i * 1000, picture(i));
    ASSERT_FALSE(cache.find(0).isNull()); // used: 1000 is the oldest now
    cache.insert(3000, 3000, picture(3));
    EXPECT_EQ(cache.bytes(), 3 * Size);
    EXPECT_TRUE(cache.find(1000).isNull());
    EXPECT_FALSE(cache.find(0).isNull());
    EXPECT_FALSE(cache.find(2000).isNull());
    EXPECT_FALSE(cache.find(3000).isNull());
    for (int i = 0; i < 1000; ++i) {
        cache.insert(i * 1000, i * 1000, picture(i % 255));
        ASSERT_LE(cache.bytes(), 3 * Size);
    }
    EXPECT_EQ(cache.count(), 3);
}

TEST(PreviewCache, APictureLargerThanTheWholeIsNotKept)
{
    PreviewCache cache(Size - 1);
    cache.insert(0, 0, picture(1));
    EXPECT_EQ(cache.count(), 0);
    EXPECT_EQ(cache.bytes(), 0);
    cache.insert(0, 0, {});
    EXPECT_EQ(cache.count(), 0);
}

TEST(PreviewCache, AClearedOneHoldsNothing)
{
    PreviewCache cache(3 * Size);
    cache.insert(0, 0, picture(1));
    cache.clear();
    EXPECT_TRUE(cache.find(0).isNull());
    EXPECT_EQ(cache.bytes(), 0);
    cache.insert(0, 0, picture(2));
    EXPECT_EQ(cache.find(0), picture(2));
}
