// Names of the engine's properties.
#pragma once

namespace EngineProperties {

inline constexpr char StereoscopicMode[] = "videoscreen.stereoscopicmode";
inline constexpr char LimitedRange[] = "videoscreen.limitedrange";
inline constexpr char SdrValue[] = "videoscreen.sdrvalue";
inline constexpr char AudioDevice[] = "audiooutput.audiodevice";
inline constexpr char PassThroughDevice[] = "audiooutput.passthroughdevice";
inline constexpr char PassThrough[] = "audiooutput.passthrough";
inline constexpr char Channels[] = "audiooutput.channels";
inline constexpr char PcmTap[] = "audio.pcmtap";
inline constexpr char Charset[] = "subtitles.charset";
inline constexpr char OutlineColor[] = "subtitles.outlinecolor";
inline constexpr char SubtitleFiles[] = "subtitles.autoload";
inline constexpr char SubtitleFolder[] = "subtitles.folder";
inline constexpr char Step[] = "play.step";
inline constexpr char Angle[] = "play.angle";
inline constexpr char VideoOutput[] = "video.output";
// Followed by the letter.
inline constexpr char Drive[] = "disc.drive.";

// Value of StereoscopicMode.
inline constexpr int StereoscopicOff = 9;

} // namespace EngineProperties
