// One open source on an engine thread of its own: opens it, follows libmpv's events, carries out what the
// player asks for and tells it what happens.
//
// The thread runs from the constructor to end(). Operations may be called from any thread and are carried out
// on the engine thread, which never waits for files or for libmpv: what may hang (the look at the file, the
// end of libmpv) has a helper thread and a time limit.
#pragma once

#include "EngineSettings.h"
#include "EngineThread.h"
#include "LastFrame.h"
#include "MpvHandle.h"
#include "MpvSpare.h"
#include "Notifier.h"
#include "PictureOptions.h"
#include "PlayFacts.h"
#include "PlayReport.h"
#include "SeekQueue.h"
#include "ShaderWatch.h"
#include "SidecarSubtitles.h"
#include "SourcePlan.h"
#include "SpeedControl.h"

#include "contract/IVDOrbixCallback.h"
#include "contract/IVDPlayCallback.h"

#include <atomic>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <thread>

class PcmTap;
class ResumeMemory;

// What a play needs from the output. Everything outlives the play.
struct PlayContext {
    EngineSettings *settings = nullptr;
    Notifier *notifier = nullptr;
    ResumeMemory *resume = nullptr;
    libvp::IVDOrbixCallback *orbix = nullptr;
    MpvSpare *spare = nullptr; // may be null
    std::chrono::milliseconds openLimit{8000};
    // Looks at the source; tests put their own in its place.
    std::function<SourcePlan(const OpenRequest &)> makePlan = SourcePlan::make;
};

class PlaySession final : public std::enable_shared_from_this<PlaySession>,
                          private EngineSettings::Follower,
                          private SpeedControl::Host {
public:
    PlaySession(const PlayContext &context, libvp::IVDPlayCallback *callback, OpenRequest request);
    ~PlaySession();
    PlaySession(const PlaySession &) = delete;
    PlaySession &operator=(const PlaySession &) = delete;

    void start();
    // Ends the play and its thread, in 1.2 seconds even when the source hangs in the system. Nothing is
    // notified afterwards; who waits for an answer of this play gets none and goes on.
    void end();

    [[nodiscard]] PlayFacts facts() const;
    // Position now, seconds.
    [[nodiscard]] double position() const;

    // While the source is being opened these two are remembered and carried out at the start: whether the
    // pause was toggled, and the last seek.
    void togglePause();
    void seek(double seconds, bool exact);
    void setSpeedIndex(int index);
    void step(int frames); // 1 or -1
    void setAudioTrack(int index);
    void setSubtitleTrack(int index);
    void goToChapter(int chapter);
    bool takeScreenshot(bool withSubtitles, int width, int height);
    // Waits for the file. Index of the new track, -1 when the file is none.
    int addSubtitle(const std::string &path);

    // A property of libmpv as it is now, for tests. Waits.
    [[nodiscard]] MpvValue readProperty(const std::string &name);

private:
    enum class State { Opening, Playing, Ending, Over };
    using Reply = std::function<void(const MpvEvent &)>;
    using Outcome = PlayReport::Outcome;

    struct PropertyRow {
        enum class Read { Observed, Fast, Slow, Once };
        const char *name;
        MpvHandle::Format format;
        Read read;
        bool atStart; // read again before the start is announced
        void (PlaySession::*handle)(const MpvValue &value);
    };
    static const PropertyRow propertyRows[];
    static const std::size_t propertyRowCount;

    // The thread and what it waits for (PlaySession.cpp).
    void run();
    [[nodiscard]] std::chrono::milliseconds timeToTerminate() const;
    void post(EngineThread::Task task);
    void handle(const MpvEvent &event);
    void handleReply(const MpvEvent &event);
    std::uint64_t expect(Reply reply);
    void notify(std::function<void(libvp::IVDPlayCallback &)> notification);
    void edit(const std::function<void(PlayFacts &)> &change);

    // From the request to the first frame (PlaySessionStart.cpp).
    void lookAtSource();
    void load(SourcePlan plan);
    void loadUrl();
    void takeResumeChoice();
    void restarted();
    void announceStart();
    void checkHardware();
    void fail(libvp::VD_PlayError error);
    void announceFailure(vdFileInfo info, libvp::VD_PlayError error);
    void fileEnded(const MpvEvent &event);
    void endedBeforeStart();
    void playFromTheBeginning();

    // Subtitle files that belong to the source (PlaySessionSubtitles.cpp).
    void lookForSubtitles();
    void takeSubtitles(std::vector<SidecarSubtitle> files);
    void addSubtitles();
    void addSubtitleFile(std::size_t index);
    void chooseSubtitle();
    [[nodiscard]] bool belongsToSource(const std::string &subtitleFile) const;

    // From the last frame to silence.
    void finish(Outcome outcome);
    void conclude(Outcome outcome, LastFrame frame);
    void storeResumeChoice();
    void close();
    void checkEnd();

    // What libmpv tells (PlaySessionProperties.cpp).
    void onTimePos(const MpvValue &value);
    void onDuration(const MpvValue &value);
    void onTrackList(const MpvValue &value);
    void onVideoParams(const MpvValue &value);
    void onChapter(const MpvValue &value);
    void onChapters(const MpvValue &value);
    void onSeekable(const MpvValue &value);
    void onEndReached(const MpvValue &value);
    void onHardwareDecoder(const MpvValue &value);
    void onVideoOutput(const MpvValue &value);
    void onFrameRate(const MpvValue &value);
    void onFrameInfo(const MpvValue &value);
    void onOutputDrops(const MpvValue &value);
    void onDecoderDrops(const MpvValue &value);
    void poll();
    void startPolling();
    void tellTime();
    void tellVideo();
    void tellAudio();
    void tellSubtitle();
    void tellRange();
    void applyPreferences();
    void applyPicture();
    void applyShader();
    void applyTap();
    void applyOverlay();
    void setSound(const std::string &name, const MpvValue &value);
    void applyWaitingSound();
    void shaderRefused();
    void watchPassThrough();

    // What the player asks for (PlaySessionCommands.cpp).
    void startSeek(const SeekQueue::Seek &seek);
    void finishSeek(bool reached);
    void stepMotion();
    void settle();
    void afterApplied(std::function<void()> task);
    void loadSubtitle(const std::string &address, const std::function<void(int)> &answer);
    void doStep(int frames);
    void doSeek(double seconds, bool exact);
    void carryOutWaiting();

    // EngineSettings::Follower
    void optionChanged(const std::string &name, const MpvValue &value) override;
    void preferencesChanged() override;

    // SpeedControl::Host
    void applySpeed(double speed) override;
    void applyPause(bool paused) override;
    void applyStep(double seconds, bool exact) override;
    void applyPosition(double seconds) override;
    double currentPosition() override;
    double sourceLength() override;
    bool canStep() override;
    void tellPaused() override;
    void tellResumed() override;
    void tellSpeed(float speed) override;

    PlayContext m_context;
    libvp::IVDPlayCallback *m_callback;
    OpenRequest m_request;
    Notifier::LinePtr m_line;
    EngineThread m_thread;
    std::thread m_worker;
    bool m_ended{false};

    mutable std::mutex m_factsMutex;
    PlayFacts m_facts;
    std::atomic<int> m_waitingPcmFrames{0};

    // Of the engine thread alone.
    std::unique_ptr<MpvHandle> m_mpv;
    State m_state{State::Opening};
    bool m_quit{false};
    bool m_closeWanted{false};
    bool m_failed{false};
    bool m_loaded{false};
    bool m_reloaded{false};
    int m_ignoredEnds{0};
    int m_startReplies{0};
    bool m_endReached{false};
    EngineThread::Clock::time_point m_asked;
    EngineThread::Clock::time_point m_closeAsked;
    EngineThread::TimerId m_openTimer{0};
    EngineThread::TimerId m_pollTimer{0};
    EngineThread::TimerId m_seekTimer{0};
    EngineThread::TimerId m_motionTimer{0};
    EngineThread::TimerId m_overlayTimer{0};
    EngineThread::TimerId m_frameTimer{0};
    std::map<std::uint64_t, Reply> m_replies;
    std::uint64_t m_lastReply;
    SourcePlan m_plan;
    std::vector<SidecarSubtitle> m_subtitleFiles;
    bool m_subtitleChosen{false}; // by the user
    PlayPreferences m_preferences;
    SourcePicture m_picture;
    MpvMap m_appliedPicture;
    std::string m_appliedShader;
    std::string m_videoOutput;
    ShaderWatch m_shaderWatch;
    // Asked for while the source was being opened.
    struct Waiting {
        struct Seek {
            double seconds;
            bool exact;
        };
        bool pauseToggled{false};
        std::optional<Seek> seek;
    };
    Waiting m_waiting;
    SeekQueue m_seeks;
    bool m_seekAccepted{false};
    int m_seekCount{0};
    SpeedControl m_speed;
    bool m_seekable{false};
    int m_openMs{0};
    int m_polls{0};
    int m_outputDrops{0};
    int m_decoderDrops{0};
    std::unique_ptr<PcmTap> m_tap;
    int m_tapStream{-1};
    bool m_passThrough{false};
    // What libmpv sets up its sound anew for, as it has it. One that changes while the source is being opened
    // waits for the start, so that the sound is not taken away under it.
    static constexpr char PassThroughOption[] = "audio-spdif";
    MpvMap m_sound{{"audio-device", "auto"}, {"audio-channels", "auto-safe"}, {PassThroughOption, ""}};
    MpvMap m_waitingSound;
    double m_lastProgress{0};
    EngineThread::Clock::time_point m_progressAt;
};
