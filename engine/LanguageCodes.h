// The languages of subtitle files and tracks, under the many names they go by. Stateless.
#pragma once

#include <string>
#include <vector>

namespace LanguageCodes {

// Code of three letters, as Matroska files have it, for a code of two or three letters, a name in English or
// in the language itself, each with or without a region behind "-" or "_". Empty for what is no language.
[[nodiscard]] std::string canonical(const std::string &word);

// The entries of a list with commas, without those that are none.
[[nodiscard]] std::vector<std::string> canonicalList(const std::string &list);

} // namespace LanguageCodes
