// Front of the web services: keeps the proxy that requests go through and sends what usage records there are.
//
// One object a process, made on the GUI thread at start. The start-up thread configures it while the GUI
// thread may already read, so the proxy stands behind a lock.
#pragma once

#include "ProxyConfiguration.h"

#include <QMutex>
#include <QObject>

class WebServiceManager final : public QObject {
    Q_OBJECT
public:
    static WebServiceManager *instance();

    explicit WebServiceManager(QObject *parent = nullptr)
        : QObject(parent)
    {
    }

    void setProxy(const ProxyConfiguration &proxy);
    [[nodiscard]] ProxyConfiguration proxy() const;

    // Sends the records that have piled up, if the user allows it. Any thread but the GUI thread.
    void reportUsage(bool permitted);

    // The place the records go to; empty while none is configured.
    void setStatisticsEndpoint(const QString &address);

private:
    mutable QMutex m_mutex;
    ProxyConfiguration m_proxy;
    QString m_statisticsEndpoint;
};
