// Whether a name is one that a camera, a telephone or a screen recorder gives, and no film's.
//
// "IMG_1234", "VID_20200101_120000", "MVI_0042", "GOPR0001", "20200101_120000", "WhatsApp Video 2020-01-01 at
// ...". Pure; any thread.
#pragma once

#include <QString>

namespace CameraName {

[[nodiscard]] bool isCamera(const QString &name);

// Words of one's own life ("birthday", "holidays") in it. They are words of titles too, so they decide only
// where nothing speaks for a film.
[[nodiscard]] bool isHome(const QString &name);

} // namespace CameraName
