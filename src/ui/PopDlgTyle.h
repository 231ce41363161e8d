// The dialogs that the menu of PC mode can open.
#pragma once

#include <QMetaType>

enum class PopDlgTyle {
    OpenMedia,
    VideoControl,
    ColorAdjust,
    LoadSubtitle,
    SubtitleSetting,
    Setting,
    Feedback,
    Forum,
    About
};
Q_DECLARE_METATYPE(PopDlgTyle)
