#include "InfoOverlay.h"

#include <cstdio>
#include <vector>

namespace {

// Keeps text of the source from being read as formatting.
std::string plain(const std::string &text)
{
    std::string safe;
    for (const char c : text) {
        if (c == '{' || c == '}' || c == '\\' || static_cast<unsigned char>(c) < 0x20)
            safe += ' ';
        else
            safe += c;
    }
    return safe;
}

std::string decimals(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", value);
    return text;
}

} // namespace

namespace InfoOverlay {

std::string build(const PlayFacts &facts, const std::string &videoOutput, const SourcePicture &picture)
{
    std::vector<std::string> lines;
    if (facts.tracks.hasVideo) {
        lines.push_back(plain(facts.tracks.videoCodec) + "  " + std::to_string(facts.info.width) + "x"
                        + std::to_string(facts.info.height) + "  " + decimals(facts.frameRate) + " fps  "
                        + (picture.isHdr() ? "HDR" : "SDR"));
        lines.push_back(std::string(facts.hardwareDecoding ? "hardware" : "software") + " decoding, output "
                        + plain(videoOutput) + ", dropped " + std::to_string(facts.droppedFrames));
    }
    if (facts.tracks.selectedAudio >= 0) {
        const auto &audio = facts.tracks.audio[static_cast<std::size_t>(facts.tracks.selectedAudio)].record;
        lines.push_back(plain(audio.format) + "  " + std::to_string(audio.sampleRate) + " Hz  "
                        + std::to_string(audio.bitRate / 1000) + " kb/s");
    }
    std::string event = "{\\an7\\fs18\\bord1.5}";
    for (const std::string &line : lines)
        event += line + "\\N";
    return event;
}

} // namespace InfoOverlay
