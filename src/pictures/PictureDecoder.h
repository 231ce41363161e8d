// Turns files and bytes into images without letting one picture take the memory of the program.
//
// Stateless, any thread. A picture that is broken, or larger than can be read, gives a null image.
#pragma once

#include "player/QPlayerTypes.h"

#include <QImage>

namespace PictureDecoder {

// Pixels of the longer side. What is larger is made smaller while it is read.
inline constexpr int kLongestSide = 2048;
// A picture of more pixels than this is not read, 256 MiB when decoded. JPEG files are read at an eighth of
// their size where they must be, which moves their limit up by 64.
inline constexpr qint64 kMostPixels = qint64(64) * 1024 * 1024;

// The format is found by the content: posters are often named after another one.
[[nodiscard]] QImage fromFile(const QString &path);
// format: "JPEG" and the like where it is known, null where it is to be found.
[[nodiscard]] QImage fromBytes(const QByteArray &bytes, const char *format = nullptr);
// What the engine answers: JPEG bytes or rows of pixels, whose opacity is not regarded.
[[nodiscard]] QImage fromEngine(const PlayerPicture &picture);

// The part in the middle of a picture that has the shape of the target.
[[nodiscard]] QRect middlePart(const QSize &picture, const QSize &target);
// Fills the size with the middle part. Null for a null image or an empty size.
[[nodiscard]] QImage scaledAndCropped(const QImage &image, const QSize &size);

} // namespace PictureDecoder
