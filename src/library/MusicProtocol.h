// The requests of the server's music library, one function each: parameters in, result values out. A request
// that fails gives false, 0 or nothing. No state; any thread, and a call blocks for its time-out at most.
#pragma once

#include "LibraryPaths.h"
#include "MusicLists.h"
#include "MusicMatch.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QStringList>

class JsonRpc;

class MusicProtocol final {
public:
    // rpc: outlives this object.
    explicit MusicProtocol(const JsonRpc &rpc)
        : m_rpc(rpc)
    {
    }

    struct SongTexts {
        QString title;
        QString poster;
        QString artist;
        QString genre;
        int runtime{0};
        int year{0};
    };

    // ---- the library and its folders
    [[nodiscard]] std::optional<int> libraryId() const;
    [[nodiscard]] std::optional<LibraryPaths::Map> folders(int libraryId) const;
    [[nodiscard]] std::optional<int> addPath(int libraryId, const QString &path) const;
    [[nodiscard]] bool deletePath(int libraryId, int pathId) const;
    void update(int libraryId) const;
    // Counts for the usage records; empty where there are none.
    [[nodiscard]] QJsonObject statistics() const;

    // ---- lists: the two steps of a paged one, and those that come in one
    // owner: what is asked for beside the library, such as the playlist.
    [[nodiscard]] int total(const MusicListRow &row, int libraryId, const QJsonObject &owner = {}) const;
    [[nodiscard]] QJsonArray entries(const MusicListRow &row, int libraryId, int total,
                                     const QJsonObject &owner = {}) const;
    [[nodiscard]] QJsonArray playlists(int libraryId) const;
    [[nodiscard]] QJsonArray artists(int libraryId) const;
    [[nodiscard]] QJsonArray genres(int libraryId) const;
    // The owners of songs, for the lists above.
    [[nodiscard]] static QJsonObject ofPlaylist(int idPlayList);
    [[nodiscard]] static QJsonObject ofAlbum(int idAlbum);
    [[nodiscard]] static QJsonObject ofArtist(const QString &name);
    [[nodiscard]] static QJsonObject ofGenre(const QString &name);

    // ---- changes
    [[nodiscard]] std::optional<int> createPlaylist(const QString &poster, const QString &title,
                                                    const QString &overview) const;
    [[nodiscard]] bool fixPlaylist(int idPlaylist, const QString &poster, const QString &title,
                                   const QString &overview) const;
    [[nodiscard]] bool fixAlbum(int idAlbum, const QString &poster) const;
    [[nodiscard]] bool fixArtist(const QString &artist, const QString &poster) const;
    [[nodiscard]] bool fixSong(int idFile) const;
    [[nodiscard]] bool editSong(int idFile, const SongTexts &texts) const;
    [[nodiscard]] bool addToPlaylist(int idPlayList, int idFile) const;
    [[nodiscard]] bool removeFromPlaylist(int idPlayList, int idFile, bool deleteFile) const;
    [[nodiscard]] bool like(int idFile) const;
    [[nodiscard]] bool unlike(int idFile) const;
    [[nodiscard]] bool deletePlaylist(int idPlayList, bool deleteFiles) const;
    [[nodiscard]] bool addRecent(int idFile) const;
    [[nodiscard]] bool deleteSongs(const QStringList &ids, bool deleteFiles) const;
    // type: "artist" or "genre", then key is the name; "album", then it is the album's number.
    [[nodiscard]] bool deleteAll(const QString &type, const QString &key, bool deleteFiles) const;
    [[nodiscard]] QList<MusicMatch> searchSongs(const QString &title, const QString &artist) const;

private:
    [[nodiscard]] QJsonObject page(const MusicListRow &row, int libraryId, const char *sort, int end,
                                   const QJsonObject &owner) const;
    [[nodiscard]] QJsonArray whole(const char *method, int libraryId, const char *listKey) const;
    [[nodiscard]] bool change(const char *method, const QJsonObject &params, const char *key) const;

    const JsonRpc &m_rpc;
};
