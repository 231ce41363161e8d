// Which pictures of a folder belong to what: to the folder as a whole, to one of its files, to a season or an
// album.
//
// Made from the names of a folder in one pass; each question then costs a few look-ups, and where nothing but
// a folder "extrafanart" has a backdrop, its listing. Answers are absolute paths, or empty. Case doesn't
// matter; of two alike the JPEG comes first. Any thread.
#pragma once

#include "FolderListing.h"

#include <QHash>
#include <QStringList>

struct Artwork {
    QString poster;
    QString backdrop;
    QString thumb;
};

class ArtworkFiles final {
public:
    // files: to look into "extrafanart" with; without it that folder is left alone.
    ArtworkFiles(const QString &folder, const QVector<FolderEntry> &entries,
                 const IFolderFiles *files = nullptr);

    // Of the film, show or season whose own folder this is.
    [[nodiscard]] Artwork ofFolder() const;
    // name: of the file, without its suffix.
    [[nodiscard]] Artwork ofFile(const QString &name) const;
    // Asked of a show's folder: season01-poster, season-specials-poster.
    [[nodiscard]] Artwork ofSeason(int number) const;
    // Of the music in the folder.
    [[nodiscard]] QString albumCover() const;
    [[nodiscard]] QString artistPicture() const;
    // Pictures whose names only those give who sort films: "poster", "fanart", not "folder" or "cover".
    [[nodiscard]] bool hasFilmArtwork() const;

private:
    [[nodiscard]] QString first(const QStringList &names) const;
    [[nodiscard]] QString backdrop(const QString &prefix) const;
    [[nodiscard]] QString extraBackdrop() const;

    struct Picture {
        QString path;
        int rank{0};
    };
    QHash<QString, Picture> m_pictures; // by the name without suffix, in lower case
    const IFolderFiles *m_files;
    QString m_backdropFolder; // empty where there is none
};
