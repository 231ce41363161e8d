// Tells the desktop what PC mode plays and does what the desktop asks for.
//
// Translates between the player and a MediaSession, which it owns; what concerns the window leaves as
// signals. GUI thread.
#pragma once

#include "platform/MediaSession.h"
#include "platform/TaskbarProgress.h"
#include "player/QPlayer.h"

#include <QObject>
#include <QTemporaryDir>

#include <memory>

class VolumeControl;

class PcMediaSession final : public QObject {
    Q_OBJECT

public:
    explicit PcMediaSession(VolumeControl &volume, QObject *parent = nullptr);
    ~PcMediaSession() override;

    // Makes the session known to the desktop.
    void open(WId window);
    void connectPlayer(QPlayer *player);

    void beginSource(const QString &displayName, const QString &path);
    void setCover(const QImage &cover);
    void setFullScreen(bool fullScreen);
    // The progress in the taskbar, as the settings want it now.
    void showProgress();
    [[nodiscard]] const MediaSession &session() const { return m_session; }

signals:
    void raiseWanted();
    void closeWanted();
    void stopWanted();
    void seekWanted(int seconds);
    void nextWanted();
    void previousWanted();
    void fullScreenWanted(bool fullScreen);
    void openWanted(const QString &path);

private:
    void connectRequests();
    void showStatus(QPlayer::QPlayerStatus status);
    void showTime(int seconds, int totalSeconds);
    [[nodiscard]] bool isLoaded() const { return m_session.state() != MediaSession::State::Stopped; }

    MediaSession m_session;
    TaskbarProgress m_taskbar;
    VolumeControl &m_volume;
    QPlayer *m_player{nullptr};
    MediaSession::Metadata m_metadata;
    // The desktop reads pictures as files; made with the first of them.
    std::unique_ptr<QTemporaryDir> m_pictures;
    int m_pictureNumber{0};
    int m_seconds{0};
    int m_totalSeconds{0};
};
