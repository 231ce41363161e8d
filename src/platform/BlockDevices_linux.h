// What the kernel tells of a disk. Any thread.
#pragma once

#include <QString>

namespace BlockDevices {

struct Facts {
    bool isKnown{false};
    // The medium can be taken out.
    bool isRemovable{false};
    // By USB or IEEE 1394, so that the whole disk can be unplugged.
    bool isExternal{false};
};

// device: its numbers, "8:1"; of a partition those of its disk. sys: a folder laid out as /sys.
[[nodiscard]] Facts factsOf(const QString &device, const QString &sys = QStringLiteral("/sys"));

} // namespace BlockDevices
