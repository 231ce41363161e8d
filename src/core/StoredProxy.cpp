#include "StoredProxy.h"

#include "SettingsKeys.h"
#include "SettingsManager.h"

namespace {

constexpr int kOfSystem = 0;

} // namespace

StoredProxy StoredProxy::inUse(const SettingsManager &settings)
{
    StoredProxy proxy;
    proxy.isEnabled = settings.proxyEnable();
    proxy.type = settings.proxyType();
    const QString systemHost = QLatin1String(SettingsKeys::PC_ProxySystemHost);
    // Files of earlier versions hold the system's proxy in the place of the manual one.
    if (proxy.type == kOfSystem && settings.contains(systemHost)) {
        proxy.host = settings.value(systemHost).toString();
        proxy.port = settings.value(QLatin1String(SettingsKeys::PC_ProxySystemPort)).toString();
        return proxy;
    }
    proxy.host = settings.proxyHost();
    proxy.port = settings.proxyPort();
    proxy.userName = settings.proxyUserName();
    proxy.password = settings.proxyPasswd();
    return proxy;
}

void StoredProxy::chooseSystem(SettingsManager &settings, const QString &host, const QString &port)
{
    settings.setProxyEnable(true);
    settings.setProxyType(kOfSystem);
    settings.setValue(QLatin1String(SettingsKeys::PC_ProxySystemHost), host);
    settings.setValue(QLatin1String(SettingsKeys::PC_ProxySystemPort), port);
}
