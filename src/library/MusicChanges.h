// Changes of the music library that the user asks for: a request and, where the server says yes, what it does
// to the player's copy and who is told. Called on any thread; blocks for the request. Ids are decimal texts.
#pragma once

#include "MusicProtocol.h"

#include <QString>
#include <QStringList>

class LibraryRoots;
class LibrarySignals;
class MusicCache;

class MusicChanges final {
public:
    // Everything that is referred to outlives this object.
    MusicChanges(const MusicProtocol &protocol, LibraryRoots &roots, MusicCache &cache,
                 LibrarySignals &notices)
        : m_protocol(protocol)
        , m_roots(roots)
        , m_cache(cache)
        , m_notices(notices)
    {
    }

    bool addPath(const QString &path);
    // False for a folder that is not the library's, without a request. The caller loads the music anew.
    bool deletePath(const QString &path);

    // The new playlist's id; empty when it was not made.
    QString createPlaylist(const QString &poster, const QString &title, const QString &overview);
    bool fixPlaylist(const QString &id, const QString &poster, const QString &title, const QString &overview);
    bool deletePlaylist(const QString &id, bool deleteFiles);
    bool addToPlaylist(const QString &playlist, const QString &song);
    bool removeFromPlaylist(const QString &playlist, const QString &song, bool deleteFile);

    bool fixAlbum(const QString &id, const QString &poster);
    bool fixArtist(const QString &name, const QString &poster);
    bool editSong(const QString &id, const MusicProtocol::SongTexts &texts);
    bool like(const QString &id);
    bool unlike(const QString &id);
    bool deleteSongs(const QStringList &ids, bool deleteFiles);
    bool deleteArtist(const QString &name, bool deleteFiles);
    bool deleteGenre(const QString &name, bool deleteFiles);
    bool deleteAlbum(const QString &id, bool deleteFiles);

private:
    const MusicProtocol &m_protocol;
    LibraryRoots &m_roots;
    MusicCache &m_cache;
    LibrarySignals &m_notices;
};
