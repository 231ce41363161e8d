#include "ResumeRule.h"

namespace ResumeRule {

bool storesPosition(qint64 positionSeconds, qint64 totalSeconds)
{
    return totalSeconds > ShortestSource && positionSeconds > EdgeSeconds
           && positionSeconds < totalSeconds - EdgeSeconds;
}

qint64 secondsOf(qint64 milliseconds)
{
    return qMax<qint64>(milliseconds, 0) / 1000;
}

QString storeKey(const QString &path, const QString &discName)
{
    return path.size() == 1 && !discName.isEmpty() ? discName : path;
}

int startSeconds(bool rememberPosition, int storedSeconds)
{
    return rememberPosition ? qMax(storedSeconds, 0) : 0;
}

bool showsNote(bool isPlayView, std::optional<bool> rememberPosition, bool startsInMenu)
{
    return isPlayView && !rememberPosition.value_or(false) && !startsInMenu;
}

} // namespace ResumeRule
