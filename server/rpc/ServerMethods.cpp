#include "ServerMethods.h"

#include "IServerTasks.h"
#include "ListReplies.h"
#include "metadata/IMetadataService.h"
#include "store/ILibraryRoots.h"
#include "store/IMusicLibrary.h"
#include "store/IVideoLibrary.h"

#include <QJsonDocument>
#include <QRegularExpression>

namespace {

const QLatin1String finished("1");
const QLatin1String running("0");

// "en", "zh-TW", "es-es": it goes into addresses of the provider and nothing else may.
bool isLanguage(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("\\A[A-Za-z]{2,3}(-[A-Za-z0-9]{2,8})?\\z"));
    return pattern.match(text).hasMatch();
}

} // namespace

ServerMethods::ServerMethods(const Libraries &libraries, IServerTasks &tasks, IMetadataService &metadata)
    : m_libraries(libraries)
    , m_tasks(tasks)
    , m_metadata(metadata)
{
}

void ServerMethods::addTo(MethodTable &table)
{
    table.add({
        {QLatin1String("Server.Heartbeat"), {}, [this](const Params &) { return heartbeat(); }},
        {QLatin1String("Server.SetProxy"),
         {{Keys::port, ParamType::LooseText},
          {Keys::ip, ParamType::Text},
          {Keys::username, ParamType::LooseText, Need::Optional},
          {Keys::password, ParamType::LooseText, Need::Optional}},
         [this](const Params &params) { return setProxy(params); }},
        {QLatin1String("Server.CancelProxy"), {}, [this](const Params &) { return cancelProxy(); }},
        {QLatin1String("VLibrary.Update"),
         {{Keys::LibraryId, ParamType::Integer}, {Keys::scanType, ParamType::Integer, Need::Optional}},
         [this](const Params &params) {
             return update(params.integer(Keys::LibraryId), m_libraries.roots.videoLibraryId());
         }},
        {QLatin1String("VMusicLibrary.UpdateLibrary"),
         {{Keys::idlibrary, ParamType::Integer}},
         [this](const Params &params) {
             return update(params.integer(Keys::idlibrary), m_libraries.roots.musicLibraryId());
         }},
        {QLatin1String("VLibrary.Rebuild"),
         {},
         [this](const Params &) {
             m_tasks.rebuild();
             return RpcReply::good(QJsonObject{{Keys::rebuild, true}});
         }},
        {QLatin1String("VLibrary.UpdateByLanguage"),
         {{Keys::LibraryId, ParamType::Integer}, {Keys::language, ParamType::Text}},
         [this](const Params &params) { return updateByLanguage(params); }},
        {QLatin1String("VMusicLibrary.GetStatisticsData"),
         {},
         [this](const Params &) { return statistics(); }},
    });
}

RpcReply ServerMethods::heartbeat()
{
    return RpcReply::good(QJsonObject{{Keys::Finished, m_tasks.isScanFinished() ? finished : running},
                                      {Keys::ScraperFinished, m_tasks.takeScraperFinished()}});
}

RpcReply ServerMethods::setProxy(const Params &params)
{
    m_metadata.setProxy(params.text(Keys::ip), params.text(Keys::port), params.text(Keys::username),
                        params.text(Keys::password));
    return RpcReply::good(QJsonObject{{Keys::setResult, true}});
}

RpcReply ServerMethods::cancelProxy()
{
    m_metadata.cancelProxy();
    return RpcReply::good(QJsonObject{{Keys::CancelProxy, true}});
}

RpcReply ServerMethods::update(int libraryId, int knownId)
{
    if (libraryId != knownId)
        return ListReplies::unknownLibrary(libraryId);
    m_tasks.update(libraryId);
    return RpcReply::good(QJsonObject{{Keys::update, true}});
}

RpcReply ServerMethods::updateByLanguage(const Params &params)
{
    const int libraryId = params.integer(Keys::LibraryId);
    if (libraryId != m_libraries.roots.videoLibraryId())
        return ListReplies::unknownLibrary(libraryId);
    const QString language = params.text(Keys::language);
    if (!isLanguage(language))
        return RpcReply::failed(QStringLiteral("key \"language\" names no language"));
    m_metadata.setLanguage(language);
    m_tasks.updateLanguage(language);
    return RpcReply::good(QJsonObject{{Keys::update, true}});
}

RpcReply ServerMethods::statistics() const
{
    const IVideoLibrary &videos = m_libraries.videos;
    const IMusicLibrary &music = m_libraries.music;
    const ListRequest none; // totals come without rows
    const QJsonObject counts{
        {QStringLiteral("movies"), videos.movies(Role::Movies, none).total},
        {QStringLiteral("collections"), videos.groups(none).total},
        {QStringLiteral("tvshows"), videos.shows(none).total},
        {QStringLiteral("videos"), videos.movies(Role::Videos, none).total},
        {QStringLiteral("avs"), videos.movies(Role::Adult, none).total},
        {QStringLiteral("songs"), music.songs(none).total},
        {QStringLiteral("albums"), music.albums(none).total},
        {QStringLiteral("artists"), music.artists().size()},
        {QStringLiteral("genres"), music.genres().size()},
        {QStringLiteral("playlists"), music.playlists().size()},
    };
    const QJsonDocument document(QJsonObject{{Keys::movieServer, counts}});
    return RpcReply::good(QString::fromUtf8(document.toJson(QJsonDocument::Compact)));
}
