// The path of one play request in PC mode, from a string to the first frame and to the end of playback.
//
// Has no widgets: what the window shows follows from the signals. Lives on the GUI thread; the open itself
// runs on a thread of its own, one at a time, and a request that comes meanwhile is dropped. Owns its
// threads, not the settings and not the set-up of the engine.
#pragma once

#include "LastStop.h"

#include "core/QSimpleThreadPack.h"
#include "playcontrol/FilePresence.h"
#include "playcontrol/MenuCase.h"
#include "playcontrol/PositionStore.h"
#include "player/PlayOrder.h"
#include "player/PlaySourcePath.h"
#include "player/QPlayer.h"

#include <QObject>

#include <functional>

class DeferredSetup;
class SettingsManager;

class NormalPlayControl final : public QObject {
    Q_OBJECT
public:
    NormalPlayControl(SettingsManager &settings, DeferredSetup &setUp, PlaySourcePath paths,
                      QObject *parent = nullptr);
    ~NormalPlayControl() override;

    // The episode that follows the source at its end, empty without one; asked when the source has ended.
    void setNextEpisode(std::function<QString()> nextEpisode) { m_nextEpisode = std::move(nextEpisode); }

    // Told of each source that is on its way, by the path that was asked for; gives the title to open where
    // none was asked for, -1 for none.
    void setQueueTitle(std::function<int(const QString &path)> queueTitle)
    {
        m_queueTitle = std::move(queueTitle);
    }

    // False when the request was dropped: the engine can't play, or an open is under way.
    bool play(const QString &path, int title = -1);

    void setCloseAtEnd(bool close) { m_closeAtEnd = close; }
    [[nodiscard]] bool closesAtEnd() const { return m_closeAtEnd; }

    [[nodiscard]] bool isOpening() const { return m_playThread.isRunning(); }
    // A source is on its way or plays.
    [[nodiscard]] bool hasSource() const { return m_hasSource; }
    [[nodiscard]] QString currentPath() const { return m_currentPath; }
    // The same source in the words of the request, which may hold a scheme or the title of a cue sheet.
    [[nodiscard]] QString askedPath() const { return m_askedPath; }
    [[nodiscard]] QString displayName() const { return m_displayName; }
    [[nodiscard]] QString mediaKind() const { return m_mediaKind; }
    [[nodiscard]] int resumeSeconds() const { return m_resumeSeconds; }
    [[nodiscard]] bool isResumePending() const { return m_resumePending; }
    // The picture of the stored position, as it stands in the settings.
    [[nodiscard]] QByteArray resumeImage() const { return m_stored.picture; }
    [[nodiscard]] int storedSeconds() const { return m_stored.seconds; }
    [[nodiscard]] int sourceKind() const { return m_sourceKind; }
    // The open source is a disc, or the image or the folder of one.
    [[nodiscard]] bool isDisc() const { return m_isDisc; }

    void connectPlayer(QPlayer *player);

    // For a window that goes: no signal of the engine arrives any more, playback is stopped and its thread
    // awaited.
    void shutDown();

public slots:
    // Stop on a later turn of the event loop, and back to the start view.
    void slot_stopLater();
    // The same, but the view stays.
    void slot_onlyStopLater();

    void slot_responsePlayState(QPlayer::QPlayerStatus status);
    void slot_responseStopInfo(vdStopPlayInfo info);
    void slot_responseVideoInfo(vdFileInfo info);
    void slot_responsePlayFail(int errCode, vdFileInfo info);
    void slot_solveError(VD_ErrorCallbackType type);
    void slot_responseDiscEvent(char cDrive, VD_OPTRA_DISC_NOTIFY_TYPE NotifyType);
    void slot_setupLastPositionAudioSub();

    // Nothing follows any more.
    void finishEnded();
    // The user has read why a source can't be played.
    void failureRead(int errCode);

signals:
    void sourceAccepted(const QString &displayName);
    void waitingChanged(bool waiting);
    void sourceOpened(bool isVideo);
    // 1 for a source on a time line, 0 for one that plays by its menu.
    void seekControlChanged(int shown);
    // The stored position may be offered now.
    void resumeNoteDue();
    void bdavNoteDue();
    void playing();
    void idle();
    void selectViewWanted();
    // The source has ended and the queue has its turn.
    void queueTurn();
    void closeWanted();
    void failureToTell(int errCode);
    void noteToTell(int type);

private:
    static void playFunction(void *self);
    static void stopFunction(void *self);
    void runOrder();
    void stopOnThread();
    void endReached();
    void followEnd(const QString &nextEpisode, bool isThere);
    // Runs an action a little later, if this is still the source then.
    void laterForThisSource(int milliseconds, std::function<void()> action);
    [[nodiscard]] MenuCase::Source menuSource(const vdFileInfo &info) const;

    SettingsManager &m_settings;
    DeferredSetup &m_setUp;
    PlaySourcePath m_paths;
    PositionStore m_positions;
    LastStop m_lastStop;
    QPlayer *m_player{nullptr};
    QSimpleThreadPack m_playThread;
    QSimpleThreadPack m_stopThread;
    PlayOrder m_order;
    std::function<QString()> m_nextEpisode;
    FilePresence m_presence; // asked for the next episode at the end of a source
    std::function<int(const QString &path)> m_queueTitle;

    QString m_currentPath;
    QString m_askedPath;
    QString m_displayName;
    QString m_mediaKind;
    int m_titleNumber{-1};
    int m_sourceKind{PlaySource::File};
    bool m_isDisc{false};
    PositionStore::Entry m_stored; // what was known of the source when it was asked for
    int m_sourceNumber{0};
    int m_resumeSeconds{0};
    bool m_resumePending{false};
    bool m_closeAtEnd{false};
    bool m_hasSource{false};
    bool m_isClosing{false};
};
