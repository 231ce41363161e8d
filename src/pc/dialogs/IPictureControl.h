// What the two picture dialogs change in the running picture. The program's is PlayerPictureControl; tests
// give their own. Called on the GUI thread.
#pragma once

class IPictureControl {
public:
    virtual ~IPictureControl() = default;

    // 0 to 100, 50 leaves the picture as it is.
    virtual void setBrightness(float value) = 0;
    virtual void setSaturation(float value) = 0;
    virtual void setContrast(float value) = 0;

    // The next three act in the custom view alone.
    virtual void setZoomAmount(float zoom) = 0;
    virtual void setVerticalShift(float shift) = 0;
    virtual void setPixelRatio(float ratio) = 0;
    // Makes the view the custom one, with the three values as they stand.
    virtual void setCustomView() = 0;
};
