// The information that can be shown over the picture. Stateless.
#pragma once

#include "PictureOptions.h"
#include "PlayFacts.h"

#include <string>

namespace InfoOverlay {

// One event in the form of ASS subtitles.
[[nodiscard]] std::string build(const PlayFacts &facts, const std::string &videoOutput,
                                const SourcePicture &picture);

} // namespace InfoOverlay
