// The music library as the protocol sees it, with what a user makes of it: likes, playlists, corrections.
// Threads and failures as in IVideoLibrary. Song ids are kept over rescans and moves.
#pragma once

#include "records/LibraryRecords.h"
#include "records/ListRequest.h"

class IMusicLibrary {
public:
    virtual ~IMusicLibrary() = default;

    [[nodiscard]] virtual Page<SongRecord> songs(const ListRequest &request) const = 0;
    [[nodiscard]] virtual Page<SongRecord> recentSongs(const ListRequest &request) const = 0;
    [[nodiscard]] virtual Page<SongRecord> playlistSongs(int idPlayList,
                                                         const ListRequest &request) const = 0;
    [[nodiscard]] virtual Page<SongRecord> albumSongs(int idAlbum, const ListRequest &request) const = 0;
    [[nodiscard]] virtual Page<SongRecord> artistSongs(const QString &artist,
                                                       const ListRequest &request) const = 0;
    [[nodiscard]] virtual Page<SongRecord> genreSongs(const QString &genre,
                                                      const ListRequest &request) const = 0;
    [[nodiscard]] virtual Page<AlbumRecord> albums(const ListRequest &request) const = 0;
    [[nodiscard]] virtual QVector<ArtistRecord> artists() const = 0;
    [[nodiscard]] virtual QStringList genres() const = 0;
    [[nodiscard]] virtual QVector<PlaylistRecord> playlists() const = 0;
    [[nodiscard]] virtual SongRecord song(int idFile) const = 0;

    // Playlists. The new one's id, or -1.
    virtual int createPlaylist(const PlaylistRecord &playlist) = 0;
    virtual bool changePlaylist(const PlaylistRecord &playlist) = 0;
    virtual bool removePlaylist(int idPlayList) = 0;
    virtual bool addToPlaylist(int idPlayList, int idFile) = 0;
    virtual bool removeFromPlaylist(int idPlayList, int idFile) = 0;

    virtual bool setLiked(int idFile, bool liked) = 0;
    virtual bool notePlayed(int idFile) = 0;

    // Corrections by the user; later scans leave them alone.
    virtual bool editSong(const SongRecord &song) = 0;
    virtual bool setAlbumPoster(int idAlbum, const QString &poster) = 0;
    virtual bool setArtistPoster(const QString &artist, const QString &poster) = 0;
    // Takes the corrections of a song back: it shows again what its file says.
    virtual bool restoreSong(int idFile) = 0;

    // What stands on disk for a song; empty for an unknown id.
    [[nodiscard]] virtual QStringList filesOf(int idFile) const = 0;
    [[nodiscard]] virtual QVector<int> songIdsOfAlbum(int idAlbum) const = 0;
    [[nodiscard]] virtual QVector<int> songIdsOfArtist(const QString &artist) const = 0;
    [[nodiscard]] virtual QVector<int> songIdsOfGenre(const QString &genre) const = 0;
    // Takes the songs out of the library; they stay out as long as their files are unchanged.
    virtual bool removeSongs(const QVector<int> &ids, Removal removal) = 0;
};
