// Finds out which known row each file of a scan is: the one of its path, one that is missing since the file
// was moved, or none, in which case it gets a new id. Runs within a transaction of the writer.
//
// A moved file is known by its size, its time and its suffix, and where several files share these, by its
// name and by what it holds (MovedFiles). It may have been found in its new place before it was missed in the
// old one: then both have a row, and the older one is to take the newer one's place. After scans that did not
// come to their end there may be several such rows of one file, one for each place; the oldest stands for
// all.
#pragma once

#include "FileTable.h"

#include <QPair>
#include <QSet>
#include <QVector>

#include <functional>
#include <limits>

class Connection;
class Containers;

class FileMatcher final {
public:
    // A file that a user took out of the library.
    static constexpr int kRefused = -1;
    // Size and time, suffix and track.
    using Look = QPair<QPair<qint64, qint64>, QPair<QString, int>>;
    struct Move {
        int oldId;
        int newId;
    };

    // The ContentKey of a file of the scan, by its index.
    using ContentOf = std::function<QString(int)>;

    FileMatcher(Connection &connection, const FileTable &table, qint64 now);

    // The ids of the files, which are all that the folders now hold. What has left the folders is hidden.
    // Empty only where there are no files or the database refuses (isFailed()).
    [[nodiscard]] QVector<int> match(const QVector<ScannedFolder> &folders, const QVector<FileRow> &files,
                                     const ContentOf &contentOf, Containers *containers);
    [[nodiscard]] bool isFailed() const { return m_failed; }
    // Whether the id was given by match(), so that no row has it yet.
    [[nodiscard]] bool isNew(int id) const { return id >= m_firstNew; }
    // Rows that are hidden since their files have left the folders.
    [[nodiscard]] const QVector<FileRow> &lost() const { return m_lost; }
    // Rows that are to be taken into older ones before the files are written.
    [[nodiscard]] QVector<Move> earlierMoves() const { return m_earlier; }
    // Rows of the files that left which are to take the place of newer rows.
    [[nodiscard]] QVector<Move> lateMoves() const { return lateMoves(m_lost); }
    [[nodiscard]] QVector<Move> lateMoves(const QVector<FileRow> &lost) const;

private:
    [[nodiscard]] bool hideOthers(const QVector<ScannedFolder> &folders, const QVector<FileRow> &files,
                                  Containers *containers);
    void matchMoves(const QVector<FileRow> &files, const ContentOf &contentOf, QVector<int> *ids);
    void take(const QVector<FileRow> &places);
    void giveNewIds(QVector<int> *ids);

    Connection &m_connection;
    const FileTable &m_table;
    qint64 m_now;
    QVector<FileRow> m_lost;
    QVector<Move> m_earlier;
    QSet<Look> m_told; // looks that several files have, which match() has told apart as far as it can
    int m_firstNew{std::numeric_limits<int>::max()};
    bool m_failed{false};
};
