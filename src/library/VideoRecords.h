// Turns the objects of the video library's answers into records. Pure functions.
#pragma once

#include "MediaItem.h"

#include <QJsonObject>

namespace VideoRecords {

// A film, a video, an adult item or a show: they share their keys.
[[nodiscard]] MediaItem movie(const QJsonObject &object);
[[nodiscard]] MediaItem collection(const QJsonObject &object);
// seasonNumber: the one that was asked for.
[[nodiscard]] MediaItem season(const QJsonObject &object, const QString &showTitle, int seasonNumber);
[[nodiscard]] MediaItem episode(const QJsonObject &object, const QString &showTitle, int seasonNumber,
                                int episodeNumber);
[[nodiscard]] MediaItem match(const QJsonObject &object);

} // namespace VideoRecords
