// Opens the tray of an optical drive and tells whether a disc is in. Stateless; waits for the drive. Images
// and folders that stand behind a letter count as drives with that disc in it.
#pragma once

#include <string>

namespace DriveControl {

enum State { NoDrive = 0, NoDisc = 1, HasDisc = 2 };

// What a look at a drive tells. Unknown: it takes a disc in, wakes up or does not say; a disc that was in it
// before may still be.
enum class Medium { Unknown, None, Present };

// path: what stands behind a drive letter, an image or a folder included. False when it cannot be ejected.
[[nodiscard]] bool eject(const std::string &path);
[[nodiscard]] State state(const std::string &path);

// Opens no tray and starts no disc. An empty folder is a drive without a disc, as the place of a disc is that
// nobody has mounted.
[[nodiscard]] Medium medium(const std::string &path);
// Whether there is something to read on the disc that is in: not on a blank one, nor on one that the drive
// can't read. May start the disc.
[[nodiscard]] bool isReadable(const std::string &path);

// The same of a device alone.
[[nodiscard]] Medium deviceMedium(const std::string &path);
[[nodiscard]] bool isDeviceReadable(const std::string &path);

} // namespace DriveControl
