// Turns the player's choices for the picture into options of libmpv. Stateless.
#pragma once

#include "MpvValue.h"
#include "PlayPreferences.h"

#include <string>

// What is known of the picture that plays. All unset before the first frame.
struct SourcePicture {
    int width = 0; // pixels
    int height = 0;
    double aspect = 0;  // display aspect
    std::string gamma;  // transfer curve as libmpv names it
    std::string stereo; // stereo layout as libmpv names it
    double peak = 0;    // signal peak relative to SDR white
    bool interlaced = false;

    [[nodiscard]] bool isHdr() const { return gamma == "pq" || gamma == "hlg"; }
};

namespace PictureOptions {

// Options that show the picture as chosen; the same names each time.
[[nodiscard]] MpvMap build(const PlayPreferences &preferences, const SourcePicture &source);

// True when HDR leaves the engine as it is.
[[nodiscard]] bool passesHdr(const PlayPreferences &preferences);

// Brightness, contrast or saturation of 0 to 100 on libmpv's scale of -100 to 100.
[[nodiscard]] int equalizer(float value);

// Stereo output modes of the contract that can be shown, as a bit mask.
[[nodiscard]] unsigned stereoModes();

} // namespace PictureOptions
