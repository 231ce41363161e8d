// The volume on the bar of controls.
#include "OperateBar.h"

#include "core/SettingsKeys.h"

TEST_F(OperateBars, AVolumeKeyAtTheTopShowsHundred)
{
    play();
    player.volume = 2.0F;
    bar.slot_addVolume();
    EXPECT_EQ(player.calls, QStringList("setVolume 200"));
    EXPECT_EQ(bar.volumeSlider()->value(), 100);
    bar.slot_reduceVolume();
    EXPECT_EQ(player.calls.last(), "setVolume 199");
}

TEST_F(OperateBars, AVolumeKeyWithoutASourceDoesNothing)
{
    player.source = false;
    bar.slot_addVolume();
    bar.slot_changeVolume(-3);
    EXPECT_TRUE(player.calls.isEmpty());
}

TEST_F(OperateBars, TheSliderSetsTheVolume)
{
    play();
    QTest::keyClick(bar.volumeSlider(), Qt::Key_Left);
    EXPECT_EQ(player.calls.last(), "setVolume 99");
    bar.slot_moveVolumnSlider(30);
    EXPECT_FLOAT_EQ(player.volume, 0.3F);
    EXPECT_EQ(bar.volumeSlider()->value(), 30);
}

TEST_F(OperateBars, MuteSwapsItsButtonAndStoresItself)
{
    click(Button::Volume);
    EXPECT_TRUE(isSeen(Button::Mute));
    EXPECT_FALSE(isSeen(Button::Volume));
    EXPECT_TRUE(player.muted);
    EXPECT_TRUE(settings->value(SettingsKeys::PC_VolumeMute).toBool());
    click(Button::Mute);
    EXPECT_TRUE(isSeen(Button::Volume));
    EXPECT_FALSE(settings->value(SettingsKeys::PC_VolumeMute).toBool());
}

TEST_F(OperateBars, VolumeAndMuteAreGivenToEachSourceThatStarts)
{
    settings->setValue(SettingsKeys::PC_VolumeCount, 40);
    settings->setValue(SettingsKeys::PC_VolumeMute, true);
    bar.volumeControl()->restore();
    player.calls.clear();
    bar.slot_setUiByStatus(QPlayer::QPlayerStatus_Playing);
    EXPECT_EQ(player.calls, QStringList({"setVolume 40", "setMute 1"}));
    player.calls.clear();
    bar.slot_setUiByStatus(QPlayer::QPlayerStatus_Paused);
    bar.slot_setUiByStatus(QPlayer::QPlayerStatus_Playing);
    EXPECT_TRUE(player.calls.isEmpty());
}
