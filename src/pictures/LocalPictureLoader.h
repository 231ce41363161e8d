// Makes the picture of a file or disc folder, as the engine sees it.
//
// Stateless, any thread. A null image is a failure.
#pragma once

#include "PictureSources.h"

#include <QImage>
#include <QSize>

namespace LocalPictureLoader {

inline constexpr QSize kListSize{320, 240};
inline constexpr QSize kDiscSize{640, 360};

// size: of the picture, at most.
[[nodiscard]] QImage load(const QString &path, const PictureSources &sources, const QSize &size = kListSize);

// What the engine is asked: UTF-8 text of a JSON object, in which the path is escaped as JSON wants it.
[[nodiscard]] QByteArray requestJson(const QString &path, bool isFolder, const QSize &size);

} // namespace LocalPictureLoader
