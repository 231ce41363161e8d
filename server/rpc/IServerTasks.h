// The long work that requests start. Every operation returns at once; any thread.
#pragma once

#include <QString>

class IServerTasks {
public:
    virtual ~IServerTasks() = default;

    // Looks for what changed in a library; a request during a scan of it is taken up when that has ended.
    virtual void update(int libraryId) = 0;
    // Cancels a scan, empties what scans can find again and scans anew.
    virtual void rebuild() = 0;
    // Metadata in another language ("en", "zh-TW").
    virtual void updateLanguage(const QString &language) = 0;
    // A folder was added to a library or taken from it.
    virtual void foldersChanged() = 0;
    // One folder of a library is to be scanned, as an update would.
    virtual void rescan(int pathId) = 0;

    // No scan runs and none waits.
    [[nodiscard]] virtual bool isScanFinished() const = 0;
    // True once after the providers ended a round in which they did something.
    [[nodiscard]] virtual bool takeScraperFinished() = 0;
};
