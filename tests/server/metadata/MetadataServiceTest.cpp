#include "FakeMusicLibrary.h"
#include "FakeVideoLibrary.h"
#include "ProviderFixture.h"

#include "metadata/MetadataService.h"
#include "metadata/SystemClock.h"
#include "metadata/TmdbProvider.h"
#include "support/TestLog.h"

#include <future>
#include <stdexcept>

namespace {

class MetadataServiceTest : public ProviderFixture {
protected:
    MetadataServiceTest()
    {
        fillCatalogue();
        QDir(folder.path()).mkdir(QStringLiteral("images"));
        videos.addItem(1, QStringLiteral("stalker cam rip"), 0);
        MovieRecord record;
        record.idFile = 2;
        record.title = QStringLiteral("Stalker");
        record.year = 1979;
        record.overview = QStringLiteral("From its sidecar.");
        record.poster = QStringLiteral("/films/poster.jpg");
        videos.lists[Role::Movies] << record;
        videos.addItem(2, QStringLiteral("Stalker"), 1979);
        videos.items[2].collection = QStringLiteral("Zone");
        ShowRecord show;
        show.idTvshow = 9;
        show.title = QStringLiteral("Northern Lights");
        show.overview = QStringLiteral("Polar.");
        show.year = 2011;
        videos.showList << show;
    }

    void goOffline() { configuration.metadataKey.clear(); }

    MetadataService &service()
    {
        if (!m_service) {
            http = makeHttp();
            provider = std::make_unique<TmdbProvider>(*http);
            pictures = std::make_unique<MetadataPictures>(imageFolder(), *provider);
            m_service = std::make_unique<MetadataService>(ProviderParts{videos, *provider, *pictures, clock},
                                                          music, *http, reader);
        }
        return *m_service;
    }

    QString imageFolder() const { return folder.filePath(QStringLiteral("images")); }
    QByteArray image(const QString &name) const
    {
        QFile file(imageFolder() + '/' + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    FakeVideoLibrary videos;
    FakeMusicLibrary music;
    MetadataService::SongReader reader;
    std::unique_ptr<MetadataHttp> http;
    std::unique_ptr<TmdbProvider> provider;
    std::unique_ptr<MetadataPictures> pictures;

private:
    std::unique_ptr<MetadataService> m_service;
};

void expectMetadataWarnings()
{
    TestLog::expectWarning(QRegularExpression(QStringLiteral("^\\[metadata\\]")));
}

TEST_F(MetadataServiceTest, ASearchGivesTheProvidersProposalsWithPicturesAndTheNameAsTyped)
{
    const auto matches = service().searchMovie(QStringLiteral(" Stalker "), QStringLiteral("1979"));
    ASSERT_EQ(matches.size(), 3);
    EXPECT_EQ(matches[1].title, "Stalker");
    EXPECT_EQ(matches[1].releaseDate, "1979-05-25");
    EXPECT_EQ(matches[1].strMediaId, "1398");
    EXPECT_EQ(image(matches[1].poster), jpeg() + "/t/p/w342/stalker.jpg");
    EXPECT_EQ(matches[2].strMediaId, "name:Stalker|1979");
}

TEST_F(MetadataServiceTest, AYearRememberedWronglyHidesNothing)
{
    server.answer("/3/search/movie?query=Stalker&year=2003", QByteArray("{\"results\":[]}"));
    EXPECT_EQ(service().searchMovie(QStringLiteral("Stalker"), QStringLiteral("2003")).size(), 3);
}

TEST_F(MetadataServiceTest, OfflineASearchGivesTheNameAsTypedAndTheLibrarysEntries)
{
    goOffline();
    const auto films = service().searchMovie(QStringLiteral("stalk"), QStringLiteral("1979"));
    ASSERT_EQ(films.size(), 2);
    EXPECT_EQ(films[0].title, "stalk");
    EXPECT_EQ(films[0].releaseDate, "1979");
    EXPECT_EQ(films[0].strMediaId, "name:stalk|1979");
    EXPECT_EQ(films[1].strMediaId, "local:2");
    EXPECT_EQ(films[1].poster, "/films/poster.jpg");
    const auto shows = service().searchTvshow(QStringLiteral("northern"), {});
    ASSERT_EQ(shows.size(), 2);
    EXPECT_EQ(shows[0].strMediaId, "name:northern|");
    EXPECT_EQ(shows[1].strMediaId, "localshow:9");
    EXPECT_TRUE(service().searchMovie(QStringLiteral("  "), QStringLiteral("1979")).isEmpty());
    EXPECT_EQ(service().searchMovie(QStringLiteral("x"), QStringLiteral("abc")).first().releaseDate, "");
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(MetadataServiceTest, AProviderThatFailsLeavesTheOfflineAnswers)
{
    expectMetadataWarnings();
    limits.attempts = 1;
    server.answer("/3/search/movie?query=Stalker", {StandInServer::Reply{500, {}, {}, {}}});
    const auto films = service().searchMovie(QStringLiteral("Stalker"), {});
    ASSERT_EQ(films.size(), 2);
    EXPECT_EQ(films[1].strMediaId, "local:2");
}

TEST_F(MetadataServiceTest, AnItemBecomesTheFilmOfTheProvider)
{
    service().setLanguage(QStringLiteral("fr"));
    EXPECT_TRUE(service().toMovie(1, QStringLiteral("1398")));
    const auto stored = videos.matchedMovies.value(1);
    EXPECT_EQ(stored.description.title, "Stalker");
    EXPECT_EQ(stored.collection, "Zone Collection");
    EXPECT_EQ(image(stored.description.poster), jpeg() + "/t/p/w500/stalker.jpg");
    EXPECT_EQ(image(stored.description.backdrop), jpeg() + "/t/p/w1280/zone.jpg");
    EXPECT_TRUE(QRegularExpression("^[0-9a-f]{64}\\.jpg$").match(stored.description.poster).hasMatch());
    EXPECT_EQ(videos.describedCollections.value("Zone Collection").overview, "All of the zone.");
    EXPECT_EQ(image(videos.describedCollections.value("Zone Collection").poster),
              jpeg() + "/t/p/w500/zonebox.jpg");
    EXPECT_EQ(server.countOf("language=fr-FR"), 2);
    const int before = server.countOf("/t/p/");
    EXPECT_TRUE(service().toMovie(2, QStringLiteral("1398")));
    EXPECT_EQ(server.countOf("/t/p/"), before) << "a picture is fetched once";
}

TEST_F(MetadataServiceTest, APictureThatCantBeHadOrIsNoneCostsThePictureOnly)
{
    expectMetadataWarnings();
    server.answer("/t/p/w500/stalker.jpg", {StandInServer::Reply{200, "<html>", {}, {}}});
    server.answer("/t/p/w1280/zone.jpg", {StandInServer::Reply{404, {}, {}, {}}});
    EXPECT_TRUE(service().toMovie(1, QStringLiteral("1398")));
    EXPECT_EQ(videos.matchedMovies.value(1).description.title, "Stalker");
    EXPECT_EQ(videos.matchedMovies.value(1).description.poster, "");
    EXPECT_EQ(videos.matchedMovies.value(1).description.backdrop, "");
    EXPECT_EQ(QDir(imageFolder()).entryList(QDir::Files).size(), 1) << "the collection's";
}

TEST_F(MetadataServiceTest, AnItemBecomesAFilmWithoutAProvider)
{
    goOffline();
    videos.items[1].description.runtimeMinutes = 161;
    videos.items[1].description.overview = QStringLiteral("of another film");
    videos.items[1].description.poster = QStringLiteral("/films/1.jpg");
    videos.items[1].description.backdrop = QStringLiteral("0123.jpg");
    EXPECT_TRUE(service().toMovie(1, QStringLiteral("name:Stalker|1979")));
    const Description told = videos.matchedMovies.value(1).description;
    EXPECT_EQ(told.title, "Stalker");
    EXPECT_EQ(told.year, 1979);
    EXPECT_EQ(told.runtimeMinutes, 161);
    EXPECT_EQ(told.overview, "");
    EXPECT_EQ(told.poster, "/films/1.jpg") << "lies beside the file";
    EXPECT_EQ(told.backdrop, "") << "was another film's";
    EXPECT_TRUE(service().toMovie(1, QStringLiteral("local:2")));
    EXPECT_EQ(videos.matchedMovies.value(1).description.overview, "From its sidecar.");
    EXPECT_EQ(videos.matchedMovies.value(1).collection, "Zone");
}

TEST_F(MetadataServiceTest, WhatIsNoProposalChangesNothing)
{
    expectMetadataWarnings();
    for (const char *id : {"", "local:77", "localshow:9", "nothing", "999", "local:x"})
        EXPECT_FALSE(service().toMovie(1, id)) << id;
    for (const char *id : {"", "local:2", "localshow:8", "nothing", "999"})
        EXPECT_FALSE(service().toEpisode(1, id, 1, 1)) << id;
    EXPECT_FALSE(service().toEpisode(1, "501", -1, 1));
    EXPECT_FALSE(service().toMovie(404, "name:Stalker|1979"));
    EXPECT_FALSE(service().toMovie(404, "1398"));
    EXPECT_TRUE(videos.matchedMovies.isEmpty());
    EXPECT_TRUE(videos.matchedEpisodes.isEmpty());
}

TEST_F(MetadataServiceTest, AnItemBecomesAnEpisode)
{
    EXPECT_TRUE(service().toEpisode(1, QStringLiteral("501"), 1, 2));
    auto stored = videos.matchedEpisodes.value(1);
    EXPECT_EQ(stored.show.title, "Northern Lights");
    EXPECT_EQ(image(stored.show.poster), jpeg() + "/t/p/w500/lights.jpg");
    EXPECT_EQ(stored.episode.title, "Night");
    EXPECT_EQ(stored.season, 1);
    EXPECT_EQ(stored.number, 2);
    EXPECT_TRUE(service().toEpisode(1, QStringLiteral("501"), 0, 40)) << "an episode that the provider lacks";
    EXPECT_EQ(videos.matchedEpisodes.value(1).episode.title, "");
    EXPECT_EQ(videos.matchedEpisodes.value(1).number, 40);
    EXPECT_TRUE(service().toEpisode(2, QStringLiteral("localshow:9"), 3, 4));
    EXPECT_EQ(videos.matchedEpisodes.value(2).show.overview, "Polar.");
    EXPECT_TRUE(service().toEpisode(2, QStringLiteral("name:My Show|"), 3, 4));
    EXPECT_EQ(videos.matchedEpisodes.value(2).show.title, "My Show");
}

TEST_F(MetadataServiceTest, SongsAreFoundByTitleAndArtist)
{
    const struct {
        int id;
        const char *title;
        const char *artist;
    } songs[] = {
        {1, "Hurt", "Nine Inch Nails"}, {2, "Hurt", "Johnny Cash; June Carter"}, {3, "One", "Johnny Cash"}};
    for (const auto &row : songs) {
        SongRecord record;
        record.idFile = row.id;
        record.title = row.title;
        record.artist = row.artist;
        record.genre = "Country, Folk/Rock";
        record.album = "Album";
        record.runtime = 216000;
        record.year = 2002;
        music.all << record;
    }
    const struct {
        const char *title;
        const char *artist;
        int found;
    } rows[] = {
        {"hurt", "", 2}, {"hurt", "johnny CASH", 1}, {"", "Johnny Cash", 1}, {"", "", 0}, {"x", "", 0}};
    for (const auto &row : rows)
        EXPECT_EQ(service().searchSong(row.title, row.artist).size(), row.found) << row.title << row.artist;
    const SongMatchRecord match = service().searchSong("Hurt", "cash").value(0);
    EXPECT_EQ(match.albumName, "Album");
    EXPECT_EQ(match.duration, 216000);
    EXPECT_EQ(match.genres, (QStringList{"Country", "Folk", "Rock"}));
    ASSERT_EQ(match.artists.size(), 2);
    EXPECT_EQ(match.artists[1].name, "June Carter");
}

TEST_F(MetadataServiceTest, ASongIsReadAgainBeforeItsCorrectionsAreTakenBack)
{
    expectMetadataWarnings();
    SongRecord record;
    record.idFile = 5;
    music.all << record;
    QVector<int> read;
    bool isReadable = false;
    reader = [&](int idFile) {
        EXPECT_TRUE(music.restored.isEmpty());
        read << idFile;
        if (read.size() == 1)
            throw std::runtime_error("tags");
        return isReadable;
    };
    EXPECT_FALSE(service().fixMusic(5)) << "throws";
    EXPECT_FALSE(service().fixMusic(5)) << "can't be read";
    EXPECT_TRUE(music.restored.isEmpty());
    isReadable = true;
    EXPECT_TRUE(service().fixMusic(5));
    EXPECT_EQ(music.restored, QVector<int>{5});
    EXPECT_FALSE(service().fixMusic(6));
    EXPECT_EQ(read.size(), 3) << "an unknown song is not read";
}

TEST_F(MetadataServiceTest, OnlyAHostAndAPortMakeAProxy)
{
    expectMetadataWarnings();
    StandInServer proxy;
    const QString port = QString::number(proxy.port());
    const struct {
        QString host;
        QString port;
        bool isProxy;
    } rows[] = {{"127.0.0.1", port, true},       {"socks5://127.0.0.1", port, false},
                {"127.0.0.1", "0", false},       {"127.0.0.1", "65536", false},
                {"127.0.0.1", "x", false},       {"", port, false},
                {"127.0.0.1/path", port, false}, {"a b", port, false},
                {" 127.0.0.1 ", port, true},     {"me:you@127.0.0.1", port, false}};
    limits.requests = 1000;
    int number = 0;
    for (const auto &row : rows) {
        const int before = proxy.requests().size();
        service().setProxy(row.host, row.port, {}, {});
        (void)service().searchMovie(QStringLiteral("Query %1").arg(++number), {});
        EXPECT_EQ(proxy.requests().size() > before, row.isProxy) << qPrintable(row.host + ':' + row.port);
    }
    service().setProxy("127.0.0.1", port, {}, {});
    service().cancelProxy();
    const int before = proxy.requests().size();
    (void)service().searchMovie(QStringLiteral("Last"), {});
    EXPECT_EQ(proxy.requests().size(), before);
}

TEST_F(MetadataServiceTest, ACallThatWaitsEndsWhenTheServerGoesDown)
{
    server.answer("/3/movie/1398", {StandInServer::Reply{200, {}, {}, StandInServer::Manner::Silent}});
    expectMetadataWarnings();
    service();
    auto done = std::async(std::launch::async, [&] { return service().toMovie(1, QStringLiteral("1398")); });
    EXPECT_TRUE(server.waitForRequests(1));
    service().shutDown();
    EXPECT_FALSE(done.get());
    EXPECT_EQ(service().searchMovie(QStringLiteral("Stalker"), {}).size(), 2) << "offline from now on";
    EXPECT_EQ(server.requests().size(), 1);
}

TEST(SystemClockTest, AWaitEndsWithItsTimeOrItsFlag)
{
    SystemClock clock;
    StopFlag stop;
    const qint64 before = clock.steadyMs();
    EXPECT_TRUE(clock.pass(20, stop));
    EXPECT_GE(clock.steadyMs() - before, 15);
    auto waits = std::async(std::launch::async, [&] { return clock.pass(60 * 1000, stop); });
    stop.raise();
    EXPECT_FALSE(waits.get());
    EXPECT_FALSE(clock.pass(60 * 1000, stop));
    stop.lower();
    EXPECT_TRUE(clock.pass(0, stop));
    EXPECT_GT(clock.wallMs(), 1600000000000);
}

} // namespace
