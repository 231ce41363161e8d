// The player's copy of the music library. Written by the music loader and by changes, read by views; every
// operation is safe on every thread and gives copies. Keys are ids as decimal text, of artists and genres the
// name.
#pragma once

#include "MusicAlbum.h"
#include "MusicArtist.h"
#include "MusicGenre.h"
#include "MusicPlaylist.h"
#include "MusicSong.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>
#include <mutex>

class MusicCache final {
public:
    void clear();
    void clearSongs(); // with their paths and the liked ones
    void clearRecent();
    void clearPlaylists();
    void clearAlbums();
    void clearArtists();
    void clearGenres();

    void insertSong(const QString &id, const MusicSong &song);
    void insertPlaylist(const QString &id, const MusicPlaylist &playlist);
    void insertAlbum(const QString &id, const MusicAlbum &album);
    void insertArtist(const MusicArtist &artist);
    void insertGenre(const MusicGenre &genre);
    // An id that is in the list already stays where it is.
    void addRecent(const QString &id);

    // Changes the record in place; false where there is none.
    bool changeSong(const QString &id, const std::function<void(MusicSong &)> &change);
    bool changePlaylist(const QString &id, const std::function<void(MusicPlaylist &)> &change);
    bool changeAlbum(const QString &id, const std::function<void(MusicAlbum &)> &change);
    bool changeArtist(const QString &name, const std::function<void(MusicArtist &)> &change);
    bool changeGenre(const QString &name, const std::function<void(MusicGenre &)> &change);
    // Sets the song's flag and takes its id into the list of liked songs, or out of it.
    void setLiked(const QString &id, bool isLiked);

    // From the songs, their paths and the liked ones.
    void removeSong(const QString &id);
    void removePlaylist(const QString &id);
    void removeAlbum(const QString &id);
    void removeArtist(const QString &name);
    void removeGenre(const QString &name);

    // A record with default fields where there is none.
    [[nodiscard]] MusicSong song(const QString &id) const;
    [[nodiscard]] MusicPlaylist playlist(const QString &id) const;
    [[nodiscard]] MusicAlbum album(const QString &id) const;
    [[nodiscard]] MusicArtist artist(const QString &name) const;
    [[nodiscard]] MusicGenre genre(const QString &name) const;
    [[nodiscard]] QString songByPath(const QString &path) const;
    [[nodiscard]] QStringList songs() const;
    [[nodiscard]] QStringList playlists() const;
    [[nodiscard]] QStringList albums() const;
    [[nodiscard]] QStringList artists() const;
    [[nodiscard]] QStringList genres() const;
    [[nodiscard]] QStringList likedSongs() const;
    [[nodiscard]] QStringList recentSongs() const;

    // Appends unless the list holds it.
    static void appendOnce(QStringList *list, const QString &id);

private:
    mutable std::mutex m_mutex;
    QMap<QString, MusicSong> m_songs;
    QMap<QString, QString> m_songPaths;
    QMap<QString, MusicPlaylist> m_playlists;
    QMap<QString, MusicAlbum> m_albums;
    QMap<QString, MusicArtist> m_artists;
    QMap<QString, MusicGenre> m_genres;
    QStringList m_liked;
    QStringList m_recent;
};
