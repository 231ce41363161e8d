#include "StoreFixture.h"

#include "PostgresServer.h"

#include <QFileInfo>

namespace {

// A database of the server with a name that no other test has.
QString freshDatabase(ConnectionSettings settings)
{
    static int serial = 0;
    const QString name = QStringLiteral("store_%1").arg(++serial);
    settings.name = QStringLiteral("postgres");
    Connection connection(settings, Connection::Access::Write);
    EXPECT_TRUE(connection.execute(QStringLiteral("CREATE DATABASE %1").arg(name)));
    return name;
}

} // namespace

StoreFixture::StoreFixture()
    : places(data.path())
{
    const QString host = qEnvironmentVariable(kServerVariable);
    if (!host.isEmpty()) {
        configuration.databaseDriver = QStringLiteral("QPSQL");
        configuration.databaseHost = host;
        configuration.databaseUser = PostgresServer::user();
        ConnectionSettings settings;
        settings.driver = configuration.databaseDriver;
        settings.host = host;
        settings.port = configuration.databasePort;
        settings.user = configuration.databaseUser;
        configuration.databaseName = freshDatabase(settings);
    }
    open();
    videoRoot =
        roots->addFolder(roots->videoLibraryId(), QStringLiteral("/films"), QStringLiteral("movieScraper"));
    musicRoot = roots->addFolder(roots->musicLibraryId(), QStringLiteral("/music"), {});
}

StoreFixture::~StoreFixture() = default;

void StoreFixture::open()
{
    database = std::make_unique<Database>(places, configuration, [this] { return now.load(); });
    EXPECT_TRUE(database->open());
    roots = std::make_unique<LibraryRoots>(*database);
    scans = std::make_unique<ScanStore>(*database);
    videos = std::make_unique<VideoLibrary>(*database);
    music = std::make_unique<MusicLibrary>(*database);
}

void StoreFixture::reopen()
{
    database.reset();
    open();
}

ScannedFolder StoreFixture::folder(int root, const QString &path)
{
    ScannedFolder folder;
    folder.pathId = root;
    folder.path = path;
    folder.fingerprint = path.toUtf8();
    return folder;
}

ScannedVideo StoreFixture::film(const QString &path, const QString &title, int year)
{
    ScannedVideo video;
    video.path = path;
    video.realPath = path;
    video.stamp = {1000 + qint64(qHash(title)), 2000};
    video.kind = ScannedVideo::Kind::Movie;
    video.description.title = title;
    video.description.year = year;
    return video;
}

ScannedVideo StoreFixture::episode(const QString &path, const QString &show, int season, int number)
{
    ScannedVideo video = film(path, QFileInfo(path).completeBaseName());
    video.kind = ScannedVideo::Kind::Episode;
    video.showKey = show;
    video.season = season;
    video.episode = number;
    video.lastEpisode = number;
    return video;
}

ScannedSong StoreFixture::song(const QString &path, const QString &title, const QString &artist,
                               const QString &album)
{
    ScannedSong song;
    song.path = path;
    song.stamp = {1000 + qint64(qHash(title)), 3000};
    song.title = title;
    song.artist = artist;
    song.album = album;
    song.suffix = QFileInfo(path).suffix();
    return song;
}

ListRequest StoreFixture::everything(SortMethod sort, bool ascending)
{
    ListRequest request;
    request.sort = sort;
    request.ascending = ascending;
    request.end = 1000000;
    return request;
}

QStringList StoreFixture::titles(Role role, const ListRequest &request) const
{
    QStringList titles;
    const QVector<MovieRecord> rows = videos->movies(role, request).rows;
    for (const MovieRecord &row : rows)
        titles << row.title;
    return titles;
}

QStringList StoreFixture::songTitles(const ListRequest &request) const
{
    QStringList titles;
    const QVector<SongRecord> rows = music->songs(request).rows;
    for (const SongRecord &row : rows)
        titles << row.title;
    return titles;
}

int StoreFixture::idOfFilm(const QString &title, Role role) const
{
    const QVector<MovieRecord> rows = videos->movies(role, everything()).rows;
    for (const MovieRecord &row : rows) {
        if (row.title == title)
            return row.idFile;
    }
    return 0;
}

int StoreFixture::idOfSong(const QString &title) const
{
    const QVector<SongRecord> rows = music->songs(everything()).rows;
    for (const SongRecord &row : rows) {
        if (row.title == title)
            return row.idFile;
    }
    return 0;
}
