#include "ShowTable.h"

#include "Connection.h"
#include "Counters.h"
#include "DescriptionLayers.h"
#include "StoredJson.h"
#include "TextFold.h"
#include "VideoRows.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace {

// Shows that no folder stands for have a key that no path looks like.
const QLatin1String kChosenKey("chosen:%1");

int nextId(Connection &connection, const QString &counter)
{
    return static_cast<int>(Counters::take(connection, counter));
}

bool write(Connection &connection, ShowRow *row)
{
    const Description scanned = StoredJson::description(row->scanned);
    const Description provided = StoredJson::description(row->provided);
    row->describe(DescriptionLayers::withProvided(scanned, row->wants, provided),
                  QFileInfo(row->path).fileName());
    if (row->id == 0)
        row->id = nextId(connection, QStringLiteral("shows"));
    return row->id > 0 && ShowRow::table().write(connection, *row);
}

SeasonRow season(Connection &connection, int showId, int number)
{
    const std::vector<SeasonRow> rows = SeasonRow::table().list(
        connection, QStringLiteral("WHERE show_id = ? AND number = ?"), showId, number);
    if (!rows.empty())
        return rows.front();
    SeasonRow row;
    row.showId = showId;
    row.number = number;
    return row;
}

bool write(Connection &connection, SeasonRow *row)
{
    const Description description = DescriptionLayers::over(StoredJson::description(row->scanned),
                                                            StoredJson::description(row->provided));
    row->title = description.title;
    row->year = description.year;
    row->director = description.director;
    row->cast = description.cast;
    row->overview = description.overview;
    row->poster = description.poster;
    if (row->id == 0)
        row->id = nextId(connection, QStringLiteral("seasons"));
    return row->id > 0 && SeasonRow::table().write(connection, *row);
}

bool writeSeasons(Connection &connection, int showId, const QMap<int, Description> &seasons,
                  QString SeasonRow::*source)
{
    for (auto number = seasons.begin(); number != seasons.end(); ++number) {
        SeasonRow row = season(connection, showId, number.key());
        row.*source = StoredJson::ofDescription(number.value());
        if (!write(connection, &row))
            return false;
    }
    return true;
}

Description sources(const ShowRow &row)
{
    return DescriptionLayers::over(StoredJson::description(row.scanned),
                                   StoredJson::description(row.provided));
}

} // namespace

int ShowTable::idOf(Connection &connection, const QString &key)
{
    ShowRow row = ShowRow::table().findBy(connection, QStringLiteral("show_key"), key);
    if (row.id > 0)
        return row.id;
    row.key = key;
    row.path = key;
    row.wants = true;
    return write(connection, &row) ? row.id : 0;
}

int ShowTable::idOf(Connection &connection, const Description &chosen, const QString &folder)
{
    const std::vector<ShowRow> shows = ShowRow::table().list(connection, QStringLiteral("ORDER BY id"));
    int sameTitle = 0;
    for (const ShowRow &show : shows) {
        switch (DescriptionLayers::compare(sources(show), chosen)) {
        case DescriptionLayers::Identity::Same:
            return show.id;
        case DescriptionLayers::Identity::Unknown:
            if (sameTitle == 0 && TextFold::folded(show.title) == TextFold::folded(chosen.title)
                && (show.year == 0 || chosen.year == 0 || show.year == chosen.year))
                sameTitle = show.id;
            break;
        case DescriptionLayers::Identity::Different:
            break;
        }
    }
    if (sameTitle > 0)
        return sameTitle;
    ShowRow row;
    row.id = nextId(connection, QStringLiteral("shows"));
    row.key = QString(kChosenKey).arg(row.id);
    row.path = folder;
    row.wants = true;
    row.tried = true;
    row.scanned = StoredJson::ofDescription(chosen);
    return write(connection, &row) ? row.id : 0;
}

bool ShowTable::store(Connection &connection, const ScannedShow &show)
{
    ShowRow row = ShowRow::table().findBy(connection, QStringLiteral("show_key"), show.key);
    row.key = show.key;
    row.path = show.key;
    // A sidecar tells at least one of these; a folder's name does not.
    row.wants = show.description.overview.isEmpty() && show.description.genre.isEmpty()
                && show.description.rating.isEmpty();
    const QString scanned = StoredJson::ofDescription(show.description);
    if (row.scanned != scanned)
        row.tried = false;
    row.scanned = scanned;
    return write(connection, &row) && writeSeasons(connection, row.id, show.seasons, &SeasonRow::scanned);
}

bool ShowTable::describe(Connection &connection, int id, const Description &description,
                         const QMap<int, Description> &seasons)
{
    ShowRow row = ShowRow::table().find(connection, id);
    if (row.id == 0
        || DescriptionLayers::compare(StoredJson::description(row.scanned), description)
               == DescriptionLayers::Identity::Different)
        return false;
    row.provided = StoredJson::ofDescription(description);
    row.tried = true;
    return write(connection, &row) && writeSeasons(connection, id, seasons, &SeasonRow::provided);
}

bool ShowTable::ensureSeason(Connection &connection, int showId, int number)
{
    SeasonRow row = season(connection, showId, number);
    return row.id > 0 || write(connection, &row);
}

bool ShowTable::forgetProvided(Connection &connection, int root)
{
    const char *const statements[] = {
        "UPDATE shows SET provided = '', tried = 0 WHERE id IN (SELECT show_id FROM items WHERE root = ?)",
        "UPDATE seasons SET provided = '' WHERE show_id IN (SELECT show_id FROM items WHERE root = ?)",
        "UPDATE items SET provided = '', tried = 0 WHERE root = ?",
    };
    return std::all_of(std::begin(statements), std::end(statements), [&](const char *statement) {
        return connection.prepare(QString::fromLatin1(statement)).run(root);
    });
}
