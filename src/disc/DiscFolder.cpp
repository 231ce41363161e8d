#include "DiscFolder.h"

#include <QDir>
#include <QFile>

namespace {

const QLatin1String VrManager("VR_MANGR.IFO");
const QLatin1String VrMovie("VR_MOVIE.VRO");
const QLatin1String BdavInfo("info.bdav");
const QLatin1String BdavFolder("BDAV");
const QLatin1String DvdIndex("VIDEO_TS.IFO");
const QLatin1String DvdFolder("VIDEO_TS");
const QLatin1String BlurayIndex("index.bdmv");
const QLatin1String BlurayFolder("BDMV");

QString withSlash(const QString &path)
{
    return path.endsWith(QLatin1Char('/')) ? path : path + QLatin1Char('/');
}

QString folderBelow(const QString &path, QLatin1String name)
{
    return path + name + QLatin1Char('/');
}

bool hasFile(const QString &path, QLatin1String name)
{
    return QFile::exists(path + name);
}

bool hasFolder(const QString &path, QLatin1String name)
{
    return QDir(folderBelow(path, name)).exists();
}

// A name that the folder lists as well: some network mounts answer for folders that they do not list.
bool hasListedFolder(const QString &path, QLatin1String name)
{
    return hasFolder(path, name) && QDir(path).exists(name);
}

} // namespace

DiscFolderProbe ClassifyDiscFolder(const QString &path)
{
    DiscFolderProbe probe;
    if (path.isEmpty())
        return probe;
    probe.path = withSlash(path);
    const QString &at = probe.path;
    const auto found = [&probe](DiscFolderKind kind, const QString &root) {
        probe.kind = kind;
        probe.discRoot = root;
        return probe;
    };

    if (hasFile(at, VrManager) && hasFile(at, VrMovie))
        return found(DiscFolderVr, at);
    if (hasFile(at, BdavInfo)) {
        // The path ends in a slash, so the text behind the last one is empty and a folder that is itself
        // named BDAV goes on to the later tests. Recorded discs are handed over by their root alone.
        if (at.midRef(at.lastIndexOf(QLatin1Char('/')) + 1) == BdavFolder)
            return found(DiscFolderBluray, at);
    } else if (hasFolder(at, BdavFolder) && hasFile(folderBelow(at, BdavFolder), BdavInfo)) {
        return found(DiscFolderBluray, at);
    }
    if (hasFile(at, DvdIndex))
        return found(DiscFolderDvd, at);
    if (hasFile(at, BlurayIndex))
        return found(DiscFolderBluray, at);
    if (hasFolder(at, DvdFolder))
        return found(DiscFolderDvd, folderBelow(at, DvdFolder));
    if (hasFolder(at, BlurayFolder))
        return found(DiscFolderBluray, folderBelow(at, BlurayFolder));
    return probe;
}

bool IsPlayableDiscFolder(const QString &path)
{
    const DiscFolderProbe probe = ClassifyDiscFolder(path);
    switch (probe.kind) {
    case DiscFolderDvd:
        return QDir(probe.discRoot).exists();
    case DiscFolderBluray:
        return QDir(probe.discRoot).exists() && hasListedFolder(probe.discRoot, QLatin1String("CLIPINF"))
               && hasListedFolder(probe.discRoot, QLatin1String("PLAYLIST"))
               && hasListedFolder(probe.discRoot, QLatin1String("STREAM"));
    case DiscFolderNone:
    case DiscFolderVr:
        break;
    }
    return false;
}

QString StripLibraryFolderSuffix(const QString &path)
{
    // Every suffix is tried in turn, so that a path that ends in two of them in this order loses both.
    static const char *const suffixes[] = {"\\folder.bdmv", "\\folder.ifo", "\\folder.bdav", "\\folder.dvdvr",
                                           "\\folder.bdm",  "/folder.bdmv", "/folder.ifo",   "/folder.bdav",
                                           "/folder.dvdvr", "/folder.bdm"};
    QString folder = path;
    for (const char *suffix : suffixes) {
        const QLatin1String text(suffix);
        if (folder.endsWith(text, Qt::CaseInsensitive))
            folder.chop(text.size());
    }
    return folder;
}

int SplitDiscPath(QString &path, bool stripChild, QString *rootOut)
{
    const QLatin1Char slash('/');
    const bool endsInSlash = path.endsWith(slash);
    const QString bare = endsInSlash ? path.left(path.size() - 1) : path;
    const bool isDvd = bare.endsWith(DvdFolder, Qt::CaseInsensitive);
    const bool isBluray = !isDvd && bare.endsWith(BlurayFolder, Qt::CaseInsensitive);
    const QString root = bare.left(bare.lastIndexOf(slash) + 1);

    if (rootOut)
        *rootOut = root;
    if (isDvd || isBluray) {
        if (stripChild)
            path = root;
        return isDvd ? DiscFolderDvd : DiscFolderBluray;
    }

    const auto child = [&](QLatin1String name) {
        return endsInSlash ? path + name + slash : path + slash + name;
    };
    const QString bluray = child(BlurayFolder);
    const bool hasBluray = QDir(bluray).exists();
    if (!stripChild)
        path = hasBluray ? bluray : child(DvdFolder);
    return hasBluray ? DiscFolderBluray : DiscFolderDvd;
}
