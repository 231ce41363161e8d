// Brightness, saturation and contrast of the running picture, with three presets. GUI thread.
#pragma once

#include "PictureSliderDlg.h"

class NormalColorAdjustDlg final : public PictureSliderDlg {
    Q_OBJECT

public:
    enum Slider { Brightness, Saturation, Contrast };

    explicit NormalColorAdjustDlg(QWidget *parent = nullptr);
    NormalColorAdjustDlg(SettingsManager &settings, IPictureControl &control, QWidget *parent = nullptr);

public slots:
    void slot_brightnessChanged(int nValue);
    void slot_saturationChanged(int nValue);
    void slot_contrastChanged(int nValue);
};
