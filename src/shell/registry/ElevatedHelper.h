// Starts a program with raised rights, which the system asks the user for, and waits for its end.
//
// Blocks for as long as the user takes to answer and the program to run: never call it on the GUI thread.
// Safe on every thread.
#pragma once

#include <optional>
#include <string>

namespace ElevatedHelper {

inline constexpr int NoLimit = -1;

// The program's exit code; empty when it could not be started, the user refused, or the limit in milliseconds
// passed, in which case the program has been ended.
[[nodiscard]] std::optional<int> run(const std::string &program, const std::string &argument,
                                     int limitMs = NoLimit);

// What a replacement in a test looks like.
using Runner = std::optional<int> (*)(const std::string &program, const std::string &argument, int limitMs);

} // namespace ElevatedHelper
