#include "PcKeyActions.h"

#include "transport/VolumeControl.h"

#include "player/QPlayer.h"

namespace {

// Commands of a disc menu, in the engine's numbers.
enum MenuCommand { MenuRight = 2, MenuUp = 3, MenuOk = 4, MenuLeft = 9, MenuDown = 10 };

} // namespace

bool PcKeyActions::run(KeyOperateType type)
{
    const struct {
        KeyOperateType type;
        std::function<void()> action;
    } rows[] = {
        {KeyOperate_Mute, [this] { m_volume.toggleMute(); }},
        {KeyOperate_VolumeUp, [this] { m_volume.changeVolume(1); }},
        {KeyOperate_VolumeDown, [this] { m_volume.changeVolume(-1); }},
        {KeyOperate_Up, [this] { arrow(MenuUp, KeyOperate_VolumeUp); }},
        {KeyOperate_Down, [this] { arrow(MenuDown, KeyOperate_VolumeDown); }},
        {KeyOperate_Left, [this] { arrow(MenuLeft, KeyOperate_BackwardStep); }},
        {KeyOperate_Right, [this] { arrow(MenuRight, KeyOperate_ForwardStep); }},
        {KeyOperate_Accept, [this] { m_player.menuCommand(MenuOk); }},
        {KeyOperate_NextFrame, [this] { m_player.stepFrame(true); }},
        {KeyOperate_PreviousFrame, [this] { m_player.stepFrame(false); }},
    };
    for (const auto &row : rows) {
        if (row.type == type) {
            row.action();
            return true;
        }
    }
    return false;
}

// The arrows belong to a disc's menu where there is one.
void PcKeyActions::arrow(int menuCommand, KeyOperateType type)
{
    if (m_player.hasDiscMenu())
        m_player.menuCommand(menuCommand);
    else
        m_runOther(type);
}
