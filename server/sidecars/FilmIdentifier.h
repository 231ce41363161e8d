// Makes films, videos and adult content of what is left of a folder once its episodes are taken. The rule
// stands in Identifier.h.
#pragma once

#include "ArtworkFiles.h"
#include "Identifier.h"
#include "VideoCandidate.h"
#include "names/VideoName.h"

class FilmIdentifier final {
public:
    FilmIdentifier(const IFolderFiles &files, const FolderListing &listing, const ArtworkFiles &artwork);

    void take(const QVector<VideoCandidate> &candidates, IdentifiedFolder &result) const;

private:
    // The versions and parts of one film; the first is shown.
    using Group = QVector<VideoCandidate>;

    [[nodiscard]] QVector<Group> groups(const QVector<VideoCandidate> &candidates) const;
    [[nodiscard]] ScannedVideo identify(const Group &group, bool sole) const;
    [[nodiscard]] QVector<NfoRecord> folderNfo() const;
    [[nodiscard]] QString earlierPart(const VideoCandidate &candidate) const;

    const IFolderFiles &m_files;
    const FolderListing &m_listing;
    const ArtworkFiles &m_artwork;
    QString m_folderName; // empty for a library folder itself, whose name says nothing
    VideoName m_folder;
};
