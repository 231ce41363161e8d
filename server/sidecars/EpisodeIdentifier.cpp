#include "EpisodeIdentifier.h"

#include "DescriptionMerge.h"
#include "FolderPath.h"
#include "names/CameraName.h"
#include "names/MoviePart.h"
#include "names/NameText.h"
#include "names/ReleaseWords.h"
#include "names/SeasonFolder.h"
#include "names/VideoName.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <tuple>

namespace {

const char showNfo[] = "tvshow.nfo";

bool hasShowNfo(const QVector<FolderEntry> &entries)
{
    return std::any_of(entries.begin(), entries.end(), [](const FolderEntry &entry) {
        return !entry.isFolder && entry.name.compare(QLatin1String(showNfo), Qt::CaseInsensitive) == 0;
    });
}

// A day that a camera or a family wrote into the name. Daily shows have a folder of their own or another
// name.
bool isRecording(const VideoCandidate &candidate, const EpisodeNumber &number)
{
    return number.source == EpisodeNumber::Source::Date
           && (CameraName::isCamera(candidate.name) || CameraName::isHome(candidate.name));
}

// What files must share, beside their number, to be versions or parts of one episode: versions leave and are
// deleted together. The number in a name that says so is trusted more than a day, on which much may happen.
QString versionKey(const VideoCandidate &file, const EpisodeNumber &number)
{
    QString text = number.title;
    if (!number.isValid() || number.source == EpisodeNumber::Source::Date) {
        const int release = ReleaseWords::start(NameText::folded(file.name));
        text = release > 0 ? file.name.left(release) : file.name;
    }
    const MoviePart part = MoviePart::parse(text);
    return NameText::comparable(part.isValid() ? part.stem : text);
}

struct Numbered {
    ScannedVideo video;
    QString versionKey;
};

auto placeOf(const Numbered &episode)
{
    const ScannedVideo &video = episode.video;
    return std::tie(video.showKey, video.season, video.episode, video.lastEpisode, episode.versionKey);
}

// Sorts the episodes. Several files of one are versions of it, the sharper one first; its parts go by their
// names.
void leadVersions(QVector<Numbered> &episodes)
{
    const auto sharpness = [](const Numbered &episode) {
        return ReleaseWords::resolution(NameText::folded(FolderPath::nameOf(episode.video.path)));
    };
    std::stable_sort(episodes.begin(), episodes.end(), [&](const Numbered &a, const Numbered &b) {
        return placeOf(a) == placeOf(b) ? sharpness(a) > sharpness(b) : placeOf(a) < placeOf(b);
    });
    const Numbered *lead = nullptr;
    for (Numbered &episode : episodes) {
        if (lead && placeOf(*lead) == placeOf(episode))
            episode.video.leadPath = lead->video.path;
        else
            lead = &episode;
    }
}

// A number under 100 among bare ones says that the longer ones are counted through as well.
void undoGuesses(QVector<EpisodeNumber *> numbers)
{
    const bool counted = std::any_of(numbers.begin(), numbers.end(), [](const EpisodeNumber *number) {
        return number->source == EpisodeNumber::Source::Absolute && number->absolute < 100;
    });
    if (!counted)
        return;
    for (EpisodeNumber *number : numbers) {
        if (number->source != EpisodeNumber::Source::Guess)
            continue;
        number->source = EpisodeNumber::Source::Absolute;
        number->season = -1;
        number->episode = number->lastEpisode = number->absolute;
    }
}

} // namespace

EpisodeIdentifier::EpisodeIdentifier(const IFolderFiles &files, const FolderListing &listing,
                                     const ArtworkFiles &artwork)
    : m_files(files)
    , m_listing(listing)
    , m_artwork(artwork)
{
    findShowFolder();
}

void EpisodeIdentifier::findShowFolder()
{
    const QString &path = m_listing.path;
    const SeasonFolder season = SeasonFolder::parse(FolderPath::nameOf(path));
    if (season.isValid())
        m_around.season = season.number;
    for (QString folder = path;
         folder == m_listing.rootPath || FolderPath::isBelow(folder, m_listing.rootPath);
         folder = FolderPath::parentOf(folder)) {
        const bool here = folder == path ? hasShowNfo(m_listing.entries)
                                         : m_files.exists(FolderPath::join(folder, QLatin1String(showNfo)));
        if (here) {
            m_showFolder = folder;
            break;
        }
        if (folder == m_listing.rootPath)
            break;
    }
    QString title;
    if (m_showFolder.isEmpty() && season.isValid()) {
        const QString parent = FolderPath::parentOf(path);
        // A season's folder that names its series stands for itself where the folder above is only a
        // collection.
        const bool parentIsShow =
            FolderPath::isBelow(parent, m_listing.rootPath)
            && (season.series.isEmpty()
                || NameText::comparable(VideoName::parse(FolderPath::nameOf(parent)).title)
                       == NameText::comparable(season.series));
        if (parentIsShow || (season.series.isEmpty() && parent == m_listing.rootPath)) {
            m_showFolder = parent;
        } else {
            m_showFolder = path;
            title = season.series;
            m_seriesYear = season.seriesYear;
            if (title.isEmpty())
                title = VideoName::parse(FolderPath::nameOf(FolderPath::parentOf(path))).title;
        }
    }
    if (m_showFolder.isEmpty()) {
        const VideoName own = VideoName::parse(FolderPath::nameOf(path));
        if (own.yearInBrackets && !EpisodeNumber::parse(FolderPath::nameOf(path)).isValid())
            m_filmTitle = NameText::comparable(own.title);
        return;
    }
    m_around.show = true;
    m_showEntries = m_showFolder == path ? m_listing.entries : m_files.list(m_showFolder);
    const VideoName name = VideoName::parse(FolderPath::nameOf(m_showFolder));
    m_around.series = title.isEmpty() ? name.title : title;
    if (m_seriesYear == 0)
        m_seriesYear = name.year;
}

void EpisodeIdentifier::take(QVector<VideoCandidate> &candidates, IdentifiedFolder &result)
{
    QVector<Found> found;
    QVector<VideoCandidate> rest;
    for (const VideoCandidate &candidate : qAsConst(candidates)) {
        EpisodeNumber number = EpisodeNumber::parse(candidate.name, m_around);
        const NfoRecord *record = candidate.record(NfoRecord::Kind::Episode);
        const bool told = record && record->episode >= 0;
        const bool film = (candidate.record(NfoRecord::Kind::Movie) && !m_around.show)
                          || (!m_filmTitle.isEmpty() && number.isValid() && !told
                              && NameText::comparable(VideoName::parse(candidate.name).title) == m_filmTitle);
        const bool recording = !m_around.show && !told && isRecording(candidate, number);
        if (film || recording || (!number.isValid() && !told))
            rest.append(candidate);
        else
            found.append({candidate, number});
    }
    candidates = rest;
    QVector<EpisodeNumber *> bare;
    QSet<QString> series;
    for (Found &one : found) {
        bare.append(&one.number);
        series.insert(NameText::comparable(one.number.series));
    }
    undoGuesses(bare);

    QMap<QString, int> shows; // key to the first of its files
    QHash<QString, QSet<int>> seasons;
    QVector<Numbered> episodes;
    for (int i = 0; i < found.size(); ++i) {
        const QString key = keyOf(found.at(i), series.size() > 1);
        if (!shows.contains(key))
            shows.insert(key, i);
        episodes.append({toEpisode(found.at(i), key), versionKey(found.at(i).file, found.at(i).number)});
        seasons[key].insert(episodes.last().video.season);
    }
    leadVersions(episodes);
    for (auto it = shows.cbegin(); it != shows.cend(); ++it) {
        ScannedShow show = describeShow(it.key(), found.at(it.value()));
        describeSeasons(show, seasons.value(it.key()));
        result.shows.append(show);
    }
    for (const Numbered &episode : qAsConst(episodes))
        result.videos.append(episode.video);
}

QString EpisodeIdentifier::titleOf(const Found &found) const
{
    if (m_around.show)
        return m_around.series;
    if (const NfoRecord *record = found.file.record(NfoRecord::Kind::Episode);
        record && !record->showTitle.isEmpty())
        return record->showTitle;
    return found.number.series.isEmpty() ? VideoName::parse(FolderPath::nameOf(m_listing.path)).title
                                         : found.number.series;
}

QString EpisodeIdentifier::keyOf(const Found &found, bool several) const
{
    if (m_around.show)
        return m_showFolder;
    const QString title = titleOf(found);
    const QString wanted = NameText::comparable(title);
    QString folder = m_listing.path;
    const bool below = FolderPath::isBelow(folder, m_listing.rootPath);
    const QString own = FolderPath::nameOf(folder);
    if (below && NameText::comparable(VideoName::parse(own).title) == wanted)
        return folder;
    // A folder for each episode, as releases come: the show is what these folders have in common.
    if (below && EpisodeNumber::parse(own).isValid()) {
        folder = FolderPath::parentOf(folder);
        if (FolderPath::isBelow(folder, m_listing.rootPath)
            && NameText::comparable(VideoName::parse(FolderPath::nameOf(folder)).title) == wanted)
            return folder;
    } else if (below && !several) {
        return folder;
    }
    QString name = wanted;
    return FolderPath::join(folder, name.replace(QLatin1Char('/'), QLatin1Char(' ')));
}

ScannedVideo EpisodeIdentifier::toEpisode(const Found &found, const QString &key) const
{
    const EpisodeNumber &number = found.number;
    ScannedVideo video = found.file.toVideo(ScannedVideo::Kind::Episode);
    video.showKey = key;
    if (number.source == EpisodeNumber::Source::Date) {
        video.season = number.date.year();
        video.episode = video.lastEpisode = number.date.month() * 100 + number.date.day();
        video.description.releaseDate = number.date.toString(Qt::ISODate);
    } else {
        const int folderSeason = m_around.season >= 0 ? m_around.season : 1;
        video.season = number.season >= 0 ? number.season : folderSeason;
        video.episode = qMax(number.episode, 0);
        video.lastEpisode = qMax(number.lastEpisode, video.episode);
    }
    bool first = true;
    for (const NfoRecord &record : found.file.nfo) {
        if (record.kind != NfoRecord::Kind::Episode)
            continue;
        if (first) {
            Description description = record.description;
            DescriptionMerge::fill(description, video.description);
            video.description = description;
            // A sidecar of the first episode alone says nothing against the others that the name tells.
            const bool agrees =
                record.episode == video.episode && (record.season < 0 || record.season == video.season);
            if (record.season >= 0)
                video.season = record.season;
            if (record.episode >= 0 && !agrees)
                video.episode = video.lastEpisode = record.episode;
        }
        video.lastEpisode = qMax(video.lastEpisode, record.episode);
        first = false;
    }
    if (video.description.title.isEmpty())
        video.description.title = number.title;
    if (video.description.year == 0 && number.date.isValid())
        video.description.year = number.date.year();
    DescriptionMerge::fillArtwork(video.description, m_artwork.ofFile(found.file.name), true);
    video.wantsMetadata = first;
    return video;
}

QVector<NfoRecord> EpisodeIdentifier::readNfo(const QString &folder, const QVector<FolderEntry> &entries,
                                              const char *name) const
{
    for (const FolderEntry &entry : entries)
        if (!entry.isFolder && entry.name.compare(QLatin1String(name), Qt::CaseInsensitive) == 0)
            return NfoReader::read(
                m_files.read(FolderPath::join(folder, entry.name), NfoReader::largestFile));
    return {};
}

ScannedShow EpisodeIdentifier::describeShow(const QString &key, const Found &found) const
{
    ScannedShow show;
    show.key = key;
    if (key == m_showFolder || key == m_listing.path) {
        const QVector<FolderEntry> &entries = key == m_listing.path ? m_listing.entries : m_showEntries;
        for (const NfoRecord &record : readNfo(key, entries, showNfo))
            if (record.kind == NfoRecord::Kind::Show || record.kind == NfoRecord::Kind::Link)
                DescriptionMerge::fill(show.description, record.description);
        // A library folder's name says nothing, but that of a show's own folder has its year and ids.
        const VideoName name = VideoName::parse(FolderPath::nameOf(key));
        Description byName;
        byName.identities = name.identities;
        DescriptionMerge::fill(show.description, byName);
        DescriptionMerge::fillArtwork(show.description, ArtworkFiles(key, entries, &m_files).ofFolder());
    }
    Description byName;
    byName.title = titleOf(found);
    const VideoName folder = VideoName::parse(FolderPath::nameOf(key));
    byName.year = m_seriesYear > 0              ? m_seriesYear
                  : found.number.seriesYear > 0 ? found.number.seriesYear
                                                : folder.year;
    DescriptionMerge::fill(show.description, byName);
    return show;
}

void EpisodeIdentifier::describeSeasons(ScannedShow &show, const QSet<int> &numbers) const
{
    const ArtworkFiles showArtwork(m_showFolder, m_showEntries);
    const bool seasonFolder = m_around.season >= 0 && show.key == m_showFolder;
    for (const int number : numbers) {
        Description season;
        if (seasonFolder && number == m_around.season) {
            for (const NfoRecord &record : readNfo(m_listing.path, m_listing.entries, "season.nfo"))
                if (record.kind == NfoRecord::Kind::Season)
                    DescriptionMerge::fill(season, record.description);
            // The pictures of a folder that is the show's as well are the show's.
            if (m_listing.path != m_showFolder)
                DescriptionMerge::fillArtwork(season, m_artwork.ofFolder());
        }
        if (!m_showFolder.isEmpty())
            DescriptionMerge::fillArtwork(season, showArtwork.ofSeason(number));
        show.seasons.insert(number, season);
    }
}
