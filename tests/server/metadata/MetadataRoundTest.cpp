#include "FakeVideoLibrary.h"
#include "ProviderFixture.h"

#include "metadata/MetadataRound.h"
#include "metadata/TmdbProvider.h"
#include "support/TestLog.h"

#include <QTest>

#include <future>

namespace {

class MetadataRoundTest : public ProviderFixture {
protected:
    MetadataRoundTest()
    {
        fillCatalogue();
        QDir(folder.path()).mkdir(QStringLiteral("images"));
        limits.requests = 100000;
    }

    MetadataRound &round()
    {
        if (!m_round) {
            m_http = makeHttp();
            m_provider = std::make_unique<TmdbProvider>(*m_http);
            m_pictures = std::make_unique<MetadataPictures>(imageFolder(), *m_provider);
            const ProviderParts parts{videos, *m_provider, *m_pictures, clock};
            m_round = std::make_unique<MetadataRound>(
                parts, [this] { return language; }, folder.filePath(QStringLiteral("language")));
        }
        return *m_round;
    }

    QString imageFolder() const { return folder.filePath(QStringLiteral("images")); }
    bool isPicture(const QString &name) const
    {
        return !name.isEmpty() && QFile::exists(imageFolder() + '/' + name);
    }
    void addShow()
    {
        videos.addWanted(3, true, QStringLiteral("Northern Lights"), 2011);
        for (const int number : {1, 2}) {
            SeasonRecord season;
            season.iSeason = number;
            videos.seasonLists[3] << season;
        }
        for (const int number : {1, 2, 30}) {
            EpisodeRecord episode;
            episode.idFile = 100 + number;
            episode.iEpisode = number;
            episode.poster = number == 1 ? QStringLiteral("/shows/thumb.jpg") : QString();
            videos.episodeLists[{3, 1}] << episode;
        }
    }

    FakeVideoLibrary videos;
    QString language{QStringLiteral("en")};

private:
    std::unique_ptr<MetadataHttp> m_http;
    std::unique_ptr<TmdbProvider> m_provider;
    std::unique_ptr<MetadataPictures> m_pictures;
    std::unique_ptr<MetadataRound> m_round;
};

void expectMetadataWarnings()
{
    TestLog::expectWarning(QRegularExpression(QStringLiteral("^\\[metadata\\]")));
}

TEST_F(MetadataRoundTest, WithoutAProviderNothingIsAskedAndNothingMarked)
{
    configuration.metadataKey.clear();
    videos.addWanted(1, false, QStringLiteral("Stalker"), 1979);
    EXPECT_FALSE(round().run());
    EXPECT_EQ(videos.wantingCalls, 0);
    EXPECT_TRUE(videos.tried.isEmpty());
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(MetadataRoundTest, AFilmIsDescribedWithItsCollection)
{
    videos.addWanted(1, false, QStringLiteral("Stalker"), 1980);
    EXPECT_TRUE(round().run());
    const auto stored = videos.describedMovies.value(1);
    EXPECT_EQ(stored.description.identities.value("tmdb"), "1398");
    EXPECT_EQ(stored.collection, "Zone Collection");
    EXPECT_TRUE(isPicture(stored.description.poster));
    EXPECT_TRUE(isPicture(stored.description.backdrop));
    EXPECT_TRUE(isPicture(videos.describedCollections.value("Zone Collection").poster));
    EXPECT_TRUE(videos.tried.isEmpty());
    EXPECT_FALSE(round().run()) << "nothing is left to do";
}

TEST_F(MetadataRoundTest, OnlyWhatAgreesIsTakenAndTheRestIsAskedForOnce)
{
    const struct {
        int id;
        const char *title;
        int year;
        bool described;
    } rows[] = {{1, "Stalker", 1979, true}, {2, "Stalker", 1990, false},  {3, "Stalker", 0, true},
                {4, "Two Alike", 0, false}, {5, "Two Alike", 1951, true}, {6, "Unknown Film", 2000, false},
                {7, "", 2000, false},       {8, "Stalk", 1979, false}};
    server.answer("/3/movie/72", QByteArray("{\"id\":72,\"title\":\"Two alike!\"}"));
    for (const auto &row : rows)
        videos.addWanted(row.id, false, QString::fromUtf8(row.title), row.year);
    EXPECT_TRUE(round().run());
    for (const auto &row : rows) {
        EXPECT_EQ(videos.describedMovies.contains(row.id), row.described) << row.id;
        EXPECT_EQ(videos.tried.contains({false, row.id}), !row.described) << row.id;
    }
    const int before = server.requests().size();
    EXPECT_FALSE(round().run());
    EXPECT_EQ(server.requests().size(), before);
}

TEST_F(MetadataRoundTest, AnIdentityFromTheNameOrTheSidecarNeedsNoSearch)
{
    videos.addWanted(1, false, QStringLiteral("whatever"), 0, {{"tmdb", "1398"}});
    videos.addWanted(2, false, QStringLiteral("whatever"), 0, {{"imdb", "tt0079944"}});
    EXPECT_TRUE(round().run());
    EXPECT_EQ(videos.describedMovies.keys(), (QList<int>{1, 2}));
    EXPECT_EQ(server.countOf("/3/search/"), 0);
}

TEST_F(MetadataRoundTest, AShowIsDescribedWithTheSeasonsAndEpisodesThatTheLibraryHolds)
{
    addShow();
    EXPECT_TRUE(round().run());
    const auto stored = videos.describedShows.value(3);
    EXPECT_EQ(stored.description.overview, "Polar nights.");
    EXPECT_TRUE(isPicture(stored.description.poster));
    EXPECT_EQ(stored.seasons.keys(), QList<int>{1}) << "the provider has no second";
    EXPECT_TRUE(isPicture(stored.seasons[1].poster));
    EXPECT_EQ(videos.describedEpisodes.keys(), (QList<int>{101, 102}));
    EXPECT_EQ(videos.describedEpisodes[102].title, "Night");
    EXPECT_EQ(videos.describedEpisodes[101].poster, "") << "there is a picture beside the file";
    EXPECT_EQ(server.countOf("dusk.jpg"), 0);
}

TEST_F(MetadataRoundTest, ArtworkBesideTheFilmIsNotReplaced)
{
    videos.addWanted(1, false, QStringLiteral("Stalker"), 1979);
    videos.wanted[0].known.poster = QStringLiteral("/films/poster.jpg");
    EXPECT_TRUE(round().run());
    EXPECT_EQ(videos.describedMovies.value(1).description.poster, "");
    EXPECT_TRUE(isPicture(videos.describedMovies.value(1).description.backdrop));
}

TEST_F(MetadataRoundTest, AdultContentIsNeverAskedFor)
{
    videos.addItem(1, QStringLiteral("Stalker"), 1979, ScannedVideo::Kind::Adult);
    videos.addWanted(1, false, QStringLiteral("Stalker"), 1979);
    EXPECT_FALSE(round().run());
    EXPECT_TRUE(videos.tried.contains({false, 1}));
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(MetadataRoundTest, AFailureThatAllWouldMeetEndsTheRoundAndMarksNothing)
{
    expectMetadataWarnings();
    limits.attempts = 1;
    const struct {
        const char *name;
        StandInServer::Reply reply;
    } rows[] = {{"closed", {200, "{}", {}, StandInServer::Manner::Dropped}},
                {"key", {401, "{}", {}, {}}},
                {"busy", {429, "{}", {"Retry-After: 86400"}, {}}},
                {"failed", {503, "{}", {}, {}}}};
    for (int id = 1; id <= 3; ++id)
        videos.addWanted(id, false, QStringLiteral("Film %1").arg(id), 2000);
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        server.answer("/3/search/movie", {row.reply});
        const int before = server.requests().size();
        EXPECT_FALSE(round().run());
        EXPECT_EQ(server.requests().size() - before, 1);
        EXPECT_TRUE(videos.tried.isEmpty());
        clock.step(24LL * 60 * 60 * 1000);
    }
    server.answer("/3/search/movie", QByteArray("{\"results\":[]}"));
    EXPECT_FALSE(round().run());
    EXPECT_EQ(videos.tried.size(), 3) << "the next round takes up what was left";
}

TEST_F(MetadataRoundTest, AnswersThatMakeNoSenseCostTheirFilmOnly)
{
    expectMetadataWarnings();
    server.answer("/3/search/movie?query=Broken", QByteArray("{\"results\":"));
    videos.addWanted(1, false, QStringLiteral("Broken"), 0);
    videos.addWanted(2, false, QStringLiteral("Stalker"), 1979);
    EXPECT_TRUE(round().run());
    EXPECT_TRUE(videos.tried.contains({false, 1}));
    EXPECT_TRUE(videos.describedMovies.contains(2));
}

TEST_F(MetadataRoundTest, ARoundEndsAlthoughTheLibraryTakesNothing)
{
    videos.takesDescriptions = false;
    for (int id = 1; id <= 120; ++id)
        videos.addWanted(id, false, QStringLiteral("Stalker"), 1979);
    EXPECT_FALSE(round().run());
    EXPECT_EQ(videos.tried.size(), 120);
    EXPECT_LE(videos.wantingCalls, 5);
}

TEST_F(MetadataRoundTest, ItIsCancelledInTheMiddleAndTakenUpLater)
{
    expectMetadataWarnings();
    server.answer("/3/movie/71", {StandInServer::Reply{200, {}, {}, StandInServer::Manner::Silent}});
    videos.addWanted(1, false, QStringLiteral("Stalker"), 1979);
    videos.addWanted(2, false, QStringLiteral("Two Alike"), 2001);
    videos.addWanted(3, false, QStringLiteral("Two Alike"), 1950);
    round();
    auto done = std::async(std::launch::async, [&] { return round().run(); });
    ASSERT_TRUE(QTest::qWaitFor([&] { return server.countOf("/3/movie/71") == 1; }, 10000));
    round().cancel();
    EXPECT_TRUE(done.get()) << "the first was described";
    EXPECT_EQ(videos.wanted.size(), 2);
    EXPECT_TRUE(videos.tried.isEmpty());
    EXPECT_FALSE(round().run()) << "still cancelled";
    server.answer("/3/movie/71", QByteArray("{\"id\":71,\"title\":\"Two Alike\"}"));
    server.answer("/3/movie/72", QByteArray("{\"id\":72,\"title\":\"Two Alike\"}"));
    round().resume();
    EXPECT_TRUE(round().run());
    EXPECT_EQ(videos.describedMovies.keys(), (QList<int>{1, 2, 3}));
}

TEST_F(MetadataRoundTest, AnotherLanguageAsksAnewForAllThatHasAnIdentity)
{
    IVideoLibrary::Wanted matched;
    matched.id = 1;
    matched.known.title = QStringLiteral("Stalker");
    matched.known.identities.insert(QStringLiteral("tmdb"), QStringLiteral("1398"));
    IVideoLibrary::Wanted nameOnly;
    nameOnly.id = 2;
    nameOnly.known.title = QStringLiteral("Stalker");
    videos.identified = {matched, nameOnly};
    EXPECT_FALSE(round().run()) << "the first round knows of no other language";
    language = QStringLiteral("de");
    EXPECT_TRUE(round().run());
    EXPECT_EQ(videos.describedMovies.value(1).description.title, "Stalker (de)");
    EXPECT_FALSE(videos.describedMovies.contains(2));
    const int before = server.requests().size();
    EXPECT_FALSE(round().run()) << "the same language again";
    EXPECT_EQ(server.requests().size(), before);
}

TEST_F(MetadataRoundTest, ALanguageIsDoneOnlyWhenItsRoundCameToTheEnd)
{
    expectMetadataWarnings();
    limits.attempts = 1;
    IVideoLibrary::Wanted matched;
    matched.id = 1;
    matched.known.identities.insert(QStringLiteral("tmdb"), QStringLiteral("1398"));
    videos.identified = {matched};
    EXPECT_FALSE(round().run());
    language = QStringLiteral("fr");
    server.answer("/3/movie/1398?language=fr-FR", {StandInServer::Reply{500, {}, {}, {}}});
    EXPECT_FALSE(round().run());
    server.answer("/3/movie/1398?language=fr-FR", QByteArray("{\"id\":1398,\"title\":\"Stalker (fr)\"}"));
    EXPECT_TRUE(round().run());
    EXPECT_EQ(videos.describedMovies.value(1).description.title, "Stalker (fr)");
}

} // namespace
