#include "SystemClock.h"

#include <QDateTime>

#include <chrono>

qint64 SystemClock::steadyMs() const
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

qint64 SystemClock::wallMs() const
{
    return QDateTime::currentMSecsSinceEpoch();
}

bool SystemClock::pass(qint64 milliseconds, StopFlag &stop)
{
    return stop.sleepMs(milliseconds);
}
