#include "FilmIdentifier.h"

#include "CandidateCollector.h"
#include "DescriptionMerge.h"
#include "FolderPath.h"
#include "names/CameraName.h"
#include "names/EpisodeNumber.h"
#include "names/MoviePart.h"
#include "names/MovieVersion.h"
#include "names/NameText.h"

#include <QHash>
#include <QMap>

#include <algorithm>

namespace {

// Disc folders are often no more than "Disc 1"; then the folder above has the film's name.
QString filmFolderName(const FolderListing &listing)
{
    if (!FolderPath::isBelow(listing.path, listing.rootPath))
        return {};
    const QString name = FolderPath::nameOf(listing.path);
    const MoviePart part = MoviePart::parse(name);
    const QString parent = FolderPath::parentOf(listing.path);
    const bool markOnly = part.isValid() && NameText::comparable(part.stem).isEmpty();
    return markOnly && FolderPath::isBelow(parent, listing.rootPath) ? FolderPath::nameOf(parent) : name;
}

// A folder of recordings: what its files have behind its name are no labels of versions.
bool isAlbum(const QString &folderName)
{
    return CameraName::isCamera(folderName)
           || (CameraName::isHome(folderName) && !VideoName::parse(folderName).yearInBrackets);
}

const NfoRecord *filmRecord(const QVector<NfoRecord> &records)
{
    for (const NfoRecord &record : records)
        if (record.kind == NfoRecord::Kind::Movie || record.kind == NfoRecord::Kind::Link)
            return &record;
    return nullptr;
}

} // namespace

FilmIdentifier::FilmIdentifier(const IFolderFiles &files, const FolderListing &listing,
                               const ArtworkFiles &artwork)
    : m_files(files)
    , m_listing(listing)
    , m_artwork(artwork)
    , m_folderName(filmFolderName(listing))
    , m_folder(VideoName::parse(m_folderName))
{
}

void FilmIdentifier::take(const QVector<VideoCandidate> &candidates, IdentifiedFolder &result) const
{
    const QVector<Group> all = groups(candidates);
    const bool sole = all.size() == 1 && result.videos.isEmpty() && !m_folderName.isEmpty();
    for (const Group &group : all) {
        ScannedVideo lead = identify(group, sole);
        // Videos of one's own are kept apart: what belongs together is deleted together.
        if (group.first().isDisc || (sole && lead.kind != ScannedVideo::Kind::Video))
            lead.leadPath = earlierPart(group.first());
        result.videos.append(lead);
        for (int i = 1; i < group.size(); ++i) {
            ScannedVideo other = group.at(i).toVideo(lead.kind);
            other.description = lead.description;
            other.collection = lead.collection;
            other.leadPath = lead.leadPath.isEmpty() ? lead.path : lead.leadPath;
            result.videos.append(other);
        }
    }
}

// Parts first, by their stem; then versions of the folder's film, of which there is one group at most.
QVector<FilmIdentifier::Group> FilmIdentifier::groups(const QVector<VideoCandidate> &candidates) const
{
    QHash<QString, QMap<int, int>> parts; // stem to number to candidate
    for (int i = 0; i < candidates.size(); ++i) {
        const MoviePart part = MoviePart::parse(candidates.at(i).name);
        QMap<int, int> &known = parts[part.stem.toLower()];
        if (part.isValid() && !candidates.at(i).isDisc && !known.contains(part.number))
            known.insert(part.number, i);
    }
    QVector<bool> taken(candidates.size(), false);
    QVector<Group> result;
    for (int i = 0; i < candidates.size(); ++i) {
        if (taken.at(i))
            continue;
        Group group{candidates.at(i)};
        const MoviePart part = MoviePart::parse(candidates.at(i).name);
        const QMap<int, int> same = part.isValid() ? parts.value(part.stem.toLower()) : QMap<int, int>();
        // Parts count from 1 on without a gap; else the numbers belong to the titles.
        if (same.size() > 1 && same.firstKey() == 1 && same.lastKey() == same.size()
            && same.value(part.number, -1) == i) {
            group.clear();
            for (const int member : same) {
                group.append(candidates.at(member));
                taken[member] = true;
            }
        }
        result.append(group);
    }
    if (m_folderName.isEmpty() || result.size() < 2 || isAlbum(m_folderName))
        return result;

    QVector<QPair<MovieVersion, int>> versions;
    for (int i = 0; i < result.size(); ++i)
        if (const MovieVersion version = MovieVersion::parse(result.at(i).first().name, m_folderName);
            version.isValid())
            versions.append({version, i});
    // One file of another name, and this is a folder of several films.
    if (versions.size() != result.size())
        return result;
    std::stable_sort(versions.begin(), versions.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    Group film;
    for (const auto &version : versions)
        film += result.at(version.second);
    return {film};
}

ScannedVideo FilmIdentifier::identify(const Group &group, bool sole) const
{
    const VideoCandidate &lead = group.first();
    const MoviePart part = group.size() > 1 ? MoviePart::parse(lead.name) : MoviePart();
    const QString ownName = part.isValid() && !part.stem.isEmpty() ? part.stem : lead.name;
    const VideoName own = VideoName::parse(ownName);
    // A folder with a year is named with more care than the file in it.
    const bool byFolder = sole && (m_folder.year > 0 || lead.isDisc) && !m_folder.title.isEmpty();
    const VideoName &spoken = byFolder ? m_folder : own;

    QVector<NfoRecord> records = lead.nfo;
    for (int i = 1; i < group.size() && !filmRecord(records); ++i)
        records = group.at(i).nfo;
    if (!filmRecord(records) && (sole || lead.isDisc))
        records = folderNfo();
    const NfoRecord *record = filmRecord(records);
    const bool told = record && record->kind == NfoRecord::Kind::Movie;

    const bool camera = CameraName::isCamera(ownName);
    const bool home = CameraName::isHome(ownName) && !spoken.yearInBrackets && !spoken.released;
    const bool named = spoken.year > 0 || (sole && m_artwork.hasFilmArtwork());
    const bool linked = record && !record->description.identities.isEmpty();
    const bool film = told || (!camera && !home && (named || linked || !own.identities.isEmpty()));
    const ScannedVideo::Kind kind = m_listing.adult ? ScannedVideo::Kind::Adult
                                    : film          ? ScannedVideo::Kind::Movie
                                                    : ScannedVideo::Kind::Video;

    ScannedVideo video = lead.toVideo(kind);
    if (record) {
        video.description = record->description;
        video.collection = record->collection;
        video.collectionOverview = record->collectionOverview;
    }
    Description byName;
    // A video is called as its file is: dates and numbers are what tells it from the next.
    const QString plain = NameText::title(NameText::sanitized(ownName));
    byName.title = kind == ScannedVideo::Kind::Video || spoken.title.isEmpty() ? plain : spoken.title;
    if (byName.title.isEmpty())
        byName.title = lead.name;
    byName.year = kind == ScannedVideo::Kind::Video ? 0 : spoken.year;
    byName.identities = byFolder ? m_folder.identities : own.identities;
    DescriptionMerge::fill(video.description, byName);
    for (const VideoCandidate &member : group)
        DescriptionMerge::fillArtwork(video.description, m_artwork.ofFile(member.name));
    if (sole)
        DescriptionMerge::fillArtwork(video.description, m_artwork.ofFolder());
    video.wantsMetadata = kind == ScannedVideo::Kind::Movie && !told;
    return video;
}

QVector<NfoRecord> FilmIdentifier::folderNfo() const
{
    QStringList names;
    QString any;
    int count = 0;
    for (const FolderEntry &entry : m_listing.entries) {
        if (entry.isFolder || !entry.name.endsWith(QLatin1String(".nfo"), Qt::CaseInsensitive))
            continue;
        ++count;
        any = entry.name;
        if (entry.name.compare(QLatin1String("movie.nfo"), Qt::CaseInsensitive) == 0
            || entry.name.compare(QLatin1String("VIDEO_TS.nfo"), Qt::CaseInsensitive) == 0)
            names.append(entry.name);
    }
    // The only one of a film's own folder belongs to it under any name.
    if (names.isEmpty() && count == 1)
        names.append(any);
    if (names.isEmpty()) {
        const QString inside = FolderPath::join(m_listing.path, QStringLiteral("VIDEO_TS/VIDEO_TS.nfo"));
        return m_files.exists(inside) ? NfoReader::read(m_files.read(inside, NfoReader::largestFile))
                                      : QVector<NfoRecord>();
    }
    return NfoReader::read(
        m_files.read(FolderPath::join(m_listing.path, names.first()), NfoReader::largestFile));
}

// "Film (2010)/Disc 2" is a part of the film that "Disc 1" beside it begins; so is the only file of a folder
// that is called no more than "CD 2".
QString FilmIdentifier::earlierPart(const VideoCandidate &candidate) const
{
    const MoviePart part = MoviePart::parse(FolderPath::nameOf(m_listing.path));
    const QString parent = FolderPath::parentOf(m_listing.path);
    const bool isMarkAlone = NameText::comparable(part.stem).isEmpty();
    if (part.number < 2 || !FolderPath::isBelow(m_listing.path, m_listing.rootPath)
        || (isMarkAlone && !FolderPath::isBelow(parent, m_listing.rootPath))
        || (!isMarkAlone && !candidate.isDisc))
        return {};
    for (const FolderEntry &entry : m_files.list(parent)) {
        const MoviePart other = entry.isFolder ? MoviePart::parse(entry.name) : MoviePart();
        if (other.number != 1 || other.stem.compare(part.stem, Qt::CaseInsensitive) != 0)
            continue;
        const QString folder = FolderPath::join(parent, entry.name);
        const QVector<VideoCandidate> first = CandidateCollector(m_files).collect(
            {folder, m_listing.rootPath, m_listing.adult, m_files.list(folder)});
        for (const VideoCandidate &one : first) {
            const bool begins = candidate.isDisc ? one.isDisc
                                                 : !one.isDisc && first.size() == 1
                                                       && !EpisodeNumber::parse(one.name).isValid();
            if (begins)
                return one.path;
        }
    }
    return {};
}
