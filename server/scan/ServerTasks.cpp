#include "ServerTasks.h"

#include <QDebug>

#include <algorithm>
#include <exception>

ServerTasks::ServerTasks(ILibraryRoots &roots, Scanner &scanner, LibraryWatcher &watcher, Metadata metadata)
    : m_roots(roots)
    , m_scanner(scanner)
    , m_watcher(watcher)
    , m_metadata(std::move(metadata))
{
    connect(&m_scanner, &Scanner::scanFinished, this, &ServerTasks::requestRound);
    connect(&m_scanner, &Scanner::rootScanned, this, [this](int pathId, RootScan::Result result) {
        m_watcher.setOnline(pathId, result != RootScan::Result::Offline);
    });
    connect(&m_watcher, &LibraryWatcher::rootChanged, this, &ServerTasks::rescan);
    m_provider = std::thread([this] { runRounds(); });
}

ServerTasks::~ServerTasks()
{
    {
        std::lock_guard lock(m_mutex);
        m_ends = true;
    }
    m_wake.notify_all();
    if (m_metadata.cancel)
        m_metadata.cancel();
    m_provider.join();
}

void ServerTasks::start()
{
    const QVector<Scanner::Target> all = allTargets();
    {
        std::lock_guard lock(m_mutex);
        for (const Scanner::Target &target : all)
            m_known.insert(target.root.pathId);
    }
    watchRoots();
}

QVector<Scanner::Target> ServerTasks::targets(int libraryId) const
{
    const bool isMusic = libraryId == m_roots.musicLibraryId();
    QVector<Scanner::Target> result;
    for (const RootFolder &root : m_roots.folders(libraryId))
        result.append({root, isMusic});
    return result;
}

QVector<Scanner::Target> ServerTasks::allTargets() const
{
    return targets(m_roots.videoLibraryId()) + targets(m_roots.musicLibraryId());
}

void ServerTasks::update(int libraryId)
{
    m_scanner.scan(targets(libraryId));
}

void ServerTasks::rebuild()
{
    if (m_metadata.cancel)
        m_metadata.cancel();
    m_scanner.rebuild(allTargets());
}

void ServerTasks::updateLanguage(const QString &language)
{
    if (m_metadata.setLanguage)
        m_metadata.setLanguage(language);
    requestRound();
}

void ServerTasks::foldersChanged()
{
    const QVector<Scanner::Target> all = allTargets();
    QSet<int> ids;
    QVector<Scanner::Target> added;
    {
        std::lock_guard lock(m_mutex);
        for (const Scanner::Target &target : all) {
            ids.insert(target.root.pathId);
            if (!m_known.contains(target.root.pathId))
                added.append(target);
        }
        m_known = ids;
    }
    m_scanner.keepOnly(ids);
    m_scanner.scan(added);
    QMetaObject::invokeMethod(this, &ServerTasks::watchRoots, Qt::QueuedConnection);
}

bool ServerTasks::isScanFinished() const
{
    return m_scanner.isIdle();
}

bool ServerTasks::takeScraperFinished()
{
    return m_scraperFinished.exchange(false);
}

void ServerTasks::rescan(int pathId)
{
    for (const Scanner::Target &target : allTargets()) {
        if (target.root.pathId == pathId)
            m_scanner.scan({target});
    }
}

void ServerTasks::watchRoots()
{
    QVector<RootFolder> roots;
    for (const Scanner::Target &target : allTargets())
        roots << target.root;
    m_watcher.setRoots(roots);
}

void ServerTasks::requestRound()
{
    {
        std::lock_guard lock(m_mutex);
        m_isRoundWanted = true;
    }
    m_wake.notify_all();
}

void ServerTasks::runRounds()
{
    std::unique_lock lock(m_mutex);
    while (true) {
        m_wake.wait(lock, [this] { return m_ends || m_isRoundWanted; });
        if (m_ends)
            return;
        m_isRoundWanted = false;
        if (!m_metadata.round)
            continue;
        // With the lock held: an end that is asked for from here on cancels the round that begins.
        if (m_metadata.resume)
            m_metadata.resume();
        lock.unlock();
        bool done = false;
        try {
            done = m_metadata.round();
        } catch (const std::exception &error) {
            qWarning().noquote() << "[metadata] a round was ended by:" << error.what();
        }
        if (done)
            m_scraperFinished = true;
        emit metadataRoundEnded(done);
        lock.lock();
    }
}
