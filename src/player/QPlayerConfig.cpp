// What the engine asks about the program and its surface. The texts are filled before the engine initialises
// and never change, so the engine reads them without a lock.
#include "QPlayer.h"
#include "StoredPreferences.h"

#include "core/ApplicationInfoManager.h"
#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "platform/AddressSpace.h"

#include <QDir>
#include <QFileInfo>

namespace {

// One block a process, whoever asks first.
void *sharedAddressSpace(std::size_t size)
{
    static std::mutex mutex;
    static void *block = nullptr;
    std::lock_guard lock(mutex);
    if (!block)
        block = reserveAddressSpace(size);
    return block;
}

} // namespace

void QPlayer::readConfiguration()
{
    const ApplicationInfoManager *application = ApplicationInfoManager::instance();
    m_texts.applicationFolder = application->applicationFolder().toStdString();
    m_texts.fontFolder = m_texts.applicationFolder + "/Fonts";
    m_texts.logFolder = engineLogFolder().toStdString();
    m_audioDump = application->audioDumpFile() + QStringLiteral("/PDATA");
    const int region =
        StoredPreferences(*m_settings, StoredPreferences::Absent::Stays).number(PreferenceRows::Region);
    m_region.dvdRegion = region;
    m_region.bluRayRegion = region;
}

QString QPlayer::engineLogFolder()
{
    const QString folder = ApplicationInfoManager::instance()->logFolder();
    if (!m_settings->contains(SettingsKeys::PC_LogPath))
        return folder;
    const QString chosen = m_settings->value(SettingsKeys::PC_LogPath).toString();
    if (!chosen.isEmpty() && QFileInfo(chosen).isDir())
        return chosen;
    m_settings->setValue(SettingsKeys::PC_LogPath, folder);
    return folder;
}

const char *QPlayer::applicationTag()
{
    return "qtplayer";
}

const char *QPlayer::productName()
{
    return "Quorin Media Player";
}

const char *QPlayer::furtherName()
{
    return "";
}

const char *QPlayer::productVersion()
{
    return "3.2.0.0";
}

int QPlayer::productLine()
{
    return 1;
}

const char *QPlayer::furtherText6()
{
    return "";
}

const char *QPlayer::furtherText7()
{
    return "";
}

const char *QPlayer::furtherText8()
{
    return "";
}

const char *QPlayer::path(int index)
{
    switch (index) {
    case 0:
        return m_texts.fontFolder.c_str();
    case 1:
        return m_texts.applicationFolder.c_str();
    case 2:
    case 3:
        return m_texts.logFolder.c_str();
    default:
        return "";
    }
}

const char *QPlayer::fontFile(int index)
{
    return index == 0 ? "arial.ttf" : "";
}

int QPlayer::reserved11()
{
    return 0;
}

int QPlayer::reserved12()
{
    return 0;
}

int QPlayer::featureLevel()
{
    return 15;
}

int QPlayer::reserved14()
{
    return 0;
}

int QPlayer::reserved15()
{
    return 0;
}

void *QPlayer::sharedBlock(std::size_t size)
{
    return sharedAddressSpace(size);
}

const libvp::VDRegionRecord *QPlayer::regionRecord()
{
    return &m_region;
}

int QPlayer::surfaceWidth()
{
    return m_surfaceWidth;
}

int QPlayer::surfaceHeight()
{
    return m_surfaceHeight;
}

bool QPlayer::reserved3()
{
    return false;
}

void *QPlayer::nativeWindow()
{
    return m_windowBlock.data();
}
