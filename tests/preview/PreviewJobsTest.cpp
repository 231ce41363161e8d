#include "preview/PreviewJobs.h"

#include <gtest/gtest.h>

TEST(PreviewJobs, OfManyHoversTheNewestIsLeft)
{
    PreviewJobs jobs;
    for (int second = 0; second < 1000; ++second)
        jobs.hover(second * 1000);
    const auto job = jobs.take();
    ASSERT_TRUE(job);
    EXPECT_EQ(job->positionMs, 999000);
    EXPECT_FALSE(job->isRow);
    EXPECT_FALSE(jobs.take());
}

TEST(PreviewJobs, ThePointerComesBeforeTheRows)
{
    PreviewJobs jobs;
    const quint64 fill = jobs.fill({1, 2, 3});
    EXPECT_EQ(jobs.take()->positionMs, 1);
    jobs.hover(500);
    EXPECT_EQ(jobs.take()->positionMs, 500);
    const auto row = jobs.take();
    EXPECT_EQ(row->positionMs, 2);
    EXPECT_TRUE(row->isRow);
    EXPECT_EQ(row->fill, fill);
    EXPECT_FALSE(jobs.isFillTaken());
    EXPECT_EQ(jobs.take()->positionMs, 3);
    EXPECT_TRUE(jobs.isFillTaken());
}

TEST(PreviewJobs, ANewFillingDropsTheRowsOfTheOneBefore)
{
    PreviewJobs jobs;
    const quint64 first = jobs.fill({1, 2, 3});
    const quint64 second = jobs.fill({7});
    EXPECT_NE(first, second);
    EXPECT_EQ(jobs.take()->positionMs, 7);
    EXPECT_FALSE(jobs.take());
}

TEST(PreviewJobs, AJobThatWasCutOffComesAgainUnlessItIsStale)
{
    PreviewJobs jobs;
    jobs.fill({1, 2});
    const auto row = jobs.take();
    jobs.putBack(*row);
    EXPECT_EQ(jobs.take()->positionMs, 1);
    jobs.dropRows();
    jobs.putBack(*row);
    EXPECT_FALSE(jobs.take());
    jobs.hover(10);
    const auto old = jobs.take();
    jobs.hover(20);
    jobs.putBack(*old);
    EXPECT_EQ(jobs.take()->positionMs, 20);
    EXPECT_FALSE(jobs.take());
    jobs.putBack(*old);
    EXPECT_EQ(jobs.take()->positionMs, 10);
}
