// Libraries in memory for tests of the protocol: they answer what a test put into them and remember what was
// asked.
#pragma once

#include "metadata/IMetadataService.h"
#include "rpc/IServerTasks.h"
#include "store/IArtworkKeys.h"
#include "store/ILibraryRoots.h"
#include "store/IMusicLibrary.h"
#include "store/IVideoLibrary.h"

#include <QMap>

#include <atomic>
#include <stdexcept>

struct FakeArtwork final : IArtworkKeys {
    QStringList named;

    bool isNamed(const QString &key) const override { return named.contains(key); }
};

struct FakeRoots final : ILibraryRoots {
    QVector<RootFolder> stored;
    bool refuses{false};

    int videoLibraryId() const override { return 1; }
    int musicLibraryId() const override { return 2; }
    QVector<RootFolder> folders(int libraryId) const override
    {
        QVector<RootFolder> found;
        for (const RootFolder &folder : stored) {
            if (folder.libraryId == libraryId)
                found.append(folder);
        }
        return found;
    }
    int addFolder(int libraryId, const QString &path, const QString &scraperType) override
    {
        if (refuses)
            return -1;
        for (RootFolder &folder : stored) {
            if (folder.libraryId == libraryId && folder.path == path) {
                folder.scraperType = scraperType;
                return folder.pathId;
            }
        }
        stored.append({int(stored.size()) + 10, libraryId, path, scraperType, true});
        return stored.last().pathId;
    }
    bool removeFolder(int, int pathId) override
    {
        const auto end = std::remove_if(stored.begin(), stored.end(),
                                        [&](const RootFolder &folder) { return folder.pathId == pathId; });
        const bool found = end != stored.end();
        stored.erase(end, stored.end());
        return found;
    }
    void setOnline(int, bool) override {}
};

template<typename Record>
Page<Record> partOf(const QVector<Record> &rows, const ListRequest &request)
{
    const int start = qMin(request.start, rows.size());
    const int end = qBound(start, request.end, rows.size());
    return {rows.size(), rows.mid(start, end - start)};
}

struct FakeVideos final : IVideoLibrary {
    QMap<Role, QVector<MovieRecord>> items;
    QVector<GroupRecord> allGroups;
    QVector<ShowRecord> allShows;
    QVector<SeasonRecord> allSeasons;
    QVector<EpisodeRecord> allEpisodes;
    QMap<int, QStringList> files;
    QVector<int> removed;
    mutable std::atomic<bool> throws{false};
    mutable ListRequest lastRequest;

    Page<MovieRecord> movies(Role role, const ListRequest &request) const override
    {
        if (throws)
            throw std::runtime_error("broken");
        lastRequest = request;
        return partOf(items.value(role), request);
    }
    MovieRecord movie(int idFile) const override
    {
        for (const QVector<MovieRecord> &rows : items) {
            for (const MovieRecord &row : rows) {
                if (row.idFile == idFile)
                    return row;
            }
        }
        return {};
    }
    Page<GroupRecord> groups(const ListRequest &request) const override { return partOf(allGroups, request); }
    QVector<MovieRecord> groupMovies(int, SortMethod sort, bool ascending) const override
    {
        lastRequest.sort = sort;
        lastRequest.ascending = ascending;
        return items.value(Role::Movies);
    }
    Page<ShowRecord> shows(const ListRequest &request) const override { return partOf(allShows, request); }
    QVector<SeasonRecord> seasons(int) const override { return allSeasons; }
    SeasonRecord season(int, int number) const override
    {
        for (const SeasonRecord &season : allSeasons) {
            if (season.iSeason == number)
                return season;
        }
        return {};
    }
    QVector<EpisodeRecord> episodes(int, int) const override { return allEpisodes; }
    EpisodeRecord episode(int, int, int number) const override
    {
        for (const EpisodeRecord &episode : allEpisodes) {
            if (episode.iEpisode == number)
                return episode;
        }
        return {};
    }
    QStringList genres(Role role) const override
    {
        return {role == Role::Movies ? QStringLiteral("Drama") : QStringLiteral("Crime")};
    }
    QStringList countries(Role) const override { return {QStringLiteral("France")}; }
    QVector<int> years(Role) const override { return {2015, 2016}; }
    QStringList filesOf(int idFile) const override { return files.value(idFile); }
    bool remove(int idFile, Removal) override
    {
        removed.append(idFile);
        return true;
    }
    ScannedVideo scanned(int) const override { return {}; }
    bool matchMovie(int, const Description &, const QString &) override { return true; }
    bool matchEpisode(int, const Description &, const Description &, int, int) override { return true; }
    bool describeMovie(int, const Description &, const QString &) override { return true; }
    bool describeShow(int, const Description &, const QMap<int, Description> &) override { return true; }
    bool describeEpisode(int, const Description &) override { return true; }
    QVector<Wanted> wantingMetadata(bool, int) const override { return {}; }
    void metadataTried(int, bool) override {}
};

struct FakeMusic final : IMusicLibrary {
    QVector<SongRecord> all;
    QVector<AlbumRecord> allAlbums;
    QVector<PlaylistRecord> lists;
    QMap<int, QStringList> files;
    QVector<int> removed;
    QStringList calls;
    SongRecord edited;
    mutable ListRequest lastRequest;

    Page<SongRecord> part(const ListRequest &request) const
    {
        lastRequest = request;
        return partOf(all, request);
    }
    Page<SongRecord> songs(const ListRequest &request) const override { return part(request); }
    Page<SongRecord> recentSongs(const ListRequest &request) const override { return part(request); }
    Page<SongRecord> playlistSongs(int, const ListRequest &request) const override { return part(request); }
    Page<SongRecord> albumSongs(int, const ListRequest &request) const override { return part(request); }
    Page<SongRecord> artistSongs(const QString &, const ListRequest &request) const override
    {
        return part(request);
    }
    Page<SongRecord> genreSongs(const QString &, const ListRequest &request) const override
    {
        return part(request);
    }
    Page<AlbumRecord> albums(const ListRequest &request) const override { return partOf(allAlbums, request); }
    QVector<ArtistRecord> artists() const override
    {
        return {{QStringLiteral("Singer"), QStringLiteral("s.jpg")}};
    }
    QStringList genres() const override { return {QStringLiteral("Jazz")}; }
    QVector<PlaylistRecord> playlists() const override { return lists; }
    SongRecord song(int idFile) const override
    {
        for (const SongRecord &song : all) {
            if (song.idFile == idFile)
                return song;
        }
        return {};
    }
    bool note(const QString &call)
    {
        calls.append(call);
        return true;
    }
    int createPlaylist(const PlaylistRecord &playlist) override
    {
        lists.append(playlist);
        return lists.size();
    }
    bool changePlaylist(const PlaylistRecord &playlist) override
    {
        return note(QStringLiteral("changePlaylist %1").arg(playlist.idPlayList));
    }
    bool removePlaylist(int id) override { return note(QStringLiteral("removePlaylist %1").arg(id)); }
    bool addToPlaylist(int id, int song) override
    {
        return note(QStringLiteral("add %1 %2").arg(id).arg(song));
    }
    bool removeFromPlaylist(int id, int song) override
    {
        return note(QStringLiteral("remove %1 %2").arg(id).arg(song));
    }
    bool setLiked(int id, bool liked) override
    {
        return note(QStringLiteral("like %1 %2").arg(id).arg(int(liked)));
    }
    bool notePlayed(int id) override { return note(QStringLiteral("played %1").arg(id)); }
    bool editSong(const SongRecord &song) override
    {
        edited = song;
        return true;
    }
    bool setAlbumPoster(int id, const QString &poster) override
    {
        return note(QStringLiteral("album %1 ").arg(id) + poster);
    }
    bool setArtistPoster(const QString &artist, const QString &poster) override
    {
        return note(QStringLiteral("artist ") + artist + QLatin1Char(' ') + poster);
    }
    bool restoreSong(int) override { return true; }
    QStringList filesOf(int idFile) const override { return files.value(idFile); }
    QVector<int> ids() const
    {
        QVector<int> found;
        for (const SongRecord &song : all)
            found.append(song.idFile);
        return found;
    }
    QVector<int> songIdsOfAlbum(int) const override { return ids(); }
    QVector<int> songIdsOfArtist(const QString &artist) const override
    {
        QVector<int> found;
        for (const SongRecord &song : all) {
            if (song.artist == artist)
                found.append(song.idFile);
        }
        return found;
    }
    QVector<int> songIdsOfGenre(const QString &) const override { return ids(); }
    bool removeSongs(const QVector<int> &ids, Removal) override
    {
        removed += ids;
        const auto gone = [&](const SongRecord &song) { return ids.contains(song.idFile); };
        all.erase(std::remove_if(all.begin(), all.end(), gone), all.end());
        return true;
    }
};

struct FakeTasks final : IServerTasks {
    QStringList calls;
    bool finished{true};
    bool scraperFinished{false};

    void update(int libraryId) override { calls.append(QStringLiteral("update %1").arg(libraryId)); }
    void rebuild() override { calls.append(QStringLiteral("rebuild")); }
    void updateLanguage(const QString &language) override
    {
        calls.append(QStringLiteral("language ") + language);
    }
    void foldersChanged() override { calls.append(QStringLiteral("folders")); }
    void rescan(int pathId) override { calls.append(QStringLiteral("rescan %1").arg(pathId)); }
    bool isScanFinished() const override { return finished; }
    bool takeScraperFinished() override { return std::exchange(scraperFinished, false); }
};

struct FakeMetadata final : IMetadataService {
    QStringList calls;
    bool takes{true};

    QVector<MatchRecord> searchMovie(const QString &name, const QString &year) override
    {
        calls.append(name + QLatin1Char('/') + year);
        MatchRecord match;
        match.title = name;
        match.strMediaId = QStringLiteral("603");
        return {match};
    }
    QVector<MatchRecord> searchTvshow(const QString &name, const QString &year) override
    {
        return searchMovie(name, year);
    }
    QVector<SongMatchRecord> searchSong(const QString &title, const QString &artist) override
    {
        SongMatchRecord match;
        match.title = title;
        match.albumName = QStringLiteral("Album");
        match.artists = {{artist, 7}};
        match.genres = QStringList{QStringLiteral("Jazz")};
        return {match};
    }
    bool toMovie(int, const QString &mediaId) override
    {
        calls.append(mediaId);
        return takes;
    }
    bool toEpisode(int, const QString &, int season, int episode) override
    {
        calls.append(QStringLiteral("S%1E%2").arg(season).arg(episode));
        return takes;
    }
    bool fixMusic(int) override { return takes; }
    void setLanguage(const QString &language) override { calls.append(language); }
    void setProxy(const QString &host, const QString &port, const QString &, const QString &) override
    {
        calls.append(host + QLatin1Char(':') + port);
    }
    void cancelProxy() override { calls.append(QStringLiteral("cancel")); }
};
