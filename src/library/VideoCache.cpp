#include "VideoCache.h"

#include <QDir>

#include <vector>

namespace {

struct RoleRow {
    LibraryRole role;
    std::vector<VideoCache::Kind> kinds;
    std::vector<VideoCache::Link> links;
};

const std::vector<RoleRow> &roleRows()
{
    using C = VideoCache;
    static const std::vector<RoleRow> rows{
        {LibraryRole::Movies, {C::Movies}, {}},
        {LibraryRole::Collections, {C::Collections, C::CollectionMembers}, {C::CollectionToMembers}},
        {LibraryRole::TvShows, {C::Shows, C::Seasons, C::Episodes}, {C::ShowToSeasons, C::SeasonToEpisodes}},
        {LibraryRole::Videos, {C::Videos}, {}},
        {LibraryRole::AdultContent, {C::AdultItems}, {}},
    };
    return rows;
}

} // namespace

void VideoCache::clear(LibraryRole role)
{
    std::lock_guard lock(m_mutex);
    for (const RoleRow &row : roleRows()) {
        if (row.role != role)
            continue;
        for (const Kind kind : row.kinds)
            m_items[kind].clear();
        for (const Link link : row.links)
            m_links[link].clear();
    }
    if (role == LibraryRole::TvShows)
        m_episodePaths.clear();
}

void VideoCache::insert(Kind kind, const QString &id, const MediaItem &item)
{
    std::lock_guard lock(m_mutex);
    m_items[kind].insert(id, item);
}

void VideoCache::insertEpisode(const QString &id, const MediaItem &item)
{
    std::lock_guard lock(m_mutex);
    m_items[Episodes].insert(id, item);
    m_episodePaths.insert(item.path, id);
}

void VideoCache::link(Link link, const QString &owner, const QStringList &ids)
{
    std::lock_guard lock(m_mutex);
    m_links[link].insert(owner, ids);
}

MediaItem VideoCache::item(Kind kind, const QString &id) const
{
    std::lock_guard lock(m_mutex);
    return m_items[kind].value(id);
}

QStringList VideoCache::ids(Kind kind) const
{
    std::lock_guard lock(m_mutex);
    return m_items[kind].keys();
}

int VideoCache::count(Kind kind) const
{
    std::lock_guard lock(m_mutex);
    return m_items[kind].size();
}

QStringList VideoCache::linked(Link link, const QString &owner) const
{
    std::lock_guard lock(m_mutex);
    return m_links[link].value(owner);
}

QString VideoCache::episodeByPath(const QString &path) const
{
    const QString native = QDir::toNativeSeparators(path);
    std::lock_guard lock(m_mutex);
    return m_episodePaths.value(native);
}
