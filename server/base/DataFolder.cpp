#include "DataFolder.h"

#include <QDir>
#include <QFileInfo>

DataFolder::DataFolder(const QString &path)
    : m_path(QDir::cleanPath(QFileInfo(path).absoluteFilePath()))
{
    m_usable = !path.isEmpty() && QDir().mkpath(m_path) && QDir().mkpath(imageFolder())
               && QDir().mkpath(providerCacheFolder()) && QFileInfo(m_path).isWritable();
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
