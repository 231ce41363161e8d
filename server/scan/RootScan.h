// One scan of one library folder: walks it, reads what changed, and hands whole folders to the database in
// the order of the walk.
//
// Everything in it belongs to the thread of the scan. Nothing is stored of a folder whose files were not read
// to the end, so a scan that was cancelled or killed goes on where it was.
#pragma once

#include "FolderPlan.h"
#include "FolderWalk.h"
#include "FolderWork.h"
#include "ProbePool.h"
#include "ScanBatch.h"

#include "records/LibraryRecords.h"
#include "store/IScanStore.h"

#include <deque>

struct ScanCounts {
    int folders{0};        // walked
    int changedFolders{0}; // of them read
    int filesRead{0};      // opened
    int stuckFiles{0};     // given up
};

class RootScan final {
public:
    enum class Result { Complete, Cancelled, Offline };

    RootScan(const RootFolder &root, bool isMusic, IScanStore &store, const IFolderReader &reader,
             ProbePool &pool, const std::atomic<bool> &cancelled);

    // The scan empties the library folder once it is found reachable and not suddenly empty.
    void startAnew() { m_startsAnew = true; }
    // enter: see FolderWalk. count: called with each folder.
    Result run(const FolderWalk::Enter &enter, const std::function<void(const ScanCounts &)> &count);
    [[nodiscard]] const ScanCounts &counts() const { return m_counts; }

private:
    bool visit(const std::shared_ptr<const WalkedFolder> &folder);
    void empty();
    bool read(const std::shared_ptr<const WalkedFolder> &folder, const QByteArray &fingerprint);
    // Hands on what is done, from the front; with all, waits for it.
    bool handOn(bool all);
    [[nodiscard]] bool isHanging();
    Result end(FolderWalk::Result walked);
    [[nodiscard]] bool isRootStillThere() const;

    RootFolder m_root;
    bool m_isMusic;
    IScanStore &m_store;
    const IFolderReader &m_reader;
    ProbePool &m_pool;
    const std::atomic<bool> &m_cancelled;
    FolderPlan m_plan;
    ScanBatch m_batch;
    std::deque<std::shared_ptr<FolderWork>> m_pending;
    ScanCounts m_counts;
    bool m_startsAnew{false};
    bool m_isRootEmpty{false};
    bool m_isOffline{false};
};
