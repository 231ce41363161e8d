// Names that differ between the platforms without any call to the system: file names and where marker files
// lie.
#pragma once

#include <QString>

namespace PlatformNames {

// The file name of a program: "Update" gives "Update.exe" on Windows and "Update" elsewhere.
[[nodiscard]] QString programFile(const QString &baseName);

// What stands behind the application folder to form the folder of the translations.
[[nodiscard]] QString languageFolderSuffix();

// Where a marker file named by its place on Windows ("D:/debugHotKey.txt") is looked for on this machine.
[[nodiscard]] QString markerFile(const QString &drivePath, const QString &dataFolder);

// How this system's own file systems compare names.
[[nodiscard]] Qt::CaseSensitivity pathCase();

} // namespace PlatformNames
