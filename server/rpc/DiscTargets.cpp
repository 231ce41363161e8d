#include "DiscTargets.h"

#include <QDir>
#include <QFileInfo>

namespace DiscTargets {

namespace {

struct DiscRow {
    QLatin1String folder;
    QLatin1String pseudoFile;
    QLatin1String index;
};
const DiscRow discs[] = {
    {QLatin1String("VIDEO_TS"), QLatin1String("folder.ifo"), QLatin1String("VIDEO_TS.IFO")},
    {QLatin1String("BDMV"), QLatin1String("folder.bdmv"), QLatin1String("index.bdmv")},
    {QLatin1String("BDMV"), QLatin1String("folder.bdm"), QLatin1String("INDEX.BDM")},
    {QLatin1String("BDAV"), QLatin1String("folder.bdav"), QLatin1String("info.bdav")},
    {QLatin1String("DVD_RTAV"), QLatin1String("folder.dvdvr"), QLatin1String("VR_MANGR.IFO")},
};

bool sameName(const QString &name, QLatin1String other)
{
    return name.compare(other, Qt::CaseInsensitive) == 0;
}

// The subfolder with this name in any case; empty where there is none, or only a link.
QString subfolder(const QString &folder, QLatin1String name)
{
    const QFileInfoList entries =
        QDir(folder).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (const QFileInfo &entry : entries) {
        if (sameName(entry.fileName(), name))
            return entry.absoluteFilePath();
    }
    return {};
}

RemovalTarget discFolder(const QString &path)
{
    return path.isEmpty() ? RemovalTarget{} : RemovalTarget{RemovalTarget::Kind::DiscFolder, path};
}

RemovalTarget resolveFolder(const QFileInfo &info)
{
    for (const DiscRow &disc : discs) {
        if (sameName(info.fileName(), disc.folder) && !info.isSymLink())
            return discFolder(info.absoluteFilePath());
    }
    for (const DiscRow &disc : discs) {
        const QString inside = subfolder(info.absoluteFilePath(), disc.folder);
        if (!inside.isEmpty())
            return discFolder(inside);
    }
    return {RemovalTarget::Kind::Refused, info.absoluteFilePath()};
}

} // namespace

RemovalTarget resolve(const QString &path)
{
    const QFileInfo info(path);
    if (info.isDir())
        return resolveFolder(info);
    const bool onDisk = info.exists() || info.isSymLink();
    const QString parent = info.absolutePath();
    for (const DiscRow &disc : discs) {
        if (!onDisk && sameName(info.fileName(), disc.pseudoFile))
            return discFolder(subfolder(parent, disc.folder));
        if (onDisk && sameName(info.fileName(), disc.index)
            && sameName(QFileInfo(parent).fileName(), disc.folder))
            return discFolder(parent);
    }
    if (!onDisk)
        return {};
    return {RemovalTarget::Kind::File, info.absoluteFilePath()};
}

} // namespace DiscTargets
