// The player's copy of the video library: records by id, and which record belongs to which. Written by the
// loaders, read by views while they write; every operation is safe on every thread and gives copies.
#pragma once

#include "LibraryRole.h"
#include "MediaItem.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <array>
#include <mutex>

class VideoCache final {
public:
    enum Kind { Movies, Collections, CollectionMembers, Shows, Seasons, Episodes, Videos, AdultItems };
    static constexpr int KindCount = AdultItems + 1;
    // What one record holds of others: a collection its films, a show its seasons, a season its episodes.
    enum Link { CollectionToMembers, ShowToSeasons, SeasonToEpisodes };
    static constexpr int LinkCount = SeasonToEpisodes + 1;

    // Empties what the role fills, links and paths included.
    void clear(LibraryRole role);
    void insert(Kind kind, const QString &id, const MediaItem &item);
    // Also makes the episode's path known.
    void insertEpisode(const QString &id, const MediaItem &item);
    void link(Link link, const QString &owner, const QStringList &ids);

    // A record with empty fields where there is none.
    [[nodiscard]] MediaItem item(Kind kind, const QString &id) const;
    [[nodiscard]] QStringList ids(Kind kind) const;
    [[nodiscard]] int count(Kind kind) const;
    [[nodiscard]] QStringList linked(Link link, const QString &owner) const;
    // The id of the episode that lies there; empty when none does.
    [[nodiscard]] QString episodeByPath(const QString &path) const;

private:
    mutable std::mutex m_mutex;
    std::array<QMap<QString, MediaItem>, KindCount> m_items;
    std::array<QMap<QString, QStringList>, LinkCount> m_links;
    QMap<QString, QString> m_episodePaths;
};
