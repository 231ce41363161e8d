#include "PlaylistTable.h"

#include "Counters.h"
#include "RowTable.h"

namespace {

constexpr int kRecentSongs = 100;

const RowTable<PlaylistRecord> &playlistTable()
{
    static const RowTable<PlaylistRecord> table(QStringLiteral("playlists"),
                                                {{"id", &PlaylistRecord::idPlayList},
                                                 {"title", &PlaylistRecord::title},
                                                 {"overview", &PlaylistRecord::overview},
                                                 {"poster", &PlaylistRecord::poster}});
    return table;
}

bool exists(Connection &connection, int id)
{
    return id > 0 && playlistTable().find(connection, id).idPlayList == id;
}

qint64 nextPosition(Connection &connection)
{
    return Counters::take(connection, QStringLiteral("positions"));
}

} // namespace

QVector<PlaylistRecord> PlaylistTable::all(Connection &connection)
{
    const std::vector<PlaylistRecord> rows = playlistTable().list(connection, QStringLiteral("ORDER BY id"));
    return QVector<PlaylistRecord>(rows.begin(), rows.end());
}

int PlaylistTable::create(Connection &connection, const PlaylistRecord &playlist)
{
    PlaylistRecord row = playlist;
    row.idPlayList = static_cast<int>(Counters::take(connection, QStringLiteral("playlists")));
    return row.idPlayList > 0 && playlistTable().write(connection, row) ? row.idPlayList : -1;
}

bool PlaylistTable::change(Connection &connection, const PlaylistRecord &playlist)
{
    return exists(connection, playlist.idPlayList) && playlistTable().write(connection, playlist);
}

bool PlaylistTable::remove(Connection &connection, int id)
{
    return exists(connection, id)
           && connection.prepare(QStringLiteral("DELETE FROM playlists WHERE id = ?")).run(id)
           && Counters::raise(connection, Counters::Area::Playlists);
}

bool PlaylistTable::addSong(Connection &connection, int id, int song)
{
    return exists(connection, id)
           && connection
                  .prepare(QStringLiteral("INSERT INTO playlist_songs (playlist_id, song_id, position) "
                                          "VALUES (?, ?, ?) ON CONFLICT (playlist_id, song_id) DO NOTHING"))
                  .run(id, song, nextPosition(connection))
           && Counters::raise(connection, Counters::Area::Playlists);
}

bool PlaylistTable::removeSong(Connection &connection, int id, int song)
{
    Statement remove = connection.prepare(
        QStringLiteral("DELETE FROM playlist_songs WHERE playlist_id = ? AND song_id = ?"));
    return remove.run(id, song) && remove.changed() > 0
           && Counters::raise(connection, Counters::Area::Playlists);
}

bool PlaylistTable::notePlayed(Connection &connection, int song)
{
    return connection
               .prepare(QStringLiteral("INSERT INTO recent_songs (song_id, position) VALUES (?, ?) "
                                       "ON CONFLICT (song_id) DO UPDATE SET position = excluded.position"))
               .run(song, nextPosition(connection))
           && connection
                  .prepare(
                      QStringLiteral("DELETE FROM recent_songs WHERE song_id NOT IN "
                                     "(SELECT song_id FROM recent_songs ORDER BY position DESC LIMIT %1)")
                          .arg(kRecentSongs))
                  .run()
           && Counters::raise(connection, Counters::Area::Recent);
}
