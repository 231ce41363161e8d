// The style sheet that all dialogs of PC mode share, at the display's scale. It stands on the dialog itself,
// so that a dialog looks the same over every page. GUI thread.
#pragma once

#include <QString>

namespace DialogLook {

// Names that the sheet knows, set with setObjectName().
inline constexpr char Panel[] = "dialogPanel";
inline constexpr char Title[] = "dialogTitle";
inline constexpr char CloseButton[] = "windowCloseButton";
inline constexpr char Head[] = "messageHead";
inline constexpr char Text[] = "messageText";
inline constexpr char Soft[] = "dialogSoft";   // text of second rank
inline constexpr char Value[] = "dialogValue"; // a number beside its control
inline constexpr char Button[] = "dialogButton";

// Design pixels.
inline constexpr int TitleHeight = 44;
inline constexpr int SideMargin = 28;
inline constexpr int BottomMargin = 24;

[[nodiscard]] QString styleSheet();

} // namespace DialogLook
