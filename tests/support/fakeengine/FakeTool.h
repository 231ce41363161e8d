// The scripted IVDPlayTool: notes every call and answers as the script says.
#pragma once

#include "contract/Orbix.h"

class FakeState;

class FakeTool final : public libvp::IVDPlayTool {
public:
    FakeTool(FakeState &state, libvp::IVDPlaytoolCallback *callback);

    [[nodiscard]] libvp::IVDPlaytoolCallback &callback() { return *m_callback; }

    bool isValid() override;
    void resizeSurface(int width, int height) override;
    bool createPlay(libvp::IVDPlayCallback *callback, int reserved, libvp::IVDPlay **play) override;
    void releasePlay(libvp::IVDPlay **play) override;
    bool setBoolProperty(const char *name, bool value) override;
    bool setIntProperty(const char *name, int value) override;
    bool setStringProperty(const char *name, const char *value) override;
    void setSpeakerLayout(int layout) override;
    bool switchAudioOutput(bool passThrough, const char *device) override;
    int passThrough() override;
    const char *currentAudioDevice() override;
    bool audioDevices(const libvp::VDAudioDeviceList **list) override;
    void setDeinterlaceMode(int mode) override;
    void setZoomAmount(float zoom) override;
    void setPixelRatio(float ratio) override;
    void setVerticalShift(float shift) override;
    void setViewMode(int mode) override;
    int viewMode() override;
    void setVolume(float volume) override;
    void setMute(bool mute) override;
    void setBootValue(int value) override;
    void setAudioDelay(float seconds) override;
    void setAudioAmplification(float amount) override;
    void setSubtitleOffset(float seconds) override;
    void setSubtitleVisible(bool visible) override;
    bool isSubtitleVisible() override;
    void setSubtitleFont(const char *family) override;
    void setSubtitleSize(int size) override;
    void setSubtitlePosition(int position, int reserved) override;
    void setSubtitleColor(const char *color) override;
    void setSubtitleBold(bool bold) override;
    void setSubtitleItalic(bool italic) override;
    void setSubtitleOutline(bool outline) override;
    void setBrightness(float value) override;
    void setSaturation(float value) override;
    void setContrast(float value) override;
    void setRotation(int quarterTurns) override;
    int flipState() override;
    void setFlipState(int state) override;
    void resetFlip() override;
    void set3DInputLayout(int layout) override;
    void setSubtitleOverride(bool override) override;
    void set3DEngine(bool on) override;
    void setUpFlag73(int value) override;
    void setUpFlag74(int value) override;
    bool takeScreenshot(int mode, int width, int height) override;
    double displayAspect() override;
    void enableHardwareDecoding(bool on) override;
    void setRegion(int region) override;
    void showInformationOverlay(bool show) override;
    void forwardWindowMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam, int x,
                              int y) override;
    void forwardWindowMove(int x, int y) override;
    void enableToneMap(bool on) override;
    bool discDisplayInfo(const char *drive, libvp::VDDiscDisplayInfo *info) override;
    bool eject(char drive) override;
    int discState(char drive) override;
    void set3DParallax(int direction) override;
    bool threeDCapabilities(libvp::VD3DCapabilities *capabilities) override;
    void setUiLanguage(int code) override;
    void setProxy(int type, const char *host, int port, const char *user, const char *password) override;
    void setHDRMode(int mode) override;
    void setSDRMode(int mode) override;
    void setPreferredAudioLanguage(const char *language) override;
    void setPreferredSubtitleLanguage(const char *language) override;
    bool setCustomShader(const char *path) override;
    const char *customShader() override;

private:
    template<class... Arguments>
    void call(const char *operation, const Arguments &...arguments);
    [[nodiscard]] int answered(const char *operation, double otherwise) const;

    FakeState &m_state;
    libvp::IVDPlaytoolCallback *m_callback;
};
