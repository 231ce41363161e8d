// What a user changes in the library, and that it stands through restarts and scans.
#include "ServerFixture.h"

#include "library/MusicChanges.h"
#include "online/HttpHelpers.h"

#include <QFile>
#include <QUrl>

namespace {

constexpr char Common[] = "common";
constexpr char Adult[] = "avScraper";
constexpr int FetchSeconds = 10;

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

} // namespace

class UserChangesTest : public ServerFixture {
protected:
    void SetUp() override
    {
        m_tree.makeFilms();
        m_tree.makeShows();
        m_tree.makeMusic();
        startServer();
        ASSERT_TRUE(m_manager->addVideoPath(m_tree.films(), Common));
        ASSERT_TRUE(m_manager->addVideoPath(m_tree.shows(), Common));
        ASSERT_TRUE(m_manager->addMusicPath(m_tree.music()));
        scan();
        loadAll();
    }
    // As the next start of the player finds it.
    void restart()
    {
        m_manager.reset();
        EXPECT_EQ(m_server.stop(), 0);
        startServer();
        scan();
        loadAll();
    }
    [[nodiscard]] QByteArray picture(const QString &key, long *status = nullptr) const
    {
        const QString url = QStringLiteral("http://127.0.0.1:%1/image/").arg(m_server.port())
                            + QString::fromLatin1(QUrl::toPercentEncoding(key));
        const HttpResult result = GetText(url, FetchSeconds);
        if (status)
            *status = result.httpStatus;
        return result.isOk() ? result.bytes : QByteArray();
    }
};

TEST_F(UserChangesTest, LikesPlaylistsRecentSongsAndEditsStand)
{
    const QString one = songId("One");
    const QString two = songId("Two");
    const QString track = songId("Middle");
    ASSERT_TRUE(music().like(one));
    ASSERT_TRUE(music().like(track));
    ASSERT_TRUE(music().unlike(one));
    ASSERT_TRUE(music().like(two));
    const QString list = music().createPlaylist("p.png", "Evening", "Quiet");
    ASSERT_FALSE(list.isEmpty());
    for (const QString &id : {track, one, two, one})
        ASSERT_TRUE(music().addToPlaylist(list, id));
    ASSERT_TRUE(music().removeFromPlaylist(list, one, false));
    ASSERT_TRUE(music().fixPlaylist(list, "q.png", "Late Evening", "Quieter"));
    const QString gone = music().createPlaylist({}, "Short", {});
    ASSERT_TRUE(music().deletePlaylist(gone, false));
    for (const QString &id : {one, track, one})
        ASSERT_TRUE(m_manager->musicRequests().addRecent(id.toInt()));
    ASSERT_TRUE(music().editSong(two, {"Zwei", "z.png", "Kapelle", "Schlager", 1234, 1888}));
    const QString album = m_manager->music().albums().first();
    ASSERT_TRUE(music().fixAlbum(album, "album.png"));
    ASSERT_TRUE(music().fixArtist("Band", "band.png"));
    for (int round = 0; round < 2; ++round) {
        const MusicCache &held = m_manager->music();
        load(LibraryRole::Music);
        EXPECT_EQ(sorted(held.likedSongs()), sorted({track, two}));
        EXPECT_EQ(held.playlists(), QStringList(list));
        EXPECT_EQ(held.playlist(list).title, "Late Evening");
        EXPECT_EQ(held.playlist(list).overview, "Quieter");
        EXPECT_EQ(held.playlist(list).poster, "q.png");
        EXPECT_EQ(sorted(held.playlist(list).songs), sorted({track, two}));
        EXPECT_EQ(held.recentSongs(), (QStringList{one, track}));
        const MusicSong edited = held.song(two);
        EXPECT_EQ(edited.title, "Zwei");
        EXPECT_EQ(edited.artist, "Kapelle");
        EXPECT_EQ(edited.genre, "Schlager");
        EXPECT_EQ(edited.poster, "z.png");
        EXPECT_EQ(edited.runtime, 1234);
        EXPECT_EQ(edited.year, 1888);
        EXPECT_EQ(held.album(album).poster, "album.png");
        EXPECT_EQ(held.artist("Band").poster, "band.png");
        EXPECT_EQ(held.artist("Kapelle").songs, QStringList(two));
        restart();
    }
    ASSERT_TRUE(m_manager->musicRequests().fixSong(two.toInt()));
    load(LibraryRole::Music);
    EXPECT_EQ(songId("Two"), two);
}

TEST_F(UserChangesTest, SongsThatAreTakenOutStayOut)
{
    const QStringList three{songId("One"), songId("From X"), songId("untagged")};
    ASSERT_TRUE(music().deleteSongs(three, false));
    EXPECT_TRUE(QFile::exists(m_tree.full("music/Loose/untagged.mp3")));
    ASSERT_TRUE(music().deleteSongs({songId("Alone")}, true));
    EXPECT_FALSE(QFile::exists(m_tree.full("music/Other/Second/a.flac")));
    restart();
    EXPECT_EQ(songTitles(m_manager->music().songs()).join('|').toStdString(),
              "Closing|From Y|Middle|Opening|Three|Two");
}

TEST_F(UserChangesTest, WholeArtistsGenresAndAlbumsAreTakenOut)
{
    QString live;
    for (const QString &id : m_manager->music().albums()) {
        if (m_manager->music().album(id).title == "Live at Home")
            live = id;
    }
    ASSERT_TRUE(music().deleteArtist("Other", false));
    ASSERT_TRUE(music().deleteGenre("Rock", true));
    ASSERT_TRUE(music().deleteAlbum(live, true));
    EXPECT_TRUE(QFile::exists(m_tree.full("music/Other/Second/a.flac")));
    EXPECT_FALSE(QFile::exists(m_tree.full("music/Band/First/01.mp3")));
    EXPECT_TRUE(QFile::exists(m_tree.full("music/Band/First/03.mp3")));
    EXPECT_FALSE(QFile::exists(m_tree.full("music/Live/live.flac")));
    restart();
    EXPECT_EQ(songTitles(m_manager->music().songs()).join('|').toStdString(), "From X|From Y|Three|untagged");
}

TEST_F(UserChangesTest, FilmsAndEpisodesAreTakenOutWithAndWithoutTheirFiles)
{
    const VideoProtocol &requests = m_manager->videoRequests();
    ASSERT_TRUE(requests.deleteMovie(idOf(VideoCache::Movies, "Gamma").toInt(), false));
    ASSERT_TRUE(requests.deleteMovie(idOf(VideoCache::Movies, "Delta").toInt(), true));
    ASSERT_TRUE(requests.deleteMovie(idOf(VideoCache::Movies, "Eta").toInt(), true));
    ASSERT_TRUE(requests.deleteEpisode(
        m_manager->lookupEpisodeByPath(m_tree.shows() + "/Talk/Season 2012/Talk 2012-05-12.mkv").toInt(),
        true));
    EXPECT_FALSE(requests.deleteMovie(999999, true));
    EXPECT_TRUE(QFile::exists(m_tree.full("films/Gamma (2003)/Gamma (2003) - 1080p.mkv")));
    EXPECT_FALSE(QFile::exists(m_tree.full("films/Delta (2004)/Delta cd1.avi")));
    EXPECT_FALSE(QFile::exists(m_tree.full("films/Delta (2004)/Delta cd2.avi")));
    EXPECT_FALSE(QFile::exists(m_tree.full("films/Eta (2007)/VIDEO_TS")));
    restart();
    EXPECT_EQ(titles(VideoCache::Movies).join('|').toStdString(), "Alpha Told|Beta|Epsilon|Theta|Zeta");
    EXPECT_EQ(titles(VideoCache::Shows).join('|').toStdString(), "Foo Told");
}

TEST_F(UserChangesTest, AMatchChosenByTheUserOutlivesScansAndARebuild)
{
    const VideoProtocol &requests = m_manager->videoRequests();
    const QString id = idOf(VideoCache::Movies, "Epsilon");
    const QList<MediaItem> found = requests.searchMovie("Chosen", "1950");
    ASSERT_FALSE(found.isEmpty());
    ASSERT_TRUE(requests.makeMovie({id.toInt(), found.first().mediaId, {}}));
    const QString song = songId("Three");
    ASSERT_TRUE(music().like(song));
    for (int round = 0; round < 2; ++round) {
        load(LibraryRole::Movies);
        EXPECT_EQ(m_manager->videos().item(VideoCache::Movies, id).title, "Chosen");
        EXPECT_EQ(m_manager->videos().item(VideoCache::Movies, id).year, "1950");
        restart();
    }
    m_manager->startLibraryRebuild();
    ASSERT_TRUE(waitByHeartbeats([this] { return m_server.log().contains("built anew"); }));
    waitForScanEnd();
    loadAll();
    EXPECT_EQ(idOf(VideoCache::Movies, "Chosen"), id);
    EXPECT_EQ(m_manager->videos().count(VideoCache::Movies), 8);
    EXPECT_EQ(m_manager->music().likedSongs(), QStringList(song));
}

TEST_F(UserChangesTest, AFolderThatIsAddedAgainWithAnotherScraperIsReadAsThatAsksFor)
{
    const QStringList films = titles(VideoCache::Movies);
    const LibraryPaths::Map folders = m_manager->videoPaths();
    for (int round = 0; round < 2; ++round) {
        ASSERT_TRUE(m_manager->addVideoPath(m_tree.films(), Adult));
        waitForScanEnd();
        loadAll();
        EXPECT_EQ(titles(VideoCache::Movies), QStringList());
        EXPECT_TRUE(titles(VideoCache::AdultItems).contains("Beta"));
        EXPECT_EQ(m_manager->videoPaths(), folders);
        ASSERT_TRUE(m_manager->addVideoPath(m_tree.films(), Common));
        waitForScanEnd();
        loadAll();
        EXPECT_EQ(titles(VideoCache::Movies), films);
        EXPECT_EQ(titles(VideoCache::AdultItems), QStringList());
    }
}

TEST_F(UserChangesTest, PicturesComeOverHttpFromTheCacheAndTheLibraryOnly)
{
    const QString embedded = m_manager->music().song(songId("One")).poster;
    EXPECT_TRUE(picture(embedded).startsWith("\x89PNG")) << qPrintable(embedded);
    const QString poster =
        m_manager->videos().item(VideoCache::Movies, idOf(VideoCache::Movies, "Alpha Told")).poster;
    QFile file(poster);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(picture(poster), file.readAll());
    m_tree.picture("outside.png", 0xffffff);
    long status = 0;
    for (const QString &key :
         {m_tree.full("outside.png"), m_tree.films() + "/../outside.png", QStringLiteral("/etc/passwd"),
          QStringLiteral("../library.db"), m_tree.full("films/Alpha (2001)/movie.nfo"), QString()}) {
        EXPECT_TRUE(picture(key, &status).isEmpty()) << qPrintable(key);
        EXPECT_EQ(status, 404) << qPrintable(key);
    }
}
