// Names that the sheet of the settings knows, and the sheet itself: that of the dialogs with "settings.css"
// behind it, at the display's scale. It stands on the dialog, which also opens over TV mode. GUI thread.
#pragma once

#include <QString>

namespace SettingsLook {

inline constexpr char Pages[] = "settingsPages";
inline constexpr char Scroll[] = "settingsScroll";
inline constexpr char Page[] = "settingsPage";
inline constexpr char Name[] = "settingName";
inline constexpr char Head[] = "settingHead";
inline constexpr char Soft[] = "settingSoft";
inline constexpr char Problem[] = "settingProblem";
inline constexpr char Value[] = "settingValue";
inline constexpr char Field[] = "settingField";
inline constexpr char SmallButton[] = "settingButton";
inline constexpr char List[] = "settingList";
inline constexpr char Table[] = "settingTable";
inline constexpr char Tab[] = "settingTab";

// Design pixels.
inline constexpr int PageListWidth = 204;
inline constexpr int PageMargin = 32;
inline constexpr int RowHeight = 42;
inline constexpr int ControlWidth = 300;

[[nodiscard]] QString styleSheet();

} // namespace SettingsLook
