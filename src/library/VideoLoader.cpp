#include "VideoLoader.h"

#include "JsonFields.h"
#include "LibraryFilters.h"
#include "LibrarySignals.h"
#include "ProtocolNames.h"
#include "VideoProtocol.h"
#include "VideoRecords.h"

#include <QDebug>

namespace Key = Rpc::Key;

// Where a role's records go and who is told.
struct VideoLoader::Target {
    LibraryRole role;
    VideoCache::Kind kind;
    MediaItem (*record)(const QJsonObject &);
    void (LibrarySignals::*loaded)(QString);

    static const Target &of(LibraryRole role)
    {
        static constexpr std::array<Target, 5> kTargets{{
            {LibraryRole::Movies, VideoCache::Movies, VideoRecords::movie,
             &LibrarySignals::sig_newMovieLoaded},
            {LibraryRole::Collections, VideoCache::Collections, VideoRecords::collection,
             &LibrarySignals::sig_newCollectionLoaded},
            {LibraryRole::TvShows, VideoCache::Shows, VideoRecords::movie,
             &LibrarySignals::sig_newTvShowLoaded},
            {LibraryRole::Videos, VideoCache::Videos, VideoRecords::movie,
             &LibrarySignals::sig_newVideoLoaded},
            {LibraryRole::AdultContent, VideoCache::AdultItems, VideoRecords::movie,
             &LibrarySignals::sig_newAdultContentLoad},
        }};
        return kTargets.at(std::size_t(role) - std::size_t(LibraryRole::Movies));
    }
};

VideoLoader::VideoLoader(const VideoProtocol &protocol, const LibraryFilters &filters, VideoCache &cache,
                         LibrarySignals &notices, LibraryId libraryId)
    : m_protocol(protocol)
    , m_filters(filters)
    , m_cache(cache)
    , m_notices(notices)
    , m_libraryId(std::move(libraryId))
{
}

void VideoLoader::load(LibraryRole role, const Aborted &aborted)
{
    m_cache.clear(role);
    // One question for the whole list: records of two orders would not make one.
    const LibraryQuery query = m_filters.query();
    const Job job{VideoLists::row(role), query, aborted};
    const int libraryId = m_libraryId();
    const int total = m_protocol.total(job.row, libraryId, query);
    // A load that is to end asks for nothing more: whoever ended it waits for that, and throws the rest away.
    for (int i = 0; i < total && !aborted(); ++i)
        takeEntries(job, m_protocol.entry(job.row, libraryId, query, i));
}

void VideoLoader::takeEntries(const Job &job, const QJsonArray &entries)
{
    const Target &target = Target::of(job.row.role);
    for (const QJsonValue &value : entries) {
        const QJsonObject object = value.toObject();
        const QString id = JsonFields::id(object, job.row.idKey);
        if (id.isEmpty()) {
            qInfo().noquote() << "[library]" << job.row.method << "names a record without" << job.row.idKey;
            continue;
        }
        const MediaItem item = target.record(object);
        m_cache.insert(target.kind, id, item);
        const int number = JsonFields::number(object, job.row.idKey);
        if (job.row.role == LibraryRole::Collections)
            takeMembers(job, number, id);
        else if (job.row.role == LibraryRole::TvShows)
            takeSeasons(job, number, id, item.title);
        emit(m_notices.*target.loaded)(id);
        if (job.aborted())
            return;
    }
}

void VideoLoader::takeMembers(const Job &job, int idGroup, const QString &id)
{
    QStringList ids;
    const QJsonArray members = m_protocol.groupMembers(idGroup, job.query);
    for (const QJsonValue &value : members) {
        const QJsonObject object = value.toObject();
        const QString member = JsonFields::id(object, Key::idFile);
        if (!member.isEmpty()) {
            m_cache.insert(VideoCache::CollectionMembers, member, VideoRecords::movie(object));
            ids.append(member);
        }
        if (job.aborted())
            break;
    }
    m_cache.link(VideoCache::CollectionToMembers, id, ids);
}

void VideoLoader::takeSeasons(const Job &job, int idTvshow, const QString &id, const QString &title)
{
    QStringList ids;
    const QList<int> seasons = m_protocol.seasons(idTvshow);
    for (const int number : seasons) {
        const QJsonObject object = m_protocol.season(idTvshow, number);
        const QString season = JsonFields::id(object, Key::idSeason);
        if (!season.isEmpty()) {
            m_cache.insert(VideoCache::Seasons, season, VideoRecords::season(object, title, number));
            takeEpisodes(job, idTvshow, season, number, title);
            ids.append(season);
        }
        if (job.aborted())
            break;
    }
    m_cache.link(VideoCache::ShowToSeasons, id, ids);
}

void VideoLoader::takeEpisodes(const Job &job, int idTvshow, const QString &idSeason, int season,
                               const QString &title)
{
    QStringList ids;
    const QList<int> episodes = m_protocol.episodes(idTvshow, season);
    for (const int number : episodes) {
        const QJsonObject object = m_protocol.episode(idTvshow, season, number);
        const QString episode = JsonFields::id(object, Key::idFile);
        if (!episode.isEmpty()) {
            m_cache.insertEpisode(episode, VideoRecords::episode(object, title, season, number));
            ids.append(episode);
        }
        if (job.aborted())
            break;
    }
    m_cache.link(VideoCache::SeasonToEpisodes, idSeason, ids);
}
