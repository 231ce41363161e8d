#include "DirectoryListing.h"

#include <cerrno>
#include <climits>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct DirectoryCloser {
    void operator()(DIR *directory) const { ::closedir(directory); }
};
using Directory = std::unique_ptr<DIR, DirectoryCloser>;

constexpr qint64 MsPerSecond = 1000;
constexpr qint64 NsPerMs = 1000 * 1000;

DirectoryListing::Outcome failure(int error)
{
    switch (error) {
    case ENAMETOOLONG:
        return DirectoryListing::Outcome::TooLong;
    case ENOENT:
    case ENOTDIR:
    case ELOOP:
        return DirectoryListing::Outcome::Gone;
    default:
        return DirectoryListing::Outcome::Unreadable;
    }
}

bool isHidden(const char *name)
{
    return name[0] == '.' && std::strcmp(name, ".nomedia") != 0 && std::strcmp(name, ".ignore") != 0;
}

bool mayCount(unsigned char type)
{
    return type == DT_REG || type == DT_DIR || type == DT_UNKNOWN;
}

} // namespace

DirectoryListing DirectoryListing::read(const QString &path)
{
    DirectoryListing listing;
    const QByteArray name = path.toUtf8();
    const int handle = ::open(name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK);
    if (handle < 0) {
        listing.outcome = failure(errno);
        return listing;
    }
    const Directory directory(::fdopendir(handle));
    struct stat info = {};
    if (!directory || ::fstat(handle, &info) != 0) {
        listing.outcome = failure(errno);
        if (!directory)
            ::close(handle);
        return listing;
    }
    listing.identity = {quint64(info.st_dev), quint64(info.st_ino)};
    listing.outcome = Outcome::Read;
    while (true) {
        errno = 0;
        const dirent *entry = ::readdir(directory.get());
        if (!entry) {
            if (errno != 0)
                listing.outcome = Outcome::Unreadable;
            return listing;
        }
        if (isHidden(entry->d_name) || !mayCount(entry->d_type))
            continue;
        if (::fstatat(handle, entry->d_name, &info, AT_SYMLINK_NOFOLLOW) != 0) {
            if (errno == ENOENT)
                continue; // deleted just now
            // Whether the file is still there cannot be told, so nothing is told of the folder.
            listing.outcome = Outcome::Unreadable;
            return listing;
        }
        const bool isFolder = S_ISDIR(info.st_mode);
        if (!isFolder && !S_ISREG(info.st_mode))
            continue;
        const QString text = QString::fromUtf8(entry->d_name);
        if (text.contains(QChar::ReplacementCharacter) && text.toUtf8() != entry->d_name) {
            ++listing.strangeNames;
            continue;
        }
        // It has no path that anything can open. A folder is told so when it is entered.
        if (!isFolder && name.size() + 1 + int(std::strlen(entry->d_name)) >= PATH_MAX) {
            ++listing.longPaths;
            continue;
        }
        const qint64 modifiedMs = info.st_mtim.tv_sec * MsPerSecond + info.st_mtim.tv_nsec / NsPerMs;
        listing.entries.append({text, {isFolder ? 0 : qint64(info.st_size), modifiedMs}, isFolder});
    }
}
