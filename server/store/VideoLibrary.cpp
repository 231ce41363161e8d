#include "VideoLibrary.h"

#include "Database.h"
#include "VideoRows.h"

VideoLibrary::VideoLibrary(const Database &database)
    : m_database(database)
    , m_movies(database)
    , m_shows(database)
    , m_edits(database)
{
}

Page<MovieRecord> VideoLibrary::movies(Role role, const ListRequest &request) const
{
    return m_movies.movies(role, request);
}

MovieRecord VideoLibrary::movie(int idFile) const
{
    return m_movies.movie(idFile);
}

Page<GroupRecord> VideoLibrary::groups(const ListRequest &request) const
{
    return m_movies.groups(request);
}

QVector<MovieRecord> VideoLibrary::groupMovies(int idGroup, SortMethod sort, bool ascending) const
{
    return m_movies.groupMovies(idGroup, sort, ascending);
}

Page<ShowRecord> VideoLibrary::shows(const ListRequest &request) const
{
    return m_shows.shows(request);
}

QVector<SeasonRecord> VideoLibrary::seasons(int idTvshow) const
{
    return m_shows.seasons(idTvshow);
}

SeasonRecord VideoLibrary::season(int idTvshow, int number) const
{
    return m_shows.season(idTvshow, number);
}

QVector<EpisodeRecord> VideoLibrary::episodes(int idTvshow, int season) const
{
    return m_shows.episodes(idTvshow, season);
}

EpisodeRecord VideoLibrary::episode(int idTvshow, int season, int number) const
{
    return m_shows.episode(idTvshow, season, number);
}

QStringList VideoLibrary::genres(Role role) const
{
    return m_movies.genres(role);
}

QStringList VideoLibrary::countries(Role role) const
{
    return m_movies.countries(role);
}

QVector<int> VideoLibrary::years(Role role) const
{
    return m_movies.years(role);
}

QStringList VideoLibrary::filesOf(int idFile) const
{
    QStringList files;
    Statement read = m_database.reader().prepare(
        QStringLiteral("SELECT real_path FROM items WHERE (id = ? OR lead_id = ?) AND missing_since = 0 "
                       "ORDER BY lead_id, path"));
    if (idFile > 0 && read.run(idFile, idFile)) {
        while (read.next())
            files << read.text(0);
    }
    return files;
}

bool VideoLibrary::remove(int idFile, Removal removal)
{
    return m_edits.remove(idFile, removal);
}

ScannedVideo VideoLibrary::scanned(int idFile) const
{
    return m_edits.scanned(idFile);
}

bool VideoLibrary::matchMovie(int idFile, const Description &description, const QString &collection)
{
    return m_edits.matchMovie(idFile, description, collection);
}

bool VideoLibrary::matchEpisode(int idFile, const Description &show, const Description &episode, int season,
                                int number)
{
    return m_edits.matchEpisode(idFile, show, episode, season, number);
}

bool VideoLibrary::describeMovie(int idFile, const Description &description, const QString &collection)
{
    return m_edits.describe(idFile, description, collection);
}

bool VideoLibrary::describeCollection(const QString &collection, const Description &description)
{
    return m_edits.describeCollection(collection, description);
}

bool VideoLibrary::describeShow(int idTvshow, const Description &description,
                                const QMap<int, Description> &seasons)
{
    return m_edits.describeShow(idTvshow, description, seasons);
}

bool VideoLibrary::describeEpisode(int idFile, const Description &description)
{
    return m_edits.describe(idFile, description, {});
}

QVector<IVideoLibrary::Wanted> VideoLibrary::wantingMetadata(bool all, int limit) const
{
    return m_edits.wanting(all, limit);
}

void VideoLibrary::metadataTried(int id, bool isShow)
{
    m_edits.tried(id, isShow);
}
