#include "TestSettings.h"

#include "overlays/PlayedLine.h"

#include "core/SettingsKeys.h"
#include "ui/LookTokens.h"

#include <gtest/gtest.h>

namespace {

class PlayedLines : public testing::Test {
protected:
    TestSettings settings;
    PlayedLine line{*settings};
};

} // namespace

TEST_F(PlayedLines, ComesWhileTheBarsRestOverASourceOfKnownLength)
{
    line.setResting(true);
    EXPECT_FALSE(line.isWanted());
    line.setTime(30, 120);
    EXPECT_TRUE(line.isWanted());
    EXPECT_DOUBLE_EQ(line.played(), 0.25);
    line.setResting(false);
    EXPECT_FALSE(line.isWanted());
    line.setResting(true);
    EXPECT_TRUE(line.isWanted());
    line.setTime(0, 0);
    EXPECT_FALSE(line.isWanted());
}

TEST_F(PlayedLines, StaysAwayWhereTheSettingsDoNotWantIt)
{
    settings->setValue(SettingsKeys::PC_ShowProgress, false);
    line.setTime(30, 120);
    line.setResting(true);
    EXPECT_FALSE(line.isWanted());
    settings->setValue(SettingsKeys::PC_ShowProgress, true);
    line.updateShown();
    EXPECT_TRUE(line.isWanted());
}

TEST_F(PlayedLines, IsFilledAsFarAsThereWasPlayed)
{
    line.resize(400, 4);
    line.setTime(30, 120);
    const QImage picture = line.grab().toImage();
    const QRgb accent = Look::color(Look::Accent).rgb();
    EXPECT_EQ(picture.pixelColor(picture.width() / 8, 1).rgb(), accent);
    EXPECT_NE(picture.pixelColor(picture.width() / 2, 1).rgb(), accent);
    line.setTime(500, 120);
    EXPECT_DOUBLE_EQ(line.played(), 1.0);
}

TEST_F(PlayedLines, TakesNoMouse)
{
    line.resize(400, 4);
    EXPECT_FALSE(line.takesMouseAt({10, 1}));
}
