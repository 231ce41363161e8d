#include "PlayInfoStatisticsHelper.h"

#include <QDebug>

PlayInfoStatisticsHelper *PlayInfoStatisticsHelper::instance()
{
    static auto *helper = new PlayInfoStatisticsHelper;
    return helper;
}

void PlayInfoStatisticsHelper::note(const QString &group, const QString &event, const QString &value)
{
    qInfo().noquote() << QStringLiteral("[Statistics] %1, %2: %3").arg(group, event, value);
}
