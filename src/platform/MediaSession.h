// What plays now, told to the desktop, and what the desktop asks for: media keys, the panel's controls, a
// phone.
//
// On Linux this is the MPRIS 2 interface on the session bus (D-Bus names org.mpris.MediaPlayer2);
// elsewhere nothing listens and every setter is quiet. The object lives on the GUI thread; no call waits for
// the bus.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <memory>

class MediaSession final : public QObject {
    Q_OBJECT

public:
    enum class State { Stopped, Paused, Playing };

    struct Metadata {
        QString title;
        QString album;
        QStringList artists;
        QUrl url;           // the source itself
        QUrl artUrl;        // a local picture, empty without one
        qint64 lengthMs{0}; // 0 when unknown
    };

    explicit MediaSession(QObject *parent = nullptr);
    ~MediaSession() override;

    // Makes the session known under the program's name; desktopEntry is the base name of its desktop file.
    // False when there is no session bus.
    bool open(const QString &identity, const QString &desktopEntry);

    void setState(State state);
    void setMetadata(const Metadata &metadata);
    // Where playback is; asked for by clients and never announced by itself.
    void setPositionMs(qint64 positionMs) { m_positionMs = positionMs; }
    // Tells a jump that does not follow from the rate.
    void announceSeek(qint64 positionMs);
    void setVolume(double volume); // 0 to 2.0
    void setRate(double rate);
    void setCanSeek(bool can);
    void setCanGoNext(bool can);
    void setCanGoPrevious(bool can);
    void setFullScreen(bool fullScreen);

    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] const Metadata &metadata() const { return m_metadata; }
    [[nodiscard]] qint64 positionMs() const { return m_positionMs; }
    [[nodiscard]] double volume() const { return m_volume; }
    [[nodiscard]] double rate() const { return m_rate; }
    [[nodiscard]] bool canSeek() const { return m_canSeek; }
    [[nodiscard]] bool canGoNext() const { return m_canGoNext; }
    [[nodiscard]] bool canGoPrevious() const { return m_canGoPrevious; }
    [[nodiscard]] bool isFullScreen() const { return m_fullScreen; }
    // Changes with every source, so that a request for an earlier one can be told and dropped.
    [[nodiscard]] int trackNumber() const { return m_trackNumber; }

signals:
    void raiseRequested();
    void quitRequested();
    void playRequested();
    void pauseRequested();
    void playPauseRequested();
    void stopRequested();
    void nextRequested();
    void previousRequested();
    void seekRequested(qint64 offsetMs);
    void positionRequested(qint64 positionMs);
    void volumeRequested(double volume);
    void fullScreenRequested(bool fullScreen);
    void openRequested(const QUrl &url);

private:
    // The connection to the desktop, one a platform.
    class Backend;

    void changed(const char *property);

    std::unique_ptr<Backend> m_backend;
    State m_state{State::Stopped};
    Metadata m_metadata;
    qint64 m_positionMs{0};
    double m_volume{1.0};
    double m_rate{1.0};
    int m_trackNumber{0};
    bool m_canSeek{false};
    bool m_canGoNext{false};
    bool m_canGoPrevious{false};
    bool m_fullScreen{false};
};
