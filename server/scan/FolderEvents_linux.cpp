#include "FolderEvents.h"

#include <QDebug>
#include <QHash>
#include <QSocketNotifier>
#include <QStringList>

#include <cerrno>
#include <cstring>
#include <mutex>
#include <sys/inotify.h>
#include <unistd.h>

namespace {

// The creation of a file comes before its content: the end of the writing counts as well.
constexpr std::uint32_t Events = IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_CLOSE_WRITE
                                 | IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR | IN_DONT_FOLLOW
                                 | IN_EXCL_UNLINK;
constexpr std::size_t BufferSize = 64 * 1024;

} // namespace

struct FolderEvents::State {
    int handle{-1};
    QSocketNotifier *notifier{nullptr}; // a child of the object
    mutable std::mutex mutex;
    QHash<int, QString> folders;
};

FolderEvents::FolderEvents(QObject *parent)
    : QObject(parent)
    , m_state(std::make_unique<State>())
{
    m_state->handle = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    if (m_state->handle < 0) {
        qWarning() << "[watch] folders cannot be watched:" << std::strerror(errno);
        return;
    }
    m_state->notifier = new QSocketNotifier(m_state->handle, QSocketNotifier::Read, this);
    connect(m_state->notifier, &QSocketNotifier::activated, this, &FolderEvents::readEvents);
}

FolderEvents::~FolderEvents()
{
    delete m_state->notifier;
    if (m_state->handle >= 0)
        ::close(m_state->handle);
}

FolderEvents::Outcome FolderEvents::watch(const QString &folder)
{
    if (m_state->handle < 0)
        return Outcome::LimitReached;
    std::lock_guard lock(m_state->mutex);
    const int watch = ::inotify_add_watch(m_state->handle, folder.toUtf8().constData(), Events);
    if (watch < 0)
        return outcomeOf(errno);
    m_state->folders.insert(watch, folder);
    return Outcome::Watched;
}

FolderEvents::Outcome FolderEvents::outcomeOf(int systemError)
{
    switch (systemError) {
    case ENOSPC:
    case ENOMEM:
        return Outcome::LimitReached;
    case ENOENT:
    case ENOTDIR:
        return Outcome::Gone;
    default:
        return Outcome::Failed;
    }
}

void FolderEvents::forget(const QString &folder)
{
    const QString below = folder + QLatin1Char('/');
    std::lock_guard lock(m_state->mutex);
    for (auto it = m_state->folders.begin(); it != m_state->folders.end();) {
        if (it.value() != folder && !it.value().startsWith(below)) {
            ++it;
            continue;
        }
        ::inotify_rm_watch(m_state->handle, it.key());
        it = m_state->folders.erase(it);
    }
}

int FolderEvents::count() const
{
    std::lock_guard lock(m_state->mutex);
    return m_state->folders.size();
}

void FolderEvents::readEvents()
{
    alignas(inotify_event) char buffer[BufferSize];
    QStringList folders;
    bool isOverflow = false;
    for (ssize_t size = 0; (size = ::read(m_state->handle, buffer, sizeof buffer)) > 0;) {
        std::lock_guard lock(m_state->mutex);
        for (ssize_t at = 0; at + ssize_t(sizeof(inotify_event)) <= size;) {
            inotify_event event = {};
            std::memcpy(&event, buffer + at, sizeof event);
            at += ssize_t(sizeof event + event.len);
            isOverflow = isOverflow || (event.mask & IN_Q_OVERFLOW) != 0;
            const QString folder = m_state->folders.value(event.wd);
            if (!folder.isEmpty() && !folders.contains(folder))
                folders << folder;
            if ((event.mask & IN_IGNORED) != 0)
                m_state->folders.remove(event.wd);
        }
    }
    if (isOverflow)
        emit overflowed();
    for (const QString &folder : qAsConst(folders))
        emit changed(folder);
}
