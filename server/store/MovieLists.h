// The lists of films, videos and adult content, the collections, and what films and shows can be filtered by.
// Reads only; any thread.
#pragma once

#include "ListReader.h"

#include "records/LibraryRecords.h"
#include "records/ListRequest.h"

class Database;

class MovieLists final {
public:
    explicit MovieLists(const Database &database);

    // None for a role that has no films.
    [[nodiscard]] Page<MovieRecord> movies(Role role, const ListRequest &request) const;
    [[nodiscard]] MovieRecord movie(int idFile) const;
    [[nodiscard]] Page<GroupRecord> groups(const ListRequest &request) const;
    [[nodiscard]] QVector<MovieRecord> groupMovies(int idGroup, SortMethod sort, bool ascending) const;

    // Of films or shows; none for another role.
    [[nodiscard]] QStringList genres(Role role) const;
    [[nodiscard]] QStringList countries(Role role) const;
    [[nodiscard]] QVector<int> years(Role role) const;

private:
    const Database &m_database;
    ListReader m_reader;
};
