// Takes the episodes out of a folder's files and tells their shows. The rule stands in Identifier.h.
#pragma once

#include "ArtworkFiles.h"
#include "Identifier.h"
#include "VideoCandidate.h"
#include "names/EpisodeNumber.h"

#include <QSet>

class EpisodeIdentifier final {
public:
    EpisodeIdentifier(const IFolderFiles &files, const FolderListing &listing, const ArtworkFiles &artwork);

    // Moves the episodes out of the candidates into the result, with their shows.
    void take(QVector<VideoCandidate> &candidates, IdentifiedFolder &result);

private:
    struct Found {
        VideoCandidate file;
        EpisodeNumber number;
    };

    void findShowFolder();
    [[nodiscard]] QString keyOf(const Found &found, bool several) const;
    [[nodiscard]] QString titleOf(const Found &found) const;
    [[nodiscard]] ScannedVideo toEpisode(const Found &found, const QString &key) const;
    [[nodiscard]] ScannedShow describeShow(const QString &key, const Found &found) const;
    void describeSeasons(ScannedShow &show, const QSet<int> &numbers) const;
    [[nodiscard]] QVector<NfoRecord> readNfo(const QString &folder, const QVector<FolderEntry> &entries,
                                             const char *name) const;

    const IFolderFiles &m_files;
    const FolderListing &m_listing;
    const ArtworkFiles &m_artwork;
    QString m_showFolder; // empty where no folder is known to be a show's
    QVector<FolderEntry> m_showEntries;
    EpisodeNumber::Surroundings m_around;
    int m_seriesYear{0};
    QString m_filmTitle; // of a film's folder ("10x10 (2018)"), to compare by; its own file is no episode
};
