// Limits of the process that the system sets too low for a server.
#pragma once

namespace ProcessLimits {

// As many open files and connections as the system lets this user have. Once, before threads start.
void raiseOpenFiles();

} // namespace ProcessLimits
