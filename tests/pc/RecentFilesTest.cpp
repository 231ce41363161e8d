#include "TestSettings.h"

#include "core/SettingsKeys.h"
#include "playcontrol/RecentFiles.h"

#include <gtest/gtest.h>

namespace {

class RecentFilesTest : public testing::Test {
protected:
    [[nodiscard]] QStringList paths() const
    {
        QStringList list;
        const QVector<RecentFiles::Entry> entries = m_recent.entries();
        for (const RecentFiles::Entry &entry : entries)
            list << entry.path;
        return list;
    }

    TestSettings m_settings;
    RecentFiles m_recent{*m_settings, Qt::CaseSensitive};
};

} // namespace

TEST_F(RecentFilesTest, NewestIsFirst)
{
    EXPECT_TRUE(paths().isEmpty());
    m_recent.add("a.mkv", "/films/a.mkv", RecentFiles::File);
    m_recent.add("Disc", "/films/disc", RecentFiles::Folder);
    EXPECT_EQ(paths(), QStringList({"/films/disc", "/films/a.mkv"}));
    EXPECT_EQ(m_recent.entries().at(0).name, "Disc");
    EXPECT_EQ(m_recent.entries().at(0).type, RecentFiles::Folder);
}

TEST_F(RecentFilesTest, PlayedAgainMovesToTheFront)
{
    m_recent.add("a", "/a.mkv", RecentFiles::File);
    m_recent.add("b", "/b.mkv", RecentFiles::File);
    m_recent.add("a again", "/a.mkv", RecentFiles::File);
    EXPECT_EQ(paths(), QStringList({"/a.mkv", "/b.mkv"}));
    EXPECT_EQ(m_recent.entries().at(0).name, "a again");
}

TEST_F(RecentFilesTest, CaseCountsWhereTheFileSystemSaysSo)
{
    m_recent.add("a", "/a.mkv", RecentFiles::File);
    m_recent.add("A", "/A.mkv", RecentFiles::File);
    EXPECT_EQ(paths(), QStringList({"/A.mkv", "/a.mkv"}));
    RecentFiles other(*m_settings, Qt::CaseInsensitive);
    other.add("a", "/a.MKV", RecentFiles::File);
    EXPECT_EQ(paths(), QStringList("/a.MKV"));
}

TEST_F(RecentFilesTest, DifferentSpellingsOfOnePathAreOne)
{
    m_recent.add("a", "/films/a.mkv", RecentFiles::File);
    m_recent.add("a", "/films//x/../a.mkv", RecentFiles::File);
    m_recent.add("d", "/disc", RecentFiles::Folder);
    m_recent.add("d", "/disc/", RecentFiles::Folder);
    EXPECT_EQ(paths(), QStringList({"/disc/", "/films//x/../a.mkv"}));
}

TEST_F(RecentFilesTest, ADriveIsOneInAnyCase)
{
    m_recent.add("FILM", "d", RecentFiles::Disc);
    m_recent.add("FILM", "D", RecentFiles::Disc);
    EXPECT_EQ(paths(), QStringList("D"));
}

TEST_F(RecentFilesTest, KeepsNoMoreThanItsBound)
{
    for (int i = 0; i < RecentFiles::Most + 10; ++i)
        m_recent.add(QString(), QStringLiteral("/%1.mkv").arg(i), RecentFiles::File);
    ASSERT_EQ(paths().size(), RecentFiles::Most);
    EXPECT_EQ(paths().first(), QStringLiteral("/%1.mkv").arg(RecentFiles::Most + 9));
    EXPECT_EQ(m_settings->playHistory().size(), RecentFiles::Most);
}

TEST_F(RecentFilesTest, WithoutANameTheFileNameIsShown)
{
    m_recent.add("  ", "/films/a.mkv", RecentFiles::File);
    m_recent.add(QString(), "D", RecentFiles::Disc);
    EXPECT_EQ(m_recent.entries().at(1).name, "a.mkv");
    EXPECT_EQ(m_recent.entries().at(0).name, "D");
}

TEST_F(RecentFilesTest, WhatIsNoPathIsLeftOut)
{
    m_recent.add("a", "", RecentFiles::File);
    m_recent.add("a", " ", RecentFiles::File);
    m_recent.add("a", QString::fromLatin1("/a\0b.mkv", 8), RecentFiles::File);
    m_recent.add("a", "/a\nb.mkv", RecentFiles::File);
    m_recent.add("a", QString(100000, 'x'), RecentFiles::File);
    EXPECT_TRUE(paths().isEmpty());
    EXPECT_TRUE(m_settings->playHistory().isEmpty());
}

TEST_F(RecentFilesTest, RubbishInTheSettingsIsReadAround)
{
    QList<PlayHistoryEntry> stored{{"", "", 0},
                                   {"twice\nover", "/a.mkv", 0},
                                   {"again", "/a.mkv", 0},
                                   {QString(100000, 'n'), "/b.mkv", -7},
                                   {"x", QString(100000, 'x'), 0}};
    m_settings->setPlayHistory(stored);
    m_settings->setValue("PlayHistory/3/PlayType", "rubbish");
    const QVector<RecentFiles::Entry> entries = m_recent.entries();
    ASSERT_EQ(entries.size(), 2);
    EXPECT_EQ(entries.at(0).name, "twice over");
    EXPECT_EQ(entries.at(1).path, "/b.mkv");
    EXPECT_LE(entries.at(1).name.size(), 1024);
    m_recent.add("c", "/c.mkv", RecentFiles::File);
    EXPECT_EQ(paths(), QStringList({"/c.mkv", "/a.mkv", "/b.mkv"}));
}

TEST_F(RecentFilesTest, SettingThatIsNoListIsEmpty)
{
    m_settings->setValue(SettingsKeys::PlayHistory, QByteArray("rubbish"));
    m_settings->setValue("PlayHistory/size", "many");
    EXPECT_TRUE(paths().isEmpty());
    m_recent.add("c", "/c.mkv", RecentFiles::File);
    EXPECT_EQ(paths(), QStringList("/c.mkv"));
}

TEST_F(RecentFilesTest, PositionAndPictureComeAlong)
{
    m_settings->setLastPosition("/a.mkv", 2530);
    m_settings->setLastPositionPixmap("/a.mkv", "png");
    m_settings->setLastPosition("/b.mkv", -5);
    m_recent.add("b", "/b.mkv", RecentFiles::File);
    m_recent.add("a", "/a.mkv", RecentFiles::File);
    EXPECT_EQ(m_recent.entries().at(0).seconds, 2530);
    EXPECT_EQ(m_recent.entries().at(0).picture, QByteArray("png"));
    EXPECT_EQ(m_recent.entries().at(1).seconds, 0);
    EXPECT_TRUE(m_recent.entries().at(1).picture.isEmpty());
}

TEST_F(RecentFilesTest, OneOrAllCanBeForgotten)
{
    for (const char *path : {"/a.mkv", "/b.mkv", "/c.mkv"})
        m_recent.add(path, path, RecentFiles::File);
    m_recent.remove("/x/../b.mkv");
    EXPECT_EQ(paths(), QStringList({"/c.mkv", "/a.mkv"}));
    m_recent.clear();
    EXPECT_TRUE(paths().isEmpty());
    EXPECT_TRUE(m_settings->playHistory().isEmpty());
}
