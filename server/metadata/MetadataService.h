// Answers the searches of a user who corrects a match, and stores what was chosen: with the provider where
// one is set up, else with what the library itself knows.
//
// Owns the choice of language. Any thread; a call waits for the network at most ten seconds.
#pragma once

#include "IMetadataService.h"
#include "LocalMetadata.h"
#include "MetadataHttp.h"
#include "ProviderParts.h"

#include <functional>

class MetadataService final : public IMetadataService {
public:
    // Reads the tags of a song's file anew into the library; false when it can't be read.
    using SongReader = std::function<bool(int idFile)>;

    MetadataService(const ProviderParts &parts, IMusicLibrary &music, MetadataHttp &http,
                    SongReader readSong);

    [[nodiscard]] QVector<MatchRecord> searchMovie(const QString &name, const QString &year) override;
    [[nodiscard]] QVector<MatchRecord> searchTvshow(const QString &name, const QString &year) override;
    [[nodiscard]] QVector<SongMatchRecord> searchSong(const QString &title, const QString &artist) override;

    bool toMovie(int idFile, const QString &mediaId) override;
    bool toEpisode(int idFile, const QString &mediaId, int season, int episode) override;
    bool fixMusic(int idFile) override;

    void setLanguage(const QString &language) override;
    void setProxy(const QString &host, const QString &port, const QString &user,
                  const QString &password) override;
    void cancelProxy() override;

    [[nodiscard]] QString language() const;
    // Ends the calls that wait, and answers later ones without the network: the server goes down.
    void shutDown();

private:
    using Search = Answer<QVector<ProviderMatch>> (IMetadataProvider::*)(const QString &, int,
                                                                         const MetadataCall &);
    [[nodiscard]] QVector<MatchRecord> search(Search operation, const QString &name, int year);
    [[nodiscard]] MatchRecord proposalOf(const ProviderMatch &match, bool withPicture,
                                         const MetadataCall &call);
    [[nodiscard]] MetadataCall newCall();
    bool toProviderMovie(int idFile, const QString &id);
    bool toProviderEpisode(int idFile, const QString &id, int season, int episode);

    const ProviderParts m_parts;
    IMusicLibrary &m_music;
    MetadataHttp &m_http;
    const SongReader m_readSong;
    const LocalMetadata m_local;
    StopFlag m_stop;
    mutable std::mutex m_languageMutex;
    QString m_language{QStringLiteral("en")};
};
