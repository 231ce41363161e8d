// The stored preferences that the engine gets: key, default and range, one row each. What pushes them and the
// page that edits them read the same rows.
#pragma once

#include "core/SettingsKeys.h"

struct FlagRow {
    const char *key;
    bool fallback;
};

// What stands for a stored number outside the range.
enum class Outside { TakesNearest, TakesLeast };

struct NumberRow {
    const char *key;
    int fallback;
    int least;
    int most;
    Outside outside{Outside::TakesNearest};
};

struct TextRow {
    const char *key;
    const char *fallback;
};

namespace PreferenceRows {

// Value of ColorMode that gives the full range; every other one gives the limited range.
inline constexpr int FullRange = 1;
// Text of FontPosition that puts subtitles at the top; every other one puts them at the bottom.
inline constexpr char TopPosition[] = "Top";
// One step of SubtitleOffset.
inline constexpr float SecondsPerOffsetStep = 0.5F;

// Video
inline constexpr FlagRow Hardware{SettingsKeys::PC_EnableHardware, true};
inline constexpr FlagRow Hdr{SettingsKeys::PC_EnableHDR, true};
// The entry behind the named curves leaves the choice to the engine.
inline constexpr NumberRow SdrMode{SettingsKeys::PC_SDRMode, 4, 0, 4};
inline constexpr NumberRow SdrValue{SettingsKeys::PC_SDRValue, 50, 0, 100};
inline constexpr NumberRow HdrMode{SettingsKeys::PC_HDRMode, 0, 0, 1};
// A screen of a computer shows the whole range.
inline constexpr NumberRow ColorMode{SettingsKeys::PC_ColorMode, FullRange, 0, FullRange,
                                     Outside::TakesLeast};

// The picture as the menu and its dialogs leave it
inline constexpr NumberRow Deinterlace{SettingsKeys::PC_Deinterlace, 0, 0, 2}; // off, automatic, on
inline constexpr NumberRow Brightness{SettingsKeys::PC_Brightness, 50, 0, 100};
inline constexpr NumberRow Contrast{SettingsKeys::PC_Contrast, 50, 0, 100};
inline constexpr NumberRow Saturation{SettingsKeys::PC_Saturation, 50, 0, 100};

// Audio
inline constexpr NumberRow Speaker{SettingsKeys::PC_Speaker, 0, 0, 2}; // stereo, 5.1, 7.1
inline constexpr NumberRow Amplification{SettingsKeys::PC_VolumeAmplification, 0, 0, 60};
inline constexpr NumberRow AudioOffset{SettingsKeys::PC_AudioOffset, 0, -10, 10}; // seconds
// The page stores a flag, older files a number.
inline constexpr NumberRow PassThrough{SettingsKeys::PC_PassThrough, 0, 0, 31};
inline constexpr FlagRow Ac3{SettingsKeys::PC_AC3, true};
inline constexpr FlagRow Dts{SettingsKeys::PC_DTS, false};
inline constexpr FlagRow TrueHd{SettingsKeys::PC_TrueHD, false};

// Subtitles
inline constexpr TextRow Charset{SettingsKeys::PC_Charset, "0"}; // found out for each file
inline constexpr NumberRow FontSize{SettingsKeys::PC_FontSize, 22, 1, 200};
inline constexpr TextRow FontPosition{SettingsKeys::PC_FontPosition, "Bottom"};
inline constexpr FlagRow OverrideAss{SettingsKeys::PC_OverrideAss, false};
inline constexpr FlagRow Bold{SettingsKeys::PC_Bold, false};
inline constexpr FlagRow Italic{SettingsKeys::PC_Italic, true};
inline constexpr FlagRow OutLine{SettingsKeys::PC_OutLine, false};
inline constexpr TextRow FontColor{SettingsKeys::PC_FontColor, "#ffffff"};
inline constexpr TextRow OutLineColor{SettingsKeys::PC_OutLineColor, "#000000"};
inline constexpr NumberRow SubtitleOffset{SettingsKeys::PC_SubtitleOffset, 0, -20, 20};

// Discs
inline constexpr NumberRow Region{SettingsKeys::PC_RegionCode, 1, 1, 3}; // A, B, C

} // namespace PreferenceRows
