// The play that the player sees: passes its operations on to the session of the open source. Owned by the
// output until releasePlay(); may be used from any thread.
#pragma once

#include "PlaySession.h"

#include "contract/IVDPlay.h"

#include <memory>
#include <mutex>

class DriveTable;
class LogOnce;

class Play final : public libvp::IVDPlay {
public:
    Play(const PlayContext &context, const DriveTable &drives, LogOnce &log,
         libvp::IVDPlayCallback *callback);
    ~Play();
    Play(const Play &) = delete;
    Play &operator=(const Play &) = delete;

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

    // Null while nothing is open.
    [[nodiscard]] std::shared_ptr<PlaySession> session() const;

private:
    [[nodiscard]] PlayFacts facts() const;

    PlayContext m_context;
    const DriveTable &m_drives;
    LogOnce &m_log;
    libvp::IVDPlayCallback *m_callback;
    mutable std::mutex m_mutex;
    std::shared_ptr<PlaySession> m_session;
};
