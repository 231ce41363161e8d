#include "tv/TvSizeManager.h"

#include "core/ApplicationInfoManager.h"
#include "ui/DisplayScale.h"

#include <gtest/gtest.h>

namespace {

class TvSizeManagerTest : public testing::Test {
protected:
    TvSizeManagerTest() { ApplicationInfoManager::instance()->setRunMode(2); }
    ~TvSizeManagerTest() override
    {
        DisplayScale::instance()->setScreenSize(1920, 1080);
        ApplicationInfoManager::instance()->setRunMode(1);
    }

    TvSizeManager *m_sizes{TvSizeManager::instance()};
};

TEST_F(TvSizeManagerTest, DesignSizesAtTheDesignScreen)
{
    EXPECT_EQ(m_sizes->startTopBarHeight(), 100);
    EXPECT_EQ(m_sizes->startBottomBarHeight(), 425);
    EXPECT_EQ(m_sizes->mainMenuItemSize(), QSize(319, 356));
    EXPECT_EQ(m_sizes->fileItemSize(), QSize(233, 239));
    EXPECT_EQ(m_sizes->historyItemSize(true), QSize(500, 261));
    EXPECT_EQ(m_sizes->historyItemSize(false), QSize(450, 261));
    EXPECT_EQ(m_sizes->historyTextMargins(false), QMargins(18, 0, -32, 0));
    EXPECT_EQ(m_sizes->playMenuRightListWidth(), 442);
    EXPECT_EQ(m_sizes->playMenuTopRowHeight(), 170);
    EXPECT_EQ(m_sizes->settingTitleHeight(), 130);
}

TEST_F(TvSizeManagerTest, ValuesFollowAChangeOfScreen)
{
    DisplayScale::instance()->setScreenSize(3840, 2160);
    EXPECT_EQ(m_sizes->mainMenuItemSize(), QSize(638, 712));
    EXPECT_EQ(m_sizes->settingRowHeight(), 130);
}

TEST_F(TvSizeManagerTest, TheRightListGetsLowerRowByRow)
{
    m_sizes->setPlayMenuRightRows(5);
    EXPECT_EQ(m_sizes->playMenuRightListHeight(0), 4 * 85 + 170);
    EXPECT_EQ(m_sizes->playMenuRightListHeight(4), 170);
}

} // namespace
