#include "DiscEventRule.h"

namespace DiscEventRule {

bool stopsPlay(char drive, int notifyType, const QString &playingPath)
{
    if (notifyType != Removed && notifyType != Ejected)
        return false;
    return playingPath.size() == 1 && playingPath.at(0).toLower() == QChar(QLatin1Char(drive)).toLower();
}

} // namespace DiscEventRule
