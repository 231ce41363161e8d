// The abstract operations that keys stand for. The numbers are stored in the settings file.
#pragma once

#include <QMap>
#include <QMetaType>

enum KeyOperateType : int {
    KeyOperate_OpenFile = 0,
    KeyOperate_Settings = 1,
    KeyOperate_About = 2,
    KeyOperate_SendFeedback = 3,
    KeyOperate_Eject = 4,
    KeyOperate_Close = 5,
    KeyOperate_Return = 6,
    KeyOperate_FullScreen = 7,
    KeyOperate_AlwaysOnTop = 8,
    KeyOperate_Mute = 9,
    KeyOperate_PreviousChapter = 10,
    KeyOperate_NextChapter = 11,
    KeyOperate_PlayPause = 12,
    KeyOperate_Stop = 13,
    KeyOperate_VolumeUp = 14,
    KeyOperate_VolumeDown = 15,
    KeyOperate_FastForward = 16,
    KeyOperate_Rewind = 17,
    KeyOperate_SwitchAudio = 18,
    KeyOperate_SwitchSubtitle = 19,
    KeyOperate_RotateCW = 20,
    KeyOperate_RotateCCW = 21,
    KeyOperate_FlipVertically = 22,
    KeyOperate_FlipHorizontally = 23,
    KeyOperate_FileInformation = 24,
    KeyOperate_ShowInformation = 25,
    KeyOperate_SmartView = 26,
    KeyOperate_PlaybackMenu = 27,
    KeyOperate_PopupMenu = 28,
    KeyOperate_TopMenu = 29,
    KeyOperate_Up = 30,
    KeyOperate_Down = 31,
    KeyOperate_Left = 32,
    KeyOperate_Right = 33,
    KeyOperate_Accept = 34,
    KeyOperate_Snapshot = 35,
    KeyOperate_Reserved = 36,
    KeyOperate_ForwardStep = 37,
    KeyOperate_BackwardStep = 38,
    KeyOperate_NextFrame = 39,
    KeyOperate_PreviousFrame = 40,
};

// From operation to key value: a Qt key code added to its modifier bits.
using KeyMap = QMap<int, int>;

Q_DECLARE_METATYPE(KeyOperateType)
