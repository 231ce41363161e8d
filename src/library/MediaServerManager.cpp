#include "MediaServerManager.h"

#include "HttpTransport.h"
#include "JsonRpc.h"
#include "LibraryFilters.h"
#include "LibraryJobs.h"
#include "LibraryLoads.h"
#include "LibraryPause.h"
#include "LibraryRoots.h"
#include "LibraryThreads.h"
#include "MediaPath.h"
#include "MusicChanges.h"
#include "MusicLoader.h"
#include "NullTransport.h"
#include "ServerLink.h"
#include "ServerProcesses.h"
#include "ServerStarter.h"
#include "VideoChanges.h"
#include "VideoLoader.h"

#include "core/ApplicationInfoManager.h"
#include "core/SettingsManager.h"
#include "online/PlayInfoStatisticsHelper.h"

#include <QDebug>
#include <QTimer>

#include <atomic>

namespace {

constexpr int kFirstUpdateMs = 5000;
constexpr char kOffVariable[] = "QUORIN_NO_LIBRARY";

// Tells whoever ends the servers whether there is one to let go of, without making one.
std::atomic<MediaServerManager *> s_instance{nullptr};

} // namespace

// The parts, in the order in which they need each other. Who destroys them has waited for the threads before.
struct MediaServerManager::Machine {
    Machine(LibraryParts given, MediaServerManager &manager)
        : parts(std::move(given))
        , rpc(*parts.transport, parts.port)
        , video(rpc)
        , musicProtocol(rpc)
        , statistics(parts.statistics)
        , filters(*parts.settings)
        , videoLoader(video, filters, videoCache, manager, [this] { return roots.id(LibraryRoots::Video); })
        , musicLoader(musicProtocol, musicCache, manager, [this] { return roots.id(LibraryRoots::Music); })
        , videoChanges(video, roots, manager)
        , musicChanges(musicProtocol, roots, musicCache, manager)
        , link({video, musicProtocol, roots, *parts.pause, manager, statistics, *parts.settings},
               *parts.starter, parts.program, parts.dataFolder,
               [this] {
                   if (parts.isOn)
                       threads.start(LibraryThreads::Heartbeat);
               })
        , loads({videoLoader, musicLoader, videoCache, musicCache, threads, manager, statistics})
        , jobs({video, musicProtocol, roots, threads, manager, link})
    {
        threads.setWork(LibraryThreads::StartUp, [this] { link.startUp(); });
        threads.setWork(LibraryThreads::Heartbeat, [this] { link.beat(); });
    }

    void end()
    {
        parts.pause->end();
        link.end();
        loads.end();
        parts.transport->stop();
    }

    LibraryParts parts;
    JsonRpc rpc;
    VideoProtocol video;
    MusicProtocol musicProtocol;
    BucketStatistics statistics;
    LibraryFilters filters;
    LibraryRoots roots;
    VideoCache videoCache;
    MusicCache musicCache;
    VideoLoader videoLoader;
    MusicLoader musicLoader;
    VideoChanges videoChanges;
    MusicChanges musicChanges;
    LibraryThreads threads;
    ServerLink link;
    LibraryLoads loads;
    LibraryJobs jobs;
};

MediaServerManager *MediaServerManager::instance()
{
    static MediaServerManager *const manager = [] {
        auto *made = new MediaServerManager(usualParts());
        s_instance = made;
        return made;
    }();
    return manager;
}

LibraryParts MediaServerManager::usualParts()
{
    LibraryParts parts;
    parts.isOn = !qEnvironmentVariableIsSet(kOffVariable);
    if (parts.isOn)
        parts.transport = std::make_unique<HttpTransport>();
    else
        parts.transport = std::make_unique<NullTransport>();
    parts.starter = std::make_unique<ServerStarter>();
    parts.pause = std::make_unique<WakeablePause>();
    parts.statistics = [](const QString &category, const QString &key, const QString &value) {
        PlayInfoStatisticsHelper::instance()->note(category, key, value);
    };
    parts.settings = SettingsManager::instance();
    parts.program = parts.isOn ? serverPath() : QString();
    parts.dataFolder = ApplicationInfoManager::instance()->mediaServerFolder();
    parts.port = JsonRpc::configuredPort();
    return parts;
}

MediaServerManager::MediaServerManager(LibraryParts parts, QObject *parent)
    : LibrarySignals(parent)
    , m_machine(std::make_unique<Machine>(std::move(parts), *this))
{
    m_machine->threads.start(LibraryThreads::StartUp);
    QTimer::singleShot(kFirstUpdateMs, this, &MediaServerManager::startLibraryUpdate);
}

MediaServerManager::~MediaServerManager()
{
    m_machine->end();
    m_machine->threads.waitForAll();
}

// ---- the server

bool MediaServerManager::isServerReady() const
{
    return m_machine->link.isReady();
}

bool MediaServerManager::isScanFinished() const
{
    return m_machine->link.isScanFinished();
}

void MediaServerManager::applyProxy()
{
    m_machine->link.applyProxy();
}

void MediaServerManager::setScraperLanguage(const QString &language)
{
    m_machine->jobs.setLanguage(language);
}

QString MediaServerManager::scraperLanguage() const
{
    return m_machine->jobs.language();
}

void MediaServerManager::startLibraryUpdate()
{
    m_machine->jobs.startUpdate();
}

void MediaServerManager::startLibraryRebuild()
{
    m_machine->jobs.startRebuild();
}

void MediaServerManager::shutDown()
{
    m_machine->end();
}

void MediaServerManager::killServerProcess()
{
    // Without a library there is no server of this copy; one that runs beside it is somebody else's.
    if (qEnvironmentVariableIsSet(kOffVariable))
        return;
    if (MediaServerManager *manager = s_instance) {
        manager->shutDown();
        manager->m_machine->parts.starter->release();
    }
    const int ended = ServerProcesses::killAll(serverPath());
    qInfo() << "[Media server] server processes ended:" << ended;
}

QString MediaServerManager::serverPath()
{
    return ApplicationInfoManager::instance()->applicationFolder() + QLatin1Char('/')
           + ServerProcesses::programName();
}

// ---- loads

bool MediaServerManager::isLoading(int nRole) const
{
    return m_machine->loads.isLoading(nRole);
}

void MediaServerManager::reloadLibrary(int nRole)
{
    m_machine->loads.reload(nRole);
}

void MediaServerManager::waitForLoad(int nRole)
{
    m_machine->loads.waitForLoad(nRole);
}

void MediaServerManager::startWaitingForLoads()
{
    m_machine->loads.startWaitingForAll();
}

// ---- folders

LibraryPaths::Map MediaServerManager::videoPaths() const
{
    return m_machine->roots.folders(LibraryRoots::Video);
}

LibraryPaths::Map MediaServerManager::musicPaths() const
{
    return m_machine->roots.folders(LibraryRoots::Music);
}

bool MediaServerManager::addVideoPath(const QString &path, const QString &scraper)
{
    return m_machine->videoChanges.addPath(path, scraper);
}

bool MediaServerManager::addMusicPath(const QString &path)
{
    return m_machine->musicChanges.addPath(path);
}

bool MediaServerManager::deleteVideoPath(const QString &path)
{
    return m_machine->videoChanges.deletePath(path);
}

bool MediaServerManager::deleteMusicPath(const QString &path)
{
    if (!m_machine->musicChanges.deletePath(path))
        return false;
    reloadLibrary(int(LibraryRole::Music));
    return true;
}

// ---- filters

LibraryFilters &MediaServerManager::filters()
{
    return m_machine->filters;
}

void MediaServerManager::setPattern(const QString &pattern)
{
    m_machine->filters.setPattern(pattern);
}

void MediaServerManager::setSortMethod(int method)
{
    m_machine->filters.setSortMethod(method);
}

void MediaServerManager::setSortOrder(bool ascending)
{
    m_machine->filters.setSortOrder(ascending);
}

// ---- the copy

const VideoCache &MediaServerManager::videos() const
{
    return m_machine->videoCache;
}

const MusicCache &MediaServerManager::music() const
{
    return m_machine->musicCache;
}

QString MediaServerManager::lookupEpisodeByPath(const QString &path) const
{
    return m_machine->videoCache.episodeByPath(path);
}

QString MediaServerManager::playPath(const QString &path)
{
    return MediaPath::resolveMediaPath(path);
}

// ---- requests

const VideoProtocol &MediaServerManager::videoRequests() const
{
    return m_machine->video;
}

const MusicProtocol &MediaServerManager::musicRequests() const
{
    return m_machine->musicProtocol;
}

MusicChanges &MediaServerManager::musicChanges()
{
    return m_machine->musicChanges;
}
