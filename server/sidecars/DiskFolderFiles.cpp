#include "DiskFolderFiles.h"

#include <QDateTime>
#include <QDebug>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

QByteArray DiskFolderFiles::read(const QString &path, qint64 limit) const
{
    // A pipe or a device under such a name would make the reader wait for ever.
    const QFileInfo info(path);
    if (!info.isFile())
        return {};
    QFile file(path);
    if (info.size() > limit || !file.open(QIODevice::ReadOnly)) {
        qInfo() << "[sidecars] cannot be read or is too large:" << path;
        return {};
    }
    // It may grow meanwhile.
    const QByteArray content = file.read(limit + 1);
    return content.size() > limit ? QByteArray() : content;
}

bool DiskFolderFiles::exists(const QString &path) const
{
    return QFileInfo::exists(path);
}

QVector<FolderEntry> DiskFolderFiles::list(const QString &path) const
{
    QVector<FolderEntry> entries;
    QDirIterator files(path, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden);
    while (files.hasNext()) {
        files.next();
        const QFileInfo info = files.fileInfo();
        const bool folder = info.isDir();
        entries.append(
            {files.fileName(), {folder ? 0 : info.size(), info.lastModified().toMSecsSinceEpoch()}, folder});
    }
    return entries;
}
