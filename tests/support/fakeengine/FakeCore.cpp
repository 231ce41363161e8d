#include "FakeCore.h"

#include "FakeState.h"

#include <algorithm>
#include <cstring>

FakeCore::FakeCore(FakeState &state)
    : m_state(state)
{
}

bool FakeCore::initialise()
{
    m_state.script.called("IVDEngineCore::initialise");
    return m_state.script.number("IVDEngineCore::initialise", 1) != 0;
}

libvp::IVDPlayTool *FakeCore::createPlayTool(int reserved, libvp::IVDPlayToolConfig *config,
                                             libvp::IVDPlaytoolCallback *callback)
{
    m_state.script.called("IVDEngineCore::createPlayTool", reserved);
    return m_state.createTool(config, callback);
}

bool FakeCore::prepareDisc(const char *path, int itemType, libvp::VDDiscTitle *titles, int capacity,
                           int *titleCount, int *mainTitle)
{
    m_state.script.called("IVDEngineCore::prepareDisc", path, itemType);
    const std::vector<libvp::VDDiscTitle> all = m_state.discTitles(mainTitle);
    if (titleCount)
        *titleCount = static_cast<int>(all.size());
    const std::size_t room = capacity > 0 ? static_cast<std::size_t>(capacity) : 0;
    if (titles)
        std::copy_n(all.begin(), std::min(all.size(), room), titles);
    return m_state.script.number("IVDEngineCore::prepareDisc", all.empty() ? 0 : 1) != 0;
}

int FakeCore::sourceForm(const char *path)
{
    m_state.script.called("IVDEngineCore::sourceForm", path);
    return static_cast<int>(m_state.script.number("IVDEngineCore::sourceForm", libvp::VD_Source_File));
}

int FakeCore::openThumbnailSession(const char *path, int itemType, int titleNumber, int width, int height,
                                   int startMs, int endMs, int flags)
{
    m_state.script.called("IVDEngineCore::openThumbnailSession", path, itemType, titleNumber, width, height,
                          startMs, endMs, flags);
    return static_cast<int>(m_state.script.number("IVDEngineCore::openThumbnailSession", 1));
}

void FakeCore::closeThumbnailSession(int handle)
{
    m_state.script.called("IVDEngineCore::closeThumbnailSession", handle);
}

bool FakeCore::grabThumbnail(int handle, int positionMs, int flags, const libvp::VDPicture **picture)
{
    m_state.script.called("IVDEngineCore::grabThumbnail", handle, positionMs, flags);
    const libvp::VDPicture *made = m_state.makePicture();
    if (picture)
        *picture = made;
    return made != nullptr;
}

void FakeCore::releasePicture(const libvp::VDPicture *picture)
{
    m_state.script.called("IVDEngineCore::releasePicture");
    if (!picture)
        return;
    // Whoever still reads the picture shall notice.
    std::memset(const_cast<unsigned char *>(picture->data), 0xEE, static_cast<std::size_t>(picture->size));
    delete[] picture->data;
    delete picture;
}

const libvp::VDPicture *FakeCore::grabPicture(const char *requestJson)
{
    m_state.script.called("IVDEngineCore::grabPicture", requestJson);
    return m_state.makePicture();
}

bool FakeCore::startBackup(const char *source, const char *target, int option)
{
    m_state.script.called("IVDEngineCore::startBackup", source, target, option);
    return m_state.script.number("IVDEngineCore::startBackup", 1) != 0;
}

void FakeCore::stopBackup(const char *drive)
{
    m_state.script.called("IVDEngineCore::stopBackup", drive);
}

double FakeCore::backupProgress(const char *drive)
{
    m_state.script.called("IVDEngineCore::backupProgress", drive);
    return m_state.script.number("IVDEngineCore::backupProgress", -1);
}

bool FakeCore::isBackupFinished(const char *drive)
{
    m_state.script.called("IVDEngineCore::isBackupFinished", drive);
    return m_state.script.number("IVDEngineCore::isBackupFinished", 0) != 0;
}

bool FakeCore::isBackupFailed(const char *drive)
{
    m_state.script.called("IVDEngineCore::isBackupFailed", drive);
    return m_state.script.number("IVDEngineCore::isBackupFailed", 0) != 0;
}
