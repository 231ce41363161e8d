#include "TrackList.h"

#include "SubtitleText.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace {

// Subtitles made of pictures.
constexpr const char *bitmapCodecs[] = {"hdmv_pgs_subtitle", "dvd_subtitle", "dvb_subtitle", "xsub"};

// Null packets of a transport stream, which the demuxer of Blu-rays takes for a track.
constexpr std::int64_t paddingPid = 0x1FFF;

// Never cuts a character of UTF-8 in two.
template<std::size_t Size>
void copyText(char (&target)[Size], const std::string &text)
{
    std::size_t length = std::min(text.size(), Size - 1);
    while (length > 0 && length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80)
        --length;
    std::copy_n(text.data(), length, target);
    target[length] = '\0';
}

TrackList::Audio readAudio(const MpvValue &track, int index)
{
    TrackList::Audio audio;
    libvp::VDAudioInfo &record = audio.record;
    record.index = index;
    record.channels = static_cast<std::int32_t>(track.at("demux-channel-count").integer());
    record.sampleRate = static_cast<std::int32_t>(track.at("demux-samplerate").integer());
    record.bitRate = static_cast<std::int32_t>(track.at("demux-bitrate").integer());
    record.isDefault = track.at("default").flag() ? 1 : 0;
    copyText(record.language, track.at("lang").text());
    copyText(record.name, track.at("title").text());
    std::string layout = track.at("demux-channels").text();
    if (layout.rfind("unknown", 0) == 0) // a count without positions
        layout = record.channels == 1   ? "mono"
                 : record.channels == 2 ? "stereo"
                                        : std::to_string(record.channels) + " channels";
    copyText(record.format, track.at("codec").text() + (layout.empty() ? "" : " " + layout));
    audio.id = track.at("id").integer();
    audio.isExternal = track.at("external").flag();
    audio.streamIndex = audio.isExternal ? -1 : static_cast<int>(track.at("ff-index").integer(-1));
    return audio;
}

TrackList::Subtitle readSubtitle(const MpvValue &track)
{
    TrackList::Subtitle subtitle;
    const std::string &codec = track.at("codec").text();
    copyText(subtitle.record.language, track.at("lang").text());
    copyText(subtitle.record.name, track.at("title").text());
    subtitle.record.isExternal = track.at("external").flag() ? 1 : 0;
    subtitle.record.isBitmap = std::any_of(std::begin(bitmapCodecs), std::end(bitmapCodecs),
                                           [&codec](const char *name) { return codec == name; })
                                   ? 1
                                   : 0;
    subtitle.id = track.at("id").integer();
    subtitle.file = SubtitleText::pathOf(track.at("external-filename").text());
    return subtitle;
}

} // namespace

TrackList TrackList::read(const MpvValue &trackList)
{
    TrackList tracks;
    for (const MpvValue &track : trackList.list()) {
        if (track.at("src-id").integer() == paddingPid)
            continue;
        const std::string &type = track.at("type").text();
        const bool selected = track.at("selected").flag() && track.at("main-selection").integer(0) == 0;
        if (type == "audio") {
            if (selected)
                tracks.selectedAudio = static_cast<int>(tracks.audio.size());
            tracks.audio.push_back(readAudio(track, static_cast<int>(tracks.audio.size())));
        } else if (type == "sub") {
            if (selected)
                tracks.selectedSubtitle = static_cast<int>(tracks.subtitles.size());
            tracks.subtitles.push_back(readSubtitle(track));
        } else if (type == "video" && !track.at("albumart").flag()) {
            if (!tracks.hasVideo || selected)
                tracks.videoCodec = track.at("codec").text();
            tracks.hasVideo = true;
        }
    }
    return tracks;
}
