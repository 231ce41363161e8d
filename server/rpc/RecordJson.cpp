#include "RecordJson.h"

#include "Keys.h"

namespace RecordJson {

QJsonObject object(const MovieRecord &movie)
{
    return {{Keys::idFile, movie.idFile},     {Keys::title, movie.title},       {Keys::rating, movie.rating},
            {Keys::runtime, movie.runtime},   {Keys::director, movie.director}, {Keys::cast, movie.cast},
            {Keys::genre, movie.genre},       {Keys::overview, movie.overview}, {Keys::poster, movie.poster},
            {Keys::backdrop, movie.backdrop}, {Keys::path, movie.path},         {Keys::year, movie.year}};
}

QJsonObject object(const GroupRecord &group)
{
    return {{Keys::idGroup, group.idGroup},   {Keys::title, group.title},
            {Keys::poster, group.poster},     {Keys::backdrop, group.backdrop},
            {Keys::overview, group.overview}, {Keys::fileCount, group.fileCount}};
}

QJsonObject object(const ShowRecord &show)
{
    return {{Keys::idTvshow, show.idTvshow}, {Keys::title, show.title},   {Keys::rating, show.rating},
            {Keys::director, show.director}, {Keys::cast, show.cast},     {Keys::genre, show.genre},
            {Keys::overview, show.overview}, {Keys::poster, show.poster}, {Keys::backdrop, show.backdrop},
            {Keys::path, show.path},         {Keys::year, show.year}};
}

QJsonObject object(const SeasonRecord &season)
{
    return {{Keys::idSeason, season.idSeason}, {Keys::iSeason, season.iSeason},
            {Keys::title, season.title},       {Keys::director, season.director},
            {Keys::cast, season.cast},         {Keys::overview, season.overview},
            {Keys::poster, season.poster},     {Keys::year, season.year}};
}

QJsonObject object(const EpisodeRecord &episode)
{
    return {{Keys::idFile, episode.idFile}, {Keys::iEpisode, episode.iEpisode},
            {Keys::title, episode.title},   {Keys::director, episode.director},
            {Keys::cast, episode.cast},     {Keys::overview, episode.overview},
            {Keys::poster, episode.poster}, {Keys::path, episode.path},
            {Keys::year, episode.year}};
}

QJsonObject object(const SongRecord &song)
{
    return {{Keys::idFile, song.idFile}, {Keys::title, song.title},
            {Keys::artist, song.artist}, {Keys::genre, song.genre},
            {Keys::poster, song.poster}, {Keys::album, song.album},
            {Keys::path, song.path},     {Keys::runtime, song.runtime},
            {Keys::year, song.year},     {Keys::iLikeFlag, song.liked ? 1 : 0}};
}

QJsonObject songWithTrack(const SongRecord &song)
{
    QJsonObject result = object(song);
    result.insert(Keys::suffix, song.suffix);
    result.insert(Keys::cuePath, song.cuePath);
    result.insert(Keys::iTrack, song.iTrack);
    return result;
}

QJsonObject object(const AlbumRecord &album)
{
    return {{Keys::idAlbum, album.idAlbum}, {Keys::title, album.title},   {Keys::artist, album.artist},
            {Keys::genre, album.genre},     {Keys::poster, album.poster}, {Keys::year, album.year}};
}

QJsonObject object(const ArtistRecord &artist)
{
    return {{Keys::name, artist.name}, {Keys::localPath, artist.localPath}};
}

QJsonObject object(const PlaylistRecord &playlist)
{
    return {{Keys::idPlayList, playlist.idPlayList},
            {Keys::title, playlist.title},
            {Keys::overview, playlist.overview},
            {Keys::poster, playlist.poster}};
}

QJsonObject object(const MatchRecord &match)
{
    return {{Keys::title, match.title},       {Keys::releaseDate, match.releaseDate},
            {Keys::runtime, match.runtime},   {Keys::poster, match.poster},
            {Keys::backdrop, match.backdrop}, {Keys::strMediaId, match.strMediaId}};
}

QJsonObject object(const SongMatchRecord &match)
{
    QJsonArray artists;
    for (const SongMatchRecord::Artist &artist : match.artists)
        artists.append(QJsonObject{{Keys::name, artist.name}, {Keys::id, artist.id}});
    return {{Keys::title, match.title},
            {Keys::ablum_name, match.albumName},
            {Keys::duration, match.duration},
            {Keys::year, match.year},
            {Keys::genres, QJsonArray::fromStringList(match.genres)},
            {Keys::artists, artists}};
}

QJsonObject object(const RootFolder &folder)
{
    return {{Keys::PathId, folder.pathId}, {Keys::path, folder.path}};
}

} // namespace RecordJson
