#include "LibraryStart.h"

#include "core/ThreadWorker.h"
#include "library/LibraryRole.h"
#include "library/MediaServerManager.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>

namespace {

constexpr char kScraper[] = "common";
// A task in a request ends with the request's own time limit, which the end of the program need not await.
constexpr int kStopMs = 200;
// One may have been under way when a scan was asked for, and then tells of the time before.
constexpr int kStalePulses = 1;

} // namespace

LibraryStart::LibraryStart(Manager manager, QObject *parent)
    : QObject(parent)
    , m_makeManager(std::move(manager))
    , m_worker(std::make_unique<ThreadWorker>(1))
{
}

LibraryStart::~LibraryStart()
{
    m_worker->stop(kStopMs);
}

void LibraryStart::setLanguage(const QString &word)
{
    m_language = word;
    if (m_manager)
        m_manager->setScraperLanguage(word);
}

void LibraryStart::begin(const QString &folder)
{
    if (m_manager)
        return;
    if (!folder.isEmpty())
        m_folder = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    m_manager = &m_makeManager();
    connect(m_manager, &MediaServerManager::sig_meidaServerPathLoaded, this, &LibraryStart::onServerReady);
    connect(m_manager, &MediaServerManager::sig_updateHeartBeat, this, &LibraryStart::onHeartBeat);
    connect(m_manager, &MediaServerManager::sig_videoPathChanged, this, &LibraryStart::loadAfterScan);
    connect(m_manager, &MediaServerManager::sig_musicPathChanged, this, &LibraryStart::loadAfterScan);
    // A scan that is over before the next pulse is seen by nobody.
    for (const auto asked : {&MediaServerManager::sig_updateLibraryCompleted,
                             &MediaServerManager::sig_rebuildLibraryCompleted}) {
        connect(m_manager, asked, this, [this](bool isTaken) {
            if (isTaken)
                loadAfterScan();
        });
    }
    if (!m_language.isEmpty())
        m_manager->setScraperLanguage(m_language);
    if (m_manager->isServerReady())
        onServerReady();
}

void LibraryStart::onServerReady()
{
    const QString folder = m_folder;
    m_folder.clear();
    if (folder.isEmpty()) {
        loadAll();
        return;
    }
    const auto isThere = [&folder](const LibraryPaths::Map &paths) {
        return paths.values().contains(folder);
    };
    const bool wantsVideo = !isThere(m_manager->videoPaths());
    const bool wantsMusic = !isThere(m_manager->musicPaths());
    if (!wantsVideo && !wantsMusic) {
        loadAll();
        return;
    }
    m_worker->addTask(
        [manager = m_manager, folder, wantsVideo, wantsMusic] {
            if (wantsVideo && !manager->addVideoPath(folder, QLatin1String(kScraper)))
                qInfo().noquote() << "[library] the server does not take the folder for videos:" << folder;
            if (wantsMusic && !manager->addMusicPath(folder))
                qInfo().noquote() << "[library] the server does not take the folder for music:" << folder;
        },
        [this] { loadAfterScan(); });
}

void LibraryStart::loadAfterScan()
{
    m_wantsLoad = true;
    m_pulsesToPass = kStalePulses;
}

void LibraryStart::onHeartBeat()
{
    if (!m_manager->isScanFinished()) {
        m_sawScan = true;
        m_pulsesToPass = 0;
        return;
    }
    if (m_pulsesToPass > 0) {
        --m_pulsesToPass;
        return;
    }
    if (m_wantsLoad || m_sawScan)
        loadAll();
}

void LibraryStart::loadAll()
{
    m_wantsLoad = false;
    m_sawScan = false;
    // Where a load runs, its end is waited for.
    m_worker->addTask([manager = m_manager] {
        for (int role = LibraryRoles::First; role <= LibraryRoles::Last; ++role)
            manager->reloadLibrary(role);
    });
}
