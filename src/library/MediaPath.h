// Where an item of the library lies on the disk. Pure function.
#pragma once

#include <QString>

namespace MediaPath {

// The server marks a disc folder by a file in it that does not exist; that ending is taken off. Every other
// path comes back as it is.
[[nodiscard]] QString resolveMediaPath(const QString &path);

} // namespace MediaPath
