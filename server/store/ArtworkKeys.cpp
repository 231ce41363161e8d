#include "ArtworkKeys.h"

#include "Connection.h"
#include "Database.h"

#include <QStringList>

namespace {

struct Column {
    const char *table;
    const char *name;
};

// Each has an index. An album's own picture and that of a collection without one are those of a song and of a
// film.
constexpr Column columns[] = {
    {"items", "poster"},           {"items", "backdrop"},           {"songs", "poster"},
    {"shows", "poster"},           {"shows", "backdrop"},           {"seasons", "poster"},
    {"collections", "own_poster"}, {"collections", "own_backdrop"}, {"albums", "user_poster"},
    {"artist_pictures", "poster"}, {"playlists", "poster"},
};

} // namespace

const QString &ArtworkKeys::question()
{
    static const QString sql = [] {
        QStringList places;
        // Only texts that are not empty stand in the indexes, and the database wants to be told.
        for (const Column &column : columns)
            places << QStringLiteral("EXISTS (SELECT 1 FROM %1 WHERE %2 = ? AND %2 <> '')")
                          .arg(QLatin1String(column.table), QLatin1String(column.name));
        return QString(QStringLiteral("SELECT 1 WHERE ") + places.join(QStringLiteral(" OR ")));
    }();
    return sql;
}

bool ArtworkKeys::isNamed(const QString &key) const
{
    if (key.isEmpty())
        return false;
    Statement read = m_database.reader().prepare(question());
    for (std::size_t index = 0; index < std::size(columns); ++index)
        read.bind(key);
    return read.execute() && read.next();
}
