// Names that few expect and files that are not what they say: everything sound is found, and nothing brings
// the server down.
#include "HostileTree.h"
#include "ServerFixture.h"

#include "support/SampleClips.h"

class HostileLibraryTest : public ServerFixture {};

TEST_F(HostileLibraryTest, NamesThatFewExpectComeBackAsTheyAre)
{
    QStringList songs;
    QStringList videos;
    int number = 0;
    for (const QString &name : HostileTree::names()) {
        songs << m_tree.music() + '/' + name + ".mp3";
        videos << m_tree.home() + '/' + name + ".mkv";
        SoundFile{QStringLiteral("Song %1").arg(++number), "Somebody", "Album", {}, "Rock", 2000, 1, {}}
            .write(songs.last());
        SampleClips::copy("mkv", videos.last());
    }
    const QString deep = HostileTree::deepFolder(m_tree.music());
    ASSERT_FALSE(deep.isEmpty());
    songs << deep + "/deep.mp3";
    SoundFile{"Deep", "Somebody", "Album", {}, "Rock", 2000, 1, {}}.write(songs.last());
    ASSERT_TRUE(HostileTree::writeUndecodable(m_tree.music(), SampleClips::bytes("mp3")));
    startServer();
    ASSERT_TRUE(m_manager->addMusicPath(m_tree.music()));
    ASSERT_TRUE(m_manager->addVideoPath(m_tree.home(), "common"));
    scan();
    loadAll();
    for (const QString &path : songs) {
        const QString id = m_manager->music().songByPath(path);
        EXPECT_FALSE(id.isEmpty()) << qPrintable(path);
        EXPECT_EQ(m_manager->music().song(id).artist, "Somebody") << qPrintable(path);
    }
    QStringList found;
    for (const VideoCache::Kind kind : {VideoCache::Videos, VideoCache::Movies, VideoCache::Episodes}) {
        for (const QString &id : m_manager->videos().ids(kind))
            found << m_manager->videos().item(kind, id).path;
    }
    found.sort();
    videos.sort();
    EXPECT_EQ(found, videos);
    EXPECT_EQ(m_server.stop(), 0);
}

TEST_F(HostileLibraryTest, BrokenFilesPipesAndLinksHarmNothing)
{
    m_tree.makeHome();
    m_tree.makeMusic();
    HostileTree::makeBroken(m_tree.home(), m_tree.full("outside"));
    HostileTree::makeBroken(m_tree.music(), m_tree.full("outside too"));
    startServer();
    ASSERT_TRUE(m_manager->addMusicPath(m_tree.music()));
    ASSERT_TRUE(m_manager->addVideoPath(m_tree.home(), "common"));
    scan();
    loadAll();
    // A file that cannot be read is listed under its name; what is no file, or lies elsewhere, is not.
    EXPECT_EQ(titles(VideoCache::Videos).join('|').toStdString(), "IMG 1234|Playing cats|cut|empty|words");
    EXPECT_EQ(m_manager->videos().count(VideoCache::Movies), 0);
    QStringList songs = songTitles(m_manager->music().songs());
    EXPECT_EQ(songs.removeAll("elsewhere"), 0);
    EXPECT_EQ(songs.removeAll("pipe"), 0);
    EXPECT_EQ(songs.removeAll("linked"), 0);
    EXPECT_TRUE(songs.contains("One"));
    EXPECT_EQ(songs.size(), 12) << qPrintable(songs.join('|'));
    EXPECT_EQ(m_server.stop(), 0);
}
