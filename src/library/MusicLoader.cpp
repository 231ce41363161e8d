#include "MusicLoader.h"

#include "JsonFields.h"
#include "LibrarySignals.h"
#include "MusicCache.h"
#include "MusicProtocol.h"
#include "MusicRecords.h"
#include "ProtocolNames.h"

#include <QDebug>
#include <QSet>

namespace Key = Rpc::Key;

namespace {

// Hands each entry with its key to take, until the load is to end. What has no key is left out.
void forEach(const QJsonArray &entries, const char *idKey, const MusicLoader::Aborted &aborted,
             const std::function<void(const QString &, const QJsonObject &)> &take)
{
    for (const QJsonValue &value : entries) {
        const QJsonObject object = value.toObject();
        const QString id = JsonFields::id(object, idKey);
        if (id.isEmpty())
            qInfo().noquote() << "[library] a music record without" << idKey;
        else
            take(id, object);
        if (aborted())
            return;
    }
}

} // namespace

MusicLoader::MusicLoader(const MusicProtocol &protocol, MusicCache &cache, LibrarySignals &notices,
                         LibraryId libraryId)
    : m_protocol(protocol)
    , m_cache(cache)
    , m_notices(notices)
    , m_libraryId(std::move(libraryId))
{
}

void MusicLoader::load(const Aborted &aborted)
{
    using Step = void (MusicLoader::*)(int, const Aborted &);
    static constexpr Step kSteps[]{&MusicLoader::loadSongs,     &MusicLoader::loadRecent,
                                   &MusicLoader::loadPlaylists, &MusicLoader::loadAlbums,
                                   &MusicLoader::loadArtists,   &MusicLoader::loadGenres};
    const int libraryId = m_libraryId();
    for (const Step step : kSteps) {
        if (aborted())
            return;
        (this->*step)(libraryId, aborted);
    }
}

void MusicLoader::loadSongs(int libraryId, const Aborted &aborted)
{
    m_cache.clearSongs();
    const int total = m_protocol.total(MusicLists::Songs, libraryId);
    forEach(m_protocol.entries(MusicLists::Songs, libraryId, total), Key::idFile, aborted,
            [this](const QString &id, const QJsonObject &object) {
                const MusicSong song = MusicRecords::song(object);
                m_cache.insertSong(id, song);
                emit m_notices.sig_musicSongLoaded(id);
                if (!song.like)
                    return;
                m_cache.setLiked(id, true);
                emit m_notices.sig_musicSongLikeChanged(id);
            });
}

void MusicLoader::loadRecent(int libraryId, const Aborted &aborted)
{
    const int total = m_protocol.total(MusicLists::RecentSongs, libraryId);
    m_cache.clearRecent();
    emit m_notices.sig_musicRecentClean();
    forEach(m_protocol.entries(MusicLists::RecentSongs, libraryId, total), Key::idFile, aborted,
            [this](const QString &id, const QJsonObject &) {
                m_cache.addRecent(id);
                emit m_notices.sig_musicRecentSongChanged(id);
            });
}

QStringList MusicLoader::songsOf(const MusicListRow &row, int libraryId, const QJsonObject &owner,
                                 const Aborted &aborted) const
{
    QStringList ids;
    QSet<QString> known;
    const int total = m_protocol.total(row, libraryId, owner);
    forEach(m_protocol.entries(row, libraryId, total, owner), Key::idFile, aborted,
            [&](const QString &id, const QJsonObject &) {
                if (known.contains(id))
                    return;
                known.insert(id);
                ids.append(id);
            });
    return ids;
}

void MusicLoader::loadPlaylists(int libraryId, const Aborted &aborted)
{
    m_cache.clearPlaylists();
    forEach(m_protocol.playlists(libraryId), Key::idPlayList, aborted,
            [&](const QString &id, const QJsonObject &object) {
                const MusicPlaylist playlist = MusicRecords::playlist(object);
                m_cache.insertPlaylist(id, playlist);
                const QStringList songs = songsOf(MusicLists::PlaylistSongs, libraryId,
                                                  MusicProtocol::ofPlaylist(playlist.idPlayList), aborted);
                m_cache.changePlaylist(id, [&](MusicPlaylist &stored) { stored.songs = songs; });
                emit m_notices.sig_musicPlaylistLoaded(id);
            });
}

void MusicLoader::loadAlbums(int libraryId, const Aborted &aborted)
{
    m_cache.clearAlbums();
    const int total = m_protocol.total(MusicLists::Albums, libraryId);
    forEach(m_protocol.entries(MusicLists::Albums, libraryId, total), Key::idAlbum, aborted,
            [&](const QString &id, const QJsonObject &object) {
                const MusicAlbum album = MusicRecords::album(object);
                m_cache.insertAlbum(id, album);
                const QStringList songs = songsOf(MusicLists::AlbumSongs, libraryId,
                                                  MusicProtocol::ofAlbum(album.idAlbum), aborted);
                m_cache.changeAlbum(id, [&](MusicAlbum &stored) { stored.songs = songs; });
                emit m_notices.sig_musicAlbumLoaded(id);
            });
}

void MusicLoader::loadArtists(int libraryId, const Aborted &aborted)
{
    m_cache.clearArtists();
    const QJsonArray artists = m_protocol.artists(libraryId);
    for (const QJsonValue &value : artists) {
        const MusicArtist artist = MusicRecords::artist(value.toObject());
        m_cache.insertArtist(artist);
        const QStringList songs =
            songsOf(MusicLists::ArtistSongs, libraryId, MusicProtocol::ofArtist(artist.name), aborted);
        m_cache.changeArtist(artist.name, [&](MusicArtist &stored) { stored.songs = songs; });
        emit m_notices.sig_musicArtistLoaded(artist.name);
        if (aborted())
            return;
    }
}

void MusicLoader::loadGenres(int libraryId, const Aborted &aborted)
{
    m_cache.clearGenres();
    const QJsonArray genres = m_protocol.genres(libraryId);
    for (const QJsonValue &value : genres) {
        const QString name = value.toString();
        m_cache.insertGenre({name, {}});
        const QStringList songs =
            songsOf(MusicLists::GenreSongs, libraryId, MusicProtocol::ofGenre(name), aborted);
        m_cache.changeGenre(name, [&](MusicGenre &stored) { stored.songs = songs; });
        emit m_notices.sig_musicGenresLoaded(name);
        if (aborted())
            return;
    }
}
