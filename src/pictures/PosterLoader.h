// Makes the picture of a poster key: a file of this machine, or a picture that the media server has.
//
// Stateless, any thread. A null image is a failure.
#pragma once

#include "PictureSources.h"

#include <QImage>

namespace PosterLoader {

inline constexpr int kFetchTimeoutMs = 2000;
// Pictures of this host are whole sleeves, back and front.
inline constexpr char kSleeveHost[] = "covers.adult.invalid";

[[nodiscard]] QImage load(const QString &key, const PictureSources &sources);

// The address of a key at the media server: loopback, the port of the environment's QUORIN_LIBRARY_PORT or
// 32080.
[[nodiscard]] QString address(const QString &key);
// Without the zero that some answers carry as the end of a C string. One at most.
[[nodiscard]] QByteArray withoutFinalZero(QByteArray bytes);
// The front of a sleeve: its right part.
[[nodiscard]] QImage frontOfSleeve(const QImage &sleeve);

} // namespace PosterLoader
