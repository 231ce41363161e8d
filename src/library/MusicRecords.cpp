#include "MusicRecords.h"

#include "JsonFields.h"
#include "ProtocolNames.h"

namespace Key = Rpc::Key;

namespace MusicRecords {

namespace {

constexpr int kNoTrack = -1;
constexpr char kCueEnding[] = ".cue";

// One sheet stands for many songs: the track in front tells them apart, and play control takes it off again.
QString playablePath(const QString &path, int track)
{
    return path.endsWith(QLatin1String(kCueEnding), Qt::CaseInsensitive)
               ? QString::number(track) + QLatin1Char('_') + path
               : path;
}

} // namespace

MusicSong song(const QJsonObject &object)
{
    MusicSong song;
    song.artist = JsonFields::text(object, Key::artist);
    song.genre = JsonFields::text(object, Key::genre);
    song.title = JsonFields::text(object, Key::title);
    song.poster = JsonFields::text(object, Key::poster);
    song.album = JsonFields::text(object, Key::album);
    song.suffix = JsonFields::text(object, Key::suffix);
    song.cuePath = JsonFields::text(object, Key::cuePath);
    song.year = JsonFields::number(object, Key::year);
    song.iTrack = JsonFields::number(object, Key::iTrack, kNoTrack);
    song.like = JsonFields::number(object, Key::iLikeFlag) != 0;
    song.runtime = JsonFields::number(object, Key::runtime);
    song.path = playablePath(JsonFields::text(object, Key::path), song.iTrack);
    return song;
}

MusicPlaylist playlist(const QJsonObject &object)
{
    MusicPlaylist playlist;
    playlist.title = JsonFields::text(object, Key::title);
    playlist.overview = JsonFields::text(object, Key::overview);
    playlist.poster = JsonFields::text(object, Key::poster);
    playlist.idPlayList = JsonFields::number(object, Key::idPlayList);
    return playlist;
}

MusicAlbum album(const QJsonObject &object)
{
    MusicAlbum album;
    album.title = JsonFields::text(object, Key::title);
    album.artist = JsonFields::text(object, Key::artist);
    album.poster = JsonFields::text(object, Key::poster);
    album.genre = JsonFields::text(object, Key::genre);
    album.year = JsonFields::text(object, Key::year).toInt();
    album.idAlbum = JsonFields::number(object, Key::idAlbum);
    return album;
}

MusicArtist artist(const QJsonObject &object)
{
    MusicArtist artist;
    artist.name = JsonFields::text(object, Key::name);
    artist.poster = JsonFields::text(object, Key::localPath);
    return artist;
}

MusicMatch match(const QJsonObject &object)
{
    MusicMatch match;
    match.title = JsonFields::text(object, Key::title);
    match.album = JsonFields::text(object, Key::ablum_name);
    match.duration = JsonFields::number(object, Key::duration);
    match.year = JsonFields::number(object, Key::year);
    const QJsonArray genres = JsonFields::array(object, Key::genres);
    for (const QJsonValue &genre : genres)
        match.genres.append(genre.toString());
    const QJsonArray artists = JsonFields::array(object, Key::artists);
    for (const QJsonValue &value : artists) {
        const QJsonObject artist = value.toObject();
        match.artists.append({JsonFields::text(artist, Key::name), JsonFields::number(artist, Key::id)});
    }
    return match;
}

} // namespace MusicRecords
