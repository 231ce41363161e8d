// The output: keeps what the player sets, for the running play and for later ones, and makes the plays.
//
// Owned by the engine core, whose notifier and drives it uses. Owns the settings and the plays. May be used
// from any thread.
#pragma once

#include "AudioOutputs.h"
#include "DriveWatch.h"
#include "EngineSettings.h"
#include "LogOnce.h"
#include "MpvSpare.h"
#include "Play.h"
#include "ResumeMemory.h"

#include "contract/Orbix.h"

#include <memory>
#include <mutex>
#include <vector>

class PlayTool final : public libvp::IVDPlayTool {
public:
    PlayTool(libvp::IVDPlayerConfig *config, libvp::IVDOrbixCallback *orbix,
             libvp::IVDPlayToolConfig *toolConfig, libvp::IVDPlaytoolCallback *callback, DriveWatch &watch,
             Notifier &notifier);
    // Ends the plays that are left.
    ~PlayTool();
    PlayTool(const PlayTool &) = delete;
    PlayTool &operator=(const PlayTool &) = delete;

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

    // For tests: a property of the running play as libmpv has it, and how the next plays look at a source.
    [[nodiscard]] MpvValue readProperty(const std::string &name) const;
    [[nodiscard]] PlayContext &playContext() { return m_context; }

private:
    struct BoolRow;
    struct IntRow;
    struct StringRow;
    static const BoolRow boolRows[];
    static const IntRow intRows[];
    static const StringRow stringRows[];

    void set(const char *option, MpvValue value) { m_settings.setOption(option, std::move(value)); }
    void prefer(const std::function<void(PlayPreferences &)> &edit) { m_settings.change(edit); }
    void setVideoOutputs(const std::string &outputs);
    void applyVolume();
    void applyPassThrough();
    bool setAudioDevice(const std::string &name);
    bool setPassThrough(bool on);
    bool setDrive(const char *property, const char *path);
    bool stepFrame(int frames);
    bool setAngle(int angle);
    void lacks(const char *what);
    [[nodiscard]] std::shared_ptr<PlaySession> openSession() const;

    libvp::IVDPlayerConfig *m_config;
    libvp::IVDPlaytoolCallback *m_callback;
    DriveWatch &m_watch;
    DriveTable &m_drives;
    LogOnce m_log;
    EngineSettings m_settings;
    ResumeMemory m_resume;
    AudioOutputs m_outputs;
    Notifier &m_notifier;
    Notifier::LinePtr m_line;
    MpvSpare m_spare;
    PlayContext m_context;
    bool m_valid{false};

    mutable std::mutex m_playsMutex;
    std::vector<std::unique_ptr<Play>> m_plays;

    mutable std::mutex m_mutex; // of what follows
    std::string m_videoOutputs;
    bool m_outputsChosen{false};
    std::string m_audioDevice;
    bool m_passThrough{false};
    unsigned m_codecMask{0};
    int m_speakerLayout{0};
    float m_volume{1};
    float m_amplification{0};
    bool m_subtitleVisible{true};
};
