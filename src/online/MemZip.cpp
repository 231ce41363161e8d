#include "MemZip.h"

#include "ZipReader.h"

#include "core/LogHandler.h"

#include <QDir>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>

#include <filesystem>
#include <system_error>

namespace {

constexpr char kStagingName[] = "/.unzip-XXXXXX";

QByteArray logText(const ZipEntry &entry)
{
    return entry.name.forLog().toLocal8Bit();
}

void logFileError(const ZipEntry &entry, const QString &reason)
{
    logPrintf("Memzip unzip error: open file error, name = %s \n", logText(entry).constData());
    logPrintf("Memzip unzip error: %s \n", reason.toLocal8Bit().constData());
}

void logFolderError(const ZipEntry &entry)
{
    logPrintf("Memzip unzip error: creator dir error, name = %s \n", logText(entry).constData());
}

// Names that are taken by the archive, without regard to case: two entries of one name would overwrite each
// other, and a file can't also be the folder of another.
class TakenNames {
public:
    [[nodiscard]] bool take(const ZipEntryName &name)
    {
        const QString key = name.key();
        for (int slash = key.indexOf(QLatin1Char('/')); slash >= 0;
             slash = key.indexOf(QLatin1Char('/'), slash + 1)) {
            const QString parent = key.left(slash);
            if (m_files.contains(parent))
                return false;
            m_folders.insert(parent);
        }
        if (m_files.contains(key) || (!name.isFolder() && m_folders.contains(key)))
            return false;
        (name.isFolder() ? m_folders : m_files).insert(key);
        return true;
    }

private:
    QSet<QString> m_files;
    QSet<QString> m_folders;
};

bool areHarmless(const QVector<ZipEntry> &entries, std::size_t archiveSize, const MemZipLimits &limits)
{
    TakenNames taken;
    qint64 total = 0;
    for (const ZipEntry &entry : entries) {
        QString problem = entry.name.problem();
        if (problem.isEmpty() && !entry.isPlain)
            problem = QStringLiteral("it is a link, a device or encrypted");
        if (problem.isEmpty() && !taken.take(entry.name))
            problem = QStringLiteral("its name is there twice");
        if (problem.isEmpty() && entry.size > limits.totalBytes - total)
            problem = QStringLiteral("the archive is too large when unpacked");
        if (!problem.isEmpty()) {
            logFileError(entry, problem);
            return false;
        }
        total += entry.size;
    }
    if (total > limits.freeBytes && total / limits.ratio > qint64(archiveSize)) {
        logPrintf("Memzip unzip error: the archive unpacks to too many times its size \n");
        return false;
    }
    return true;
}

// No entry gets more bytes than it claims, so what has been allowed before is not exceeded.
bool writeFile(ZipReader &reader, const ZipEntry &entry, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered)) {
        logFileError(entry, file.errorString());
        return false;
    }
    const bool isRead =
        reader.read(entry, [&file](const char *data, qint64 size) { return file.write(data, size) == size; });
    if (!isRead) {
        logFileError(entry, file.error() == QFile::NoError ? QStringLiteral("the entry is damaged")
                                                           : file.errorString());
        return false;
    }
    return true;
}

bool unpack(ZipReader &reader, const QVector<ZipEntry> &entries, const QString &root)
{
    for (const ZipEntry &entry : entries) {
        const QString path = root + QLatin1Char('/') + entry.name.path();
        const QString folder = entry.name.isFolder() ? path : path.section(QLatin1Char('/'), 0, -2);
        if (!QDir().mkpath(folder)) {
            logFolderError(entry);
            return false;
        }
        if (!entry.name.isFolder() && !writeFile(reader, entry, path))
            return false;
    }
    return true;
}

// Makes the folders of path below root one by one. A link among them could lead anywhere.
bool makeFolders(const QString &root, const QString &path)
{
    QString at = root;
    const QStringList parts = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        at += QLatin1Char('/') + part;
        const QFileInfo info(at);
        if (info.isSymLink() || (info.exists() ? !info.isDir() : !QDir().mkdir(at)))
            return false;
    }
    return true;
}

bool replaceFile(const QString &from, const QString &to)
{
    std::error_code error;
    std::filesystem::rename(std::filesystem::u8path(from.toStdString()),
                            std::filesystem::u8path(to.toStdString()), error);
    return !error;
}

// Moves what is whole to its place. When one can't be moved, those before it go again: better none than some.
bool moveInto(const QVector<ZipEntry> &entries, const QString &staging, const QString &folder)
{
    QStringList moved;
    for (const ZipEntry &entry : entries) {
        const QString path = entry.name.path();
        const bool isFolder = entry.name.isFolder();
        if (!makeFolders(
                folder, isFolder ? path : path.section(QLatin1Char('/'), 0, -2, QString::SectionSkipEmpty))) {
            logFolderError(entry);
        } else if (isFolder) {
            continue;
        } else {
            const QString target = folder + QLatin1Char('/') + path;
            if (replaceFile(staging + QLatin1Char('/') + path, target)) {
                moved.append(target);
                continue;
            }
            logFileError(entry, QStringLiteral("it can't be put in its place"));
        }
        for (const QString &file : qAsConst(moved))
            QFile::remove(file);
        return false;
    }
    return true;
}

} // namespace

bool MemZip::Unzip(const char *data, std::size_t size, const QString &folder, const MemZipLimits &limits)
{
    logPrintf("Memzip unzip: vector size = %d \n", int(size));
    ZipReader reader(data, size);
    const std::optional<QVector<ZipEntry>> entries =
        reader.isOpen() ? reader.entries(limits.entries) : std::nullopt;
    if (!entries) {
        logPrintf("Memzip unzip: open failed. \n");
        return false;
    }
    logPrintf("Memzip unzip: EntryData vector size = %d \n", entries->size());
    if (!areHarmless(*entries, size, limits))
        return false;

    // Inside the folder, so that the move stays on one file system.
    const bool isNew = !QFileInfo::exists(folder);
    bool isDone = false;
    if (!QDir().mkpath(folder)) {
        logPrintf("Memzip unzip error: creator dir error, name = %s \n", folder.toLocal8Bit().constData());
    } else {
        QTemporaryDir staging(folder + QLatin1String(kStagingName));
        if (staging.isValid())
            isDone = unpack(reader, *entries, staging.path()) && moveInto(*entries, staging.path(), folder);
        else
            logPrintf("Memzip unzip error: creator dir error, name = %s \n",
                      folder.toLocal8Bit().constData());
    }
    // The folder of a failed archive may hold empty ones by now.
    if (!isDone && isNew)
        QDir(folder).removeRecursively();
    return isDone;
}
