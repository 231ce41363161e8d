#include "MovieLists.h"

#include "TextLists.h"

#include <limits>

namespace {

const QLatin1String kListed("missing_since = 0 AND lead_id = 0");
// Of the films of a collection, which has an index of its own: the pluses keep the database from walking
// through all films by the order of the whole list instead.
const QLatin1String kInGroup("group_id = ? AND +kind = %1 AND +missing_since = 0 AND +lead_id = 0");

const RowTable<MovieRecord> &movieTable()
{
    static const RowTable<MovieRecord> table(QStringLiteral("items"), {{"id", &MovieRecord::idFile},
                                                                       {"title", &MovieRecord::title},
                                                                       {"rating", &MovieRecord::rating},
                                                                       {"runtime", &MovieRecord::runtime},
                                                                       {"director", &MovieRecord::director},
                                                                       {"actors", &MovieRecord::cast},
                                                                       {"genre", &MovieRecord::genre},
                                                                       {"overview", &MovieRecord::overview},
                                                                       {"poster", &MovieRecord::poster},
                                                                       {"backdrop", &MovieRecord::backdrop},
                                                                       {"path", &MovieRecord::path},
                                                                       {"year", &MovieRecord::year}});
    return table;
}

const RowTable<GroupRecord> &groupTable()
{
    static const RowTable<GroupRecord> table(QStringLiteral("collections"),
                                             {{"id", &GroupRecord::idGroup},
                                              {"title", &GroupRecord::title},
                                              {"poster", &GroupRecord::poster},
                                              {"backdrop", &GroupRecord::backdrop},
                                              {"overview", &GroupRecord::overview},
                                              {"movies", &GroupRecord::fileCount}});
    return table;
}

QMap<SortMethod, QString> sortColumns()
{
    return {{SortMethod::Title, QStringLiteral("sort_title")},
            {SortMethod::Year, QStringLiteral("year")},
            {SortMethod::DateAdded, QStringLiteral("added")},
            {SortMethod::Rating, QStringLiteral("rating_value")}};
}

ListSource itemSource(const QString &name, const QString &condition)
{
    ListSource source;
    source.name = name;
    source.tables = QStringLiteral("items");
    source.condition = condition;
    source.areas = {Counters::Area::Video};
    source.columns = sortColumns();
    return source;
}

// The rows that the filters of a role are made of.
QString filtered(Role role)
{
    if (role == Role::Movies)
        return QStringLiteral("items WHERE kind = %1 AND ").arg(static_cast<int>(role)) + kListed;
    if (role == Role::TvShows)
        return QStringLiteral("shows WHERE episodes > 0");
    return {};
}

QStringList texts(Connection &connection, const QString &column, Role role)
{
    QStringList values;
    const QString rows = filtered(role);
    if (rows.isEmpty())
        return values;
    Statement read = connection.prepare(QStringLiteral("SELECT DISTINCT %1 FROM %2").arg(column, rows));
    if (read.run()) {
        while (read.next())
            values << read.text(0);
    }
    values.sort();
    return values;
}

} // namespace

MovieLists::MovieLists(const Database &database)
    : m_database(database)
    , m_reader(database)
{
}

Page<MovieRecord> MovieLists::movies(Role role, const ListRequest &request) const
{
    if (role != Role::Movies && role != Role::Videos && role != Role::Adult)
        return {};
    return m_reader.page(itemSource(QStringLiteral("movies"),
                                    QStringLiteral("kind = %1 AND ").arg(static_cast<int>(role)) + kListed),
                         request, movieTable(), &MovieRecord::idFile);
}

MovieRecord MovieLists::movie(int idFile) const
{
    const std::vector<MovieRecord> found =
        movieTable().list(m_database.reader(), QStringLiteral("WHERE id = ? AND missing_since = 0"), idFile);
    return found.empty() ? MovieRecord() : found.front();
}

Page<GroupRecord> MovieLists::groups(const ListRequest &request) const
{
    ListSource source;
    source.name = QStringLiteral("groups");
    source.tables = QStringLiteral("collections");
    source.condition = QStringLiteral("movies > 0");
    source.areas = {Counters::Area::Video};
    source.columns = sortColumns();
    // A collection has no genre, country or year of its own.
    ListRequest unfiltered = request;
    unfiltered.filters.clear();
    return m_reader.page(source, unfiltered, groupTable(), &GroupRecord::idGroup);
}

QVector<MovieRecord> MovieLists::groupMovies(int idGroup, SortMethod sort, bool ascending) const
{
    ListRequest request;
    request.sort = sort;
    request.ascending = ascending;
    request.end = std::numeric_limits<int>::max();
    ListSource source =
        itemSource(QStringLiteral("group"), QString(kInGroup).arg(static_cast<int>(Role::Movies)));
    source.values << QString::number(idGroup);
    return m_reader.page(source, request, movieTable(), &MovieRecord::idFile).rows;
}

QStringList MovieLists::genres(Role role) const
{
    QStringList names;
    const QStringList values = texts(m_database.reader(), QStringLiteral("genre"), role);
    for (const QString &value : values)
        names << TextLists::genres(value);
    return TextLists::distinct(names);
}

QStringList MovieLists::countries(Role role) const
{
    QStringList names;
    const QStringList values = texts(m_database.reader(), QStringLiteral("country"), role);
    for (const QString &value : values)
        names << TextLists::countries(value);
    return TextLists::distinct(names);
}

QVector<int> MovieLists::years(Role role) const
{
    QVector<int> years;
    const QString rows = filtered(role);
    if (rows.isEmpty())
        return years;
    Statement read = m_database.reader().prepare(
        QStringLiteral("SELECT DISTINCT year FROM %1 AND year > 0 ORDER BY year").arg(rows));
    if (read.run()) {
        while (read.next())
            years << read.integer(0);
    }
    return years;
}
