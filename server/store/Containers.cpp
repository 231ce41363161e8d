#include "Containers.h"

#include "Connection.h"
#include "Counters.h"

#include "records/ListRequest.h"

#include <algorithm>

// A plus before a column keeps SQLite from the index on it: without statistics it takes that of a whole list
// for as good as that of the one container, and each refresh would walk through the library.

namespace {

void take(QString *target, const QString &value)
{
    if (target->isEmpty())
        *target = value;
}

void takeYear(int *target, int year)
{
    if (year > 0 && (*target == 0 || year < *target))
        *target = year;
}

} // namespace

void Containers::addVideo(int showId, int groupId)
{
    m_videos = true;
    if (showId > 0)
        m_shows.insert(showId);
    if (groupId > 0)
        m_collections.insert(groupId);
}

void Containers::addCollection(int groupId)
{
    addVideo(0, groupId);
}

void Containers::addAlbum(int albumId)
{
    m_songs = true;
    if (albumId > 0)
        m_albums.insert(albumId);
}

bool Containers::refresh(Connection &connection) const
{
    const auto all = [&connection](const QSet<int> &ids, bool (*refreshOne)(Connection &, int)) {
        return std::all_of(ids.begin(), ids.end(), [&](int id) { return refreshOne(connection, id); });
    };
    return all(m_shows, &refreshShow) && all(m_collections, &refreshCollection)
           && all(m_albums, &refreshAlbum)
           && (!m_videos || Counters::raise(connection, Counters::Area::Video))
           && (!m_songs || Counters::raise(connection, Counters::Area::Music));
}

bool Containers::refreshShow(Connection &connection, int id)
{
    int episodes = 0;
    qint64 added = 0;
    {
        // The newest episode brings a show to the front of what was added last.
        Statement read = connection.prepare(
            QStringLiteral("SELECT COUNT(*), MAX(added) FROM items "
                           "WHERE show_id = ? AND +kind = ? AND +missing_since = 0 AND +lead_id = 0"));
        if (!read.run(id, static_cast<int>(Role::TvShows)) || !read.next())
            return false;
        episodes = read.integer(0);
        added = read.number(1);
    }
    return connection.prepare(QStringLiteral("UPDATE shows SET episodes = ?, added = ? WHERE id = ?"))
        .run(episodes, added, id);
}

bool Containers::refreshCollection(Connection &connection, int id)
{
    int movies = 0;
    int year = 0;
    qint64 added = 0;
    double rating = 0;
    QString poster;
    QString backdrop;
    {
        // Pictures of its own go before those of its films.
        Statement own = connection.prepare(
            QStringLiteral("SELECT own_poster, own_backdrop FROM collections WHERE id = ?"));
        if (!own.run(id))
            return false;
        if (own.next()) {
            poster = own.text(0);
            backdrop = own.text(1);
        }
    }
    {
        Statement read = connection.prepare(
            QStringLiteral("SELECT year, added, rating_value, poster, backdrop FROM items "
                           "WHERE group_id = ? AND +kind = ? AND +missing_since = 0 AND +lead_id = 0 "
                           "ORDER BY year, sort_title, id"));
        if (!read.run(id, static_cast<int>(Role::Movies)))
            return false;
        while (read.next()) {
            ++movies;
            takeYear(&year, read.integer(0));
            added = qMax(added, read.number(1));
            rating = qMax(rating, read.real(2));
            take(&poster, read.text(3));
            take(&backdrop, read.text(4));
        }
    }
    return connection
        .prepare(QStringLiteral("UPDATE collections SET movies = ?, year = ?, added = ?, rating_value = ?, "
                                "poster = ?, backdrop = ? WHERE id = ?"))
        .run(movies, year, added, rating, poster, backdrop, id);
}

bool Containers::refreshAlbum(Connection &connection, int id)
{
    int songs = 0;
    int year = 0;
    qint64 added = 0;
    QString genre;
    QString poster;
    {
        Statement read =
            connection.prepare(QStringLiteral("SELECT year, added, genre, poster FROM songs "
                                              "WHERE album_id = ? AND +missing_since = 0 "
                                              "ORDER BY disc, track_number, track, sort_title, id"));
        if (!read.run(id))
            return false;
        while (read.next()) {
            ++songs;
            takeYear(&year, read.integer(0));
            added = qMax(added, read.number(1));
            take(&genre, read.text(2));
            take(&poster, read.text(3));
        }
    }
    return connection
        .prepare(QStringLiteral(
            "UPDATE albums SET songs = ?, year = ?, added = ?, genre = ?, poster = ? WHERE id = ?"))
        .run(songs, year, added, genre, poster, id);
}

bool Containers::dropEmpty(Connection &connection)
{
    const QString statements[] = {
        QStringLiteral("DELETE FROM seasons WHERE NOT EXISTS (SELECT 1 FROM items "
                       "WHERE items.show_id = seasons.show_id AND items.season = seasons.number)"),
        QStringLiteral(
            "DELETE FROM shows WHERE NOT EXISTS (SELECT 1 FROM items WHERE items.show_id = shows.id)"),
        QStringLiteral("DELETE FROM collections WHERE NOT EXISTS "
                       "(SELECT 1 FROM items WHERE items.group_id = collections.id)"),
        QStringLiteral(
            "DELETE FROM albums WHERE NOT EXISTS (SELECT 1 FROM songs WHERE songs.album_id = albums.id)"),
    };
    return std::all_of(std::begin(statements), std::end(statements),
                       [&connection](const QString &statement) { return connection.execute(statement); });
}
