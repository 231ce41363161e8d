// Playlists and the songs that were played last. Changes run within a transaction of the writer.
#pragma once

#include "records/LibraryRecords.h"

#include <QVector>

class Connection;

namespace PlaylistTable {

[[nodiscard]] QVector<PlaylistRecord> all(Connection &connection);
// The id, or -1.
[[nodiscard]] int create(Connection &connection, const PlaylistRecord &playlist);
[[nodiscard]] bool change(Connection &connection, const PlaylistRecord &playlist);
[[nodiscard]] bool remove(Connection &connection, int id);
// True too for a song that is in the list already; it keeps its place.
[[nodiscard]] bool addSong(Connection &connection, int id, int song);
[[nodiscard]] bool removeSong(Connection &connection, int id, int song);
// The song is the first of the recent ones, of which a hundred are kept.
[[nodiscard]] bool notePlayed(Connection &connection, int song);

} // namespace PlaylistTable
