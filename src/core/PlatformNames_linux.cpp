#include "PlatformNames.h"

#include <QFileInfo>

QString PlatformNames::programFile(const QString &baseName)
{
    return baseName;
}

QString PlatformNames::languageFolderSuffix()
{
    return QStringLiteral("/QLanguage");
}

QString PlatformNames::markerFile(const QString &drivePath, const QString &dataFolder)
{
    return dataFolder + QLatin1Char('/') + QFileInfo(drivePath).fileName();
}

Qt::CaseSensitivity PlatformNames::pathCase()
{
    return Qt::CaseSensitive;
}
