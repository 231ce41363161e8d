#include "AdvertismentManagerEx.h"

#include <QDebug>

AdvertismentManagerEx *AdvertismentManagerEx::instance()
{
    static auto *manager = new AdvertismentManagerEx;
    return manager;
}

void AdvertismentManagerEx::stopDownloads()
{
    qInfo() << "[Advertisement] no advertising server is configured, no download to stop";
}

void AdvertismentManagerEx::windowClosed(bool played)
{
    qInfo().noquote() << QStringLiteral("[Advertisement] Played Before Close : %1")
                             .arg(played ? QLatin1String("true") : QLatin1String("false"));
}
