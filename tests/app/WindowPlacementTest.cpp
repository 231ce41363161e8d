#include "pc/WindowPlacement.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

constexpr QSize kDefault{1024, 576};
constexpr QRect kScreen{0, 0, 1920, 1040};

class WindowPlacementTest : public testing::Test {
protected:
    WindowPlacementTest()
        : m_store(m_folder.filePath("config.ini"))
        , m_placement(m_store)
    {
    }

    QRect restored() { return m_placement.restored(kDefault, kScreen); }

    QTemporaryDir m_folder;
    SettingsManager m_store;
    WindowPlacement m_placement;
};

TEST_F(WindowPlacementTest, FirstStartIsTheDefaultSizeInTheMiddle)
{
    EXPECT_EQ(restored().size(), kDefault);
    EXPECT_EQ(restored().center(), kScreen.center());
    EXPECT_FALSE(m_placement.startsMaximized());
    EXPECT_FALSE(m_placement.startsFullScreen());
}

TEST_F(WindowPlacementTest, TheLastPlaceIsRestored)
{
    m_placement.store(QRect(100, 120, 800, 500), true, false);
    EXPECT_EQ(restored(), QRect(100, 120, 800, 500));
    EXPECT_TRUE(m_placement.startsMaximized());
    EXPECT_FALSE(m_placement.startsFullScreen());
}

TEST_F(WindowPlacementTest, WithTheVideoPolicyTheLastPlaceIsIgnored)
{
    m_placement.store(QRect(100, 120, 800, 500), false, false);
    m_store.setValue(SettingsKeys::PC_WindowSize, WindowPlacement::MatchVideo);
    EXPECT_EQ(restored().size(), kDefault);
}

TEST_F(WindowPlacementTest, APlaceOutsideTheScreenIsNotRestored)
{
    m_placement.store(QRect(5000, 4000, 800, 500), false, false);
    EXPECT_EQ(restored().size(), QSize(800, 500));
    EXPECT_TRUE(kScreen.contains(restored()));
}

TEST_F(WindowPlacementTest, BrokenValuesGiveTheDefault)
{
    m_store.setValue(SettingsKeys::PC_LastWindowSize, "big");
    m_store.setValue(SettingsKeys::PC_LastWindowPos, 12);
    EXPECT_EQ(restored().size(), kDefault);
}

TEST_F(WindowPlacementTest, ASizeLargerThanTheScreenIsCut)
{
    m_placement.store(QRect(0, 0, 4000, 3000), false, false);
    EXPECT_EQ(restored().size(), kScreen.size());
}

} // namespace
