#include "VideoListMethods.h"

#include "ListReplies.h"
#include "store/ILibraryRoots.h"
#include "store/IVideoLibrary.h"

#include <optional>

namespace {

struct NamedRole {
    QLatin1String text;
    Role role;
};
const NamedRole filterRoles[] = {{QLatin1String("movie"), Role::Movies},
                                 {QLatin1String("tvshow"), Role::TvShows}};

std::optional<Role> filterRole(const Params &params)
{
    for (const NamedRole &row : filterRoles) {
        if (params.text(Keys::type) == row.text)
            return row.role;
    }
    return std::nullopt;
}

const QVector<ParamRow> sortedList{{Keys::filter, ParamType::Filter, Need::Optional},
                                   {Keys::idlibrary, ParamType::Integer},
                                   {Keys::limits, ParamType::Limits},
                                   {Keys::pattern, ParamType::Text, Need::Optional},
                                   {Keys::sort, ParamType::Sort}};
const QVector<ParamRow> groupList{
    {Keys::idlibrary, ParamType::Integer}, {Keys::limits, ParamType::Limits}, {Keys::sort, ParamType::Sort}};
const QVector<ParamRow> plainList{{Keys::idlibrary, ParamType::Integer},
                                  {Keys::limits, ParamType::Limits},
                                  {Keys::pattern, ParamType::Text, Need::Optional}};
const QVector<ParamRow> oneFile{{Keys::idFile, ParamType::Integer}};
const QVector<ParamRow> oneShow{{Keys::idtvshow, ParamType::Integer}};
const QVector<ParamRow> oneSeason{{Keys::idtvshow, ParamType::Integer}, {Keys::iseason, ParamType::Integer}};
const QVector<ParamRow> oneEpisode{{Keys::idtvshow, ParamType::Integer},
                                   {Keys::iseason, ParamType::Integer},
                                   {Keys::iepisode, ParamType::Integer}};
const QVector<ParamRow> oneType{{Keys::type, ParamType::Text}};

} // namespace

VideoListMethods::VideoListMethods(const ILibraryRoots &roots, const IVideoLibrary &videos)
    : m_roots(roots)
    , m_videos(videos)
{
}

void VideoListMethods::addTo(MethodTable &table)
{
    addLists(table);
    addDetails(table);
    addFilterValues(table);
}

bool VideoListMethods::isLibrary(const Params &params) const
{
    return params.integer(Keys::idlibrary) == m_roots.videoLibraryId();
}

void VideoListMethods::addLists(MethodTable &table)
{
    // Every list of the library is refused alike where its library is not the one asked for.
    const auto ofLibrary = [this](auto read) {
        return [this, read](const Params &params) {
            return isLibrary(params) ? read(params.list())
                                     : ListReplies::unknownLibrary(params.integer(Keys::idlibrary));
        };
    };
    const auto filmList = [this, ofLibrary](Role role, QLatin1String listKey) {
        return ofLibrary([this, role, listKey](const ListRequest &request) {
            return ListReplies::withTotal(Keys::movieTotal, listKey, m_videos.movies(role, request));
        });
    };
    table.add({
        {QLatin1String("VLibrary.GetMovies"), sortedList, filmList(Role::Movies, Keys::movieList)},
        {QLatin1String("VLibrary.GetAvs"), sortedList, filmList(Role::Adult, Keys::avList)},
        {QLatin1String("VLibrary.GetMovieGroups"), groupList, ofLibrary([this](const ListRequest &request) {
             return ListReplies::withLimits(Keys::groups, m_videos.groups(request), request);
         })},
        {QLatin1String("VLibrary.GetTVShows"), sortedList, ofLibrary([this](const ListRequest &request) {
             return ListReplies::withLimits(Keys::tvshowList, m_videos.shows(request), request);
         })},
        {QLatin1String("VLibrary.GetVideos"), plainList, ofLibrary([this](const ListRequest &request) {
             return ListReplies::withLimits(Keys::videoList, m_videos.movies(Role::Videos, request), request);
         })},
    });
}

void VideoListMethods::addDetails(MethodTable &table)
{
    table.add({
        {QLatin1String("VLibrary.GetMovieDetails"), oneFile,
         [this](const Params &params) { return movieDetails(params); }},
        {QLatin1String("VLibrary.GetAvDetails"), oneFile,
         [this](const Params &params) { return movieDetails(params); }},
        {QLatin1String("VLibrary.GetMovieGroupDetails"),
         {{Keys::idMediaGroup, ParamType::Integer}, {Keys::sort, ParamType::Sort}},
         [this](const Params &params) {
             const QVector<MovieRecord> movies = m_videos.groupMovies(
                 params.integer(Keys::idMediaGroup), params.list().sort, params.list().ascending);
             return RpcReply::good(QJsonObject{{Keys::groupDetails, RecordJson::array(movies)}});
         }},
        {QLatin1String("VLibrary.GetTvSeasons"), oneShow,
         [this](const Params &params) { return seasons(params); }},
        {QLatin1String("VLibrary.GetSeasonDetails"), oneSeason,
         [this](const Params &params) { return seasonDetails(params); }},
        {QLatin1String("VLibrary.GetTvEpisodes"), oneSeason,
         [this](const Params &params) { return episodes(params); }},
        {QLatin1String("VLibrary.GetEpisodeDetails"), oneEpisode,
         [this](const Params &params) { return episodeDetails(params); }},
    });
}

void VideoListMethods::addFilterValues(MethodTable &table)
{
    const auto ofType = [](QLatin1String key, auto read) {
        return [key, read](const Params &params) {
            const std::optional<Role> role = filterRole(params);
            return role ? RpcReply::good(QJsonObject{{key, read(*role)}})
                        : RpcReply::failed(QStringLiteral("key \"type\" must be \"movie\" or \"tvshow\""));
        };
    };
    table.add({
        {QLatin1String("VLibrary.GetCountries"), oneType,
         ofType(Keys::countries,
                [this](Role role) { return QJsonArray::fromStringList(m_videos.countries(role)); })},
        {QLatin1String("VLibrary.GetGenres"), oneType,
         ofType(Keys::genres,
                [this](Role role) { return QJsonArray::fromStringList(m_videos.genres(role)); })},
        {QLatin1String("VLibrary.GetYears"), oneType,
         ofType(Keys::years,
                [this](Role role) {
                    QJsonArray years;
                    for (const int year : m_videos.years(role))
                        years.append(year);
                    return years;
                })},
    });
}

RpcReply VideoListMethods::movieDetails(const Params &params) const
{
    const int id = params.integer(Keys::idFile);
    const MovieRecord movie = m_videos.movie(id);
    if (movie.idFile == 0)
        return RpcReply::failed(QStringLiteral("there is no film with this idFile: %1").arg(id));
    return RpcReply::good(QJsonObject{{Keys::movieDetils, RecordJson::object(movie)}});
}

RpcReply VideoListMethods::seasons(const Params &params) const
{
    QJsonArray list;
    for (const SeasonRecord &season : m_videos.seasons(params.integer(Keys::idtvshow)))
        list.append(QJsonObject{{Keys::iSeason, season.iSeason}});
    return RpcReply::good(QJsonObject{{Keys::seasonList, list}});
}

RpcReply VideoListMethods::seasonDetails(const Params &params) const
{
    const SeasonRecord season =
        m_videos.season(params.integer(Keys::idtvshow), params.integer(Keys::iseason));
    if (season.idSeason == 0)
        return RpcReply::failed(QStringLiteral("the show has no such season"));
    return RpcReply::good(QJsonObject{{Keys::seasonDetils, RecordJson::object(season)}});
}

RpcReply VideoListMethods::episodes(const Params &params) const
{
    QJsonArray list;
    for (const EpisodeRecord &episode :
         m_videos.episodes(params.integer(Keys::idtvshow), params.integer(Keys::iseason)))
        list.append(QJsonObject{{Keys::iEpisode, episode.iEpisode}});
    return RpcReply::good(QJsonObject{{Keys::episodeList, list}});
}

RpcReply VideoListMethods::episodeDetails(const Params &params) const
{
    const EpisodeRecord episode = m_videos.episode(
        params.integer(Keys::idtvshow), params.integer(Keys::iseason), params.integer(Keys::iepisode));
    if (episode.idFile == 0)
        return RpcReply::failed(QStringLiteral("the season has no such episode"));
    return RpcReply::good(QJsonObject{{Keys::episodeDetils, RecordJson::object(episode)}});
}
