#include "FakeCommands.h"

#include "transport/NormalPlaySpeedBar.h"

#include <QAbstractButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class SpeedBars : public testing::Test {
protected:
    FakeCommands player;
    NormalPlaySpeedBar bar{player.commands()};
};

} // namespace

TEST_F(SpeedBars, ShowsTheTextOfTheTableOnFastAndRewind)
{
    EXPECT_FALSE(bar.isVisible());
    player.speed = QStringLiteral("1.25");
    bar.slot_updateSpeed(QPlayer::QPlayerStatus_Forward);
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.text(), "1.25");
    player.speed = QStringLiteral("-16");
    bar.slot_updateSpeed(QPlayer::QPlayerStatus_Rewind);
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.text(), "-16");
}

TEST_F(SpeedBars, NormalSpeedHidesIt)
{
    bar.slot_updateSpeed(QPlayer::QPlayerStatus_Forward);
    bar.slot_updateSpeed(QPlayer::QPlayerStatus_Playing);
    EXPECT_FALSE(bar.isVisible());
}

TEST_F(SpeedBars, EndStopAndFailureHideItAndAPauseDoesNot)
{
    for (const auto status :
         {QPlayer::QPlayerStatus_Stopped, QPlayer::QPlayerStatus_Ended, QPlayer::QPlayerStatus_Failed}) {
        bar.slot_updateSpeed(QPlayer::QPlayerStatus_Rewind);
        bar.slot_updateSpeed(QPlayer::QPlayerStatus_Paused);
        EXPECT_TRUE(bar.isVisible());
        bar.slot_updateSpeed(status);
        EXPECT_FALSE(bar.isVisible());
    }
}

TEST_F(SpeedBars, TheCloseButtonReturnsToNormalSpeed)
{
    bar.slot_updateSpeed(QPlayer::QPlayerStatus_Forward);
    bar.resize(bar.sizeHint());
    auto *close = bar.findChild<QAbstractButton *>(QStringLiteral("pushButton_close"));
    ASSERT_NE(close, nullptr);
    QTest::mouseClick(close, Qt::LeftButton);
    EXPECT_EQ(player.calls, QStringList("setSpeedIndex 9"));
    EXPECT_TRUE(bar.isVisible()); // until the player says so
}

TEST_F(SpeedBars, FitsEverySpeed)
{
    player.speed = QStringLiteral("2");
    bar.slot_updateSpeed(QPlayer::QPlayerStatus_Forward);
    const int narrow = bar.sizeHint().width();
    player.speed = QStringLiteral("1.25");
    bar.slot_updateSpeed(QPlayer::QPlayerStatus_Forward);
    EXPECT_GT(bar.sizeHint().width(), narrow);
}
