// The tracks of the open source as the contract counts them: audio and subtitles each from 0, covers left
// out of the video. A plain value.
#pragma once

#include "MpvValue.h"

#include "contract/VDRecords.h"

#include <string>
#include <vector>

class TrackList final {
public:
    struct Audio {
        libvp::VDAudioInfo record;
        std::int64_t id = 0;  // libmpv's number
        int streamIndex = -1; // libavformat's number, -1 when unknown
        bool isExternal = false;
    };
    struct Subtitle {
        libvp::VDSubtitleInfo record;
        std::int64_t id = 0;
        std::string file; // of an external track
    };

    // From libmpv's property "track-list".
    [[nodiscard]] static TrackList read(const MpvValue &trackList);

    std::vector<Audio> audio;
    std::vector<Subtitle> subtitles;
    int selectedAudio = -1;    // index, -1 when none plays
    int selectedSubtitle = -1; // index, -1 when none shows
    bool hasVideo = false;
    std::string videoCodec; // lower case

    [[nodiscard]] bool isAudioOnly() const { return !hasVideo && !audio.empty(); }
};
