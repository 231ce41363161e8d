// The playing page of TV mode: the picture, and in its place a message when a source can't be played.
//
// Owns the video surface, the set-up of the engine and the thread that plays. All input comes as key
// operations. GUI thread.
#pragma once

#include "keys/KeyOperateType.h"
#include "player/QPlayer.h"

#include <QSize>
#include <QStackedWidget>

#include <memory>

class DeferredSetup;
class QLabel;
class TvPlayingThread;
class VideoSurface;
class workObject;

class TvPlayingWidget final : public QStackedWidget {
    Q_OBJECT
public:
    // Seconds of one step.
    static constexpr int StepSeconds = 10;

    explicit TvPlayingWidget(QWidget *parent = nullptr);
    ~TvPlayingWidget() override;

    // Plays, or keeps the path until the engine is up. False when it was dropped: an open is under way.
    bool startPlay(const QString &path);
    // True when the key meant something here.
    bool keyOperate(KeyOperateType type);
    // Leaves the page; stops what plays.
    void exitPlay(bool askStop);
    // For a window that goes.
    void shutDown();

    [[nodiscard]] bool isMessageShown() const;
    void retranslate();

public slots:
    void SLOT_playStatusChanged(QPlayer::QPlayerStatus status);
    void SLOT_playFailChanged(int errCode, vdFileInfo fileInfo);
    void SLOT_initFinished();
    void SLOT_initPlayerFailed();

signals:
    void SIG_exitPlay();
    void SIG_initFinished();

private:
    void makeMessagePage();
    void onPlayerMade(QPlayer *player);
    void showMessage(const QString &text);
    void play(const QString &path);
    void changeVolume(bool up);
    void toggleMute();
    void seekBy(int seconds);

    VideoSurface *m_surface{nullptr};
    QWidget *m_messagePage{nullptr};
    QLabel *m_messageTitle{nullptr};
    QLabel *m_messageText{nullptr};
    QLabel *m_messageButton{nullptr};
    DeferredSetup *m_setUp{nullptr};
    TvPlayingThread *m_thread{nullptr};
    std::unique_ptr<workObject> m_worker;
    QPlayer *m_player{nullptr};
    QString m_path;
    QString m_pendingPath;
    int m_volumeCount{100};
    bool m_muted{false};
    bool m_initFinished{false};
    bool m_isPlayingHere{false};
    bool m_isClosed{false};
};
