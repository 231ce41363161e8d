// The page "Audio": the devices follow the output mode, the receivers follow the pass-through. GUI thread.
#pragma once

#include "SettingsPageWidget.h"

class AudioPage final : public SettingsPageWidget {
    Q_OBJECT

public:
    explicit AudioPage(SettingsModel &model, QWidget *parent = nullptr);

    void retranslate() override;

public slots:
    void slot_setAudioMode(int nIndex);
    void slot_setAudioDevice(int nIndex);
    void slot_changePassThroughState(bool isChecked);
    void slot_setVolumeAmplification(int nValue);
    void slot_setAudioOffset(int nValue);

private:
    void fillDevices();
    void updatePassThrough();
};
