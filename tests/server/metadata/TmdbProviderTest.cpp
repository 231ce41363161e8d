#include "ProviderFixture.h"

#include "metadata/TmdbJson.h"
#include "metadata/TmdbProvider.h"
#include "support/TestLog.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

class TmdbProviderTest : public ProviderFixture {
protected:
    TmdbProviderTest() { fillCatalogue(); }

    std::unique_ptr<MetadataHttp> http{makeHttp()};
    TmdbProvider provider{*http};
};

TEST_F(TmdbProviderTest, ASearchSendsNameYearAndLanguageAndGivesItsRows)
{
    const auto matches = provider.searchMovie(QStringLiteral("Stalker"), 1979, call(QStringLiteral("zh-TW")));
    ASSERT_TRUE(matches.isFound());
    ASSERT_EQ(matches.value.size(), 2);
    const ProviderMatch &match = matches.value[1];
    EXPECT_EQ(match.id, "1398");
    EXPECT_EQ(match.title, "Stalker");
    EXPECT_EQ(match.originalTitle, QString::fromUtf8("Сталкер"));
    EXPECT_EQ(match.releaseDate, "1979-05-25");
    EXPECT_EQ(match.year, 1979);
    EXPECT_EQ(match.poster, "/stalker.jpg");
    const QByteArray target = server.requests().first().target;
    for (const char *item : {"query=Stalker", "year=1979", "language=zh-TW", "include_adult=false"})
        EXPECT_TRUE(target.contains(item)) << item;
}

TEST_F(TmdbProviderTest, WhatAUserTypesReachesTheProviderAsTyped)
{
    const struct {
        QString name;
        QByteArray sent;
    } rows[] = {{QStringLiteral("a&api_key=b#c?d"), "query=a%26api_key%3Db%23c%3Fd&"},
                {QStringLiteral("100% + x/.."), "query=100%25%20%2B%20x%2F..&"},
                {QString::fromUtf8("Ä\r\nHost: x"), "query=%C3%84%0D%0AHost%3A%20x&"}};
    for (const auto &row : rows) {
        EXPECT_TRUE(provider.searchMovie(row.name, 0, call()).isFound());
        EXPECT_TRUE(server.requests().last().target.contains(row.sent))
            << server.requests().last().target.constData();
        EXPECT_FALSE(server.requests().last().target.contains("year="));
    }
}

TEST_F(TmdbProviderTest, AFilmIsDescribedWithItsCollection)
{
    const auto movie = provider.movieDetails(QStringLiteral("1398"), call());
    ASSERT_TRUE(movie.isFound());
    const Description &told = movie.value.description;
    EXPECT_EQ(told.title, "Stalker");
    EXPECT_EQ(told.rating, "8.1");
    EXPECT_EQ(told.director, "Andrei Tarkovsky");
    EXPECT_EQ(told.cast, "Alisa Freindlich, Aleksandr Kaidanovsky");
    EXPECT_EQ(told.genre, "Science Fiction, Drama");
    EXPECT_EQ(told.country, "Soviet Union");
    EXPECT_EQ(told.runtimeMinutes, 162);
    EXPECT_EQ(told.year, 1979);
    EXPECT_EQ(told.releaseDate, "1979-05-25");
    EXPECT_EQ(told.identities.value("tmdb"), "1398");
    EXPECT_EQ(told.identities.value("imdb"), "tt0079944");
    EXPECT_EQ(movie.value.collection, "Zone Collection");
    const auto collection = provider.collectionDetails(movie.value.collectionId, call());
    EXPECT_EQ(collection.value.overview, "All of the zone.");
    EXPECT_EQ(collection.value.poster, "/zonebox.jpg");
}

TEST_F(TmdbProviderTest, WhatIsNotTranslatedIsToldInEnglish)
{
    const auto movie = provider.movieDetails(QStringLiteral("1398"), call(QStringLiteral("de")));
    EXPECT_EQ(movie.value.description.title, "Stalker (de)");
    EXPECT_EQ(movie.value.description.overview, "A guide leads two men.");
}

TEST_F(TmdbProviderTest, AShowIsDescribedWithItsSeasonsAndEpisodes)
{
    const auto show = provider.showDetails(QStringLiteral("501"), call());
    ASSERT_TRUE(show.isFound());
    EXPECT_EQ(show.value.description.director, "Ada Berg");
    EXPECT_EQ(show.value.description.identities.value("tvdb"), "99");
    EXPECT_EQ(show.value.seasons.keys(), QList<int>{1});
    const auto season = provider.seasonDetails(QStringLiteral("501"), 1, call());
    ASSERT_TRUE(season.isFound());
    EXPECT_EQ(season.value.description.overview, "The first.");
    ASSERT_EQ(season.value.episodes.keys(), (QList<int>{1, 2}));
    EXPECT_EQ(season.value.episodes[1].title, "Dusk");
    EXPECT_EQ(season.value.episodes[1].poster, "/dusk.jpg");
    EXPECT_EQ(season.value.episodes[1].director, "Ola Ness");
    EXPECT_EQ(season.value.episodes[1].cast, "Per Lie");
    EXPECT_EQ(provider.episodeDetails(QStringLiteral("501"), 1, 2, call()).value.title, "Night");
    EXPECT_EQ(provider.episodeDetails(QStringLiteral("501"), 1, 9, call()).outcome, Outcome::NotFound);
}

TEST_F(TmdbProviderTest, IdsOfOthersAreLookedUp)
{
    const struct {
        QMap<QString, QString> identities;
        Outcome outcome;
        QString id;
        int requests;
    } rows[] = {{{{"tmdb", "12"}}, Outcome::Found, "12", 0},
                {{{"imdb", "tt0079944"}}, Outcome::Found, "1398", 1},
                {{{"imdb", "tt0000001"}}, Outcome::NotFound, {}, 1},
                {{{"imdb", "../configuration"}}, Outcome::NotFound, {}, 0},
                {{{"tmdb", "12/../13"}}, Outcome::NotFound, {}, 0},
                {{}, Outcome::NotFound, {}, 0}};
    for (const auto &row : rows) {
        const int before = server.requests().size();
        const Answer<QString> id = provider.identify(row.identities, false, call());
        EXPECT_EQ(id.outcome, row.outcome);
        EXPECT_EQ(id.value, row.id);
        EXPECT_EQ(server.requests().size() - before, row.requests);
    }
}

TEST_F(TmdbProviderTest, OnlyNumbersAndPictureNamesGetIntoAddresses)
{
    for (const char *id : {"", "x", "1 ", "../1", "1/images", "-1", "12345678901", "1\n"}) {
        EXPECT_EQ(provider.movieDetails(id, call()).outcome, Outcome::Refused) << id;
        EXPECT_EQ(provider.showDetails(id, call()).outcome, Outcome::Refused) << id;
        EXPECT_EQ(provider.seasonDetails(id, 1, call()).outcome, Outcome::Refused) << id;
        EXPECT_EQ(provider.collectionDetails(id, call()).outcome, Outcome::Refused) << id;
    }
    EXPECT_EQ(provider.seasonDetails("1", -1, call()).outcome, Outcome::Refused);
    for (const char *name :
         {"", "/", "a.jpg", "/../a.jpg", "/a/b.jpg", "//host/a.jpg", "/a.jpg?x", "/a\n.jpg"})
        EXPECT_EQ(provider.picture(name, PictureKind::Poster, call()).outcome, Outcome::Refused) << name;
    EXPECT_EQ(server.requests().size(), 0);
}

TEST_F(TmdbProviderTest, PicturesComeInTheSizeThatFits)
{
    const struct {
        PictureKind kind;
        const char *name;
        QByteArray target;
    } rows[] = {{PictureKind::Poster, "/stalker.jpg", "/t/p/w500/stalker.jpg"},
                {PictureKind::Thumbnail, "/stalker.jpg", "/t/p/w342/stalker.jpg"},
                {PictureKind::Backdrop, "/zone.jpg", "/t/p/w1280/zone.jpg"},
                {PictureKind::Still, "/dusk.jpg", "/t/p/w300/dusk.jpg"}};
    for (const auto &row : rows) {
        EXPECT_TRUE(provider.picture(row.name, row.kind, call()).isFound()) << row.name;
        EXPECT_EQ(server.requests().last().target, row.target);
    }
    EXPECT_EQ(server.countOf("/3/configuration"), 1) << "sizes are asked for once";
}

TEST_F(TmdbProviderTest, WithoutAnAddressOfPicturesNoneIsAskedFor)
{
    configuration.metadataImages.clear();
    const auto bare = makeHttp();
    TmdbProvider other(*bare);
    EXPECT_EQ(other.picture("/stalker.jpg", PictureKind::Poster, call()).outcome, Outcome::NotConfigured);
    EXPECT_EQ(server.requests().size(), 0) << "not even the address that the provider would tell";
}

TEST(TmdbLanguageTest, EveryLanguageOfTheProtocolHasItsTag)
{
    const struct {
        const char *language;
        const char *tag;
    } rows[] = {{"en", "en-US"},    {"fr", "fr-FR"}, {"de", "de-DE"},    {"ja", "ja-JP"},
                {"es-es", "es-ES"}, {"zh", "zh-CN"}, {"zh-TW", "zh-TW"}, {"", "en-US"},
                {"pt-BR", "pt-BR"}, {"it", "it"},    {"x&y=z", "en-US"}, {"english", "en-US"}};
    for (const auto &row : rows)
        EXPECT_EQ(TmdbProvider::languageTag(row.language), row.tag) << row.language;
}

// Every value of the sample answers is replaced by values of other types in turn.
void expectReadable(const QJsonValue &strange, const QByteArray &json, const QString &key)
{
    QJsonObject object = QJsonDocument::fromJson(json).object();
    object.insert(key, strange);
    const ProviderMovie movie = TmdbJson::movie(object);
    EXPECT_LE(movie.description.runtimeMinutes, std::numeric_limits<int>::max());
    EXPECT_TRUE(movie.description.year == 0 || movie.description.releaseDate.size() == 10);
    const ProviderShow show = TmdbJson::show(object);
    EXPECT_LE(show.seasons.size(), 1);
    const ProviderSeason season = TmdbJson::season(object);
    EXPECT_LE(season.episodes.size(), 1);
    EXPECT_LE(TmdbJson::movieMatches(object).size(), 1);
    EXPECT_LE(TmdbJson::showMatches(object).size(), 1);
    EXPECT_EQ(TmdbJson::foundId(object, true), QString());
    EXPECT_EQ(TmdbJson::sizeName(object, "poster_sizes", 500, "w500"), "w500");
}

TEST(TmdbJsonTest, ValuesOfOtherTypesAreTakenForUnknown)
{
    const QByteArray json =
        R"({"id":5,"title":"T","name":"N","original_title":"O","release_date":"2001-01-01",
        "first_air_date":"2001-01-01","air_date":"2001-01-01","overview":"o","runtime":90,"vote_average":5,
        "genres":[{"name":"G"}],"production_countries":[{"name":"C"}],"poster_path":"/p.jpg","imdb_id":"tt1",
        "belongs_to_collection":{"id":1,"name":"B"},"created_by":[{"name":"X"}],"external_ids":{"tvdb_id":3},
        "credits":{"cast":[{"name":"A"}],"crew":[{"name":"D","job":"Director"}]},
        "translations":{"translations":[]},"seasons":[{"season_number":1}],"episodes":[{"episode_number":1}],
        "results":[{"id":1,"title":"t","name":"n"}],"images":{"poster_sizes":["w500"]}})";
    const QJsonValue strange[] = {QJsonValue(),
                                  QJsonValue(true),
                                  QJsonValue(-1),
                                  QJsonValue(1e300),
                                  QJsonValue(0.5),
                                  QJsonValue("text"),
                                  QJsonValue(""),
                                  QJsonArray{},
                                  QJsonArray{1, "x", QJsonArray{}},
                                  QJsonArray{QJsonObject{{"name", 3}, {"id", "x"}}},
                                  QJsonObject{},
                                  QJsonObject{{"cast", 1}, {"crew", "x"}, {"id", -5}, {"name", true}}};
    const QJsonObject whole = QJsonDocument::fromJson(json).object();
    ASSERT_GE(whole.size(), 20);
    ASSERT_EQ(TmdbJson::movie(whole).description.title, "T");
    for (const QString &key : whole.keys()) {
        for (const QJsonValue &value : strange)
            expectReadable(value, json, key);
    }
    EXPECT_TRUE(TmdbJson::movie({}).description.title.isEmpty());
}

TEST_F(TmdbProviderTest, DetailsWithoutATitleAreNone)
{
    server.answer("/3/movie/1398", "{\"id\":1398}");
    EXPECT_EQ(provider.movieDetails("1398", call()).outcome, Outcome::Unreadable);
    server.answer("/3/tv/501", "{}");
    EXPECT_EQ(provider.showDetails("501", call()).outcome, Outcome::Unreadable);
}

} // namespace
