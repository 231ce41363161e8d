// Shows with their seasons and episodes. What a season or an episode does not tell of itself is the show's.
// Reads only; any thread.
#pragma once

#include "ListReader.h"

#include "records/LibraryRecords.h"
#include "records/ListRequest.h"

class Database;

class ShowLists final {
public:
    explicit ShowLists(const Database &database);

    [[nodiscard]] Page<ShowRecord> shows(const ListRequest &request) const;
    // Those of which an episode is there.
    [[nodiscard]] QVector<SeasonRecord> seasons(int idTvshow) const;
    [[nodiscard]] SeasonRecord season(int idTvshow, int number) const;
    // One for each number; a file that holds several episodes is the first of them.
    [[nodiscard]] QVector<EpisodeRecord> episodes(int idTvshow, int season) const;
    // Any of the numbers that a file holds.
    [[nodiscard]] EpisodeRecord episode(int idTvshow, int season, int number) const;

private:
    [[nodiscard]] ShowRecord show(int idTvshow) const;
    [[nodiscard]] QVector<SeasonRecord> readSeasons(int idTvshow, int first, int last) const;
    [[nodiscard]] EpisodeRecord completed(EpisodeRecord episode, const ShowRecord &show) const;

    const Database &m_database;
    ListReader m_reader;
};
