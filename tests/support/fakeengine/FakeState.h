// What the objects of the scripted engine share, and its remote control.
#pragma once

#include "FakeDispatcher.h"
#include "FakeEngine.h"
#include "FakeScript.h"

#include <map>
#include <memory>

class FakeCore;
class FakePlay;

class FakeState final : public FakeEngine {
public:
    FakeState();
    ~FakeState();

    static FakeState &instance();

    // ---- for the engine objects
    FakeScript script;
    [[nodiscard]] bool isAutomatic() const;
    [[nodiscard]] FakeDispatcher &dispatcher() { return *m_dispatcher; }
    libvp::IVDEngineCore *create(libvp::IVDPlayerConfig *config, libvp::IVDOrbixCallback *callback);
    void destroy(libvp::IVDEngineCore *core);
    libvp::IVDPlayTool *createTool(libvp::IVDPlayToolConfig *config, libvp::IVDPlaytoolCallback *callback);
    libvp::IVDPlay *createPlay(libvp::IVDPlayCallback *callback);
    void destroyPlay(libvp::IVDPlay *play);
    bool post(std::function<void(libvp::IVDPlayCallback &)> notification);

    [[nodiscard]] std::vector<libvp::VDAudioInfo> audioTracks() const;
    [[nodiscard]] std::vector<libvp::VDSubtitleInfo> subtitleTracks() const;
    [[nodiscard]] const libvp::VDAudioDeviceList *audioDevices();
    [[nodiscard]] std::vector<libvp::VDDiscTitle> discTitles(int *mainTitle) const;
    [[nodiscard]] libvp::VDDiscDisplayInfo discInfo() const;
    [[nodiscard]] const libvp::VDPicture *makePicture() const;
    [[nodiscard]] int statisticValue(int key) const;

    // ---- FakeEngine
    void reset() override;
    void answer(const std::string &operation, double value) override;
    void answerText(const std::string &operation, const std::string &text) override;
    void hold(const std::string &operation) override;
    void release(const std::string &operation) override;
    bool waitHeld(const std::string &operation, int milliseconds) override;
    void setAutomatic(bool on) override;
    void setAudioTracks(std::vector<libvp::VDAudioInfo> tracks) override;
    void setSubtitleTracks(std::vector<libvp::VDSubtitleInfo> tracks) override;
    void setAudioDevices(std::vector<libvp::VDAudioDevice> devices) override;
    void setDiscTitles(std::vector<libvp::VDDiscTitle> titles, int mainTitle) override;
    void setDiscInfo(const libvp::VDDiscDisplayInfo &info) override;
    void setPicture(std::vector<unsigned char> bytes, int width, int height, int format) override;
    void setStatistic(int key, int value) override;
    std::vector<std::string> calls() const override;
    void clearCalls() override;
    bool waitCall(const std::string &beginning, int milliseconds) override;
    bool raise(std::function<void(libvp::IVDPlayCallback &)> notification) override;
    bool raiseOrbix(std::function<void(libvp::IVDOrbixCallback &)> notification) override;
    bool raiseTool(std::function<void(libvp::IVDPlaytoolCallback &)> notification) override;
    bool waitNotified(int milliseconds) override;
    libvp::IVDEngineCore *core() override;
    libvp::IVDPlayTool *tool() override;
    libvp::IVDPlay *play() override;
    libvp::IVDPlayerConfig *playerConfig() override;
    libvp::IVDPlayToolConfig *toolConfig() override;

private:
    struct Engine;
    struct Records {
        std::vector<libvp::VDAudioInfo> audioTracks;
        std::vector<libvp::VDSubtitleInfo> subtitleTracks;
        std::vector<libvp::VDAudioDevice> audioDevices;
        libvp::VDAudioDeviceList audioDeviceList;
        std::vector<libvp::VDDiscTitle> discTitles;
        int mainTitle = -1;
        libvp::VDDiscDisplayInfo discInfo;
        std::vector<unsigned char> picture;
        libvp::VDPicture pictureInfo;
        std::map<int, int> statistics;
        bool automatic = false;
    };

    mutable std::mutex m_mutex;
    Records m_records;
    std::unique_ptr<Engine> m_engine;
    std::unique_ptr<FakeDispatcher> m_dispatcher;
};
