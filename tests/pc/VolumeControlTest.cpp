#include "FakeCommands.h"
#include "TestSettings.h"

#include "transport/VolumeControl.h"

#include "core/SettingsKeys.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

class Volumes : public testing::Test {
protected:
    FakeCommands player;
    TestSettings settings;
    VolumeControl control{player.commands(), *settings};
};

} // namespace

TEST_F(Volumes, AVolumeKeyMovesOnePercent)
{
    player.volume = 0.5F;
    control.changeVolume(1);
    EXPECT_FLOAT_EQ(player.volume, 0.51F);
    EXPECT_EQ(control.volumeCount(), 51);
    control.changeVolume(-1);
    control.changeVolume(-1);
    EXPECT_FLOAT_EQ(player.volume, 0.49F);
}

TEST_F(Volumes, AStepBelowOneIsQuieterAndAnyOtherLouderByTheSameAmount)
{
    player.volume = 0.5F;
    control.changeVolume(0);
    EXPECT_FLOAT_EQ(player.volume, 0.49F);
    control.changeVolume(7);
    EXPECT_FLOAT_EQ(player.volume, 0.5F);
}

TEST_F(Volumes, AtTwoItStaysAtTwoAndTheSliderShowsHundred)
{
    player.volume = 2.0F;
    QSignalSpy shown(&control, &VolumeControl::volumeShown);
    control.changeVolume(1);
    EXPECT_FLOAT_EQ(player.volume, 2.0F);
    EXPECT_EQ(control.volumeCount(), 100);
    EXPECT_EQ(shown.last().at(0).toInt(), 100);
}

TEST_F(Volumes, AtZeroItStaysAtZero)
{
    player.volume = 0.0F;
    control.changeVolume(-1);
    EXPECT_FLOAT_EQ(player.volume, 0.0F);
    EXPECT_EQ(control.volumeCount(), 0);
}

TEST_F(Volumes, AKeyDrivesTheEngineBeyondTheSlider)
{
    player.volume = 1.0F;
    for (int i = 0; i < 30; ++i)
        control.changeVolume(1);
    EXPECT_FLOAT_EQ(player.volume, 1.3F);
    EXPECT_EQ(control.volumeCount(), 100);
}

TEST_F(Volumes, AHundredStepsFromZeroMakeExactlyOne)
{
    player.volume = 0.0F;
    for (int i = 0; i < 100; ++i)
        control.changeVolume(1);
    EXPECT_FLOAT_EQ(player.volume, 1.0F);
    EXPECT_EQ(control.volumeCount(), 100);
}

TEST_F(Volumes, AKeyWithoutASourceDoesNothing)
{
    player.source = false;
    QSignalSpy shown(&control, &VolumeControl::volumeShown);
    control.changeVolume(1);
    EXPECT_TRUE(player.calls.isEmpty());
    EXPECT_TRUE(shown.isEmpty());
}

TEST_F(Volumes, MuteGoesToThePlayerAndTheSettingAtEachChange)
{
    control.toggleMute();
    EXPECT_TRUE(player.muted);
    EXPECT_TRUE(settings->value(SettingsKeys::PC_VolumeMute).toBool());
    control.toggleMute();
    EXPECT_FALSE(player.muted);
    EXPECT_FALSE(settings->value(SettingsKeys::PC_VolumeMute).toBool());
}

TEST_F(Volumes, TheStartTakesBothFromTheSettings)
{
    settings->setValue(SettingsKeys::PC_VolumeCount, 37);
    settings->setValue(SettingsKeys::PC_VolumeMute, true);
    control.restore();
    EXPECT_FLOAT_EQ(player.volume, 0.37F);
    EXPECT_TRUE(player.muted);
    EXPECT_EQ(control.volumeCount(), 37);
}

TEST_F(Volumes, AFirstStartIsLoudAndAnUnreadableSettingToo)
{
    control.restore();
    EXPECT_FLOAT_EQ(player.volume, 1.0F);
    settings->setValue(SettingsKeys::PC_VolumeCount, QStringLiteral("loud"));
    control.restore();
    EXPECT_FLOAT_EQ(player.volume, 1.0F);
    settings->setValue(SettingsKeys::PC_VolumeCount, 4000);
    control.restore();
    EXPECT_FLOAT_EQ(player.volume, 1.0F);
}

TEST_F(Volumes, StoreWritesWhatTheSliderShows)
{
    player.volume = 1.5F;
    control.changeVolume(1);
    control.store();
    EXPECT_EQ(settings->value(SettingsKeys::PC_VolumeCount).toInt(), 100);
}

TEST_F(Volumes, MovingTheSliderEndsTheMute)
{
    control.toggleMute();
    control.setFromSlider(20);
    EXPECT_FALSE(player.muted);
    EXPECT_FLOAT_EQ(player.volume, 0.2F);
    EXPECT_FALSE(settings->value(SettingsKeys::PC_VolumeMute).toBool());
}

TEST_F(Volumes, MakingOneDoesNotTouchThePlayer)
{
    EXPECT_TRUE(player.calls.isEmpty());
}
