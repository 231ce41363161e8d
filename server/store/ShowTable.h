// Shows and their seasons. All operations run within a transaction of the writer.
#pragma once

#include "records/ScanRecords.h"

#include <QString>

class Connection;

namespace ShowTable {

// The show of a folder, made where it is not known yet; 0 on failure.
[[nodiscard]] int idOf(Connection &connection, const QString &key);
// The show that a user chose: one with the same identity, or the same title and year, or a new one. The
// folder is where its episode lies. 0 on failure.
[[nodiscard]] int idOf(Connection &connection, const Description &chosen, const QString &folder);
[[nodiscard]] bool store(Connection &connection, const ScannedShow &show);
// False too for a show of another identity.
[[nodiscard]] bool describe(Connection &connection, int id, const Description &description,
                            const QMap<int, Description> &seasons);
[[nodiscard]] bool ensureSeason(Connection &connection, int showId, int number);
// Forgets what providers said of the root's videos and shows, so that they are asked again.
[[nodiscard]] bool forgetProvided(Connection &connection, int root);

} // namespace ShowTable
