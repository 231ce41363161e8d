#include "OutgoingProxy.h"

#include <QDebug>
#include <QHostAddress>
#include <QNetworkProxy>

namespace {

// What the settings hold as the proxy's type.
enum StoredType { OfSystem = 0, Http = 1, Socks = 2 };

// An address of the network at large; only its scheme counts, nothing is sent there.
constexpr char kAnyAddress[] = "https://example.org/";

struct KindRow {
    QNetworkProxy::ProxyType type;
    ProxyKind kind;
};

constexpr KindRow kKinds[] = {
    {QNetworkProxy::NoProxy, ProxyKind::None},
    {QNetworkProxy::HttpProxy, ProxyKind::Http},
    {QNetworkProxy::HttpCachingProxy, ProxyKind::Http},
    {QNetworkProxy::Socks5Proxy, ProxyKind::Socks5},
};

bool isThisMachine(const QUrl &target)
{
    const QString host = target.host();
    return host.compare(QLatin1String("localhost"), Qt::CaseInsensitive) == 0
           || QHostAddress(host).isLoopback();
}

} // namespace

ProxyRoute systemProxyRoute(const QUrl &target)
{
    const QList<QNetworkProxy> proxies =
        QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(target));
    // The system lists them in the order of its wish; kinds that can't be spoken here are passed over.
    for (const QNetworkProxy &proxy : proxies) {
        for (const KindRow &row : kKinds) {
            if (row.type != proxy.type())
                continue;
            if (row.kind == ProxyKind::None)
                return {};
            if (!proxy.hostName().isEmpty())
                return {row.kind, {proxy.hostName(), proxy.port(), proxy.user(), proxy.password()}};
        }
    }
    return {};
}

ProxyInfo systemProxy()
{
    return systemProxyRoute(QUrl(QLatin1String(kAnyAddress))).info;
}

ProxyRoute proxyRouteFor(const ProxyConfiguration &configuration, const QUrl &target)
{
    if (!configuration.enabled || isThisMachine(target))
        return {};
    if (configuration.type == OfSystem)
        return systemProxyRoute(target);
    const quint16 port = configuration.port.trimmed().toUShort();
    const QString host = configuration.host.trimmed();
    if (port == 0 || host.isEmpty() || (configuration.type != Http && configuration.type != Socks)) {
        qInfo().noquote() << QStringLiteral("[Web service] the proxy has no usable address: %1:%2, type %3")
                                 .arg(configuration.host, configuration.port)
                                 .arg(configuration.type);
        return {};
    }
    return {configuration.type == Http ? ProxyKind::Http : ProxyKind::Socks5,
            {host, port, configuration.userName, configuration.password}};
}
