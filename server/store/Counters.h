// Numbers that only grow, kept in the database: the ids of records, and a version of each area of the data,
// which a change of its tables raises. Both are part of the transaction they are asked in.
#pragma once

#include <QString>

class Connection;

namespace Counters {

// What a version is kept for. Likes and edits that no list is sorted by raise none.
enum class Area { Video = 1, Music = 2, Playlists = 3, Recent = 4 };

// The first of so many numbers that were never given before; 0 on failure.
[[nodiscard]] qint64 take(Connection &connection, const QString &name, int count = 1);

// 0 until the first change.
[[nodiscard]] qint64 version(Connection &connection, Area area);
[[nodiscard]] bool raise(Connection &connection, Area area);

} // namespace Counters
