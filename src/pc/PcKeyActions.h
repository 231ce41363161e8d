// What those key operations do in PC mode that concern the running source and stand in no menu: one row each.
//
// GUI thread. Works on the program's player; without a source nothing happens.
#pragma once

#include "keys/KeyOperateType.h"

#include <functional>

class QPlayer;
class VolumeControl;

class PcKeyActions final {
public:
    // Runs an operation that another key has, wherever it belongs.
    using Run = std::function<void(KeyOperateType type)>;

    PcKeyActions(QPlayer &player, VolumeControl &volume, Run runOther)
        : m_player(player)
        , m_volume(volume)
        , m_runOther(std::move(runOther))
    {
    }

    // False when the operation is none of these.
    bool run(KeyOperateType type);

private:
    void arrow(int menuCommand, KeyOperateType type);

    QPlayer &m_player;
    VolumeControl &m_volume;
    Run m_runOther;
};
