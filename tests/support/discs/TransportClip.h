// What the structure of a Blu-ray has to know about one of its transport streams (192-byte packets).
#pragma once

#include <QString>
#include <QVector>

#include <cstdint>

struct TransportClip {
    struct EntryPoint {
        std::uint64_t pts = 0;    // 90 kHz
        std::uint32_t packet = 0; // number of the packet that starts the picture
    };

    std::uint32_t packetCount = 0;
    std::uint64_t firstPts = 0; // 90 kHz, of the video
    std::uint64_t endPts = 0;   // behind the last picture
    QVector<EntryPoint> entryPoints;

    // Reads a stream whose video runs at 25 pictures a second.
    static bool read(const QString &file, TransportClip &clip);
};
