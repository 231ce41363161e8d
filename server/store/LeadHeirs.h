// Who leads the versions and parts of a film whose leading file has gone, and what a user chose for that
// film.
//
// Versions lie in one folder and are found together. Parts may lie in folders of their own, which are not
// read again because another one is gone: without an heir they would stay hidden behind a file that is no
// more. Runs within a transaction of the writer.
#pragma once

#include "FileTable.h"
#include "VideoRows.h"

#include <QVector>

class VideoWriter;

class LeadHeirs final {
public:
    LeadHeirs(Connection &connection, VideoWriter &writer);

    // Notes who stands behind the files that have left. To be called before rows are written anew.
    [[nodiscard]] bool note(const QVector<FileRow> &lost);
    // What a part that is about to stand for itself takes along from the file that it stood behind: a scan
    // comes by the part before it misses that file. The row as it was before the scan; empty for nothing.
    [[nodiscard]] QString matchedBefore(const VideoRow &part) const;
    // Once all rows are written: whoever stood behind a file that is still missing gets another lead or
    // becomes one, and the lead has what the user chose.
    [[nodiscard]] bool settle();

private:
    struct Inheritance {
        int leadId;
        QVector<int> heirs; // by path
    };

    [[nodiscard]] bool settle(const Inheritance &inheritance);

    Connection &m_connection;
    VideoWriter &m_writer;
    QVector<Inheritance> m_inheritances;
};
