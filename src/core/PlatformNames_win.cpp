#include "PlatformNames.h"

QString PlatformNames::programFile(const QString &baseName)
{
    return baseName + QStringLiteral(".exe");
}

QString PlatformNames::languageFolderSuffix()
{
    return QStringLiteral("\\QLanguage");
}

QString PlatformNames::markerFile(const QString &drivePath, const QString &)
{
    return drivePath;
}

Qt::CaseSensitivity PlatformNames::pathCase()
{
    return Qt::CaseInsensitive;
}
