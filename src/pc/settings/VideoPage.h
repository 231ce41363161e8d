// The page "Video": what belongs to HDR follows its switch. GUI thread.
#pragma once

#include "SettingsPageWidget.h"

class VideoPage final : public SettingsPageWidget {
    Q_OBJECT

public:
    explicit VideoPage(SettingsModel &model, QWidget *parent = nullptr);

public slots:
    void slot_setHDRState(int nState);
    void slot_updateSDRConfigState();
    // Starts the program that looks at the hardware.
    void slot_hardwareDetectClicked();

private:
    QLabel *m_failure;
};
