#include "MusicFixture.h"

#include "library/MusicChanges.h"

#include <functional>
#include <vector>

namespace {

class MusicChangesCase : public MusicFixture {
protected:
    void SetUp() override
    {
        startManager();
        answerSongs(TwoSongs);
        load(6);
        m_server.forgetRequests();
        m_log.clear();
    }
};

TEST_F(MusicChangesCase, AddingASongTwiceKeepsOneId)
{
    m_server.answer("VMusicLibrary.AddMusicToPlayList", json("{'add':true}"));
    MusicChanges &changes = m_manager->musicChanges();
    EXPECT_TRUE(changes.addToPlaylist("4", "9"));
    EXPECT_TRUE(changes.addToPlaylist("4", "9"));
    EXPECT_EQ(m_manager->music().playlist("4").songs, (QStringList{"2", "1", "9"}));
    EXPECT_EQ(m_log.lines().count("sig_musicPlaylistSongLoaded 4 9"), 2);
    m_server.answer("VMusicLibrary.DelMusicToPlayList", json("{'delete':true}"));
    EXPECT_TRUE(changes.removeFromPlaylist("4", "9", false));
    EXPECT_EQ(m_manager->music().playlist("4").songs, (QStringList{"2", "1"}));
    EXPECT_TRUE(m_log.lines().contains("sig_musicPlaylistSongRemove 4 9"));
}

TEST_F(MusicChangesCase, DeletingThreeSongsIsOneRequestOfOneTextAndThreeSignals)
{
    m_server.answer("VMusicLibrary.DelMusic", json("{'delete':true}"));
    EXPECT_TRUE(m_manager->musicChanges().deleteSongs({"1", "2", "3"}, true));
    const auto requests = m_server.requests("VMusicLibrary.DelMusic");
    ASSERT_EQ(requests.size(), 1);
    EXPECT_EQ(requests[0].params["delete"], true);
    const QJsonValue ids = requests[0].params["idFile"];
    ASSERT_TRUE(ids.isString());
    EXPECT_EQ(ids.toString(),
              "{\n    \"idFile\": [\n        \"1\",\n        \"2\",\n        \"3\"\n    ]\n}\n");
    EXPECT_EQ(m_log.lines(),
              (QStringList{"sig_musicSongRemoved 1", "sig_musicSongRemoved 2", "sig_musicSongRemoved 3"}));
    EXPECT_TRUE(m_manager->music().songs().isEmpty());
    EXPECT_TRUE(m_manager->music().likedSongs().isEmpty());
    EXPECT_EQ(m_manager->music().songByPath("/a.mp3"), "");
}

TEST_F(MusicChangesCase, EachChangeFollowsAYesAndOnlyAYes)
{
    struct Row {
        const char *method;
        const char *yes;
        std::function<bool(MusicChanges &)> change;
        QStringList told;
        std::function<QString(const MusicCache &)> seen;
        QString after;
    };
    const std::vector<Row> rows{
        {"VMusicLibrary.FixPlaylist",
         "{'fix':true}",
         [](MusicChanges &c) { return c.fixPlaylist("4", "p2", "t2", "o2"); },
         {},
         [](const MusicCache &m) {
             const MusicPlaylist p = m.playlist("4");
             return p.poster + p.title + p.overview;
         },
         "p2t2o2"},
        {"VMusicLibrary.FixAlbum",
         "{'fix':true}",
         [](MusicChanges &c) { return c.fixAlbum("6", "p2"); },
         {},
         [](const MusicCache &m) { return m.album("6").poster; },
         "p2"},
        {"VMusicLibrary.FixArtist",
         "{'fix':true}",
         [](MusicChanges &c) { return c.fixArtist("Ann", "p2"); },
         {},
         [](const MusicCache &m) { return m.artist("Ann").poster; },
         "p2"},
        {"VMusicLibrary.EditeMusic",
         "{'edite':true}",
         [](MusicChanges &c) {
             return c.editSong("1", {"T", "P", "A", "G", 5, 2000});
         },
         {"sig_musicSongUpdated 1"},
         [](const MusicCache &m) {
             const MusicSong s = m.song("1");
             return s.title + s.poster + s.artist + s.genre;
         },
         "TPAG"},
        {"VMusicLibrary.AddMusicToLike",
         "{'add':true}",
         [](MusicChanges &c) { return c.like("2"); },
         {"sig_musicSongLikeChanged 2"},
         [](const MusicCache &m) { return m.likedSongs().join(",") + (m.song("2").like ? "!" : ""); },
         "1,2!"},
        {"VMusicLibrary.DelMusicToLike",
         "{'delete':true}",
         [](MusicChanges &c) { return c.unlike("1"); },
         {"sig_musicSongLikeChanged 1"},
         [](const MusicCache &m) { return m.likedSongs().join(",") + (m.song("1").like ? "!" : ""); },
         "2"},
        {"VMusicLibrary.DelPlist",
         "{'delete':true}",
         [](MusicChanges &c) { return c.deletePlaylist("4", false); },
         {"sig_musicPlaylistRemoved 4"},
         [](const MusicCache &m) { return m.playlists().join(","); },
         ""},
        {"VMusicLibrary.DelAllMusic",
         "{'delete':true}",
         [](MusicChanges &c) { return c.deleteArtist("Ann", false); },
         {"sig_musicArtistRemoved Ann"},
         [](const MusicCache &m) { return m.artists().join(","); },
         ""},
        {"VMusicLibrary.DelAllMusic",
         "{'delete':true}",
         [](MusicChanges &c) { return c.deleteGenre("Rock", false); },
         {"sig_musicGenreRemoved Rock"},
         [](const MusicCache &m) { return m.genres().join(","); },
         ""},
        {"VMusicLibrary.DelAllMusic",
         "{'delete':true}",
         [](MusicChanges &c) { return c.deleteAlbum("6", false); },
         {"sig_musicAlbumRemoved 6"},
         [](const MusicCache &m) { return m.albums().join(","); },
         ""},
    };
    MusicChanges &changes = m_manager->musicChanges();
    for (const Row &row : rows) {
        m_log.clear();
        const QString before = row.seen(m_manager->music());
        m_server.answer(row.method, json("{'fix':false,'edite':false,'add':false,'delete':false}"));
        EXPECT_FALSE(row.change(changes)) << row.method;
        EXPECT_EQ(row.seen(m_manager->music()), before) << row.method;
        EXPECT_TRUE(m_log.lines().isEmpty()) << row.method;
        m_server.answer(row.method, json(row.yes));
        EXPECT_TRUE(row.change(changes)) << row.method;
        EXPECT_EQ(row.seen(m_manager->music()), row.after) << row.method;
        EXPECT_EQ(m_log.lines(), row.told) << row.method;
    }
}

TEST_F(MusicChangesCase, NewPlaylistEntersTheCache)
{
    m_server.answer("VMusicLibrary.CreatePlayList", json("{'idPlayList':11}"));
    EXPECT_EQ(m_manager->musicChanges().createPlaylist("p", "New", "o"), "11");
    EXPECT_EQ(m_manager->music().playlist("11").title, "New");
    EXPECT_EQ(m_log.lines(), QStringList{"sig_musicPlaylistLoaded 11"});
    m_server.forget("VMusicLibrary.CreatePlayList");
    EXPECT_EQ(m_manager->musicChanges().createPlaylist("p", "Other", "o"), "");
}

TEST_F(MusicChangesCase, RemovedFolderIsToldAndTheMusicLoadedAnew)
{
    m_server.answer("VMusicLibrary.AddPath", json("{'PathId':5}"));
    m_server.answer("VMusicLibrary.DeletePath", json("{'deletePath':true}"));
    EXPECT_TRUE(m_manager->addMusicPath("/more"));
    EXPECT_EQ(m_manager->musicPaths().value(5), "/more");
    EXPECT_FALSE(m_manager->deleteMusicPath("/unknown"));
    EXPECT_EQ(m_server.count("VMusicLibrary.DeletePath"), 0);
    EXPECT_TRUE(m_manager->deleteMusicPath("/more"));
    EXPECT_EQ(m_server.requests("VMusicLibrary.DeletePath")[0].params["PathId"], 5);
    m_manager->waitForLoad(6);
    EXPECT_FALSE(m_manager->musicPaths().contains(5));
    EXPECT_EQ(m_log.lines().mid(0, 4), (QStringList{"sig_musicPathChanged", "sig_musicPathChanged",
                                                    "sig_mediaScanStateChanged 6", "sig_reLoadData 6"}));
}

} // namespace
