// The video library over the database: lists are read on the caller's connection, changes go through the
// writer. Any thread.
#pragma once

#include "IVideoLibrary.h"
#include "MovieLists.h"
#include "ShowLists.h"
#include "VideoEdits.h"

class Database;

class VideoLibrary final : public IVideoLibrary {
public:
    explicit VideoLibrary(const Database &database);

    [[nodiscard]] Page<MovieRecord> movies(Role role, const ListRequest &request) const override;
    [[nodiscard]] MovieRecord movie(int idFile) const override;
    [[nodiscard]] Page<GroupRecord> groups(const ListRequest &request) const override;
    [[nodiscard]] QVector<MovieRecord> groupMovies(int idGroup, SortMethod sort,
                                                   bool ascending) const override;
    [[nodiscard]] Page<ShowRecord> shows(const ListRequest &request) const override;
    [[nodiscard]] QVector<SeasonRecord> seasons(int idTvshow) const override;
    [[nodiscard]] SeasonRecord season(int idTvshow, int number) const override;
    [[nodiscard]] QVector<EpisodeRecord> episodes(int idTvshow, int season) const override;
    [[nodiscard]] EpisodeRecord episode(int idTvshow, int season, int number) const override;

    [[nodiscard]] QStringList genres(Role role) const override;
    [[nodiscard]] QStringList countries(Role role) const override;
    [[nodiscard]] QVector<int> years(Role role) const override;

    [[nodiscard]] QStringList filesOf(int idFile) const override;
    bool remove(int idFile, Removal removal) override;

    [[nodiscard]] ScannedVideo scanned(int idFile) const override;
    bool matchMovie(int idFile, const Description &description, const QString &collection) override;
    bool matchEpisode(int idFile, const Description &show, const Description &episode, int season,
                      int number) override;
    bool describeMovie(int idFile, const Description &description, const QString &collection) override;
    bool describeShow(int idTvshow, const Description &description,
                      const QMap<int, Description> &seasons) override;
    bool describeEpisode(int idFile, const Description &description) override;
    bool describeCollection(const QString &collection, const Description &description) override;
    // A limit of 0 or less is none.
    [[nodiscard]] QVector<Wanted> wantingMetadata(bool all, int limit) const override;
    void metadataTried(int id, bool isShow) override;

private:
    const Database &m_database;
    MovieLists m_movies;
    ShowLists m_shows;
    VideoEdits m_edits;
};
