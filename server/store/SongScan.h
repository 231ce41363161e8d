// Stores what a scan found of songs. Runs within a transaction of the writer.
#pragma once

#include "FileMatcher.h"
#include "SongWriter.h"

#include "records/ScanRecords.h"

class SongScan final {
public:
    // A song with what can be said of it without the database.
    struct Found {
        const ScannedSong *song{nullptr}; // of the folders
        int root{0};
        FileRow file;
        QString scanned; // StoredJson
    };

    SongScan(Connection &connection, qint64 now);

    // Any thread: there is one writer only, and this need not be its work. The folders outlive the result.
    [[nodiscard]] static QVector<Found> prepare(const QVector<ScannedFolder> &folders);
    // found: all that prepare() says of these folders.
    [[nodiscard]] bool store(const QVector<ScannedFolder> &folders, const QVector<Found> &found);
    [[nodiscard]] bool forget(int root, const QStringList &folders);

private:
    [[nodiscard]] bool write(int id, const Found &found);
    [[nodiscard]] bool replace(const QVector<FileMatcher::Move> &moves);

    Connection &m_connection;
    qint64 m_now;
    FileMatcher m_matcher;
    SongWriter m_writer;
};
