// What a scan finds and hands to the database, a folder at a time.
//
// A folder is the unit of a scan: names decide only together (versions, parts, seasons), so a folder that
// changed is read again as a whole, and one whose fingerprint is the known one costs nothing but its listing.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

struct FileStamp {
    qint64 size{0};
    qint64 modifiedMs{0}; // since the epoch, UTC

    [[nodiscard]] bool operator==(const FileStamp &other) const
    {
        return size == other.size && modifiedMs == other.modifiedMs;
    }
};

// What is told about a film, an episode, a show or a video, whatever told it: name, sidecar, file or
// provider. Lists of persons and genres are joined with ", ". An empty text and a zero mean: not known.
struct Description {
    QString title;
    QString sortTitle;
    QString originalTitle;
    QString rating;
    QString director;
    QString cast;
    QString genre;
    QString country;
    QString overview;
    QString poster;
    QString backdrop;
    int year{0};
    int runtimeMinutes{0};
    QString releaseDate;               // ISO 8601 date
    QMap<QString, QString> identities; // "tmdb", "imdb", "tvdb" to the number there
};

struct ScannedVideo {
    enum class Kind { Movie, Episode, Video, Adult };

    // The path on the wire: of the file, or of the pseudo file ("folder.ifo") of a disc folder.
    QString path;
    // What stands on disk and is watched for size and time.
    QString realPath;
    FileStamp stamp;
    Kind kind{Kind::Video};
    Description description;
    // A further version of the film, or a later part of it, names the path of the item that the lists show.
    QString leadPath;
    // Movies: the collection, empty for none.
    QString collection;
    QString collectionOverview;
    // Episodes: the key of their show (ScannedShow::key) and their place in it.
    QString showKey;
    int season{0};
    int episode{0};
    int lastEpisode{0}; // of a file that holds several; else the same number
    // True when nothing but the name spoke, so that a provider may improve it.
    bool wantsMetadata{false};
};

struct ScannedShow {
    QString key; // the absolute path of the show's folder
    Description description;
    QMap<int, Description> seasons;
};

struct ScannedSong {
    QString path; // of the sound file, or of the CUE sheet whose track this is
    FileStamp stamp;
    QString title;
    QString artist;
    QString albumArtist;
    QString album;
    QString genre;
    QString poster; // key of the cover
    QString suffix;
    QString cuePath;    // of the sound file that a CUE track lies in, else empty
    int track{-1};      // number of a CUE track, else -1
    int trackNumber{0}; // in the album, as tagged
    int discNumber{0};
    int year{0};
    int runtimeMs{0};
};

// All that a folder now holds. What was known in it and is not named here has left it.
struct ScannedFolder {
    int pathId{0};
    QString path;
    QByteArray fingerprint;
    QVector<ScannedVideo> videos;
    QVector<ScannedShow> shows;
    QVector<ScannedSong> songs;
};

struct KnownFile {
    QString path;
    FileStamp stamp;
};
