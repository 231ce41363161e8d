// Subtitle files as text in UTF-8, where libmpv cannot read them right by itself: those in UTF-16, and where
// LocalCharset is needed those in a code page as well.
//
// UTF-16 libmpv leaves to the demuxer, which loses bytes where a line begins with a letter outside of ASCII
// and ends without a carriage return, and does not know files without a byte order mark. So they are read
// here, and libmpv gets them by an address of our own. Stateless; reading waits for the file.
#pragma once

#include <optional>
#include <string>

namespace SubtitleText {

// Of the addresses. What follows "://" is the path of the file.
inline constexpr char protocol[] = "orbixtext";

// What libmpv is told to open for a file: the path itself, or an address where the text has to be read here.
[[nodiscard]] std::string addressOf(const std::string &path);

// The file behind what addressOf() gave.
[[nodiscard]] std::string pathOf(const std::string &address);

// Text in UTF-8 of such a file, in the code page where it is in one; 0 guesses it. Nothing where libmpv can
// read the file itself, and where it cannot be read or is too large.
[[nodiscard]] std::optional<std::string> read(const std::string &path, int codePage = 0);

// Text in UTF-8 of bytes in UTF-16. Halves of pairs become U+FFFD.
[[nodiscard]] std::string fromUtf16(const std::string &bytes, bool bigEndian);

} // namespace SubtitleText
