// What the path of a source says by itself, without a look at the disk: its kind, what the user reads and
// where it lies. Stateless; any thread.
//
// A path is a file, a folder, a drive's letter, one of these behind "smb:" or "nfs:", or a cue sheet with its
// title in front ("3_/music/album.cue").
#pragma once

#include "core/CommonInfoManager.h"

#include <QString>

namespace QueuePath {

enum Kind : int { File = 0, Folder = 1, Disc = 2 };

// Longer ones are no paths.
inline constexpr int Longest = 4096;

[[nodiscard]] bool isUsable(const QString &path);
// The form that the queue keeps: a drive's root as its letter, everything else as it is.
[[nodiscard]] QString kept(const QString &path);
// What two paths to the same source have in common.
[[nodiscard]] QString key(const QString &path);

[[nodiscard]] Kind kindOf(const QString &path);
// It may have titles: a drive, a disc image or a folder.
[[nodiscard]] bool mayBeDisc(const QString &path);
[[nodiscard]] QString displayName(const QString &path);
// The folder that holds it, as the user writes it; empty for a drive.
[[nodiscard]] QString folderText(const QString &path);
// The ending in upper case, empty without one.
[[nodiscard]] QString typeText(const QString &path);
// What the file manager can show; empty where there is nothing of it on this computer.
[[nodiscard]] QString local(const QString &path);

// Whether it is there; waits for its drive. A drive's letter is taken as there, so that no disc is spun up.
[[nodiscard]] bool exists(const QString &path);

} // namespace QueuePath
