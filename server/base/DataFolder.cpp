#include "DataFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

DataFolder::DataFolder(const QString &path)
    : m_path(QDir::cleanPath(QFileInfo(path).absoluteFilePath()))
{
    m_usable = !path.isEmpty() && QDir().mkpath(m_path) && QDir().mkpath(imageFolder())
               && QDir().mkpath(providerCacheFolder()) && QFileInfo(m_path).isWritable();
}

QString DataFolder::normalPath()
{
    // The system's folder for this program; the library lies in that of the player, beside it.
    QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    const QString own = QLatin1Char('/') + QCoreApplication::applicationName();
    if (own.size() > 1 && folder.endsWith(own))
        folder.chop(own.size());
    return folder + QStringLiteral("/Quorin Player 6/mediaServer");
}

QString DataFolder::databasePath() const
{
    return m_path + QStringLiteral("/library.db");
}

QString DataFolder::backupPath() const
{
    return m_path + QStringLiteral("/library.backup.db");
}

QString DataFolder::configurationPath() const
{
    return m_path + QStringLiteral("/server.ini");
}

QString DataFolder::logPath() const
{
    return m_path + QStringLiteral("/server.log");
}

QString DataFolder::imageFolder() const
{
    return m_path + QStringLiteral("/images");
}

QString DataFolder::providerCacheFolder() const
{
    return m_path + QStringLiteral("/provider");
}
