// What is known of a play at this moment, for the operations that ask. A plain value: the engine thread
// writes it, all others read a copy under the owner's lock.
#pragma once

#include "TrackList.h"

#include "contract/VDRecords.h"

#include <algorithm>
#include <chrono>
#include <vector>

struct PlayFacts {
    using Clock = std::chrono::steady_clock;

    bool isOpen = false;    // from OnPlayBackStarted to close
    bool isPlaying = false; // from OnPlayBackStarted to the end
    bool isPaused = false;
    bool hasFrame = false;
    float speed = 1;
    double total = 0; // seconds

    // The position runs on from a reading at a rate, 0 while nothing moves.
    double position = 0; // seconds
    double rate = 0;
    Clock::time_point readAt{};

    TrackList tracks;
    int chapter = 0; // from 1
    int chapterCount = 0;
    int titleCount = 0;
    double aspect = 0; // display aspect of the source
    vdFileInfo info;
    double frameRate = 0;
    int droppedFrames = 0;
    bool hardwareDecoding = false;
    double playedSeconds = 0; // without pauses, times the speed

    [[nodiscard]] double positionAt(Clock::time_point now) const
    {
        const double moved = std::chrono::duration<double>(now - readAt).count() * rate;
        const double reached = std::max(position + moved, 0.0);
        return total > 0 ? std::min(reached, total) : reached;
    }
};
