// Turns what a folder holds into films, episodes and videos.
//
// What is a film and what is a video: a file (with its versions and parts) is a film when an NFO says so;
// when its name has a year; or when it is the only one of its folder and that folder's name has a year or
// film artwork lies in it. Names that cameras give are videos unless an NFO says other; so is a bare year
// without words of a release beside a word of home life ("Birthday 2015"). All else is a video too. Below an
// adult library folder everything is adult content and nothing an episode.
//
// What is an episode: a file whose name has an episode's number (EpisodeNumber). The folders around help: one
// with a tvshow.nfo, or the parent of a season's folder, is the show's. Without such a folder the show is the
// one that the names tell; its key is then the folder, or a path below it that ends in the series' title
// where one folder holds several series. The season of a daily show is the year and its number MMDD. A dated
// file without a show's folder counts only with the name of a series in front of the date, and never when the
// name is a camera's or tells of home life.
//
// Versions and parts are shown, and deleted, as one item: files of one episode are that only when their names
// are the same but for words of a release or the mark of a part.
//
// Extras and samples are left out; a disc's folder is one item. wantsMetadata is true for films and episodes
// of which only the name spoke. Takes n log n time for a folder of n files. Keeps no state but the reader;
// any thread.
#pragma once

#include "FolderListing.h"

struct IdentifiedFolder {
    QVector<ScannedVideo> videos;
    QVector<ScannedShow> shows; // of the episodes in videos
};

class Identifier final {
public:
    explicit Identifier(const IFolderFiles &files);

    [[nodiscard]] IdentifiedFolder identify(const FolderListing &listing) const;

    // Whether a scan goes into the folder: discs are items as a whole.
    [[nodiscard]] static bool entersFolder(const QString &name);

private:
    // The folder, or one above it, holds what comes with a film.
    [[nodiscard]] bool isExtra(const FolderListing &listing) const;

    const IFolderFiles &m_files;
};
