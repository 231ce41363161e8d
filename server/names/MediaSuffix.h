// What kind of file a suffix tells.
//
// Pure; any thread.
#pragma once

#include <QString>

namespace MediaSuffix {

enum class Kind { None, Video, DiscImage, Audio, Image, Subtitle, Nfo, Cue };

// By the part of the name behind the last dot, without regard to case.
[[nodiscard]] Kind kindOf(const QString &fileName);

// Films, and images of discs that are played as one.
[[nodiscard]] inline bool isVideo(const QString &fileName)
{
    const Kind kind = kindOf(fileName);
    return kind == Kind::Video || kind == Kind::DiscImage;
}

// A place among the suffixes of pictures, smaller for those that are looked for first; -1 for none of them.
[[nodiscard]] int imageRank(const QString &fileName);

} // namespace MediaSuffix
