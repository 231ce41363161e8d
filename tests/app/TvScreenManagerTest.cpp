#include "tv/TvScreenManager.h"

#include "core/SettingsManager.h"
#include "ui/DisplayScale.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QRect kSmall(0, 0, 1280, 720);
const QRect kLarge(1280, 0, 3840, 2160);
const QRect kTwin(5120, 0, 3840, 2160);
const QRect kGone(9000, 0, 800, 600);

class TvScreenManagerTest : public testing::Test {
protected:
    TvScreenManagerTest()
        : m_store(m_folder.filePath("config.ini"))
    {
    }
    ~TvScreenManagerTest() override { DisplayScale::instance()->setScreenSize(1920, 1080); }

    TvScreenManager::ScreenSource source()
    {
        return [this] { return m_screens; };
    }

    QTemporaryDir m_folder;
    SettingsManager m_store;
    QList<QRect> m_screens{kSmall, kLarge};
};

TEST_F(TvScreenManagerTest, TakesTheLargestScreen)
{
    TvScreenManager manager(m_store, source());
    EXPECT_EQ(manager.crtScreenRect(), kLarge);
    EXPECT_EQ(manager.screenCount(), 2);
    EXPECT_FALSE(m_store.contains("TV_crtScreenRect"));
}

TEST_F(TvScreenManagerTest, OfTwoEquallyLargeScreensTheFirst)
{
    m_screens = {kSmall, kTwin, kLarge};
    EXPECT_EQ(TvScreenManager(m_store, source()).crtScreenRect(), kTwin);
}

TEST_F(TvScreenManagerTest, TakesTheStoredScreenWhenItIsThere)
{
    m_store.setCurrentScreenRect(kSmall);
    EXPECT_EQ(TvScreenManager(m_store, source()).crtScreenRect(), kSmall);
}

TEST_F(TvScreenManagerTest, AStoredScreenThatIsGoneIsIgnoredAndKept)
{
    m_store.setCurrentScreenRect(kGone);
    TvScreenManager manager(m_store, source());
    EXPECT_EQ(manager.crtScreenRect(), kLarge);
    EXPECT_EQ(m_store.currentScreenRect(), kGone);
}

TEST_F(TvScreenManagerTest, AChangeSetsTheScaleAndTellsOnce)
{
    TvScreenManager manager(m_store, source());
    QSignalSpy spy(&manager, &TvScreenManager::SIG_needUpdateGeometry);
    manager.SLOT_screenChanged();
    EXPECT_TRUE(spy.isEmpty());
    m_screens = {kSmall};
    manager.SLOT_screenChanged();
    ASSERT_EQ(spy.size(), 1);
    EXPECT_EQ(spy.at(0).at(0).toRect(), kSmall);
}

TEST_F(TvScreenManagerTest, WithoutAnyScreenTheOldRectangleStays)
{
    TvScreenManager manager(m_store, source());
    m_screens.clear();
    manager.SLOT_screenChanged();
    EXPECT_EQ(manager.crtScreenRect(), kLarge);
    EXPECT_EQ(manager.crtScreenDpi(), 96);
}

TEST_F(TvScreenManagerTest, SteppingGoesRoundAndIsStored)
{
    m_screens = {kSmall, kLarge, kTwin};
    TvScreenManager manager(m_store, source());
    ASSERT_EQ(manager.crtScreenRect(), kLarge);
    manager.SLOT_switchScreen();
    EXPECT_EQ(manager.crtScreenRect(), kTwin);
    EXPECT_EQ(m_store.currentScreenRect(), kTwin);
    manager.SLOT_switchScreen();
    EXPECT_EQ(manager.crtScreenRect(), kSmall);
    EXPECT_EQ(m_store.currentScreenRect(), kSmall);
}

TEST_F(TvScreenManagerTest, SteppingWithOneScreenChangesNothing)
{
    m_screens = {kLarge};
    TvScreenManager manager(m_store, source());
    QSignalSpy spy(&manager, &TvScreenManager::SIG_needUpdateGeometry);
    manager.SLOT_switchScreen();
    EXPECT_TRUE(spy.isEmpty());
    EXPECT_FALSE(m_store.contains("TV_crtScreenRect"));
}

TEST_F(TvScreenManagerTest, SteppingFromAScreenThatIsGoneTakesTheLargest)
{
    TvScreenManager manager(m_store, source());
    m_screens = {kSmall, kTwin};
    manager.SLOT_switchScreen();
    EXPECT_EQ(manager.crtScreenRect(), kTwin);
}

} // namespace
