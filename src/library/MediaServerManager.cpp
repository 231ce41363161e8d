#include "MediaServerManager.h"

#include "ServerProcesses.h"

#include "core/ApplicationInfoManager.h"

#include <QDebug>

MediaServerManager *MediaServerManager::instance()
{
    static auto *manager = new MediaServerManager;
    return manager;
}

void MediaServerManager::setScraperLanguage(const QString &language)
{
    QMutexLocker lock(&m_mutex);
    if (m_scraperLanguage == language)
        return;
    m_scraperLanguage = language;
    qInfo().noquote() << "[Media server] metadata language:" << language;
}

QString MediaServerManager::scraperLanguage() const
{
    QMutexLocker lock(&m_mutex);
    return m_scraperLanguage;
}

QString MediaServerManager::playPath(const QString &path) const
{
    return path;
}

QString MediaServerManager::serverPath()
{
    return ApplicationInfoManager::instance()->applicationFolder() + QLatin1Char('/')
           + ServerProcesses::programName();
}

void MediaServerManager::killServerProcess()
{
    const int ended = ServerProcesses::killAll(serverPath());
    qInfo() << "[Media server] server processes ended:" << ended;
}
