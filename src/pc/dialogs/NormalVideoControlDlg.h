// Zoom, vertical shift and pixel ratio of the running picture. The first move switches to the custom view; at
// rest the view stays as it is. GUI thread.
#pragma once

#include "PictureSliderDlg.h"

class NormalVideoControlDlg final : public PictureSliderDlg {
    Q_OBJECT

public:
    enum Slider { ZoomAmount, VerticalShift, PixelRatio };

    explicit NormalVideoControlDlg(QWidget *parent = nullptr);
    NormalVideoControlDlg(SettingsManager &settings, IPictureControl &control, QWidget *parent = nullptr);

public slots:
    void slot_zoomChanged(int nValue);
    void slot_verticalShiftChanged(int nValue);
    void slot_pixelRatioChanged(int nValue);
    void slot_resetClicked();
};
