// Folders, lists, details and changes through the wire: keys and types as the player reads them.
#include "ProtocolFixture.h"

#include <QDir>

namespace {

using LibraryMethodsTest = ProtocolFixture;

const char page[] =
    R"({"idlibrary":%1,"idPlayList":3,"idAlbum":4,"artist":"Singer","genre":"Jazz","pattern":"","filter":{"and":[]},
        "limits":{"start":%2,"end":%3},"sort":{"ignorearticle":false,"method":"dateadded","order":"descending"}})";

QByteArray pageOf(int library, int start, int end)
{
    return QString::fromUtf8(page).arg(library).arg(start).arg(end).toUtf8();
}

// The names and types of an object: "title:s year:i".
std::string shapeOf(const QJsonObject &object)
{
    QStringList parts;
    for (auto it = object.begin(); it != object.end(); ++it) {
        const char *type = it->isString()   ? "s"
                           : it->isDouble() ? "i"
                           : it->isArray()  ? "a"
                           : it->isBool()   ? "b"
                                            : "?";
        parts.append(it.key() + QLatin1Char(':') + QLatin1String(type));
    }
    return parts.join(QLatin1Char(' ')).toStdString();
}

MovieRecord movie(int id)
{
    MovieRecord record;
    record.idFile = id;
    record.title = QStringLiteral("Film %1").arg(id);
    record.rating = QStringLiteral("7.5");
    record.year = 2016;
    return record;
}

} // namespace

TEST_F(LibraryMethodsTest, LibrariesAndTheirFoldersAreTold)
{
    m_roots.stored = {{5, 1, QStringLiteral("/films"), {}, true}, {6, 2, QStringLiteral("/songs"), {}, true}};
    EXPECT_EQ(
        result("Server.GetLibraries", R"({"type":"all"})").value("libraries").toArray().first().toObject(),
        (QJsonObject{{"Library", 1}}));
    EXPECT_EQ(result("VMusicLibrary.GetLibraries", R"({"type":"all"})")
                  .value("libraries")
                  .toArray()
                  .first()
                  .toObject(),
              (QJsonObject{{"Library", 2}}));
    EXPECT_EQ(
        result("Server.GetLibraryDetail", R"({"LibraryId":1})").value("paths").toArray().first().toObject(),
        (QJsonObject{{"PathId", 5}, {"path", "/films"}}));
    EXPECT_EQ(refusal("Server.GetLibraryDetail", R"({"LibraryId":2})"), "there is no such library: 2");
    EXPECT_EQ(refusal("Server.GetLibraryDetail", R"({"LibraryId":-1})"), "there is no such library: -1");
}

TEST_F(LibraryMethodsTest, AFolderJoinsALibraryOnceAndNeverInsideAnother)
{
    QDir(m_folder.path()).mkpath("a/inner");
    QFile::link(m_folder.filePath("a"), m_folder.filePath("link"));
    const auto add = [&](const QString &path) {
        return QStringLiteral(
                   R"({"LibraryId":1,"path":"%1","name":"","type":"Mix","autoscan":true,"scraperType":"avScraper"})")
            .arg(path)
            .toUtf8();
    };
    const int id = result("VLibrary.AddPath", add(m_folder.filePath("a/"))).value("PathId").toInt(-1);
    ASSERT_EQ(m_roots.stored.size(), 1);
    EXPECT_EQ(m_roots.stored.first().scraperType, QStringLiteral("avScraper"));
    EXPECT_EQ(m_roots.stored.first().path, m_folder.filePath("a"));
    EXPECT_EQ(result("VLibrary.AddPath", add(m_folder.filePath("a"))).value("PathId").toInt(), id);
    EXPECT_EQ(result("VLibrary.AddPath", add(m_folder.filePath("link"))).value("PathId").toInt(), id);
    EXPECT_EQ(m_roots.stored.size(), 1);
    EXPECT_EQ(m_tasks.calls, QStringList{QStringLiteral("folders")});

    // Another scraper type changes the folder and has it scanned; no type at all says nothing.
    const QByteArray common = QByteArray(add(m_folder.filePath("link"))).replace("avScraper", "common");
    EXPECT_EQ(result("VLibrary.AddPath", common).value("PathId").toInt(), id);
    EXPECT_EQ(m_roots.stored.first().scraperType, QStringLiteral("common"));
    EXPECT_EQ(result("VLibrary.AddPath", common).value("PathId").toInt(), id);
    EXPECT_EQ(result("VLibrary.AddPath", QByteArray(common).replace("common", "")).value("PathId").toInt(),
              id);
    EXPECT_EQ(m_roots.stored.first().scraperType, QStringLiteral("common"));
    EXPECT_EQ(m_roots.stored.size(), 1);
    EXPECT_EQ(m_tasks.calls, (QStringList{QStringLiteral("folders"), QStringLiteral("rescan %1").arg(id)}));
    m_roots.refuses = true;
    EXPECT_NE(refusal("VLibrary.AddPath", add(m_folder.filePath("a"))).find("could not be changed"),
              std::string::npos);
    m_roots.refuses = false;

    struct Row {
        QString path;
        const char *message;
    };
    const Row rows[] = {
        {m_folder.filePath("a/inner"), "lies inside the library folder"},
        {m_folder.filePath("link/inner"), "lies inside the library folder"},
        {m_folder.path(), "holds the library folder"},
        {m_folder.filePath("missing"), "there is no such folder"},
        {QStringLiteral("a"), "must be an absolute path"},
        {QString(), "must be an absolute path"},
        {QStringLiteral("/\\u0000"), "must be an absolute path"},
    };
    for (const Row &row : rows)
        EXPECT_NE(refusal("VLibrary.AddPath", add(row.path)).find(row.message), std::string::npos)
            << qPrintable(row.path);
    // The other library may hold the same folder.
    EXPECT_GT(result("VMusicLibrary.AddPath", QByteArray(add(m_folder.filePath("a"))).replace(":1,", ":2,"))
                  .value("PathId")
                  .toInt(-1),
              0);
    EXPECT_TRUE(
        result("VLibrary.DeletePath", QStringLiteral(R"({"LibraryId":1,"PathId":%1})").arg(id).toUtf8())
            .value("deletePath")
            .toBool());
    EXPECT_EQ(refusal("VLibrary.DeletePath", R"({"LibraryId":1,"PathId":99})"),
              "the library has no folder with this PathId: 99");
}

TEST_F(LibraryMethodsTest, VideoListsGoOutInThePartThatIsAskedFor)
{
    m_videos.items = {{Role::Movies, {movie(1), movie(2), movie(3)}},
                      {Role::Adult, {movie(4)}},
                      {Role::Videos, {movie(5)}}};
    m_videos.allGroups = {{8, QStringLiteral("Trilogy"), {}, {}, {}, 3}};
    m_videos.allShows.resize(2);
    struct Row {
        const char *method;
        const char *list;
        int total;
        const char *shape;
    };
    const char movieShape[] =
        "backdrop:s cast:s director:s genre:s idFile:i overview:s path:s poster:s rating:s "
        "runtime:s title:s year:i";
    const Row rows[] = {
        {"VLibrary.GetMovies", "movieList", 3, movieShape},
        {"VLibrary.GetAvs", "avList", 1, movieShape},
        {"VLibrary.GetVideos", "videoList", 1, movieShape},
        {"VLibrary.GetMovieGroups", "groups", 1,
         "backdrop:s fileCount:i idGroup:i overview:s poster:s title:s"},
        {"VLibrary.GetTVShows", "tvshowList", 2,
         "backdrop:s cast:s director:s genre:s idTvshow:i overview:s path:s poster:s rating:s title:s "
         "year:i"},
    };
    for (const Row &row : rows) {
        const QJsonObject first = result(row.method, pageOf(1, 0, 1));
        const QJsonValue total = first.contains("movieTotal")
                                     ? first.value("movieTotal")
                                     : first.value("limits").toObject().value("total");
        EXPECT_EQ(total, QJsonValue(row.total)) << row.method;
        ASSERT_EQ(first.value(row.list).toArray().size(), 1) << row.method;
        EXPECT_EQ(shapeOf(first.value(row.list).toArray().first().toObject()), row.shape) << row.method;
        EXPECT_TRUE(result(row.method, pageOf(1, 7, 9)).value(row.list).toArray().isEmpty()) << row.method;
        EXPECT_EQ(refusal(row.method, pageOf(2, 0, 1)), "there is no such library: 2") << row.method;
    }
    EXPECT_EQ(result("VLibrary.GetMovies", pageOf(1, 2, 3))
                  .value("movieList")
                  .toArray()
                  .first()
                  .toObject()
                  .value("idFile"),
              QJsonValue(3));
    EXPECT_EQ(result("VLibrary.GetVideos", pageOf(1, 0, 50)).value("limits").toObject(),
              (QJsonObject{{"start", 0}, {"end", 1}, {"total", 1}}));
}

TEST_F(LibraryMethodsTest, DetailsOfVideosAreSpeltAsTheProtocolSpellsThem)
{
    m_videos.items = {{Role::Movies, {movie(1)}}};
    m_videos.allSeasons = {{21, 2, QStringLiteral("Season 2"), {}, {}, {}, {}, 2001}};
    m_videos.allEpisodes = {{31, 5, QStringLiteral("Pilot"), {}, {}, {}, {}, QStringLiteral("/x.mkv"), 2001}};
    EXPECT_EQ(
        result("VLibrary.GetMovieDetails", R"({"idFile":1})").value("movieDetils").toObject().value("rating"),
        QJsonValue("7.5"));
    EXPECT_EQ(
        result("VLibrary.GetMovieGroupDetails",
               R"({"idMediaGroup":8,"sort":{"ignorearticle":false,"method":"year","order":"descending"}})")
            .value("groupDetails")
            .toArray()
            .size(),
        1);
    EXPECT_EQ(m_videos.lastRequest.sort, SortMethod::Year);
    EXPECT_EQ(
        result("VLibrary.GetTvSeasons", R"({"idtvshow":1})").value("seasonList").toArray().first().toObject(),
        (QJsonObject{{"iSeason", 2}}));
    EXPECT_EQ(shapeOf(result("VLibrary.GetSeasonDetails", R"({"idtvshow":1,"iseason":2})")
                          .value("seasonDetils")
                          .toObject()),
              "cast:s director:s iSeason:i idSeason:i overview:s poster:s title:s year:i");
    EXPECT_EQ(result("VLibrary.GetTvEpisodes", R"({"idtvshow":1,"iseason":2})")
                  .value("episodeList")
                  .toArray()
                  .first()
                  .toObject(),
              (QJsonObject{{"iEpisode", 5}}));
    EXPECT_EQ(shapeOf(result("VLibrary.GetEpisodeDetails", R"({"idtvshow":1,"iseason":2,"iepisode":5})")
                          .value("episodeDetils")
                          .toObject()),
              "cast:s director:s iEpisode:i idFile:i overview:s path:s poster:s title:s year:i");
    EXPECT_EQ(refusal("VLibrary.GetMovieDetails", R"({"idFile":9})"), "there is no film with this idFile: 9");
    EXPECT_EQ(refusal("VLibrary.GetSeasonDetails", R"({"idtvshow":1,"iseason":7})"),
              "the show has no such season");
    EXPECT_EQ(refusal("VLibrary.GetEpisodeDetails", R"({"idtvshow":1,"iseason":2,"iepisode":7})"),
              "the season has no such episode");
}

TEST_F(LibraryMethodsTest, FilterValuesGoByTheirType)
{
    EXPECT_EQ(result("VLibrary.GetGenres", R"({"type":"movie"})").value("genres").toArray(),
              QJsonArray{"Drama"});
    EXPECT_EQ(result("VLibrary.GetGenres", R"({"type":"tvshow"})").value("genres").toArray(),
              QJsonArray{"Crime"});
    EXPECT_EQ(result("VLibrary.GetCountries", R"({"type":"movie"})").value("countries").toArray(),
              QJsonArray{"France"});
    EXPECT_EQ(result("VLibrary.GetYears", R"({"type":"tvshow"})").value("years").toArray(),
              (QJsonArray{2015, 2016}));
    EXPECT_EQ(refusal("VLibrary.GetYears", R"({"type":"music"})"),
              "key \"type\" must be \"movie\" or \"tvshow\"");
}

TEST_F(LibraryMethodsTest, MusicListsGoOutWithTheirTotal)
{
    SongRecord song;
    song.idFile = 1;
    song.liked = true;
    m_music.all = {song, SongRecord()};
    m_music.allAlbums.resize(3);
    const char shape[] =
        "album:s artist:s genre:s iLikeFlag:i idFile:i path:s poster:s runtime:i title:s year:i";
    for (const char *method :
         {"VMusicLibrary.GetRencentSongs", "VMusicLibrary.GetPlayListMusics", "VMusicLibrary.GetAlbumMusics",
          "VMusicLibrary.GetArtistMusics", "VMusicLibrary.GetGenreMusics"}) {
        const QJsonObject totals = result(method, pageOf(2, 0, 0));
        EXPECT_EQ(totals.value("musicTotal"), QJsonValue(2)) << method;
        EXPECT_TRUE(totals.value("musicList").toArray().isEmpty()) << method;
        const QJsonObject first =
            result(method, pageOf(2, 0, 2)).value("musicList").toArray().first().toObject();
        EXPECT_EQ(shapeOf(first), shape) << method;
        EXPECT_EQ(first.value("iLikeFlag"), QJsonValue(1)) << method;
    }
    EXPECT_EQ(
        shapeOf(result("VMusicLibrary.GetMusics", pageOf(2, 0, 1))
                    .value("musicList")
                    .toArray()
                    .first()
                    .toObject()),
        "album:s artist:s cuePath:s genre:s iLikeFlag:i iTrack:i idFile:i path:s poster:s runtime:i suffix:s "
        "title:s year:i");
    const QJsonObject albums = result("VMusicLibrary.GetAlbums", pageOf(2, 0, 2));
    EXPECT_EQ(albums.value("limits").toObject().value("total"), QJsonValue(3));
    EXPECT_EQ(shapeOf(albums.value("albums").toArray().first().toObject()),
              "artist:s genre:s idAlbum:i poster:s title:s year:s");
    EXPECT_EQ(shapeOf(result("VMusicLibrary.GetArtists", R"({"idlibrary":2})")
                          .value("artistList")
                          .toArray()
                          .first()
                          .toObject()),
              "localPath:s name:s");
    EXPECT_EQ(result("VMusicLibrary.GetGenres", R"({"idlibrary":2})").value("genres").toArray(),
              QJsonArray{"Jazz"});
}

TEST_F(LibraryMethodsTest, WhatTheUserMakesOfMusicReachesTheLibrary)
{
    struct Row {
        const char *method;
        const char *params;
        const char *key;
        const char *call;
    };
    const Row rows[] = {
        {"VMusicLibrary.FixPlaylist", R"({"idPlaylist":3,"poster":"","title":"t","overview":""})", "fix",
         "changePlaylist 3"},
        {"VMusicLibrary.DelPlist", R"({"delete":true,"idPlayList":3})", "delete", "removePlaylist 3"},
        {"VMusicLibrary.AddMusicToPlayList", R"({"idPlayList":3,"idFile":7})", "add", "add 3 7"},
        {"VMusicLibrary.DelMusicToPlayList", R"({"idPlayList":3,"idFile":7,"delete":false})", "delete",
         "remove 3 7"},
        {"VMusicLibrary.AddMusicToLike", R"({"idFile":7})", "add", "like 7 1"},
        {"VMusicLibrary.DelMusicToLike", R"({"idFile":7})", "delete", "like 7 0"},
        {"VMusicLibrary.AddRecentPlaySong", R"({"idFile":7})", "add", "played 7"},
        {"VMusicLibrary.FixAlbum", R"({"idAlbum":4,"poster":"p.jpg"})", "fix", "album 4 p.jpg"},
        {"VMusicLibrary.FixArtist", R"({"artist":"A","poster":"p.jpg"})", "fix", "artist A p.jpg"},
    };
    for (const Row &row : rows) {
        EXPECT_EQ(result(row.method, row.params).value(row.key), QJsonValue(true)) << row.method;
        ASSERT_FALSE(m_music.calls.isEmpty()) << row.method;
        EXPECT_EQ(m_music.calls.takeLast(), QString::fromUtf8(row.call)) << row.method;
    }
    EXPECT_EQ(result("VMusicLibrary.CreatePlayList", R"({"poster":"","title":"New","overview":""})")
                  .value("idPlayList"),
              QJsonValue(1));
    EXPECT_EQ(refusal("VMusicLibrary.CreatePlayList", R"({"poster":"","title":" ","overview":""})"),
              "key \"title\" must not be empty");
    const char edit[] =
        R"({"idFile":7,"title":"T","poster":"","artist":"A","genre":"G","runtime":1000,"year":1999})";
    EXPECT_EQ(refusal("VMusicLibrary.EditeMusic", edit), "there is no song with this idFile: 7");
    SongRecord song;
    song.idFile = 7;
    song.album = QStringLiteral("Kept");
    m_music.all = {song};
    EXPECT_TRUE(result("VMusicLibrary.EditeMusic", edit).value("edite").toBool());
    EXPECT_EQ(m_music.edited.title, QStringLiteral("T"));
    EXPECT_EQ(m_music.edited.album, QStringLiteral("Kept"));
    EXPECT_EQ(m_music.edited.year, 1999);
}

TEST_F(LibraryMethodsTest, SearchesAndChosenAnswersGoThroughTheProvider)
{
    const QJsonObject match =
        result("VLibrary.ScraperSearchMovie",
               R"({"language":"","strScraperName":"N","strScraperYear":1999,"strSearchFrom":"tmdb"})")
            .value("SearchMovieList")
            .toArray()
            .first()
            .toObject();
    EXPECT_EQ(shapeOf(match), "backdrop:s poster:s releaseDate:s runtime:s strMediaId:s title:s");
    EXPECT_EQ(m_metadata.calls.last(), QStringLiteral("N/1999"));
    EXPECT_EQ(result("VLibrary.ScraperSearchTvshow", R"({"strScraperName":"N","strScraperYear":""})")
                  .value("SearchTvsList")
                  .toArray()
                  .size(),
              1);
    EXPECT_EQ(shapeOf(result("VMusicLibrary.SearchScraperMusics", R"({"title":"T","artist":"A"})")
                          .value("musicList")
                          .toArray()
                          .first()
                          .toObject()),
              "ablum_name:s artists:a duration:i genres:a title:s year:i");
    const char film[] =
        R"({"idFile":7,"language":"","strScraperFrom":"tmdb","strScraperId":603,"strSourceMediaType":"movie"})";
    EXPECT_TRUE(result("VLibrary.ModifiedToMovie", film).value("modified").toBool());
    EXPECT_EQ(m_metadata.calls.last(), QStringLiteral("603"));
    EXPECT_TRUE(
        result("VLibrary.ModifiedToEpisode", R"({"idFile":7,"iSeason":2,"iEpisode":5,"strScraperId":"9"})")
            .value("modified")
            .toBool());
    EXPECT_EQ(m_metadata.calls.last(), QStringLiteral("S2E5"));
    m_metadata.takes = false;
    EXPECT_EQ(refusal("VLibrary.ModifiedToMovie", film), "the answer could not be taken over for idFile 7");
    EXPECT_EQ(refusal("VMusicLibrary.FixMusic", R"({"idFile":7})"), "the song could not be changed: 7");
}
