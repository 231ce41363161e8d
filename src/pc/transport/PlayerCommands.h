// The few commands of the player that the transport controls use directly, as functions, so that the controls
// run without an engine in tests.
//
// None of them waits for the engine's disc or network; stop and seek may, and so leave the controls as
// signals.
#pragma once

#include <QString>

#include <functional>

struct PlayerCommands {
    // True from the start of a source until its stop, end or failure.
    std::function<bool()> hasSource;

    std::function<float()> volume; // 0 to 2.0
    std::function<void(float)> setVolume;
    std::function<bool()> isMuted;
    std::function<void(bool)> setMute;

    std::function<void()> togglePause;
    std::function<void(bool forward)> speedUp;
    std::function<void(int index)> setSpeedIndex;
    std::function<QString()> speedText; // of the speed table
    std::function<void(bool forward)> stepFrame;

    std::function<int()> chapterCount;
    std::function<void()> nextChapter;
    std::function<void()> lastChapter;

    // Bound to the player of the program.
    [[nodiscard]] static PlayerCommands ofPlayer();
};
