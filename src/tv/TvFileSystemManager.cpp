#include "TvFileSystemManager.h"

#include "DeviceMessage.h"

#include <QDebug>
#include <QDir>

TvFileSystemManager::TvFileSystemManager()
{
    connect(this, &TvFileSystemManager::SIG_driverUpdate, this, &TvFileSystemManager::startScan);
}

TvFileSystemManager::~TvFileSystemManager()
{
    stopWatching();
}

void TvFileSystemManager::startScan()
{
    if (m_watching)
        m_thread.start(this);
}

void TvFileSystemManager::stopWatching()
{
    m_watching = false;
    m_thread.wait();
}

void TvFileSystemManager::driveList(QStringList *out) const
{
    QReadLocker lock(&m_lock);
    *out = m_drives;
}

bool TvFileSystemManager::nativeEventFilter(const QByteArray &eventType, void *message, long *result)
{
    Q_UNUSED(result)
    if (DeviceMessage::isDeviceChange(eventType, message))
        emit SIG_driverUpdate();
    return false;
}

void TvFileSystemManager::scanDrives()
{
    QStringList drives;
    const QFileInfoList roots = QDir::drives();
    for (const QFileInfo &root : roots)
        drives << root.absolutePath();
    bool changed = false;
    {
        QWriteLocker lock(&m_lock);
        changed = drives != m_drives;
        m_drives = drives;
    }
    qInfo() << "[TV_FileSystem] drives found:" << drives.size();
    if (changed)
        emit SIG_descUpdate();
}
