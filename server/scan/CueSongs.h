// The songs that the CUE sheets of a folder tell of: each track is one, and lies in a sound file of the
// folder.
//
// The path of such a song is that of the sheet; its stamp is that of sheet and sound file together, so that a
// change of either is seen. Functions keep no state.
#pragma once

#include "FolderWork.h"

#include <QSet>
#include <QString>

namespace CueSongs {

// Adds the songs of all sheets to the folder, and what has to be opened for them. The names of the sound
// files that are divided.
[[nodiscard]] QSet<QString> add(FolderWork &work);

// Completes a song by what its sound file says: where the sheet was silent, and the length of the last track.
void complete(ScannedSong &song, const SoundTags &tags, const FileTask &task, bool isLast);

} // namespace CueSongs
