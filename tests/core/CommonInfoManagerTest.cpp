#include "core/CommonInfoManager.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

TEST(CommonInfoManagerTest, KeyMapsOfBothModesAreStored)
{
    QTemporaryDir folder;
    SettingsManager store(folder.filePath("config.ini"));
    CommonInfoManager common(store);
    EXPECT_TRUE(common.getPcKeyMap().isEmpty());
    EXPECT_TRUE(common.getTvKeyMap().isEmpty());
    common.savePcKeyMap({{0, 1}});
    common.saveTvKeyMap({{2, 3}, {4, 5}});
    EXPECT_EQ(common.getPcKeyMap(), (CommonInfoManager::KeyMap{{0, 1}}));
    EXPECT_EQ(common.getTvKeyMap(), (CommonInfoManager::KeyMap{{2, 3}, {4, 5}}));
}

TEST(CommonInfoManagerTest, UsageDataNeedsThePlan)
{
    QTemporaryDir folder;
    SettingsManager store(folder.filePath("config.ini"));
    CommonInfoManager common(store);
    EXPECT_FALSE(common.usageDataAllowed());
    store.setAddPlan(true);
    store.setValue(SettingsKeys::PC_ADDPLAN, true);
    EXPECT_TRUE(common.usageDataAllowed());
}

TEST(CommonInfoManagerTest, EveryExtensionIsOfExactlyOneKind)
{
    QSet<QString> seen;
    for (FileKind kind : {FileKind::Video, FileKind::Audio, FileKind::Subtitle, FileKind::DiscImage}) {
        const QStringList extensions = CommonInfoManager::extensions(kind);
        EXPECT_GT(extensions.size(), 4);
        for (const QString &extension : extensions) {
            EXPECT_FALSE(seen.contains(extension)) << qPrintable(extension);
            EXPECT_EQ(extension, extension.toLower());
            EXPECT_FALSE(extension.contains('.'));
            EXPECT_EQ(CommonInfoManager::kindOf("/x/a." + extension.toUpper()), kind);
            seen << extension;
        }
    }
    EXPECT_TRUE(CommonInfoManager::extensions(FileKind::Other).isEmpty());
}

TEST(CommonInfoManagerTest, FiltersNameTheExtensionsWithAnAsterisk)
{
    EXPECT_TRUE(CommonInfoManager::nameFilters(FileKind::Video).contains("*.mkv"));
    EXPECT_TRUE(CommonInfoManager::nameFilters(FileKind::Audio).contains("*.flac"));
    EXPECT_TRUE(CommonInfoManager::nameFilters(FileKind::Subtitle).contains("*.srt"));
    EXPECT_TRUE(CommonInfoManager::nameFilters(FileKind::DiscImage).contains("*.iso"));
    const QStringList playable = CommonInfoManager::playableNameFilters();
    EXPECT_TRUE(playable.contains("*.mkv") && playable.contains("*.flac") && playable.contains("*.iso"));
    EXPECT_FALSE(playable.contains("*.srt"));
}

TEST(CommonInfoManagerTest, WhatHasNoKnownExtensionIsNothing)
{
    for (const char *path : {"", "/films/mkv", "/films.mkv/readme", "a.mkv.part", "a."})
        EXPECT_EQ(CommonInfoManager::kindOf(path), FileKind::Other) << path;
    EXPECT_EQ(CommonInfoManager::kindOf("Film (2010).DE.MKV"), FileKind::Video);
}

} // namespace
