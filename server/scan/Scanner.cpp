#include "Scanner.h"

#include <QDebug>
#include <QElapsedTimer>

#include <algorithm>
#include <exception>

namespace {

// The kind of library folder whose films are adult content.
constexpr char AdultScraper[] = "avScraper";

} // namespace

Scanner::Scanner(ILibraryRoots &roots, IScanStore &store, Readers readers, std::shared_ptr<IFileReader> files,
                 Enter enter, ProbePool::Limits limits)
    : m_roots(roots)
    , m_store(store)
    , m_readers(std::move(readers))
    , m_enter(std::move(enter))
    , m_cancelled(std::make_shared<std::atomic<bool>>(false))
    , m_pool(std::move(files), m_cancelled, limits)
{
    qRegisterMetaType<RootScan::Result>();
    m_thread = std::thread([this] { run(); });
}

Scanner::~Scanner()
{
    {
        std::lock_guard lock(m_mutex);
        m_queue.clear();
        m_ends = true;
        cancelRunning();
    }
    m_wake.notify_all();
    m_thread.join();
}

void Scanner::cancelRunning()
{
    *m_cancelled = true;
    m_pool.wake();
}

void Scanner::enqueue(const QVector<Target> &targets, bool isRebuild)
{
    for (const Target &target : targets) {
        const auto waiting = std::find_if(m_queue.begin(), m_queue.end(), [&](const Job &job) {
            return job.target.root.pathId == target.root.pathId;
        });
        if (waiting == m_queue.end()) {
            m_queue.push_back({target, isRebuild});
        } else {
            waiting->target = target;
            waiting->isRebuild |= isRebuild;
        }
    }
}

void Scanner::scan(const QVector<Target> &targets)
{
    {
        std::lock_guard lock(m_mutex);
        enqueue(targets, false);
    }
    m_wake.notify_all();
}

void Scanner::rebuild(const QVector<Target> &targets)
{
    {
        std::lock_guard lock(m_mutex);
        m_queue.clear();
        enqueue(targets, true);
        if (m_isBusy)
            cancelRunning();
    }
    m_wake.notify_all();
}

void Scanner::cancel()
{
    keepOnly({});
}

void Scanner::keepOnly(const QSet<int> &pathIds)
{
    std::lock_guard lock(m_mutex);
    m_queue.erase(std::remove_if(m_queue.begin(), m_queue.end(),
                                 [&](const Job &job) { return !pathIds.contains(job.target.root.pathId); }),
                  m_queue.end());
    if (m_runningPath != -1 && !pathIds.contains(m_runningPath))
        cancelRunning();
}

bool Scanner::isIdle() const
{
    std::lock_guard lock(m_mutex);
    return !m_isBusy && m_queue.empty();
}

ScanCounts Scanner::counts() const
{
    std::lock_guard lock(m_mutex);
    return m_counts;
}

void Scanner::run()
{
    Job job;
    while (takeJob(job)) {
        try {
            scanRoot(job);
        } catch (const std::exception &error) {
            qCritical().noquote() << "[scan]" << job.target.root.path << "ended by:" << error.what();
            m_pool.clear();
        }
    }
}

bool Scanner::takeJob(Job &job)
{
    std::unique_lock lock(m_mutex);
    const bool worked = std::exchange(m_isBusy, false);
    m_runningPath = -1;
    if (worked && m_queue.empty() && !m_ends) {
        lock.unlock();
        emit scanFinished();
        lock.lock();
    }
    m_wake.wait(lock, [this] { return m_ends || !m_queue.empty(); });
    if (m_ends)
        return false;
    job = m_queue.front();
    m_queue.pop_front();
    m_isBusy = true;
    m_runningPath = job.target.root.pathId;
    m_counts = {};
    *m_cancelled = false;
    return true;
}

const IFolderReader &Scanner::readerOf(const Target &target) const
{
    if (target.isMusic)
        return *m_readers.music;
    return target.root.scraperType == QLatin1String(AdultScraper) ? *m_readers.adult : *m_readers.video;
}

void Scanner::scanRoot(const Job &job)
{
    const Target &target = job.target;
    QElapsedTimer timer;
    timer.start();
    RootScan scan(target.root, target.isMusic, m_store, readerOf(target), m_pool, *m_cancelled);
    if (job.isRebuild)
        scan.startAnew();
    const RootScan::Result result = scan.run(m_enter, [this](const ScanCounts &counts) {
        std::lock_guard lock(m_mutex);
        m_counts = counts;
    });
    const bool isOnline = result != RootScan::Result::Offline;
    if (result != RootScan::Result::Cancelled && isOnline != target.root.online)
        m_roots.setOnline(target.root.pathId, isOnline);
    const ScanCounts &counts = scan.counts();
    constexpr const char *texts[] = {"scanned", "cancelled", "cannot be reached, what it holds stays"};
    qInfo().noquote().nospace() << "[scan] " << target.root.path << ": " << texts[int(result)] << ", "
                                << counts.folders << " folders, " << counts.changedFolders << " changed, "
                                << counts.filesRead << " files read, " << timer.elapsed() << " ms";
    emit rootScanned(target.root.pathId, result);
}
