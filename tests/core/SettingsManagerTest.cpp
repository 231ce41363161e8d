#include "core/SettingsManager.h"

#include "ChildProcess.h"
#include "core/ApplicationInfoManager.h"
#include "core/MarkerFiles.h"
#include "core/SettingsKeys.h"
#include "support/FileSizeLimit_linux.h"
#include "support/TestLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSize>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <thread>

namespace {

class SettingsManagerTest : public testing::Test {
protected:
    // What the file holds now, read by an object of its own.
    QVariant onDisk(const QString &key) const
    {
        QSettings file(m_file, QSettings::IniFormat);
        return file.value(key);
    }

    void putFile(const QByteArray &bytes) const
    {
        QFile file(m_file);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir m_folder;
    QString m_file{m_folder.filePath("config.ini")};
};

TEST_F(SettingsManagerTest, AMissingKeyIsAnInvalidValue)
{
    SettingsManager store(m_file);
    EXPECT_FALSE(store.value("PC_Played").isValid());
    EXPECT_FALSE(store.value("PC_Played").toBool());
    EXPECT_EQ(store.value("PC_Codec").toInt(), 0);
    EXPECT_EQ(store.value("PC_Font").toString(), "");
    EXPECT_FALSE(store.contains("PC_Played"));
}

TEST_F(SettingsManagerTest, EveryAccessorHasItsDefaultAndKeepsItsValue)
{
    SettingsManager store(m_file);
    EXPECT_EQ(store.launchMode(), 1) << "an absent key means PC mode";
    EXPECT_EQ(store.audioSpeaker(), 1);
    EXPECT_EQ(store.audioPassthrough(), 1);
    EXPECT_TRUE(store.currentScreenRect().isNull());
    EXPECT_FALSE(store.proxyEnable());
    EXPECT_EQ(store.proxyType(), 0);
    EXPECT_EQ(store.proxyHost(), "");
    EXPECT_EQ(store.proxyPort(), "");
    EXPECT_FALSE(store.hasProxyPort());
    EXPECT_EQ(store.proxyUserName(), "");
    EXPECT_EQ(store.proxyPasswd(), "");
    EXPECT_FALSE(store.mediaServerSortOrder());
    EXPECT_EQ(store.mediaServerSortMethod(), 0);
    EXPECT_TRUE(store.firstPlay());
    EXPECT_FALSE(store.addPlan());
    EXPECT_FALSE(store.enableFileAssociation());

    store.setLaunchMode(2);
    store.setAudioSpeaker(3);
    store.setAudioPassthrough(4);
    store.setCurrentScreenRect(QRect(1920, 0, 3840, 2160));
    store.setProxyEnable(true);
    store.setProxyType(2);
    store.setProxyHost("proxy.example");
    store.setProxyPort("");
    store.setProxyUserName("user");
    store.setProxyPasswd("a;b \"c\" ,d=\\e");
    store.setMediaServerSortOrder(true);
    store.setMediaServerSortMethod(3);
    store.setFirstPlay(false);
    store.setEnableFileAssociation(true);
    store.sync();

    SettingsManager again(m_file);
    EXPECT_EQ(again.launchMode(), 2);
    EXPECT_EQ(again.audioSpeaker(), 3);
    EXPECT_EQ(again.audioPassthrough(), 4);
    EXPECT_EQ(again.currentScreenRect(), QRect(1920, 0, 3840, 2160));
    EXPECT_TRUE(again.proxyEnable());
    EXPECT_EQ(again.proxyType(), 2);
    EXPECT_EQ(again.proxyHost(), "proxy.example");
    EXPECT_TRUE(again.hasProxyPort()) << "an empty port is a port that was stored";
    EXPECT_EQ(again.proxyUserName(), "user");
    EXPECT_EQ(again.proxyPasswd(), "a;b \"c\" ,d=\\e");
    EXPECT_TRUE(again.mediaServerSortOrder());
    EXPECT_EQ(again.mediaServerSortMethod(), 3);
    EXPECT_FALSE(again.firstPlay());
    EXPECT_TRUE(again.enableFileAssociation());
}

TEST_F(SettingsManagerTest, ATextThatIsNoFlagGivesTheDefault)
{
    putFile(
        "[General]\nPC_ProxyEnable=banana\nPC_MediaServerSortOrder=banana\nPC_ADDPLAN=1\nPC_AddPlan=banana\n"
        "EnableFileAssociation=banana\nPC_FirstPlay=banana\n");
    SettingsManager store(m_file);
    EXPECT_FALSE(store.proxyEnable());
    EXPECT_FALSE(store.mediaServerSortOrder());
    EXPECT_FALSE(store.addPlan());
    EXPECT_FALSE(store.enableFileAssociation());
    EXPECT_TRUE(store.firstPlay());
    EXPECT_TRUE(store.valueOr("PC_ProxyEnable", true));
    EXPECT_FALSE(store.valueOr("PC_ProxyEnable", false));
}

TEST_F(SettingsManagerTest, AFlagIsAWordOrANumber)
{
    const struct {
        const char *text;
        bool fallback;
        bool expected;
    } rows[] = {{"true", false, true}, {"TRUE", false, true}, {"false", true, false},
                {"1", false, true},    {"0", true, false},    {"2", false, true},
                {"", true, true},      {"", false, false},    {"yes", true, true},
                {"yes", false, false}, {"1.5", false, false}, {"@Invalid()", true, true}};
    QByteArray text = "[General]\n";
    int number = 0;
    for (const auto &row : rows)
        text += "flag" + QByteArray::number(number++) + "=" + row.text + "\n";
    putFile(text);
    SettingsManager store(m_file);
    number = 0;
    for (const auto &row : rows)
        EXPECT_EQ(store.valueOr("flag" + QString::number(number++), row.fallback), row.expected) << row.text;
    store.setValue("flag", true);
    EXPECT_TRUE(store.valueOr("flag", false));
}

TEST_F(SettingsManagerTest, ValuesThatAreNoIntegersGiveTheDefault)
{
    putFile("[General]\nlaunchModeVersion6=television\nAudioSpeaker=\nAudioPassthrough=2.x\n");
    SettingsManager store(m_file);
    EXPECT_EQ(store.launchMode(), 1);
    EXPECT_EQ(store.audioSpeaker(), 1);
    EXPECT_EQ(store.audioPassthrough(), 1);
    EXPECT_EQ(store.valueOr("launchModeVersion6", 7), 7);
    EXPECT_EQ(store.valueOr("nothing", QString("x")), "x");
}

TEST_F(SettingsManagerTest, AStoredValueIsPreferredToTheFallback)
{
    SettingsManager store(m_file);
    store.setValue("PC_SDRValue", 70);
    store.setValue("PC_AC3", false);
    store.setValue("PC_LastWindowSize", QSize(800, 600));
    store.sync();
    SettingsManager again(m_file);
    EXPECT_EQ(again.valueOr("PC_SDRValue", 50), 70);
    EXPECT_FALSE(again.valueOr("PC_AC3", true));
    EXPECT_EQ(again.valueOr("PC_LastWindowSize", QSize()), QSize(800, 600));
}

TEST_F(SettingsManagerTest, SavingAnEmptyLanguageKeepsTheOldOne)
{
    SettingsManager store(m_file);
    store.setLanguage("GER");
    store.setLanguage("");
    EXPECT_EQ(store.language(), "GER");
}

TEST_F(SettingsManagerTest, WithoutALanguageTheSystemsIsTaken)
{
    using Id = SystemLanguageId;
    const struct {
        Id id;
        const char *code;
    } rows[] = {
        {{Id::Chinese, 2}, "CHS"}, {{Id::Chinese, 1}, "CHT"},  {{Id::Chinese, 3}, "CHT"},
        {{Id::German, 1}, "GER"},  {{Id::English, 2}, "ENU"},  {{Id::Spanish, 1}, "ESP"},
        {{Id::French, 1}, "FRA"},  {{Id::Japanese, 1}, "JPN"}, {{Id::Korean, 1}, "ENU"},
        {{Id::Unknown, 0}, "ENU"},
    };
    SettingsManager store(m_file);
    for (const auto &row : rows) {
        store.setSystemLanguageReader([&row] { return row.id; });
        EXPECT_EQ(store.language(), row.code) << row.id.primary << ' ' << row.id.sub;
    }
    store.setSystemLanguageReader({});
    EXPECT_EQ(store.language(), "ENU");
    EXPECT_FALSE(store.contains(SettingsKeys::PC_Language)) << "asking stores nothing";
}

TEST_F(SettingsManagerTest, AnInvalidScreenRectangleIsRefusedWithALogLine)
{
    SettingsManager store(m_file);
    store.setCurrentScreenRect(QRect(0, 0, 10, 10));
    store.setCurrentScreenRect(QRect());
    EXPECT_EQ(store.currentScreenRect(), QRect(0, 0, 10, 10));
    EXPECT_EQ(TestLog::infoLines(), QStringList{"[ASSERT] set Current Screen Rect not vaild"});
}

TEST_F(SettingsManagerTest, ThePlanIsReadOnlyUnderItsOtherSpelling)
{
    SettingsManager store(m_file);
    store.setAddPlan(true);
    EXPECT_TRUE(store.value(SettingsKeys::PC_AddPlan).toBool());
    EXPECT_FALSE(store.addPlan());
    store.setValue(SettingsKeys::PC_ADDPLAN, false);
    EXPECT_TRUE(store.addPlan());
}

TEST_F(SettingsManagerTest, KeyMapsOfBothModesAreKeptApartAndSynced)
{
    SettingsManager store(m_file);
    const SettingsManager::KeyMap tv{{30, Qt::Key_Up}, {5, Qt::CTRL + Qt::Key_Q}};
    store.setKeyMap(true, tv);
    store.setKeyMap(false, {{12, Qt::Key_Space}});
    EXPECT_EQ(onDisk("TV_keyMap/size").toInt(), 2);
    EXPECT_EQ(onDisk("TV_keyMap/1/HotKey_Key").toInt(), 5) << "in ascending order of the operations";
    EXPECT_EQ(onDisk("TV_keyMap/1/HotKey_Value").toInt(), int(Qt::CTRL + Qt::Key_Q));
    EXPECT_EQ(store.keyMap(true), tv);
    EXPECT_EQ(store.keyMap(false), (SettingsManager::KeyMap{{12, Qt::Key_Space}}));
}

TEST_F(SettingsManagerTest, AShorterArrayLeavesNothingOfTheLongerOne)
{
    SettingsManager store(m_file);
    store.setKeyMap(false, {{1, 1}, {2, 2}, {3, 3}});
    store.setKeyMap(false, {{1, 1}});
    EXPECT_FALSE(onDisk("PC_keyMap/2/HotKey_Key").isValid());
    store.setKeyMap(false, {});
    EXPECT_TRUE(store.keyMap(false).isEmpty());
    EXPECT_EQ(onDisk("PC_keyMap/size").toInt(), 0);
}

TEST_F(SettingsManagerTest, KeyMapEntriesWithoutIntegersAreSkipped)
{
    putFile("[TV_keyMap]\nsize=4\n1\\HotKey_Key=5\n1\\HotKey_Value=x\n2\\HotKey_Key=up\n2\\HotKey_Value=7\n"
            "3\\HotKey_Value=9\n4\\HotKey_Key=6\n4\\HotKey_Value=10\n");
    SettingsManager store(m_file);
    EXPECT_EQ(store.keyMap(true), (SettingsManager::KeyMap{{6, 10}}));
}

TEST_F(SettingsManagerTest, AnArraySizeThatTheFileDoesNotBackUpCostsNothing)
{
    putFile("[TV_keyMap]\nsize=2147483647\n1\\HotKey_Key=5\n1\\HotKey_Value=6\n");
    SettingsManager store(m_file);
    EXPECT_EQ(store.keyMap(true), (SettingsManager::KeyMap{{5, 6}}));
}

TEST_F(SettingsManagerTest, HistoryEntriesWithoutAnIntegerTypeAreSkipped)
{
    SettingsManager store(m_file);
    const QList<PlayHistoryEntry> history{{"Film", "/films/a.mkv", 0},
                                          {QString::fromUtf8("Ça, \"b\""), "E:/", 2}};
    store.setPlayHistory(history);
    EXPECT_EQ(store.playHistory(), history);
    store.setValue("PlayHistory/1/PlayType", "none");
    EXPECT_EQ(store.playHistory(), history.mid(1));
}

TEST_F(SettingsManagerTest, AssociatedTypesKeepTheirOrder)
{
    SettingsManager store(m_file);
    store.setFileAssociations({".mkv", ".avi"});
    EXPECT_EQ(store.fileAssociations(), (QStringList{".mkv", ".avi"}));
    EXPECT_EQ(onDisk("FileAssociation/2/FileType").toString(), ".avi");
    EXPECT_TRUE(TestLog::infoLines().isEmpty()) << "counts are logged only with the debug switch";
}

TEST_F(SettingsManagerTest, CountsAreLoggedWithTheDebugSwitches)
{
    QFile marker(m_folder.filePath("marker"));
    ASSERT_TRUE(marker.open(QIODevice::WriteOnly));
    MarkerFiles::instance()->setResolver([&](const QString &) { return marker.fileName(); });
    SettingsManager store(m_file);
    store.setKeyMap(true, {{1, 2}, {3, 4}});
    EXPECT_EQ(store.keyMap(true).size(), 2);
    store.setKeyMap(false, {{5, 6}});
    EXPECT_EQ(store.keyMap(false).size(), 1);
    store.setFileAssociations({".mkv"});
    EXPECT_EQ(store.fileAssociations().size(), 1);
    MarkerFiles::instance()->setResolver({});
    EXPECT_EQ(TestLog::infoLines(), (QStringList{
                                        "[TV_Hotkey] save tv key map: 2 QMap((1, 2)(3, 4))",
                                        "[TV_Hotkey] get tv key map: 2 QMap((1, 2)(3, 4))",
                                        "[PC_Hotkey] save Pc key map: 1 QMap((5, 6))",
                                        "[PC_Hotkey] get pc key map: 1 QMap((5, 6))",
                                        "[FileAss] save file association count: 1",
                                        "[FileAss] get file association count: 1",
                                    }));
}

TEST_F(SettingsManagerTest, PositionsOfASourceAreOnDiskAtOnce)
{
    SettingsManager store(m_file);
    const QString path = QString::fromUtf8("D:/Filme/Ähre, \"1=2\"; %3.mkv");
    const QByteArray bytes("\0\x01\xff;\"", 5);
    store.setLastPosition(path, 4711);
    EXPECT_EQ(onDisk("PC_LastPositionMap").toMap().value(path).toInt(), 4711);
    store.setLastPositionAudioIndex(path, 2);
    EXPECT_EQ(onDisk("PC_LastPositionAudioIndexMap").toMap().value(path).toInt(), 2);
    store.setLastPositionSub(path, bytes);
    EXPECT_EQ(onDisk("PC_LastPositionSubMap").toMap().value(path).toByteArray(), bytes);
    store.setLastPositionPixmap(path, bytes);
    EXPECT_EQ(onDisk("PC_LastPositionPixmapMap").toMap().value(path).toByteArray(), bytes);
    store.setPoster(path, "/posters/a.png");
    EXPECT_EQ(onDisk("PC_PosterMap").toMap().value(path).toString(), "/posters/a.png");

    SettingsManager again(m_file);
    EXPECT_EQ(again.lastPosition(path), 4711);
    EXPECT_EQ(again.lastPositionAudioIndex(path), 2);
    EXPECT_EQ(again.lastPositionSub(path), bytes);
    EXPECT_EQ(again.lastPositionPixmap(path), bytes);
    EXPECT_EQ(again.poster(path), "/posters/a.png");
}

TEST_F(SettingsManagerTest, SourcesThatWereNeverPlayedHaveNoPosition)
{
    SettingsManager store(m_file);
    store.setLastPosition("/films/a.mkv", 5);
    EXPECT_EQ(store.lastPosition("/films/A.mkv"), 0) << "paths are taken as they are";
    EXPECT_EQ(store.lastPositionAudioIndex("x"), 0);
    EXPECT_EQ(store.lastPositionSub("x"), QByteArray());
    EXPECT_EQ(store.lastPositionPixmap("x"), QByteArray());
    EXPECT_EQ(store.poster("x"), "");
}

TEST_F(SettingsManagerTest, ARemovedPosterIsGoneFromTheFileAtOnce)
{
    SettingsManager store(m_file);
    store.setPoster("a", "1");
    store.setPoster("b", "2");
    EXPECT_TRUE(store.removePoster("a"));
    EXPECT_EQ(store.poster("a"), "");
    EXPECT_EQ(onDisk("PC_PosterMap").toMap(), (QVariantMap{{"b", "2"}}));
    EXPECT_TRUE(store.removePoster("")) << "removing an empty key succeeds and does nothing";
    EXPECT_EQ(store.poster("b"), "2");
}

TEST_F(SettingsManagerTest, AnEmptyFileGivesTheDefaultsAndCanBeWritten)
{
    putFile("");
    SettingsManager store(m_file);
    EXPECT_EQ(store.launchMode(), 1);
    EXPECT_TRUE(store.keyMap(true).isEmpty());
    store.setLaunchMode(2);
    store.sync();
    EXPECT_EQ(onDisk("launchModeVersion6").toInt(), 2);
}

TEST_F(SettingsManagerTest, BinaryRubbishGivesTheDefaultsAndCanBeWritten)
{
    QByteArray rubbish;
    quint32 state = 12345;
    for (int i = 0; i < 100000; ++i) {
        state = state * 1664525u + 1013904223u;
        rubbish += char(state >> 24);
    }
    putFile(rubbish
            + "\nPC_LastPositionMap=@Variant(\\0\\0\\0\\b\\x7f\\xff\\xff\\xff)\nTV_keyMap=@Invalid()\n");
    SettingsManager store(m_file);
    EXPECT_EQ(store.launchMode(), 1);
    EXPECT_EQ(store.lastPosition("x"), 0);
    EXPECT_TRUE(store.keyMap(true).isEmpty());
    EXPECT_TRUE(store.playHistory().isEmpty());
    store.setLastPosition("x", 3);
    EXPECT_EQ(store.lastPosition("x"), 3);
    EXPECT_EQ(onDisk("PC_LastPositionMap").toMap().value("x").toInt(), 3);
}

TEST_F(SettingsManagerTest, AReadOnlyFileIsKeptAsItIs)
{
    putFile("[General]\nPC_Language=GER\n");
    // Another user must get as far as the file.
    ASSERT_TRUE(QFile::setPermissions(QDir::homePath(), QFileDevice::Permissions(0x7711)));
    ASSERT_TRUE(QFile::setPermissions(m_folder.path(), QFileDevice::Permissions(0x5555)));
    ASSERT_TRUE(QFile::setPermissions(m_file, QFileDevice::Permissions(0x4444)));
    ChildProcess writer({"readonly", m_file});
    EXPECT_EQ(writer.line(), "GER");
    EXPECT_EQ(writer.line(), "survived");
    EXPECT_EQ(writer.end(), 0);
    QFile::setPermissions(m_folder.path(), QFileDevice::Permissions(0x7755));
    QFile::setPermissions(QDir::homePath(), QFileDevice::Permissions(0x7700));
    QFile file(m_file);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "[General]\nPC_Language=GER\n");
}

TEST_F(SettingsManagerTest, AFullDiskLeavesTheFileOfBeforeAndNothingIsLost)
{
    // Objects of one process share what they know of a file: its bytes tell.
    const auto bytes = [this] {
        QFile file(m_file);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    SettingsManager store(m_file);
    const QString before(4000, QLatin1Char('a'));
    const QString after(4000, QLatin1Char('b'));
    store.setValue("PC_Font", before);
    store.setValue("PC_Codec", 7);
    store.setKeyMap(false, {{1, 2}, {3, 4}});
    const QByteArray whole = bytes();
    ASSERT_TRUE(whole.contains(before.toLatin1()));
    {
        const FileSizeLimit limit(2000);
        store.setValue("PC_Font", after);
        store.remove("PC_Codec");
        store.sync();
        EXPECT_EQ(bytes(), whole);
        store.setKeyMap(false, {{1, 3}});
        store.setLastPosition("/films/a.mkv", 4711);
        // What is written by itself is no other matter.
        store.setValue("PC_Played", true);
        QCoreApplication::processEvents();
        EXPECT_EQ(bytes(), whole);
        EXPECT_EQ(store.value("PC_Font").toString(), after);
        EXPECT_FALSE(store.contains("PC_Codec"));
        EXPECT_EQ(store.keyMap(false), (SettingsManager::KeyMap{{1, 3}}));
        EXPECT_EQ(store.lastPosition("/films/a.mkv"), 4711);
    }
    EXPECT_EQ(TestLog::infoLines(), QStringList("[Settings] the file cannot be written: " + m_file));
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList("config.ini"));
    // With room again the next change brings all of it.
    store.setLaunchMode(2);
    store.sync();
    const QByteArray written = bytes();
    EXPECT_TRUE(written.contains(after.toLatin1()));
    EXPECT_TRUE(written.contains("PC_LastPositionMap=@Variant("));
    EXPECT_TRUE(written.contains("PC_Played=true"));
    EXPECT_TRUE(written.contains("1\\HotKey_Value=3"));
    EXPECT_FALSE(written.contains("2\\HotKey_Value"));
    EXPECT_FALSE(written.contains("PC_Codec"));
    EXPECT_TRUE(written.contains("launchModeVersion6=2"));
}

TEST_F(SettingsManagerTest, AFullDiskAtTheFirstWriteLeavesNoHalfFile)
{
    SettingsManager store(m_file);
    const QString text(4000, QLatin1Char('a'));
    {
        const FileSizeLimit limit(2000);
        store.setValue("PC_Font", text);
        store.sync();
        EXPECT_FALSE(QFile::exists(m_file));
        EXPECT_EQ(store.value("PC_Font").toString(), text);
    }
    store.sync();
    EXPECT_EQ(SettingsManager(m_file).value("PC_Font").toString(), text);
    EXPECT_GT(QFileInfo(m_file).size(), 4000);
}

TEST_F(SettingsManagerTest, AFolderThatDoesNotExistAndCanNotBeMadeIsNoCrash)
{
    putFile("x");
    SettingsManager store(m_file + "/below/config.ini");
    store.setLastPosition("x", 3);
    store.sync();
    EXPECT_EQ(store.launchMode(), 1);
}

TEST_F(SettingsManagerTest, WhatWasSetShortlyBeforeTheEndIsOnDisk)
{
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", m_folder.path().toLocal8Bit());
    ChildProcess child({"wish"});
    EXPECT_EQ(child.end(), 0);
    QSettings file(ApplicationInfoManager::instance()->configurationFile(), QSettings::IniFormat);
    EXPECT_EQ(file.value("PC_Language").toString(), "FRA");
    qputenv("XDG_DATA_HOME", before);
}

TEST_F(SettingsManagerTest, ThreadsMayReadArraysWhileOthersWriteValues)
{
    SettingsManager store(m_file);
    store.setKeyMap(true, {{1, 2}, {3, 4}});
    std::vector<std::thread> threads;
    std::atomic<int> wrong{0};
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&store, &wrong, t] {
            for (int i = 0; i < 50; ++i) {
                store.setValue(QString("key%1").arg(t), i);
                if (store.keyMap(true).size() != 2 || store.value(QString("key%1").arg(t)).toInt() != i)
                    ++wrong;
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(wrong, 0);
}

} // namespace
