#include "MusicCache.h"

namespace {

template<class T>
bool changeIn(QMap<QString, T> &map, const QString &key, const std::function<void(T &)> &change)
{
    const auto found = map.find(key);
    if (found == map.end())
        return false;
    change(*found);
    return true;
}

} // namespace

void MusicCache::appendOnce(QStringList *list, const QString &id)
{
    if (!list->contains(id))
        list->append(id);
}

// ---- emptying

void MusicCache::clear()
{
    std::lock_guard lock(m_mutex);
    m_songs.clear();
    m_songPaths.clear();
    m_playlists.clear();
    m_albums.clear();
    m_artists.clear();
    m_genres.clear();
    m_liked.clear();
    m_recent.clear();
}

void MusicCache::clearSongs()
{
    std::lock_guard lock(m_mutex);
    m_songs.clear();
    m_songPaths.clear();
    m_liked.clear();
}

void MusicCache::clearRecent()
{
    std::lock_guard lock(m_mutex);
    m_recent.clear();
}

void MusicCache::clearPlaylists()
{
    std::lock_guard lock(m_mutex);
    m_playlists.clear();
}

void MusicCache::clearAlbums()
{
    std::lock_guard lock(m_mutex);
    m_albums.clear();
}

void MusicCache::clearArtists()
{
    std::lock_guard lock(m_mutex);
    m_artists.clear();
}

void MusicCache::clearGenres()
{
    std::lock_guard lock(m_mutex);
    m_genres.clear();
}

// ---- filling

void MusicCache::insertSong(const QString &id, const MusicSong &song)
{
    std::lock_guard lock(m_mutex);
    m_songs.insert(id, song);
    m_songPaths.insert(song.path, id);
}

void MusicCache::insertPlaylist(const QString &id, const MusicPlaylist &playlist)
{
    std::lock_guard lock(m_mutex);
    m_playlists.insert(id, playlist);
}

void MusicCache::insertAlbum(const QString &id, const MusicAlbum &album)
{
    std::lock_guard lock(m_mutex);
    m_albums.insert(id, album);
}

void MusicCache::insertArtist(const MusicArtist &artist)
{
    std::lock_guard lock(m_mutex);
    m_artists.insert(artist.name, artist);
}

void MusicCache::insertGenre(const MusicGenre &genre)
{
    std::lock_guard lock(m_mutex);
    m_genres.insert(genre.name, genre);
}

void MusicCache::addRecent(const QString &id)
{
    std::lock_guard lock(m_mutex);
    appendOnce(&m_recent, id);
}

// ---- changing

bool MusicCache::changeSong(const QString &id, const std::function<void(MusicSong &)> &change)
{
    std::lock_guard lock(m_mutex);
    return changeIn(m_songs, id, change);
}

bool MusicCache::changePlaylist(const QString &id, const std::function<void(MusicPlaylist &)> &change)
{
    std::lock_guard lock(m_mutex);
    return changeIn(m_playlists, id, change);
}

bool MusicCache::changeAlbum(const QString &id, const std::function<void(MusicAlbum &)> &change)
{
    std::lock_guard lock(m_mutex);
    return changeIn(m_albums, id, change);
}

bool MusicCache::changeArtist(const QString &name, const std::function<void(MusicArtist &)> &change)
{
    std::lock_guard lock(m_mutex);
    return changeIn(m_artists, name, change);
}

bool MusicCache::changeGenre(const QString &name, const std::function<void(MusicGenre &)> &change)
{
    std::lock_guard lock(m_mutex);
    return changeIn(m_genres, name, change);
}

void MusicCache::setLiked(const QString &id, bool isLiked)
{
    std::lock_guard lock(m_mutex);
    const auto song = m_songs.find(id);
    if (song != m_songs.end())
        song->like = isLiked;
    if (isLiked)
        appendOnce(&m_liked, id);
    else
        m_liked.removeAll(id);
}

void MusicCache::removeSong(const QString &id)
{
    std::lock_guard lock(m_mutex);
    const QString path = m_songs.take(id).path;
    if (m_songPaths.value(path) == id)
        m_songPaths.remove(path);
    m_liked.removeAll(id);
}

void MusicCache::removePlaylist(const QString &id)
{
    std::lock_guard lock(m_mutex);
    m_playlists.remove(id);
}

void MusicCache::removeAlbum(const QString &id)
{
    std::lock_guard lock(m_mutex);
    m_albums.remove(id);
}

void MusicCache::removeArtist(const QString &name)
{
    std::lock_guard lock(m_mutex);
    m_artists.remove(name);
}

void MusicCache::removeGenre(const QString &name)
{
    std::lock_guard lock(m_mutex);
    m_genres.remove(name);
}

// ---- reading

MusicSong MusicCache::song(const QString &id) const
{
    std::lock_guard lock(m_mutex);
    return m_songs.value(id);
}

MusicPlaylist MusicCache::playlist(const QString &id) const
{
    std::lock_guard lock(m_mutex);
    return m_playlists.value(id);
}

MusicAlbum MusicCache::album(const QString &id) const
{
    std::lock_guard lock(m_mutex);
    return m_albums.value(id);
}

MusicArtist MusicCache::artist(const QString &name) const
{
    std::lock_guard lock(m_mutex);
    return m_artists.value(name);
}

MusicGenre MusicCache::genre(const QString &name) const
{
    std::lock_guard lock(m_mutex);
    return m_genres.value(name);
}

QString MusicCache::songByPath(const QString &path) const
{
    std::lock_guard lock(m_mutex);
    return m_songPaths.value(path);
}

QStringList MusicCache::songs() const
{
    std::lock_guard lock(m_mutex);
    return m_songs.keys();
}

QStringList MusicCache::playlists() const
{
    std::lock_guard lock(m_mutex);
    return m_playlists.keys();
}

QStringList MusicCache::albums() const
{
    std::lock_guard lock(m_mutex);
    return m_albums.keys();
}

QStringList MusicCache::artists() const
{
    std::lock_guard lock(m_mutex);
    return m_artists.keys();
}

QStringList MusicCache::genres() const
{
    std::lock_guard lock(m_mutex);
    return m_genres.keys();
}

QStringList MusicCache::likedSongs() const
{
    std::lock_guard lock(m_mutex);
    return m_liked;
}

QStringList MusicCache::recentSongs() const
{
    std::lock_guard lock(m_mutex);
    return m_recent;
}
