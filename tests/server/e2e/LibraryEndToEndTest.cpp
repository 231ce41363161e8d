// What the player holds of a library after a scan, record by record, against what its files say.
#include "ExpectedRecords.h"
#include "ServerFixture.h"

#include "library/LibraryFilters.h"
#include "online/HttpHelpers.h"

#include <QFile>
#include <QUrl>

using ExpectedRecords::expectSame;

class LibraryEndToEndTest : public ServerFixture {
protected:
    void scanned(const std::function<void()> &make, const QString &folder, const QString &scraper)
    {
        make();
        startServer();
        ASSERT_TRUE(scraper.isEmpty() ? m_manager->addMusicPath(folder)
                                      : m_manager->addVideoPath(folder, scraper));
        scan();
        loadAll();
    }
    [[nodiscard]] MediaItem item(VideoCache::Kind kind, const QString &title) const
    {
        return m_manager->videos().item(kind, idOf(kind, title));
    }
    [[nodiscard]] MusicSong song(const QString &title) const
    {
        return m_manager->music().song(songId(title));
    }
};

namespace {

constexpr char Common[] = "common";
constexpr char AdultScraper[] = "avScraper";

} // namespace

TEST_F(LibraryEndToEndTest, FilmsAreWhatTheirNamesAndSidecarsSay)
{
    scanned([this] { m_tree.makeFilms(); }, m_tree.films(), Common);
    const QString base = m_tree.films() + '/';
    EXPECT_EQ(titles(VideoCache::Movies).join('|').toStdString(),
              "Alpha Told|Beta|Delta|Epsilon|Eta|Gamma|Theta|Zeta");
    MediaItem alpha;
    alpha.title = "Alpha Told";
    alpha.year = "2001";
    alpha.rating = "7.5";
    alpha.runtime = "95";
    alpha.director = "Dora Director";
    alpha.cast = "Ann Actor, Bob Actor";
    alpha.genre = "Drama, Comedy";
    alpha.overview = "What happens in it.";
    alpha.poster = base + "Alpha (2001)/poster.png";
    alpha.backdrop = base + "Alpha (2001)/fanart.png";
    alpha.path = base + "Alpha (2001)/Alpha (2001).mkv";
    expectSame(item(VideoCache::Movies, alpha.title), alpha);
    const struct {
        const char *title;
        const char *year;
        const char *path;
        const char *playPath;
    } rows[] = {
        {"Gamma", "2003", "Gamma (2003)/Gamma (2003) - 1080p.mkv", "Gamma (2003)/Gamma (2003) - 1080p.mkv"},
        {"Delta", "2004", "Delta (2004)/Delta cd1.avi", "Delta (2004)/Delta cd1.avi"},
        {"Epsilon", "2005", "Epsilon (2005)/Epsilon (2005).mkv", "Epsilon (2005)/Epsilon (2005).mkv"},
        {"Zeta", "2006", "Zeta (2006).iso", "Zeta (2006).iso"},
        {"Eta", "2007", "Eta (2007)/folder.ifo", "Eta (2007)"},
        {"Theta", "2008", "Theta (2008)/folder.bdmv", "Theta (2008)"},
    };
    for (const auto &row : rows) {
        MediaItem film;
        film.title = row.title;
        film.year = row.year;
        film.path = base + row.path;
        expectSame(item(VideoCache::Movies, film.title), film);
        EXPECT_EQ(MediaServerManager::playPath(film.path), base + row.playPath);
    }
}

TEST_F(LibraryEndToEndTest, ACollectionHoldsItsFilms)
{
    scanned([this] { m_tree.makeFilms(); }, m_tree.films(), Common);
    ASSERT_EQ(m_manager->videos().count(VideoCache::Collections), 1);
    const QString id = idOf(VideoCache::Collections, "Greek Saga");
    MediaItem saga;
    saga.title = "Greek Saga";
    saga.overview = "All of them.";
    saga.poster = m_tree.films() + "/Alpha (2001)/poster.png";
    saga.backdrop = m_tree.films() + "/Alpha (2001)/fanart.png";
    saga.fileCount = 2;
    expectSame(m_manager->videos().item(VideoCache::Collections, id), saga);
    const QStringList members = m_manager->videos().linked(VideoCache::CollectionToMembers, id);
    ASSERT_EQ(members.size(), 2);
    EXPECT_EQ(members.at(0), idOf(VideoCache::Movies, "Alpha Told"));
    EXPECT_EQ(members.at(1), idOf(VideoCache::Movies, "Beta"));
    MediaItem beta;
    beta.title = "Beta";
    beta.year = "2002";
    beta.rating = "9.1";
    beta.genre = "Drama";
    beta.path = m_tree.films() + "/Beta (2002)/Beta (2002).mp4";
    expectSame(m_manager->videos().item(VideoCache::CollectionMembers, members.at(1)), beta);
}

TEST_F(LibraryEndToEndTest, ShowsHaveTheirSeasonsAndEpisodes)
{
    scanned([this] { m_tree.makeShows(); }, m_tree.shows(), Common);
    const VideoCache &videos = m_manager->videos();
    const QString base = m_tree.shows() + "/Foo (2010)/";
    EXPECT_EQ(titles(VideoCache::Shows).join('|').toStdString(), "Foo Told|Talk");
    const QString foo = idOf(VideoCache::Shows, "Foo Told");
    MediaItem show;
    show.title = "Foo Told";
    show.year = "2010";
    show.rating = "8.2";
    show.director = "Sam Shower";
    show.cast = "Eve Actor";
    show.genre = "Crime";
    show.overview = "About the show.";
    show.poster = base + "poster.png";
    show.backdrop = base + "fanart.png";
    show.path = m_tree.shows() + "/Foo (2010)";
    expectSame(videos.item(VideoCache::Shows, foo), show);

    const QStringList seasons = videos.linked(VideoCache::ShowToSeasons, foo);
    ASSERT_EQ(seasons.size(), 3);
    MediaItem first = show;
    first.title = "Season 1";
    first.seasonTitle = "Foo Told: Season 1";
    first.rating = first.genre = first.backdrop = first.path = QString();
    first.poster = base + "season01-poster.png";
    first.number = 1;
    expectSame(videos.item(VideoCache::Seasons, seasons.at(1)), first);
    EXPECT_EQ(videos.item(VideoCache::Seasons, seasons.at(0)).title, "Specials");
    EXPECT_EQ(videos.item(VideoCache::Seasons, seasons.at(0)).number, 0);
    EXPECT_EQ(videos.item(VideoCache::Seasons, seasons.at(2)).seasonTitle, "Foo Told: Season 2");

    const QStringList episodes = videos.linked(VideoCache::SeasonToEpisodes, seasons.at(1));
    ASSERT_EQ(episodes.size(), 2);
    MediaItem opening;
    opening.title = "The First";
    opening.episodeTitle = "Foo Told S1E1: The First";
    opening.director = "Eli Episode";
    opening.cast = "Guy Guest";
    opening.overview = "How it begins.";
    opening.poster = base + "Season 01/Foo S01E01-thumb.png";
    opening.path = base + "Season 01/Foo S01E01.mkv";
    opening.year = "2010";
    opening.number = 1;
    expectSame(videos.item(VideoCache::Episodes, episodes.at(0)), opening);
    EXPECT_EQ(videos.item(VideoCache::Episodes, episodes.at(1)).number, 2);
    EXPECT_EQ(videos.item(VideoCache::Episodes, episodes.at(1)).path, base + "Season 01/Foo S01E02-E03.mkv");
    EXPECT_EQ(m_manager->lookupEpisodeByPath(opening.path), episodes.at(0));
    const QStringList again = videos.linked(VideoCache::SeasonToEpisodes, seasons.at(2));
    ASSERT_EQ(again.size(), 1);
    EXPECT_EQ(videos.item(VideoCache::Episodes, again.at(0)).episodeTitle, "Foo Told S2E1: Again");

    const QString talk = idOf(VideoCache::Shows, "Talk");
    const QStringList years = videos.linked(VideoCache::ShowToSeasons, talk);
    ASSERT_EQ(years.size(), 1);
    EXPECT_EQ(videos.item(VideoCache::Seasons, years.at(0)).number, 2012);
    const QStringList days = videos.linked(VideoCache::SeasonToEpisodes, years.at(0));
    ASSERT_EQ(days.size(), 1);
    EXPECT_EQ(videos.item(VideoCache::Episodes, days.at(0)).number, 512);
}

TEST_F(LibraryEndToEndTest, HomeVideosAndAdultContentKeepToTheirLists)
{
    m_tree.makeAdult();
    startServer();
    ASSERT_TRUE(m_manager->addVideoPath(m_tree.adult(), AdultScraper));
    scanned([this] { m_tree.makeHome(); }, m_tree.home(), Common);
    EXPECT_EQ(titles(VideoCache::Videos).join('|').toStdString(), "IMG 1234|Playing cats");
    MediaItem cats;
    cats.title = "Playing cats";
    cats.path = m_tree.home() + "/Cats/Playing cats.mkv";
    expectSame(item(VideoCache::Videos, cats.title), cats);
    EXPECT_EQ(m_manager->videos().count(VideoCache::AdultItems), 2);
    MediaItem film;
    film.title = "Film";
    film.year = "2010";
    film.path = m_tree.adult() + "/Film (2010).mkv";
    expectSame(item(VideoCache::AdultItems, film.title), film);
    EXPECT_EQ(m_manager->videos().count(VideoCache::Movies), 0);
    EXPECT_EQ(m_manager->videos().count(VideoCache::Shows), 0);
    EXPECT_EQ(m_manager->videoPaths().values().size(), 2);
}

TEST_F(LibraryEndToEndTest, SongsAreWhatTheirTagsAndSheetsSay)
{
    scanned([this] { m_tree.makeMusic(); }, m_tree.music(), {});
    const MusicCache &music = m_manager->music();
    const QString base = m_tree.music() + '/';
    EXPECT_EQ(songTitles(music.songs()).join('|').toStdString(),
              "Alone|Closing|From X|From Y|Middle|One|Opening|Three|Two|untagged");
    MusicSong one = song("One");
    EXPECT_FALSE(one.poster.isEmpty());
    EXPECT_FALSE(one.poster.contains('/')) << qPrintable(one.poster);
    EXPECT_EQ(one.poster, song("Two").poster);
    EXPECT_GT(one.runtime, 300);
    EXPECT_LT(one.runtime, 600);
    expectSame(one, {"Band",
                     "Rock",
                     "One",
                     one.poster,
                     "First",
                     base + "Band/First/01.mp3",
                     "mp3",
                     {},
                     1999,
                     -1,
                     false,
                     0});
    expectSame(song("Alone"), {"Other",
                               "Jazz",
                               "Alone",
                               base + "Other/Second/folder.png",
                               "Second",
                               base + "Other/Second/a.flac",
                               "flac",
                               {},
                               2005,
                               -1,
                               false,
                               0});
    expectSame(song("Opening"), {"The Stage",
                                 "Folk",
                                 "Opening",
                                 {},
                                 "Live at Home",
                                 "1_" + base + "Live/live.cue",
                                 song("Opening").suffix,
                                 base + "Live/live.flac",
                                 1977,
                                 1,
                                 false,
                                 0});
    expectSame(song("Closing"), {"The Guest",
                                 "Folk",
                                 "Closing",
                                 {},
                                 "Live at Home",
                                 "3_" + base + "Live/live.cue",
                                 song("Closing").suffix,
                                 base + "Live/live.flac",
                                 1977,
                                 3,
                                 false,
                                 0});
    EXPECT_EQ(music.songByPath(base + "Band/First/02.mp3"), songId("Two"));
    expectSame(song("untagged"),
               {{}, {}, "untagged", {}, {}, base + "Loose/untagged.mp3", "mp3", {}, 0, -1, false, 0});
    EXPECT_TRUE(music.likedSongs().isEmpty());
    EXPECT_TRUE(music.recentSongs().isEmpty());
    EXPECT_TRUE(music.playlists().isEmpty());
}

TEST_F(LibraryEndToEndTest, AlbumsArtistsAndGenresHoldTheirSongs)
{
    scanned([this] { m_tree.makeMusic(); }, m_tree.music(), {});
    const MusicCache &music = m_manager->music();
    const struct {
        const char *title;
        const char *artist;
        const char *genre;
        int year;
        const char *songs;
    } albums[] = {
        {"First", "Band", "Rock", 1999, "One|Three|Two"},
        {"Live at Home", "The Stage", "Folk", 1977, "Closing|Middle|Opening"},
        {"Mix", "Various Artists", "Pop", 2010, "From X|From Y"},
        {"Second", "Other", "Jazz", 2005, "Alone"},
    };
    QMap<QString, MusicAlbum> held;
    for (const QString &id : music.albums())
        held.insert(music.album(id).title, music.album(id));
    EXPECT_EQ(held.keys().join('|').toStdString(), "First|Live at Home|Mix|Second");
    for (const auto &row : albums) {
        const MusicAlbum album = held.value(row.title);
        EXPECT_EQ(album.artist, row.artist);
        EXPECT_EQ(album.genre, row.genre) << row.title;
        EXPECT_EQ(album.year, row.year) << row.title;
        EXPECT_EQ(songTitles(album.songs).join('|').toStdString(), row.songs);
    }
    EXPECT_EQ(held.value("Second").poster, m_tree.music() + "/Other/Second/folder.png");
    EXPECT_EQ(held.value("First").poster, song("One").poster);
    QStringList artists = music.artists();
    artists.sort();
    EXPECT_EQ(artists.join('|').toStdString(), "Band|Other|The Guest|The Stage|X|Y");
    EXPECT_EQ(songTitles(music.artist("Band").songs).join('|').toStdString(), "One|Three|Two");
    EXPECT_EQ(music.artist("Band").poster, song("One").poster);
    QStringList genres = music.genres();
    genres.sort();
    EXPECT_EQ(genres.join('|').toStdString(), "Folk|Jazz|Pop|Rock");
    EXPECT_EQ(songTitles(music.genre("Pop").songs).join('|').toStdString(), "From X|From Y|Three");
}

TEST_F(LibraryEndToEndTest, TheListsFollowSortFilterAndPattern)
{
    scanned([this] { m_tree.makeFilms(); }, m_tree.films(), Common);
    const auto listed = [this] {
        QStringList order;
        const auto noted =
            QObject::connect(m_manager.get(), &MediaServerManager::sig_newMovieLoaded, m_manager.get(),
                             [&](const QString &id) {
                                 order << m_manager->videos().item(VideoCache::Movies, id).title.left(1);
                             });
        load(LibraryRole::Movies);
        QCoreApplication::processEvents(); // the signals of the load, which has ended
        QObject::disconnect(noted);
        return order.join(QString()).toStdString();
    };
    EXPECT_EQ(listed(), "ABDEEGTZ");
    m_manager->setSortMethod(1);
    EXPECT_EQ(listed(), "ABGDEZET");
    m_manager->setSortOrder(false);
    EXPECT_EQ(listed(), "TEZEDGBA");
    m_manager->setSortMethod(3);
    EXPECT_EQ(listed().substr(0, 2), "BA");
    m_manager->setSortMethod(0);
    m_manager->setSortOrder(true);
    m_manager->setPattern("ETA");
    EXPECT_EQ(listed(), "BETZ");
    m_manager->setPattern("%");
    EXPECT_EQ(listed(), "");
    m_manager->setPattern({});
    m_manager->filters().setGenre("movie", "Drama");
    EXPECT_EQ(listed(), "AB");
    m_manager->filters().setCountry("movie", "Japan");
    EXPECT_EQ(listed(), "B");
    m_manager->filters().setYear("movie", "2001");
    EXPECT_EQ(listed(), "");
    const VideoProtocol &requests = m_manager->videoRequests();
    EXPECT_EQ(requests.genres("movie").join('|').toStdString(), "Comedy|Drama");
    EXPECT_EQ(requests.countries("movie").join('|').toStdString(), "France|Japan");
    EXPECT_EQ(requests.years("movie").join('|').toStdString(), "2001|2002|2003|2004|2005|2006|2007|2008");
}

TEST_F(LibraryEndToEndTest, OnlyPicturesThatRecordsNameAreHandedOut)
{
    scanned(
        [this] {
            m_tree.makeFilms();
            m_tree.makeMusic();
            m_tree.picture("films/Alpha (2001)/private.png", 0xff0000);
            m_tree.picture("elsewhere/secret.png", 0x00ff00);
            ASSERT_TRUE(QFile::link(m_tree.full("elsewhere/secret.png"), m_tree.films() + "/link.png"));
            ASSERT_TRUE(QFile::link(m_tree.full("elsewhere"), m_tree.films() + "/linked"));
        },
        m_tree.films(), Common);
    ASSERT_TRUE(m_manager->addMusicPath(m_tree.music()));
    scan();
    loadAll();
    const auto status = [this](const QByteArray &encodedKey) {
        const QString url = QStringLiteral("http://127.0.0.1:%1/image/").arg(m_server.port());
        return GetText(url + QString::fromLatin1(encodedKey), 15).httpStatus;
    };
    const auto encoded = [](const QString &key) { return key.toUtf8().toPercentEncoding(); };
    int named = 0;
    for (const QString &id : m_manager->videos().ids(VideoCache::Movies)) {
        const MediaItem film = m_manager->videos().item(VideoCache::Movies, id);
        for (const QString &key : {film.poster, film.backdrop}) {
            if (key.isEmpty())
                continue;
            ++named;
            EXPECT_EQ(status(encoded(key)), 200) << qPrintable(key);
        }
    }
    for (const QString &id : m_manager->music().songs()) {
        const QString key = m_manager->music().song(id).poster;
        if (key.isEmpty())
            continue;
        ++named;
        EXPECT_EQ(status(encoded(key)), 200) << qPrintable(key);
    }
    EXPECT_GE(named, 4);
    const QString films = m_tree.films();
    const QByteArray refused[] = {
        encoded(films + "/Alpha (2001)/private.png"),
        encoded(films + "/link.png"),
        encoded(films + "/linked/secret.png"),
        encoded(films + "/../elsewhere/secret.png"),
        encoded(films + "/Alpha (2001)/../Alpha (2001)/poster.png"),
        encoded(films) + "%5C..%5Celsewhere%5Csecret.png",
        encoded(m_tree.full("elsewhere/secret.png")),
        "..%2Flibrary.db",
        "%2e%2e%2Fserver.log",
    };
    for (const QByteArray &key : refused)
        EXPECT_EQ(status(key), 404) << key.constData();
}
