#include "StoredLibrary.h"

#include "base/DataFolder.h"
#include "base/ServerConfiguration.h"
#include "store/Database.h"
#include "store/LibraryRoots.h"
#include "store/ScanStore.h"

#include <functional>

namespace StoredLibrary {

namespace {

constexpr int FoldersABatch = 500;
constexpr int SongsAnAlbum = 10;
constexpr int AlbumsAnArtist = 10;
constexpr int Genres = 20;
constexpr int FirstYear = 1950;
constexpr int Years = 70;
constexpr qint64 FileSize = 700000000;
constexpr int SongMs = 200000;

using MakeFolder = std::function<ScannedFolder(int number)>;

bool fill(const QString &dataFolder, const QString &folder, bool isMusic, int folders, const MakeFolder &make)
{
    const DataFolder places(dataFolder);
    const ServerConfiguration configuration;
    Database database(places, configuration);
    if (!database.open())
        return false;
    LibraryRoots roots(database);
    ScanStore scans(database);
    const int root = roots.addFolder(isMusic ? roots.musicLibraryId() : roots.videoLibraryId(), folder, {});
    QVector<ScannedFolder> batch;
    for (int number = 0; number < folders; ++number) {
        batch << make(number);
        batch.last().pathId = root;
        batch.last().fingerprint = QByteArray::number(number);
        if (batch.size() < FoldersABatch && number + 1 < folders)
            continue;
        if (!scans.store(batch))
            return false;
        batch.clear();
    }
    scans.finishScan(root);
    return root > 0;
}

ScannedFolder filmFolder(const QString &folder, int number)
{
    ScannedVideo film;
    const QString name = QStringLiteral("Film number %1").arg(number, 6, 10, QLatin1Char('0'));
    ScannedFolder result;
    result.path = folder + QLatin1Char('/') + name;
    film.path = film.realPath = result.path + QLatin1Char('/') + name + QStringLiteral(".mkv");
    film.stamp = {FileSize + number, number + 1};
    film.kind = ScannedVideo::Kind::Movie;
    Description &told = film.description;
    told.title = name;
    told.year = FirstYear + number % Years;
    told.rating = QStringLiteral("%1.%2").arg(1 + number % 9).arg(number % 10);
    told.runtimeMinutes = 80 + number % 60;
    told.director = QStringLiteral("Director %1").arg(number % 997);
    told.cast = QStringLiteral("First Actor %1, Second Actor %2, Third Actor %3")
                    .arg(number % 1009)
                    .arg(number % 2003)
                    .arg(number % 3001);
    told.genre = QStringLiteral("Genre %1, Genre %2").arg(number % Genres).arg((number + 7) % Genres);
    told.overview = QStringLiteral("What happens in film %1 takes a while to tell. ").arg(number).repeated(6);
    told.poster = result.path + QStringLiteral("/poster.jpg");
    told.backdrop = result.path + QStringLiteral("/fanart.jpg");
    result.videos << film;
    return result;
}

ScannedFolder albumFolder(const QString &folder, int number, int songs)
{
    ScannedFolder result;
    const QString artist = QStringLiteral("Artist %1").arg(number / AlbumsAnArtist);
    const QString album = QStringLiteral("Album %1").arg(number);
    result.path = folder + QLatin1Char('/') + artist + QLatin1Char('/') + album;
    for (int i = 0; i < songs; ++i) {
        ScannedSong song;
        song.path = result.path + QStringLiteral("/%1 Song.mp3").arg(i + 1, 2, 10, QLatin1Char('0'));
        song.stamp = {FileSize / 100 + number, number * SongsAnAlbum + i + 1};
        song.title = QStringLiteral("Song %1 of album %2").arg(i).arg(number);
        song.artist = artist;
        song.album = album;
        song.genre = QStringLiteral("Genre %1").arg(number % Genres);
        song.poster = result.path + QStringLiteral("/folder.jpg");
        song.suffix = QStringLiteral("mp3");
        song.trackNumber = i + 1;
        song.year = FirstYear + number % Years;
        song.runtimeMs = SongMs + i;
        result.songs << song;
    }
    return result;
}

} // namespace

bool addFilms(const QString &dataFolder, const QString &folder, int count)
{
    return fill(dataFolder, folder, false, count, [&](int number) { return filmFolder(folder, number); });
}

bool addSongs(const QString &dataFolder, const QString &folder, int count)
{
    const int albums = (count + SongsAnAlbum - 1) / SongsAnAlbum;
    return fill(dataFolder, folder, true, albums, [&](int number) {
        return albumFolder(folder, number, qMin(SongsAnAlbum, count - number * SongsAnAlbum));
    });
}

} // namespace StoredLibrary
