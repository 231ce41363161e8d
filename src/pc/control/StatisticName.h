// Names of the usage events that play control sends. The two parts are QPlayer's texts for the source's form
// and its media class.
#pragma once

#include <QString>

namespace StatisticName {

[[nodiscard]] inline QString stop(const QString &fileType, const QString &mediaType)
{
    return QStringLiteral("Stop_%1_%2").arg(fileType, mediaType);
}

[[nodiscard]] inline QString fail(const QString &fileType, const QString &mediaType)
{
    return QStringLiteral("Fail_%1_%2").arg(fileType, mediaType);
}

} // namespace StatisticName
