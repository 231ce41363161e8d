// Defaults of keys that more than one part of the program reads; the settings dialog shows the same.
#pragma once

namespace SettingsDefaults {

inline constexpr bool PC_CheckUpdate = true;
inline constexpr bool PC_DisableScreenSaver = true;

} // namespace SettingsDefaults
