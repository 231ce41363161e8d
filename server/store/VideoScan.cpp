#include "VideoScan.h"

#include "Connection.h"
#include "ContentKey.h"
#include "RemovedFiles.h"
#include "ShowTable.h"
#include "StoredJson.h"

#include <QDebug>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

VideoScan::VideoScan(Connection &connection, qint64 now)
    : m_connection(connection)
    , m_now(now)
    , m_matcher(connection, FileTable::videos(), now)
    , m_writer(connection)
    , m_heirs(connection, m_writer)
{
}

bool VideoScan::store(const QVector<ScannedFolder> &folders)
{
    QVector<FileRow> files;
    QVector<Found> found;
    QSet<QString> paths;
    for (const ScannedFolder &folder : folders) {
        for (const ScannedShow &show : folder.shows) {
            if (!ShowTable::store(m_connection, show))
                return false;
            m_writer.containers()->addVideo(0, 0);
        }
        for (const ScannedVideo &video : folder.videos) {
            if (video.path.isEmpty() || paths.contains(video.path)) {
                qWarning() << "[store] a video without a path of its own in" << folder.path << video.path;
                continue;
            }
            paths.insert(video.path);
            FileRow file;
            file.folder = folder.path;
            file.path = video.path;
            file.name = FileRow::nameOf(video.path, video.realPath);
            file.suffix = QFileInfo(video.path).suffix().toLower();
            file.stamp = video.stamp;
            files << file;
            found << Found{&video, folder.pathId, 0};
        }
    }
    const QVector<int> ids = m_matcher.match(
        folders, files, [&found](int index) { return ContentKey::ofVideo(*found.at(index).video); },
        m_writer.containers());
    if (m_matcher.isFailed() || !m_heirs.note(m_matcher.lost()) || !replace(m_matcher.earlierMoves()))
        return false;
    for (int index = 0; index < found.size(); ++index) {
        found[index].id = ids.at(index);
        if (ids.at(index) != FileMatcher::kRefused && !write(found.at(index), files.at(index)))
            return false;
    }
    return setLeads(found) && replace(m_matcher.lateMoves()) && m_heirs.settle() && m_writer.finish();
}

bool VideoScan::write(const Found &found, const FileRow &file)
{
    VideoRow row = m_matcher.isNew(found.id) ? VideoRow() : VideoRow::table().find(m_connection, found.id);
    if (row.id == 0) {
        row.id = found.id;
        row.added = m_now;
    }
    const ScannedVideo &video = *found.video;
    if (video.leadPath.isEmpty() && row.path == file.path && row.matched.isEmpty())
        row.matched = m_heirs.matchedBefore(row);
    row.root = found.root;
    row.folder = file.folder;
    row.path = file.path;
    row.suffix = file.suffix;
    row.realPath = video.realPath.isEmpty() ? video.path : video.realPath;
    row.size = video.stamp.size;
    row.modified = video.stamp.modifiedMs;
    row.seen = m_now;
    row.missingSince = 0;
    row.leadId = 0;
    const QString scanned = StoredJson::ofVideo(video);
    if (row.scanned != scanned)
        row.tried = false;
    row.scanned = scanned;
    return m_writer.write(&row);
}

bool VideoScan::setLeads(const QVector<Found> &found)
{
    return std::all_of(found.begin(), found.end(), [this](const Found &version) {
        return version.id == FileMatcher::kRefused || version.video->leadPath.isEmpty()
               || version.video->leadPath == version.video->path || setLead(version);
    });
}

bool VideoScan::setLead(const Found &version)
{
    VideoRow lead = VideoRow::table().findBy(m_connection, QStringLiteral("path"), version.video->leadPath);
    // Without its lead in the library the version stands for itself.
    if (lead.id == 0 || lead.missingSince > 0)
        return true;
    VideoRow row = VideoRow::table().find(m_connection, version.id);
    // What a user chose for the film stays with the film when another of its files leads.
    if (!row.matched.isEmpty() && lead.matched.isEmpty()) {
        std::swap(row.matched, lead.matched);
        if (!m_writer.write(&lead))
            return false;
    } else if (row.matched == lead.matched) {
        row.matched.clear();
    }
    row.leadId = lead.leadId > 0 ? lead.leadId : lead.id;
    return row.leadId == row.id || m_writer.write(&row);
}

bool VideoScan::replace(const QVector<FileMatcher::Move> &moves)
{
    for (const FileMatcher::Move &move : moves) {
        VideoRow row = VideoRow::table().find(m_connection, move.oldId);
        const VideoRow place = VideoRow::table().find(m_connection, move.newId);
        if (row.id == 0 || place.id == 0)
            continue;
        row.root = place.root;
        row.folder = place.folder;
        row.path = place.path;
        row.realPath = place.realPath;
        row.seen = m_now;
        row.missingSince = 0;
        row.leadId = place.leadId;
        row.scanned = place.scanned;
        if (row.matched.isEmpty())
            row.matched = place.matched;
        if (row.provided.isEmpty())
            row.provided = place.provided;
        m_writer.containers()->addVideo(place.showId, place.groupId);
        if (!m_connection.prepare(QStringLiteral("DELETE FROM items WHERE id = ?")).run(place.id)
            || !m_connection.prepare(QStringLiteral("UPDATE items SET lead_id = ? WHERE lead_id = ?"))
                    .run(row.id, place.id)
            || !m_writer.write(&row))
            return false;
    }
    return true;
}

bool VideoScan::forget(int root, const QStringList &folders)
{
    QVector<FileRow> lost;
    for (const QString &folder : folders) {
        const QVector<FileRow> rows = FileTable::videos().below(m_connection, root, folder);
        if (!FileTable::videos().hide(m_connection, rows, m_now, m_writer.containers()))
            return false;
        lost << rows;
    }
    return RemovedFiles::forgetBelow(m_connection, FileTable::videos(), root, folders) && m_heirs.note(lost)
           && replace(m_matcher.lateMoves(lost)) && m_heirs.settle() && m_writer.finish();
}
