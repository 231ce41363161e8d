#include "VideoProtocol.h"

#include "JsonFields.h"
#include "JsonRpc.h"
#include "ProtocolNames.h"
#include "VideoRecords.h"

namespace Key = Rpc::Key;
namespace Limit = Rpc::Limit;
namespace Method = Rpc::Method;
namespace Text = Rpc::Text;

namespace {

constexpr int kUsualScan = 1;

QJsonArray conditions(const LibraryQuery::Filter &filter)
{
    struct Row {
        const char *field;
        const QString &value;
    };
    QJsonArray all;
    for (const Row &row :
         {Row{Text::country, filter.country}, Row{Text::genre, filter.genre}, Row{Text::year, filter.year}}) {
        if (row.value.isEmpty())
            continue;
        all.append(
            QJsonObject{{Key::field, row.field}, {Key::Operator, Text::contains}, {Key::value, row.value}});
    }
    return all;
}

QJsonArray conditions(VideoListRow::Filter filter, const LibraryQuery &query)
{
    switch (filter) {
    case VideoListRow::Filter::Movie:
        return conditions(query.movie);
    case VideoListRow::Filter::TvShow:
        return conditions(query.tvShow);
    case VideoListRow::Filter::Empty:
    case VideoListRow::Filter::None:
        break;
    }
    return {};
}

QJsonObject sortBy(const LibraryQuery &query)
{
    return {{Key::method, query.sortMethod}, {Key::order, query.sortOrder}};
}

QList<MediaItem> matches(const QJsonArray &array)
{
    QList<MediaItem> found;
    for (const QJsonValue &value : array) {
        if (value.isObject())
            found.append(VideoRecords::match(value.toObject()));
    }
    return found;
}

QJsonObject fixParams(const VideoProtocol::Fix &fix)
{
    return {{Key::idFile, fix.idFile},
            {Key::language, QString()},
            {Key::strScraperFrom, Text::tmdb},
            {Key::strScraperId, fix.mediaId},
            {Key::strSourceMediaType, fix.sourceMediaType}};
}

} // namespace

// ---- the server

VideoProtocol::Library VideoProtocol::library() const
{
    const JsonRpcReply reply = m_rpc.call(Method::ServerGetLibraries, {{Key::type, Text::all}}, Limit::Usual);
    return {LibraryPaths::firstLibrary(reply), reply.isGood || reply.isRefused};
}

std::optional<LibraryPaths::Map> VideoProtocol::folders(int libraryId) const
{
    return LibraryPaths::folders(
        m_rpc.call(Method::ServerGetLibraryDetail, {{Key::LibraryId, libraryId}}, Limit::Usual));
}

VideoProtocol::Pulse VideoProtocol::heartbeat() const
{
    const QJsonObject result = m_rpc.call(Method::Heartbeat, {}, Limit::Heartbeat).object();
    return {result.contains(QLatin1String(Key::Finished))
                && JsonFields::text(result, Key::Finished) != QLatin1String("0"),
            result.value(QLatin1String(Key::ScraperFinished)).toBool()};
}

void VideoProtocol::setProxy(const Proxy &proxy) const
{
    (void)m_rpc.call(Method::SetProxy,
                     {{Key::port, proxy.port},
                      {Key::ip, proxy.host},
                      {Key::username, proxy.userName},
                      {Key::password, proxy.password}},
                     Limit::Proxy);
}

void VideoProtocol::cancelProxy() const
{
    (void)m_rpc.call(Method::CancelProxy, {}, Limit::Proxy);
}

// ---- maintenance

void VideoProtocol::update(int libraryId) const
{
    (void)m_rpc.call(Method::Update, {{Key::LibraryId, libraryId}, {Key::scanType, kUsualScan}},
                     Limit::Usual);
}

void VideoProtocol::rebuild() const
{
    (void)m_rpc.call(Method::Rebuild, {}, Limit::Usual);
}

void VideoProtocol::updateByLanguage(int libraryId, const QString &language) const
{
    (void)m_rpc.call(Method::UpdateByLanguage, {{Key::LibraryId, libraryId}, {Key::language, language}},
                     Limit::Language);
}

std::optional<int> VideoProtocol::addPath(int libraryId, const QString &path, const QString &scraper) const
{
    return LibraryPaths::addedFolder(m_rpc.call(Method::AddPath,
                                                {{Key::LibraryId, libraryId},
                                                 {Key::path, path},
                                                 {Key::name, QString()},
                                                 {Key::type, Text::Mix},
                                                 {Key::autoscan, true},
                                                 {Key::scraperType, scraper}},
                                                Limit::Usual));
}

bool VideoProtocol::deletePath(int libraryId, int pathId) const
{
    return m_rpc.call(Method::DeletePath, {{Key::LibraryId, libraryId}, {Key::PathId, pathId}}, Limit::Usual)
        .says(Key::deletePath);
}

// ---- lists

QJsonObject VideoProtocol::listParams(const VideoListRow &row, int libraryId, const LibraryQuery &query,
                                      int start) const
{
    QJsonObject params{{Key::idlibrary, libraryId}, {Key::limits, JsonFields::limits(start, start + 1)}};
    if (row.filter != VideoListRow::Filter::None)
        params.insert(Key::filter, QJsonObject{{Key::And, conditions(row.filter, query)}});
    if (row.hasPattern)
        params.insert(Key::pattern, query.pattern);
    if (row.hasSort)
        params.insert(Key::sort, sortBy(query));
    return params;
}

int VideoProtocol::total(const VideoListRow &row, int libraryId, const LibraryQuery &query) const
{
    const JsonRpcReply reply = m_rpc.call(row.method, listParams(row, libraryId, query, 0), Limit::Usual);
    return JsonFields::total(reply.object(), row.totalKey);
}

QJsonArray VideoProtocol::entry(const VideoListRow &row, int libraryId, const LibraryQuery &query,
                                int index) const
{
    const JsonRpcReply reply = m_rpc.call(row.method, listParams(row, libraryId, query, index), Limit::Usual);
    return JsonFields::array(reply.object(), row.listKey);
}

QJsonArray VideoProtocol::groupMembers(int idGroup, const LibraryQuery &query) const
{
    QJsonObject sort = sortBy(query);
    sort.insert(Key::ignorearticle, false);
    const JsonRpcReply reply = m_rpc.call(Method::GetMovieGroupDetails,
                                          {{Key::idMediaGroup, idGroup}, {Key::sort, sort}}, Limit::Usual);
    return JsonFields::array(reply.object(), Key::groupDetails);
}

QList<int> VideoProtocol::numbers(const char *method, const QJsonObject &params, const char *list,
                                  const char *key) const
{
    QList<int> found;
    const QJsonArray array = JsonFields::array(m_rpc.call(method, params, Limit::Usual).object(), list);
    for (const QJsonValue &value : array) {
        if (value.isObject())
            found.append(JsonFields::number(value.toObject(), key));
    }
    return found;
}

QList<int> VideoProtocol::seasons(int idTvshow) const
{
    return numbers(Method::GetTvSeasons, {{Key::idtvshow, idTvshow}}, Key::seasonList, Key::iSeason);
}

QJsonObject VideoProtocol::season(int idTvshow, int season) const
{
    const QJsonObject result =
        m_rpc
            .call(Method::GetSeasonDetails, {{Key::idtvshow, idTvshow}, {Key::iseason, season}}, Limit::Usual)
            .object();
    return result.value(QLatin1String(Key::seasonDetils)).toObject();
}

QList<int> VideoProtocol::episodes(int idTvshow, int season) const
{
    return numbers(Method::GetTvEpisodes, {{Key::idtvshow, idTvshow}, {Key::iseason, season}},
                   Key::episodeList, Key::iEpisode);
}

QJsonObject VideoProtocol::episode(int idTvshow, int season, int episode) const
{
    const QJsonObject params{{Key::idtvshow, idTvshow}, {Key::iseason, season}, {Key::iepisode, episode}};
    const QJsonObject result = m_rpc.call(Method::GetEpisodeDetails, params, Limit::Usual).object();
    return result.value(QLatin1String(Key::episodeDetils)).toObject();
}

QJsonObject VideoProtocol::movieDetails(int idFile) const
{
    const QJsonObject result =
        m_rpc.call(Method::GetMovieDetails, {{Key::idFile, idFile}}, Limit::Details).object();
    return result.value(QLatin1String(Key::movieDetils)).toObject();
}

// ---- choices

QStringList VideoProtocol::choices(const char *method, const char *key, const QString &type) const
{
    QStringList found;
    const QJsonArray array =
        JsonFields::array(m_rpc.call(method, {{Key::type, type}}, Limit::FilterList).object(), key);
    for (const QJsonValue &value : array)
        found.append(value.toVariant().toString());
    return found;
}

QStringList VideoProtocol::countries(const QString &type) const
{
    return choices(Method::GetCountries, Key::countries, type);
}

QStringList VideoProtocol::genres(const QString &type) const
{
    return choices(Method::GetGenres, Key::genres, type);
}

QStringList VideoProtocol::years(const QString &type) const
{
    return choices(Method::GetYears, Key::years, type);
}

// ---- changes

bool VideoProtocol::deleteMovie(int idFile, bool deleteFile) const
{
    return m_rpc
        .call(Method::DeleteMovie, {{Key::idFile, idFile}, {Key::deleteFile, deleteFile}}, Limit::Usual)
        .says(Key::Delete);
}

bool VideoProtocol::deleteEpisode(int idFile, bool deleteFile) const
{
    return m_rpc
        .call(Method::DeleteEpisode, {{Key::idFile, idFile}, {Key::deleteFile, deleteFile}}, Limit::Usual)
        .says(Key::Delete);
}

QList<MediaItem> VideoProtocol::searchMovie(const QString &name, const QString &year) const
{
    const QJsonObject params{{Key::language, QString()},
                             {Key::strScraperName, name},
                             {Key::strScraperYear, year},
                             {Key::strSearchFrom, Text::tmdb}};
    const JsonRpcReply reply = m_rpc.call(Method::ScraperSearchMovie, params, Limit::Usual);
    return matches(JsonFields::array(reply.object(), Key::SearchMovieList));
}

QList<MediaItem> VideoProtocol::searchTvShow(const QString &name, const QString &year) const
{
    const QJsonObject params{
        {Key::language, QString()}, {Key::strScraperName, name}, {Key::strScraperYear, year}};
    const JsonRpcReply reply = m_rpc.call(Method::ScraperSearchTvshow, params, Limit::Usual);
    return matches(JsonFields::array(reply.object(), Key::SearchTvsList));
}

bool VideoProtocol::makeMovie(const Fix &fix) const
{
    return m_rpc.call(Method::ModifiedToMovie, fixParams(fix), Limit::Usual).says(Key::modified);
}

bool VideoProtocol::makeEpisode(const Fix &fix, int season, int episode) const
{
    QJsonObject params = fixParams(fix);
    params.insert(Key::iSeason, season);
    params.insert(Key::iEpisode, episode);
    return m_rpc.call(Method::ModifiedToEpisode, params, Limit::Usual).says(Key::modified);
}
