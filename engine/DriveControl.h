// Opens the tray of an optical drive and tells whether a disc is in. Stateless; waits for the drive.
#pragma once

#include <string>

namespace DriveControl {

enum State { NoDrive = 0, NoDisc = 1, HasDisc = 2 };

// path: what stands behind a drive letter, an image or a folder included. False when it cannot be ejected.
[[nodiscard]] bool eject(const std::string &path);
[[nodiscard]] State state(const std::string &path);

} // namespace DriveControl
