// What the system knows of a drive and of the volume that a path lies on. Safe on every thread; each question
// may wait for the drive.
#pragma once

#include "DriveLetters.h"

#include <QString>

#include <optional>

namespace DriveFacts {

struct Space {
    // Bytes; free is what this user may still write.
    quint64 free{0};
    quint64 total{0};
};

// The folder in which the files of the drive's medium are found; empty when the system shows none, as for an
// image that is not mounted.
[[nodiscard]] QString rootFolder(const Drive &drive);

// A number that tells media apart; 0 when there is none.
[[nodiscard]] quint32 volumeSerial(const Drive &drive);
// "UDF", "ext4"; empty when unknown.
[[nodiscard]] QString fileSystemName(const Drive &drive);
[[nodiscard]] std::optional<Space> space(const Drive &drive);

// The number of an optical drive among its kind, from 0; -1 for what has no device.
[[nodiscard]] int opticalDeviceNumber(const Drive &drive);

// Of the volume that a path lies on; a path may begin with a drive's letter.
[[nodiscard]] Drive::Kind kindOfPath(const QString &path);
// A fixed disk inside the machine. False also when that can't be told.
[[nodiscard]] bool isInternalFixed(const QString &path);

} // namespace DriveFacts
