// Names and files that a scan must survive: written into a folder of a library beside what is sound.
#pragma once

#include <QString>
#include <QStringList>

namespace HostileTree {

// Names that a file system allows and few expect, without a suffix.
[[nodiscard]] QStringList names();
// A folder below the given one whose path has nearly as many bytes as the system takes in one call; made on
// the way. Empty where it cannot be made.
[[nodiscard]] QString deepFolder(const QString &folder);
// A file with a name that is no text in UTF-8.
[[nodiscard]] bool writeUndecodable(const QString &folder, const QByteArray &content);

// Broken files, a pipe and links that lead astray. outside: a folder beside the library that a link leads to.
void makeBroken(const QString &folder, const QString &outside);

} // namespace HostileTree
