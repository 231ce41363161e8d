#include "SidecarFiles.h"

#include "DirectoryListing.h"

#include "media/RegularFile.h"

#include <QFileInfo>

#include <algorithm>

QByteArray SidecarFiles::read(const QString &path, qint64 limit) const
{
    return RegularFile::contents(path, limit);
}

bool SidecarFiles::exists(const QString &path) const
{
    const QFileInfo info(path);
    return info.exists() && !info.isSymLink();
}

QVector<FolderEntry> SidecarFiles::list(const QString &path) const
{
    QVector<FolderEntry> entries = DirectoryListing::read(path).entries;
    std::sort(entries.begin(), entries.end(),
              [](const FolderEntry &a, const FolderEntry &b) { return a.name < b.name; });
    return entries;
}
