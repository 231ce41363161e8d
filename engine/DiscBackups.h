// The backups by their drives, one a drive. Every operation may be called from any thread.
#pragma once

#include "DiscBackup.h"
#include "DriveTable.h"
#include "LogOnce.h"

#include <memory>
#include <mutex>
#include <string>
#include <vector>

class DiscBackups final {
public:
    explicit DiscBackups(const DriveTable &drives)
        : m_drives(drives)
    {
    }
    DiscBackups(const DiscBackups &) = delete;
    DiscBackups &operator=(const DiscBackups &) = delete;

    // A drive is a letter or a path. False when it holds no disc, when a backup of it or into the same target
    // runs, and when the target cannot be written or exists and must not be replaced. A folder that holds the
    // files of a disc is refused, and the log tells so once: it has no sectors to copy.
    bool start(const std::string &drive, const std::string &target, bool replace);
    // Waits until the file of an unfinished backup is gone.
    void stop(const std::string &drive);
    void stopAll();

    // 0 to 1.0, -1 without a backup.
    [[nodiscard]] double progress(const std::string &drive) const;
    [[nodiscard]] bool isFinished(const std::string &drive) const;
    [[nodiscard]] bool isFailed(const std::string &drive) const;

private:
    struct Job {
        std::string drive; // letter, or the path
        std::string path;  // what stood behind it at the start
        std::string target;
        std::shared_ptr<DiscBackup> backup;
    };

    [[nodiscard]] static std::string nameOf(const std::string &drive);
    [[nodiscard]] std::vector<Job>::const_iterator find(const std::string &drive) const;
    [[nodiscard]] bool isWritten(const std::string &target) const;
    [[nodiscard]] std::shared_ptr<DiscBackup> backupOf(const std::string &drive) const;

    const DriveTable &m_drives;
    // One start at a time: opening a disc takes its time, and two must not pass the same check.
    std::mutex m_startMutex;
    mutable std::mutex m_mutex;
    std::vector<Job> m_jobs;
    LogOnce m_log;
};
