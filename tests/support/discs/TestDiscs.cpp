#include "TestDiscs.h"

#include "BluRayMaker.h"
#include "DiscWorkshop.h"
#include "DvdMaker.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace TestDiscs {

QString dvdFolder()
{
    return DiscWorkshop::entry(QStringLiteral("dvd"),
                               [](const QString &path) { return DvdMaker::make(path); });
}

QString dvdImage()
{
    const QString folder = dvdFolder();
    if (folder.isEmpty())
        return {};
    return DiscWorkshop::entry(QStringLiteral("dvd.iso"),
                               [&](const QString &path) { return DvdMaker::pack(folder, path); });
}

QString bluRayFolder()
{
    return DiscWorkshop::entry(QStringLiteral("bluray"),
                               [](const QString &path) { return BluRayMaker::make(path, "0200"); });
}

QString bluRayImage()
{
    const QString folder = bluRayFolder();
    if (folder.isEmpty())
        return {};
    return DiscWorkshop::entry(QStringLiteral("bluray.iso"),
                               [&](const QString &path) { return BluRayMaker::pack(folder, path); });
}

QString ultraHdFolder()
{
    return DiscWorkshop::entry(QStringLiteral("uhd"),
                               [](const QString &path) { return BluRayMaker::make(path, "0300"); });
}

QString clip(const QString &name, const QStringList &ffmpegArguments)
{
    return DiscWorkshop::entry(name, [&](const QString &path) {
        return DiscWorkshop::run(QStringLiteral("ffmpeg"), QStringList({"-v", "error", "-y", "-nostdin"})
                                                               + ffmpegArguments + QStringList(path));
    });
}

bool copyOf(const QString &source, const QString &target)
{
    if (QFileInfo(source).isFile())
        return QDir().mkpath(QFileInfo(target).path()) && QFile::copy(source, target);
    const QDir root(source);
    if (!root.exists() || !QDir().mkpath(target))
        return false;
    QDirIterator walk(source, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        const QString to = target + QLatin1Char('/') + root.relativeFilePath(path);
        if (walk.fileInfo().isDir() ? !QDir().mkpath(to) : !copyOf(path, to))
            return false;
    }
    return true;
}

QString error()
{
    return DiscWorkshop::error();
}

} // namespace TestDiscs
