// Waits until something is true, with events coming in meanwhile.
#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>

// False when the time is over first. What is asked for is looked at again and again, as it is seen from
// outside and nobody tells of its change.
template<class Predicate>
[[nodiscard]] bool eventually(const Predicate &isTrue, int timeoutMs = 10000)
{
    constexpr int StepMs = 10;
    const QDeadlineTimer deadline(timeoutMs);
    while (!isTrue()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, StepMs);
    }
    return true;
}
