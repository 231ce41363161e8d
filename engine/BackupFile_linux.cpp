#include "BackupFile.h"

#include "NativePath.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool moveTo(const std::string &draft, const std::string &target, bool replace)
{
    if (replace)
        return ::rename(draft.c_str(), target.c_str()) == 0;
    if (::renameat2(AT_FDCWD, draft.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    // Not every file system can refuse by itself.
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    return ::access(target.c_str(), F_OK) != 0 && ::rename(draft.c_str(), target.c_str()) == 0;
}

// The draft as an open, locked and empty file; below 0 when it cannot be had. The lock tells a draft that is
// being written from one that was left behind.
int openDraft(const std::string &draft)
{
    const int fd = ::open(draft.c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC,
                          S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH);
    if (fd < 0)
        return -1;
    // Not every file system can lock.
    const bool held = ::flock(fd, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    // Whoever held it may have given the file its real name meanwhile.
    struct stat own = {};
    struct stat named = {};
    const bool isOwn = !held && ::fstat(fd, &own) == 0 && S_ISREG(own.st_mode) && own.st_nlink == 1
                       && ::lstat(draft.c_str(), &named) == 0 && own.st_dev == named.st_dev
                       && own.st_ino == named.st_ino;
    if (isOwn && ::ftruncate(fd, 0) == 0)
        return fd;
    ::close(fd);
    return -1;
}

void syncFolder(const std::string &target)
{
    const std::string folder = nativePath(target).parent_path().u8string();
    const int fd = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return;
    ::fsync(fd);
    ::close(fd);
}

} // namespace

bool BackupFile::open(const std::string &target, bool replace)
{
    discard();
    struct stat info = {};
    const bool exists = ::lstat(target.c_str(), &info) == 0;
    if (target.empty() || (exists && (!replace || !S_ISREG(info.st_mode))))
        return false;
    const int fd = openDraft(draftOf(target));
    if (fd < 0)
        return false;
    m_target = target;
    m_replace = replace;
    m_handle = fd;
    return true;
}

bool BackupFile::write(const void *data, std::size_t bytes)
{
    const char *from = static_cast<const char *>(data);
    while (bytes > 0) {
        const ssize_t count = ::write(static_cast<int>(m_handle), from, bytes);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        from += count;
        bytes -= static_cast<std::size_t>(count);
    }
    return true;
}

bool BackupFile::commit()
{
    if (m_handle == NoHandle)
        return false;
    const int fd = static_cast<int>(m_handle);
    const bool written = ::fsync(fd) == 0;
    m_handle = NoHandle;
    const std::string draft = draftOf(m_target);
    // Keeps the lock until the draft has gone from its name.
    const int lock = ::fcntl(fd, F_DUPFD_CLOEXEC, 0);
    // Some file systems tell of a full disk only when a file is closed.
    const bool whole = ::close(fd) == 0 && written && moveTo(draft, m_target, m_replace);
    if (whole)
        syncFolder(m_target);
    else
        ::unlink(draft.c_str());
    if (lock >= 0)
        ::close(lock);
    return whole;
}

void BackupFile::discard()
{
    if (m_handle == NoHandle)
        return;
    ::unlink(draftOf(m_target).c_str());
    ::close(static_cast<int>(m_handle));
    m_handle = NoHandle;
}
