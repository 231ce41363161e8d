// A bounded number of threads that read media files, each file under a deadline.
//
// A thread that hangs in a library or in the kernel is not waited for: its file counts as unreadable, another
// thread takes its place, and what it still brings is thrown away. All operations belong to one thread, that
// of the scan, but for wake().
#pragma once

#include "FolderWork.h"

#include <atomic>
#include <chrono>
#include <memory>

class ProbePool final {
public:
    using CancelFlag = std::shared_ptr<std::atomic<bool>>;
    struct Limits {
        int workers{0};                                            // 0: as many as the machine runs at once
        std::chrono::milliseconds perFile{MediaDeadline::PerFile}; // then the reading itself gives up
        std::chrono::milliseconds grace{2000};                     // and then the thread is given up
    };

    ProbePool(std::shared_ptr<IFileReader> reader, CancelFlag cancelled, Limits limits);
    // Waits for the threads that are not stuck.
    ~ProbePool();
    ProbePool(const ProbePool &) = delete;
    ProbePool &operator=(const ProbePool &) = delete;

    // Takes all files of the folder; waits while too many are in the queue. False when cancelled.
    bool submit(const std::shared_ptr<FolderWork> &work);
    [[nodiscard]] bool isDone(const std::shared_ptr<FolderWork> &work) const;
    // Waits until it is done. False when cancelled.
    bool waitFor(const std::shared_ptr<FolderWork> &work);
    // Lets go of everything that is not being read yet.
    void clear();

    // Threads given up since the last call.
    [[nodiscard]] int takeStuck();
    // Any thread: the flag was set.
    void wake();

private:
    struct State;
    template<typename Condition>
    bool waitUntil(Condition condition);
    [[nodiscard]] MediaDeadline::Clock::time_point nextStuck() const;
    void replaceStuck();
    void startWorker();

    std::shared_ptr<State> m_state;
    int m_workers{1};
};
