// Whether something that happened in an optical drive ends the running play.
#pragma once

#include <QString>

namespace DiscEventRule {

// Both values mean that the disc is gone: taken out by hand, or put out by the program.
inline constexpr int Removed = 2;
inline constexpr int Ejected = 4;

[[nodiscard]] bool isGone(int notifyType);

// playingPath is the drive letter alone while a disc plays. Letters are compared without case: the system
// tells drives in capitals, a path may come as it was typed.
[[nodiscard]] bool stopsPlay(char drive, int notifyType, const QString &playingPath);

} // namespace DiscEventRule
