// Fills the copy of the music library from the server and tells the views of each record. Runs in the thread
// of the music role.
#pragma once

#include "MusicLists.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <functional>

class LibrarySignals;
class MusicCache;
class MusicProtocol;

class MusicLoader final {
public:
    using LibraryId = std::function<int()>;
    // Whether the load is to end: asked between two records.
    using Aborted = std::function<bool()>;

    // Everything that is referred to outlives this object.
    MusicLoader(const MusicProtocol &protocol, MusicCache &cache, LibrarySignals &notices,
                LibraryId libraryId);

    // Songs, recently played, playlists, albums, artists, genres, in this order. Blocks until all are
    // through.
    void load(const Aborted &aborted);

private:
    void loadSongs(int libraryId, const Aborted &aborted);
    void loadRecent(int libraryId, const Aborted &aborted);
    void loadPlaylists(int libraryId, const Aborted &aborted);
    void loadAlbums(int libraryId, const Aborted &aborted);
    void loadArtists(int libraryId, const Aborted &aborted);
    void loadGenres(int libraryId, const Aborted &aborted);
    [[nodiscard]] QStringList songsOf(const MusicListRow &row, int libraryId, const QJsonObject &owner,
                                      const Aborted &aborted) const;

    const MusicProtocol &m_protocol;
    MusicCache &m_cache;
    LibrarySignals &m_notices;
    const LibraryId m_libraryId;
};
