#include "FolderEvents.h"

#include <QDir>
#include <QHash>
#include <QWinEventNotifier>

#include <mutex>
#include <windows.h>

// Windows watches a whole tree with one handle. The library folder is entered before what lies below it, so a
// folder that is covered by a watched one needs none of its own.

namespace {

constexpr DWORD Events = FILE_NOTIFY_CHANGE_FILE_NAME | FILE_NOTIFY_CHANGE_DIR_NAME | FILE_NOTIFY_CHANGE_SIZE
                         | FILE_NOTIFY_CHANGE_LAST_WRITE;

bool covers(const QString &folder, const QString &path)
{
    return path == folder || path.startsWith(folder + QLatin1Char('/'));
}

} // namespace

struct FolderEvents::State {
    struct Tree {
        HANDLE handle{INVALID_HANDLE_VALUE};
        QWinEventNotifier *notifier{nullptr};
    };
    mutable std::mutex mutex;
    QHash<QString, Tree> trees;

    static void close(const Tree &tree)
    {
        if (tree.notifier)
            tree.notifier->deleteLater();
        FindCloseChangeNotification(tree.handle);
    }
};

FolderEvents::FolderEvents(QObject *parent)
    : QObject(parent)
    , m_state(std::make_unique<State>())
{
}

FolderEvents::~FolderEvents()
{
    for (const State::Tree &tree : qAsConst(m_state->trees)) {
        delete tree.notifier;
        FindCloseChangeNotification(tree.handle);
    }
}

FolderEvents::Outcome FolderEvents::watch(const QString &folder)
{
    std::lock_guard lock(m_state->mutex);
    for (auto tree = m_state->trees.cbegin(); tree != m_state->trees.cend(); ++tree) {
        if (covers(tree.key(), folder))
            return Outcome::Watched;
    }
    const std::wstring name = QDir::toNativeSeparators(folder).toStdWString();
    const HANDLE handle = FindFirstChangeNotificationW(name.c_str(), TRUE, Events);
    if (handle == INVALID_HANDLE_VALUE)
        return outcomeOf(int(GetLastError()));
    m_state->trees.insert(folder, {handle, nullptr});
    // A notifier belongs to the thread of the object.
    QMetaObject::invokeMethod(
        this,
        [this, folder, handle] {
            std::lock_guard inner(m_state->mutex);
            const auto tree = m_state->trees.find(folder);
            if (tree == m_state->trees.end() || tree->handle != handle)
                return;
            tree->notifier = new QWinEventNotifier(handle, this);
            connect(tree->notifier, &QWinEventNotifier::activated, this, [this, folder, handle] {
                FindNextChangeNotification(handle);
                emit changed(folder);
            });
        },
        Qt::QueuedConnection);
    return Outcome::Watched;
}

FolderEvents::Outcome FolderEvents::outcomeOf(int systemError)
{
    switch (DWORD(systemError)) {
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_NO_SYSTEM_RESOURCES:
    case ERROR_TOO_MANY_OPEN_FILES:
        return Outcome::LimitReached;
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_DIRECTORY:
        return Outcome::Gone;
    default:
        return Outcome::Failed;
    }
}

void FolderEvents::forget(const QString &folder)
{
    std::lock_guard lock(m_state->mutex);
    for (auto tree = m_state->trees.begin(); tree != m_state->trees.end();) {
        if (!covers(folder, tree.key())) {
            ++tree;
            continue;
        }
        State::close(*tree);
        tree = m_state->trees.erase(tree);
    }
}

int FolderEvents::count() const
{
    std::lock_guard lock(m_state->mutex);
    return m_state->trees.size();
}

void FolderEvents::readEvents() {}
