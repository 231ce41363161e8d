// The lists of music: songs by what holds them, albums, artists and genres. Reads only; any thread.
#pragma once

#include "ListReader.h"

#include "records/LibraryRecords.h"
#include "records/ListRequest.h"

class Database;

class MusicLists final {
public:
    explicit MusicLists(const Database &database);

    [[nodiscard]] Page<SongRecord> songs(const ListRequest &request) const;
    // The time of a recent song is when it was played last.
    [[nodiscard]] Page<SongRecord> recentSongs(const ListRequest &request) const;
    // The date of a song in a playlist is when it was added to the playlist.
    [[nodiscard]] Page<SongRecord> playlistSongs(int idPlayList, const ListRequest &request) const;
    [[nodiscard]] Page<SongRecord> albumSongs(int idAlbum, const ListRequest &request) const;
    [[nodiscard]] Page<SongRecord> artistSongs(const QString &artist, const ListRequest &request) const;
    [[nodiscard]] Page<SongRecord> genreSongs(const QString &genre, const ListRequest &request) const;
    [[nodiscard]] Page<AlbumRecord> albums(const ListRequest &request) const;
    [[nodiscard]] QVector<ArtistRecord> artists() const;
    [[nodiscard]] QStringList genres() const;
    [[nodiscard]] SongRecord song(int idFile) const;

    // In the order of the album; the others by title.
    [[nodiscard]] QVector<int> albumIds(int idAlbum) const;
    [[nodiscard]] QVector<int> artistIds(const QString &artist) const;
    [[nodiscard]] QVector<int> genreIds(const QString &genre) const;

private:
    [[nodiscard]] Page<SongRecord> songPage(const ListSource &source, const ListRequest &request) const;

    const Database &m_database;
    ListReader m_reader;
};
