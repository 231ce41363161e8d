#include "TestSettings.h"

#include "core/SettingsKeys.h"
#include "playcontrol/ScreenshotNaming.h"

#include <gtest/gtest.h>

namespace {

const QDateTime Time(QDate(2024, 5, 31), QTime(20, 5, 7));

} // namespace

TEST(ScreenshotNamingTest, NameIsTheTime)
{
    EXPECT_EQ(ScreenshotNaming::baseName(Time), "2024_05_31_20_05_07");
    EXPECT_EQ(ScreenshotNaming::baseName(Time, 2), "2024_05_31_20_05_07_2");
}

TEST(ScreenshotNamingTest, SuffixIsTheChosenOneOrPng)
{
    for (const char *known : {".PNG", ".JPG", ".BMP", ".jpg", ".png"})
        EXPECT_EQ(ScreenshotNaming::suffixOf(known), known);
    for (const char *other : {"", "PNG", ".gif", ".exe", "/../x.png", ". PNG"})
        EXPECT_EQ(ScreenshotNaming::suffixOf(other), ".png") << other;
}

TEST(ScreenshotNamingTest, DefaultsAreThePicturesFolderPngAndTheClipboard)
{
    TestSettings settings;
    const ScreenshotNaming::Target target = ScreenshotNaming::target(*settings, "/pictures");
    EXPECT_EQ(target.folder, "/pictures");
    EXPECT_EQ(target.suffix, ".png");
    EXPECT_TRUE(target.toClipboard);
}

TEST(ScreenshotNamingTest, SettingsDecide)
{
    TestSettings settings;
    settings->setValue(SettingsKeys::PC_SnapShotPath, "/shots");
    settings->setValue(SettingsKeys::PC_SnapShotType, ".JPG");
    settings->setValue(SettingsKeys::PC_SaveToDipboard, false);
    const ScreenshotNaming::Target target = ScreenshotNaming::target(*settings, "/pictures");
    EXPECT_EQ(target.folder, "/shots");
    EXPECT_EQ(target.suffix, ".JPG");
    EXPECT_FALSE(target.toClipboard);
}
