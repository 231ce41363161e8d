#include "LibraryReport.h"

#include "library/MediaServerManager.h"

#include <QJsonArray>

#include <algorithm>

namespace LibraryReport {

namespace {

// By number where both are numbers: "2" before "10".
QStringList ordered(QStringList ids)
{
    std::sort(ids.begin(), ids.end(), [](const QString &a, const QString &b) {
        bool isFirst = false;
        bool isSecond = false;
        const int first = a.toInt(&isFirst);
        const int second = b.toInt(&isSecond);
        return isFirst && isSecond ? first < second : a < b;
    });
    return ids;
}

QJsonObject ofItem(const QString &id, const MediaItem &item)
{
    return {{"id", id},
            {"title", item.title},
            {"rating", item.rating},
            {"year", item.year},
            {"runtime", item.runtime},
            {"director", item.director},
            {"cast", item.cast},
            {"genre", item.genre},
            {"overview", item.overview},
            {"poster", item.poster},
            {"backdrop", item.backdrop},
            {"path", item.path},
            {"seasonTitle", item.seasonTitle},
            {"episodeTitle", item.episodeTitle},
            {"number", item.number},
            {"fileCount", item.fileCount}};
}

QJsonObject ofSong(const QString &id, const MusicSong &song)
{
    return {{"id", id},
            {"title", song.title},
            {"artist", song.artist},
            {"album", song.album},
            {"genre", song.genre},
            {"poster", song.poster},
            {"path", song.path},
            {"suffix", song.suffix},
            {"cuePath", song.cuePath},
            {"year", song.year},
            {"track", song.iTrack},
            {"like", song.like},
            {"runtime", song.runtime}};
}

template<class Make>
QJsonArray each(const QStringList &ids, const Make &make)
{
    QJsonArray array;
    const QStringList sorted = ordered(ids);
    for (const QString &id : sorted)
        array.append(make(id));
    return array;
}

QJsonArray ofKind(const VideoCache &cache, VideoCache::Kind kind)
{
    return each(cache.ids(kind), [&](const QString &id) { return ofItem(id, cache.item(kind, id)); });
}

QJsonArray ofOwners(const VideoCache &cache, VideoCache::Kind kind, VideoCache::Link link)
{
    return each(cache.ids(kind), [&](const QString &id) {
        QJsonObject object = ofItem(id, cache.item(kind, id));
        object.insert("holds", QJsonArray::fromStringList(cache.linked(link, id)));
        return object;
    });
}

QJsonObject ofPaths(const LibraryPaths::Map &paths)
{
    QJsonObject object;
    for (auto path = paths.begin(); path != paths.end(); ++path)
        object.insert(QString::number(path.key()), path.value());
    return object;
}

QJsonObject ofMusic(const MusicCache &music)
{
    const auto songs = [](const QStringList &ids) { return QJsonArray::fromStringList(ids); };
    return {{"songs", each(music.songs(), [&](const QString &id) { return ofSong(id, music.song(id)); })},
            {"liked", songs(music.likedSongs())},
            {"recent", songs(music.recentSongs())},
            {"playlists", each(music.playlists(),
                               [&](const QString &id) {
                                   const MusicPlaylist playlist = music.playlist(id);
                                   return QJsonObject{{"id", id},
                                                      {"title", playlist.title},
                                                      {"overview", playlist.overview},
                                                      {"poster", playlist.poster},
                                                      {"songs", songs(playlist.songs)}};
                               })},
            {"albums", each(music.albums(),
                            [&](const QString &id) {
                                const MusicAlbum album = music.album(id);
                                return QJsonObject{{"id", id},
                                                   {"title", album.title},
                                                   {"artist", album.artist},
                                                   {"genre", album.genre},
                                                   {"poster", album.poster},
                                                   {"year", album.year},
                                                   {"songs", songs(album.songs)}};
                            })},
            {"artists", each(music.artists(),
                             [&](const QString &name) {
                                 const MusicArtist artist = music.artist(name);
                                 return QJsonObject{{"name", name},
                                                    {"poster", artist.poster},
                                                    {"songs", songs(artist.songs)}};
                             })},
            {"genres", each(music.genres(), [&](const QString &name) {
                 return QJsonObject{{"name", name}, {"songs", songs(music.genre(name).songs)}};
             })}};
}

} // namespace

QJsonObject of(const MediaServerManager &manager)
{
    const VideoCache &videos = manager.videos();
    return {{"videoPaths", ofPaths(manager.videoPaths())},
            {"musicPaths", ofPaths(manager.musicPaths())},
            {"movies", ofKind(videos, VideoCache::Movies)},
            {"collections", ofOwners(videos, VideoCache::Collections, VideoCache::CollectionToMembers)},
            {"collectionMembers", ofKind(videos, VideoCache::CollectionMembers)},
            {"shows", ofOwners(videos, VideoCache::Shows, VideoCache::ShowToSeasons)},
            {"seasons", ofOwners(videos, VideoCache::Seasons, VideoCache::SeasonToEpisodes)},
            {"episodes", ofKind(videos, VideoCache::Episodes)},
            {"videos", ofKind(videos, VideoCache::Videos)},
            {"adult", ofKind(videos, VideoCache::AdultItems)},
            {"music", ofMusic(manager.music())}};
}

} // namespace LibraryReport
