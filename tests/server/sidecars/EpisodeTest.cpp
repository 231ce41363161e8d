#include "MemoryFolders.h"

#include <gtest/gtest.h>

namespace {

using Kind = ScannedVideo::Kind;

struct PlaceRow {
    const char *path;
    const char *key;
    const char *show;
    int season;
    int episode;
    int last;
};

TEST(EpisodeTest, ShowSeasonAndNumberComeFromNamesAndFolders)
{
    const PlaceRow rows[] = {
        {"/lib/Foo (2010)/Season 01/Foo S01E01-E02.mkv", "/lib/Foo (2010)", "Foo", 1, 1, 2},
        {"/lib/Foo/Season 2/03 - Title.mkv", "/lib/Foo", "Foo", 2, 3, 3},
        {"/lib/Foo/Season 2/Foo 204.mkv", "/lib/Foo", "Foo", 2, 4, 4},
        {"/lib/Foo/Staffel 2/ep05.mkv", "/lib/Foo", "Foo", 2, 5, 5},
        {"/lib/Foo/Specials/Foo 01.mkv", "/lib/Foo", "Foo", 0, 1, 1},
        {"/lib/Foo/Season 1/Foo S02E07.mkv", "/lib/Foo", "Foo", 2, 7, 7},
        {"/lib/Foo/Foo S01E02.mkv", "/lib/Foo", "Foo", 1, 2, 2},
        {"/lib/Foo/1x02.mkv", "/lib/Foo", "Foo", 1, 2, 2},
        {"/lib/Foo S01E02.mkv", "/lib/foo", "Foo", 1, 2, 2},
        {"/lib/Foo.S01E02.720p-GRP/foo.s01e02.mkv", "/lib/foo", "foo", 1, 2, 2},
        {"/lib/Foo/Foo.S01E02.720p-GRP/foo.s01e02.mkv", "/lib/Foo", "foo", 1, 2, 2},
        {"/lib/Foo.S03.1080p.BluRay/Foo.S03E04.mkv", "/lib/Foo.S03.1080p.BluRay", "Foo", 3, 4, 4},
        {"/lib/Talk/Season 2010/Talk 2010-05-12.mkv", "/lib/Talk", "Talk", 2010, 512, 512},
        {"/lib/Talk 2010.05.12.mkv", "/lib/talk", "Talk", 2010, 512, 512},
        {"/lib/Foo/[GRP] Foo - 112 [1080p].mkv", "/lib/Foo", "Foo", 1, 112, 112},
        {"/lib/24/Season 1/24 - 05.mkv", "/lib/24", "24", 1, 5, 5},
    };
    for (const PlaceRow &row : rows) {
        MemoryFolders folders;
        const QString path = QString::fromUtf8(row.path);
        folders.add(path);
        const IdentifiedFolder found = folders.identify(path.left(path.lastIndexOf('/')));
        ASSERT_EQ(found.videos.size(), 1) << row.path;
        ASSERT_EQ(found.shows.size(), 1) << row.path;
        const ScannedVideo &video = found.videos.first();
        EXPECT_EQ(video.kind, Kind::Episode) << row.path;
        EXPECT_EQ(video.showKey, row.key) << row.path;
        EXPECT_EQ(video.season, row.season) << row.path;
        EXPECT_EQ(video.episode, row.episode) << row.path;
        EXPECT_EQ(video.lastEpisode, row.last) << row.path;
        EXPECT_TRUE(video.wantsMetadata) << row.path;
        EXPECT_EQ(found.shows.first().key, row.key) << row.path;
        EXPECT_EQ(found.shows.first().description.title, row.show) << row.path;
        EXPECT_TRUE(found.shows.first().seasons.contains(row.season)) << row.path;
    }
}

TEST(EpisodeTest, ALibraryFolderThatIsAShowIsOne)
{
    MemoryFolders folders;
    folders.add("/tv/Foo (2010)/Season 1/Foo S01E01.mkv");
    const IdentifiedFolder season = folders.identify("/tv/Foo (2010)/Season 1", "/tv/Foo (2010)");
    EXPECT_EQ(season.shows.value(0).key, "/tv/Foo (2010)");
    EXPECT_EQ(season.shows.value(0).description.year, 2010);
    const IdentifiedFolder alone = folders.identify("/tv/Foo (2010)/Season 1", "/tv/Foo (2010)/Season 1");
    EXPECT_EQ(alone.shows.value(0).key, "/tv/Foo (2010)/Season 1");
    EXPECT_EQ(alone.shows.value(0).description.title, "Foo");
}

TEST(EpisodeTest, SeveralSeriesOfOneFolderAreSeveralShows)
{
    MemoryFolders folders;
    for (const char *name : {"Foo S01E01.mkv", "foo.s01e02.mkv", "Bar S01E01.mkv", "Film (2010).mkv"})
        folders.add(QStringLiteral("/lib/down/") + name);
    const IdentifiedFolder found = folders.identify("/lib/down");
    ASSERT_EQ(found.shows.size(), 2);
    EXPECT_EQ(found.shows.at(0).key, "/lib/down/bar");
    EXPECT_EQ(found.shows.at(1).key, "/lib/down/foo");
    EXPECT_EQ(found.videos.size(), 4);
    EXPECT_EQ(found.videos.last().kind, Kind::Movie);
}

TEST(EpisodeTest, NfosAndPicturesOfTheShowAreFoundAbove)
{
    MemoryFolders folders;
    folders.add("/lib/x/tvshow.nfo",
                "<tvshow><title>Told</title><year>2009</year><plot>About</plot></tvshow>");
    folders.add("/lib/x/poster.jpg");
    folders.add("/lib/x/fanart.jpg");
    folders.add("/lib/x/season01-poster.jpg");
    folders.add("/lib/x/Season 1/season.nfo", "<season><plot>First</plot></season>");
    folders.add("/lib/x/Season 1/x S01E01.mkv");
    folders.add("/lib/x/Season 1/x S01E01-thumb.jpg");
    folders.add("/lib/x/Season 1/x S01E01.nfo",
                "<episodedetails><title>One</title><season>1</season><episode>1</episode></episodedetails>\n"
                "<episodedetails><title>Two</title><season>1</season><episode>2</episode></episodedetails>");
    const IdentifiedFolder found = folders.identify("/lib/x/Season 1");
    ASSERT_EQ(found.shows.size(), 1);
    const ScannedShow &show = found.shows.first();
    EXPECT_EQ(show.key, "/lib/x");
    EXPECT_EQ(show.description.title, "Told");
    EXPECT_EQ(show.description.year, 2009);
    EXPECT_EQ(show.description.poster, "/lib/x/poster.jpg");
    EXPECT_EQ(show.description.backdrop, "/lib/x/fanart.jpg");
    EXPECT_EQ(show.seasons.value(1).overview, "First");
    EXPECT_EQ(show.seasons.value(1).poster, "/lib/x/season01-poster.jpg");
    ASSERT_EQ(found.videos.size(), 1);
    EXPECT_EQ(found.videos.first().description.title, "One");
    EXPECT_EQ(found.videos.first().lastEpisode, 2);
    EXPECT_EQ(found.videos.first().description.poster, "/lib/x/Season 1/x S01E01-thumb.jpg");
    EXPECT_FALSE(found.videos.first().wantsMetadata);
}

TEST(EpisodeTest, TheNfoBeatsTheNumberOfTheName)
{
    MemoryFolders folders;
    folders.add("/lib/Talk/tvshow.nfo", "<tvshow><title>Talk</title></tvshow>");
    folders.add("/lib/Talk/2010-05-12.mkv");
    folders.add(
        "/lib/Talk/2010-05-12.nfo",
        "<episodedetails><season>3</season><episode>44</episode><aired>2010-05-12</aired></episodedetails>");
    const ScannedVideo video = folders.identify("/lib/Talk").videos.value(0);
    EXPECT_EQ(video.season, 3);
    EXPECT_EQ(video.episode, 44);
    EXPECT_EQ(video.lastEpisode, 44);
    EXPECT_EQ(video.description.releaseDate, "2010-05-12");
}

TEST(EpisodeTest, ARunThatPassesAHundredIsCountedThrough)
{
    MemoryFolders folders;
    folders.add("/lib/Foo/tvshow.nfo", "<tvshow/>");
    for (int i = 98; i <= 103; ++i)
        folders.add(QStringLiteral("/lib/Foo/Foo %1.mkv").arg(i));
    const IdentifiedFolder found = folders.identify("/lib/Foo");
    ASSERT_EQ(found.videos.size(), 6);
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(found.videos.at(i).season, 1);
        EXPECT_EQ(found.videos.at(i).episode, 98 + i);
    }
}

TEST(EpisodeTest, TwoFilesOfOneEpisodeAreVersions)
{
    MemoryFolders folders;
    folders.add("/lib/Foo/Season 1/Foo S01E01 720p.mkv");
    folders.add("/lib/Foo/Season 1/Foo S01E01 1080p.mkv");
    const QVector<ScannedVideo> videos = folders.identify("/lib/Foo/Season 1").videos;
    ASSERT_EQ(videos.size(), 2);
    EXPECT_EQ(videos.at(0).path, "/lib/Foo/Season 1/Foo S01E01 1080p.mkv");
    EXPECT_EQ(videos.at(1).leadPath, videos.at(0).path);
}

TEST(EpisodeTest, VersionsAreFilesOfOneNameWithoutTheWordsOfTheRelease)
{
    const struct {
        const char *one;
        const char *other;
        bool versions;
    } rows[] = {
        {"Foo/Season 1/Foo S01E01 720p.mkv", "Foo S01E01 1080p.mkv", true},
        {"Foo/Season 1/Foo.S01E01.Pilot.720p.HDTV-A.mkv", "Foo - S01E01 - Pilot.mkv", true},
        {"Foo/Season 1/[A] Foo - 01 [720p].mkv", "[B] Foo - 01 [1080p].mkv", true},
        {"Foo/Season 1/Foo S01E01 Pilot part1.mkv", "Foo S01E01 Pilot part2.mkv", true},
        {"Foo/Season 1/Foo S01E01 Pilot.mkv", "Foo S01E01 Finale.mkv", false},
        {"Talk/Season 2010/Talk 2010-05-12 720p.mkv", "Talk 2010-05-12 1080p.mkv", true},
        {"Talk/Season 2010/Talk 2010-05-12 morning.mkv", "Talk 2010-05-12 evening.mkv", false},
        {"Talk/Season 2010/Talk 2010-05-12 [morning].mkv", "Talk 2010-05-12 [evening].mkv", false},
        {"Talk/Season 2010/2010-05-12 09.00.mkv", "2010-05-12 18.00.mkv", false},
    };
    for (const auto &row : rows) {
        MemoryFolders folders;
        const QString one = QStringLiteral("/lib/") + row.one;
        const QString folder = one.left(one.lastIndexOf('/'));
        folders.add(one);
        folders.add(folder + '/' + row.other);
        const QVector<ScannedVideo> videos = folders.identify(folder).videos;
        ASSERT_EQ(videos.size(), 2) << row.one;
        EXPECT_EQ(videos.at(0).kind, Kind::Episode) << row.one;
        EXPECT_EQ(videos.at(0).leadPath, "") << row.one;
        EXPECT_EQ(videos.at(1).leadPath, row.versions ? videos.at(0).path : QString()) << row.one;
    }
}

TEST(EpisodeTest, RecordingsOfOneDayAreVideosOfTheirOwn)
{
    const char *const rows[][2] = {
        {"WhatsApp Video 2020-01-01 at 12.00.00.mp4", "WhatsApp Video 2020-01-01 at 15.30.00.mp4"},
        {"Screen Recording 2020-01-01 at 10.00.00.mov", "Screen Recording 2020-01-01 at 11.00.00.mov"},
        {"Screencast from 2020-01-01 10-00-00.webm", "Screencast from 2020-01-01 11-00-00.webm"},
        {"Screencast from 01-01-2020 10:00:00.webm", "Screencast from 01-01-2020 11:00:00.webm"},
        {"Vacation 2015-07-03 beach.mp4", "Vacation 2015-07-03 hotel.mp4"},
    };
    for (const auto &row : rows) {
        for (const char *folder : {"/lib", "/lib/Mine", "/lib/2020-01-01", "/lib/Vacation 2015-07-03"}) {
            MemoryFolders folders;
            for (const char *name : row)
                folders.add(QString(folder) + '/' + name);
            const IdentifiedFolder found = folders.identify(folder);
            ASSERT_EQ(found.videos.size(), 2) << row[0];
            EXPECT_TRUE(found.shows.isEmpty()) << row[0];
            for (const ScannedVideo &video : found.videos) {
                EXPECT_EQ(video.kind, Kind::Video) << folder << row[0];
                EXPECT_EQ(video.leadPath, "") << folder << row[0];
            }
        }
    }
    // Among the files of a show the day is the episode's.
    MemoryFolders folders;
    folders.add("/lib/Family Talk/tvshow.nfo", "<tvshow/>");
    folders.add("/lib/Family Talk/Family Talk 2010-05-12.mkv");
    EXPECT_EQ(folders.identify("/lib/Family Talk").videos.value(0).kind, Kind::Episode);
}

TEST(EpisodeTest, ASidecarOfTheFirstEpisodeLeavesTheOthersOfTheFile)
{
    const struct {
        const char *name;
        const char *nfo;
        int season;
        int first;
        int last;
    } rows[] = {
        {"Foo S01E01-E02", "<season>1</season><episode>1</episode>", 1, 1, 2},
        {"Foo S01E01-E02", "<episode>1</episode>", 1, 1, 2},
        {"Foo S01E01-E02", "<season>1</season><episode>5</episode>", 1, 5, 5},
        {"Foo S01E01-E02", "<season>2</season><episode>1</episode>", 2, 1, 1},
    };
    for (const auto &row : rows) {
        MemoryFolders folders;
        const QString file = QStringLiteral("/lib/Foo/Season 1/") + row.name;
        folders.add(file + ".mkv");
        folders.add(file + ".nfo", QByteArray("<episodedetails>") + row.nfo + "</episodedetails>");
        const ScannedVideo video = folders.identify("/lib/Foo/Season 1").videos.value(0);
        EXPECT_EQ(video.season, row.season) << row.nfo;
        EXPECT_EQ(video.episode, row.first) << row.nfo;
        EXPECT_EQ(video.lastEpisode, row.last) << row.nfo;
    }
}

TEST(EpisodeTest, WhatHasNoNumberInASeasonIsAVideo)
{
    MemoryFolders folders;
    folders.add("/lib/Foo/Season 1/Making of.mkv");
    folders.add("/lib/Foo/Season 1/Foo S01E01.mkv");
    const QVector<ScannedVideo> videos = folders.identify("/lib/Foo/Season 1").videos;
    ASSERT_EQ(videos.size(), 2);
    EXPECT_EQ(videos.at(1).kind, Kind::Video);
}

TEST(EpisodeTest, AShowTakesItsBackdropFromItsFurtherPictures)
{
    MemoryFolders folders;
    folders.add("/lib/Show (2010)/Season 01/Show S01E01.mkv");
    folders.add("/lib/Show (2010)/extrafanart/b.jpg");
    folders.add("/lib/Show (2010)/extrafanart/a.jpg");
    const IdentifiedFolder found = folders.identify("/lib/Show (2010)/Season 01");
    ASSERT_EQ(found.shows.size(), 1);
    EXPECT_EQ(found.shows.first().description.backdrop, "/lib/Show (2010)/extrafanart/a.jpg");
}

} // namespace
