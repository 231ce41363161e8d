#include "PlayReport.h"

#include "DriveTable.h"

#include "contract/VDTypes.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <limits>

namespace {

constexpr int uhdWidth = 3840;
constexpr int uhdHeight = 2160;

} // namespace

namespace PlayReport {

int milliseconds(double seconds)
{
    if (!std::isfinite(seconds) || seconds <= 0)
        return 0;
    return static_cast<int>(std::min(std::round(seconds * 1000), double{std::numeric_limits<int>::max()}));
}

vdStopPlayInfo stopInfo(const std::string &path, double positionSeconds, double totalSeconds, Outcome outcome)
{
    vdStopPlayInfo info;
    const char letter = DriveTable::letterOf(path);
    const std::string shown = letter ? std::string(1, letter) : path;
    std::size_t length = std::min(shown.size(), sizeof info.path - 1);
    while (length > 0 && length < shown.size() && (static_cast<unsigned char>(shown[length]) & 0xC0) == 0x80)
        --length;
    std::copy_n(shown.data(), length, info.path);
    info.positionMs = milliseconds(positionSeconds);
    info.totalMs = milliseconds(totalSeconds);
    info.reachedEnd = outcome == Outcome::ReachedEnd ? 1 : 0;
    return info;
}

std::string statistics(const PlayFacts &facts, double positionSeconds, Outcome outcome, int openMs, int seeks)
{
    const char *const outcomes[] = {"ended", "stopped", "failed"};
    const TrackList &tracks = facts.tracks;
    const bool hasAudio = tracks.selectedAudio >= 0;
    QJsonObject object;
    object["outcome"] = outcomes[static_cast<int>(outcome)];
    object["mediaClass"] = facts.info.mediaClass;
    object["sourceForm"] = facts.info.sourceForm;
    object["audioOnly"] = facts.info.audioOnly != 0;
    object["width"] = facts.info.width;
    object["height"] = facts.info.height;
    object["videoCodec"] = QString::fromStdString(tracks.hasVideo ? tracks.videoCodec : std::string());
    object["audioFormat"] =
        hasAudio
            ? QString::fromUtf8(tracks.audio[static_cast<std::size_t>(tracks.selectedAudio)].record.format)
            : QString();
    object["audioTracks"] = static_cast<int>(tracks.audio.size());
    object["subtitleTracks"] = static_cast<int>(tracks.subtitles.size());
    object["positionMs"] = milliseconds(positionSeconds);
    object["totalMs"] = milliseconds(facts.total);
    object["playedMs"] = milliseconds(facts.playedSeconds);
    object["openMs"] = openMs;
    object["seeks"] = seeks;
    object["droppedFrames"] = facts.droppedFrames;
    object["hardwareDecoding"] = facts.hardwareDecoding;
    return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}

unsigned fileFlags(const std::string &codec, int width, int height)
{
    unsigned flags = 0;
    if (width >= uhdWidth || height >= uhdHeight)
        flags |= libvp::VD_Flag_File4K;
    if (codec == "hevc")
        flags |= libvp::VD_Flag_FileHevc;
    return flags;
}

} // namespace PlayReport
