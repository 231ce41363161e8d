#include "ScanStore.h"

#include "Containers.h"
#include "Database.h"
#include "FileTable.h"

#include "ShowTable.h"
#include "SongRows.h"
#include "SongScan.h"
#include "VideoRows.h"
#include "VideoScan.h"

#include <QDebug>

#include <algorithm>
#include <iterator>

namespace {

constexpr qint64 kKeepMissingMs = 30LL * 24 * 60 * 60 * 1000;

bool storeFingerprint(Connection &connection, const ScannedFolder &folder)
{
    return connection
        .prepare(QStringLiteral("INSERT INTO folders (root, path, fingerprint) VALUES (?, ?, ?) "
                                "ON CONFLICT (root, path) DO UPDATE SET fingerprint = excluded.fingerprint"))
        .run(folder.pathId, folder.path, QString::fromLatin1(folder.fingerprint.toHex()));
}

bool isKnown(Connection &connection, int root)
{
    Statement read = connection.prepare(QStringLiteral("SELECT 1 FROM roots WHERE id = ?"));
    return read.run(root) && read.next();
}

bool isOnline(Connection &connection, int root)
{
    Statement read = connection.prepare(QStringLiteral("SELECT online FROM roots WHERE id = ?"));
    return read.run(root) && read.next() && read.integer(0) != 0;
}

// The folders themselves and what lies below them.
bool forgetFingerprints(Connection &connection, int root, const QStringList &folders)
{
    return std::all_of(folders.begin(), folders.end(), [&](const QString &folder) {
        return connection
            .prepare(QStringLiteral("DELETE FROM folders WHERE root = ? "
                                    "AND (path = ? OR (path >= ? AND path < ?))"))
            .run(root, folder, QString(folder + QLatin1Char('/')), QString(folder + QLatin1Char('0')));
    });
}

} // namespace

ScanStore::ScanStore(const Database &database)
    : m_database(database)
{
}

QHash<QString, QByteArray> ScanStore::fingerprints(int pathId) const
{
    QHash<QString, QByteArray> known;
    Statement read =
        m_database.reader().prepare(QStringLiteral("SELECT path, fingerprint FROM folders WHERE root = ?"));
    if (read.run(pathId)) {
        while (read.next())
            known.insert(read.text(0), QByteArray::fromHex(read.text(1).toLatin1()));
    }
    return known;
}

QVector<ScannedSong> ScanStore::storedSongs(int pathId, const QString &folder) const
{
    QVector<ScannedSong> songs;
    const std::vector<SongRow> rows = SongRow::table().list(
        m_database.reader(), QStringLiteral("WHERE root = ? AND folder = ? AND scanned <> ''"), pathId,
        folder);
    for (const SongRow &row : rows)
        songs << row.scannedSong();
    return songs;
}

QVector<ScannedVideo> ScanStore::storedVideos(int pathId, const QString &folder) const
{
    QVector<ScannedVideo> videos;
    const std::vector<VideoRow> rows = VideoRow::table().list(
        m_database.reader(), QStringLiteral("WHERE root = ? AND folder = ? AND scanned <> ''"), pathId,
        folder);
    for (const VideoRow &row : rows)
        videos << row.scannedVideo();
    return videos;
}

bool ScanStore::store(const QVector<ScannedFolder> &folders)
{
    const QVector<SongScan::Found> songs = SongScan::prepare(folders);
    return m_database.write(Database::Urgency::Scan, [&](Connection &connection) {
        // A folder can be taken out of its library while a scan still reads it.
        QHash<int, bool> known;
        const auto isWanted = [&](int root) {
            const auto found = known.constFind(root);
            return found != known.constEnd() ? *found : *known.insert(root, isKnown(connection, root));
        };
        QVector<ScannedFolder> wanted;
        std::copy_if(folders.begin(), folders.end(), std::back_inserter(wanted),
                     [&](const ScannedFolder &folder) { return isWanted(folder.pathId); });
        QVector<SongScan::Found> wantedSongs;
        std::copy_if(songs.begin(), songs.end(), std::back_inserter(wantedSongs),
                     [&](const SongScan::Found &song) { return isWanted(song.root); });
        const qint64 now = m_database.now();
        return !wanted.isEmpty() && VideoScan(connection, now).store(wanted)
               && SongScan(connection, now).store(wanted, wantedSongs)
               && std::all_of(wanted.begin(), wanted.end(), [&connection](const ScannedFolder &folder) {
                      return storeFingerprint(connection, folder);
                  });
    });
}

bool ScanStore::forgetFolders(int pathId, const QStringList &folders)
{
    return m_database.write(Database::Urgency::Scan, [&](Connection &connection) {
        if (!isOnline(connection, pathId)) {
            qWarning() << "[store] nothing is forgotten of a folder that is not online:" << pathId;
            return false;
        }
        const qint64 now = m_database.now();
        return VideoScan(connection, now).forget(pathId, folders)
               && SongScan(connection, now).forget(pathId, folders)
               && forgetFingerprints(connection, pathId, folders);
    });
}

void ScanStore::finishScan(int pathId)
{
    m_database.write(Database::Urgency::Scan, [&](Connection &connection) {
        const qint64 before = m_database.now() - kKeepMissingMs;
        return FileTable::videos().dropMissing(connection, pathId, before)
               && FileTable::songs().dropMissing(connection, pathId, before)
               && Containers::dropEmpty(connection);
    });
}

bool ScanStore::clearForRebuild(int pathId)
{
    return m_database.write(Database::Urgency::User, [&](Connection &connection) {
        const qint64 now = m_database.now();
        return ShowTable::forgetProvided(connection, pathId)
               && FileTable::videos().clearRoot(connection, pathId, now)
               && FileTable::songs().clearRoot(connection, pathId, now)
               && connection.prepare(QStringLiteral("UPDATE folders SET fingerprint = '' WHERE root = ?"))
                      .run(pathId);
    });
}
