// The scripted IVDEngineCore: notes every call and answers as the script says.
#pragma once

#include "contract/Orbix.h"

class FakeState;

class FakeCore final : public libvp::IVDEngineCore {
public:
    explicit FakeCore(FakeState &state);

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
    FakeState &m_state;
};
