#include "CandidateCollector.h"

#include "FolderPath.h"
#include "names/DiscStructure.h"
#include "names/ExtraName.h"
#include "names/MediaSuffix.h"
#include "names/NameText.h"

#include <algorithm>

namespace {

// The files of a folder by their names in lower case; NFOs and films are looked up here.
QHash<QString, QString> namesByFolded(const FolderListing &listing)
{
    QHash<QString, QString> names;
    for (const FolderEntry &entry : listing.entries)
        if (!entry.isFolder)
            names.insert(entry.name.toLower(), entry.name);
    return names;
}

bool isHidden(const QString &name)
{
    return name.startsWith(QLatin1Char('.'));
}

QString fileStem(const QString &name)
{
    return name.left(name.lastIndexOf(QLatin1Char('.')));
}

} // namespace

CandidateCollector::CandidateCollector(const IFolderFiles &files)
    : m_files(files)
{
}

qint64 CandidateCollector::sizeOfFiles(const QString &folder) const
{
    qint64 size = 0;
    for (const FolderEntry &entry : m_files.list(folder))
        size += entry.stamp.size;
    return size;
}

QVector<VideoCandidate> CandidateCollector::discs(const FolderListing &listing) const
{
    QVector<VideoCandidate> result;
    const auto add = [&](const QString &folder, const QString &structure, const FileStamp &stamp) {
        QStringList names;
        FileStamp discStamp = stamp;
        for (const FolderEntry &inner : m_files.list(structure)) {
            names.append(inner.name);
            // A folder has no size of its own, and without one a disc that is moved would not be known again.
            discStamp.size +=
                inner.isFolder ? sizeOfFiles(FolderPath::join(structure, inner.name)) : inner.stamp.size;
        }
        const QString pseudo = DiscStructure::pseudoFile(FolderPath::nameOf(structure), names);
        if (pseudo.isEmpty())
            return;
        VideoCandidate disc;
        disc.name = FolderPath::nameOf(folder);
        disc.path = FolderPath::join(folder, pseudo);
        disc.realPath = structure;
        disc.stamp = discStamp;
        disc.isDisc = true;
        result.append(disc);
    };
    for (const FolderEntry &entry : listing.entries)
        if (entry.isFolder && DiscStructure::isStructure(entry.name))
            add(listing.path, FolderPath::join(listing.path, entry.name), entry.stamp);
    // A folder that holds several structures is one disc.
    if (result.size() > 1)
        result.resize(1);
    return result;
}

QVector<VideoCandidate> CandidateCollector::collect(const FolderListing &listing) const
{
    // The inside of a disc that was itself added as a library folder.
    if (DiscStructure::isStructure(FolderPath::nameOf(listing.path)))
        return {};
    QVector<VideoCandidate> result = discs(listing);
    const QHash<QString, QString> names = namesByFolded(listing);
    QSet<QString> stems;
    bool looseDisc = false;
    for (const FolderEntry &entry : listing.entries) {
        if (!entry.isFolder && MediaSuffix::isVideo(entry.name))
            stems.insert(fileStem(entry.name).toLower());
        looseDisc = looseDisc || (!entry.isFolder && DiscStructure::isLooseIndex(entry.name));
    }
    const QString folder = FolderPath::nameOf(listing.path).toLower();
    for (const FolderEntry &entry : listing.entries) {
        const bool index = DiscStructure::isLooseIndex(entry.name);
        if (entry.isFolder || isHidden(entry.name) || (!index && !MediaSuffix::isVideo(entry.name))
            || (looseDisc && DiscStructure::isLooseContent(entry.name)))
            continue;
        VideoCandidate file;
        file.name = index ? FolderPath::nameOf(listing.path) : fileStem(entry.name);
        const ExtraName::File extra = ExtraName::ofFile(file.name);
        const bool belongs = stems.contains(extra.stem.toLower()) || folder.startsWith(extra.stem.toLower());
        if (extra.certainty == ExtraName::Certainty::Sure
            || (extra.certainty == ExtraName::Certainty::BesideFilm && belongs))
            continue;
        file.path = file.realPath = FolderPath::join(listing.path, entry.name);
        file.stamp = entry.stamp;
        file.isDisc = index;
        const auto nfo = names.constFind(fileStem(entry.name).toLower() + QStringLiteral(".nfo"));
        if (nfo != names.constEnd())
            file.nfo =
                NfoReader::read(m_files.read(FolderPath::join(listing.path, *nfo), NfoReader::largestFile));
        result.append(file);
    }
    std::sort(result.begin(), result.end(),
              [](const VideoCandidate &a, const VideoCandidate &b) { return a.path < b.path; });
    return result;
}
