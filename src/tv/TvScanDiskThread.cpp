#include "TvScanDiskThread.h"

#include "TvFileSystemManager.h"

void TvScanDiskThread::start(TvFileSystemManager *manager)
{
    if (isRunning())
        return;
    m_manager = manager;
    QThread::start(QThread::TimeCriticalPriority);
}

void TvScanDiskThread::run()
{
    m_manager->scanDrives();
}
