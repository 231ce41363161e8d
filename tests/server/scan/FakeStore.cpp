#include "FakeStore.h"

QHash<QString, QByteArray> FakeStore::fingerprints(int pathId) const
{
    std::lock_guard lock(m_mutex);
    QHash<QString, QByteArray> result;
    for (const auto &[place, folder] : m_folders) {
        if (place.first == pathId)
            result.insert(place.second, folder.fingerprint);
    }
    return result;
}

QVector<ScannedSong> FakeStore::storedSongs(int pathId, const QString &folder) const
{
    std::lock_guard lock(m_mutex);
    const auto found = m_folders.find({pathId, folder});
    return found == m_folders.end() ? QVector<ScannedSong>() : found->second.songs;
}

QVector<ScannedVideo> FakeStore::storedVideos(int pathId, const QString &folder) const
{
    std::lock_guard lock(m_mutex);
    const auto found = m_folders.find({pathId, folder});
    return found == m_folders.end() ? QVector<ScannedVideo>() : found->second.videos;
}

bool FakeStore::store(const QVector<ScannedFolder> &folders)
{
    std::lock_guard lock(m_mutex);
    for (const ScannedFolder &folder : folders)
        m_folders[{folder.pathId, folder.path}] = folder;
    m_stored += folders.size();
    return true;
}

bool FakeStore::forgetFolders(int pathId, const QStringList &folders)
{
    std::lock_guard lock(m_mutex);
    for (const QString &folder : folders)
        m_folders.erase({pathId, folder});
    m_forgotten << folders;
    return true;
}

void FakeStore::finishScan(int)
{
    std::lock_guard lock(m_mutex);
    ++m_finished;
}

bool FakeStore::clearForRebuild(int pathId)
{
    std::lock_guard lock(m_mutex);
    for (auto &[place, folder] : m_folders) {
        if (place.first != pathId)
            continue;
        folder.fingerprint.clear();
        folder.songs.clear();
        folder.videos.clear();
    }
    ++m_clears;
    return true;
}

QVector<RootFolder> FakeStore::folders(int libraryId) const
{
    std::lock_guard lock(m_mutex);
    QVector<RootFolder> result;
    for (const auto &[id, root] : m_roots) {
        if (root.libraryId == libraryId)
            result << root;
    }
    return result;
}

int FakeStore::addFolder(int libraryId, const QString &path, const QString &scraperType)
{
    std::lock_guard lock(m_mutex);
    RootFolder root;
    root.pathId = ++m_lastId;
    root.libraryId = libraryId;
    root.path = path;
    root.scraperType = scraperType;
    m_roots[root.pathId] = root;
    return root.pathId;
}

bool FakeStore::removeFolder(int, int pathId)
{
    std::lock_guard lock(m_mutex);
    return m_roots.erase(pathId) > 0;
}

void FakeStore::setOnline(int pathId, bool online)
{
    std::lock_guard lock(m_mutex);
    m_roots[pathId].online = online;
}

QVector<ScannedSong> FakeStore::songs() const
{
    std::lock_guard lock(m_mutex);
    QVector<ScannedSong> result;
    for (const auto &[place, folder] : m_folders)
        result << folder.songs;
    return result;
}

ScannedSong FakeStore::song(const QString &path) const
{
    for (const ScannedSong &song : songs()) {
        if (song.path == path)
            return song;
    }
    return {};
}

QVector<ScannedVideo> FakeStore::videos() const
{
    std::lock_guard lock(m_mutex);
    QVector<ScannedVideo> result;
    for (const auto &[place, folder] : m_folders)
        result << folder.videos;
    return result;
}

QStringList FakeStore::folderPaths() const
{
    std::lock_guard lock(m_mutex);
    QStringList result;
    for (const auto &[place, folder] : m_folders)
        result << place.second;
    return result;
}

QStringList FakeStore::forgotten() const
{
    std::lock_guard lock(m_mutex);
    return m_forgotten;
}

int FakeStore::storedFolders() const
{
    std::lock_guard lock(m_mutex);
    return m_stored;
}

int FakeStore::finishedScans() const
{
    std::lock_guard lock(m_mutex);
    return m_finished;
}

int FakeStore::clears() const
{
    std::lock_guard lock(m_mutex);
    return m_clears;
}

bool FakeStore::isOnline(int pathId) const
{
    return root(pathId).online;
}

RootFolder FakeStore::root(int pathId) const
{
    std::lock_guard lock(m_mutex);
    const auto found = m_roots.find(pathId);
    return found == m_roots.end() ? RootFolder() : found->second;
}
