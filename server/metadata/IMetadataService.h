// Searches for what a film, a show or a song is, and takes over the answer that the user chose.
//
// Asks the provider where one is configured, and else answers from what the library and the sidecars know.
// Called from the threads of requests; may wait for the network, at most ten seconds.
#pragma once

#include "records/LibraryRecords.h"

#include <QString>
#include <QVector>

class IMetadataService {
public:
    virtual ~IMetadataService() = default;

    [[nodiscard]] virtual QVector<MatchRecord> searchMovie(const QString &name, const QString &year) = 0;
    [[nodiscard]] virtual QVector<MatchRecord> searchTvshow(const QString &name, const QString &year) = 0;
    [[nodiscard]] virtual QVector<SongMatchRecord> searchSong(const QString &title,
                                                              const QString &artist) = 0;

    // The item becomes the film or the episode with this id (MatchRecord::strMediaId).
    virtual bool toMovie(int idFile, const QString &mediaId) = 0;
    virtual bool toEpisode(int idFile, const QString &mediaId, int season, int episode) = 0;
    // Reads the song's file again and takes its tags for what they say.
    virtual bool fixMusic(int idFile) = 0;

    virtual void setLanguage(const QString &language) = 0;
    virtual void setProxy(const QString &host, const QString &port, const QString &user,
                          const QString &password) = 0;
    virtual void cancelProxy() = 0;
};
