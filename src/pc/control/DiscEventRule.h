// What something that happened in an optical drive means for playing: a disc that goes ends its own play, one
// that comes in is opened where nothing plays.
#pragma once

#include <QString>

namespace DiscEventRule {

// Both values mean that the disc is gone: taken out by hand, or put out by the program.
inline constexpr int Removed = 2;
inline constexpr int Ejected = 4;
// The disc that came in can be read.
inline constexpr int Ready = 3;

[[nodiscard]] bool isGone(int notifyType);

// playingPath is the drive letter alone while a disc plays. Letters are compared without case: the system
// tells drives in capitals, a path may come as it was typed.
[[nodiscard]] bool stopsPlay(char drive, int notifyType, const QString &playingPath);

// hasSource: something plays, or is on its way; a disc never interrupts it.
[[nodiscard]] bool opensPlay(int notifyType, bool autoPlay, bool hasSource);

} // namespace DiscEventRule
