// Audio and subtitle tracks of the running play.
#include "QPlayer.h"

#include "PlayerText.h"

#include <QDebug>
#include <QFileInfo>

namespace {

// Values of sig_enablePlayType.
constexpr int enableAudio = 11;
constexpr int enableSubtitle = 12;

constexpr int noSubtitle = -1;

PlayerAudioTrack toTrack(const libvp::VDAudioInfo &info)
{
    PlayerAudioTrack track;
    track.index = info.index;
    track.channels = info.channels;
    track.sampleRate = info.sampleRate;
    track.bitRate = info.bitRate;
    track.isDefault = info.isDefault != 0;
    track.language = PlayerText::fixedText(info.language);
    track.name = PlayerText::fixedText(info.name);
    track.format = PlayerText::fixedText(info.format);
    return track;
}

PlayerSubtitleTrack toTrack(const libvp::VDSubtitleInfo &info)
{
    PlayerSubtitleTrack track;
    track.language = PlayerText::fixedText(info.language);
    track.name = PlayerText::fixedText(info.name);
    track.isBitmap = info.isBitmap != 0;
    track.isExternal = info.isExternal != 0;
    return track;
}

} // namespace

int QPlayer::audioCount()
{
    return fromPlay(-1, [](libvp::IVDPlay &play) { return play.audioCount(); });
}

int QPlayer::audioTrack()
{
    return fromPlay(-1, [](libvp::IVDPlay &play) { return play.audioTrack(); });
}

void QPlayer::setAudioTrack(int index)
{
    if (!m_play.isSet())
        return;
    emit sig_enablePlayType(enableAudio);
    onPlay([index](libvp::IVDPlay &play) { play.setAudioTrack(index); });
}

bool QPlayer::audioTracks(QList<PlayerAudioTrack> *list)
{
    if (!list)
        return false;
    list->clear();
    // The record is the engine's until the next call: it is copied while the play is held.
    const int count = audioCount();
    for (int index = 0; index < count; ++index) {
        onPlay([list, index](libvp::IVDPlay &play) {
            if (const libvp::VDAudioInfo *info = play.getAudioInfo(index))
                list->append(toTrack(*info));
        });
    }
    return count >= 0;
}

int QPlayer::subtitleCount()
{
    return fromPlay(-1, [](libvp::IVDPlay &play) { return play.subtitleCount(0); });
}

int QPlayer::subtitleTrack()
{
    return fromPlay(-1, [](libvp::IVDPlay &play) { return play.subtitleTrack(); });
}

void QPlayer::setSubtitleTrack(int index)
{
    if (!m_play.isSet())
        return;
    emit sig_enablePlayType(enableSubtitle);
    const bool visible = index != noSubtitle;
    if (visible)
        onPlay([index](libvp::IVDPlay &play) { play.setSubtitleTrack(index); });
    onTool([visible](libvp::IVDPlayTool &tool) { tool.setSubtitleVisible(visible); });
}

bool QPlayer::subtitleTracks(QList<PlayerSubtitleTrack> *list)
{
    if (!list)
        return false;
    list->clear();
    const int count = subtitleCount();
    for (int index = 0; index < count; ++index) {
        onPlay([list, index](libvp::IVDPlay &play) {
            if (const libvp::VDSubtitleInfo *info = play.getSubtitleInfo(index))
                list->append(toTrack(*info));
        });
    }
    return count >= 0;
}

bool QPlayer::isSubtitleVisible()
{
    return fromTool(false, [](libvp::IVDPlayTool &tool) { return tool.isSubtitleVisible(); });
}

int QPlayer::addSubtitle(const QString &path)
{
    if (!m_play.isSet() || !QFileInfo::exists(path))
        return -1;
    const QByteArray name = path.toUtf8();
    const int index =
        fromPlay(-1, [&name](libvp::IVDPlay &play) { return play.addSubtitle(name.constData()); });
    if (index < 0)
        qInfo().noquote() << "[Engine] no subtitle file:" << path;
    else
        setSubtitleTrack(index);
    return index;
}
