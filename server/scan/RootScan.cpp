#include "RootScan.h"

#include "DirectoryListing.h"

#include <QDebug>

namespace {

// Folders without files wait behind one with a slow file; not endlessly many of them.
constexpr std::size_t MostPending = 1000;
// So many threads that never came back mean that the folder's disk does not answer.
constexpr int MostStuck = 16;

} // namespace

RootScan::RootScan(const RootFolder &root, bool isMusic, IScanStore &store, const IFolderReader &reader,
                   ProbePool &pool, const std::atomic<bool> &cancelled)
    : m_root(root)
    , m_isMusic(isMusic)
    , m_store(store)
    , m_reader(reader)
    , m_pool(pool)
    , m_cancelled(cancelled)
    , m_plan(store.fingerprints(root.pathId), reader.kind())
    , m_batch(store)
{
}

RootScan::Result RootScan::run(const FolderWalk::Enter &enter,
                               const std::function<void(const ScanCounts &)> &count)
{
    FolderWalk walk(m_cancelled);
    const FolderWalk::Result walked = walk.walk(m_root.path, enter, [&](const auto &folder) {
        const bool goesOn = visit(folder);
        count(m_counts);
        return goesOn;
    });
    const Result result = end(walked);
    count(m_counts);
    return result;
}

bool RootScan::visit(const std::shared_ptr<const WalkedFolder> &folder)
{
    if (!folder->parent && m_plan.looksUnmounted(*folder)) {
        m_isOffline = true;
        return false;
    }
    if (!folder->parent) {
        m_isRootEmpty = folder->entries.isEmpty();
        if (m_startsAnew)
            empty();
    }
    ++m_counts.folders;
    QByteArray fingerprint;
    if (m_plan.take(*folder, fingerprint) && !read(folder, fingerprint))
        return false;
    return handOn(false);
}

void RootScan::empty()
{
    if (m_store.clearForRebuild(m_root.pathId))
        qInfo().noquote() << "[scan]" << m_root.path << "was emptied and is built anew";
    else
        qWarning().noquote() << "[scan]" << m_root.path << "could not be emptied";
    m_plan = FolderPlan(m_store.fingerprints(m_root.pathId), m_reader.kind());
}

bool RootScan::read(const std::shared_ptr<const WalkedFolder> &folder, const QByteArray &fingerprint)
{
    ++m_counts.changedFolders;
    auto work = std::make_shared<FolderWork>();
    work->folder = folder;
    work->result.pathId = m_root.pathId;
    work->result.path = folder->path;
    work->result.fingerprint = fingerprint;
    StoredFolder stored;
    if (m_plan.isKnown(folder->path)) {
        if (m_isMusic)
            stored.songs = m_store.storedSongs(m_root.pathId, folder->path);
        else
            stored.videos = m_store.storedVideos(m_root.pathId, folder->path);
    }
    m_reader.prepare(*work, stored);
    m_counts.filesRead += int(work->tasks.size());
    m_pending.push_back(work);
    return m_pool.submit(work);
}

bool RootScan::handOn(bool all)
{
    while (!m_pending.empty()) {
        const std::shared_ptr<FolderWork> work = m_pending.front();
        if (!m_pool.isDone(work)) {
            if (!all && m_pending.size() < MostPending)
                break;
            if (!m_pool.waitFor(work))
                return false;
        }
        // What a cancelled reading brought is not what the file holds.
        if (isHanging() || m_cancelled)
            return false;
        m_pending.pop_front();
        m_reader.finish(*work);
        m_batch.add(std::move(work->result));
    }
    return true;
}

bool RootScan::isHanging()
{
    m_counts.stuckFiles += m_pool.takeStuck();
    if (m_counts.stuckFiles < MostStuck)
        return false;
    if (!m_isOffline)
        qWarning().noquote() << "[scan]" << m_root.path << "does not answer";
    m_isOffline = true;
    return true;
}

RootScan::Result RootScan::end(FolderWalk::Result walked)
{
    const bool complete = walked == FolderWalk::Result::Complete && handOn(true);
    if (!complete)
        m_pool.clear();
    m_batch.flush();
    if (m_isOffline || walked == FolderWalk::Result::Unreachable)
        return Result::Offline;
    if (!complete)
        return Result::Cancelled;
    const QStringList gone = m_plan.gone();
    // The folders of a disk that is taken out during the walk look removed.
    if (!gone.isEmpty() && !isRootStillThere())
        return Result::Offline;
    if (!gone.isEmpty() && !m_store.forgetFolders(m_root.pathId, gone))
        qWarning() << "[scan] the database did not take" << gone.size() << "folders that are gone";
    m_store.finishScan(m_root.pathId);
    return Result::Complete;
}

bool RootScan::isRootStillThere() const
{
    const DirectoryListing root = DirectoryListing::read(m_root.path);
    return root.outcome == DirectoryListing::Outcome::Read && (m_isRootEmpty || !root.entries.isEmpty());
}
