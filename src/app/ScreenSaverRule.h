// Whether the screen saver is off while the program runs.
#pragma once

class SettingsManager;

namespace ScreenSaverRule {

// Off unless the user has said otherwise: the key is there and false.
[[nodiscard]] bool staysOff(const SettingsManager &store);

} // namespace ScreenSaverRule
