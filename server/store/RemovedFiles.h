// The files that a user took out of the library and left on disk: scans pass them by. All operations run
// within a transaction of the writer.
#pragma once

#include "FileTable.h"

namespace RemovedFiles {

[[nodiscard]] bool add(Connection &connection, const FileTable &table, const FileRow &file);
[[nodiscard]] bool any(Connection &connection);
// Whether a user took the unchanged file out. One that has changed is forgotten and may come again.
[[nodiscard]] bool holds(Connection &connection, const FileRow &file);

// Forgets the table's files in the folders that a scan does not see any more, so that a file that comes back
// later is taken like any other. files: all that the folders now hold.
[[nodiscard]] bool forgetUnseen(Connection &connection, const FileTable &table,
                                const QVector<ScannedFolder> &folders, const QVector<FileRow> &files);
// The same for folders that are gone, with all below them.
[[nodiscard]] bool forgetBelow(Connection &connection, const FileTable &table, int root,
                               const QStringList &folders);

} // namespace RemovedFiles
