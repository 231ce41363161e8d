// Transport commands, sound and the source of the next open.
#include "QPlayer.h"

#include "EngineProperties.h"
#include "PlayerText.h"
#include "SpeedTable.h"

#include <QDebug>

#include <cmath>

namespace {

constexpr float loudest = 2.0F;

// Values of sig_enablePlayType.
constexpr int enableSpeed = 1;

} // namespace

void QPlayer::setSource(const QString &path)
{
    QString copy = path;
    std::lock_guard lock(m_stateMutex);
    m_sourcePath.swap(copy);
}

void QPlayer::setSourceType(int type)
{
    m_sourceType = type;
}

void QPlayer::setTitle(int number)
{
    m_titleNumber = number;
}

void QPlayer::setResumePreference(bool audio, bool subtitle, bool angle)
{
    m_audioPrefer = audio;
    m_subtitlePrefer = subtitle;
    m_anglePrefer = angle;
}

void QPlayer::setPreferredLanguages(const QString &audio, const QString &subtitle)
{
    std::lock_guard lock(m_stateMutex);
    m_preferAudio = audio.toStdString();
    m_preferSubtitle = subtitle.toStdString();
}

QString QPlayer::source() const
{
    std::lock_guard lock(m_stateMutex);
    return m_sourcePath;
}

void QPlayer::togglePause()
{
    onPlay([](libvp::IVDPlay &play) { play.togglePause(); });
}

void QPlayer::resume()
{
    togglePause();
}

bool QPlayer::isPlaying()
{
    return fromPlay(false, [](libvp::IVDPlay &play) { return play.isPlaying(); });
}

bool QPlayer::isPaused()
{
    return fromPlay(false, [](libvp::IVDPlay &play) { return play.isPaused(); });
}

void QPlayer::speedUp(bool forward)
{
    if (!m_play.isSet() || isPaused())
        return;
    emit sig_enablePlayType(enableSpeed);
    setSpeedIndex(SpeedTable::step(speedIndex(), forward));
}

void QPlayer::setSpeedIndex(int index)
{
    if (index < SpeedTable::First || index > SpeedTable::Last) {
        qInfo() << "[Engine] no such speed:" << index;
        return;
    }
    if (isPaused())
        return;
    onPlay([index](libvp::IVDPlay &play) { play.setSpeedIndex(index); });
}

int QPlayer::speedIndex()
{
    return SpeedTable::indexOf(speed());
}

float QPlayer::speed()
{
    return fromPlay(1.0F, [](libvp::IVDPlay &play) { return play.speed(); });
}

void QPlayer::seek(double seconds)
{
    if (!std::isfinite(seconds))
        return;
    const double target = qMax(0.0, seconds);
    onPlay([target](libvp::IVDPlay &play) { play.seek(target, 1); });
}

double QPlayer::currentTime()
{
    return qMax(0.0, fromPlay(0.0, [](libvp::IVDPlay &play) { return play.currentSeconds(); }));
}

double QPlayer::totalTime()
{
    return qMax(0.0, fromPlay(0.0, [](libvp::IVDPlay &play) { return play.totalSeconds(); }));
}

void QPlayer::stepFrame(bool forward)
{
    if (!isPlaying())
        return;
    if (forward)
        onPlay([](libvp::IVDPlay &play) { play.toggleStep(); });
    else
        setIntProperty(EngineProperties::Step, -1);
}

void QPlayer::nextChapter()
{
    stepChapter(true);
}

void QPlayer::lastChapter()
{
    stepChapter(false);
}

void QPlayer::stepChapter(bool forward)
{
    const int count = chapterCount();
    if (count <= 0)
        return;
    const int current = chapter();
    const int target = forward ? (current < count ? current + 1 : 1) : (current > 1 ? current - 1 : count);
    goToChapter(target);
    if (forward)
        emit sig_nextChapter(target);
    else
        emit sig_lastChapter(target);
}

int QPlayer::chapterCount()
{
    return isPlaying() ? fromPlay(0, [](libvp::IVDPlay &play) { return play.chapterCount(); }) : 0;
}

int QPlayer::chapter()
{
    return isPlaying() ? fromPlay(0, [](libvp::IVDPlay &play) { return play.chapter(); }) : 0;
}

void QPlayer::goToChapter(int chapter)
{
    if (isPlaying())
        onPlay([chapter](libvp::IVDPlay &play) { play.goToChapter(chapter); });
}

int QPlayer::titleCount()
{
    return isPlaying() ? fromPlay(0, [](libvp::IVDPlay &play) { return play.titleCount(); }) : 0;
}

void QPlayer::setAngle(int angle)
{
    setIntProperty(EngineProperties::Angle, angle);
}

void QPlayer::menuCommand(int command, float value, int reserved)
{
    if (isPlaying())
        onPlay([=](libvp::IVDPlay &play) { play.menuCommand(command, value, reserved); });
}

bool QPlayer::hasDiscMenu()
{
    return fromPlay(false, [](libvp::IVDPlay &play) { return play.hasDiscMenu(); });
}

void QPlayer::setAuthorInfo(int value)
{
    qInfo().nospace() << "[Set AuthorInfo] QPlayer set authorInfo : " << value;
    onPlay([value](libvp::IVDPlay &play) { play.setAuthorInfo(value); });
    qInfo() << "[Set AuthorInfo] QPlayer authorInfo setted";
}

int QPlayer::statistic(int key)
{
    return fromPlay(0, [key](libvp::IVDPlay &play) { return play.statistic(key); });
}

vdFileInfo QPlayer::fileInfo() const
{
    std::lock_guard lock(m_stateMutex);
    return m_failInfo;
}

QString QPlayer::fileTypeText() const
{
    return PlayerText::fileType(fileInfo());
}

QString QPlayer::mediaTypeText() const
{
    return PlayerText::mediaType(fileInfo());
}

void QPlayer::setVolume(float volume)
{
    if (std::isnan(volume))
        return;
    const float value = qBound(0.0F, volume, loudest);
    m_volume = value;
    onTool([value](libvp::IVDPlayTool &tool) { tool.setVolume(value); });
}

void QPlayer::setMute(bool mute)
{
    m_muted = mute;
    onTool([mute](libvp::IVDPlayTool &tool) { tool.setMute(mute); });
}
