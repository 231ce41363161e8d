#include "LibraryWatcher.h"

#include <QDebug>
#include <QDir>

#include <algorithm>

LibraryWatcher::LibraryWatcher(Intervals intervals, std::unique_ptr<FolderEvents> events)
    : m_intervals(intervals)
    , m_events(std::move(events))
{
    m_quiet.setSingleShot(true);
    m_periodic.setInterval(m_intervals.periodicMs);
    connect(&m_quiet, &QTimer::timeout, this, &LibraryWatcher::reportQuiet);
    connect(&m_periodic, &QTimer::timeout, this, &LibraryWatcher::lookAgain);
    connect(m_events.get(), &FolderEvents::changed, this, &LibraryWatcher::noteChange);
    connect(m_events.get(), &FolderEvents::overflowed, this, &LibraryWatcher::noteAll);
}

void LibraryWatcher::setRoots(const QVector<RootFolder> &roots)
{
    QHash<int, QString> next;
    for (const RootFolder &root : roots)
        next.insert(root.pathId, QDir::cleanPath(root.path));
    for (auto root = m_roots.cbegin(); root != m_roots.cend(); ++root) {
        if (next.value(root.key()) == root.value())
            continue;
        m_events->forget(root.value());
        m_waiting.remove(root.key());
        m_offline.remove(root.key());
    }
    m_roots = next;
    updatePeriodic();
}

void LibraryWatcher::watch(const QString &folder)
{
    const FolderEvents::Outcome outcome = m_events->watch(folder);
    if (outcome == FolderEvents::Outcome::Watched || outcome == FolderEvents::Outcome::Gone)
        return;
    // One line of each kind: a library beyond the limit has thousands of such folders.
    if (outcome == FolderEvents::Outcome::LimitReached && !m_hasToldLimit.exchange(true)) {
        qWarning() << "[watch] the system watches no more folders; the library is scanned periodically "
                      "instead";
    } else if (outcome == FolderEvents::Outcome::Failed && !m_hasToldFailure.exchange(true)) {
        qInfo().noquote()
            << "[watch] a folder cannot be watched; the library is scanned periodically instead:" << folder
            << "(others like it are not named)";
    }
    if (!m_isBlind.exchange(true))
        QMetaObject::invokeMethod(this, &LibraryWatcher::updatePeriodic, Qt::QueuedConnection);
}

void LibraryWatcher::setOnline(int pathId, bool online)
{
    if (online || !m_roots.contains(pathId))
        m_offline.remove(pathId);
    else
        m_offline.insert(pathId);
    updatePeriodic();
}

void LibraryWatcher::updatePeriodic()
{
    if (!m_isBlind && m_offline.isEmpty())
        m_periodic.stop();
    else if (!m_periodic.isActive())
        m_periodic.start();
}

void LibraryWatcher::lookAgain()
{
    // The scan that follows tries to watch every folder again, and says so here where it cannot.
    if (m_isBlind.exchange(false)) {
        noteAll();
    } else {
        for (const int pathId : qAsConst(m_offline))
            noteRoot(pathId);
    }
    updatePeriodic();
}

void LibraryWatcher::noteChange(const QString &folder)
{
    for (auto root = m_roots.cbegin(); root != m_roots.cend(); ++root) {
        if (folder == root.value() || folder.startsWith(root.value() + QLatin1Char('/')))
            noteRoot(root.key());
    }
}

void LibraryWatcher::noteRoot(int pathId)
{
    Waiting &waiting = m_waiting[pathId];
    if (!waiting.first.isValid())
        waiting.first.start();
    waiting.last.start();
    if (!m_quiet.isActive())
        m_quiet.start(m_intervals.quietMs);
}

void LibraryWatcher::noteAll()
{
    for (auto root = m_roots.cbegin(); root != m_roots.cend(); ++root)
        noteRoot(root.key());
}

void LibraryWatcher::reportQuiet()
{
    QVector<int> ready;
    qint64 next = m_intervals.quietMs;
    for (auto it = m_waiting.begin(); it != m_waiting.end();) {
        const qint64 left = m_intervals.quietMs - it->last.elapsed();
        if (left > 0 && it->first.elapsed() < m_intervals.longestWaitMs) {
            next = std::min(next, left);
            ++it;
            continue;
        }
        ready << it.key();
        it = m_waiting.erase(it);
    }
    if (!m_waiting.isEmpty())
        m_quiet.start(int(next));
    for (const int pathId : qAsConst(ready))
        emit rootChanged(pathId);
}
