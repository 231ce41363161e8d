#include "app/ScreenSaverRule.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

TEST(ScreenSaverRule, AnAbsentKeyMeansOffForTheRun)
{
    QTemporaryDir folder;
    SettingsManager store(folder.filePath("config.ini"));
    EXPECT_TRUE(ScreenSaverRule::staysOff(store));
}

TEST(ScreenSaverRule, OnlyAStoredFalseGivesTheScreenSaverBack)
{
    QTemporaryDir folder;
    SettingsManager store(folder.filePath("config.ini"));
    store.setValue(SettingsKeys::PC_DisableScreenSaver, true);
    EXPECT_TRUE(ScreenSaverRule::staysOff(store));
    store.setValue(SettingsKeys::PC_DisableScreenSaver, false);
    EXPECT_FALSE(ScreenSaverRule::staysOff(store));
}

} // namespace
