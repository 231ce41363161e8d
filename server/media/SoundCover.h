// The cover picture in a sound file, whichever way its format keeps one.
#pragma once

#include <QByteArray>

namespace TagLib {
class File;
}

namespace SoundCover {

// Bytes of a picture file; the front cover, else the first picture. Empty without one. May throw what TagLib
// throws.
[[nodiscard]] QByteArray of(TagLib::File *file);

} // namespace SoundCover
