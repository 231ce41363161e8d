#include "ListReader.h"

#include "TextFold.h"

#include <QDebug>

#include <algorithm>
#include <optional>

namespace {

struct FilterColumn {
    QLatin1String field;
    QLatin1String condition;
};

// A year that is not known holds no digit.
const FilterColumn kFilters[] = {
    {QLatin1String("country"), QLatin1String("country_search LIKE ? ESCAPE '\\'")},
    {QLatin1String("genre"), QLatin1String("genre_search LIKE ? ESCAPE '\\'")},
    {QLatin1String("year"), QLatin1String("year > 0 AND CAST(year AS TEXT) LIKE ? ESCAPE '\\'")},
};

const QLatin1String kSearch("search LIKE ? ESCAPE '\\'");

struct Query {
    QString text;
    QStringList values;
};

// value: folded.
void addCondition(Query *query, QLatin1String condition, const QString &value)
{
    query->text += QStringLiteral(" AND ") + condition;
    query->values << TextFold::containing(value);
}

void tellUnknownFields(const ListRequest &request)
{
    for (const FieldFilter &filter : request.filters) {
        const bool known =
            std::any_of(std::begin(kFilters), std::end(kFilters),
                        [&](const FilterColumn &column) { return filter.field == column.field; });
        if (!known)
            qWarning() << "[store] a list cannot be filtered by" << filter.field;
    }
}

Query queryFor(const ListSource &source, const ListRequest &request)
{
    Query query{QStringLiteral("SELECT %1 FROM %2 WHERE %3").arg(source.id, source.tables, source.condition),
                source.values};
    // All must hold, so the same conditions in another order or said twice are the same list.
    for (const FilterColumn &column : kFilters) {
        QStringList values;
        for (const FieldFilter &filter : request.filters) {
            if (filter.field == column.field)
                values << TextFold::folded(filter.value);
        }
        values.sort();
        values.removeDuplicates();
        for (const QString &value : qAsConst(values))
            addCondition(&query, column.condition, value);
    }
    tellUnknownFields(request);
    if (!request.pattern.isEmpty())
        addCondition(&query, kSearch, TextFold::folded(request.pattern));
    const QString column = source.columns.value(
        request.sort, source.columns.value(SortMethod::Title, QStringLiteral("sort_title")));
    query.text +=
        QStringLiteral(" ORDER BY %1 %2, %3")
            .arg(column, request.ascending ? QStringLiteral("ASC") : QStringLiteral("DESC"), source.ties);
    return query;
}

// Names and values are kept apart by a character that no text of a request can fake together with its length.
QString keyOf(const ListSource &source, const Query &query)
{
    QString key = source.name + query.text;
    for (const QString &value : query.values)
        key += QStringLiteral("\n%1:%2").arg(value.size()).arg(value);
    return key;
}

} // namespace

ListReader::ListReader(const Database &database)
    : m_database(database)
{
}

ListOrders::Ids ListReader::ids(const ListSource &source, const ListRequest &request) const
{
    Connection &connection = m_database.reader();
    // Versions only grow, so their sum tells every change. It is read before the order is: an order of later
    // data under an earlier version is made anew once too often, never once too seldom.
    qint64 version = 0;
    for (const Counters::Area area : source.areas)
        version += Counters::version(connection, area);
    const Query query = queryFor(source, request);
    return m_orders.ids(keyOf(source, query), version, [&]() -> std::optional<QVector<int>> {
        Statement statement = connection.prepare(query.text);
        for (const QString &value : query.values)
            statement.bind(value);
        if (!statement.execute())
            return std::nullopt;
        QVector<int> made;
        while (statement.next())
            made << statement.integer(0);
        return made;
    });
}

QString ListReader::keyCondition(int count)
{
    QString marks = QStringLiteral("?");
    for (int mark = 1; mark < count; ++mark)
        marks += QStringLiteral(", ?");
    return QStringLiteral(" WHERE id IN (%1)").arg(marks);
}
