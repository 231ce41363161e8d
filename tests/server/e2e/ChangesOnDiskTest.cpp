// What becomes of the library when its files change: renamed, moved, deleted, away and back.
#include "ServerFixture.h"

#include "library/MusicChanges.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace {

constexpr char Common[] = "common";

// The last line that the log has on a scan of the folder, from its state on.
QString lastScan(const QString &log, const QString &folder)
{
    QString last;
    for (const QString &line : log.split('\n')) {
        const int at = line.indexOf("[scan] " + folder + ": ");
        if (at >= 0)
            last = line.mid(at + folder.size() + 9);
    }
    return last;
}

} // namespace

class ChangesOnDiskTest : public ServerFixture {
protected:
    void SetUp() override
    {
        m_tree.makeFilms();
        m_tree.makeMusic();
        startServer();
        ASSERT_TRUE(m_manager->addVideoPath(m_tree.films(), Common));
        ASSERT_TRUE(m_manager->addMusicPath(m_tree.music()));
        scan();
        loadAll();
    }
};

TEST_F(ChangesOnDiskTest, ASecondScanReadsNothing)
{
    scan();
    for (const QString &folder : {m_tree.films(), m_tree.music()}) {
        const QString last = lastScan(m_server.log(), folder);
        EXPECT_TRUE(last.contains(", 0 changed, 0 files read")) << qPrintable(last);
    }
    const QStringList songs = m_manager->music().songs();
    const QStringList films = m_manager->videos().ids(VideoCache::Movies);
    loadAll();
    EXPECT_EQ(m_manager->music().songs(), songs);
    EXPECT_EQ(m_manager->videos().ids(VideoCache::Movies), films);
}

TEST_F(ChangesOnDiskTest, ASongThatIsRenamedAndMovedKeepsWhatTheUserMadeOfIt)
{
    const QString id = songId("Two");
    ASSERT_TRUE(music().like(id));
    const QString list = music().createPlaylist({}, "Mine", "Best of it");
    ASSERT_TRUE(music().addToPlaylist(list, id));
    ASSERT_TRUE(m_tree.rename("music/Band/First/02.mp3", "music/Band/First/zwei.mp3"));
    scan();
    load(LibraryRole::Music);
    EXPECT_EQ(songId("Two"), id);
    EXPECT_EQ(m_manager->music().song(id).path, m_tree.music() + "/Band/First/zwei.mp3");
    ASSERT_TRUE(m_tree.rename("music/Band/First/zwei.mp3", "music/Elsewhere/deep/zwei.mp3"));
    scan();
    load(LibraryRole::Music);
    EXPECT_EQ(songId("Two"), id);
    EXPECT_EQ(m_manager->music().song(id).path, m_tree.music() + "/Elsewhere/deep/zwei.mp3");
    EXPECT_TRUE(m_manager->music().song(id).like);
    EXPECT_EQ(m_manager->music().likedSongs(), QStringList(id));
    EXPECT_EQ(m_manager->music().playlist(list).songs, QStringList(id));
    EXPECT_EQ(m_manager->music().playlist(list).overview, "Best of it");
}

TEST_F(ChangesOnDiskTest, AFilmThatIsMovedKeepsItsId)
{
    const QString id = idOf(VideoCache::Movies, "Epsilon");
    ASSERT_TRUE(m_tree.rename("films/Epsilon (2005)/Epsilon (2005).mkv", "films/New Name (2015).mkv"));
    scan();
    load(LibraryRole::Movies);
    EXPECT_EQ(idOf(VideoCache::Movies, "New Name"), id);
    EXPECT_EQ(m_manager->videos().item(VideoCache::Movies, id).year, "2015");
    EXPECT_EQ(m_manager->videos().count(VideoCache::Movies), 8);
}

TEST_F(ChangesOnDiskTest, ADiscWhoseFolderIsRenamedKeepsItsId)
{
    const QString id = idOf(VideoCache::Movies, "Eta");
    ASSERT_TRUE(m_tree.rename("films/Eta (2007)", "films/discs/New Disc (2017)"));
    scan();
    load(LibraryRole::Movies);
    EXPECT_EQ(idOf(VideoCache::Movies, "New Disc"), id);
    EXPECT_EQ(m_manager->videos().item(VideoCache::Movies, id).year, "2017");
    EXPECT_EQ(m_manager->videos().count(VideoCache::Movies), 8);
}

TEST_F(ChangesOnDiskTest, ADiscThatComesBeforeAnotherIsJoinedWithIt)
{
    m_tree.text("films/Twins (2012)/Disc 2/VIDEO_TS/VIDEO_TS.IFO", "second");
    scan();
    load(LibraryRole::Movies);
    const QString second = idOf(VideoCache::Movies, "Twins");
    m_tree.text("films/Twins (2012)/Disc 1/VIDEO_TS/VIDEO_TS.IFO", "first");
    scan();
    load(LibraryRole::Movies);
    const QString first = idOf(VideoCache::Movies, "Twins");
    EXPECT_NE(first, second);
    ASSERT_TRUE(QDir(m_tree.full("films/Twins (2012)/Disc 1")).removeRecursively());
    scan();
    load(LibraryRole::Movies);
    EXPECT_EQ(idOf(VideoCache::Movies, "Twins"), second);
}

TEST_F(ChangesOnDiskTest, ARebuildKeepsWhatAnAbsentFolderHeld)
{
    const QStringList songs = m_manager->music().songs();
    ASSERT_TRUE(m_tree.rename("music", "unplugged/music"));
    m_manager->startLibraryRebuild();
    ASSERT_TRUE(waitByHeartbeats([this] { return m_server.log().contains("built anew"); }));
    waitForScanEnd();
    loadAll();
    EXPECT_EQ(m_manager->music().songs(), songs);
    EXPECT_EQ(m_manager->videos().count(VideoCache::Movies), 8);
    ASSERT_TRUE(m_tree.rename("unplugged/music", "music"));
}

TEST_F(ChangesOnDiskTest, WhatIsDeletedLeavesTheLists)
{
    ASSERT_TRUE(QFile::remove(m_tree.full("music/Other/Second/a.flac")));
    ASSERT_TRUE(QDir(m_tree.full("films/Alpha (2001)")).removeRecursively());
    scan();
    loadAll();
    EXPECT_FALSE(titles(VideoCache::Movies).contains("Alpha Told"));
    EXPECT_FALSE(songTitles(m_manager->music().songs()).contains("Alone"));
    EXPECT_FALSE(m_manager->music().artists().contains("Other"));
    EXPECT_FALSE(m_manager->music().genres().contains("Jazz"));
    ASSERT_EQ(m_manager->videos().count(VideoCache::Collections), 1);
    EXPECT_EQ(m_manager->videos()
                  .item(VideoCache::Collections, idOf(VideoCache::Collections, "Greek Saga"))
                  .fileCount,
              1);
}

TEST_F(ChangesOnDiskTest, AFolderThatIsAwayLosesNothingAndComesBack)
{
    const QString id = songId("One");
    ASSERT_TRUE(music().like(id));
    const QStringList songs = m_manager->music().songs();
    const QStringList films = m_manager->videos().ids(VideoCache::Movies);
    ASSERT_TRUE(m_tree.rename("music", "unplugged/music"));
    ASSERT_TRUE(m_tree.rename("films", "unplugged/films"));
    scan();
    loadAll();
    EXPECT_EQ(m_manager->music().songs(), songs);
    EXPECT_EQ(m_manager->videos().ids(VideoCache::Movies), films);
    // A mount point that nothing is mounted on is there, and empty.
    ASSERT_TRUE(QDir().mkpath(m_tree.music()));
    scan();
    load(LibraryRole::Music);
    EXPECT_EQ(m_manager->music().songs(), songs);
    ASSERT_TRUE(QDir().rmdir(m_tree.music()));
    // No file is removed on the word of a library folder that is not there.
    EXPECT_FALSE(m_manager->videoRequests().deleteMovie(films.first().toInt(), true));
    ASSERT_TRUE(m_tree.rename("unplugged/music", "music"));
    ASSERT_TRUE(m_tree.rename("unplugged/films", "films"));
    scan();
    loadAll();
    EXPECT_EQ(m_manager->music().songs(), songs);
    EXPECT_EQ(m_manager->videos().ids(VideoCache::Movies), films);
    EXPECT_EQ(m_manager->music().likedSongs(), QStringList(id));
}

TEST_F(ChangesOnDiskTest, AFileThatIsAddedIsFoundWithoutBeingAskedFor)
{
    m_tree.clip("films/Newcomer (2020)/Newcomer (2020).mkv");
    m_tree.sound("music/Band/Third/1.mp3", {"Fresh", "Band", "Third", {}, "Rock", 2020, 1, {}});
    EXPECT_TRUE(waitByHeartbeats([this] {
        if (!m_manager->isScanFinished())
            return false;
        loadAll();
        return titles(VideoCache::Movies).contains("Newcomer")
               && songTitles(m_manager->music().songs()).contains("Fresh");
    }));
}

TEST_F(ChangesOnDiskTest, AFolderThatLeavesTheLibraryTakesItsContentsOut)
{
    ASSERT_TRUE(m_manager->deleteVideoPath(m_tree.films()));
    ASSERT_TRUE(m_manager->deleteMusicPath(m_tree.music()));
    m_manager->waitForLoad(int(LibraryRole::Music));
    scan();
    loadAll();
    EXPECT_EQ(m_manager->videos().count(VideoCache::Movies), 0);
    EXPECT_EQ(m_manager->videos().count(VideoCache::Collections), 0);
    EXPECT_TRUE(m_manager->music().songs().isEmpty());
    EXPECT_TRUE(m_manager->music().albums().isEmpty());
    EXPECT_TRUE(QFile::exists(m_tree.full("films/Alpha (2001)/Alpha (2001).mkv")));
    EXPECT_TRUE(m_manager->videoPaths().isEmpty());
}
