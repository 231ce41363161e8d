#include "LibraryRoots.h"

#include <algorithm>

int LibraryRoots::id(Library library) const
{
    std::lock_guard lock(m_mutex);
    return m_states[library].id;
}

void LibraryRoots::setId(Library library, int id)
{
    std::lock_guard lock(m_mutex);
    m_states[library].id = id;
}

LibraryPaths::Map LibraryRoots::folders(Library library) const
{
    std::lock_guard lock(m_mutex);
    return m_states[library].folders;
}

void LibraryRoots::setFolders(Library library, const LibraryPaths::Map &folders)
{
    std::lock_guard lock(m_mutex);
    m_states[library].folders = folders;
}

void LibraryRoots::add(Library library, int pathId, const QString &path)
{
    std::lock_guard lock(m_mutex);
    m_states[library].folders.insert(pathId, path);
}

void LibraryRoots::remove(Library library, int pathId)
{
    std::lock_guard lock(m_mutex);
    m_states[library].folders.remove(pathId);
}

std::optional<int> LibraryRoots::pathId(Library library, const QString &path) const
{
    std::lock_guard lock(m_mutex);
    const LibraryPaths::Map &folders = m_states[library].folders;
    const auto found = std::find(folders.begin(), folders.end(), path);
    return found == folders.end() ? std::nullopt : std::optional<int>(found.key());
}
