// The music library over the database: lists are read on the caller's connection, changes go through the
// writer. Any thread.
#pragma once

#include "IMusicLibrary.h"
#include "MusicLists.h"

class Database;

class MusicLibrary final : public IMusicLibrary {
public:
    explicit MusicLibrary(const Database &database);

    [[nodiscard]] Page<SongRecord> songs(const ListRequest &request) const override;
    [[nodiscard]] Page<SongRecord> recentSongs(const ListRequest &request) const override;
    [[nodiscard]] Page<SongRecord> playlistSongs(int idPlayList, const ListRequest &request) const override;
    [[nodiscard]] Page<SongRecord> albumSongs(int idAlbum, const ListRequest &request) const override;
    [[nodiscard]] Page<SongRecord> artistSongs(const QString &artist,
                                               const ListRequest &request) const override;
    [[nodiscard]] Page<SongRecord> genreSongs(const QString &genre,
                                              const ListRequest &request) const override;
    [[nodiscard]] Page<AlbumRecord> albums(const ListRequest &request) const override;
    [[nodiscard]] QVector<ArtistRecord> artists() const override;
    [[nodiscard]] QStringList genres() const override;
    [[nodiscard]] QVector<PlaylistRecord> playlists() const override;
    [[nodiscard]] SongRecord song(int idFile) const override;

    int createPlaylist(const PlaylistRecord &playlist) override;
    bool changePlaylist(const PlaylistRecord &playlist) override;
    bool removePlaylist(int idPlayList) override;
    bool addToPlaylist(int idPlayList, int idFile) override;
    bool removeFromPlaylist(int idPlayList, int idFile) override;

    bool setLiked(int idFile, bool liked) override;
    bool notePlayed(int idFile) override;

    bool editSong(const SongRecord &song) override;
    bool setAlbumPoster(int idAlbum, const QString &poster) override;
    bool setArtistPoster(const QString &artist, const QString &poster) override;
    bool restoreSong(int idFile) override;

    // Of a track of a CUE sheet nothing while the sheet has others: its files are theirs too.
    [[nodiscard]] QStringList filesOf(int idFile) const override;
    [[nodiscard]] QVector<int> songIdsOfAlbum(int idAlbum) const override;
    [[nodiscard]] QVector<int> songIdsOfArtist(const QString &artist) const override;
    [[nodiscard]] QVector<int> songIdsOfGenre(const QString &genre) const override;
    // False when one of them was not there; the others are gone then all the same.
    bool removeSongs(const QVector<int> &ids, Removal removal) override;

private:
    const Database &m_database;
    MusicLists m_lists;
};
