// What a record knows of its file besides size and time, as a text that is the same for the same file. Empty
// where it knows nothing.
#pragma once

#include "records/ScanRecords.h"

#include <QString>

namespace ContentKey {

[[nodiscard]] QString ofSong(const ScannedSong &song);
[[nodiscard]] QString ofVideo(const ScannedVideo &video);

} // namespace ContentKey
