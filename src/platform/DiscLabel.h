// The name of the disc in an image file or a folder.
#pragma once

#include <QString>

// Of an image the volume identifier of its primary volume descriptor (ECMA-119, 8.4), of a folder and of an
// image without one the name of the file. Empty when the path does not exist. Reads at most one sector.
[[nodiscard]] QString discLabel(const QString &path);
