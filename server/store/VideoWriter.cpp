#include "VideoWriter.h"

#include "Connection.h"
#include "Counters.h"
#include "DescriptionLayers.h"
#include "ShowTable.h"
#include "StoredJson.h"
#include "TextFold.h"

#include <QFileInfo>

namespace {

int roleOf(ScannedVideo::Kind kind)
{
    switch (kind) {
    case ScannedVideo::Kind::Movie:
        return static_cast<int>(Role::Movies);
    case ScannedVideo::Kind::Episode:
        return static_cast<int>(Role::TvShows);
    case ScannedVideo::Kind::Adult:
        return static_cast<int>(Role::Adult);
    case ScannedVideo::Kind::Video:
        break;
    }
    return static_cast<int>(Role::Videos);
}

} // namespace

VideoWriter::VideoWriter(Connection &connection)
    : m_connection(connection)
{
}

bool VideoWriter::write(VideoRow *row)
{
    m_containers.addVideo(row->showId, row->groupId);
    const ScannedVideo scanned = row->scannedVideo();
    const bool isMatched = !row->matched.isEmpty();
    const GivenDescription given = StoredJson::given(isMatched ? row->matched : row->provided);
    row->wants = scanned.wantsMetadata;
    if (!place(row, scanned, isMatched ? given : GivenDescription()))
        return false;

    const QString collection =
        isMatched || scanned.collection.isEmpty() ? given.collection : scanned.collection;
    row->groupId = 0;
    if (row->kind == static_cast<int>(Role::Movies) && !collection.isEmpty()) {
        row->groupId = collectionId(collection, isMatched ? QString() : scanned.collectionOverview);
        if (row->groupId == 0)
            return false;
    }
    row->describe(isMatched ? DescriptionLayers::withMatched(scanned.description, given.description)
                            : DescriptionLayers::withProvided(scanned.description, scanned.wantsMetadata,
                                                              given.description),
                  QFileInfo(row->realPath).completeBaseName());
    m_containers.addVideo(row->showId, row->groupId);
    return VideoRow::table().write(m_connection, *row);
}

// Role, show and number in it.
bool VideoWriter::place(VideoRow *row, const ScannedVideo &scanned, const GivenDescription &matched)
{
    row->kind = roleOf(scanned.kind);
    row->showId = 0;
    row->season = scanned.season;
    row->episode = scanned.episode;
    row->lastEpisode = qMax(scanned.episode, scanned.lastEpisode);
    if (matched.showId > 0) {
        row->kind = static_cast<int>(Role::TvShows);
        row->showId = matched.showId;
        row->season = matched.season;
        row->episode = matched.episode;
        row->lastEpisode = matched.episode;
    } else if (!row->matched.isEmpty()) {
        // A film chosen for adult content does not come among the films of the house.
        if (scanned.kind != ScannedVideo::Kind::Adult)
            row->kind = static_cast<int>(Role::Movies);
    } else if (scanned.kind == ScannedVideo::Kind::Episode) {
        row->showId =
            ShowTable::idOf(m_connection, scanned.showKey.isEmpty() ? row->folder : scanned.showKey);
        if (row->showId == 0)
            return false;
    }
    return row->showId == 0 || ShowTable::ensureSeason(m_connection, row->showId, row->season);
}

int VideoWriter::collectionId(const QString &title, const QString &overview)
{
    const QString key = TextFold::nameKey(title);
    int id = 0;
    QString knownOverview;
    {
        Statement known =
            m_connection.prepare(QStringLiteral("SELECT id, overview FROM collections WHERE name_key = ?"));
        if (!known.run(key))
            return 0;
        if (known.next()) {
            id = known.integer(0);
            knownOverview = known.text(1);
        }
    }
    if (id > 0) {
        if (overview.isEmpty() || overview == knownOverview)
            return id;
        return m_connection.prepare(QStringLiteral("UPDATE collections SET overview = ? WHERE id = ?"))
                       .run(overview, id)
                   ? id
                   : 0;
    }
    id = static_cast<int>(Counters::take(m_connection, QStringLiteral("collections")));
    Statement insert = m_connection.prepare(QStringLiteral(
        "INSERT INTO collections (id, movies, year, added, rating_value, sort_title, name_key, title, "
        "search, poster, backdrop, overview, own_poster, own_backdrop) "
        "VALUES (?, 0, 0, 0, 0, ?, ?, ?, ?, '', '', ?, '', '')"));
    const QString folded = TextFold::folded(title);
    return id > 0 && insert.run(id, folded, key, title, folded, overview) ? id : 0;
}

bool VideoWriter::finish()
{
    return m_containers.refresh(m_connection);
}
