#include "LibraryRun.h"

#include "LibraryReport.h"

#include "library/LibraryRole.h"
#include "library/MediaServerManager.h"
#include "library/VideoProtocol.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>

#include <cstdio>

namespace {

constexpr int kScanLimitMs = 600000;
// The first heartbeat after the update was taken may have been under way before.
constexpr int kBeatsBeforeEnd = 2;

} // namespace

LibraryRun::LibraryRun(MediaServerManager &manager, LibraryWish wish)
    : m_manager(manager)
    , m_wish(std::move(wish))
{
    connect(&m_manager, &MediaServerManager::sig_meidaServerPathLoaded, this, &LibraryRun::onReady);
    connect(&m_manager, &MediaServerManager::sig_updateLibraryCompleted, this, &LibraryRun::onUpdateTaken);
    connect(&m_manager, &MediaServerManager::sig_updateHeartBeat, this, &LibraryRun::onHeartbeat);
    connect(&m_manager, &MediaServerManager::sig_mediaScanStateChanged, this, &LibraryRun::onLoadEnded);
    m_scanLimit.setSingleShot(true);
    connect(&m_scanLimit, &QTimer::timeout, this,
            [this] { fail(ScanTooLong, QStringLiteral("the scan has not ended in time")); });
}

void LibraryRun::fail(ExitCode code, const QString &message)
{
    std::fprintf(stderr, "libraryctl: %s\n", qPrintable(message));
    QCoreApplication::exit(code);
}

void LibraryRun::onReady()
{
    if (!m_manager.videoRequests().libraryId()) {
        fail(NoServer, QStringLiteral("no media server answers"));
        return;
    }
    if (!addFolders())
        return;
    if (!m_wish.waitsForScan) {
        loadAll();
        return;
    }
    m_scanLimit.start(kScanLimitMs);
    m_manager.startLibraryUpdate();
}

void LibraryRun::onUpdateTaken(bool isTaken)
{
    if (!isTaken || !m_scanLimit.isActive())
        return;
    m_isScanAwaited = true;
    m_beats = 0;
}

bool LibraryRun::addFolders()
{
    for (const LibraryWish::Folder &folder : m_wish.folders) {
        const QString path = QFileInfo(folder.path).absoluteFilePath();
        const bool isAdded = folder.scraper.isEmpty() ? m_manager.addMusicPath(path)
                                                      : m_manager.addVideoPath(path, folder.scraper);
        if (!isAdded) {
            fail(FolderRefused, QStringLiteral("the server does not take the folder %1").arg(path));
            return false;
        }
    }
    return true;
}

void LibraryRun::onHeartbeat()
{
    if (!m_isScanAwaited || ++m_beats < kBeatsBeforeEnd || !m_manager.isScanFinished())
        return;
    m_isScanAwaited = false;
    m_scanLimit.stop();
    loadAll();
}

void LibraryRun::loadAll()
{
    for (int role = LibraryRoles::First; role <= LibraryRoles::Last; ++role)
        m_manager.reloadLibrary(role);
    m_isLoading = true;
    onLoadEnded();
}

void LibraryRun::onLoadEnded()
{
    if (!m_isLoading)
        return;
    for (int role = LibraryRoles::First; role <= LibraryRoles::Last; ++role) {
        if (m_manager.isLoading(role))
            return;
    }
    m_isLoading = false;
    std::fputs(QJsonDocument(LibraryReport::of(m_manager)).toJson().constData(), stdout);
    std::fflush(stdout);
    QCoreApplication::exit(Done);
}
