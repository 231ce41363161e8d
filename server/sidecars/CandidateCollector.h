// Picks the files and discs out of a folder that become items: no extras, no samples, no parts of discs.
//
// Any thread.
#pragma once

#include "VideoCandidate.h"

#include <QHash>
#include <QSet>

class CandidateCollector final {
public:
    explicit CandidateCollector(const IFolderFiles &files);

    // In the order of their names. NFOs that are named after a file are read into it.
    [[nodiscard]] QVector<VideoCandidate> collect(const FolderListing &listing) const;

private:
    [[nodiscard]] QVector<VideoCandidate> discs(const FolderListing &listing) const;
    // Bytes of the files in the folder itself.
    [[nodiscard]] qint64 sizeOfFiles(const QString &folder) const;

    const IFolderFiles &m_files;
};
