// Paths of what a folder holds.
#pragma once

#include "WalkedFolder.h"

namespace FolderPaths {

[[nodiscard]] inline QString child(const WalkedFolder &folder, const QString &name)
{
    return folder.path.endsWith(QLatin1Char('/')) ? folder.path + name
                                                  : folder.path + QLatin1Char('/') + name;
}

[[nodiscard]] inline QString child(const WalkedFolder &folder, const FolderEntry &entry)
{
    return child(folder, entry.name);
}

} // namespace FolderPaths
