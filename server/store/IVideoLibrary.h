// The video library as the protocol sees it. Reads come from any thread at once; a change waits until it
// stands in the database and says whether it does. Ids that don't exist give records with id 0 and false.
#pragma once

#include "records/LibraryRecords.h"
#include "records/ListRequest.h"
#include "records/ScanRecords.h"

class IVideoLibrary {
public:
    virtual ~IVideoLibrary() = default;

    // Films, videos or adult content. The cost does not depend on where in the list the part lies.
    [[nodiscard]] virtual Page<MovieRecord> movies(Role role, const ListRequest &request) const = 0;
    [[nodiscard]] virtual MovieRecord movie(int idFile) const = 0;
    [[nodiscard]] virtual Page<GroupRecord> groups(const ListRequest &request) const = 0;
    [[nodiscard]] virtual QVector<MovieRecord> groupMovies(int idGroup, SortMethod sort,
                                                           bool ascending) const = 0;
    [[nodiscard]] virtual Page<ShowRecord> shows(const ListRequest &request) const = 0;
    [[nodiscard]] virtual QVector<SeasonRecord> seasons(int idTvshow) const = 0;
    [[nodiscard]] virtual SeasonRecord season(int idTvshow, int number) const = 0;
    [[nodiscard]] virtual QVector<EpisodeRecord> episodes(int idTvshow, int season) const = 0;
    [[nodiscard]] virtual EpisodeRecord episode(int idTvshow, int season, int number) const = 0;

    // Distinct values of the field over films or shows, sorted.
    [[nodiscard]] virtual QStringList genres(Role role) const = 0;
    [[nodiscard]] virtual QStringList countries(Role role) const = 0;
    [[nodiscard]] virtual QVector<int> years(Role role) const = 0;

    // What stands on disk for an item, all its parts and versions included; empty for an unknown id.
    [[nodiscard]] virtual QStringList filesOf(int idFile) const = 0;
    // Takes the item out of the library. It stays out in later scans as long as its file is unchanged.
    virtual bool remove(int idFile, Removal removal) = 0;

    // What is known of an item for the providers and for searches without one.
    [[nodiscard]] virtual ScannedVideo scanned(int idFile) const = 0;
    // A match chosen by the user: role and place change with it, later scans leave it alone.
    virtual bool matchMovie(int idFile, const Description &description, const QString &collection) = 0;
    virtual bool matchEpisode(int idFile, const Description &show, const Description &episode, int season,
                              int number) = 0;
    // What a provider found without being told by the user; never over what a user chose.
    virtual bool describeMovie(int idFile, const Description &description, const QString &collection) = 0;
    virtual bool describeShow(int idTvshow, const Description &description,
                              const QMap<int, Description> &seasons) = 0;
    virtual bool describeEpisode(int idFile, const Description &description) = 0;
    // A collection by the name that its films carry. A library that keeps no texts of collections says false.
    virtual bool describeCollection(const QString &collection, const Description &description)
    {
        Q_UNUSED(collection)
        Q_UNUSED(description)
        return false;
    }

    struct Wanted {
        int id{0}; // idFile, or idTvshow of a show
        bool isShow{false};
        Description known;
    };
    // Films and shows of which only names speak so far, or all of them once the language changed.
    [[nodiscard]] virtual QVector<Wanted> wantingMetadata(bool all, int limit) const = 0;
    // Remembers that a provider had nothing for it, so that it is not asked again at each scan.
    virtual void metadataTried(int id, bool isShow) = 0;
};
