// Stores what a scan found of videos and shows. Runs within a transaction of the writer.
#pragma once

#include "FileMatcher.h"
#include "LeadHeirs.h"
#include "VideoWriter.h"

#include "records/ScanRecords.h"

class VideoScan final {
public:
    VideoScan(Connection &connection, qint64 now);

    [[nodiscard]] bool store(const QVector<ScannedFolder> &folders);
    [[nodiscard]] bool forget(int root, const QStringList &folders);

private:
    struct Found {
        const ScannedVideo *video;
        int root;
        int id;
    };

    [[nodiscard]] bool write(const Found &found, const FileRow &file);
    [[nodiscard]] bool setLeads(const QVector<Found> &found);
    [[nodiscard]] bool setLead(const Found &version);
    [[nodiscard]] bool replace(const QVector<FileMatcher::Move> &moves);

    Connection &m_connection;
    qint64 m_now;
    FileMatcher m_matcher;
    VideoWriter m_writer;
    LeadHeirs m_heirs;
};
