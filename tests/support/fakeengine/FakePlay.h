// The scripted IVDPlay: notes every call and answers as the script says.
#pragma once

#include "contract/Orbix.h"

#include <atomic>

class FakeState;

class FakePlay final : public libvp::IVDPlay {
public:
    FakePlay(FakeState &state, libvp::IVDPlayCallback *callback);
    ~FakePlay();

    [[nodiscard]] libvp::IVDPlayCallback &callback() { return *m_callback; }

    bool open(libvp::IVDFileItem *item, libvp::IVDPlayOptions *options, int reserved) override;
    void close() override;
    const libvp::VDAudioInfo *getAudioInfo(int index) override;
    const libvp::VDSubtitleInfo *getSubtitleInfo(int index) override;
    void togglePause() override;
    bool isPlaying() override;
    bool isPaused() override;
    double totalSeconds() override;
    double currentSeconds() override;
    void seek(double seconds, int mode) override;
    int audioCount() override;
    int audioTrack() override;
    void setAudioTrack(int index) override;
    int subtitleCount(int reserved) override;
    int subtitleTrack() override;
    void setSubtitleTrack(int index) override;
    void setSpeedIndex(int index) override;
    float speed() override;
    int chapterCount() override;
    int chapter() override;
    int titleCount() override;
    void goToChapter(int chapter) override;
    void menuCommand(int command, float value, int reserved) override;
    bool hasDiscMenu() override;
    int addSubtitle(const char *path) override;
    void setAuthorInfo(int value) override;
    void toggleStep() override;
    int statistic(int key) override;

private:
    FakeState &m_state;
    libvp::IVDPlayCallback *m_callback;
    std::atomic_bool m_open{false};
    std::atomic_bool m_paused{false};
};
