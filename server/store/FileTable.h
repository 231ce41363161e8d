// What the tables of videos and of songs have in common: rows that stand for files, which appear, move and go
// missing. A missing file's row is hidden and kept. All operations run within a transaction of the writer.
#pragma once

#include "records/LibraryRecords.h"
#include "records/ScanRecords.h"

#include <QString>
#include <QStringList>
#include <QVector>

class Connection;
class Containers;
class Statement;

struct FileRow {
    int id{0};
    QString folder;
    QString path;
    QString name; // of the file, or of the folder that holds a disc
    QString suffix;
    int track{-1};
    FileStamp stamp;
    qint64 added{0};
    qint64 seen{0}; // when a scan last found it
    bool missing{false};
    QString content; // ContentKey, filled in only where files look alike

    // A disc's path on the wire is not that of what stands on disk, which is called alike for all discs.
    [[nodiscard]] static QString nameOf(const QString &path, const QString &realPath);
};

class FileTable final {
public:
    [[nodiscard]] static const FileTable &videos();
    [[nodiscard]] static const FileTable &songs();
    // Whether the path is the folder or lies in it, at any depth.
    [[nodiscard]] static bool isBelow(const QString &path, const QString &folder);

    [[nodiscard]] QString name() const { return m_name; }
    // 0: none. Asked for each file of a scan.
    [[nodiscard]] int idAt(Connection &connection, const QString &path, int track) const;
    [[nodiscard]] QVector<FileRow> inFolder(Connection &connection, int root, const QString &folder) const;
    // Rows, missing or present ones, of files that look the same: size, time, suffix and track. None for
    // empty files, and not more than the number.
    [[nodiscard]] QVector<FileRow> alike(Connection &connection, const FileRow &file, bool missing,
                                         int most) const;
    // False only when no row is missing, so that alike() need not be asked for each file.
    [[nodiscard]] bool mayMissAny(Connection &connection) const;
    // Fills in FileRow::content.
    void addContent(Connection &connection, QVector<FileRow> *rows) const;
    [[nodiscard]] bool isVideos() const { return m_isVideos; }
    // The present rows of a root's folder and of all below it; of the whole root without a folder.
    [[nodiscard]] QVector<FileRow> below(Connection &connection, int root, const QString &folder = {}) const;

    [[nodiscard]] bool hide(Connection &connection, const QVector<FileRow> &rows, qint64 now,
                            Containers *containers) const;
    [[nodiscard]] bool hideRoot(Connection &connection, int root, qint64 now) const;
    // Hides all of the root and forgets what was scanned of it, so that it is read again.
    [[nodiscard]] bool clearRoot(Connection &connection, int root, qint64 now) const;
    // What lies below the folder belongs to the other root from now on.
    [[nodiscard]] bool moveToRoot(Connection &connection, int from, int to, const QString &folder) const;
    // Rows of the root, and of roots that are no more, that were missing before the time.
    [[nodiscard]] bool dropMissing(Connection &connection, int root, qint64 before) const;

    // Takes the row out for good. A file that stays on disk stays out as long as it does not change.
    [[nodiscard]] bool remove(Connection &connection, const FileRow &row, Removal removal,
                              Containers *containers) const;
    [[nodiscard]] FileRow row(Connection &connection, int id) const;

private:
    FileTable(const QString &name, const QString &track, const QString &realPath,
              const QStringList &containers);
    [[nodiscard]] static FileRow read(const Statement &statement);
    [[nodiscard]] static QVector<FileRow> readAll(Statement *statement);
    [[nodiscard]] bool noteContainers(Connection &connection, int id, Containers *containers) const;

    QString m_name;
    QString m_track; // the column, or what stands for it
    QString m_select;
    QString m_idAt;
    QString m_containers; // the columns of the ids that are counted over the rows
    bool m_isVideos;
};
