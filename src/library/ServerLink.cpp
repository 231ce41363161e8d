#include "ServerLink.h"

#include "BucketStatistics.h"
#include "IServerStarter.h"
#include "LibraryPause.h"
#include "LibraryRoots.h"
#include "LibrarySignals.h"
#include "MusicProtocol.h"
#include "VideoProtocol.h"

#include "core/SettingsManager.h"
#include "core/StoredProxy.h"

#include <QDebug>
#include <QJsonObject>

namespace {

constexpr int kStartMs = 30000;
constexpr int kSecondTryMs = 2000;
constexpr int kBeatMs = 3000;

} // namespace

ServerLink::ServerLink(const Parts &parts, IServerStarter &starter, QString program, QString dataFolder,
                       std::function<void()> startHeartbeat)
    : m_parts(parts)
    , m_starter(starter)
    , m_program(std::move(program))
    , m_dataFolder(std::move(dataFolder))
    , m_startHeartbeat(std::move(startHeartbeat))
{
}

void ServerLink::startUp()
{
    if (m_starter.isHeld())
        return;
    const std::optional<bool> plainStart = startServer();
    if (m_parts.pause.isEnding())
        return;
    askForFolders();
    m_startHeartbeat();
    if (plainStart)
        qInfo().noquote() << QStringLiteral("[MS Path] use normal path: %1").arg(int(*plainStart));
    setReady();
    applyProxy();
    emit m_parts.notices.sig_meidaServerPathLoaded();
}

std::optional<bool> ServerLink::startServer()
{
    const bool isStarted = m_starter.start(m_program, m_dataFolder, kStartMs);
    (void)askForLibraries();
    const auto isUnknown = [this] { return m_parts.roots.id(LibraryRoots::Video) == LibraryRoots::Unknown; };
    // A program that has just been started may not listen yet. One that listens may have its database to look
    // through or to put right; another one could not take its place.
    bool asksAgain = isStarted;
    while (asksAgain && isUnknown()) {
        if (!m_parts.pause.wait(kSecondTryMs))
            return std::nullopt;
        asksAgain = askForLibraries() && m_starter.isRunning();
    }
    if (!isUnknown() || m_parts.pause.isEnding())
        return std::nullopt;
    const bool isPlainStarted = m_starter.startPlain(m_program);
    (void)askForLibraries();
    return isPlainStarted;
}

bool ServerLink::askForLibraries()
{
    const VideoProtocol::Library video = m_parts.video.library();
    if (video.id)
        m_parts.roots.setId(LibraryRoots::Video, *video.id);
    if (const auto id = m_parts.music.libraryId())
        m_parts.roots.setId(LibraryRoots::Music, *id);
    return video.isServerThere;
}

void ServerLink::askForFolders()
{
    LibraryRoots &roots = m_parts.roots;
    if (const auto folders = m_parts.video.folders(roots.id(LibraryRoots::Video)))
        roots.setFolders(LibraryRoots::Video, *folders);
    if (const auto folders = m_parts.music.folders(roots.id(LibraryRoots::Music)))
        roots.setFolders(LibraryRoots::Music, *folders);
}

void ServerLink::beat()
{
    do {
        const VideoProtocol::Pulse pulse = m_parts.video.heartbeat();
        m_isScanFinished = pulse.isScanFinished;
        if (pulse.isScraperFinished)
            m_parts.statistics.reportServer(m_parts.music.statistics());
        emit m_parts.notices.sig_updateHeartBeat();
    } while (m_parts.pause.wait(kBeatMs));
}

void ServerLink::applyProxy() const
{
    const StoredProxy proxy = StoredProxy::inUse(m_parts.settings);
    if (!proxy.isEnabled) {
        m_parts.video.cancelProxy();
        return;
    }
    m_parts.video.setProxy({proxy.host, proxy.port, proxy.userName, proxy.password});
}

void ServerLink::setReady()
{
    {
        std::lock_guard lock(m_mutex);
        m_isReady = true;
    }
    m_readyOrEnding.notify_all();
}

bool ServerLink::waitUntilReady()
{
    std::unique_lock lock(m_mutex);
    m_readyOrEnding.wait(lock, [this] { return m_isReady || m_isEnding; });
    return !m_isEnding;
}

void ServerLink::end()
{
    {
        std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_readyOrEnding.notify_all();
}
