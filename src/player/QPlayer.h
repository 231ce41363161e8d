// The one place where the program touches the engine: plain null-safe commands, and the engine's
// notifications as signals. Both faces share the one of instance(); tests build their own.
//
// Owns the loaded engine library and its three objects, the copies of pictures that signals carry, and the
// texts that the engine reads. Lives on the application's thread.
//
// Commands may come from every thread. Without the engine object behind it a command does nothing and answers
// 0, false or -1, unless it says otherwise. Commands on the output set it up at the first need once a video
// parent is known.
//
// Signals are emitted on the thread that came in, mostly an engine thread. Receivers with a thread of their
// own connect by AutoConnection. The pixels that sig_stopInfoChanged and sig_shotScreen point to are
// QPlayer's own copies: they outlive every slot on the application's thread; lastFrame() and lastScreenshot()
// give them as pictures.
//
// Threads and locks. The engine's close() waits for the notification that runs, and a notification may call
// commands: so no lock that a command takes is held while the engine closes anything.
//  - core, tool and play stand in EngineHandles: a command counts itself in and out around one engine call.
//  stop()
//    takes the play away (later commands see none), closes it (which ends commands that wait inside the
//    engine), waits for the last command to leave and only then releases it.
//  - m_transportMutex puts stop() and the making of a play in order; m_openMutex lets one open run at a time
//  and is not
//    taken by stop(), so that a stop ends an open that hangs on its disc. Order: m_openMutex,
//    m_transportMutex. No command of a running play takes either, and inside a notification stop() and the
//    opens are put off to the application's thread.
//  - m_toolMutex guards the set-up of the output; a notification never starts one.
//  - m_stateMutex guards texts and records and is held for copying alone, never over a call or an emit.
#pragma once

#include "CVDFileItem.h"
#include "CVDPlayOptions.h"
#include "EngineHandle.h"
#include "EngineLoader.h"
#include "FrameStore.h"
#include "QPlayerTypes.h"

#include <QImage>
#include <QMap>
#include <QObject>
#include <QWidget>

#include <array>
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <string>

class SettingsManager;

class QPlayer final : public QObject,
                      public libvp::IVDPlayerConfig,
                      public libvp::IVDOrbixCallback,
                      public libvp::IVDPlayToolConfig,
                      public libvp::IVDPlaytoolCallback,
                      public libvp::IVDPlayCallback {
    Q_OBJECT

public:
    enum QPlayerStatus {
        QPlayerStatus_None = 0,
        QPlayerStatus_Playing = 1, // at normal speed
        QPlayerStatus_Paused = 2,
        QPlayerStatus_Stopped = 3,
        QPlayerStatus_Forward = 4, // fast, or slow motion
        QPlayerStatus_Rewind = 5,
        QPlayerStatus_Ended = 6,
        QPlayerStatus_Failed = 7
    };
    Q_ENUM(QPlayerStatus)

    // Video, DynamicRange and Further go out as one line, whichever of them has changed.
    enum QPlayerMetaType {
        QPlayerMetaType_Video = 0,
        QPlayerMetaType_Title = 1,
        QPlayerMetaType_Chapter = 2,
        QPlayerMetaType_Time = 3,
        QPlayerMetaType_Audio = 4,
        QPlayerMetaType_Subtitle = 5,
        QPlayerMetaType_DynamicRange = 6,
        QPlayerMetaType_Further = 7
    };
    Q_ENUM(QPlayerMetaType)

    using PcmSink = std::function<void(const libvp::VDPcmFrame &)>;
    // From a drive letter to what stands behind it: device, image or folder; empty when the letter is not
    // known.
    using DriveResolver = std::function<QString(QChar)>;
    using LoaderFactory = std::function<std::unique_ptr<IEngineLoader>()>;

    // The player of the program, made at first use on whichever thread.
    [[nodiscard]] static QPlayer *instance();
    // Where instance() takes its engine from; before its first use.
    static void setLoaderFactory(LoaderFactory factory);
    // Ends the player of the program, before the application object goes. A later instance() makes a new one.
    static void releaseInstance();
    // The picture moves or the sound is heard, at whatever speed.
    [[nodiscard]] static constexpr bool isMoving(QPlayerStatus status)
    {
        return status == QPlayerStatus_Playing || status == QPlayerStatus_Forward
               || status == QPlayerStatus_Rewind;
    }
    // The types that cross queued connections, under the names that the signals use. Done by the constructor.
    static void registerMetaTypes();

    QPlayer(std::unique_ptr<IEngineLoader> loader, SettingsManager *settings);
    // Stops, and waits for the engine to end. No command may be under way but from the engine's own threads.
    ~QPlayer() override;

    // ---- set-up
    // The widget that shows the picture and its native window; before the first open. On the widget's thread.
    void setVideoParent(QWidget *widget, WId nativeWindow);
    // Sets up the output when that has not been done. True when it works.
    bool ensureTool();
    [[nodiscard]] bool hasEngine() const { return m_core.isSet(); }
    // The engine is missing or cannot draw here; stays so for this run.
    [[nodiscard]] bool rendererFailed() const { return m_rendererFailed; }

    // ---- the next open
    void setSource(const QString &path);
    void setSourceType(int type); // libvp::VD_ItemType
    void setTitle(int number);    // -1: the main title
    void setResumePreference(bool audio, bool subtitle, bool angle);
    // Codes as the engine takes them; empty leaves the choice to the source.
    void setPreferredLanguages(const QString &audio, const QString &subtitle);
    [[nodiscard]] QString source() const;
    [[nodiscard]] int sourceType() const { return m_sourceType; }
    [[nodiscard]] int title() const { return m_titleNumber; }

    // ---- transport. The opens wait for the engine to take the source: not for the application's thread.
    void openFile(int startSeconds = 0);
    void openFileWithStreams(int value);
    void stop();
    void togglePause();
    void resume();
    [[nodiscard]] bool isPlaying();
    [[nodiscard]] bool isPaused();
    void speedUp(bool forward);
    void setSpeedIndex(int index);
    [[nodiscard]] int speedIndex(); // Normal without a play
    [[nodiscard]] float speed();    // 1 without a play
    [[nodiscard]] const QMap<int, float> &speedValues() const { return m_speedValues; }
    [[nodiscard]] const QMap<int, QString> &speedTexts() const { return m_speedTexts; }
    void seek(double seconds);
    [[nodiscard]] double currentTime(); // seconds
    [[nodiscard]] double totalTime();   // seconds
    void stepFrame(bool forward);
    void nextChapter();
    void lastChapter(); // the one before
    [[nodiscard]] int chapterCount();
    [[nodiscard]] int chapter();
    void goToChapter(int chapter); // from 1
    [[nodiscard]] int titleCount();
    void setAngle(int angle); // from 0
    void menuCommand(int command, float value = 0, int reserved = 0);
    [[nodiscard]] bool hasDiscMenu();
    void setAuthorInfo(int value);
    [[nodiscard]] int statistic(int key); // libvp::VD_Statistic

    // ---- what was told last
    [[nodiscard]] QPlayerStatus status() const { return static_cast<QPlayerStatus>(m_status.load()); }
    [[nodiscard]] vdFileInfo fileInfo() const; // of the last source
    [[nodiscard]] QString fileTypeText() const;
    [[nodiscard]] QString mediaTypeText() const;
    void setFurtherInfo(const QString &text); // joins the video line

    // ---- tracks
    [[nodiscard]] int audioCount();
    [[nodiscard]] int audioTrack();
    void setAudioTrack(int index);
    bool audioTracks(QList<PlayerAudioTrack> *list);
    [[nodiscard]] int subtitleCount();
    [[nodiscard]] int subtitleTrack();
    void setSubtitleTrack(int index); // -1: none
    bool subtitleTracks(QList<PlayerSubtitleTrack> *list);
    [[nodiscard]] bool isSubtitleVisible();
    // The new track's index, which is selected, or -1. Waits for the file.
    int addSubtitle(const QString &path);

    // ---- sound
    void setVolume(float volume); // 0 to 2.0
    [[nodiscard]] float volume() const { return m_volume; }
    void setMute(bool mute);
    [[nodiscard]] bool isMuted() const { return m_muted; }

    // ---- picture
    void resizeSurface(int width, int height); // device pixels
    void forwardWindowMessage(unsigned message, quintptr wParam, qintptr lParam, int x, int y);
    void forwardWindowMove(int x, int y);
    void setViewMode(int mode); // 0 to 7 the engine's, 8 to 13 fixed ratios
    [[nodiscard]] int viewMode() const { return m_viewMode; }
    void setZoomAmount(float zoom);
    void setVerticalShift(float shift);
    void setPixelRatio(float ratio);
    void flip(int kind); // 0 off, 1 to 3 turn by 90, -90, 180 degrees, 4 horizontally, 5 vertically
    void setRotation(int degrees);
    void setBrightness(float value); // 0 to 100, 50 leaves the picture; the same for the next two
    void setContrast(float value);
    void setSaturation(float value);
    void setDeinterlaceMode(int mode); // 0 off, 1 automatic, 2 on
    [[nodiscard]] int deinterlaceMode() const { return m_deinterlaceMode; }
    bool takeScreenshot(int mode, int width, int height);
    [[nodiscard]] double displayAspect();
    void showInformationOverlay(bool show);
    [[nodiscard]] QImage lastFrame() const { return m_frames.last(); }
    [[nodiscard]] QImage lastScreenshot() const { return m_screenshots.last(); }

    // ---- engine configuration
    void setHardwareDecoding(bool on);
    void setToneMap(bool on);
    void setHDRMode(int mode);
    void setSDRMode(int mode);
    void setSDRValue(int value);
    void setLimitedRange(bool limited);
    void setVideoOutput(const QString &outputs);
    // Asked once and kept. Waits for the sound system the first time: not for the application's thread.
    [[nodiscard]] QList<PlayerAudioDevice> audioDevices();
    // Held by whoever hands the choices of the sound over, while it reads them, asks and sets: those who do
    // so at the same time then end with what was stored last.
    [[nodiscard]] std::unique_lock<std::mutex> holdSoundChoices()
    {
        return std::unique_lock(m_soundChoicesMutex);
    }
    // Those that were asked for by now; never waits.
    [[nodiscard]] QList<PlayerAudioDevice> knownAudioDevices();
    [[nodiscard]] QString currentAudioDevice();
    // False for an empty or unknown device, which changes nothing.
    bool setAudioOutput(bool passThrough, const QString &device);
    void setOutputMode(int value); // speaker layout, or the codec mask in pass-through
    void setAudioChannels(int layout);
    void setAudioAmplification(float amount);
    void setAudioDelay(float seconds);
    [[nodiscard]] int passThrough();
    void setSubtitleFont(const QString &family);
    void setSubtitleSize(int size);
    void setSubtitlePosition(int position); // 1 bottom, 2 top
    void setSubtitleColor(const QString &color);
    void setSubtitleOutlineColor(const QString &color);
    void setSubtitleBold(bool bold);
    void setSubtitleItalic(bool italic);
    void setSubtitleOutline(bool outline);
    void setSubtitleOverride(bool overrideStyle);
    void setSubtitleCharset(const QString &code);
    void setSubtitleOffset(float seconds);
    // Whether the subtitle files that belong to a source are opened with it: those beside it, and those of a
    // further folder, which may be empty. For the sources that are opened later.
    void setSubtitleFiles(bool on, const QString &folder);
    // Empty switches it off. False when the file is missing or refused.
    bool setCustomShader(const QString &path);
    [[nodiscard]] QString customShader();
    void setRegion(int region);
    void setProxy(int type, const QString &host, int port, const QString &user, const QString &password);
    void setUiLanguage(int code);
    bool setBoolProperty(const char *name, bool value);
    bool setIntProperty(const char *name, int value);
    bool setStringProperty(const char *name, const QByteArray &value);

    // ---- 3D
    void set3DEngine(bool on);
    [[nodiscard]] bool is3DEngineOn() const { return m_threeDEnabled; }
    void set3DMode(int mode);
    void set3DInputLayout(int layout);
    void set3DParallax(int direction);
    bool threeDCapabilities(libvp::VD3DCapabilities *capabilities);
    // Pushes the stored 3D choices.
    void setup3D();

    // ---- pictures of sources. They wait for the file: not for the application's thread.
    // One session at a time; the one before is closed. 0 when it cannot be opened.
    int openThumbnails(const QString &path, int itemType, int titleNumber, int width, int height);
    void closeThumbnails();
    [[nodiscard]] int thumbnailHandle() const { return m_thumbnailHandle; }
    // shownMs: the time of the picture that was found, where somebody asks for it.
    [[nodiscard]] QImage grabThumbnail(int positionMs, bool exact = false, int *shownMs = nullptr);
    [[nodiscard]] PlayerPicture grabPicture(const QByteArray &requestJson);

    // Who knows the letters; the default is the program's letter table.
    void setDriveResolver(DriveResolver resolver);

    // ---- discs. A drive is a letter, or the path of a device, image or folder. Waits for the drive, but for
    // the queries of a backup.
    [[nodiscard]] PlayerDisc prepareDisc(const QString &path, int itemType);
    [[nodiscard]] int sourceForm(const QString &path); // libvp::VD_SourceForm, 0 without an engine
    [[nodiscard]] PlayerDiscInfo discDisplayInfo(const QString &drive);
    bool eject(char drive);
    [[nodiscard]] int discState(char drive); // 0 no drive, 1 no disc, 2 disc
    bool startBackup(const QString &source, const QString &target, int option = 0);
    void stopBackup(const QString &drive);
    [[nodiscard]] double backupProgress(const QString &drive); // 0 to 1.0, -1 without one
    [[nodiscard]] bool isBackupFinished(const QString &drive);
    [[nodiscard]] bool isBackupFailed(const QString &drive);

    // ---- decoded sound
    void setPcmTap(bool on);
    // Called on an engine thread for each frame; null takes it away.
    void setPcmSink(PcmSink sink);

signals:
    void sig_3DEngineStateChanged(bool bOPened);
    void sig_titleChanged(int nTitle);
    void sig_videoSizeChanged(int nWidth, int nHeight);
    void sig_playStatusChanged(QPlayer::QPlayerStatus status);
    void sig_playMetaChanged(QPlayer::QPlayerMetaType type, QString info);
    void sig_timeChanged(int crtSecTime, int totalSecTime);
    void sig_videoInfoChanged(vdFileInfo info);
    void sig_DiscEventOccured(char cDrive, VD_OPTRA_DISC_NOTIFY_TYPE NotifyType);
    void sig_errorOccured(VD_ErrorCallbackType type);
    void sig_stopInfoChanged(vdStopPlayInfo info);
    void sig_playFailChanged(int error, vdFileInfo info);
    void sig_shotScreen(unsigned char *RGBA, int Width, int Height);
    void sig_lastChapter(int nChapter);
    void sig_nextChapter(int nChapter);
    void sig_volumeChanged(float volume);
    void sig_muteChanged(bool mute);
    void sig_enablePlayType(int nType);
    void sig_seekState(VD_SeekState state);
    void sig_orbixDataStatistics(QString strData);
    void sig_DiscError(char cDrive, VD_OPTRA_DISC_ERROR_TYPE DiscErrorType);

private:
    // libvp::IVDPlayerConfig
    const char *applicationTag() override;
    const char *productName() override;
    const char *furtherName() override;
    const char *productVersion() override;
    int productLine() override;
    const char *furtherText6() override;
    const char *furtherText7() override;
    const char *furtherText8() override;
    const char *path(int index) override;
    const char *fontFile(int index) override;
    int reserved11() override;
    int reserved12() override;
    int featureLevel() override;
    int reserved14() override;
    int reserved15() override;
    void *sharedBlock(std::size_t size) override;
    const libvp::VDRegionRecord *regionRecord() override;

    // libvp::IVDOrbixCallback
    void OnError(libvp::VD_ErrorCallbackType type) override;
    void reserved2(int first, int second) override;
    void OnDiscEvent(char drive, libvp::VD_OPTRA_DISC_NOTIFY_TYPE type) override;
    void OnDiscError(char drive, libvp::VD_OPTRA_DISC_ERROR_TYPE type) override;

    // libvp::IVDPlayToolConfig
    int surfaceWidth() override;
    int surfaceHeight() override;
    bool reserved3() override;
    void *nativeWindow() override;

    // libvp::IVDPlaytoolCallback
    void OnVolumeChanged(float volume) override;
    void OnMuteChanged(bool mute) override;

    // libvp::IVDPlayCallback
    void OnPlayBackEnded() override;
    void OnPlayBackStarted() override;
    void OnPlayBackPaused() override;
    void OnPlayBackResumed() override;
    void OnStopInfo(vdStopPlayInfo info) override;
    void OnPlayBackStopped() override;
    void OnQueueNextItem() override;
    void OnPlayBackSeek(int positionMs, int targetMs) override;
    void OnPlayBackSeekChapter(int chapter) override;
    void OnPlayBackSpeedChanged(float speed) override;
    void OnPlayBackFailed(int error, vdFileInfo info) override;
    void OnDiscRefused(int error, const char *message, vdFileInfo info) override;
    void reserved13(int first, int second) override;
    void OnTime(int positionMs, int totalMs) override;
    void OnTitle(int title) override;
    void OnChapter(int current, int count) override;
    void OnVideoInfo(const libvp::VDVideoInfo *info) override;
    void OnAudioInfo(const libvp::VDAudioInfo *info) override;
    void OnSubtitleInfo(const libvp::VDSubtitleInfo *info) override;
    void reserved20(int first, int second) override;
    void reserved21(int first, int second) override;
    void OnDynamicRange(int range) override;
    void OnSeekState(libvp::VD_SeekState state) override;
    void reserved24() override;
    void reserved25(int value) override;
    void reserved26() override;
    void reserved27() override;
    void OnScreenshot(unsigned char *rgba, int width, int height) override;
    void reserved29(int first, int second, int third) override;
    void reserved30(int first, int second, int third) override;
    void OnStatistics(const char *json) override;
    void reserved32(int value) override;
    void OnAudioFrame(const libvp::VDPcmFrame *frame) override;

    struct StreamChoice {
        double startSeconds{0};
        int audio{libvp::VD_DefaultChoice};
        int subtitle{libvp::VD_DefaultChoice};
        int angle{libvp::VD_DefaultChoice};
    };

    // What the engine reads; filled before initialise() and never changed.
    struct ConfigurationTexts {
        std::string fontFolder;
        std::string applicationFolder;
        std::string logFolder;
    };

    void readConfiguration();
    [[nodiscard]] QString engineLogFolder();
    void loadEngine();
    void failRenderer(const QString &reason);
    [[nodiscard]] bool createTool();
    void open(const StreamChoice &choice);
    [[nodiscard]] bool makePlay();
    void endPlay(); // under m_transportMutex
    [[nodiscard]] bool putOff(const char *what, std::function<void()> command);
    void announceDrive(const QString &path);
    void stepChapter(bool forward);
    void setStatus(QPlayerStatus status);
    void setMeta(QPlayerMetaType type, const QString &text);
    void keepFileInfo(const vdFileInfo &info);
    // Frees the copy once the slots that the signal before it has queued are through.
    void releaseLater(FrameStore &store, quint64 ticket);

    // One engine call on an object that is there. A value wants an answer for when it is not.
    template<class Value, class Object, class Command>
    static Value from(EngineHandle<Object> &handle, Value otherwise, Command command)
    {
        auto use = handle.use();
        return use ? static_cast<Value>(command(*use)) : otherwise;
    }
    template<class Value, class Command>
    Value fromPlay(Value otherwise, Command command)
    {
        return from(m_play, otherwise, command);
    }
    template<class Command>
    void onPlay(Command command)
    {
        if (auto use = m_play.use())
            command(*use);
    }
    template<class Value, class Command>
    Value fromTool(Value otherwise, Command command)
    {
        return ensureTool() ? from(m_tool, otherwise, command) : otherwise;
    }
    template<class Command>
    void onTool(Command command)
    {
        if (!ensureTool())
            return;
        if (auto use = m_tool.use())
            command(*use);
    }

    std::unique_ptr<IEngineLoader> m_loader;
    SettingsManager *m_settings;

    EngineHandle<libvp::IVDEngineCore> m_core;
    EngineHandle<libvp::IVDPlayTool> m_tool;
    EngineHandle<libvp::IVDPlay> m_play;
    std::mutex m_toolMutex;
    std::mutex m_openMutex;
    std::mutex m_transportMutex;
    std::mutex m_soundChoicesMutex;
    mutable std::mutex m_stateMutex;

    std::atomic_bool m_hasVideoParent{false};
    std::atomic_bool m_rendererFailed{false};
    std::atomic_bool m_opening{false};
    std::atomic<void *> m_nativeWindow{nullptr};
    std::array<void *, 1> m_windowBlock{nullptr};
    std::atomic_int m_surfaceWidth{0};
    std::atomic_int m_surfaceHeight{0};

    std::atomic<float> m_volume{0};
    std::atomic_bool m_muted{false};
    std::atomic_bool m_audioPrefer{true};
    std::atomic_bool m_subtitlePrefer{true};
    std::atomic_bool m_anglePrefer{true};
    std::atomic_int m_status{QPlayerStatus_None};
    std::atomic_bool m_threeDEnabled{false};
    std::atomic_int m_viewMode{0};
    std::atomic_int m_deinterlaceMode{0};
    std::atomic_int m_titleNumber{-1};
    std::atomic_int m_sourceType{libvp::VD_Item_Default};
    std::atomic_int m_thumbnailHandle{0};
    std::atomic_int m_loggedSecond{-1};

    // Under m_stateMutex.
    QString m_sourcePath;
    std::string m_preferAudio;
    std::string m_preferSubtitle;
    vdFileInfo m_failInfo;
    std::string m_lastCodec;
    QString m_videoMeta;
    QString m_rangeMeta;
    QString m_furtherMeta;
    std::shared_ptr<const PcmSink> m_pcmSink;
    DriveResolver m_driveResolver;
    QList<PlayerAudioDevice> m_audioDevices;
    unsigned m_thumbnailGeneration{0};

    // Under m_openMutex.
    CVDFileItem m_fileItem;
    CVDPlayOptions m_options;

    ConfigurationTexts m_texts;
    libvp::VDRegionRecord m_region;
    QString m_audioDump; // never changed after the constructor
    const QMap<int, float> m_speedValues;
    const QMap<int, QString> m_speedTexts;
    FrameStore m_frames{QImage::Format_ARGB32};
    FrameStore m_screenshots{QImage::Format_RGBA8888};
};
