// The engine's notifications. Each is logged, kept as far as QPlayer answers from it, and passed on as a
// signal.
#include "QPlayer.h"

#include "NotificationScope.h"
#include "PlayerText.h"

#include <QDebug>

namespace {

// "[Engine] OnTitle(3)"
template<class... Arguments>
void logNotification(const char *name, const Arguments &...arguments)
{
    QDebug line = qInfo().noquote().nospace();
    line << "[Engine] " << name << '(';
    const char *separator = "";
    (void)separator;
    ((line << separator << arguments, separator = ", "), ...);
    line << ')';
}

QString described(const vdFileInfo &info)
{
    return QStringLiteral("class %1, form %2, codec \"%3\", %4*%5, audio only %6, flags 0x%7")
        .arg(info.mediaClass)
        .arg(info.sourceForm)
        .arg(PlayerText::fixedText(info.codec))
        .arg(info.width)
        .arg(info.height)
        .arg(info.audioOnly)
        .arg(info.flags, 0, 16);
}

} // namespace

void QPlayer::setStatus(QPlayerStatus status)
{
    m_status = status;
    emit sig_playStatusChanged(status);
}

void QPlayer::setMeta(QPlayerMetaType type, const QString &text)
{
    QString line = text;
    QString copy = text;
    {
        std::lock_guard lock(m_stateMutex);
        QString *kept = type == QPlayerMetaType_Video          ? &m_videoMeta
                        : type == QPlayerMetaType_DynamicRange ? &m_rangeMeta
                        : type == QPlayerMetaType_Further      ? &m_furtherMeta
                                                               : nullptr;
        if (kept) {
            kept->swap(copy);
            QStringList parts{m_videoMeta, m_rangeMeta, m_furtherMeta};
            parts.removeAll(QString());
            line = parts.join(QStringLiteral(" | "));
        }
    }
    emit sig_playMetaChanged(type, line);
}

void QPlayer::setFurtherInfo(const QString &text)
{
    setMeta(QPlayerMetaType_Further, text);
}

void QPlayer::keepFileInfo(const vdFileInfo &info)
{
    std::lock_guard lock(m_stateMutex);
    m_failInfo = info;
}

void QPlayer::releaseLater(FrameStore &store, quint64 ticket)
{
    QMetaObject::invokeMethod(
        this, [&store, ticket] { store.delivered(ticket); }, Qt::QueuedConnection);
}

void QPlayer::OnError(libvp::VD_ErrorCallbackType type)
{
    const NotificationScope scope;
    logNotification("OnError", static_cast<int>(type));
    emit sig_errorOccured(type);
}

void QPlayer::reserved2(int, int) {}

void QPlayer::OnDiscEvent(char drive, libvp::VD_OPTRA_DISC_NOTIFY_TYPE type)
{
    const NotificationScope scope;
    logNotification("OnDiscEvent", drive, static_cast<int>(type));
    emit sig_DiscEventOccured(drive, type);
}

void QPlayer::OnDiscError(char drive, libvp::VD_OPTRA_DISC_ERROR_TYPE type)
{
    const NotificationScope scope;
    logNotification("OnDiscError", drive, static_cast<int>(type));
    emit sig_DiscError(drive, type);
}

void QPlayer::OnVolumeChanged(float volume)
{
    const NotificationScope scope;
    logNotification("OnVolumeChanged", volume);
    emit sig_volumeChanged(volume);
}

void QPlayer::OnMuteChanged(bool mute)
{
    const NotificationScope scope;
    logNotification("OnMuteChanged", mute);
    emit sig_muteChanged(mute);
}

void QPlayer::OnPlayBackEnded()
{
    const NotificationScope scope;
    logNotification("OnPlayBackEnded");
    setStatus(QPlayerStatus_Ended);
}

void QPlayer::OnPlayBackStarted()
{
    const NotificationScope scope;
    logNotification("OnPlayBackStarted");
    vdFileInfo info;
    info.mediaClass = statistic(libvp::VD_Stat_MediaClass);
    info.sourceForm = statistic(libvp::VD_Stat_SourceForm);
    info.audioOnly = statistic(libvp::VD_Stat_AudioOnly) != 0;
    info.flags = static_cast<std::uint32_t>(statistic(libvp::VD_Stat_Flags));
    info.width = statistic(libvp::VD_Stat_Width);
    info.height = statistic(libvp::VD_Stat_Height);
    // Without a play a stop is under way, and what was asked is not the source's.
    const bool known = m_play.isSet();
    if (known) {
        std::lock_guard lock(m_stateMutex);
        m_lastCodec.copy(info.codec, sizeof(info.codec) - 1);
        m_failInfo = info;
    }
    setStatus(QPlayerStatus_Playing);
    if (!known)
        return;
    logNotification("source", described(info));
    emit sig_videoInfoChanged(info);
}

void QPlayer::OnPlayBackPaused()
{
    const NotificationScope scope;
    logNotification("OnPlayBackPaused");
    setStatus(QPlayerStatus_Paused);
}

void QPlayer::OnPlayBackResumed()
{
    const NotificationScope scope;
    logNotification("OnPlayBackResumed");
    setStatus(QPlayerStatus_Playing);
}

void QPlayer::OnStopInfo(vdStopPlayInfo info)
{
    const NotificationScope scope;
    logNotification("OnStopInfo", PlayerText::fixedText(info.path), info.positionMs, info.totalMs,
                    info.reachedEnd != 0, info.imageWidth, info.imageHeight);
    info.path[sizeof(info.path) - 1] = 0;
    const FrameStore::Frame frame = m_frames.keep(info.image, info.imageWidth, info.imageHeight);
    info.image = frame.pixels;
    info.imageWidth = frame.width;
    info.imageHeight = frame.height;
    emit sig_stopInfoChanged(info);
    releaseLater(m_frames, frame.ticket);
}

void QPlayer::OnPlayBackStopped()
{
    const NotificationScope scope;
    logNotification("OnPlayBackStopped");
    setStatus(QPlayerStatus_Stopped);
}

void QPlayer::OnQueueNextItem()
{
    logNotification("OnQueueNextItem");
}

void QPlayer::OnPlayBackSeek(int positionMs, int targetMs)
{
    logNotification("OnPlayBackSeek", positionMs, targetMs);
}

void QPlayer::OnPlayBackSeekChapter(int chapter)
{
    logNotification("OnPlayBackSeekChapter", chapter);
}

void QPlayer::OnPlayBackSpeedChanged(float speed)
{
    const NotificationScope scope;
    logNotification("OnPlayBackSpeedChanged", speed);
    if (speed < 0)
        setStatus(QPlayerStatus_Rewind);
    else if (qFuzzyIsNull(speed))
        setStatus(QPlayerStatus_Paused);
    else if (qFuzzyCompare(speed, 1.0F))
        setStatus(QPlayerStatus_Playing);
    else
        setStatus(QPlayerStatus_Forward);
}

void QPlayer::OnPlayBackFailed(int error, vdFileInfo info)
{
    const NotificationScope scope;
    logNotification("OnPlayBackFailed", error, described(info));
    keepFileInfo(info);
    setStatus(QPlayerStatus_Failed);
    emit sig_playFailChanged(error, info);
}

void QPlayer::OnDiscRefused(int error, const char *message, vdFileInfo info)
{
    const NotificationScope scope;
    logNotification("OnDiscRefused", error, PlayerText::engineText(message), described(info));
    keepFileInfo(info);
    qInfo() << "[Player BackInfo]: error(not UHD Disc)";
}

void QPlayer::OnTime(int positionMs, int totalMs)
{
    const NotificationScope scope;
    const int second = qMax(0, positionMs) / 1000;
    if (m_loggedSecond.exchange(second) != second)
        logNotification("OnTime", positionMs, totalMs);
    setMeta(QPlayerMetaType_Time, PlayerText::time(positionMs, totalMs));
    emit sig_timeChanged(second, qMax(0, totalMs) / 1000);
}

void QPlayer::OnTitle(int title)
{
    const NotificationScope scope;
    logNotification("OnTitle", title);
    setMeta(QPlayerMetaType_Title, PlayerText::title(title));
    emit sig_titleChanged(title);
}

void QPlayer::OnChapter(int current, int count)
{
    const NotificationScope scope;
    logNotification("OnChapter", current, count);
    setMeta(QPlayerMetaType_Chapter, PlayerText::chapter(current, count));
}

void QPlayer::OnVideoInfo(const libvp::VDVideoInfo *info)
{
    if (!info)
        return;
    const NotificationScope scope;
    const QString codec = PlayerText::fixedText(info->codec);
    logNotification("OnVideoInfo", codec, info->width, info->height);
    {
        std::lock_guard lock(m_stateMutex);
        m_lastCodec = codec.toLower().toStdString();
    }
    setMeta(QPlayerMetaType_Video, PlayerText::video(*info));
    emit sig_videoSizeChanged(info->width, info->height);
}

void QPlayer::OnAudioInfo(const libvp::VDAudioInfo *info)
{
    if (!info)
        return;
    const NotificationScope scope;
    const QString text = PlayerText::audio(*info);
    logNotification("OnAudioInfo", text);
    setMeta(QPlayerMetaType_Audio, text);
}

void QPlayer::OnSubtitleInfo(const libvp::VDSubtitleInfo *info)
{
    if (!info)
        return;
    const NotificationScope scope;
    const QString text = PlayerText::subtitle(*info);
    logNotification("OnSubtitleInfo", text);
    setMeta(QPlayerMetaType_Subtitle, text);
}

void QPlayer::OnDynamicRange(int range)
{
    const NotificationScope scope;
    logNotification("OnDynamicRange", range);
    setMeta(QPlayerMetaType_DynamicRange, PlayerText::dynamicRange(range));
}

void QPlayer::OnSeekState(libvp::VD_SeekState state)
{
    const NotificationScope scope;
    logNotification("OnSeekState", static_cast<int>(state));
    emit sig_seekState(state);
}

void QPlayer::OnScreenshot(unsigned char *rgba, int width, int height)
{
    const NotificationScope scope;
    logNotification("OnScreenshot", width, height);
    const FrameStore::Frame frame = m_screenshots.keep(rgba, width, height);
    emit sig_shotScreen(frame.pixels, frame.width, frame.height);
    releaseLater(m_screenshots, frame.ticket);
}

void QPlayer::OnStatistics(const char *json)
{
    const NotificationScope scope;
    const QString text = PlayerText::engineText(json);
    logNotification("OnStatistics", text);
    emit sig_orbixDataStatistics(text);
}

void QPlayer::reserved13(int first, int second)
{
    logNotification("reserved13", first, second);
}

void QPlayer::reserved20(int first, int second)
{
    logNotification("reserved20", first, second);
}

void QPlayer::reserved21(int first, int second)
{
    logNotification("reserved21", first, second);
}

void QPlayer::reserved24()
{
    logNotification("reserved24");
}

void QPlayer::reserved25(int value)
{
    logNotification("reserved25", value);
}

void QPlayer::reserved26()
{
    logNotification("reserved26");
}

void QPlayer::reserved27()
{
    logNotification("reserved27");
}

void QPlayer::reserved29(int first, int second, int third)
{
    logNotification("reserved29", first, second, third);
}

void QPlayer::reserved30(int first, int second, int third)
{
    logNotification("reserved30", first, second, third);
}

void QPlayer::reserved32(int value)
{
    logNotification("reserved32", value);
}
