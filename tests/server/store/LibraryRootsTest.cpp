#include "StoreFixture.h"

#include "support/TestLog.h"

#include <QRegularExpression>

class LibraryRootsTest : public StoreFixture {};

TEST_F(LibraryRootsTest, AFolderAddedTwiceKeepsItsId)
{
    const int id = roots->addFolder(roots->videoLibraryId(), "/more/", "avScraper");
    EXPECT_GT(id, 0);
    EXPECT_EQ(roots->addFolder(roots->videoLibraryId(), "/more", "avScraper"), id);
    const QVector<RootFolder> folders = roots->folders(roots->videoLibraryId());
    ASSERT_EQ(folders.size(), 2);
    EXPECT_EQ(folders[1].path, QString("/more"));
    EXPECT_EQ(folders[1].scraperType, QString("avScraper"));
    EXPECT_TRUE(folders[1].online);
    EXPECT_NE(roots->addFolder(roots->musicLibraryId(), "/more", {}), id);
}

TEST_F(LibraryRootsTest, AnotherScraperTypeMakesAFolderBeReadAnew)
{
    ASSERT_TRUE(store(folder(videoRoot, "/films")));
    EXPECT_EQ(roots->addFolder(roots->videoLibraryId(), "/films", "avScraper"), videoRoot);
    EXPECT_TRUE(scans->fingerprints(videoRoot).isEmpty());
}

TEST_F(LibraryRootsTest, WhatIsNoFolderOfALibraryIsRefused)
{
    TestLog::expectWarning(QRegularExpression("no folder of a library"));
    EXPECT_EQ(roots->addFolder(roots->videoLibraryId(), {}, {}), -1);
    EXPECT_EQ(roots->addFolder(4711, "/a", {}), -1);
    EXPECT_FALSE(roots->removeFolder(roots->videoLibraryId(), 4711));
    EXPECT_FALSE(roots->removeFolder(roots->musicLibraryId(), videoRoot));
}

TEST_F(LibraryRootsTest, ARemovedFolderTakesItsRecordsAlongAndBringsThemBack)
{
    ScannedFolder all = folder(musicRoot, "/music");
    all.songs << song("/music/a.mp3", "A", "Artist", "Album");
    ASSERT_TRUE(store(all));
    const int id = idOfSong("A");
    ASSERT_TRUE(music->setLiked(id, true));
    ASSERT_TRUE(roots->removeFolder(roots->musicLibraryId(), musicRoot));
    EXPECT_TRUE(roots->folders(roots->musicLibraryId()).isEmpty());
    EXPECT_EQ(music->songs(everything()).total, 0);
    EXPECT_EQ(music->albums(everything()).total, 0);
    const int again = roots->addFolder(roots->musicLibraryId(), "/music", {});
    EXPECT_NE(again, musicRoot);
    EXPECT_TRUE(scans->fingerprints(again).isEmpty());
    all.pathId = again;
    ASSERT_TRUE(store(all));
    EXPECT_EQ(idOfSong("A"), id);
    EXPECT_TRUE(music->song(id).liked);
}

TEST_F(LibraryRootsTest, WhatLiesInAnotherFolderOfTheLibraryTooStays)
{
    const int inner = roots->addFolder(roots->videoLibraryId(), "/films/new", {});
    ScannedFolder outside = folder(videoRoot, "/films/old");
    outside.videos << film("/films/old/a.mkv", "Old");
    ScannedFolder inside = folder(videoRoot, "/films/new");
    inside.videos << film("/films/new/b.mkv", "New");
    ASSERT_TRUE(scans->store({outside, inside}));
    ASSERT_TRUE(roots->removeFolder(roots->videoLibraryId(), videoRoot));
    EXPECT_EQ(titles(Role::Movies), QStringList{"New"});
    EXPECT_EQ(scans->storedVideos(inner, "/films/new").size(), 1);
}
