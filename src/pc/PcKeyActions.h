// What each key operation does in PC mode, as far as it concerns the running source: one row an operation.
//
// GUI thread. Works on the program's player; without a source nothing happens.
#pragma once

#include "keys/KeyOperateType.h"

class QPlayer;
class SettingsManager;

class PcKeyActions final {
public:
    // Seconds of one step.
    static constexpr int StepSeconds = 10;

    PcKeyActions(QPlayer &player, SettingsManager &settings)
        : m_player(player)
        , m_settings(settings)
    {
    }

    // False when the operation is none of these.
    bool run(KeyOperateType type);

    // A step below 1 lowers the volume by one percent, any other raises it; the engine takes up to 200
    // percent.
    void changeVolume(int step);

private:
    void toggleMute();
    void seekBy(int seconds);
    void cycleAudio();
    void cycleSubtitle();
    void arrow(int menuCommand, KeyOperateType type);

    QPlayer &m_player;
    SettingsManager &m_settings;
};
