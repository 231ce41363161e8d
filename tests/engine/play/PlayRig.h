// An output with everything around it that a play needs, and the shortest way to open a clip.
#pragma once

#include "PlayRecorder.h"

#include "engine/DriveTable.h"
#include "engine/DriveWatch.h"
#include "engine/Notifier.h"
#include "engine/PlayTool.h"

#include <memory>
#include <string>
#include <vector>

class FileItem final : public libvp::IVDFileItem {
public:
    explicit FileItem(std::string path, int type = libvp::VD_Item_File)
        : m_path(std::move(path))
        , m_type(type)
    {
    }
    const char *path() override { return m_path.c_str(); }
    int reserved2() override { return 0; }
    const char *auxiliaryPath() override { return ""; }
    int flags() override { return 0; }
    int itemType() override { return m_type; }

private:
    std::string m_path;
    int m_type;
};

class PlayOptions final : public libvp::IVDPlayOptions {
public:
    double start = 0;
    double end = 0;
    std::string titleText;
    int audio = libvp::VD_DefaultChoice;
    int subtitle = libvp::VD_DefaultChoice;
    int angleNumber = libvp::VD_DefaultChoice;
    int chapterNumber = -1;
    bool plays = true;

    double startSeconds() override { return start; }
    double endSeconds() override { return end; }
    const char *title() override { return titleText.c_str(); }
    bool flagA() override { return false; }
    int audioStream() override { return audio; }
    int subtitleStream() override { return subtitle; }
    int angle() override { return angleNumber; }
    int chapter() override { return chapterNumber; }
    bool autoStart() override { return plays; }
    const char *extra() override { return ""; }
    bool reserved11() override { return false; }
    bool reserved12() override { return false; }
    int lastField() override { return -1; }
    int reserved14() override { return -1; }
    int reserved15() override { return 0; }
    bool reserved16() override { return false; }
    float reserved17() override { return 1.0f; }
};

class EngineNotes final : public libvp::IVDOrbixCallback {
public:
    void OnError(libvp::VD_ErrorCallbackType type) override;
    void reserved2(int, int) override {}
    void OnDiscEvent(char, libvp::VD_OPTRA_DISC_NOTIFY_TYPE) override {}
    void OnDiscError(char, libvp::VD_OPTRA_DISC_ERROR_TYPE) override {}

    // True when as many notes of the type have come.
    [[nodiscard]] bool waitFor(int type, int count = 1);
    [[nodiscard]] int count(int type) const;

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<int> m_types;
};

class OutputNotes final : public libvp::IVDPlaytoolCallback {
public:
    void OnVolumeChanged(float volume) override;
    void OnMuteChanged(bool mute) override;

    [[nodiscard]] bool waitForVolume(float volume);
    [[nodiscard]] bool waitForMute(bool mute);

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<float> m_volumes;
    std::vector<bool> m_mutes;
};

class Surface final : public libvp::IVDPlayToolConfig {
public:
    void *window = nullptr;
    int width = 640;
    int height = 360;

    int surfaceWidth() override { return width; }
    int surfaceHeight() override { return height; }
    bool reserved3() override { return false; }
    void *nativeWindow() override { return &window; }
};

class PlayRig final {
public:
    // outputs: libmpv's video outputs; window: of a surface to draw into.
    explicit PlayRig(const std::string &outputs = "null", void *window = nullptr);
    ~PlayRig();

    // Opens and waits for the start or for the failure. False for a failure.
    bool open(const std::string &path, PlayOptions options = {}, int itemType = libvp::VD_Item_File);
    // Opens and does not wait.
    bool begin(const std::string &path, PlayOptions options = {}, int itemType = libvp::VD_Item_File);
    void close();

    // Waits until a property of libmpv has a value.
    [[nodiscard]] bool waitForProperty(const std::string &name,
                                       const std::function<bool(const MpvValue &)> &wanted);
    [[nodiscard]] bool waitForProperty(const std::string &name, const MpvValue &wanted);
    // Waits until a time of the play, in milliseconds, was told since the beginning.
    [[nodiscard]] bool waitForTime(const std::function<bool(int)> &wanted,
                                   std::chrono::milliseconds time = PlayRecorder::limit);

    EngineNotes notes;
    OutputNotes output;
    Surface surface;
    DriveTable drives;
    Notifier notifier;
    DriveWatch watch{drives, notifier, &notes};
    std::unique_ptr<PlayTool> tool;
    libvp::IVDPlay *play = nullptr;
    std::unique_ptr<PlayRecorder> recorder; // of the newest play
};
