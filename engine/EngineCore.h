// The engine object: owns the output, the watch over the drives, the thread that raises all notifications,
// the thumbnail sessions, the pictures handed out and the backups.
//
// One a process, made by CreateVDPlayer(). Every operation may be called from any thread; what waits says so
// in the contract, and none holds a lock that another operation needs while it waits.
#pragma once

#include "DiscBackups.h"
#include "DriveTable.h"
#include "DriveWatch.h"
#include "Notifier.h"
#include "PictureStore.h"
#include "ThumbnailSessions.h"

#include "contract/Orbix.h"

#include <memory>
#include <mutex>

class PlayTool;

class EngineCore final : public libvp::IVDEngineCore {
public:
    EngineCore(libvp::IVDPlayerConfig *config, libvp::IVDOrbixCallback *callback);
    EngineCore(const EngineCore &) = delete;
    EngineCore &operator=(const EngineCore &) = delete;
    ~EngineCore();

    bool initialise() override;
    libvp::IVDPlayTool *createPlayTool(int reserved, libvp::IVDPlayToolConfig *config,
                                       libvp::IVDPlaytoolCallback *callback) override;
    bool prepareDisc(const char *path, int itemType, libvp::VDDiscTitle *titles, int capacity,
                     int *titleCount, int *mainTitle) override;
    int sourceForm(const char *path) override;
    int openThumbnailSession(const char *path, int itemType, int titleNumber, int width, int height,
                             int startMs, int endMs, int flags) override;
    void closeThumbnailSession(int handle) override;
    bool grabThumbnail(int handle, int positionMs, int flags, const libvp::VDPicture **picture) override;
    void releasePicture(const libvp::VDPicture *picture) override;
    const libvp::VDPicture *grabPicture(const char *requestJson) override;
    bool startBackup(const char *source, const char *target, int option) override;
    void stopBackup(const char *drive) override;
    double backupProgress(const char *drive) override;
    bool isBackupFinished(const char *drive) override;
    bool isBackupFailed(const char *drive) override;

private:
    libvp::IVDPlayerConfig *m_config;
    libvp::IVDOrbixCallback *m_callback;
    DriveTable m_drives;
    Notifier m_notifier;
    DriveWatch m_watch;
    PictureStore m_pictures;
    ThumbnailSessions m_thumbnails;
    DiscBackups m_backups;
    std::mutex m_toolMutex;
    std::unique_ptr<PlayTool> m_tool;
};
