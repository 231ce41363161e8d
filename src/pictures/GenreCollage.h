// Makes the picture of a music genre: up to four covers of its songs, side by side.
//
// Stateless, any thread. A null image is a failure.
#pragma once

#include "PictureSources.h"

#include <QImage>
#include <QList>

namespace GenreCollage {

inline constexpr int kSide = 400;
inline constexpr int kMostPictures = 4;

// wanted: asked before each song; a genre of many songs is given up once it says no.
[[nodiscard]] QImage load(const QString &genre, const PictureSources &sources,
                          const std::function<bool()> &wanted);

// One picture fills it, two stand side by side, the third halves the right one, the fourth the left. Null
// without any; what is more than four is left out.
[[nodiscard]] QImage compose(const QList<QImage> &pictures);

} // namespace GenreCollage
