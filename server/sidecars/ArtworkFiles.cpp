#include "ArtworkFiles.h"

#include "FolderPath.h"
#include "names/ExtraName.h"
#include "names/MediaSuffix.h"

namespace {

const QStringList &filmPosters()
{
    static const QStringList names{QStringLiteral("poster"), QStringLiteral("movie"), QStringLiteral("show")};
    return names;
}

const QStringList &plainPosters()
{
    static const QStringList names{QStringLiteral("folder"), QStringLiteral("cover"),
                                   QStringLiteral("default"), QStringLiteral("jacket")};
    return names;
}

const QStringList &backdrops()
{
    static const QStringList names{QStringLiteral("backdrop"), QStringLiteral("fanart"),
                                   QStringLiteral("background"), QStringLiteral("art")};
    return names;
}

const QStringList &thumbs()
{
    static const QStringList names{QStringLiteral("thumb"), QStringLiteral("landscape")};
    return names;
}

constexpr int mostNumbered = 20;

QStringList prefixed(const QString &prefix, const QStringList &names)
{
    QStringList result;
    for (const QString &name : names)
        result.append(prefix + name);
    return result;
}

} // namespace

ArtworkFiles::ArtworkFiles(const QString &folder, const QVector<FolderEntry> &entries,
                           const IFolderFiles *files)
    : m_files(files)
{
    const QString base = folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
    for (const FolderEntry &entry : entries) {
        if (entry.isFolder && ExtraName::isBackdropFolder(entry.name))
            m_backdropFolder = base + entry.name;
        const int rank = entry.isFolder ? -1 : MediaSuffix::imageRank(entry.name);
        if (rank < 0)
            continue;
        const QString key = entry.name.left(entry.name.lastIndexOf(QLatin1Char('.'))).toLower();
        const auto known = m_pictures.constFind(key);
        if (known == m_pictures.constEnd() || rank < known->rank)
            m_pictures.insert(key, {base + entry.name, rank});
    }
}

QString ArtworkFiles::first(const QStringList &names) const
{
    for (const QString &name : names) {
        const auto found = m_pictures.constFind(name);
        if (found != m_pictures.constEnd())
            return found->path;
    }
    return {};
}

// The plain name, else the first of a numbered row: "fanart2", "backdrop-1".
QString ArtworkFiles::backdrop(const QString &prefix) const
{
    const QString plain = first(prefixed(prefix, backdrops()));
    if (!plain.isEmpty() || m_pictures.isEmpty())
        return plain;
    for (int number = 0; number <= mostNumbered; ++number)
        for (const QString &name : prefixed(prefix, backdrops()))
            if (const QString found =
                    first({name + QString::number(number), name + QStringLiteral("-%1").arg(number)});
                !found.isEmpty())
                return found;
    return {};
}

// Its pictures have any names; the first by name is shown, so that each scan finds the same.
QString ArtworkFiles::extraBackdrop() const
{
    if (!m_files || m_backdropFolder.isEmpty())
        return {};
    QString name;
    for (const FolderEntry &entry : m_files->list(m_backdropFolder)) {
        if (!entry.isFolder && MediaSuffix::imageRank(entry.name) >= 0
            && (name.isEmpty() || entry.name < name))
            name = entry.name;
    }
    return name.isEmpty() ? QString() : FolderPath::join(m_backdropFolder, name);
}

Artwork ArtworkFiles::ofFolder() const
{
    QString behind = backdrop(QString());
    if (behind.isEmpty())
        behind = extraBackdrop();
    return {first(filmPosters() + plainPosters()), behind, first(thumbs())};
}

Artwork ArtworkFiles::ofFile(const QString &name) const
{
    if (m_pictures.isEmpty())
        return {};
    const QString prefix = name.toLower() + QLatin1Char('-');
    Artwork artwork{first(prefixed(prefix, filmPosters() + plainPosters())),
                    first(prefixed(prefix, backdrops())), first(prefixed(prefix, thumbs()))};
    if (artwork.poster.isEmpty())
        artwork.poster = first({name.toLower()});
    return artwork;
}

Artwork ArtworkFiles::ofSeason(int number) const
{
    QStringList prefixes{QStringLiteral("season%1-").arg(number, 2, 10, QLatin1Char('0')),
                         QStringLiteral("season%1-").arg(number), QStringLiteral("season-%1-").arg(number)};
    if (number == 0)
        prefixes.append(QStringLiteral("season-specials-"));
    prefixes.append(QStringLiteral("season-all-"));
    Artwork artwork;
    for (const QString &prefix : prefixes) {
        if (artwork.poster.isEmpty())
            artwork.poster = first({prefix + QStringLiteral("poster"), prefix.chopped(1)});
        if (artwork.backdrop.isEmpty())
            artwork.backdrop = backdrop(prefix);
        if (artwork.thumb.isEmpty())
            artwork.thumb = first(prefixed(prefix, thumbs()));
    }
    return artwork;
}

QString ArtworkFiles::albumCover() const
{
    return first({QStringLiteral("cover"), QStringLiteral("folder"), QStringLiteral("front"),
                  QStringLiteral("album"), QStringLiteral("albumart"), QStringLiteral("albumartlarge"),
                  QStringLiteral("poster"), QStringLiteral("thumb")});
}

QString ArtworkFiles::artistPicture() const
{
    return first({QStringLiteral("artist"), QStringLiteral("artist-poster"), QStringLiteral("poster"),
                  QStringLiteral("folder")});
}

bool ArtworkFiles::hasFilmArtwork() const
{
    return !first(filmPosters()).isEmpty() || !backdrop(QString()).isEmpty();
}
