// The page "Playback". GUI thread.
#pragma once

#include "SettingsPageWidget.h"

class PlaybackPage final : public SettingsPageWidget {
    Q_OBJECT

public:
    explicit PlaybackPage(SettingsModel &model, QWidget *parent = nullptr);
};
