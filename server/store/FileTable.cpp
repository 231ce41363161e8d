#include "FileTable.h"

#include "Connection.h"
#include "Containers.h"
#include "ContentKey.h"
#include "RemovedFiles.h"
#include "StoredJson.h"

#include <QFileInfo>

namespace {

// The first text after all that begin with "folder/": the character after the slash stands in its place.
QString endOf(const QString &folder)
{
    return folder + QLatin1Char('0');
}

// As a folder that others are appended to; the root of a file system ends with its slash already.
QString bare(const QString &folder)
{
    return folder.endsWith(QLatin1Char('/')) ? folder.chopped(1) : folder;
}

} // namespace

QString FileRow::nameOf(const QString &path, const QString &realPath)
{
    const QLatin1Char slash('/');
    const bool isDisc = !realPath.isEmpty() && realPath != path;
    return isDisc ? path.section(slash, -2, -2) : path.section(slash, -1);
}

FileTable::FileTable(const QString &name, const QString &track, const QString &realPath,
                     const QStringList &containers)
    : m_name(name)
    , m_track(track)
    , m_select(
          QStringLiteral(
              "SELECT id, folder, path, suffix, %1, size, modified, added, seen, missing_since, %2 FROM %3 ")
              .arg(track, realPath, name))
    , m_idAt(QStringLiteral("SELECT id FROM %2 WHERE path = ? AND %1 = ?").arg(track, name))
    , m_containers(containers.join(QStringLiteral(", ")))
    , m_isVideos(containers.size() > 1)
{
}

const FileTable &FileTable::videos()
{
    static const FileTable table(QStringLiteral("items"), QStringLiteral("-1"), QStringLiteral("real_path"),
                                 {QStringLiteral("show_id"), QStringLiteral("group_id")});
    return table;
}

const FileTable &FileTable::songs()
{
    static const FileTable table(QStringLiteral("songs"), QStringLiteral("track"), QStringLiteral("path"),
                                 {QStringLiteral("album_id")});
    return table;
}

bool FileTable::isBelow(const QString &path, const QString &folder)
{
    return path == folder || path.startsWith(bare(folder) + QLatin1Char('/'));
}

FileRow FileTable::read(const Statement &statement)
{
    FileRow row;
    row.id = statement.integer(0);
    row.folder = statement.text(1);
    row.path = statement.text(2);
    row.suffix = statement.text(3);
    row.track = statement.integer(4);
    row.stamp = {statement.number(5), statement.number(6)};
    row.added = statement.number(7);
    row.seen = statement.number(8);
    row.missing = statement.number(9) != 0;
    row.name = FileRow::nameOf(row.path, statement.text(10));
    return row;
}

QVector<FileRow> FileTable::readAll(Statement *statement)
{
    QVector<FileRow> rows;
    while (statement->next())
        rows << read(*statement);
    return rows;
}

FileRow FileTable::row(Connection &connection, int id) const
{
    Statement statement = connection.prepare(m_select + QStringLiteral("WHERE id = ?"));
    return statement.run(id) && statement.next() ? read(statement) : FileRow();
}

int FileTable::idAt(Connection &connection, const QString &path, int track) const
{
    Statement statement = connection.prepare(m_idAt);
    return statement.run(path, track) && statement.next() ? statement.integer(0) : 0;
}

QVector<FileRow> FileTable::inFolder(Connection &connection, int root, const QString &folder) const
{
    Statement statement = connection.prepare(m_select + QStringLiteral("WHERE folder = ? AND root = ?"));
    return statement.run(folder, root) ? readAll(&statement) : QVector<FileRow>();
}

QVector<FileRow> FileTable::alike(Connection &connection, const FileRow &file, bool missing, int most) const
{
    if (file.stamp.size <= 0)
        return {};
    Statement statement = connection.prepare(
        m_select
        + QStringLiteral(
              "WHERE size = ? AND modified = ? AND suffix = ? AND %1 = ? AND missing_since %2 0 LIMIT ?")
              .arg(m_track, missing ? QStringLiteral(">") : QStringLiteral("=")));
    if (!statement.run(file.stamp.size, file.stamp.modifiedMs, file.suffix, file.track, most))
        return {};
    return readAll(&statement);
}

bool FileTable::mayMissAny(Connection &connection) const
{
    // The index over what is missing begins with the kind there.
    if (m_isVideos)
        return true;
    Statement statement =
        connection.prepare(QStringLiteral("SELECT 1 FROM %1 WHERE missing_since > 0 LIMIT 1").arg(m_name));
    return !statement.run() || statement.next();
}

void FileTable::addContent(Connection &connection, QVector<FileRow> *rows) const
{
    for (FileRow &row : *rows) {
        Statement read =
            connection.prepare(QStringLiteral("SELECT scanned FROM %1 WHERE id = ?").arg(m_name));
        if (!read.run(row.id) || !read.next())
            continue;
        row.content = m_isVideos ? ContentKey::ofVideo(StoredJson::video(read.text(0)))
                                 : ContentKey::ofSong(StoredJson::song(read.text(0)));
    }
}

QVector<FileRow> FileTable::below(Connection &connection, int root, const QString &folder) const
{
    if (folder.isEmpty()) {
        Statement statement =
            connection.prepare(m_select + QStringLiteral("WHERE root = ? AND missing_since = 0"));
        return statement.run(root) ? readAll(&statement) : QVector<FileRow>();
    }
    Statement statement = connection.prepare(
        m_select
        + QStringLiteral(
            "WHERE (folder = ? OR (folder >= ? AND folder < ?)) AND root = ? AND +missing_since = 0"));
    const QString name = bare(folder);
    return statement.run(folder, QString(name + QLatin1Char('/')), endOf(name), root) ? readAll(&statement)
                                                                                      : QVector<FileRow>();
}

bool FileTable::noteContainers(Connection &connection, int id, Containers *containers) const
{
    Statement statement =
        connection.prepare(QStringLiteral("SELECT %1 FROM %2 WHERE id = ?").arg(m_containers, m_name));
    if (!statement.run(id))
        return false;
    while (statement.next()) {
        if (m_isVideos)
            containers->addVideo(statement.integer(0), statement.integer(1));
        else
            containers->addAlbum(statement.integer(0));
    }
    return true;
}

bool FileTable::hide(Connection &connection, const QVector<FileRow> &rows, qint64 now,
                     Containers *containers) const
{
    for (const FileRow &row : rows) {
        Statement hide =
            connection.prepare(QStringLiteral("UPDATE %1 SET missing_since = ? WHERE id = ?").arg(m_name));
        if (!noteContainers(connection, row.id, containers) || !hide.run(now, row.id))
            return false;
    }
    return true;
}

bool FileTable::hideRoot(Connection &connection, int root, qint64 now) const
{
    Containers containers;
    return hide(connection, below(connection, root), now, &containers) && containers.refresh(connection);
}

bool FileTable::clearRoot(Connection &connection, int root, qint64 now) const
{
    return hideRoot(connection, root, now)
           && connection.prepare(QStringLiteral("UPDATE %1 SET scanned = '' WHERE root = ?").arg(m_name))
                  .run(root);
}

bool FileTable::moveToRoot(Connection &connection, int from, int to, const QString &folder) const
{
    const QString name = bare(folder);
    return connection
        .prepare(QStringLiteral("UPDATE %1 SET root = ? WHERE root = ? "
                                "AND (folder = ? OR (folder >= ? AND folder < ?))")
                     .arg(m_name))
        .run(to, from, folder, QString(name + QLatin1Char('/')), endOf(name));
}

bool FileTable::dropMissing(Connection &connection, int root, qint64 before) const
{
    return connection
        .prepare(QStringLiteral("DELETE FROM %1 WHERE missing_since > 0 AND missing_since < ? "
                                "AND (root = ? OR root NOT IN (SELECT id FROM roots))")
                     .arg(m_name))
        .run(before, root);
}

bool FileTable::remove(Connection &connection, const FileRow &row, Removal removal,
                       Containers *containers) const
{
    // Of a sheet with several tracks the file stays as long as one of them does.
    const bool isGone = removal == Removal::WithFile && !QFileInfo::exists(row.path);
    return noteContainers(connection, row.id, containers)
           && (isGone || RemovedFiles::add(connection, *this, row))
           && connection.prepare(QStringLiteral("DELETE FROM %1 WHERE id = ?").arg(m_name)).run(row.id);
}
