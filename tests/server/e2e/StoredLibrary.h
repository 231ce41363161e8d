// Large libraries put straight into the database of a server that does not run: what a scan would have found,
// without the files.
//
// A failure of the database gives false, with the reason in the log.
#pragma once

#include <QString>

namespace StoredLibrary {

// So many films in folders of their own below the folder, with texts as long as a provider's.
[[nodiscard]] bool addFilms(const QString &dataFolder, const QString &folder, int count);
// So many songs, ten an album.
[[nodiscard]] bool addSongs(const QString &dataFolder, const QString &folder, int count);

} // namespace StoredLibrary
