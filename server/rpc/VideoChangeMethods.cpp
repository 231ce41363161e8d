#include "VideoChangeMethods.h"

#include "ListReplies.h"
#include "metadata/IMetadataService.h"
#include "store/ILibraryRoots.h"
#include "store/IVideoLibrary.h"

#include <QDebug>

namespace {

const QVector<ParamRow> removal{{Keys::idFile, ParamType::Integer}, {Keys::deleteFile, ParamType::Flag}};
const QVector<ParamRow> search{{Keys::language, ParamType::Text, Need::Optional},
                               {Keys::strScraperName, ParamType::Text},
                               {Keys::strScraperYear, ParamType::LooseText, Need::Optional},
                               {Keys::strSearchFrom, ParamType::Text, Need::Optional}};
const QVector<ParamRow> match{{Keys::idFile, ParamType::Integer},
                              {Keys::language, ParamType::Text, Need::Optional},
                              {Keys::strScraperFrom, ParamType::Text, Need::Optional},
                              {Keys::strScraperId, ParamType::LooseText},
                              {Keys::strSourceMediaType, ParamType::LooseText, Need::Optional}};
const QVector<ParamRow> episodeMatch =
    match + QVector<ParamRow>{{Keys::iSeason, ParamType::Integer}, {Keys::iEpisode, ParamType::Integer}};

QString notTakenOver(int id)
{
    return QStringLiteral("the answer could not be taken over for idFile %1").arg(id);
}

} // namespace

VideoChangeMethods::VideoChangeMethods(const ILibraryRoots &roots, IVideoLibrary &videos,
                                       IMetadataService &metadata)
    : m_roots(roots)
    , m_videos(videos)
    , m_metadata(metadata)
    , m_remover(roots)
{
}

void VideoChangeMethods::addTo(MethodTable &table)
{
    const MethodHandler removeItem = [this](const Params &params) { return remove(params); };
    table.add({
        {QLatin1String("VLibrary.DeleteMovie"), removal, removeItem},
        {QLatin1String("VLibrary.DeleteEpisode"), removal, removeItem},
        {QLatin1String("VLibrary.ScraperSearchMovie"), search,
         [this](const Params &params) {
             const QVector<MatchRecord> found =
                 m_metadata.searchMovie(params.text(Keys::strScraperName), params.text(Keys::strScraperYear));
             return RpcReply::good(QJsonObject{{Keys::SearchMovieList, RecordJson::array(found)}});
         }},
        {QLatin1String("VLibrary.ScraperSearchTvshow"), search,
         [this](const Params &params) {
             const QVector<MatchRecord> found = m_metadata.searchTvshow(params.text(Keys::strScraperName),
                                                                        params.text(Keys::strScraperYear));
             return RpcReply::good(QJsonObject{{Keys::SearchTvsList, RecordJson::array(found)}});
         }},
        {QLatin1String("VLibrary.ModifiedToMovie"), match,
         [this](const Params &params) { return modifiedToMovie(params); }},
        {QLatin1String("VLibrary.ModifiedToEpisode"), episodeMatch,
         [this](const Params &params) { return modifiedToEpisode(params); }},
    });
}

RpcReply VideoChangeMethods::remove(const Params &params)
{
    const int id = params.integer(Keys::idFile);
    const QStringList files = m_videos.filesOf(id);
    if (files.isEmpty())
        return RpcReply::failed(QStringLiteral("there is no item with this idFile: %1").arg(id));
    const bool withFile = params.flag(Keys::deleteFile);
    if (withFile) {
        const QString failure = m_remover.remove(m_roots.videoLibraryId(), files);
        if (!failure.isEmpty())
            return RpcReply::failed(failure);
    }
    const bool removed = m_videos.remove(id, withFile ? Removal::WithFile : Removal::FromLibrary);
    if (removed)
        qInfo() << "[delete] taken out of the video library:" << files.first();
    return RpcReply::changed(Keys::deleted, removed,
                             QStringLiteral("the item could not be taken out of the library: %1").arg(id));
}

RpcReply VideoChangeMethods::modifiedToMovie(const Params &params)
{
    const int id = params.integer(Keys::idFile);
    return RpcReply::changed(Keys::modified, m_metadata.toMovie(id, params.text(Keys::strScraperId)),
                             notTakenOver(id));
}

RpcReply VideoChangeMethods::modifiedToEpisode(const Params &params)
{
    const int id = params.integer(Keys::idFile);
    const bool done = m_metadata.toEpisode(id, params.text(Keys::strScraperId), params.integer(Keys::iSeason),
                                           params.integer(Keys::iEpisode));
    return RpcReply::changed(Keys::modified, done, notTakenOver(id));
}
