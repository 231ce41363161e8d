// Brings what a library stands on into the process, one small library after the other.
//
// The linker holds its lock for as long as one call to it takes, and who starts a thread meanwhile waits:
// loaded at once, a library with some hundred others below it stops the whole program for a tenth of a
// second. Loaded from below it is also found faster, since each looks for its names among fewer. Stateless;
// any thread.
#pragma once

#include <QString>
#include <QStringList>

namespace LibraryNeeds {

// The names of all that a library needs, each behind what it needs itself, without the library's own. What
// cannot be read, or does not lie in the system's folder, has no needs. Empty where the system gains nothing
// by it.
[[nodiscard]] QStringList inOrder(const QString &file);

// Loads them. What fails is left to the load of the library itself to tell.
void load(const QString &file);

} // namespace LibraryNeeds
