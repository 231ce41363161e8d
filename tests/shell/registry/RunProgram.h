// Runs a program to its end, for the tests that have to do with another process.
#pragma once

#include <optional>
#include <string>
#include <vector>

// The helper program that was built with these tests.
inline constexpr char kHelperProgram[] = QUORIN_REGISTRY_HELPER;

// With this as its only argument the test program for Windows waits until it is ended.
inline constexpr char kWaitArgument[] = "wait";

// The exit code; empty when it could not be started or did not end by itself.
[[nodiscard]] std::optional<int> runProgram(const std::string &program,
                                            const std::vector<std::string> &arguments);
