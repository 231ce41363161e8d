// Which pictures the library says that it knows.
#include "StoreFixture.h"

#include "store/ArtworkKeys.h"

namespace {

class LibraryArtworkTest : public StoreFixture {
protected:
    [[nodiscard]] bool isNamed(const QString &key) const { return ArtworkKeys(*database).isNamed(key); }
};

// Of the file alone: another database tells its plan in another form.
using ArtworkPlanTest = LibraryArtworkTest;

} // namespace

TEST_F(LibraryArtworkTest, WhateverIsListedAsAPictureIsNamed)
{
    ScannedFolder films = folder(videoRoot, "/films");
    films.videos << film("/films/one.mkv", "One");
    films.videos.last().description.poster = "/films/one-poster.jpg";
    films.videos.last().description.backdrop = "/films/one-fanart.jpg";
    films.videos.last().collection = "Trilogy";
    ScannedShow show;
    show.key = "/films/Show";
    show.description.title = "Show";
    show.description.poster = "/films/Show/poster.jpg";
    show.description.backdrop = "/films/Show/fanart.jpg";
    show.seasons[1].poster = "/films/Show/season01-poster.jpg";
    films.shows << show;
    films.videos << episode("/films/Show/S01E01.mkv", show.key, 1, 1);
    films.videos.last().description.poster = "/films/Show/S01E01-thumb.jpg";
    ScannedFolder songs = folder(musicRoot, "/music");
    songs.songs << song("/music/one.mp3", "Song", "Artist", "Album");
    songs.songs.last().poster = "/music/cover.jpg";
    ASSERT_TRUE(scans->store({films, songs}));
    Description collection;
    collection.poster = "/films/trilogy.jpg";
    collection.backdrop = "/films/trilogy-fanart.jpg";
    ASSERT_TRUE(videos->describeCollection("Trilogy", collection));
    ASSERT_TRUE(music->setAlbumPoster(music->albums(everything()).rows.first().idAlbum, "/music/mine.jpg"));
    ASSERT_TRUE(music->setArtistPoster("Artist", "/music/artist.jpg"));
    ASSERT_GT(music->createPlaylist({0, "Mine", {}, "/music/list.jpg"}), 0);

    const QStringList named{"/films/one-poster.jpg",
                            "/films/one-fanart.jpg",
                            "/films/Show/poster.jpg",
                            "/films/Show/fanart.jpg",
                            "/films/Show/season01-poster.jpg",
                            "/films/Show/S01E01-thumb.jpg",
                            "/films/trilogy.jpg",
                            "/films/trilogy-fanart.jpg",
                            "/music/cover.jpg",
                            "/music/mine.jpg",
                            "/music/artist.jpg",
                            "/music/list.jpg"};
    for (const QString &key : named)
        EXPECT_TRUE(isNamed(key)) << qPrintable(key);
    // The lists name nothing else.
    QStringList listed;
    for (const MovieRecord &row : videos->movies(Role::Movies, everything()).rows)
        listed << row.poster << row.backdrop;
    for (const GroupRecord &row : videos->groups(everything()).rows)
        listed << row.poster << row.backdrop;
    for (const ShowRecord &row : videos->shows(everything()).rows) {
        listed << row.poster << row.backdrop;
        for (const SeasonRecord &season : videos->seasons(row.idTvshow))
            listed << season.poster;
        for (const EpisodeRecord &one : videos->episodes(row.idTvshow, 1))
            listed << one.poster;
    }
    for (const SongRecord &row : music->songs(everything()).rows)
        listed << row.poster;
    for (const AlbumRecord &row : music->albums(everything()).rows)
        listed << row.poster;
    for (const ArtistRecord &row : music->artists())
        listed << row.localPath;
    for (const PlaylistRecord &row : music->playlists())
        listed << row.poster;
    listed.removeAll({});
    EXPECT_GE(listed.size(), 10);
    for (const QString &key : listed)
        EXPECT_TRUE(isNamed(key)) << qPrintable(key);
}

TEST_F(LibraryArtworkTest, OtherPicturesAndOtherSpellingsAreNotNamed)
{
    ScannedFolder films = folder(videoRoot, "/films");
    films.videos << film("/films/one.mkv", "One");
    films.videos.last().description.poster = "/films/one.jpg";
    ASSERT_TRUE(store(films));
    ASSERT_TRUE(isNamed("/films/one.jpg"));
    for (const char *key : {"", "/films/other.jpg", "/films/ONE.jpg", "/films/one.jpg/", "/films//one.jpg",
                            "/films/one.jp%", "%", "' OR '1'='1", "/films/one.mkv"})
        EXPECT_FALSE(isNamed(key)) << key;
    // The next picture takes the place of the first.
    films.videos.last().description.poster = "/films/two.jpg";
    ASSERT_TRUE(store(films));
    EXPECT_FALSE(isNamed("/films/one.jpg"));
    EXPECT_TRUE(isNamed("/films/two.jpg"));
}

TEST_F(ArtworkPlanTest, NoPictureIsLookedForByReadingWholeTables)
{
    Connection &reader = database->reader();
    Statement plan = reader.prepare("EXPLAIN QUERY PLAN " + ArtworkKeys::question());
    for (int place = 0; place < ArtworkKeys::question().count('?'); ++place)
        plan.bind(QString("/films/one.jpg"));
    ASSERT_TRUE(plan.execute());
    int searches = 0;
    while (plan.next()) {
        const QString step = plan.text(3);
        EXPECT_FALSE(step.startsWith("SCAN ") && step != "SCAN CONSTANT ROW") << qPrintable(step);
        if (step.startsWith("SEARCH "))
            ++searches;
    }
    EXPECT_EQ(searches, ArtworkKeys::question().count('?'));
    const StatementCounters before = reader.counters();
    EXPECT_FALSE(isNamed("/films/none.jpg"));
    EXPECT_EQ(reader.counters().statements - before.statements, 1);
}
