#include "queue/QueueStore.h"

#include "TestSettings.h"

#include "core/SettingsKeys.h"

#include "support/Eventually.h"
#include "support/TestLog.h"

#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

const QString kKey = QLatin1String(SettingsKeys::PC_Playlist);

class Stores : public testing::Test {
protected:
    TestSettings settings;

    QByteArray file()
    {
        QFile stored(settings->fileName());
        return stored.open(QIODevice::ReadOnly) ? stored.readAll() : QByteArray();
    }
};

} // namespace

TEST_F(Stores, WhatIsSavedComesBackInTheOrderOfThePaths)
{
    QueueStore store(*settings);
    EXPECT_TRUE(store.load().isEmpty());
    EXPECT_EQ(store.take({"/z.mkv", "smb://box/b.mkv", "D:/", "/a.mkv"}),
              QStringList({"/z.mkv", "smb://box/b.mkv", "D", "/a.mkv"}));
    store.save();

    SettingsManager read(settings->fileName());
    EXPECT_EQ(QueueStore(read).load(), QStringList({"/a.mkv", "/z.mkv", "D", "smb://box/b.mkv"}));
    EXPECT_EQ(read.value(kKey).type(), QVariant::Map);
}

TEST_F(Stores, NothingIsWrittenWhileNothingHasChanged)
{
    QueueStore store(*settings);
    store.take({"/a.mkv"});
    store.save();
    ASSERT_TRUE(QFile::remove(settings->fileName()));
    store.save();
    store.take({"/a.mkv"});
    store.remove({"/never.mkv"});
    store.save();
    EXPECT_FALSE(QFile::exists(settings->fileName()));
    store.remove({"/a.mkv"});
    store.save();
    EXPECT_TRUE(QFile::exists(settings->fileName()));
}

TEST_F(Stores, AQueueThatWasOnlyReadIsNotWritten)
{
    settings->setValue(kKey, QVariantMap{{"/a.mkv", 0}});
    settings->sync();
    ASSERT_TRUE(QFile::remove(settings->fileName()));
    QueueStore store(*settings);
    EXPECT_EQ(store.load().size(), 1);
    store.save();
    EXPECT_FALSE(QFile::exists(settings->fileName()));
}

TEST_F(Stores, AWhileAfterAChangeItIsWrittenByItself)
{
    QueueStore store(*settings);
    store.setSaveSoonMs(0);
    QSignalSpy saved(&store, &QueueStore::savedSoon);
    store.take({"/a.mkv"});
    ASSERT_TRUE(saved.wait(Eventually::WaitMs));
    EXPECT_FALSE(store.isChanged());
    EXPECT_TRUE(file().contains("PC_Playlist"));
}

TEST_F(Stores, OneSourceHasOneRow)
{
    QueueStore store(*settings);
    EXPECT_EQ(store.take({"/a.mkv", "/a.mkv", "D:\\", "d", "D"}).size(), 2);
    EXPECT_TRUE(store.take({"/a.mkv"}).isEmpty());
    EXPECT_TRUE(store.contains("d:/"));
    EXPECT_EQ(store.count(), 2);
}

TEST_F(Stores, RubbishIsNotTaken)
{
    QueueStore store(*settings);
    EXPECT_EQ(store.take({"", "  ", QString(5000, 'x'), "/a.mkv"}), QStringList("/a.mkv"));
    EXPECT_TRUE(TestLog::infoLines().join('\n').contains("[Playlist] not taken: 3"));
}

TEST_F(Stores, StoredRubbishIsReadAround)
{
    const QVariant rubbish[] = {QVariant("text"), QVariant(7), QVariant(QStringList{"/a.mkv"}),
                                QVariant(QByteArray("\0\xff", 2)), QVariant()};
    for (const QVariant &stored : rubbish) {
        settings->setValue(kKey, stored);
        EXPECT_TRUE(QueueStore(*settings).load().isEmpty()) << stored.typeName();
    }
    settings->setValue(kKey, QVariantMap{{"", 1},
                                         {"   ", 1},
                                         {QString(9000, 'x'), 1},
                                         {"/b.mkv", QVariantList{1, "x"}},
                                         {"/a.mkv", QVariant()}});
    EXPECT_EQ(QueueStore(*settings).load(), QStringList({"/a.mkv", "/b.mkv"}));
    EXPECT_TRUE(TestLog::infoLines().join('\n').contains("[Playlist] left out as they are no sources: 3"));
}

TEST_F(Stores, ABrokenFileOfSettingsGivesAnEmptyQueue)
{
    QFile broken(settings->fileName());
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write(
        "[General]\nPC_Playlist=@Variant(\\0\\0\\0\\b\\xff\\xff\\xff\\xff)\nPC_PlaylistLoopType=many\n"
        "PC_PlaylistSortType=@Invalid()\n");
    broken.close();
    SettingsManager read(broken.fileName());
    QueueStore store(read);
    EXPECT_TRUE(store.load().isEmpty());
    EXPECT_EQ(store.loopType(), 0);
    EXPECT_EQ(store.sortType(), 0);
}

TEST_F(Stores, TypesAreStoredAsTheirNumbers)
{
    QueueStore store(*settings);
    EXPECT_EQ(store.loopType(), 0);
    EXPECT_EQ(store.sortType(), 0);
    store.setLoopType(4);
    store.setSortType(1);
    EXPECT_EQ(settings->value(SettingsKeys::PC_PlaylistLoopType).toInt(), 4);
    EXPECT_EQ(settings->value(SettingsKeys::PC_PlaylistSortType).toInt(), 1);
    EXPECT_EQ(store.loopType(), 4);
}

TEST_F(Stores, TenThousandSourcesComeBack)
{
    QStringList paths;
    for (int i = 0; i < 10000; ++i)
        paths << QStringLiteral("/films/%1/Film %1.mkv").arg(i, 5, 10, QLatin1Char('0'));
    {
        QueueStore store(*settings);
        EXPECT_EQ(store.take(paths).size(), 10000);
        store.save();
    }
    SettingsManager read(settings->fileName());
    EXPECT_EQ(QueueStore(read).load(), paths);
}
