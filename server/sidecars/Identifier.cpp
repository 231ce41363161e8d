#include "Identifier.h"

#include "CandidateCollector.h"
#include "EpisodeIdentifier.h"
#include "FilmIdentifier.h"
#include "FolderPath.h"
#include "names/DiscStructure.h"
#include "names/ExtraName.h"
#include "names/MediaSuffix.h"
#include "names/SeasonFolder.h"
#include "names/VideoName.h"

Identifier::Identifier(const IFolderFiles &files)
    : m_files(files)
{
}

IdentifiedFolder Identifier::identify(const FolderListing &listing) const
{
    IdentifiedFolder result;
    if (isExtra(listing))
        return result;
    QVector<VideoCandidate> candidates = CandidateCollector(m_files).collect(listing);
    if (candidates.isEmpty())
        return result;
    const ArtworkFiles artwork(listing.path, listing.entries, &m_files);
    if (!listing.adult)
        EpisodeIdentifier(m_files, listing, artwork).take(candidates, result);
    FilmIdentifier(m_files, listing, artwork).take(candidates, result);
    return result;
}

bool Identifier::entersFolder(const QString &name)
{
    return !DiscStructure::isStructure(name);
}

bool Identifier::isExtra(const FolderListing &listing) const
{
    for (QString path = listing.path; FolderPath::isBelow(path, listing.rootPath);
         path = FolderPath::parentOf(path)) {
        const ExtraName::Certainty certainty = ExtraName::ofFolder(FolderPath::nameOf(path));
        if (certainty == ExtraName::Certainty::Sure)
            return true;
        const QString parent = FolderPath::parentOf(path);
        if (certainty == ExtraName::Certainty::None || !FolderPath::isBelow(parent, listing.rootPath))
            continue;
        // "Clips" is how people name their own folders too: it counts only inside a film's or a show's.
        const QString name = FolderPath::nameOf(parent);
        if (VideoName::parse(name).year > 0 || SeasonFolder::parse(name).isValid())
            return true;
        for (const FolderEntry &entry : m_files.list(parent)) {
            const bool film = entry.isFolder ? DiscStructure::isStructure(entry.name)
                                                   || SeasonFolder::parse(entry.name).isValid()
                                             : MediaSuffix::isVideo(entry.name);
            if (film || entry.name.compare(QLatin1String("tvshow.nfo"), Qt::CaseInsensitive) == 0)
                return true;
        }
    }
    return false;
}
