// The time as the metadata layer sees it, so that a test need not wait for it. Any thread.
#pragma once

#include "StopFlag.h"

#include <QtGlobal>

class MetadataClock {
public:
    virtual ~MetadataClock() = default;

    // Milliseconds that only grow, for limits and deadlines.
    [[nodiscard]] virtual qint64 steadyMs() const = 0;
    // Milliseconds since the epoch, UTC, for the age of files.
    [[nodiscard]] virtual qint64 wallMs() const = 0;
    // Lets the time pass. False when the flag ended it early.
    [[nodiscard]] virtual bool pass(qint64 milliseconds, StopFlag &stop) = 0;
};
