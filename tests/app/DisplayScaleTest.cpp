#include "ui/DisplayScale.h"

#include "core/ApplicationInfoManager.h"

#include <gtest/gtest.h>

namespace {

class DisplayScaleTest : public testing::Test {
protected:
    ~DisplayScaleTest() override
    {
        m_info->setRunMode(1);
        m_info->setScreenDpi(96);
        m_scale->setScreenSize(1920, 1080);
    }

    ApplicationInfoManager *m_info{ApplicationInfoManager::instance()};
    DisplayScale *m_scale{DisplayScale::instance()};
};

TEST_F(DisplayScaleTest, TvModeOnAnUhdOutputDoubles)
{
    m_info->setRunMode(2);
    m_scale->setScreenSize(3840, 2160);
    for (int n : {0, 1, 33, 319})
        EXPECT_EQ(m_scale->scaleWidth(n), 2 * n);
    EXPECT_EQ(m_scale->scaleHeight(7), 14);
}

TEST_F(DisplayScaleTest, TvModeTakesWidthAndHeightApart)
{
    m_info->setRunMode(2);
    m_scale->setScreenSize(960, 1080);
    EXPECT_EQ(m_scale->scaleWidth(5), 2);
    EXPECT_EQ(m_scale->scaleHeight(5), 5);
}

TEST_F(DisplayScaleTest, PcModeIgnoresTheScreenAndUsesTheDotsPerInch)
{
    m_info->setRunMode(1);
    m_scale->setScreenSize(3840, 2160);
    EXPECT_EQ(m_scale->scaleWidth(10), 10);
    m_info->setScreenDpi(144);
    EXPECT_EQ(m_scale->scaleWidth(10), 15);
    EXPECT_EQ(m_scale->scaleHeight(3), 4);
}

TEST_F(DisplayScaleTest, PicturesFollowTheRatiosAndStayAtOne)
{
    m_info->setRunMode(2);
    QPixmap picture(10, 10);
    EXPECT_EQ(m_scale->scalePixmap(picture).cacheKey(), picture.cacheKey());
    m_scale->setScreenSize(3840, 1080);
    EXPECT_EQ(m_scale->scalePixmap(picture).size(), QSize(20, 10));
    EXPECT_EQ(m_scale->scalePixmapByWidth(picture).size(), QSize(20, 20));
    EXPECT_TRUE(m_scale->scalePixmap(QPixmap()).isNull());
}

} // namespace
