// Fills the copy of the video library from the server, one record a request, and tells the views of each.
// Runs in the threads of the roles, several at once; what it works on is safe for that.
#pragma once

#include "VideoCache.h"
#include "VideoLists.h"

#include <QJsonObject>

#include <functional>

class LibraryFilters;
class LibrarySignals;
class VideoProtocol;
struct LibraryQuery;

class VideoLoader final {
public:
    using LibraryId = std::function<int()>;
    // Whether the load is to end: asked between two records.
    using Aborted = std::function<bool()>;

    // Everything that is referred to outlives this object.
    VideoLoader(const VideoProtocol &protocol, const LibraryFilters &filters, VideoCache &cache,
                LibrarySignals &notices, LibraryId libraryId);

    // role: any but music. Blocks until the list is through.
    void load(LibraryRole role, const Aborted &aborted);

private:
    struct Job {
        const VideoListRow &row;
        const LibraryQuery &query;
        const Aborted &aborted;
    };
    struct Target;

    void takeEntries(const Job &job, const QJsonArray &entries);
    void takeMembers(const Job &job, int idGroup, const QString &id);
    void takeSeasons(const Job &job, int idTvshow, const QString &id, const QString &title);
    void takeEpisodes(const Job &job, int idTvshow, const QString &idSeason, int season,
                      const QString &title);

    const VideoProtocol &m_protocol;
    const LibraryFilters &m_filters;
    VideoCache &m_cache;
    LibrarySignals &m_notices;
    const LibraryId m_libraryId;
};
