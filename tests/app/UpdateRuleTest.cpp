#include "app/UpdateRule.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "settings/SettingTables.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

TEST(UpdateRule, WhatTheSettingsPageShowsOfAnAbsentKeyIsWhatTheStartDoes)
{
    const QTemporaryDir folder;
    const SettingsManager store(folder.filePath(QStringLiteral("config.ini")));
    const auto rows = SettingTables::rows(SettingsPageId::General, SettingsFacts());
    const auto row = std::find_if(rows.begin(), rows.end(), [](const SettingRow &each) {
        return qstrcmp(each.key, SettingsKeys::PC_CheckUpdate) == 0;
    });
    ASSERT_NE(row, rows.end());
    EXPECT_EQ(UpdateRule::wantsCheck(store), row->standard.toBool());
    EXPECT_TRUE(UpdateRule::wantsCheck(store));
}

TEST(UpdateRule, AStoredChoiceCounts)
{
    const QTemporaryDir folder;
    SettingsManager store(folder.filePath(QStringLiteral("config.ini")));
    for (const bool wants : {false, true}) {
        store.setValue(SettingsKeys::PC_CheckUpdate, wants);
        EXPECT_EQ(UpdateRule::wantsCheck(store), wants);
    }
}

} // namespace
