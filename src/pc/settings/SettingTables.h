// The settings of the twelve pages as tables: which keys a page owns, what they are set with and what an
// absent one stands for. Pure; any thread.
#pragma once

#include "SettingRow.h"
#include "SettingsFacts.h"

#include <vector>

namespace SettingTables {

// Names of the rows that are not stored themselves.
inline constexpr char OutputMode[] = "outputMode";
inline constexpr char ProxyChoice[] = "proxyChoice";

enum ProxyUse { NoProxy = 0, SystemProxy = 1, ManualProxy = 2 };
// What PC_ProxyType holds.
enum ProxyType { ProxyOfSystem = 0, ProxyHttp = 1, ProxySocks = 2 };
// Entries of the output mode, which are also the connections of the engine's devices.
enum OutputModes {
    OutputNone = 0,
    OutputAnalog = 1,
    OutputOptical = 2,
    OutputHdmi = 3,
    OutputDisplayPort = 4
};
inline constexpr int Hdmi14Mode = 4; // of PC_3DMode

// Title of a page in the list.
[[nodiscard]] const char *pageTitle(SettingsPageId page);
[[nodiscard]] std::vector<SettingRow> rows(SettingsPageId page, const SettingsFacts &facts);
[[nodiscard]] SettingsPageId pageOf(SaveStep step);

} // namespace SettingTables
