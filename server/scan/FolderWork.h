// A changed folder on its way through a scan, and the interface of what makes records of it.
#pragma once

#include "FileFacts.h"
#include "WalkedFolder.h"

#include "records/ScanRecords.h"

#include <memory>
#include <vector>

struct FolderWork {
    std::shared_ptr<const WalkedFolder> folder;
    // Filled by prepare() with all but what stands inside the files.
    ScannedFolder result;
    // What has to be opened, and, in the same order, what was found there.
    std::vector<FileTask> tasks;
    std::vector<FileFacts> facts;
    int waiting{0}; // of the tasks; kept by the pool under its lock
};

// What is stored for a folder from an earlier scan; only one of the lists is filled.
struct StoredFolder {
    QVector<ScannedSong> songs;
    QVector<ScannedVideo> videos;
};

// Called from the thread of the scan.
class IFolderReader {
public:
    virtual ~IFolderReader() = default;

    // Empty for the usual one: folders that were read by a reader of another kind are read again.
    [[nodiscard]] virtual QByteArray kind() const { return {}; }
    // Names and sidecars only: no media file is opened.
    virtual void prepare(FolderWork &work, const StoredFolder &stored) const = 0;
    // Puts what the files said where prepare() left it open.
    virtual void finish(FolderWork &work) const = 0;
};
