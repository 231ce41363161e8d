#include "PcKeyActions.h"

#include "transport/VolumeControl.h"

#include "player/QPlayer.h"

namespace {

// Commands of a disc menu, in the engine's numbers.
enum MenuCommand { MenuRight = 2, MenuUp = 3, MenuOk = 4, MenuCall = 6, MenuLeft = 9, MenuDown = 10 };

constexpr float kTopMenu = 1.0F;
constexpr float kPopupMenu = 0.0F;

} // namespace

bool PcKeyActions::run(KeyOperateType type)
{
    const struct {
        KeyOperateType type;
        std::function<void()> action;
    } rows[] = {
        {KeyOperate_PlayPause, [this] { m_player.togglePause(); }},
        {KeyOperate_Mute, [this] { m_volume.toggleMute(); }},
        {KeyOperate_PreviousChapter, [this] { m_player.lastChapter(); }},
        {KeyOperate_NextChapter, [this] { m_player.nextChapter(); }},
        {KeyOperate_VolumeUp, [this] { m_volume.changeVolume(1); }},
        {KeyOperate_VolumeDown, [this] { m_volume.changeVolume(-1); }},
        {KeyOperate_FastForward, [this] { m_player.speedUp(true); }},
        {KeyOperate_Rewind, [this] { m_player.speedUp(false); }},
        {KeyOperate_SwitchAudio, [this] { cycleAudio(); }},
        {KeyOperate_SwitchSubtitle, [this] { cycleSubtitle(); }},
        {KeyOperate_RotateCW, [this] { m_player.flip(1); }},
        {KeyOperate_RotateCCW, [this] { m_player.flip(2); }},
        {KeyOperate_FlipVertically, [this] { m_player.flip(5); }},
        {KeyOperate_FlipHorizontally, [this] { m_player.flip(4); }},
        {KeyOperate_PopupMenu, [this] { m_player.menuCommand(MenuCall, kPopupMenu); }},
        {KeyOperate_TopMenu, [this] { m_player.menuCommand(MenuCall, kTopMenu); }},
        {KeyOperate_Up, [this] { arrow(MenuUp, KeyOperate_VolumeUp); }},
        {KeyOperate_Down, [this] { arrow(MenuDown, KeyOperate_VolumeDown); }},
        {KeyOperate_Left, [this] { arrow(MenuLeft, KeyOperate_BackwardStep); }},
        {KeyOperate_Right, [this] { arrow(MenuRight, KeyOperate_ForwardStep); }},
        {KeyOperate_Accept, [this] { m_player.menuCommand(MenuOk); }},
        {KeyOperate_Snapshot, [this] { m_player.takeScreenshot(0, 0, 0); }},
        {KeyOperate_ForwardStep, [this] { seekBy(StepSeconds); }},
        {KeyOperate_BackwardStep, [this] { seekBy(-StepSeconds); }},
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

void PcKeyActions::seekBy(int seconds)
{
    m_seek(int(qBound(0.0, m_player.currentTime() + seconds, m_player.totalTime())));
}

void PcKeyActions::cycleAudio()
{
    const int count = m_player.audioCount();
    if (count > 0)
        m_player.setAudioTrack((m_player.audioTrack() + 1) % count);
}

void PcKeyActions::cycleSubtitle()
{
    const int count = m_player.subtitleCount();
    if (count == 0)
        return;
    // The step after the last track switches subtitles off.
    const int next = m_player.isSubtitleVisible() ? m_player.subtitleTrack() + 1 : 0;
    m_player.setSubtitleTrack(next < count ? next : -1);
}

// The arrows belong to a disc's menu where there is one.
void PcKeyActions::arrow(int menuCommand, KeyOperateType type)
{
    if (m_player.hasDiscMenu())
        m_player.menuCommand(menuCommand);
    else
        run(type);
}
