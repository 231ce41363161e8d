#include "preview/PreviewPlan.h"

#include <gtest/gtest.h>

TEST(PreviewPlan, ShowsASixtiethOfTheLengthButNoLessThanFiveSeconds)
{
    const struct {
        int total;
        int interval;
        int rows;
    } rows[] = {
        {7200, 120, 60}, {600, 10, 60}, {300, 5, 60}, {299, 5, 60},
        {60, 5, 12},     {7, 5, 2},     {3, 5, 1},    {301, 6, 51},
    };
    for (const auto &row : rows) {
        const QVector<int> seconds = PreviewPlan::positions(row.total);
        ASSERT_EQ(seconds.size(), row.rows) << row.total;
        for (int i = 0; i < seconds.size(); ++i)
            EXPECT_EQ(seconds.at(i), i * row.interval) << row.total;
        EXPECT_LT(seconds.last(), row.total);
    }
}

TEST(PreviewPlan, ALengthThatIsNotKnownHasNoPositions)
{
    EXPECT_TRUE(PreviewPlan::positions(0).isEmpty());
    EXPECT_TRUE(PreviewPlan::positions(-5).isEmpty());
    EXPECT_LE(PreviewPlan::positions(2147483647).size(), PreviewPlan::MostRows);
}

TEST(PreviewPlan, MoreQuantityMeansASmallerStepAndAtTheEndAllRows)
{
    int before = 1000;
    for (int value = 0; value <= PreviewPlan::QuantityMost; ++value) {
        EXPECT_LT(PreviewPlan::stepOf(value), before);
        before = PreviewPlan::stepOf(value);
    }
    EXPECT_EQ(before, 1);
    EXPECT_EQ(PreviewPlan::stepOf(-3), PreviewPlan::stepOf(0));
    EXPECT_EQ(PreviewPlan::stepOf(99), 1);
}

TEST(PreviewPlan, CellsFillTheStripWithoutAPictureCutAtItsEnd)
{
    for (const double ratio : {1.0, 1.5, 2.0}) {
        for (const int available : {320, 640, 976, 1232, 1872, 3792}) {
            int before = 0;
            for (int zoom = 0; zoom <= PreviewPlan::ZoomMost; ++zoom) {
                const auto cells = PreviewPlan::cells(zoom, available, ratio);
                EXPECT_LE(cells.stripWidth, available) << zoom << ' ' << available << ' ' << ratio;
                EXPECT_GE(cells.columns, 1);
                EXPECT_GE(cells.cell.width(), before) << "a larger zoom makes no smaller pictures";
                before = cells.cell.width();
                EXPECT_EQ((cells.stripWidth - cells.columns * cells.cell.width()), 2 * qRound(16 * ratio));
            }
        }
    }
}

TEST(PreviewPlan, TheLargestZoomShowsThePicturesAsTheyAreFetched)
{
    const auto cells = PreviewPlan::cells(PreviewPlan::ZoomMost, 3000, 1.0);
    const QRect picture = PreviewPlan::pictureRect({QPoint(), cells.cell}, 1.0);
    EXPECT_LE(picture.width(), 324);
    EXPECT_GE(picture.width(), 300);
    EXPECT_NEAR(picture.height(), picture.width() * 188.0 / 324.0, 1.0);
}

TEST(PreviewPlan, PictureAndTimeStandInTheCellOneBelowTheOther)
{
    for (const double ratio : {1.0, 2.0}) {
        const QRect cell(QPoint(40, 7), PreviewPlan::cells(3, 1200, ratio).cell);
        const QRect picture = PreviewPlan::pictureRect(cell, ratio);
        const QRect time = PreviewPlan::timeRect(cell, ratio);
        EXPECT_TRUE(cell.contains(picture));
        EXPECT_TRUE(cell.contains(time));
        EXPECT_LT(picture.bottom(), time.top());
        EXPECT_FALSE(picture.intersects(time));
        const QRect upright = PreviewPlan::fitted({100, 188}, picture);
        EXPECT_TRUE(picture.contains(upright));
        EXPECT_EQ(upright.height(), picture.height());
    }
}
