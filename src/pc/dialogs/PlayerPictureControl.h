// The picture of the program's player. Owns nothing. GUI thread.
#pragma once

#include "IPictureControl.h"

class PlayerPictureControl final : public IPictureControl {
public:
    // The one object of the program.
    [[nodiscard]] static IPictureControl *instance();

    void setBrightness(float value) override;
    void setSaturation(float value) override;
    void setContrast(float value) override;
    void setZoomAmount(float zoom) override;
    void setVerticalShift(float shift) override;
    void setPixelRatio(float ratio) override;
    void setCustomView() override;
};
