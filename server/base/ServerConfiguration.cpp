#include "ServerConfiguration.h"

#include <QDebug>
#include <QSettings>
#include <QStringList>

namespace {

constexpr int highestPort = 65535;

int readPort(const QSettings &settings, const QString &key, int fallback)
{
    if (!settings.contains(key))
        return fallback;
    bool ok = false;
    const int port = settings.value(key).toInt(&ok);
    if (ok && port > 0 && port <= highestPort)
        return port;
    qWarning() << "[configuration]" << key << "is no port:" << settings.value(key).toString();
    return fallback;
}

} // namespace

ServerConfiguration ServerConfiguration::read(const QString &path)
{
    QSettings settings(path, QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    if (settings.status() != QSettings::NoError)
        qWarning() << "[configuration] cannot be read as a whole:" << path;

    ServerConfiguration configuration;
    const QString driver =
        settings.value(QStringLiteral("database/driver"), configuration.databaseDriver).toString();
    const QStringList drivers{QStringLiteral("QSQLITE"), QStringLiteral("QPSQL")};
    if (drivers.contains(driver))
        configuration.databaseDriver = driver;
    else
        qWarning() << "[configuration] unknown database driver" << driver << "- the file beside it is used";
    configuration.databaseHost = settings.value(QStringLiteral("database/host")).toString();
    configuration.databasePort =
        readPort(settings, QStringLiteral("database/port"), configuration.databasePort);
    configuration.databaseName = settings.value(QStringLiteral("database/name")).toString();
    configuration.databaseUser = settings.value(QStringLiteral("database/user")).toString();
    configuration.databasePassword = settings.value(QStringLiteral("database/password")).toString();
    configuration.metadataEndpoint = settings.value(QStringLiteral("metadata/endpoint")).toString();
    configuration.metadataImages = settings.value(QStringLiteral("metadata/images")).toString();
    configuration.metadataKey = settings.value(QStringLiteral("metadata/key")).toString();
    return configuration;
}
