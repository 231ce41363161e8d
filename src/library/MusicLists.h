// The lists of the music library that are fetched whole in two steps: first how many there are, then all of
// them. They differ in rows only. Their order is fixed, whatever the user chose for films.
#pragma once

#include <QJsonObject>

struct MusicListRow {
    const char *method;
    const char *totalKey; // "limits" where the total stands inside that object
    const char *listKey;
    const char *countSort; // of the first step
    const char *listSort;  // of the second
    bool hasLibrary;       // whether the library's id is among the parameters
};

namespace MusicLists {

extern const MusicListRow Songs;
extern const MusicListRow RecentSongs;
extern const MusicListRow Albums;
extern const MusicListRow PlaylistSongs;
extern const MusicListRow AlbumSongs;
extern const MusicListRow ArtistSongs;
extern const MusicListRow GenreSongs;

} // namespace MusicLists
