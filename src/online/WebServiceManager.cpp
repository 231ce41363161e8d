#include "WebServiceManager.h"

#include <QDebug>

WebServiceManager *WebServiceManager::instance()
{
    // Never deleted: the start-up thread may still use it while the process ends.
    static auto *manager = new WebServiceManager;
    return manager;
}

void WebServiceManager::setProxy(const ProxyConfiguration &proxy)
{
    QMutexLocker lock(&m_mutex);
    m_proxy = proxy;
}

ProxyConfiguration WebServiceManager::proxy() const
{
    QMutexLocker lock(&m_mutex);
    return m_proxy;
}

void WebServiceManager::setStatisticsEndpoint(const QString &address)
{
    QMutexLocker lock(&m_mutex);
    m_statisticsEndpoint = address;
}

void WebServiceManager::reportUsage(bool permitted)
{
    qInfo().noquote() << QStringLiteral("[TJ]ALLStatistics(%1)")
                             .arg(permitted ? QLatin1String("true") : QLatin1String("false"));
    if (!permitted)
        return;
    QMutexLocker lock(&m_mutex);
    if (m_statisticsEndpoint.isEmpty())
        qInfo() << "[Web Service] no statistics endpoint is configured, nothing is sent";
}
