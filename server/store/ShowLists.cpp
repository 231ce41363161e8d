#include "ShowLists.h"

#include <limits>

namespace {

const RowTable<ShowRecord> &showTable()
{
    static const RowTable<ShowRecord> table(QStringLiteral("shows"), {{"id", &ShowRecord::idTvshow},
                                                                      {"title", &ShowRecord::title},
                                                                      {"rating", &ShowRecord::rating},
                                                                      {"director", &ShowRecord::director},
                                                                      {"actors", &ShowRecord::cast},
                                                                      {"genre", &ShowRecord::genre},
                                                                      {"overview", &ShowRecord::overview},
                                                                      {"poster", &ShowRecord::poster},
                                                                      {"backdrop", &ShowRecord::backdrop},
                                                                      {"path", &ShowRecord::path},
                                                                      {"year", &ShowRecord::year}});
    return table;
}

const RowTable<SeasonRecord> &seasonTable()
{
    static const RowTable<SeasonRecord> table(QStringLiteral("seasons"),
                                              {{"id", &SeasonRecord::idSeason},
                                               {"number", &SeasonRecord::iSeason},
                                               {"title", &SeasonRecord::title},
                                               {"director", &SeasonRecord::director},
                                               {"actors", &SeasonRecord::cast},
                                               {"overview", &SeasonRecord::overview},
                                               {"poster", &SeasonRecord::poster},
                                               {"year", &SeasonRecord::year}});
    return table;
}

const RowTable<EpisodeRecord> &episodeTable()
{
    static const RowTable<EpisodeRecord> table(QStringLiteral("items"),
                                               {{"id", &EpisodeRecord::idFile},
                                                {"episode", &EpisodeRecord::iEpisode},
                                                {"title", &EpisodeRecord::title},
                                                {"director", &EpisodeRecord::director},
                                                {"actors", &EpisodeRecord::cast},
                                                {"overview", &EpisodeRecord::overview},
                                                {"poster", &EpisodeRecord::poster},
                                                {"path", &EpisodeRecord::path},
                                                {"year", &EpisodeRecord::year}});
    return table;
}

// The pluses keep the database to the index on episodes: that on the lists would lead through all episodes.
QString episodesOfShow()
{
    return QStringLiteral("WHERE show_id = ? AND +kind = %1 AND +missing_since = 0 AND +lead_id = 0")
        .arg(static_cast<int>(Role::TvShows));
}

void fill(QString *text, const QString &fallback)
{
    if (text->isEmpty())
        *text = fallback;
}

} // namespace

ShowLists::ShowLists(const Database &database)
    : m_database(database)
    , m_reader(database)
{
}

Page<ShowRecord> ShowLists::shows(const ListRequest &request) const
{
    ListSource source;
    source.name = QStringLiteral("shows");
    source.tables = QStringLiteral("shows");
    source.condition = QStringLiteral("episodes > 0");
    source.areas = {Counters::Area::Video};
    source.columns = {{SortMethod::Title, QStringLiteral("sort_title")},
                      {SortMethod::Year, QStringLiteral("year")},
                      {SortMethod::DateAdded, QStringLiteral("added")},
                      {SortMethod::Rating, QStringLiteral("rating_value")}};
    return m_reader.page(source, request, showTable(), &ShowRecord::idTvshow);
}

ShowRecord ShowLists::show(int idTvshow) const
{
    return showTable().find(m_database.reader(), idTvshow);
}

QVector<SeasonRecord> ShowLists::readSeasons(int idTvshow, int first, int last) const
{
    // The season of the index on episodes: one look for each row.
    const std::vector<SeasonRecord> rows = seasonTable().list(
        m_database.reader(),
        QStringLiteral("WHERE show_id = ? AND number >= ? AND number <= ? AND EXISTS (SELECT 1 FROM items "
                       "WHERE items.show_id = seasons.show_id "
                       "AND items.season = seasons.number AND +items.kind = %1 "
                       "AND +items.missing_since = 0 AND +items.lead_id = 0) ORDER BY number")
            .arg(static_cast<int>(Role::TvShows)),
        idTvshow, first, last);
    QVector<SeasonRecord> seasons;
    if (rows.empty())
        return seasons;
    const ShowRecord of = show(idTvshow);
    for (SeasonRecord season : rows) {
        fill(&season.title, season.iSeason == 0 ? QStringLiteral("Specials")
                                                : QStringLiteral("Season %1").arg(season.iSeason));
        fill(&season.director, of.director);
        fill(&season.cast, of.cast);
        fill(&season.overview, of.overview);
        fill(&season.poster, of.poster);
        if (season.year == 0) {
            Statement earliest =
                m_database.reader().prepare(QStringLiteral("SELECT MIN(year) FROM items ") + episodesOfShow()
                                            + QStringLiteral(" AND season = ? AND year > 0"));
            if (earliest.run(idTvshow, season.iSeason) && earliest.next())
                season.year = earliest.integer(0);
        }
        seasons << season;
    }
    return seasons;
}

QVector<SeasonRecord> ShowLists::seasons(int idTvshow) const
{
    return readSeasons(idTvshow, 0, std::numeric_limits<int>::max());
}

SeasonRecord ShowLists::season(int idTvshow, int number) const
{
    const QVector<SeasonRecord> found = readSeasons(idTvshow, number, number);
    return found.isEmpty() ? SeasonRecord() : found.first();
}

EpisodeRecord ShowLists::completed(EpisodeRecord episode, const ShowRecord &show) const
{
    fill(&episode.director, show.director);
    fill(&episode.cast, show.cast);
    return episode;
}

QVector<EpisodeRecord> ShowLists::episodes(int idTvshow, int season) const
{
    const std::vector<EpisodeRecord> rows = episodeTable().list(
        m_database.reader(), episodesOfShow() + QStringLiteral(" AND season = ? ORDER BY episode, id"),
        idTvshow, season);
    const ShowRecord of = rows.empty() ? ShowRecord() : show(idTvshow);
    QVector<EpisodeRecord> episodes;
    for (const EpisodeRecord &row : rows) {
        if (episodes.isEmpty() || episodes.last().iEpisode != row.iEpisode)
            episodes << completed(row, of);
    }
    return episodes;
}

EpisodeRecord ShowLists::episode(int idTvshow, int season, int number) const
{
    const std::vector<EpisodeRecord> rows = episodeTable().list(
        m_database.reader(),
        episodesOfShow()
            + QStringLiteral(
                " AND season = ? AND episode <= ? AND last_episode >= ? ORDER BY episode DESC, id LIMIT 1"),
        idTvshow, season, number, number);
    return rows.empty() ? EpisodeRecord() : completed(rows.front(), show(idTvshow));
}
