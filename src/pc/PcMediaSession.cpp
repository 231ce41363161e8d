#include "PcMediaSession.h"

#include "transport/VolumeControl.h"

#include "core/ApplicationInfoManager.h"
#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

#include <QDebug>
#include <QFile>
#include <QImage>

namespace {

constexpr qint64 kMsPerSecond = 1000;
// A difference to the last position that playing on does not explain.
constexpr int kJumpSeconds = 2;

} // namespace

PcMediaSession::PcMediaSession(VolumeControl &volume, QObject *parent)
    : QObject(parent)
    , m_volume(volume)
{
    connectRequests();
    connect(&m_volume, &VolumeControl::volumeShown, this,
            [this](int, float shown) { m_session.setVolume(double(shown)); });
}

PcMediaSession::~PcMediaSession() = default;

void PcMediaSession::open(WId window)
{
    m_taskbar.open(ApplicationInfoManager::desktopName(), window);
    m_session.open(ApplicationInfoManager::productName(), ApplicationInfoManager::desktopName());
    m_session.setVolume(double(m_volume.volume()));
}

void PcMediaSession::connectRequests()
{
    connect(&m_session, &MediaSession::raiseRequested, this, &PcMediaSession::raiseWanted);
    connect(&m_session, &MediaSession::quitRequested, this, &PcMediaSession::closeWanted);
    connect(&m_session, &MediaSession::fullScreenRequested, this, &PcMediaSession::fullScreenWanted);
    connect(&m_session, &MediaSession::nextRequested, this, &PcMediaSession::nextWanted);
    connect(&m_session, &MediaSession::previousRequested, this, &PcMediaSession::previousWanted);
    connect(&m_session, &MediaSession::openRequested, this, [this](const QUrl &url) {
        if (url.isLocalFile())
            emit openWanted(url.toLocalFile());
        else
            qInfo() << "[Media session] not a local file:" << url.toString(QUrl::RemoveUserInfo);
    });
    connect(&m_session, &MediaSession::stopRequested, this, [this] {
        if (isLoaded())
            emit stopWanted();
    });
    connect(&m_session, &MediaSession::playRequested, this, [this] {
        if (m_session.state() == MediaSession::State::Paused)
            m_player->togglePause();
    });
    connect(&m_session, &MediaSession::pauseRequested, this, [this] {
        if (m_session.state() == MediaSession::State::Playing)
            m_player->togglePause();
    });
    connect(&m_session, &MediaSession::playPauseRequested, this, [this] {
        if (isLoaded())
            m_player->togglePause();
    });
    connect(&m_session, &MediaSession::seekRequested, this, [this](qint64 offsetMs) {
        if (isLoaded())
            emit seekWanted(qBound(0, m_seconds + int(offsetMs / kMsPerSecond), m_totalSeconds));
    });
    connect(&m_session, &MediaSession::positionRequested, this, [this](qint64 positionMs) {
        if (isLoaded())
            emit seekWanted(qBound(0, int(positionMs / kMsPerSecond), m_totalSeconds));
    });
    connect(&m_session, &MediaSession::volumeRequested, this,
            [this](double volume) { m_volume.setFromSlider(qRound(qBound(0.0, volume, 1.0) * 100.0)); });
}

void PcMediaSession::connectPlayer(QPlayer *player)
{
    m_player = player;
    connect(player, &QPlayer::sig_playStatusChanged, this, &PcMediaSession::showStatus);
    connect(player, &QPlayer::sig_timeChanged, this, &PcMediaSession::showTime);
}

void PcMediaSession::beginSource(const QString &displayName, const QString &path)
{
    m_metadata = {};
    m_metadata.title = displayName;
    m_metadata.url = QUrl::fromLocalFile(path);
    m_seconds = 0;
    m_totalSeconds = 0;
    m_session.setMetadata(m_metadata);
}

void PcMediaSession::setCover(const QImage &cover)
{
    if (cover.isNull())
        return;
    if (!m_pictures)
        m_pictures = std::make_unique<QTemporaryDir>();
    // Another name for each: clients keep what they have read under one.
    if (m_metadata.artUrl.isLocalFile())
        QFile::remove(m_metadata.artUrl.toLocalFile());
    const QString file = m_pictures->filePath(QStringLiteral("cover-%1.jpg").arg(++m_pictureNumber));
    if (!m_pictures->isValid() || !cover.save(file)) {
        qInfo() << "[Media session] the cover can't be written:" << m_pictures->errorString();
        return;
    }
    m_metadata.artUrl = QUrl::fromLocalFile(file);
    m_session.setMetadata(m_metadata);
}

void PcMediaSession::setFullScreen(bool fullScreen)
{
    m_session.setFullScreen(fullScreen);
}

void PcMediaSession::showStatus(QPlayer::QPlayerStatus status)
{
    switch (status) {
    case QPlayer::QPlayerStatus_Playing:
    case QPlayer::QPlayerStatus_Forward:
    case QPlayer::QPlayerStatus_Rewind:
        m_session.setState(MediaSession::State::Playing);
        m_session.setRate(double(m_player->speed()));
        break;
    case QPlayer::QPlayerStatus_Paused:
        m_session.setState(MediaSession::State::Paused);
        break;
    default:
        m_session.setState(MediaSession::State::Stopped);
        m_session.setRate(1.0);
        m_session.setCanSeek(false);
        break;
    }
    showProgress();
}

void PcMediaSession::showProgress()
{
    const bool isWanted =
        SettingsManager::instance()->valueOr(QLatin1String(SettingsKeys::PC_ShowProgress), true);
    if (isWanted && isLoaded() && m_totalSeconds > 0)
        m_taskbar.show(double(m_seconds) / m_totalSeconds, m_session.state() == MediaSession::State::Paused);
    else
        m_taskbar.hide();
}

void PcMediaSession::showTime(int seconds, int totalSeconds)
{
    if (totalSeconds != m_totalSeconds) {
        m_totalSeconds = totalSeconds;
        m_metadata.lengthMs = totalSeconds * kMsPerSecond;
        m_session.setMetadata(m_metadata);
        m_session.setCanSeek(totalSeconds > 0);
    }
    const bool jumped = qAbs(seconds - m_seconds) > kJumpSeconds;
    m_seconds = seconds;
    m_session.setPositionMs(seconds * kMsPerSecond);
    if (jumped)
        m_session.announceSeek(seconds * kMsPerSecond);
    showProgress();
}
