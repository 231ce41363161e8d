#include "MusicLists.h"

#include "TextFold.h"
#include "TextLists.h"

#include <algorithm>

namespace {

const RowTable<SongRecord> &songTable()
{
    static const RowTable<SongRecord> table(QStringLiteral("songs"), {{"id", &SongRecord::idFile},
                                                                      {"title", &SongRecord::title},
                                                                      {"artist", &SongRecord::artist},
                                                                      {"genre", &SongRecord::genre},
                                                                      {"poster", &SongRecord::poster},
                                                                      {"album", &SongRecord::album},
                                                                      {"path", &SongRecord::path},
                                                                      {"suffix", &SongRecord::suffix},
                                                                      {"cue_path", &SongRecord::cuePath},
                                                                      {"runtime", &SongRecord::runtime},
                                                                      {"year", &SongRecord::year},
                                                                      {"track", &SongRecord::iTrack},
                                                                      {"liked", &SongRecord::liked}});
    return table;
}

const RowTable<AlbumRecord> &albumTable()
{
    static const RowTable<AlbumRecord> table(
        QStringLiteral("albums"),
        {{"id", &AlbumRecord::idAlbum},
         {"title", &AlbumRecord::title},
         {"artist", &AlbumRecord::artist},
         {"genre", &AlbumRecord::genre},
         {"CASE WHEN user_poster <> '' THEN user_poster ELSE poster END", &AlbumRecord::poster},
         {"CASE WHEN year > 0 THEN CAST(year AS TEXT) ELSE '' END", &AlbumRecord::year}});
    return table;
}

QMap<SortMethod, QString> songColumns()
{
    return {{SortMethod::Title, QStringLiteral("sort_title")},
            {SortMethod::Year, QStringLiteral("year")},
            {SortMethod::DateAdded, QStringLiteral("added")},
            {SortMethod::ModifiedTime, QStringLiteral("modified")}};
}

ListSource songSource(const QString &name)
{
    ListSource source;
    source.name = name;
    source.tables = QStringLiteral("songs");
    source.condition = QStringLiteral("missing_since = 0");
    source.areas = {Counters::Area::Music};
    source.columns = songColumns();
    return source;
}

// Narrowed by what another index knows: the plus keeps the database from walking through all songs by the
// order of the whole list instead.
const QLatin1String kPresent("+missing_since = 0");

// The songs of another table's rows.
ListSource joined(const QString &name, const QString &table)
{
    ListSource source = songSource(name);
    source.tables = QStringLiteral("songs JOIN %1 AS part ON part.song_id = songs.id").arg(table);
    source.condition = kPresent;
    source.id = QStringLiteral("songs.id");
    source.ties = QStringLiteral("sort_title, songs.id");
    return source;
}

// The songs that the other table has under a name.
ListSource named(const QString &name, const QString &table, const QString &value)
{
    ListSource source = joined(name, table);
    source.condition += QStringLiteral(" AND part.name_key = ?");
    source.values << TextFold::nameKey(value);
    return source;
}

ListSource albumSource(int idAlbum)
{
    ListSource source = songSource(QStringLiteral("album"));
    source.condition = kPresent + QStringLiteral(" AND album_id = ?");
    source.values << QString::number(idAlbum);
    source.ties = QStringLiteral("disc, track_number, track, sort_title, id");
    return source;
}

ListSource artistSource(const QString &artist)
{
    return named(QStringLiteral("artist"), QStringLiteral("song_artists"), artist);
}

ListSource genreSource(const QString &genre)
{
    return named(QStringLiteral("genre"), QStringLiteral("song_genres"), genre);
}

} // namespace

MusicLists::MusicLists(const Database &database)
    : m_database(database)
    , m_reader(database)
{
}

Page<SongRecord> MusicLists::songPage(const ListSource &source, const ListRequest &request) const
{
    return m_reader.page(source, request, songTable(), &SongRecord::idFile);
}

Page<SongRecord> MusicLists::songs(const ListRequest &request) const
{
    return songPage(songSource(QStringLiteral("songs")), request);
}

Page<SongRecord> MusicLists::recentSongs(const ListRequest &request) const
{
    ListSource source = joined(QStringLiteral("recent"), QStringLiteral("recent_songs"));
    source.areas << Counters::Area::Recent;
    source.columns[SortMethod::ModifiedTime] = QStringLiteral("part.position");
    return songPage(source, request);
}

Page<SongRecord> MusicLists::playlistSongs(int idPlayList, const ListRequest &request) const
{
    ListSource source = joined(QStringLiteral("playlist"), QStringLiteral("playlist_songs"));
    source.condition += QStringLiteral(" AND part.playlist_id = ?");
    source.values << QString::number(idPlayList);
    source.areas << Counters::Area::Playlists;
    source.columns[SortMethod::DateAdded] = QStringLiteral("part.position");
    return songPage(source, request);
}

Page<SongRecord> MusicLists::albumSongs(int idAlbum, const ListRequest &request) const
{
    return songPage(albumSource(idAlbum), request);
}

Page<SongRecord> MusicLists::artistSongs(const QString &artist, const ListRequest &request) const
{
    return songPage(artistSource(artist), request);
}

Page<SongRecord> MusicLists::genreSongs(const QString &genre, const ListRequest &request) const
{
    return songPage(genreSource(genre), request);
}

Page<AlbumRecord> MusicLists::albums(const ListRequest &request) const
{
    ListSource source;
    source.name = QStringLiteral("albums");
    source.tables = QStringLiteral("albums");
    source.condition = QStringLiteral("songs > 0");
    source.areas = {Counters::Area::Music};
    source.columns = {{SortMethod::Title, QStringLiteral("sort_title")},
                      {SortMethod::Year, QStringLiteral("year")},
                      {SortMethod::DateAdded, QStringLiteral("added")}};
    return m_reader.page(source, request, albumTable(), &AlbumRecord::idAlbum);
}

QVector<ArtistRecord> MusicLists::artists() const
{
    // One row for each song of each artist, the cover of the first with one is the artist's picture.
    Statement read = m_database.reader().prepare(
        QStringLiteral("SELECT song_artists.name, songs.poster, artist_pictures.poster FROM song_artists "
                       "JOIN songs ON songs.id = song_artists.song_id AND songs.missing_since = 0 "
                       "LEFT JOIN artist_pictures ON artist_pictures.name_key = song_artists.name_key "
                       "ORDER BY song_artists.name_key, songs.year, songs.album_id, songs.disc, "
                       "songs.track_number, songs.id"));
    QVector<ArtistRecord> artists;
    QString lastKey;
    if (!read.run())
        return artists;
    while (read.next()) {
        const QString name = read.text(0);
        const QString key = TextFold::nameKey(name);
        if (artists.isEmpty() || key != lastKey)
            artists << ArtistRecord{name, read.text(2)};
        lastKey = key;
        if (artists.last().localPath.isEmpty())
            artists.last().localPath = read.text(1);
    }
    std::stable_sort(artists.begin(), artists.end(),
                     [](const ArtistRecord &first, const ArtistRecord &second) {
                         return TextFold::folded(first.name) < TextFold::folded(second.name);
                     });
    return artists;
}

QStringList MusicLists::genres() const
{
    Statement read = m_database.reader().prepare(
        QStringLiteral("SELECT DISTINCT song_genres.name FROM song_genres "
                       "JOIN songs ON songs.id = song_genres.song_id AND songs.missing_since = 0 "
                       "ORDER BY song_genres.name"));
    QStringList names;
    if (read.run()) {
        while (read.next())
            names << read.text(0);
    }
    return TextLists::distinct(names);
}

SongRecord MusicLists::song(int idFile) const
{
    const std::vector<SongRecord> found =
        songTable().list(m_database.reader(), QStringLiteral("WHERE id = ? AND missing_since = 0"), idFile);
    return found.empty() ? SongRecord() : found.front();
}

QVector<int> MusicLists::albumIds(int idAlbum) const
{
    ListSource source = albumSource(idAlbum);
    source.columns[SortMethod::Title] = QStringLiteral("disc");
    return *m_reader.ids(source, {});
}

QVector<int> MusicLists::artistIds(const QString &artist) const
{
    return *m_reader.ids(artistSource(artist), {});
}

QVector<int> MusicLists::genreIds(const QString &genre) const
{
    return *m_reader.ids(genreSource(genre), {});
}
