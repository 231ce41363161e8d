// Reads a file whole, and gives it a new content in one step: a reader, and a crash at any moment, meet the
// old one or the new one. Neither follows a link in the file's own place.
#pragma once

#include <optional>
#include <string>

namespace ReplacedFile {

// Larger files than this are not ours.
inline constexpr std::size_t MaxSize = 64u << 20;

// Empty with errno in error: for what is no plain file EISDIR or EINVAL, for what is too large EFBIG.
[[nodiscard]] std::optional<std::string> read(const std::string &path, int &error);

// 0, or the errno of what failed, with the file as it was and nothing left beside it. A file without any
// leave to write gives EACCES, whoever asks.
[[nodiscard]] int write(const std::string &path, const std::string &content);

} // namespace ReplacedFile
