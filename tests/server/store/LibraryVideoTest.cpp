#include "StoreFixture.h"

#include "support/TestLog.h"

#include <QRegularExpression>

namespace {

class LibraryVideoTest : public StoreFixture {
protected:
    void storeFilms(const QVector<ScannedVideo> &films)
    {
        ScannedFolder all = folder(videoRoot, "/films");
        all.videos = films;
        EXPECT_TRUE(store(all));
    }

    static ScannedVideo described(const QString &title, int year, const QString &rating, const QString &genre,
                                  const QString &country)
    {
        ScannedVideo video = film("/films/" + title + ".mkv", title, year);
        video.description.rating = rating;
        video.description.genre = genre;
        video.description.country = country;
        return video;
    }

    static ListRequest filtered(const QVector<FieldFilter> &filters, const QString &pattern = {})
    {
        ListRequest request = everything();
        request.filters = filters;
        request.pattern = pattern;
        return request;
    }
};

} // namespace

TEST_F(LibraryVideoTest, EachKindStandsInItsOwnList)
{
    QVector<ScannedVideo> all{film("/films/m.mkv", "Movie"), film("/films/v.mkv", "Video"),
                              film("/films/x.mkv", "Adult"), episode("/films/s/e.mkv", "/films/s", 1, 1)};
    all[1].kind = ScannedVideo::Kind::Video;
    all[2].kind = ScannedVideo::Kind::Adult;
    storeFilms(all);
    EXPECT_EQ(titles(Role::Movies), QStringList{"Movie"});
    EXPECT_EQ(titles(Role::Videos), QStringList{"Video"});
    EXPECT_EQ(titles(Role::Adult), QStringList{"Adult"});
    EXPECT_EQ(videos->shows(everything()).total, 1);
    EXPECT_TRUE(titles(Role::TvShows).isEmpty());
    EXPECT_TRUE(titles(Role::Music).isEmpty());
}

TEST_F(LibraryVideoTest, ListsAreSortedByEachMethodAndTiesByTitle)
{
    QVector<ScannedVideo> all{described("beta", 2001, "10", {}, {}),
                              described("Alpha", 1999, "9,5/10", {}, {}),
                              described("Élan", 2001, "9.25", {}, {}), described("Gamma", 0, {}, {}, {})};
    all[3].description.sortTitle = "aardvark";
    storeFilms(all);
    const struct {
        SortMethod method;
        bool ascending;
        QStringList expected;
    } rows[] = {
        {SortMethod::Title, true, {"Gamma", "Alpha", "beta", "Élan"}},
        {SortMethod::Title, false, {"Élan", "beta", "Alpha", "Gamma"}},
        {SortMethod::Year, true, {"Gamma", "Alpha", "beta", "Élan"}},
        {SortMethod::Year, false, {"beta", "Élan", "Alpha", "Gamma"}},
        {SortMethod::Rating, false, {"beta", "Alpha", "Élan", "Gamma"}},
        {SortMethod::DateAdded, false, {"Gamma", "Alpha", "beta", "Élan"}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(titles(Role::Movies, everything(row.method, row.ascending)), row.expected);
}

TEST_F(LibraryVideoTest, FiltersContainTheirValueWithoutRegardToCaseAndWildcards)
{
    storeFilms({described("A", 1999, {}, "Drama, Science Fiction", "France"),
                described("B", 2009, {}, "100% Comedy", "USA, France"), described("C", 0, {}, {}, {})});
    const struct {
        QVector<FieldFilter> filters;
        QString pattern;
        QStringList expected;
    } rows[] = {
        {{{"genre", "drama"}}, {}, {"A"}},
        {{{"country", "FRANCE"}}, {}, {"A", "B"}},
        {{{"country", "France"}, {"genre", "Comedy"}}, {}, {"B"}},
        {{{"country", "France"}, {"genre", "Drama"}, {"year", "1999"}}, {}, {"A"}},
        {{{"year", "0"}}, {}, {"B"}},
        {{{"genre", "%"}}, {}, {"B"}},
        {{{"genre", "_rama"}}, {}, {}},
        {{{"genre", "\\"}}, {}, {}},
        {{{"genre", "' OR 1=1 --"}}, {}, {}},
        {{{"genre", "France"}}, {}, {}},
        {{}, "c", {"C"}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(titles(Role::Movies, filtered(row.filters, row.pattern)), row.expected)
            << (row.filters.isEmpty() ? "pattern" : qPrintable(row.filters.first().value));
}

TEST_F(LibraryVideoTest, AnUnknownFilterIsToldAndLeftOut)
{
    storeFilms({described("A", 1999, {}, {}, {})});
    TestLog::expectWarning(QRegularExpression("cannot be filtered by"));
    EXPECT_EQ(titles(Role::Movies, filtered({{"colour", "red"}})), QStringList{"A"});
}

TEST_F(LibraryVideoTest, ASearchFindsTitlesInAnyScriptAndCase)
{
    QVector<ScannedVideo> all{described("Amélie", 2001, {}, {}, {}), described("Москва", 1980, {}, {}, {}),
                              described("Weiß", 1994, {}, {}, {}), described("100%", 1994, {}, {}, {})};
    all[0].description.originalTitle = "Le Fabuleux Destin";
    storeFilms(all);
    const struct {
        QString pattern;
        QStringList expected;
    } rows[] = {{"AMÉLIE", {"Amélie"}}, {"amelie", {"Amélie"}}, {"fabuleux", {"Amélie"}},
                {"МОСК", {"Москва"}},   {"WEISS", {"Weiß"}},    {"0%", {"100%"}},
                {"nothing", {}}};
    for (const auto &row : rows)
        EXPECT_EQ(titles(Role::Movies, filtered({}, row.pattern)), row.expected) << qPrintable(row.pattern);
}

TEST_F(LibraryVideoTest, TheEndOfAPartIsExclusiveAndPartsOutsideAreEmpty)
{
    storeFilms({film("/films/a.mkv", "A"), film("/films/b.mkv", "B"), film("/films/c.mkv", "C")});
    const struct {
        int start;
        int end;
        QStringList expected;
    } rows[] = {{0, 1, {"A"}}, {1, 3, {"B", "C"}}, {2, 99, {"C"}}, {3, 4, {}},
                {0, 0, {}},    {-5, 1, {"A"}},     {2, 1, {}},     {99, 100, {}}};
    for (const auto &row : rows) {
        ListRequest request = everything();
        request.start = row.start;
        request.end = row.end;
        EXPECT_EQ(titles(Role::Movies, request), row.expected) << row.start;
        EXPECT_EQ(videos->movies(Role::Movies, request).total, 3);
    }
}

TEST_F(LibraryVideoTest, FieldValuesAreDistinctAndSorted)
{
    storeFilms({described("A", 1999, {}, "Drama, Action", "France"),
                described("B", 1980, {}, "drama; Western", "USA"),
                described("C", 1999, {}, {}, "USA, Italy")});
    EXPECT_EQ(videos->genres(Role::Movies), (QStringList{"Action", "Drama", "Western"}));
    EXPECT_EQ(videos->countries(Role::Movies), (QStringList{"France", "Italy", "USA"}));
    EXPECT_EQ(videos->years(Role::Movies), (QVector<int>{1980, 1999}));
    EXPECT_TRUE(videos->genres(Role::TvShows).isEmpty());
    EXPECT_TRUE(videos->years(Role::Music).isEmpty());
}

TEST_F(LibraryVideoTest, VersionsAndPartsStandBehindTheirLead)
{
    QVector<ScannedVideo> all{film("/films/a cd1.mkv", "A"), film("/films/a cd2.mkv", "A2")};
    all[1].leadPath = all[0].path;
    storeFilms(all);
    EXPECT_EQ(titles(Role::Movies), QStringList{"A"});
    const int id = idOfFilm("A");
    EXPECT_EQ(videos->filesOf(id), (QStringList{"/films/a cd1.mkv", "/films/a cd2.mkv"}));
    ASSERT_TRUE(videos->remove(id, Removal::FromLibrary));
    EXPECT_TRUE(titles(Role::Movies).isEmpty());
    EXPECT_TRUE(videos->filesOf(id).isEmpty());
    storeFilms(all);
    EXPECT_TRUE(titles(Role::Movies).isEmpty());
}

TEST_F(LibraryVideoTest, ARemovedFilmStaysOutUntilItsFileChanges)
{
    QVector<ScannedVideo> all{film("/films/a.mkv", "A")};
    storeFilms(all);
    const int id = idOfFilm("A");
    EXPECT_TRUE(videos->remove(id, Removal::FromLibrary));
    EXPECT_FALSE(videos->remove(id, Removal::FromLibrary));
    EXPECT_FALSE(videos->remove(-1, Removal::FromLibrary));
    storeFilms(all);
    EXPECT_TRUE(titles(Role::Movies).isEmpty());
    all[0].stamp.modifiedMs += 1;
    storeFilms(all);
    EXPECT_EQ(titles(Role::Movies), QStringList{"A"});
    EXPECT_NE(idOfFilm("A"), id);
}

TEST_F(LibraryVideoTest, CollectionsHaveTheirFilmsAndTheFirstPicture)
{
    QVector<ScannedVideo> all{film("/films/a.mkv", "Second", 2002), film("/films/b.mkv", "First", 2001),
                              film("/films/c.mkv", "Alone")};
    all[0].collection = "Series";
    all[0].collectionOverview = "About";
    all[0].description.poster = "second.jpg";
    all[1].collection = "series";
    all[1].description.poster = "first.jpg";
    storeFilms(all);
    const Page<GroupRecord> groups = videos->groups(everything());
    ASSERT_EQ(groups.total, 1);
    EXPECT_EQ(groups.rows[0].title, QString("Series"));
    EXPECT_EQ(groups.rows[0].overview, QString("About"));
    EXPECT_EQ(groups.rows[0].fileCount, 2);
    EXPECT_EQ(groups.rows[0].poster, QString("first.jpg"));
    const QVector<MovieRecord> movies = videos->groupMovies(groups.rows[0].idGroup, SortMethod::Year, true);
    ASSERT_EQ(movies.size(), 2);
    EXPECT_EQ(movies[0].title, QString("First"));
    storeFilms({all[2]});
    EXPECT_EQ(videos->groups(everything()).total, 0);
}

TEST_F(LibraryVideoTest, ADescribedCollectionKeepsItsOwnTextAndPictures)
{
    ScannedVideo member = film("/films/a.mkv", "First", 2001);
    member.collection = "Series";
    member.description.poster = "first.jpg";
    storeFilms({member});
    Description told;
    told.overview = "All of them";
    told.poster = "series.jpg";
    EXPECT_FALSE(videos->describeCollection("Nothing", told));
    EXPECT_TRUE(videos->describeCollection("series", told));
    ScannedVideo second = film("/films/b.mkv", "Second", 2002);
    second.collection = "Series";
    second.description.backdrop = "second.jpg";
    storeFilms({member, second});
    const GroupRecord group = videos->groups(everything()).rows.value(0);
    EXPECT_EQ(group.overview, QString("All of them"));
    EXPECT_EQ(group.poster, QString("series.jpg"));
    EXPECT_EQ(group.backdrop, QString("second.jpg"));
    EXPECT_EQ(group.fileCount, 2);
}

TEST_F(LibraryVideoTest, ShowsSeasonsAndEpisodes)
{
    ScannedFolder all = folder(videoRoot, "/films/Show");
    ScannedShow show;
    show.key = "/films/Show";
    show.description.title = "The Show";
    show.description.cast = "Somebody";
    show.description.poster = "show.jpg";
    show.description.genre = "Drama";
    show.seasons[1].title = "The beginning";
    all.shows << show;
    all.videos << episode("/films/Show/b.mkv", show.key, 1, 3) << episode("/films/Show/a.mkv", show.key, 1, 1)
               << episode("/films/Show/s.mkv", show.key, 0, 1);
    all.videos[1].lastEpisode = 2;
    all.videos[1].description.year = 1990;
    ASSERT_TRUE(store(all));
    const Page<ShowRecord> shows = videos->shows(everything());
    ASSERT_EQ(shows.total, 1);
    const int id = shows.rows[0].idTvshow;
    EXPECT_EQ(shows.rows[0].title, QString("The Show"));
    EXPECT_EQ(shows.rows[0].path, show.key);
    const QVector<SeasonRecord> seasons = videos->seasons(id);
    ASSERT_EQ(seasons.size(), 2);
    EXPECT_EQ(seasons[0].iSeason, 0);
    EXPECT_EQ(seasons[0].title, QString("Specials"));
    EXPECT_EQ(seasons[0].poster, QString("show.jpg"));
    EXPECT_EQ(seasons[1].title, QString("The beginning"));
    EXPECT_EQ(seasons[1].year, 1990);
    EXPECT_EQ(videos->season(id, 1).idSeason, seasons[1].idSeason);
    EXPECT_EQ(videos->season(id, 7).idSeason, 0);
    const QVector<EpisodeRecord> episodes = videos->episodes(id, 1);
    ASSERT_EQ(episodes.size(), 2);
    EXPECT_EQ(episodes[0].iEpisode, 1);
    EXPECT_EQ(episodes[1].iEpisode, 3);
    EXPECT_EQ(episodes[0].cast, QString("Somebody"));
    EXPECT_EQ(videos->episode(id, 1, 2).idFile, episodes[0].idFile);
    EXPECT_EQ(videos->episode(id, 1, 4).idFile, 0);
    EXPECT_EQ(videos->genres(Role::TvShows), QStringList{"Drama"});

    // A season without files is not listed, and at the end of a scan a show without any is gone.
    all.videos.removeLast();
    ASSERT_TRUE(store(all));
    EXPECT_EQ(videos->seasons(id).size(), 1);
    all.videos.clear();
    ASSERT_TRUE(store(all));
    EXPECT_EQ(videos->shows(everything()).total, 0);
}

TEST_F(LibraryVideoTest, AMatchChangesRoleAndPlaceAndLaterScansLeaveItAlone)
{
    QVector<ScannedVideo> all{film("/films/a.mkv", "Holiday")};
    all[0].kind = ScannedVideo::Kind::Video;
    storeFilms(all);
    const int id = idOfFilm("Holiday", Role::Videos);
    Description chosen;
    chosen.title = "The Film";
    chosen.year = 1999;
    ASSERT_TRUE(videos->matchMovie(id, chosen, "Collected"));
    storeFilms(all);
    EXPECT_EQ(idOfFilm("The Film"), id);
    EXPECT_TRUE(titles(Role::Videos).isEmpty());
    EXPECT_EQ(videos->groups(everything()).total, 1);
    EXPECT_EQ(videos->scanned(id).kind, ScannedVideo::Kind::Movie);

    Description show;
    show.title = "A Show";
    show.identities["tmdb"] = "5";
    Description part;
    part.title = "Pilot";
    ASSERT_TRUE(videos->matchEpisode(id, show, part, 2, 7));
    storeFilms(all);
    EXPECT_TRUE(titles(Role::Movies).isEmpty());
    EXPECT_EQ(videos->groups(everything()).total, 0);
    const Page<ShowRecord> shows = videos->shows(everything());
    ASSERT_EQ(shows.total, 1);
    EXPECT_EQ(videos->episode(shows.rows[0].idTvshow, 2, 7).idFile, id);
    EXPECT_EQ(videos->episode(shows.rows[0].idTvshow, 2, 7).title, QString("Pilot"));

    // Another episode of the same show joins it.
    all << film("/films/b.mkv", "Other");
    storeFilms(all);
    ASSERT_TRUE(videos->matchEpisode(idOfFilm("Other"), show, part, 2, 8));
    EXPECT_EQ(videos->shows(everything()).total, 1);
    EXPECT_EQ(videos->episodes(shows.rows[0].idTvshow, 2).size(), 2);
    EXPECT_FALSE(videos->matchMovie(4711, chosen, {}));
    EXPECT_FALSE(videos->matchEpisode(4711, show, part, 1, 1));
}

TEST_F(LibraryVideoTest, AdultContentStaysItselfWhenMatched)
{
    QVector<ScannedVideo> all{film("/films/a.mkv", "A")};
    all[0].kind = ScannedVideo::Kind::Adult;
    storeFilms(all);
    Description chosen;
    chosen.title = "B";
    ASSERT_TRUE(videos->matchMovie(idOfFilm("A", Role::Adult), chosen, {}));
    EXPECT_EQ(titles(Role::Adult), QStringList{"B"});
    EXPECT_TRUE(titles(Role::Movies).isEmpty());
    EXPECT_TRUE(videos->wantingMetadata(true, 0).isEmpty());
}

TEST_F(LibraryVideoTest, AProviderImprovesNamesButNeverSidecarsOrChoices)
{
    QVector<ScannedVideo> all{film("/films/a.mkv", "by.name"), film("/films/b.mkv", "By Sidecar"),
                              film("/films/c.mkv", "c")};
    all[0].wantsMetadata = true;
    all[0].description.poster = "/films/a.jpg";
    all[2].wantsMetadata = true;
    storeFilms(all);
    const int byName = idOfFilm("by.name");
    const int bySidecar = idOfFilm("By Sidecar");
    const int byUser = idOfFilm("c");
    Description chosen;
    chosen.title = "Chosen";
    chosen.identities["tmdb"] = "1";
    ASSERT_TRUE(videos->matchMovie(byUser, chosen, {}));

    QVector<IVideoLibrary::Wanted> wanted = videos->wantingMetadata(false, 10);
    ASSERT_EQ(wanted.size(), 1);
    EXPECT_EQ(wanted[0].id, byName);
    EXPECT_EQ(wanted[0].known.title, QString("by.name"));
    EXPECT_EQ(videos->wantingMetadata(true, 0).size(), 3);
    EXPECT_EQ(videos->wantingMetadata(true, 2).size(), 2);

    Description provided;
    provided.title = "Provided";
    provided.overview = "Told";
    provided.poster = "provided.jpg";
    provided.identities["tmdb"] = "2";
    EXPECT_TRUE(videos->describeMovie(byName, provided, "Provided Collection"));
    EXPECT_TRUE(videos->describeMovie(bySidecar, provided, {}));
    EXPECT_FALSE(videos->describeMovie(byUser, provided, {}));
    storeFilms(all);
    EXPECT_EQ(videos->movie(byName).title, QString("Provided"));
    EXPECT_EQ(videos->movie(byName).poster, QString("/films/a.jpg"));
    EXPECT_EQ(videos->movie(bySidecar).title, QString("By Sidecar"));
    EXPECT_EQ(videos->movie(bySidecar).overview, QString("Told"));
    EXPECT_EQ(videos->movie(byUser).title, QString("Chosen"));
    EXPECT_TRUE(videos->wantingMetadata(false, 10).isEmpty());
    // The chosen film in another language.
    provided.title = "Choisi";
    provided.identities["tmdb"] = "1";
    EXPECT_TRUE(videos->describeMovie(byUser, provided, {}));
    EXPECT_EQ(videos->movie(byUser).title, QString("Choisi"));
}

TEST_F(LibraryVideoTest, WhatAProviderDoesNotKnowIsNotAskedAgain)
{
    QVector<ScannedVideo> all{film("/films/a.mkv", "a")};
    all[0].wantsMetadata = true;
    storeFilms(all);
    ASSERT_EQ(videos->wantingMetadata(false, 10).size(), 1);
    videos->metadataTried(idOfFilm("a"), false);
    storeFilms(all);
    EXPECT_TRUE(videos->wantingMetadata(false, 10).isEmpty());
    all[0].description.title = "another name";
    storeFilms(all);
    EXPECT_EQ(videos->wantingMetadata(false, 10).size(), 1);
}

TEST_F(LibraryVideoTest, UnknownIdsGiveEmptyRecords)
{
    EXPECT_EQ(videos->movie(5).idFile, 0);
    EXPECT_TRUE(videos->filesOf(0).isEmpty());
    EXPECT_TRUE(videos->groupMovies(5, SortMethod::Title, true).isEmpty());
    EXPECT_TRUE(videos->seasons(5).isEmpty());
    EXPECT_EQ(videos->scanned(5).path, QString());
    EXPECT_FALSE(videos->describeShow(5, {}, {}));
    EXPECT_FALSE(videos->describeEpisode(5, {}));
}
