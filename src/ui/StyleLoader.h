// Loads the resource file and the style sheets in it.
//
// GUI thread only. A file that is missing is told in a box and the program goes on without it. Sheets are
// read once and kept until releaseStyles(), because a change of screen applies the same sheet anew at another
// scale.
#pragma once

#include <QString>

class QWidget;

namespace StyleLoader {

// Name of the resource file beside the program.
inline constexpr char kResourceFile[] = "quorin6.rcc";
inline constexpr char kCssPrefix[] = ":/css/Resources/origin/";
inline constexpr char kPicturePrefix[] = ":/Resources/origin/";

// Registers the resource file of this name in the application's folder. False when it is missing or broken.
bool loadResourceFile(const QString &name);

// Install a sheet on the application, scaled; false when the resource file or the sheet is missing.
bool applySelectStyle(const QString &name);
bool applyPcStyle(const QString &name);
bool applyTvStyle(const QString &name);

// The PC sheet on one widget, for windows that open while another sheet rules.
bool applyPcStyleToWidget(QWidget *widget);

// Forgets the sheets read so far.
void releaseStyles();

// True when a file "autostyle" lies in the application's folder.
[[nodiscard]] bool hasAutoStyle();

// The resource file of a theme; empty for an unknown theme.
[[nodiscard]] QString themeResourceFile(const QString &theme);

} // namespace StyleLoader
