#include "SongScan.h"

#include "Connection.h"
#include "ContentKey.h"
#include "RemovedFiles.h"
#include "StoredJson.h"

#include <QDebug>
#include <QPair>
#include <QSet>

SongScan::SongScan(Connection &connection, qint64 now)
    : m_connection(connection)
    , m_now(now)
    , m_matcher(connection, FileTable::songs(), now)
    , m_writer(connection)
{
}

QVector<SongScan::Found> SongScan::prepare(const QVector<ScannedFolder> &folders)
{
    QVector<Found> found;
    QSet<QPair<QString, int>> places;
    for (const ScannedFolder &folder : folders) {
        for (const ScannedSong &song : folder.songs) {
            const QPair<QString, int> place(song.path, song.track);
            if (song.path.isEmpty() || places.contains(place)) {
                qWarning() << "[store] a song without a path of its own in" << folder.path << song.path;
                continue;
            }
            places.insert(place);
            FileRow file;
            file.folder = folder.path;
            file.path = song.path;
            file.name = FileRow::nameOf(song.path, song.path);
            file.suffix = song.suffix;
            file.track = song.track;
            file.stamp = song.stamp;
            found << Found{&song, folder.pathId, file, StoredJson::ofSong(song)};
        }
    }
    return found;
}

bool SongScan::store(const QVector<ScannedFolder> &folders, const QVector<Found> &found)
{
    QVector<FileRow> files;
    files.reserve(found.size());
    for (const Found &each : found)
        files << each.file;
    const QVector<int> ids = m_matcher.match(
        folders, files, [&found](int index) { return ContentKey::ofSong(*found.at(index).song); },
        m_writer.containers());
    if (m_matcher.isFailed() || !replace(m_matcher.earlierMoves()))
        return false;
    for (int index = 0; index < found.size(); ++index) {
        if (ids.at(index) != FileMatcher::kRefused && !write(ids.at(index), found.at(index)))
            return false;
    }
    return replace(m_matcher.lateMoves()) && m_writer.finish();
}

bool SongScan::write(int id, const Found &found)
{
    const bool isNew = m_matcher.isNew(id);
    SongRow row = isNew ? SongRow() : SongRow::table().find(m_connection, id);
    if (row.id == 0) {
        row.id = id;
        row.added = m_now;
    }
    row.root = found.root;
    row.folder = found.file.folder;
    row.path = found.file.path;
    row.track = found.file.track;
    row.size = found.file.stamp.size;
    row.modified = found.file.stamp.modifiedMs;
    row.seen = m_now;
    row.missingSince = 0;
    row.scanned = found.scanned;
    return m_writer.write(&row, *found.song, isNew ? SongWriter::Row::New : SongWriter::Row::Known);
}

bool SongScan::replace(const QVector<FileMatcher::Move> &moves)
{
    if (!moves.isEmpty() && !m_writer.writeNames())
        return false;
    for (const FileMatcher::Move &move : moves) {
        if (!m_writer.inherit(move.newId, move.oldId))
            return false;
        SongRow row = SongRow::table().find(m_connection, move.oldId);
        const SongRow place = SongRow::table().find(m_connection, move.newId);
        if (row.id == 0 || place.id == 0)
            continue;
        row.root = place.root;
        row.folder = place.folder;
        row.path = place.path;
        row.seen = m_now;
        row.missingSince = 0;
        row.scanned = place.scanned;
        if (row.edited.isEmpty())
            row.edited = place.edited;
        m_writer.containers()->addAlbum(place.albumId);
        if (!m_connection.prepare(QStringLiteral("DELETE FROM songs WHERE id = ?")).run(place.id)
            || !m_writer.write(&row))
            return false;
    }
    return true;
}

bool SongScan::forget(int root, const QStringList &folders)
{
    QVector<FileRow> lost;
    for (const QString &folder : folders) {
        const QVector<FileRow> rows = FileTable::songs().below(m_connection, root, folder);
        if (!FileTable::songs().hide(m_connection, rows, m_now, m_writer.containers()))
            return false;
        lost << rows;
    }
    return RemovedFiles::forgetBelow(m_connection, FileTable::songs(), root, folders)
           && replace(m_matcher.lateMoves(lost)) && m_writer.finish();
}
