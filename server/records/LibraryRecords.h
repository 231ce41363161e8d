// What the library answers with: one struct for each kind of object that crosses the wire.
//
// Posters and backdrops are the keys of pictures: the absolute path of a file below a library folder, or the
// name of a file in the picture cache. Years are 0 where they are not known. Runtimes of films are minutes as
// text, of songs milliseconds.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

// What a user takes out of the library: the record alone, or a file that was deleted from disk.
enum class Removal { FromLibrary, WithFile };

struct MovieRecord {
    int idFile{0};
    QString title;
    QString rating;
    QString runtime;
    QString director;
    QString cast;
    QString genre;
    QString overview;
    QString poster;
    QString backdrop;
    QString path;
    int year{0};
};

struct GroupRecord {
    int idGroup{0};
    QString title;
    QString poster;
    QString backdrop;
    QString overview;
    int fileCount{0};
};

struct ShowRecord {
    int idTvshow{0};
    QString title;
    QString rating;
    QString director;
    QString cast;
    QString genre;
    QString overview;
    QString poster;
    QString backdrop;
    QString path;
    int year{0};
};

struct SeasonRecord {
    int idSeason{0};
    int iSeason{0};
    QString title;
    QString director;
    QString cast;
    QString overview;
    QString poster;
    int year{0};
};

struct EpisodeRecord {
    int idFile{0};
    int iEpisode{0};
    QString title;
    QString director;
    QString cast;
    QString overview;
    QString poster;
    QString path;
    int year{0};
};

struct SongRecord {
    int idFile{0};
    QString title;
    QString artist;
    QString genre;
    QString poster;
    QString album;
    QString path;
    QString suffix;
    QString cuePath;
    int runtime{0};
    int year{0};
    int iTrack{-1};
    bool liked{false};
};

struct AlbumRecord {
    int idAlbum{0};
    QString title;
    QString artist;
    QString genre;
    QString poster;
    QString year;
};

struct ArtistRecord {
    QString name;
    QString localPath; // the artist's picture
};

struct PlaylistRecord {
    int idPlayList{0};
    QString title;
    QString overview;
    QString poster;
};

// One proposal of a search for a film or a show.
struct MatchRecord {
    QString title;
    QString releaseDate;
    QString runtime;
    QString poster;
    QString backdrop;
    QString strMediaId;
};

// One proposal of a search for a song.
struct SongMatchRecord {
    struct Artist {
        QString name;
        int id{0};
    };
    QString title;
    QString albumName;
    int duration{0};
    int year{0};
    QStringList genres;
    QVector<Artist> artists;
};

// A folder that the user gave to a library.
struct RootFolder {
    int pathId{0};
    int libraryId{0};
    QString path;
    QString scraperType; // as given when it was added; "avScraper" makes its films adult content
    bool online{true};   // false while it cannot be reached; what it holds stays
};
