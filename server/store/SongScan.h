// Stores what a scan found of songs. Runs within a transaction of the writer.
#pragma once

#include "FileMatcher.h"
#include "SongWriter.h"

#include "records/ScanRecords.h"

class SongScan final {
public:
    SongScan(Connection &connection, qint64 now);

    [[nodiscard]] bool store(const QVector<ScannedFolder> &folders);
    [[nodiscard]] bool forget(int root, const QStringList &folders);

private:
    [[nodiscard]] bool write(int id, int root, const ScannedSong &song, const FileRow &file);
    [[nodiscard]] bool replace(const QVector<FileMatcher::Move> &moves);

    Connection &m_connection;
    qint64 m_now;
    FileMatcher m_matcher;
    SongWriter m_writer;
};
