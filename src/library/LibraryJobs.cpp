#include "LibraryJobs.h"

#include "LibraryRoots.h"
#include "LibrarySignals.h"
#include "LibraryThreads.h"
#include "MusicProtocol.h"
#include "ServerLink.h"
#include "VideoProtocol.h"

#include <QDebug>

LibraryJobs::LibraryJobs(const Parts &parts)
    : m_parts(parts)
{
    m_parts.threads.setWork(LibraryThreads::Update, [this] { update(); });
    m_parts.threads.setWork(LibraryThreads::Rebuild, [this] { rebuild(); });
    m_parts.threads.setWork(LibraryThreads::Language, [this] { tellLanguage(); });
}

void LibraryJobs::startUpdate()
{
    m_parts.threads.start(LibraryThreads::Update);
}

void LibraryJobs::startRebuild()
{
    m_parts.threads.start(LibraryThreads::Rebuild);
}

void LibraryJobs::setLanguage(const QString &language)
{
    {
        std::lock_guard lock(m_mutex);
        if (m_language == language)
            return;
        m_language = language;
    }
    qInfo().noquote() << "[Media server] metadata language:" << language;
    m_parts.threads.start(LibraryThreads::Language, LibraryThreads::WhenBusy::DoItAgain);
}

QString LibraryJobs::language() const
{
    std::lock_guard lock(m_mutex);
    return m_language;
}

void LibraryJobs::update()
{
    emit m_parts.notices.sig_updateLibraryCompleted(false);
    // Before that the server has not said what it calls its libraries.
    if (!m_parts.link.waitUntilReady())
        return;
    m_parts.video.update(m_parts.roots.id(LibraryRoots::Video));
    m_parts.music.update(m_parts.roots.id(LibraryRoots::Music));
    emit m_parts.notices.sig_updateLibraryCompleted(true);
}

void LibraryJobs::rebuild()
{
    emit m_parts.notices.sig_rebuildLibraryCompleted(false);
    if (!m_parts.link.waitUntilReady())
        return;
    m_parts.video.rebuild();
    emit m_parts.notices.sig_rebuildLibraryCompleted(true);
}

void LibraryJobs::tellLanguage()
{
    if (!m_parts.link.waitUntilReady())
        return;
    QString language;
    {
        std::lock_guard lock(m_mutex);
        if (m_toldLanguage == m_language)
            return;
        m_toldLanguage = m_language;
        language = m_language;
    }
    m_parts.video.updateByLanguage(m_parts.roots.id(LibraryRoots::Video), language);
}
