// The desktop entries of one user: the program's own, for a player that is not installed for the machine, the
// verb in the file manager's menus, and the one that plays inserted discs. Each is written in one step.
// Without state; safe on every thread.
#pragma once

#include <QString>
#include <QStringList>

namespace DesktopEntries {

// File names, by which the desktop knows them.
[[nodiscard]] QString programEntry();
[[nodiscard]] QString autoplayEntry();

// The types of media that the program opens, those of discs last.
[[nodiscard]] QStringList types();
// Those of them that files with this extension have on this desktop; empty where it knows none.
[[nodiscard]] QStringList typesOf(const QString &extension);
[[nodiscard]] QStringList discTypes();

// Sees to it that there is an entry that starts the program, and the verb with it. Writes nothing where the
// machine has one that works.
bool writeProgram();
bool removeProgram();
bool writeAutoplay();
bool removeAutoplay();

} // namespace DesktopEntries
