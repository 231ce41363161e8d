#include "VideoEdits.h"

#include "Containers.h"
#include "Counters.h"
#include "Database.h"
#include "DescriptionLayers.h"
#include "FileTable.h"
#include "ShowTable.h"
#include "StoredJson.h"
#include "TextFold.h"
#include "VideoRows.h"
#include "VideoWriter.h"

#include <limits>

namespace {

using Urgency = Database::Urgency;

VideoRow presentVideo(Connection &connection, int id)
{
    const VideoRow row = VideoRow::table().find(connection, id);
    return row.id == id && row.missingSince == 0 ? row : VideoRow();
}

bool store(Connection &connection, VideoRow *row)
{
    VideoWriter writer(connection);
    return writer.write(row) && writer.finish();
}

Description knownOf(const VideoRow &row)
{
    const ScannedVideo scanned = row.scannedVideo();
    if (!row.matched.isEmpty())
        return DescriptionLayers::withMatched(scanned.description,
                                              StoredJson::given(row.matched).description);
    return DescriptionLayers::withProvided(scanned.description, scanned.wantsMetadata,
                                           StoredJson::given(row.provided).description);
}

Description knownOf(const ShowRow &row)
{
    Description known = DescriptionLayers::withProvided(StoredJson::description(row.scanned), row.wants,
                                                        StoredJson::description(row.provided));
    known.title = row.title;
    return known;
}

ScannedVideo::Kind kindOf(int role)
{
    switch (static_cast<Role>(role)) {
    case Role::Movies:
        return ScannedVideo::Kind::Movie;
    case Role::TvShows:
        return ScannedVideo::Kind::Episode;
    case Role::Adult:
        return ScannedVideo::Kind::Adult;
    default:
        return ScannedVideo::Kind::Video;
    }
}

} // namespace

VideoEdits::VideoEdits(const Database &database)
    : m_database(database)
{
}

bool VideoEdits::remove(int idFile, Removal removal) const
{
    return m_database.write(Urgency::User, [&](Connection &connection) {
        const FileTable &files = FileTable::videos();
        const FileRow lead = files.row(connection, idFile);
        if (lead.id == 0)
            return false;
        QVector<FileRow> rows{lead};
        const std::vector<VideoRow> versions =
            VideoRow::table().list(connection, QStringLiteral("WHERE lead_id = ?"), idFile);
        for (const VideoRow &version : versions)
            rows << files.row(connection, version.id);
        VideoWriter writer(connection);
        for (const FileRow &row : rows) {
            if (!files.remove(connection, row, removal, writer.containers()))
                return false;
        }
        return writer.finish();
    });
}

bool VideoEdits::matchMovie(int idFile, const Description &description, const QString &collection) const
{
    return m_database.write(Urgency::User, [&](Connection &connection) {
        VideoRow row = presentVideo(connection, idFile);
        if (row.id == 0)
            return false;
        GivenDescription chosen;
        chosen.description = description;
        chosen.collection = collection;
        row.matched = StoredJson::ofGiven(chosen);
        return store(connection, &row);
    });
}

bool VideoEdits::matchEpisode(int idFile, const Description &show, const Description &episode, int season,
                              int number) const
{
    return m_database.write(Urgency::User, [&](Connection &connection) {
        VideoRow row = presentVideo(connection, idFile);
        if (row.id == 0)
            return false;
        GivenDescription chosen;
        chosen.description = episode;
        chosen.showId = ShowTable::idOf(connection, show, row.folder);
        chosen.season = season;
        chosen.episode = number;
        if (chosen.showId == 0)
            return false;
        row.matched = StoredJson::ofGiven(chosen);
        return store(connection, &row);
    });
}

bool VideoEdits::describe(int idFile, const Description &description, const QString &collection) const
{
    return m_database.write(Urgency::Scan, [&](Connection &connection) {
        VideoRow row = presentVideo(connection, idFile);
        if (row.id == 0)
            return false;
        QString *source = row.matched.isEmpty() ? &row.provided : &row.matched;
        GivenDescription given = StoredJson::given(*source);
        const bool isSame =
            DescriptionLayers::compare(given.description, description) == DescriptionLayers::Identity::Same;
        if (!row.matched.isEmpty() && !isSame)
            return false;
        given.description =
            row.matched.isEmpty() ? description : DescriptionLayers::over(description, given.description);
        given.collection = collection.isEmpty() && isSame ? given.collection : collection;
        *source = StoredJson::ofGiven(given);
        row.tried = true;
        return store(connection, &row);
    });
}

bool VideoEdits::describeShow(int idTvshow, const Description &description,
                              const QMap<int, Description> &seasons) const
{
    return m_database.write(Urgency::Scan, [&](Connection &connection) {
        return ShowTable::describe(connection, idTvshow, description, seasons)
               && Counters::raise(connection, Counters::Area::Video);
    });
}

bool VideoEdits::describeCollection(const QString &collection, const Description &description) const
{
    return m_database.write(Urgency::Scan, [&](Connection &connection) {
        int id = 0;
        {
            Statement known =
                connection.prepare(QStringLiteral("SELECT id FROM collections WHERE name_key = ?"));
            if (!known.run(TextFold::nameKey(collection)) || !known.next())
                return false;
            id = known.integer(0);
        }
        const struct {
            const QString statement;
            const QString &value;
        } rows[] = {
            {QStringLiteral("UPDATE collections SET overview = ? WHERE id = ?"), description.overview},
            {QStringLiteral("UPDATE collections SET own_poster = ? WHERE id = ?"), description.poster},
            {QStringLiteral("UPDATE collections SET own_backdrop = ? WHERE id = ?"), description.backdrop},
        };
        for (const auto &row : rows) {
            if (!row.value.isEmpty() && !connection.prepare(row.statement).run(row.value, id))
                return false;
        }
        Containers containers;
        containers.addCollection(id);
        return containers.refresh(connection);
    });
}

ScannedVideo VideoEdits::scanned(int idFile) const
{
    const VideoRow row = presentVideo(m_database.reader(), idFile);
    if (row.id == 0)
        return {};
    ScannedVideo video = row.scannedVideo();
    video.kind = kindOf(row.kind);
    video.season = row.season;
    video.episode = row.episode;
    video.lastEpisode = row.lastEpisode;
    video.description = knownOf(row);
    video.description.title = row.title;
    return video;
}

QVector<IVideoLibrary::Wanted> VideoEdits::wanting(bool all, int limit) const
{
    QVector<IVideoLibrary::Wanted> wanted;
    const int most = limit > 0 ? limit : std::numeric_limits<int>::max();
    const QString open = all ? QString() : QStringLiteral("AND wants = 1 AND tried = 0 AND provided = '' ");
    const QString condition =
        QStringLiteral("WHERE kind = %1 AND missing_since = 0 AND lead_id = 0 %2%3ORDER BY id LIMIT ?")
            .arg(static_cast<int>(Role::Movies))
            .arg(open, all ? QString() : QStringLiteral("AND matched = '' "));
    const std::vector<VideoRow> movies = VideoRow::table().list(m_database.reader(), condition, most);
    for (const VideoRow &row : movies) {
        Description known = knownOf(row);
        known.title = row.title;
        wanted << IVideoLibrary::Wanted{row.id, false, known};
    }
    const std::vector<ShowRow> shows = ShowRow::table().list(
        m_database.reader(), QStringLiteral("WHERE episodes > 0 %1ORDER BY id LIMIT ?").arg(open),
        most - wanted.size());
    for (const ShowRow &row : shows)
        wanted << IVideoLibrary::Wanted{row.id, true, knownOf(row)};
    return wanted;
}

void VideoEdits::tried(int id, bool isShow) const
{
    m_database.write(Urgency::Scan, [&](Connection &connection) {
        return connection
            .prepare(QStringLiteral("UPDATE %1 SET tried = 1 WHERE id = ?")
                         .arg(isShow ? QStringLiteral("shows") : QStringLiteral("items")))
            .run(id);
    });
}
