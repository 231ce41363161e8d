// Turns the player's subtitle settings into values of libmpv's options. Stateless.
#pragma once

#include <string>

namespace SubtitleStyle {

// Size in libmpv's units (pixels of a picture 720 lines high) for a point size at 288 lines.
[[nodiscard]] double fontSize(int size);

// Colour for libmpv, empty for all but "#rrggbb".
[[nodiscard]] std::string color(const std::string &text);

// The number of a Windows code page in decimal; 0 for an empty text or nonsense.
[[nodiscard]] int codePage(const std::string &text);

// Character set for a Windows code page in decimal; "auto" for "0", an empty text or nonsense.
[[nodiscard]] std::string charset(const std::string &text);

// Font family; the default one for an empty name.
[[nodiscard]] std::string font(const std::string &family);

} // namespace SubtitleStyle
