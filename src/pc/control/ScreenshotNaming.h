// Where a picture of the running source goes and what its file is called.
//
// Plain functions; any thread.
#pragma once

#include <QDateTime>
#include <QString>

class SettingsManager;

namespace ScreenshotNaming {

inline constexpr char FallbackSuffix[] = ".png";

struct Target {
    QString folder;
    QString suffix{QLatin1String(FallbackSuffix)}; // with its dot, spelled as the user chose it
    bool toClipboard{true};
};

// What the settings ask for; the folder is picturesFolder where none is set.
[[nodiscard]] Target target(const SettingsManager &settings, const QString &picturesFolder);

// The suffix itself when a picture of that kind can be written, in any case, else the fall-back.
[[nodiscard]] QString suffixOf(const QString &type);

// "2024_05_31_20_15_07", and with a number behind it from the second attempt on: two pictures of one second.
[[nodiscard]] QString baseName(const QDateTime &time, int attempt = 1);

} // namespace ScreenshotNaming
