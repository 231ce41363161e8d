// The two bus interfaces of MediaSession on Linux: org.mpris.MediaPlayer2 and its Player.
//
// Both are children of the bus object and read everything from the session; times on the bus are
// microseconds.
#pragma once

#include "MediaSession.h"

#include <QDBusAbstractAdaptor>
#include <QDBusObjectPath>
#include <QVariantMap>

class MprisRootAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2")
    Q_PROPERTY(bool CanQuit READ yes)
    Q_PROPERTY(bool CanRaise READ yes)
    Q_PROPERTY(bool CanSetFullscreen READ yes)
    Q_PROPERTY(bool Fullscreen READ fullscreen WRITE setFullscreen)
    Q_PROPERTY(bool HasTrackList READ no)
    Q_PROPERTY(QString Identity READ identity)
    Q_PROPERTY(QString DesktopEntry READ desktopEntry)
    Q_PROPERTY(QStringList SupportedUriSchemes READ uriSchemes)
    Q_PROPERTY(QStringList SupportedMimeTypes READ mimeTypes)

public:
    MprisRootAdaptor(QObject *busObject, MediaSession *session, QString identity, QString desktopEntry);

    [[nodiscard]] bool yes() const { return true; }
    [[nodiscard]] bool no() const { return false; }
    [[nodiscard]] bool fullscreen() const { return m_session->isFullScreen(); }
    void setFullscreen(bool on) { emit m_session->fullScreenRequested(on); }
    [[nodiscard]] QString identity() const { return m_identity; }
    [[nodiscard]] QString desktopEntry() const { return m_desktopEntry; }
    [[nodiscard]] QStringList uriSchemes() const { return {QStringLiteral("file")}; }
    [[nodiscard]] QStringList mimeTypes() const;

public slots:
    void Raise() { emit m_session->raiseRequested(); }
    void Quit() { emit m_session->quitRequested(); }

private:
    MediaSession *m_session;
    QString m_identity;
    QString m_desktopEntry;
};

class MprisPlayerAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2.Player")
    Q_PROPERTY(QString PlaybackStatus READ playbackStatus)
    Q_PROPERTY(double Rate READ rate WRITE setRate)
    Q_PROPERTY(QVariantMap Metadata READ metadata)
    Q_PROPERTY(double Volume READ volume WRITE setVolume)
    Q_PROPERTY(qlonglong Position READ position)
    Q_PROPERTY(double MinimumRate READ rate)
    Q_PROPERTY(double MaximumRate READ rate)
    Q_PROPERTY(bool CanGoNext READ canGoNext)
    Q_PROPERTY(bool CanGoPrevious READ canGoPrevious)
    Q_PROPERTY(bool CanPlay READ yes)
    Q_PROPERTY(bool CanPause READ canPause)
    Q_PROPERTY(bool CanSeek READ canSeek)
    Q_PROPERTY(bool CanControl READ yes)

public:
    MprisPlayerAdaptor(QObject *busObject, MediaSession *session);

    [[nodiscard]] QString playbackStatus() const;
    [[nodiscard]] double rate() const { return m_session->rate(); }
    // The speed belongs to the program's own controls: a client can only read it.
    void setRate(double) {}
    [[nodiscard]] QVariantMap metadata() const;
    [[nodiscard]] double volume() const { return m_session->volume(); }
    void setVolume(double volume);
    [[nodiscard]] qlonglong position() const { return m_session->positionMs() * 1000; }
    [[nodiscard]] bool canGoNext() const { return m_session->canGoNext(); }
    [[nodiscard]] bool canGoPrevious() const { return m_session->canGoPrevious(); }
    [[nodiscard]] bool yes() const { return true; }
    [[nodiscard]] bool canPause() const { return m_session->state() != MediaSession::State::Stopped; }
    [[nodiscard]] bool canSeek() const { return m_session->canSeek(); }

public slots:
    void Next();
    void Previous();
    void Pause() { emit m_session->pauseRequested(); }
    void PlayPause() { emit m_session->playPauseRequested(); }
    void Stop() { emit m_session->stopRequested(); }
    void Play() { emit m_session->playRequested(); }
    void Seek(qlonglong Offset);
    void SetPosition(const QDBusObjectPath &TrackId, qlonglong Position);
    void OpenUri(const QString &Uri);

signals:
    void Seeked(qlonglong Position);

private:
    [[nodiscard]] QDBusObjectPath trackPath() const;

    MediaSession *m_session;
};
