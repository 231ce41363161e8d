#include "queue/QueuePath.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(QueuePaths, NetworkPrefixesStayInTheRowAndAreNotRead)
{
    EXPECT_EQ(QueuePath::kept("smb://box/films/a.mkv"), "smb://box/films/a.mkv");
    EXPECT_EQ(QueuePath::kept("nfs:/films/a.mkv"), "nfs:/films/a.mkv");
    EXPECT_EQ(QueuePath::displayName("smb://box/films/a.mkv"), "a.mkv");
    EXPECT_EQ(QueuePath::local("nfs:/films/a.mkv"), "/films/a.mkv");
    EXPECT_EQ(QueuePath::local("SMB:/films/a.mkv"), "SMB:/films/a.mkv");
}

TEST(QueuePaths, ADrivesRootIsItsLetter)
{
    EXPECT_EQ(QueuePath::kept("D:/"), "D");
    EXPECT_EQ(QueuePath::kept("e:"), "e");
    EXPECT_EQ(QueuePath::kept("/tm/"), "/tm/");
    EXPECT_EQ(QueuePath::displayName("d"), "D:");
    EXPECT_EQ(QueuePath::key("D"), QueuePath::key("d"));
    EXPECT_EQ(QueuePath::kindOf("D"), QueuePath::Disc);
    EXPECT_TRUE(QueuePath::local("D").isEmpty());
    EXPECT_TRUE(QueuePath::folderText("D").isEmpty());
    EXPECT_TRUE(QueuePath::exists("Q")) << "no disc is spun up to see";
}

TEST(QueuePaths, KindsAreToldByTheNameAlone)
{
    EXPECT_EQ(QueuePath::kindOf("/films/a.mkv"), QueuePath::File);
    EXPECT_EQ(QueuePath::kindOf("/films/a.iso"), QueuePath::File);
    EXPECT_EQ(QueuePath::kindOf("/films/A Disc"), QueuePath::Folder);
    EXPECT_EQ(QueuePath::kindOf("/films/Vol. 2 Disc"), QueuePath::Folder);
    EXPECT_EQ(QueuePath::kindOf("/films/a.xyz"), QueuePath::File);
    EXPECT_TRUE(QueuePath::mayBeDisc("/films/a.iso"));
    EXPECT_TRUE(QueuePath::mayBeDisc("/films/A Disc/"));
    EXPECT_FALSE(QueuePath::mayBeDisc("/films/a.mkv"));
    EXPECT_EQ(QueuePath::typeText("/films/a.mkv"), "MKV");
    EXPECT_EQ(QueuePath::typeText("/films/A Disc"), "");
}

TEST(QueuePaths, NameAndFolderAreWhatTheUserWrites)
{
    EXPECT_EQ(QueuePath::displayName("/films/a.mkv"), "a.mkv");
    EXPECT_EQ(QueuePath::displayName("/films/A Disc/"), "A Disc");
    EXPECT_EQ(QueuePath::displayName("/"), "/");
    EXPECT_EQ(QueuePath::folderText("/films/a.mkv"), QDir::toNativeSeparators("/films"));
    EXPECT_EQ(QueuePath::folderText("/a.mkv"), QDir::toNativeSeparators("/"));
    EXPECT_EQ(QueuePath::folderText("/a/a/"), QDir::toNativeSeparators("/a"));
    EXPECT_EQ(QueuePath::folderText("a.mkv"), "");
}

TEST(QueuePaths, ACueSheetShowsItsTitleBehindTheName)
{
    EXPECT_EQ(QueuePath::displayName("3_/music/album.cue"), "album.cue - 3");
    EXPECT_EQ(QueuePath::folderText("3_/music/album.cue"), QDir::toNativeSeparators("/music"));
    EXPECT_EQ(QueuePath::local("3_/music/album.cue"), "/music/album.cue");
    EXPECT_EQ(QueuePath::kept("3_/music/album.cue"), "3_/music/album.cue");
    EXPECT_NE(QueuePath::key("3_/music/album.cue"), QueuePath::key("4_/music/album.cue"));
}

TEST(QueuePaths, APlainCueSheetKeepsItsUnderscore)
{
    EXPECT_EQ(QueuePath::displayName("/music/my_album.cue"), "my_album.cue");
    EXPECT_EQ(QueuePath::local("/music/my_album.cue"), "/music/my_album.cue");
}

TEST(QueuePaths, ExistenceIsThatOfTheFileBehindThePrefixes)
{
    QTemporaryDir folder;
    const QString sheet = folder.filePath("al_bum.cue");
    QFile file(sheet);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_TRUE(QueuePath::exists(sheet));
    EXPECT_TRUE(QueuePath::exists("2_" + sheet));
    EXPECT_TRUE(QueuePath::exists("nfs:" + sheet));
    EXPECT_FALSE(QueuePath::exists(sheet + ".gone"));
}

TEST(QueuePaths, RubbishIsNoPath)
{
    EXPECT_FALSE(QueuePath::isUsable(""));
    EXPECT_FALSE(QueuePath::isUsable("   "));
    EXPECT_FALSE(QueuePath::isUsable(QStringLiteral("/films/") + QChar(0)));
    EXPECT_FALSE(QueuePath::isUsable(QString(QueuePath::Longest + 1, 'x')));
    EXPECT_TRUE(QueuePath::isUsable("/films/\u732b.mkv"));
}
