#include "ApplicationInfoManager.h"

#include "MarkerFiles.h"
#include "PlatformNames.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace {

constexpr double kDesignDpi = 96.0;

QString madeFolder(const QString &path)
{
    QDir().mkpath(path);
    return path;
}

QString documentsFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

} // namespace

QString ApplicationInfoManager::productName()
{
    return QStringLiteral("Quorin Player 6");
}

QString ApplicationInfoManager::desktopName()
{
    return QStringLiteral("quorin-player-6");
}

QString ApplicationInfoManager::makerName()
{
    return QStringLiteral("Quorin");
}

QString ApplicationInfoManager::registryHelperName()
{
    return PlatformNames::programFile(QStringLiteral("KelRegOp"));
}

QString ApplicationInfoManager::hardwareCheckName()
{
    return PlatformNames::programFile(QStringLiteral("SupportCheck"));
}

QString ApplicationInfoManager::advertisementName()
{
    return PlatformNames::programFile(QStringLiteral("Advertisement"));
}

QString ApplicationInfoManager::updaterName()
{
    return PlatformNames::programFile(QStringLiteral("Update"));
}

QString ApplicationInfoManager::certificateFileName()
{
    return QStringLiteral("kelcom.crt");
}

QString ApplicationInfoManager::mediaServerHost()
{
    return QStringLiteral("127.0.0.1");
}

QString ApplicationInfoManager::classKeyRoot()
{
    return QStringLiteral("SOFTWARE\\Classes\\");
}

QString ApplicationInfoManager::progId()
{
    return QStringLiteral("QuorinSix.Media");
}

QString ApplicationInfoManager::programFile() const
{
    return QDir::toNativeSeparators(applicationFolder() + QLatin1Char('/') + m_programFileName);
}

QString ApplicationInfoManager::openCommand() const
{
    return QLatin1Char('"') + programFile() + QStringLiteral("\" \"%1\"");
}

QString ApplicationInfoManager::iconCommand() const
{
    return QLatin1Char('"') + programFile() + QStringLiteral("\",0");
}

float ApplicationInfoManager::scaleFactor() const
{
    if (m_runMode == TvMode) {
        std::lock_guard<std::mutex> lock(m_tvScaleMutex);
        if (m_tvScaleSource)
            return m_tvScaleSource();
    }
    return static_cast<float>(m_screenDpi / kDesignDpi);
}

void ApplicationInfoManager::setTvScaleSource(std::function<float()> source)
{
    std::lock_guard<std::mutex> lock(m_tvScaleMutex);
    m_tvScaleSource = std::move(source);
}

QString ApplicationInfoManager::dataFolder() const
{
    QString path = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    const QString name = QCoreApplication::applicationName();
    // Only the last element is the application's: the name may well stand in an earlier folder too.
    if (name.isEmpty())
        path += QLatin1Char('/') + productName();
    else if (path.endsWith(QLatin1Char('/') + name))
        path = path.left(path.size() - name.size()) + productName();
    return madeFolder(path);
}

QString ApplicationInfoManager::configurationFile() const
{
    return dataFolder() + QStringLiteral("/config.ini");
}

QString ApplicationInfoManager::logFolder() const
{
    return madeFolder(documentsFolder() + QStringLiteral("/%1/Log").arg(productName()));
}

QString ApplicationInfoManager::logFileName()
{
    return QStringLiteral("player.log");
}

QString ApplicationInfoManager::logFile() const
{
    return logFolder() + QLatin1Char('/') + logFileName();
}

QString ApplicationInfoManager::picturesFolder() const
{
    return madeFolder(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation)
                      + QStringLiteral("/%1").arg(productName()));
}

QString ApplicationInfoManager::tempFolder() const
{
    return madeFolder(documentsFolder() + QStringLiteral("/%1/Temp").arg(productName()));
}

QString ApplicationInfoManager::updateTempFolder() const
{
    return madeFolder(updateTempLocation());
}

QString ApplicationInfoManager::updateTempLocation() const
{
    return documentsFolder() + QStringLiteral("/%1/Temp/updateTemp").arg(productName());
}

QString ApplicationInfoManager::updateConfigurationFile() const
{
    return updateTempFolder() + QStringLiteral("/update_config.xml");
}

QString ApplicationInfoManager::posterTempFolder() const
{
    return madeFolder(documentsFolder() + QStringLiteral("/%1/Temp/posterTemp").arg(productName()));
}

QString ApplicationInfoManager::mediaServerFolder() const
{
    return madeFolder(dataFolder() + QStringLiteral("/mediaServer"));
}

QString ApplicationInfoManager::audioDumpFile() const
{
    return dataFolder() + QStringLiteral("/audio");
}

QString ApplicationInfoManager::applicationFolder() const
{
    return QCoreApplication::applicationDirPath();
}

QString ApplicationInfoManager::shaderFolder() const
{
    return applicationFolder() + QStringLiteral("/system/shaders/fx");
}

QString ApplicationInfoManager::languageFolder() const
{
    return applicationFolder() + PlatformNames::languageFolderSuffix();
}

bool ApplicationInfoManager::debugHotKey()
{
    return MarkerFiles::instance()->exists(MarkerFiles::DebugHotKey);
}

bool ApplicationInfoManager::debugFileAssociation()
{
    return MarkerFiles::instance()->exists(MarkerFiles::DebugFileAssociation);
}
