#include "PcLibraryPaths.h"

#include "core/ThreadWorker.h"
#include "library/MediaServerManager.h"
#include "online/PlayInfoStatisticsHelper.h"
#include "playcontrol/BehaviourNames.h"

#include <QDebug>
#include <QDir>

namespace {

constexpr char kCommon[] = "common";
constexpr char kAdult[] = "avScraper";
constexpr char kMusic[] = "music";
constexpr int kStopMs = 200;

} // namespace

PcLibraryPaths::PcLibraryPaths(MediaServerManager &manager, AskType askType, QObject *parent)
    : QObject(parent)
    , m_manager(manager)
    , m_askType(std::move(askType))
    , m_worker(std::make_unique<ThreadWorker>(1))
{
    connect(&m_manager, &MediaServerManager::sig_meidaServerPathLoaded, this, &PcLibraryPaths::tellChange);
    connect(&m_manager, &MediaServerManager::sig_videoPathChanged, this, &PcLibraryPaths::tellChange);
    connect(&m_manager, &MediaServerManager::sig_musicPathChanged, this, &PcLibraryPaths::tellChange);
}

PcLibraryPaths::~PcLibraryPaths()
{
    m_worker->stop(kStopMs);
}

bool PcLibraryPaths::isReady() const
{
    return m_manager.isServerReady();
}

QStringList PcLibraryPaths::folders(Kind kind) const
{
    return (kind == Kind::Video ? m_manager.videoPaths() : m_manager.musicPaths()).values();
}

void PcLibraryPaths::add(Kind kind, const QString &folder, bool askForType)
{
    const QString path = QDir::cleanPath(folder);
    const bool isVideo = kind == Kind::Video;
    const QString scraper =
        QLatin1String(isVideo && askForType && m_askType && m_askType() ? kAdult : kCommon);
    PlayInfoStatisticsHelper::instance()->note(QLatin1String(BehaviourNames::UserBehaviour),
                                               QLatin1String(BehaviourNames::LibraryPathAdded),
                                               isVideo ? scraper : QLatin1String(kMusic));
    m_worker->addTask(
        [&manager = m_manager, path, scraper, isVideo] {
            const bool isTaken = isVideo ? manager.addVideoPath(path, scraper) : manager.addMusicPath(path);
            if (!isTaken)
                qInfo().noquote() << "[library] the server does not take the folder" << path;
        },
        [this] { tellChange(); });
}

void PcLibraryPaths::remove(Kind kind, const QString &folder)
{
    m_worker->addTask(
        [&manager = m_manager, folder, kind] {
            const bool isGone =
                kind == Kind::Video ? manager.deleteVideoPath(folder) : manager.deleteMusicPath(folder);
            if (!isGone)
                qInfo().noquote() << "[library] the server does not give the folder back" << folder;
        },
        [this] { tellChange(); });
}

void PcLibraryPaths::update()
{
    m_manager.startLibraryUpdate();
}

void PcLibraryPaths::rebuild()
{
    m_manager.startLibraryRebuild();
}

void PcLibraryPaths::setChangedHandler(std::function<void()> handler)
{
    m_changed = std::move(handler);
}

void PcLibraryPaths::tellChange() const
{
    if (m_changed)
        m_changed();
}
