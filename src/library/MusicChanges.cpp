#include "MusicChanges.h"

#include "LibraryRoots.h"
#include "LibrarySignals.h"
#include "MusicCache.h"
#include "ProtocolNames.h"

// ---- folders

bool MusicChanges::addPath(const QString &path)
{
    const auto pathId = m_protocol.addPath(m_roots.id(LibraryRoots::Music), path);
    if (!pathId)
        return false;
    m_roots.add(LibraryRoots::Music, *pathId, path);
    emit m_notices.sig_musicPathChanged();
    return true;
}

bool MusicChanges::deletePath(const QString &path)
{
    const auto pathId = m_roots.pathId(LibraryRoots::Music, path);
    if (!pathId || !m_protocol.deletePath(m_roots.id(LibraryRoots::Music), *pathId))
        return false;
    m_roots.remove(LibraryRoots::Music, *pathId);
    emit m_notices.sig_musicPathChanged();
    return true;
}

// ---- playlists

QString MusicChanges::createPlaylist(const QString &poster, const QString &title, const QString &overview)
{
    const auto number = m_protocol.createPlaylist(poster, title, overview);
    if (!number)
        return {};
    const QString id = QString::number(*number);
    m_cache.insertPlaylist(id, {title, overview, poster, *number, {}});
    emit m_notices.sig_musicPlaylistLoaded(id);
    return id;
}

bool MusicChanges::fixPlaylist(const QString &id, const QString &poster, const QString &title,
                               const QString &overview)
{
    if (!m_protocol.fixPlaylist(id.toInt(), poster, title, overview))
        return false;
    m_cache.changePlaylist(id, [&](MusicPlaylist &playlist) {
        playlist.poster = poster;
        playlist.title = title;
        playlist.overview = overview;
    });
    return true;
}

bool MusicChanges::deletePlaylist(const QString &id, bool deleteFiles)
{
    if (!m_protocol.deletePlaylist(id.toInt(), deleteFiles))
        return false;
    m_cache.removePlaylist(id);
    emit m_notices.sig_musicPlaylistRemoved(id);
    return true;
}

bool MusicChanges::addToPlaylist(const QString &playlist, const QString &song)
{
    if (!m_protocol.addToPlaylist(playlist.toInt(), song.toInt()))
        return false;
    m_cache.changePlaylist(playlist,
                           [&](MusicPlaylist &stored) { MusicCache::appendOnce(&stored.songs, song); });
    emit m_notices.sig_musicPlaylistSongLoaded(playlist, song);
    return true;
}

bool MusicChanges::removeFromPlaylist(const QString &playlist, const QString &song, bool deleteFile)
{
    if (!m_protocol.removeFromPlaylist(playlist.toInt(), song.toInt(), deleteFile))
        return false;
    m_cache.changePlaylist(playlist, [&](MusicPlaylist &stored) { stored.songs.removeAll(song); });
    emit m_notices.sig_musicPlaylistSongRemove(playlist, song);
    return true;
}

// ---- albums, artists, songs

bool MusicChanges::fixAlbum(const QString &id, const QString &poster)
{
    if (!m_protocol.fixAlbum(id.toInt(), poster))
        return false;
    m_cache.changeAlbum(id, [&](MusicAlbum &album) { album.poster = poster; });
    return true;
}

bool MusicChanges::fixArtist(const QString &name, const QString &poster)
{
    if (!m_protocol.fixArtist(name, poster))
        return false;
    m_cache.changeArtist(name, [&](MusicArtist &artist) { artist.poster = poster; });
    return true;
}

bool MusicChanges::editSong(const QString &id, const MusicProtocol::SongTexts &texts)
{
    if (!m_protocol.editSong(id.toInt(), texts))
        return false;
    m_cache.changeSong(id, [&](MusicSong &song) {
        song.title = texts.title;
        song.poster = texts.poster;
        song.artist = texts.artist;
        song.genre = texts.genre;
        song.runtime = texts.runtime;
        song.year = texts.year;
    });
    emit m_notices.sig_musicSongUpdated(id);
    return true;
}

bool MusicChanges::like(const QString &id)
{
    if (!m_protocol.like(id.toInt()))
        return false;
    m_cache.setLiked(id, true);
    emit m_notices.sig_musicSongLikeChanged(id);
    return true;
}

bool MusicChanges::unlike(const QString &id)
{
    if (!m_protocol.unlike(id.toInt()))
        return false;
    m_cache.setLiked(id, false);
    emit m_notices.sig_musicSongLikeChanged(id);
    return true;
}

bool MusicChanges::deleteSongs(const QStringList &ids, bool deleteFiles)
{
    if (ids.isEmpty() || !m_protocol.deleteSongs(ids, deleteFiles))
        return false;
    for (const QString &id : ids) {
        m_cache.removeSong(id);
        emit m_notices.sig_musicSongRemoved(id);
    }
    return true;
}

bool MusicChanges::deleteArtist(const QString &name, bool deleteFiles)
{
    if (!m_protocol.deleteAll(QLatin1String(Rpc::Text::artist), name, deleteFiles))
        return false;
    m_cache.removeArtist(name);
    emit m_notices.sig_musicArtistRemoved(name);
    return true;
}

bool MusicChanges::deleteGenre(const QString &name, bool deleteFiles)
{
    if (!m_protocol.deleteAll(QLatin1String(Rpc::Text::genre), name, deleteFiles))
        return false;
    m_cache.removeGenre(name);
    emit m_notices.sig_musicGenreRemoved(name);
    return true;
}

bool MusicChanges::deleteAlbum(const QString &id, bool deleteFiles)
{
    if (!m_protocol.deleteAll(QLatin1String(Rpc::Text::album), id, deleteFiles))
        return false;
    m_cache.removeAlbum(id);
    emit m_notices.sig_musicAlbumRemoved(id);
    return true;
}
