// The thread that scans: takes library folders one after the other from a queue.
//
// Owns its thread, the pool of reading threads and the queue. All operations are safe on any thread and
// return at once; signals come from the thread of the scan.
#pragma once

#include "ProbePool.h"
#include "RootScan.h"

#include "store/ILibraryRoots.h"

#include <QObject>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

class Scanner final : public QObject {
    Q_OBJECT

public:
    struct Target {
        RootFolder root;
        bool isMusic{false};
    };
    // What makes records of folders, by the kind of library folder.
    struct Readers {
        std::shared_ptr<const IFolderReader> music;
        std::shared_ptr<const IFolderReader> video;
        std::shared_ptr<const IFolderReader> adult;
    };
    // Called on the thread of the scan with each folder before it is listed.
    using Enter = std::function<void(const QString &folder)>;

    Scanner(ILibraryRoots &roots, IScanStore &store, Readers readers, std::shared_ptr<IFileReader> files,
            Enter enter = {}, ProbePool::Limits limits = {});
    // Cancels and waits.
    ~Scanner() override;

    // One that waits already is not queued twice and is read as it is now; one that is being scanned is
    // scanned again when that has ended.
    void scan(const QVector<Target> &targets);
    // Cancels everything, then scans these as if nothing were known of them. One that cannot be reached, or
    // is suddenly empty, keeps what it held.
    void rebuild(const QVector<Target> &targets);
    // What runs is ended at its next file, what waits is let go.
    void cancel();
    // The same for all folders but these.
    void keepOnly(const QSet<int> &pathIds);

    // Nothing runs and nothing waits.
    [[nodiscard]] bool isIdle() const;
    // Of the scan that runs, or of the last one.
    [[nodiscard]] ScanCounts counts() const;

signals:
    void rootScanned(int pathId, RootScan::Result result);
    // The queue is empty.
    void scanFinished();

private:
    struct Job {
        Target target;
        bool isRebuild{false};
    };

    void run();
    bool takeJob(Job &job);
    [[nodiscard]] const IFolderReader &readerOf(const Target &target) const;
    void scanRoot(const Job &job);
    // With the lock held.
    void enqueue(const QVector<Target> &targets, bool isRebuild);
    void cancelRunning();

    ILibraryRoots &m_roots;
    IScanStore &m_store;
    Readers m_readers;
    Enter m_enter;
    ProbePool::CancelFlag m_cancelled;
    ProbePool m_pool;

    mutable std::mutex m_mutex;
    std::condition_variable m_wake;
    std::deque<Job> m_queue;
    int m_runningPath{-1}; // path id, -1 while nothing runs
    bool m_isBusy{false};
    bool m_ends{false};
    ScanCounts m_counts;

    std::thread m_thread; // last: it uses all of the above
};

Q_DECLARE_METATYPE(RootScan::Result)
