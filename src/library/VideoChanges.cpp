#include "VideoChanges.h"

#include "LibraryRoots.h"
#include "LibrarySignals.h"
#include "VideoProtocol.h"

bool VideoChanges::addPath(const QString &path, const QString &scraper)
{
    const auto pathId = m_protocol.addPath(m_roots.id(LibraryRoots::Video), path, scraper);
    if (!pathId)
        return false;
    m_roots.add(LibraryRoots::Video, *pathId, path);
    emit m_notices.sig_videoPathChanged();
    return true;
}

bool VideoChanges::deletePath(const QString &path)
{
    const auto pathId = m_roots.pathId(LibraryRoots::Video, path);
    if (!pathId || !m_protocol.deletePath(m_roots.id(LibraryRoots::Video), *pathId))
        return false;
    m_roots.remove(LibraryRoots::Video, *pathId);
    emit m_notices.sig_videoPathChanged();
    return true;
}
