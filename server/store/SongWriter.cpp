#include "SongWriter.h"

#include "Connection.h"
#include "Counters.h"
#include "StoredJson.h"
#include "TextFold.h"
#include "TextLists.h"

SongWriter::SongWriter(Connection &connection)
    : m_connection(connection)
    , m_artists(connection, QStringLiteral("song_artists"))
    , m_genres(connection, QStringLiteral("song_genres"))
{
}

bool SongWriter::write(SongRow *row)
{
    return write(row, StoredJson::song(row->scanned), Row::Known);
}

bool SongWriter::write(SongRow *row, const ScannedSong &said, Row kind)
{
    m_containers.addAlbum(row->albumId);
    row->describe(said);
    if (!findAlbum(row, said.albumArtist))
        return false;
    m_containers.addAlbum(row->albumId);
    return SongRow::table().write(m_connection, *row)
           && addNames(&m_artists, row->id, TextLists::artists(row->artist), kind)
           && addNames(&m_genres, row->id, TextLists::genres(row->genre), kind);
}

bool SongWriter::findAlbum(SongRow *row, const QString &albumArtist)
{
    row->albumId = 0;
    if (row->album.trimmed().isEmpty())
        return true;
    const QString artist = albumArtist.trimmed().isEmpty() ? row->artist : albumArtist;
    const QString key = TextFold::nameKey(artist) + QLatin1Char('\n') + TextFold::nameKey(row->album);
    // The songs of an album come one after the other.
    if (key == m_lastAlbumKey) {
        row->albumId = m_lastAlbumId;
        return true;
    }
    {
        Statement known = m_connection.prepare(QStringLiteral("SELECT id FROM albums WHERE album_key = ?"));
        if (!known.run(key))
            return false;
        if (known.next())
            row->albumId = known.integer(0);
    }
    if (row->albumId == 0 && !addAlbum(row, artist, key))
        return false;
    m_lastAlbumKey = key;
    m_lastAlbumId = row->albumId;
    return true;
}

bool SongWriter::addAlbum(SongRow *row, const QString &artist, const QString &key)
{
    row->albumId = static_cast<int>(Counters::take(m_connection, QStringLiteral("albums")));
    const QString folded = TextFold::folded(row->album);
    return row->albumId > 0
           && m_connection
                  .prepare(QStringLiteral(
                      "INSERT INTO albums (id, songs, year, added, sort_title, album_key, title, "
                      "search, artist, genre, poster, user_poster) "
                      "VALUES (?, 0, 0, 0, ?, ?, ?, ?, ?, '', '', '')"))
                  .run(row->albumId, folded, key, row->album, folded, artist);
}

bool SongWriter::addNames(SongNames *table, int song, const QStringList &names, Row kind)
{
    if (kind == Row::Known && !table->forget(song))
        return false;
    table->add(song, names);
    return true;
}

bool SongWriter::writeNames()
{
    return m_artists.write() && m_genres.write();
}

bool SongWriter::inherit(int from, int to)
{
    return m_connection
               .prepare(QStringLiteral("UPDATE songs SET liked = 1 WHERE id = ? "
                                       "AND EXISTS (SELECT 1 FROM songs AS other WHERE other.id = ? "
                                       "AND other.liked = 1)"))
               .run(to, from)
           && m_connection
                  .prepare(QStringLiteral("UPDATE playlist_songs SET song_id = ? WHERE song_id = ? "
                                          "AND playlist_id NOT IN "
                                          "(SELECT playlist_id FROM playlist_songs WHERE song_id = ?)"))
                  .run(to, from, to)
           && m_connection
                  .prepare(QStringLiteral("UPDATE recent_songs SET song_id = ? WHERE song_id = ? "
                                          "AND NOT EXISTS (SELECT 1 FROM recent_songs AS other "
                                          "WHERE other.song_id = ?)"))
                  .run(to, from, to)
           && Counters::raise(m_connection, Counters::Area::Playlists)
           && Counters::raise(m_connection, Counters::Area::Recent);
}

bool SongWriter::finish()
{
    return writeNames() && m_containers.refresh(m_connection);
}
