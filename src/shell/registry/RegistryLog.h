// Where the registry's classes say what went wrong; they know no Qt. Lines go to the standard error stream
// until the program gives a sink. Safe on every thread.
#pragma once

#include <functional>
#include <string>

namespace RegistryLog {

using Sink = std::function<void(const std::string &line)>;

// An empty sink brings the standard error stream back. Returns the one before.
Sink setSink(Sink sink);

void write(const std::string &line);

} // namespace RegistryLog
