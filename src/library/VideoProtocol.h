// The requests of the server itself and of its video library, one function each: parameters in, result values
// out. A request that fails gives false, 0 or nothing. No state; any thread, and a call blocks for its
// time-out at most.
#pragma once

#include "LibraryFilters.h"
#include "LibraryPaths.h"
#include "MediaItem.h"
#include "VideoLists.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QStringList>

class JsonRpc;

class VideoProtocol final {
public:
    // rpc: outlives this object.
    explicit VideoProtocol(const JsonRpc &rpc)
        : m_rpc(rpc)
    {
    }

    struct Pulse {
        bool isScanFinished{false};
        bool isScraperFinished{false};
    };
    struct Library {
        std::optional<int> id;
        bool isServerThere{false}; // it answered, if only that it has no answer yet
    };
    struct Proxy {
        QString host;
        QString port;
        QString userName;
        QString password;
    };
    struct Fix {
        int idFile{0};
        QString mediaId;         // of the proposal
        QString sourceMediaType; // "movie", "tvshow" or empty: where the record stands now
    };

    // ---- the server
    [[nodiscard]] Library library() const;
    [[nodiscard]] std::optional<int> libraryId() const { return library().id; }
    [[nodiscard]] std::optional<LibraryPaths::Map> folders(int libraryId) const;
    [[nodiscard]] Pulse heartbeat() const;
    void setProxy(const Proxy &proxy) const;
    void cancelProxy() const;

    // ---- maintenance
    void update(int libraryId) const;
    void rebuild() const;
    void updateByLanguage(int libraryId, const QString &language) const;
    [[nodiscard]] std::optional<int> addPath(int libraryId, const QString &path,
                                             const QString &scraper) const;
    [[nodiscard]] bool deletePath(int libraryId, int pathId) const;

    // ---- lists
    [[nodiscard]] int total(const VideoListRow &row, int libraryId, const LibraryQuery &query) const;
    [[nodiscard]] QJsonArray entry(const VideoListRow &row, int libraryId, const LibraryQuery &query,
                                   int index) const;
    [[nodiscard]] QJsonArray groupMembers(int idGroup, const LibraryQuery &query) const;
    [[nodiscard]] QList<int> seasons(int idTvshow) const;
    [[nodiscard]] QJsonObject season(int idTvshow, int season) const;
    [[nodiscard]] QList<int> episodes(int idTvshow, int season) const;
    [[nodiscard]] QJsonObject episode(int idTvshow, int season, int episode) const;
    [[nodiscard]] QJsonObject movieDetails(int idFile) const;

    // ---- what the lists can be filtered by; type is "movie" or "tvshow"
    [[nodiscard]] QStringList countries(const QString &type) const;
    [[nodiscard]] QStringList genres(const QString &type) const;
    [[nodiscard]] QStringList years(const QString &type) const;

    // ---- changes
    [[nodiscard]] bool deleteMovie(int idFile, bool deleteFile) const;
    [[nodiscard]] bool deleteEpisode(int idFile, bool deleteFile) const;
    [[nodiscard]] QList<MediaItem> searchMovie(const QString &name, const QString &year) const;
    [[nodiscard]] QList<MediaItem> searchTvShow(const QString &name, const QString &year) const;
    [[nodiscard]] bool makeMovie(const Fix &fix) const;
    [[nodiscard]] bool makeEpisode(const Fix &fix, int season, int episode) const;

private:
    [[nodiscard]] QJsonObject listParams(const VideoListRow &row, int libraryId, const LibraryQuery &query,
                                         int start) const;
    [[nodiscard]] QStringList choices(const char *method, const char *key, const QString &type) const;
    [[nodiscard]] QList<int> numbers(const char *method, const QJsonObject &params, const char *list,
                                     const char *key) const;

    const JsonRpc &m_rpc;
};
