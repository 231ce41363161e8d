// What users and providers change of videos. Every operation is one transaction of the writer and false where
// nothing was stored.
#pragma once

#include "IVideoLibrary.h"

class Database;

class VideoEdits final {
public:
    explicit VideoEdits(const Database &database);

    bool remove(int idFile, Removal removal) const;
    bool matchMovie(int idFile, const Description &description, const QString &collection) const;
    bool matchEpisode(int idFile, const Description &show, const Description &episode, int season,
                      int number) const;
    // On what a user chose only where it is of the same identity: the same film in another language.
    bool describe(int idFile, const Description &description, const QString &collection) const;
    bool describeShow(int idTvshow, const Description &description,
                      const QMap<int, Description> &seasons) const;

    // By the name that its films carry; what is empty stays as it was.
    bool describeCollection(const QString &collection, const Description &description) const;

    // As the lists have it now: a match's role and place, the description of all sources.
    [[nodiscard]] ScannedVideo scanned(int idFile) const;
    [[nodiscard]] QVector<IVideoLibrary::Wanted> wanting(bool all, int limit) const;
    void tried(int id, bool isShow) const;

private:
    const Database &m_database;
};
