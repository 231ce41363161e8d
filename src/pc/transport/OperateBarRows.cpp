#include "OperateBarRows.h"

#include "keys/KeyOperateType.h"

#define TIP(text) QT_TRANSLATE_NOOP("NormalOperateBar", text)

namespace OperateBarRows {

const std::vector<OperateBarRow> &all()
{
    using Bar = NormalOperateBar;
    using B = Bar::Button;
    using P = TransportPlace;
    constexpr int None = -1;
    constexpr int Small = 20;
    constexpr int Large = 24;
    static const std::vector<OperateBarRow> rows{
        // clang-format off
        {B::MusicPixmap, P::MusicPixmap, "pushButton_musicPixmap", "", Small, TIP("Show or hide the music view"), None, &Bar::sig_musicPixmapClicked, false, false, false},
        {B::LastChapter, P::PreviousChapter, "pushButton_lastChapter", "transport_previous", Small, TIP("Previous "), KeyOperate_PreviousChapter, &Bar::slot_lastChapterClicked, false, false, true},
        {B::Rewind, P::Rewind, "pushButton_rewind", "transport_rewind", Small, TIP("Rewind"), KeyOperate_Rewind, &Bar::slot_rewindClicked, false, false, true},
        {B::Play, P::PlayPause, "pushButton_play", "transport_play", Large, TIP("Play / Pause"), KeyOperate_PlayPause, &Bar::slot_playClicked, false, true, true},
        {B::Pause, P::PlayPause, "pushButton_pause", "transport_pause", Large, TIP("Play / Pause"), KeyOperate_PlayPause, &Bar::slot_pauseClicked, false, true, true},
        {B::Fast, P::FastForward, "pushButton_fast", "transport_forward", Small, TIP("Fast forward"), KeyOperate_FastForward, &Bar::slot_fastClicked, false, false, true},
        {B::NextChapter, P::NextChapter, "pushButton_nextChapter", "transport_next", Small, TIP("Next"), KeyOperate_NextChapter, &Bar::slot_nextChapterClicked, false, false, true},
        {B::Stop, P::Stop, "pushButton_stop", "transport_stop", Small, TIP("Stop"), KeyOperate_Stop, &Bar::slot_stopClicked, false, false, true},
        {B::PreviousFrame, P::PreviousFrame, "pushButton_lastFrame", "transport_frame_back", Small, TIP("Previous Frame"), KeyOperate_PreviousFrame, &Bar::slot_lastFrameClicked, false, false, true},
        {B::NextFrame, P::NextFrame, "pushButton_nextFrame", "transport_frame_next", Small, TIP("Next Frame"), KeyOperate_NextFrame, &Bar::slot_nextFrameClicked, false, false, true},
        {B::Volume, P::Volume, "pushButton_volumn", "transport_volume", Small, TIP("Mute / Mute off"), KeyOperate_Mute, &Bar::slot_VolumnClicked, false, false, false},
        {B::Mute, P::Volume, "pushButton_mute", "transport_mute", Small, TIP("Mute / Mute off"), KeyOperate_Mute, &Bar::slot_muteClicked, false, false, false},
        {B::ThreeDCube, P::ThreeD, "pushButton_3dCube", "transport_cube", Small, TIP("3D"), None, &Bar::slot_3dCubeClicked, false, false, false},
        {B::ThreeDText, P::ThreeD, "pushButton_3dText", "transport_3d", Small, TIP("3D"), None, &Bar::slot_3dTextClicked, false, false, false},
        {B::Preview, P::Preview, "pushButton_preview", "transport_preview", Small, TIP("Smart Preview"), KeyOperate_SmartView, &Bar::slot_previewClicked, true, false, true},
        {B::Playlist, P::Playlist, "pushButton_playlist", "transport_playlist", Small, TIP("Playlist"), None, &Bar::slot_playlistClicked, true, false, false},
        {B::FullScreen, P::FullScreen, "pushButton_fullScreen", "transport_full", Small, TIP("Full Screen"), KeyOperate_FullScreen, &Bar::slot_fullScreenClicked, false, false, false},
        {B::NormalScreen, P::FullScreen, "pushButton_normalScreen", "transport_unfull", Small, TIP("Exit Full Screen"), KeyOperate_FullScreen, &Bar::slot_normalScreenClicked, false, false, false},
        // clang-format on
    };
    return rows;
}

} // namespace OperateBarRows

#undef TIP
