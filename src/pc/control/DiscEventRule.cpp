#include "DiscEventRule.h"

namespace DiscEventRule {

bool isGone(int notifyType)
{
    return notifyType == Removed || notifyType == Ejected;
}

bool stopsPlay(char drive, int notifyType, const QString &playingPath)
{
    return isGone(notifyType) && playingPath.size() == 1
           && playingPath.at(0).toLower() == QChar(QLatin1Char(drive)).toLower();
}

bool opensPlay(int notifyType, bool autoPlay, bool hasSource)
{
    return notifyType == Ready && autoPlay && !hasSource;
}

} // namespace DiscEventRule
