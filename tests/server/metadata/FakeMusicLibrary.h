// A music library in memory that answers patterns and artists, and notes which songs were restored.
#pragma once

#include "store/IMusicLibrary.h"

class FakeMusicLibrary final : public IMusicLibrary {
public:
    QVector<SongRecord> all;
    QVector<int> restored;

    Page<SongRecord> songs(const ListRequest &request) const override
    {
        Page<SongRecord> page;
        for (const SongRecord &record : all) {
            if (record.title.contains(request.pattern, Qt::CaseInsensitive))
                page.rows << record;
        }
        page.total = page.rows.size();
        return page;
    }
    Page<SongRecord> recentSongs(const ListRequest &) const override { return {}; }
    Page<SongRecord> playlistSongs(int, const ListRequest &) const override { return {}; }
    Page<SongRecord> albumSongs(int, const ListRequest &) const override { return {}; }
    Page<SongRecord> artistSongs(const QString &artist, const ListRequest &) const override
    {
        Page<SongRecord> page;
        for (const SongRecord &record : all) {
            if (record.artist == artist)
                page.rows << record;
        }
        page.total = page.rows.size();
        return page;
    }
    Page<SongRecord> genreSongs(const QString &, const ListRequest &) const override { return {}; }
    Page<AlbumRecord> albums(const ListRequest &) const override { return {}; }
    QVector<ArtistRecord> artists() const override { return {}; }
    QStringList genres() const override { return {}; }
    QVector<PlaylistRecord> playlists() const override { return {}; }
    SongRecord song(int idFile) const override
    {
        for (const SongRecord &record : all) {
            if (record.idFile == idFile)
                return record;
        }
        return {};
    }
    int createPlaylist(const PlaylistRecord &) override { return -1; }
    bool changePlaylist(const PlaylistRecord &) override { return false; }
    bool removePlaylist(int) override { return false; }
    bool addToPlaylist(int, int) override { return false; }
    bool removeFromPlaylist(int, int) override { return false; }
    bool setLiked(int, bool) override { return false; }
    bool notePlayed(int) override { return false; }
    bool editSong(const SongRecord &) override { return false; }
    bool setAlbumPoster(int, const QString &) override { return false; }
    bool setArtistPoster(const QString &, const QString &) override { return false; }
    bool restoreSong(int idFile) override
    {
        restored << idFile;
        return true;
    }
    QStringList filesOf(int) const override { return {}; }
    QVector<int> songIdsOfAlbum(int) const override { return {}; }
    QVector<int> songIdsOfArtist(const QString &) const override { return {}; }
    QVector<int> songIdsOfGenre(const QString &) const override { return {}; }
    bool removeSongs(const QVector<int> &, Removal) override { return false; }
};
