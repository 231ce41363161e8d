#include "MemoryFolders.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

namespace {

using Kind = ScannedVideo::Kind;

struct KindRow {
    const char *path;
    Kind kind;
    const char *title;
    int year;
};

TEST(FilmTest, NamesAndFoldersTellFilmsFromVideos)
{
    const KindRow rows[] = {
        {"/lib/Film (2010)/Film.mkv", Kind::Movie, "Film", 2010},
        {"/lib/Film (2010)/abc.mkv", Kind::Movie, "Film", 2010},
        {"/lib/Film.2010.1080p.BluRay.x264-GRP/grp-film.mkv", Kind::Movie, "Film", 2010},
        {"/lib/Film.2010.mkv", Kind::Movie, "Film", 2010},
        {"/lib/Film (2010).iso", Kind::Movie, "Film", 2010},
        {"/lib/Drama/Film (2010).mkv", Kind::Movie, "Film", 2010},
        {"/lib/Film.mkv", Kind::Video, "Film", 0},
        {"/lib/Cats/Playing cats.mp4", Kind::Video, "Playing cats", 0},
        {"/lib/IMG_1234.mov", Kind::Video, "IMG 1234", 0},
        {"/lib/VID_20200101_120000.mp4", Kind::Video, "VID 20200101 120000", 0},
        {"/lib/2020/20200101_120000.mp4", Kind::Video, "20200101 120000", 0},
        {"/lib/Anna's Birthday 2015.mp4", Kind::Video, "Anna's Birthday 2015", 0},
        {"/lib/Their Wedding (1997).mkv", Kind::Movie, "Their Wedding", 1997},
        {"/lib/2020-05-12 Garden.mp4", Kind::Video, "2020-05-12 Garden", 0},
        {"/lib/Film {tmdb-12}.mkv", Kind::Movie, "Film", 0},
        {"/lib/Star Wars Episode 4 (1977).mkv", Kind::Movie, "Star Wars Episode 4", 1977},
        {"/lib/Saga Episode 4 - A Title (1977).mkv", Kind::Movie, "Saga Episode 4 - A Title", 1977},
        {"/lib/10x10 (2018).mkv", Kind::Movie, "10x10", 2018},
        {"/lib/10x10 (2018)/10x10.mkv", Kind::Movie, "10x10", 2018},
        {"/lib/Series 7 - The Contenders (2001)/film.mkv", Kind::Movie, "Series 7 - The Contenders", 2001},
        {"/lib/....mkv", Kind::Video, "...", 0},
        {"/lib/a\nb.mkv", Kind::Video, "a b", 0},
    };
    for (const KindRow &row : rows) {
        MemoryFolders folders;
        const QString path = QString::fromUtf8(row.path);
        folders.add(path);
        const IdentifiedFolder found = folders.identify(path.left(path.lastIndexOf('/')));
        if (path == "/lib/....mkv") {
            EXPECT_TRUE(found.videos.isEmpty()); // hidden
            continue;
        }
        ASSERT_EQ(found.videos.size(), 1) << row.path;
        const ScannedVideo &video = found.videos.first();
        EXPECT_EQ(int(video.kind), int(row.kind)) << row.path;
        EXPECT_EQ(video.description.title, row.title) << row.path;
        EXPECT_EQ(video.description.year, row.year) << row.path;
        EXPECT_EQ(video.path, path);
        EXPECT_EQ(video.realPath, path);
        EXPECT_EQ(video.stamp.modifiedMs, 1000);
        EXPECT_EQ(video.wantsMetadata, row.kind == Kind::Movie) << row.path;
    }
}

TEST(FilmTest, VersionsHangOnTheSharpest)
{
    MemoryFolders folders;
    for (const char *name :
         {"Film (2010) - 720p.mkv", "Film (2010) - 1080p.mkv", "Film (2010) - Directors Cut.mkv"})
        folders.add(QStringLiteral("/lib/Film (2010)/") + name);
    const QVector<ScannedVideo> videos = folders.identify("/lib/Film (2010)").videos;
    ASSERT_EQ(videos.size(), 3);
    EXPECT_EQ(videos.at(0).path, "/lib/Film (2010)/Film (2010) - 1080p.mkv");
    EXPECT_EQ(videos.at(0).leadPath, "");
    for (int i = 1; i < 3; ++i) {
        EXPECT_EQ(videos.at(i).leadPath, videos.at(0).path);
        EXPECT_EQ(videos.at(i).kind, Kind::Movie);
    }
}

TEST(FilmTest, RecordingsThatAreNamedAfterTheirFolderAreNoVersions)
{
    for (const char *folder : {"/lib/Vacation 2015", "/lib/2015-07-03", "/lib/Wedding"}) {
        MemoryFolders folders;
        for (const char *label : {" - beach.mp4", " - hotel.mp4"})
            folders.add(QString(folder) + '/' + QString(folder).mid(5) + label);
        const QVector<ScannedVideo> videos = folders.identify(folder).videos;
        ASSERT_EQ(videos.size(), 2) << folder;
        for (const ScannedVideo &video : videos)
            EXPECT_EQ(video.leadPath, "") << folder;
    }
}

TEST(FilmTest, PartsHangOnTheFirst)
{
    MemoryFolders folders;
    folders.add("/lib/Film (2010)/film cd2.avi");
    folders.add("/lib/Film (2010)/film cd1.avi");
    const QVector<ScannedVideo> videos = folders.identify("/lib/Film (2010)").videos;
    ASSERT_EQ(videos.size(), 2);
    EXPECT_EQ(videos.at(0).path, "/lib/Film (2010)/film cd1.avi");
    EXPECT_EQ(videos.at(0).description.title, "Film");
    EXPECT_EQ(videos.at(1).leadPath, videos.at(0).path);
}

TEST(FilmTest, APartAloneAndPartsWithGapsAreFilmsOfTheirOwn)
{
    MemoryFolders folders;
    folders.add("/lib/Saga Part 2 (2010).mkv");
    folders.add("/lib/Other part 1.mkv");
    folders.add("/lib/Other part 3.mkv");
    const QVector<ScannedVideo> videos = folders.identify("/lib").videos;
    ASSERT_EQ(videos.size(), 3);
    for (const ScannedVideo &video : videos)
        EXPECT_EQ(video.leadPath, "");
    EXPECT_EQ(videos.at(2).description.title, "Saga Part 2");
}

TEST(FilmTest, AMixedFolderKeepsItsFilmsApart)
{
    MemoryFolders folders;
    for (const char *name : {"One (2010).mkv", "Two (2011).mkv", "poster.jpg", "One (2010)-poster.jpg",
                             "Two (2011).jpg", "Two (2011)-fanart.png"})
        folders.add(QStringLiteral("/lib/Drama/") + name);
    const QVector<ScannedVideo> videos = folders.identify("/lib/Drama").videos;
    ASSERT_EQ(videos.size(), 2);
    EXPECT_EQ(videos.at(0).description.poster, "/lib/Drama/One (2010)-poster.jpg");
    EXPECT_EQ(videos.at(1).description.poster, "/lib/Drama/Two (2011).jpg");
    EXPECT_EQ(videos.at(1).description.backdrop, "/lib/Drama/Two (2011)-fanart.png");
}

TEST(FilmTest, ExtrasAndSamplesAreLeftOut)
{
    MemoryFolders folders;
    for (const char *name :
         {"Film.mkv", "Film-trailer.mkv", "Film-sample.mkv", "sample.mkv", "Film-deleted.mkv", "Film.srt",
          "Film.nfo.txt", "extras/making.mkv", "trailers/one.mp4", "other/deep/x.mkv"})
        folders.add(QStringLiteral("/lib/Film (2010)/") + name);
    EXPECT_EQ(folders.identify("/lib/Film (2010)").videos.size(), 1);
    for (const char *name : {"extras", "trailers", "other", "other/deep"})
        EXPECT_TRUE(folders.identify(QStringLiteral("/lib/Film (2010)/") + name).videos.isEmpty()) << name;
}

TEST(FilmTest, FoldersOfFurtherPicturesHoldNoVideosWhereverTheyLie)
{
    MemoryFolders folders;
    folders.add("/lib/Film (2010)/Film.mkv");
    const QStringList pictures{"/lib/Film (2010)/extrafanart", "/lib/Film (2010)/extrathumbs",
                               "/lib/ExtraFanart", "/lib/Drama/extrathumbs", "/lib/extrafanart/deep"};
    for (const QString &folder : pictures) {
        folders.add(folder + "/fanart1.jpg");
        folders.add(folder + "/Other (2011).mkv");
        folders.add(folder + "/Show S01E02.mkv");
    }
    for (const QString &folder : pictures) {
        EXPECT_TRUE(folders.identify(folder).videos.isEmpty()) << qPrintable(folder);
        EXPECT_TRUE(folders.identify(folder, "/lib", true).videos.isEmpty()) << qPrintable(folder);
    }
    const QVector<ScannedVideo> videos = folders.identify("/lib/Film (2010)").videos;
    ASSERT_EQ(videos.size(), 1);
    EXPECT_EQ(videos.first().description.backdrop, "/lib/Film (2010)/extrafanart/fanart1.jpg");
}

TEST(FilmTest, FoldersOfOnesOwnNamedLikeExtrasAreKept)
{
    MemoryFolders folders;
    folders.add("/lib/Clips/one.mp4");
    folders.add("/lib/Family/Clips/one.mp4");
    folders.add("/lib/party-clip.mp4");
    EXPECT_EQ(folders.identify("/lib/Clips").videos.size(), 1);
    EXPECT_EQ(folders.identify("/lib/Family/Clips").videos.size(), 1);
    EXPECT_EQ(folders.identify("/lib").videos.size(), 1);
    EXPECT_EQ(folders.identify("/lib/Clips", "/lib/Clips").videos.size(), 1);
}

TEST(FilmTest, EachDiscIsOneItemWithItsPseudoFile)
{
    struct Row {
        const char *proof;
        const char *pseudo;
    };
    const Row rows[] = {
        {"VIDEO_TS/VIDEO_TS.IFO", "folder.ifo"},   {"BDMV/index.bdmv", "folder.bdmv"},
        {"BDMV/INDEX.BDM", "folder.bdm"},          {"BDAV/info.bdav", "folder.bdav"},
        {"DVD_RTAV/VR_MANGR.IFO", "folder.dvdvr"},
    };
    for (const Row &row : rows) {
        MemoryFolders folders;
        folders.add(QStringLiteral("/lib/Film (2010)/") + row.proof);
        const QVector<ScannedVideo> videos = folders.identify("/lib/Film (2010)").videos;
        ASSERT_EQ(videos.size(), 1) << row.proof;
        EXPECT_EQ(videos.first().path, QStringLiteral("/lib/Film (2010)/") + row.pseudo);
        EXPECT_EQ(videos.first().kind, Kind::Movie);
        EXPECT_EQ(videos.first().description.title, "Film");
        const QString structure = QString(row.proof).section('/', 0, 0);
        EXPECT_EQ(videos.first().realPath, "/lib/Film (2010)/" + structure);
        EXPECT_FALSE(Identifier::entersFolder(structure));
        EXPECT_TRUE(folders.identify("/lib/Film (2010)/" + structure).videos.isEmpty());
    }
    MemoryFolders empty;
    empty.add("/lib/Film (2010)/VIDEO_TS/");
    EXPECT_TRUE(empty.identify("/lib/Film (2010)").videos.isEmpty());
}

TEST(FilmTest, LaterDiscsOfAFilmHangOnTheFirst)
{
    MemoryFolders folders;
    folders.add("/lib/Film (2010)/Disc 1/VIDEO_TS/VIDEO_TS.IFO");
    folders.add("/lib/Film (2010)/Disc 2/VIDEO_TS/VIDEO_TS.IFO");
    const ScannedVideo first = folders.identify("/lib/Film (2010)/Disc 1").videos.value(0);
    const ScannedVideo second = folders.identify("/lib/Film (2010)/Disc 2").videos.value(0);
    EXPECT_EQ(first.description.title, "Film");
    EXPECT_EQ(first.leadPath, "");
    EXPECT_EQ(second.leadPath, first.path);
}

TEST(FilmTest, PartsInFoldersOfTheirOwnHangOnTheFirst)
{
    MemoryFolders folders;
    for (const char *path :
         {"Film (2010)/CD1/film.avi", "Film (2010)/CD2/film.avi", "Film (2010)/CD3/one.avi",
          "Film (2010)/CD3/two.avi", "Holiday/CD1/a.avi", "Holiday/CD2/b.avi", "Other (2011) part 1/a.avi",
          "Other (2011) part 2/b.avi", "CD1/Third (2012).avi", "CD2/Fourth (2013).avi",
          "Show (2014)/CD1/Show S01E01.avi", "Show (2014)/CD2/making of.avi"})
        folders.add(QStringLiteral("/lib/") + path);
    const struct {
        const char *folder;
        const char *lead;
    } rows[] = {
        {"Film (2010)/CD1", ""},     {"Film (2010)/CD2", "/lib/Film (2010)/CD1/film.avi"},
        {"Film (2010)/CD3", ""},     {"Holiday/CD2", ""},
        {"Other (2011) part 2", ""}, {"CD2", ""},
        {"Show (2014)/CD2", ""},
    };
    for (const auto &row : rows) {
        const QVector<ScannedVideo> videos = folders.identify(QStringLiteral("/lib/") + row.folder).videos;
        EXPECT_FALSE(videos.isEmpty()) << row.folder;
        for (const ScannedVideo &video : videos)
            EXPECT_EQ(video.leadPath, row.lead) << row.folder;
    }
}

TEST(FilmTest, ADiscHasTheSizeOfItsFiles)
{
    MemoryFolders folders;
    folders.add("/lib/A/VIDEO_TS/VIDEO_TS.IFO", QByteArray(9, 'x'));
    folders.add("/lib/A/VIDEO_TS/VTS_01_1.VOB", QByteArray(99, 'x'));
    folders.add("/lib/B/BDMV/STREAM/00001.m2ts", QByteArray(49, 'x'));
    EXPECT_EQ(folders.identify("/lib/A").videos.value(0).stamp.size, 110);
    EXPECT_EQ(folders.identify("/lib/B").videos.value(0).stamp.size, 50);
}

TEST(FilmTest, ALooseDvdIsOneItem)
{
    MemoryFolders folders;
    for (const char *name : {"VIDEO_TS.IFO", "VIDEO_TS.VOB", "VTS_01_0.IFO", "VTS_01_1.VOB", "VTS_01_2.VOB"})
        folders.add(QStringLiteral("/lib/Film (2010)/") + name);
    const QVector<ScannedVideo> videos = folders.identify("/lib/Film (2010)").videos;
    ASSERT_EQ(videos.size(), 1);
    EXPECT_EQ(videos.first().path, "/lib/Film (2010)/VIDEO_TS.IFO");
    EXPECT_EQ(videos.first().description.title, "Film");
}

TEST(FilmTest, TheNfoBeatsTheName)
{
    const QByteArray nfo = "<movie><title>Told</title><year>1999</year><set><name>Saga</name></set></movie>";
    for (const char *name : {"movie.nfo", "IMG_0001.nfo", "Movie.NFO", "anything.nfo"}) {
        MemoryFolders folders;
        folders.add("/lib/Folder/IMG_0001.mkv");
        folders.add(QStringLiteral("/lib/Folder/") + name, nfo);
        const ScannedVideo video = folders.identify("/lib/Folder").videos.value(0);
        EXPECT_EQ(video.kind, Kind::Movie) << name;
        EXPECT_EQ(video.description.title, "Told") << name;
        EXPECT_EQ(video.description.year, 1999) << name;
        EXPECT_EQ(video.collection, "Saga") << name;
        EXPECT_FALSE(video.wantsMetadata) << name;
    }
}

TEST(FilmTest, ALinkInAnNfoGivesTheIdAndStillWantsMore)
{
    MemoryFolders folders;
    folders.add("/lib/Film.mkv");
    folders.add("/lib/Film.nfo", "https://www.imdb.com/title/tt0123456/");
    const ScannedVideo video = folders.identify("/lib").videos.value(0);
    EXPECT_EQ(video.kind, Kind::Movie);
    EXPECT_EQ(video.description.identities.value("imdb"), "tt0123456");
    EXPECT_TRUE(video.wantsMetadata);
}

TEST(FilmTest, FilmArtworkMakesAFilm)
{
    MemoryFolders folders;
    folders.add("/lib/Quiet/Quiet.mkv");
    folders.add("/lib/Quiet/poster.jpg");
    const ScannedVideo film = folders.identify("/lib/Quiet").videos.value(0);
    EXPECT_EQ(film.kind, Kind::Movie);
    EXPECT_EQ(film.description.poster, "/lib/Quiet/poster.jpg");
    folders.add("/lib/Cats/cats.mkv");
    folders.add("/lib/Cats/folder.jpg");
    EXPECT_EQ(folders.identify("/lib/Cats").videos.value(0).kind, Kind::Video);
}

TEST(FilmTest, AdultFoldersHoldNothingElse)
{
    MemoryFolders folders;
    for (const char *name : {"Film (2010).mkv", "IMG_1234.mp4", "Foo S01E02.mkv"})
        folders.add(QStringLiteral("/lib/") + name);
    const IdentifiedFolder found = folders.identify("/lib", "/lib", true);
    EXPECT_EQ(found.videos.size(), 3);
    EXPECT_TRUE(found.shows.isEmpty());
    for (const ScannedVideo &video : found.videos) {
        EXPECT_EQ(video.kind, Kind::Adult);
        EXPECT_FALSE(video.wantsMetadata);
    }
}

TEST(FilmTest, ALargeFolderTakesTimeInProportion)
{
    const auto nsPerFile = [](int count) {
        FolderListing listing{"/lib/many", "/lib", false, {}};
        for (int i = 0; i < count; ++i) {
            const QString name = i % 2 == 0 ? QStringLiteral("Show %1 S01E02 title.mkv").arg(i)
                                            : QStringLiteral("Film %1 part 1 (2010).mkv").arg(i);
            listing.entries.append({name, {1, 1}, false});
            listing.entries.append(
                {QStringLiteral("Film %1 part 1 (2010)-poster.jpg").arg(i), {1, 1}, false});
        }
        const MemoryFolders none;
        QElapsedTimer timer;
        timer.start();
        const IdentifiedFolder found = Identifier(none).identify(listing);
        EXPECT_EQ(found.videos.size(), count);
        return timer.nsecsElapsed() / count;
    };
    nsPerFile(100); // tables are made once
    const qint64 small = nsPerFile(1000);
    const qint64 large = nsPerFile(20000);
    RecordProperty("usPerFile", int(large / 1000));
    // A square would be twenty times as much.
    EXPECT_LT(large, small * 6);
}

} // namespace
