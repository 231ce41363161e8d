// The processes of the media server that run on this machine.
#pragma once

#include <QString>

namespace ServerProcesses {

// File name of the server's program on this platform.
[[nodiscard]] QString programName();

// Ends the servers of this user whose program is the file at this path. Returns how many were ended, or -1
// where the platform does not tell.
int killAll(const QString &programPath);

} // namespace ServerProcesses
