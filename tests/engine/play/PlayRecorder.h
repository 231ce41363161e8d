// Records the notifications of a play and lets a test wait for them.
#pragma once

#include "contract/Orbix.h"

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

class PlayRecorder final : public libvp::IVDPlayCallback {
public:
    struct Event {
        std::string name; // the operation's, without "OnPlayBack" or "On"
        int first = 0;
        int second = 0;
        double number = 0;
        std::string text;
        std::chrono::steady_clock::time_point at = std::chrono::steady_clock::now();
    };

    static constexpr std::chrono::milliseconds limit{15000};

    // True when as many events of the name have come since the beginning.
    [[nodiscard]] bool waitFor(const std::string &name, int count = 1,
                               std::chrono::milliseconds time = limit);
    // True when as many events that are wanted have come since the beginning.
    [[nodiscard]] bool waitUntil(const std::function<bool(const Event &)> &wanted,
                                 std::chrono::milliseconds time = limit, int count = 1);
    [[nodiscard]] bool waitForSeek(int state, int count = 1);
    [[nodiscard]] int count(const std::string &name) const;
    [[nodiscard]] std::vector<Event> events() const;
    [[nodiscard]] Event last(const std::string &name) const;
    // Names in their order, without the time.
    [[nodiscard]] std::vector<std::string> order() const;
    // True when no two notifications ran at once and all came on one thread.
    [[nodiscard]] bool inOrder() const;

    // Called within a notification, for what a player may do there.
    void setHook(std::function<void(const Event &)> hook);

    vdStopPlayInfo stopInfo;
    std::vector<unsigned char> lastFrame;
    vdFileInfo failInfo;
    std::vector<unsigned char> screenshot;
    libvp::VDVideoInfo videoInfo;
    libvp::VDAudioInfo audioInfo;
    libvp::VDSubtitleInfo subtitleInfo;
    libvp::VDPcmFrame pcmFrame;

    void OnPlayBackEnded() override { add("Ended"); }
    void OnPlayBackStarted() override { add("Started"); }
    void OnPlayBackPaused() override { add("Paused"); }
    void OnPlayBackResumed() override { add("Resumed"); }
    void OnStopInfo(vdStopPlayInfo info) override;
    void OnPlayBackStopped() override { add("Stopped"); }
    void OnQueueNextItem() override { add("QueueNextItem"); }
    void OnPlayBackSeek(int from, int to) override { add("Seek", from, to); }
    void OnPlayBackSeekChapter(int chapter) override { add("SeekChapter", chapter); }
    void OnPlayBackSpeedChanged(float speed) override
    {
        add("SpeedChanged", 0, 0, static_cast<double>(speed));
    }
    void OnPlayBackFailed(int error, vdFileInfo info) override;
    void OnDiscRefused(int error, const char *message, vdFileInfo) override
    {
        add("DiscRefused", error, 0, 0, message);
    }
    void reserved13(int, int) override {}
    void OnTime(int position, int total) override { add("Time", position, total); }
    void OnTitle(int title) override { add("Title", title); }
    void OnChapter(int current, int total) override { add("Chapter", current, total); }
    void OnVideoInfo(const libvp::VDVideoInfo *info) override;
    void OnAudioInfo(const libvp::VDAudioInfo *info) override;
    void OnSubtitleInfo(const libvp::VDSubtitleInfo *info) override;
    void reserved20(int, int) override {}
    void reserved21(int, int) override {}
    void OnDynamicRange(int range) override { add("DynamicRange", range); }
    void OnSeekState(libvp::VD_SeekState state) override { add("SeekState", state); }
    void reserved24() override {}
    void reserved25(int) override {}
    void reserved26() override {}
    void reserved27() override {}
    void OnScreenshot(unsigned char *rgba, int width, int height) override;
    void reserved29(int, int, int) override {}
    void reserved30(int, int, int) override {}
    void OnStatistics(const char *json) override { add("Statistics", 0, 0, 0, json); }
    void reserved32(int) override {}
    void OnAudioFrame(const libvp::VDPcmFrame *frame) override;

private:
    void add(const std::string &name, int first = 0, int second = 0, double number = 0,
             const std::string &text = {});

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<Event> m_events;
    std::thread::id m_thread;
    std::function<void(const Event &)> m_hook;
    int m_inside{0};
    bool m_inOrder{true};
};
