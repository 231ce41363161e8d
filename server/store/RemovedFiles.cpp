#include "RemovedFiles.h"

#include "Connection.h"
#include "LibraryRoots.h"

#include <QPair>
#include <QSet>

#include <algorithm>
#include <functional>

namespace RemovedFiles {

namespace {

using Place = QPair<QString, int>; // path and track

int libraryOf(const FileTable &table)
{
    return table.isVideos() ? LibraryRoots::kVideoLibrary : LibraryRoots::kMusicLibrary;
}

// A scan of one library sees nothing of the other's files.
bool belongsTo(Connection &connection, int root, const FileTable &table)
{
    Statement read = connection.prepare(QStringLiteral("SELECT library FROM roots WHERE id = ?"));
    return read.run(root) && read.next() && read.integer(0) == libraryOf(table);
}

bool forget(Connection &connection, const FileTable &table, const QString &folder,
            const std::function<bool(const Place &place, int folderLength)> &isGone)
{
    const QString bare = folder.endsWith(QLatin1Char('/')) ? folder.chopped(1) : folder;
    QVector<Place> gone;
    {
        // "0" is the character after the slash.
        Statement read = connection.prepare(
            QStringLiteral("SELECT path, track FROM removed WHERE path > ? AND path < ? AND library = ?"));
        if (!read.run(QString(bare + QLatin1Char('/')), QString(bare + QLatin1Char('0')), libraryOf(table)))
            return false;
        while (read.next()) {
            const Place place(read.text(0), read.integer(1));
            if (isGone(place, bare.size() + 1))
                gone << place;
        }
    }
    return std::all_of(gone.begin(), gone.end(), [&connection](const Place &place) {
        return connection.prepare(QStringLiteral("DELETE FROM removed WHERE path = ? AND track = ?"))
            .run(place.first, place.second);
    });
}

} // namespace

bool add(Connection &connection, const FileTable &table, const FileRow &file)
{
    return connection
        .prepare(QStringLiteral("INSERT INTO removed (path, track, size, modified, library) "
                                "VALUES (?, ?, ?, ?, ?) ON CONFLICT (path, track) DO UPDATE "
                                "SET size = excluded.size, modified = excluded.modified, "
                                "library = excluded.library"))
        .run(file.path, file.track, file.stamp.size, file.stamp.modifiedMs, libraryOf(table));
}

bool any(Connection &connection)
{
    Statement read = connection.prepare(QStringLiteral("SELECT 1 FROM removed LIMIT 1"));
    return read.run() && read.next();
}

bool holds(Connection &connection, const FileRow &file)
{
    FileStamp stamp;
    {
        Statement statement = connection.prepare(
            QStringLiteral("SELECT size, modified FROM removed WHERE path = ? AND track = ?"));
        if (!statement.run(file.path, file.track) || !statement.next())
            return false;
        stamp = {statement.number(0), statement.number(1)};
    }
    if (stamp == file.stamp)
        return true;
    connection.prepare(QStringLiteral("DELETE FROM removed WHERE path = ? AND track = ?"))
        .run(file.path, file.track);
    return false;
}

bool forgetUnseen(Connection &connection, const FileTable &table, const QVector<ScannedFolder> &folders,
                  const QVector<FileRow> &files)
{
    QSet<Place> seen;
    for (const FileRow &file : files)
        seen.insert({file.path, file.track});
    return std::all_of(folders.begin(), folders.end(), [&](const ScannedFolder &folder) {
        return !belongsTo(connection, folder.pathId, table)
               || forget(connection, table, folder.path, [&seen](const Place &place, int folderLength) {
                      return place.first.indexOf(QLatin1Char('/'), folderLength) < 0 && !seen.contains(place);
                  });
    });
}

bool forgetBelow(Connection &connection, const FileTable &table, int root, const QStringList &folders)
{
    return !belongsTo(connection, root, table)
           || std::all_of(folders.begin(), folders.end(), [&](const QString &folder) {
                  return forget(connection, table, folder, [](const Place &, int) { return true; });
              });
}

} // namespace RemovedFiles
