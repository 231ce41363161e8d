// What belongs to every question to a provider, whatever it is about.
#pragma once

#include "StopFlag.h"

#include <QString>

#include <limits>

struct MetadataCall {
    QString language; // as the protocol gives it: "en", "es-es", "zh-TW"
    StopFlag &stop;
    // On the steady clock; nothing is begun that could not end before.
    qint64 deadlineMs{std::numeric_limits<qint64>::max()};
};
