// The drives of this machine under their letters.
#pragma once

#include "DriveLetters.h"

namespace MachineDrives {

[[nodiscard]] QVector<Drive> list();

// The name of the medium in a drive of the list; empty when there is none.
[[nodiscard]] QString volumeLabel(const Drive &drive);

} // namespace MachineDrives
