// The folders of discs, and the pseudo file that stands for a whole disc on the wire.
//
// A disc is one item: its path is that of the folder that holds the structure, with a pseudo file that tells
// which one it is. Pure; any thread.
#pragma once

#include <QString>
#include <QStringList>

namespace DiscStructure {

// The name is that of a disc's own folder (VIDEO_TS, BDMV, ...), whose files are no items of their own.
[[nodiscard]] bool isStructure(const QString &folderName);

// The pseudo file ("folder.ifo") for a structure with these entries, or empty where they make no disc. An
// AVCHD camera's BDMV is told from a Blu-ray's by its index.bdm.
[[nodiscard]] QString pseudoFile(const QString &folderName, const QStringList &entries);

// "VIDEO_TS.IFO" of a DVD whose files lie in a folder of another name.
[[nodiscard]] bool isLooseIndex(const QString &fileName);
// The other files of such a DVD.
[[nodiscard]] bool isLooseContent(const QString &fileName);

} // namespace DiscStructure
