// What each key operation does in PC mode, as far as it concerns the running source: one row an operation.
//
// GUI thread. Works on the program's player; without a source nothing happens.
#pragma once

#include "keys/KeyOperateType.h"

#include <functional>

class QPlayer;
class VolumeControl;

class PcKeyActions final {
public:
    // Seconds of one step.
    static constexpr int StepSeconds = 10;

    // A seek may wait for the disc: it goes where it holds up no window.
    using Seek = std::function<void(int seconds)>;

    PcKeyActions(QPlayer &player, VolumeControl &volume, Seek seek)
        : m_player(player)
        , m_volume(volume)
        , m_seek(std::move(seek))
    {
    }

    // False when the operation is none of these.
    bool run(KeyOperateType type);

private:
    void seekBy(int seconds);
    void cycleAudio();
    void cycleSubtitle();
    void arrow(int menuCommand, KeyOperateType type);

    QPlayer &m_player;
    VolumeControl &m_volume;
    Seek m_seek;
};
