// Writes a song's row and what hangs on it: its album, its artists, its genres. Runs within a transaction of
// the writer.
#pragma once

#include "Containers.h"
#include "SongNames.h"
#include "SongRows.h"

class Connection;

class SongWriter final {
public:
    enum class Row { Known, New };

    explicit SongWriter(Connection &connection);

    // The row as it was read, with changed sources; what follows from them is set here.
    [[nodiscard]] bool write(SongRow *row);
    // The same where what the file says is at hand. A new row is one whose id was never in the database.
    [[nodiscard]] bool write(SongRow *row, const ScannedSong &said, Row kind);
    // Likes, playlists and the place among the recent songs go from one song to the other, which has
    // precedence.
    [[nodiscard]] bool inherit(int from, int to);
    // Before a song that was written is taken away again.
    [[nodiscard]] bool writeNames();
    // To be called once at the end: names, counts and versions.
    [[nodiscard]] bool finish();
    [[nodiscard]] Containers *containers() { return &m_containers; }

private:
    [[nodiscard]] bool findAlbum(SongRow *row, const QString &albumArtist);
    [[nodiscard]] bool addAlbum(SongRow *row, const QString &artist, const QString &key);
    [[nodiscard]] static bool addNames(SongNames *table, int song, const QStringList &names, Row kind);

    Connection &m_connection;
    Containers m_containers;
    SongNames m_artists;
    SongNames m_genres;
    QString m_lastAlbumKey;
    int m_lastAlbumId{0};
};
