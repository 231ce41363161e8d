#include "ProcessLimits.h"

namespace ProcessLimits {

// Sockets have no such limit here.
void raiseOpenFiles() {}

} // namespace ProcessLimits
