#include "MusicLibrary.h"

#include "Database.h"
#include "FileTable.h"
#include "PlaylistTable.h"
#include "SongRows.h"
#include "SongWriter.h"
#include "TextFold.h"

#include <functional>

namespace {

using Urgency = Database::Urgency;

// A song that is there to be changed; a missing one stands in no list.
SongRow presentSong(Connection &connection, int id)
{
    const SongRow row = SongRow::table().find(connection, id);
    return row.id == id && row.missingSince == 0 ? row : SongRow();
}

bool changeSong(Connection &connection, int id, const std::function<void(SongRow *)> &change)
{
    SongRow row = presentSong(connection, id);
    if (row.id == 0)
        return false;
    change(&row);
    SongWriter writer(connection);
    return writer.write(&row) && writer.finish();
}

} // namespace

MusicLibrary::MusicLibrary(const Database &database)
    : m_database(database)
    , m_lists(database)
{
}

Page<SongRecord> MusicLibrary::songs(const ListRequest &request) const
{
    return m_lists.songs(request);
}

Page<SongRecord> MusicLibrary::recentSongs(const ListRequest &request) const
{
    return m_lists.recentSongs(request);
}

Page<SongRecord> MusicLibrary::playlistSongs(int idPlayList, const ListRequest &request) const
{
    return m_lists.playlistSongs(idPlayList, request);
}

Page<SongRecord> MusicLibrary::albumSongs(int idAlbum, const ListRequest &request) const
{
    return m_lists.albumSongs(idAlbum, request);
}

Page<SongRecord> MusicLibrary::artistSongs(const QString &artist, const ListRequest &request) const
{
    return m_lists.artistSongs(artist, request);
}

Page<SongRecord> MusicLibrary::genreSongs(const QString &genre, const ListRequest &request) const
{
    return m_lists.genreSongs(genre, request);
}

Page<AlbumRecord> MusicLibrary::albums(const ListRequest &request) const
{
    return m_lists.albums(request);
}

QVector<ArtistRecord> MusicLibrary::artists() const
{
    return m_lists.artists();
}

QStringList MusicLibrary::genres() const
{
    return m_lists.genres();
}

QVector<PlaylistRecord> MusicLibrary::playlists() const
{
    return PlaylistTable::all(m_database.reader());
}

SongRecord MusicLibrary::song(int idFile) const
{
    return m_lists.song(idFile);
}

int MusicLibrary::createPlaylist(const PlaylistRecord &playlist)
{
    int id = -1;
    const bool stored = m_database.write(Urgency::User, [&](Connection &connection) {
        id = PlaylistTable::create(connection, playlist);
        return id > 0;
    });
    return stored ? id : -1;
}

bool MusicLibrary::changePlaylist(const PlaylistRecord &playlist)
{
    return m_database.write(
        Urgency::User, [&](Connection &connection) { return PlaylistTable::change(connection, playlist); });
}

bool MusicLibrary::removePlaylist(int idPlayList)
{
    return m_database.write(
        Urgency::User, [&](Connection &connection) { return PlaylistTable::remove(connection, idPlayList); });
}

bool MusicLibrary::addToPlaylist(int idPlayList, int idFile)
{
    return m_database.write(Urgency::User, [&](Connection &connection) {
        return presentSong(connection, idFile).id > 0
               && PlaylistTable::addSong(connection, idPlayList, idFile);
    });
}

bool MusicLibrary::removeFromPlaylist(int idPlayList, int idFile)
{
    return m_database.write(Urgency::User, [&](Connection &connection) {
        return PlaylistTable::removeSong(connection, idPlayList, idFile);
    });
}

bool MusicLibrary::setLiked(int idFile, bool liked)
{
    return m_database.write(Urgency::User, [&](Connection &connection) {
        Statement update = connection.prepare(
            QStringLiteral("UPDATE songs SET liked = ? WHERE id = ? AND missing_since = 0"));
        return update.run(liked ? 1 : 0, idFile) && update.changed() == 1;
    });
}

bool MusicLibrary::notePlayed(int idFile)
{
    return m_database.write(Urgency::User, [&](Connection &connection) {
        return presentSong(connection, idFile).id > 0 && PlaylistTable::notePlayed(connection, idFile);
    });
}

bool MusicLibrary::editSong(const SongRecord &song)
{
    return m_database.write(Urgency::User, [&](Connection &connection) {
        return changeSong(connection, song.idFile, [&song](SongRow *row) { row->edit(song); });
    });
}

bool MusicLibrary::restoreSong(int idFile)
{
    return m_database.write(Urgency::User, [&](Connection &connection) {
        return changeSong(connection, idFile, [](SongRow *row) { row->edited.clear(); });
    });
}

bool MusicLibrary::setAlbumPoster(int idAlbum, const QString &poster)
{
    return m_database.write(Urgency::User, [&](Connection &connection) {
        Statement update =
            connection.prepare(QStringLiteral("UPDATE albums SET user_poster = ? WHERE id = ?"));
        return update.run(poster, idAlbum) && update.changed() == 1;
    });
}

bool MusicLibrary::setArtistPoster(const QString &artist, const QString &poster)
{
    return m_database.write(Urgency::User, [&](Connection &connection) {
        const QString key = TextFold::nameKey(artist);
        {
            Statement known =
                connection.prepare(QStringLiteral("SELECT 1 FROM song_artists WHERE name_key = ? LIMIT 1"));
            if (!known.run(key) || !known.next())
                return false;
        }
        return connection
            .prepare(QStringLiteral("INSERT INTO artist_pictures (name_key, poster) VALUES (?, ?) "
                                    "ON CONFLICT (name_key) DO UPDATE SET poster = excluded.poster"))
            .run(key, poster);
    });
}

QStringList MusicLibrary::filesOf(int idFile) const
{
    const SongRecord known = song(idFile);
    QStringList files;
    for (const QString &file : {known.path, known.cuePath}) {
        if (!file.isEmpty())
            files << file;
    }
    return files;
}

QVector<int> MusicLibrary::songIdsOfAlbum(int idAlbum) const
{
    return m_lists.albumIds(idAlbum);
}

QVector<int> MusicLibrary::songIdsOfArtist(const QString &artist) const
{
    return m_lists.artistIds(artist);
}

QVector<int> MusicLibrary::songIdsOfGenre(const QString &genre) const
{
    return m_lists.genreIds(genre);
}

bool MusicLibrary::removeSongs(const QVector<int> &ids, Removal removal)
{
    bool allKnown = true;
    const bool stored = m_database.write(Urgency::User, [&](Connection &connection) {
        SongWriter writer(connection);
        for (const int id : ids) {
            const FileRow row = FileTable::songs().row(connection, id);
            if (row.id == 0)
                allKnown = false;
            else if (!FileTable::songs().remove(connection, row, removal, writer.containers()))
                return false;
        }
        return writer.finish();
    });
    return stored && allKnown;
}
