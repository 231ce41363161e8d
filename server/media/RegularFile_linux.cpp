#include "RegularFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

bool RegularFile::open(const QString &path)
{
    close();
    const QByteArray name = path.toUtf8();
    // Asked before the opening: to open some devices is already to use them.
    struct stat info = {};
    if (::lstat(name.constData(), &info) != 0 || !S_ISREG(info.st_mode))
        return false;
    const int fd = ::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY | O_NOFOLLOW);
    if (fd < 0)
        return false;
    // And asked again of what has been opened, which may be another thing by now.
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
        ::close(fd);
        return false;
    }
    m_handle = fd;
    m_size = info.st_size;
    return true;
}

void RegularFile::close()
{
    if (isOpen())
        ::close(int(m_handle));
    m_handle = NoHandle;
    m_size = 0;
}

qint64 RegularFile::readAt(qint64 offset, void *buffer, qint64 bytes)
{
    if (!isOpen() || offset < 0)
        return -1;
    qint64 done = 0;
    while (done < bytes) {
        const ssize_t count =
            ::pread(int(m_handle), static_cast<char *>(buffer) + done, size_t(bytes - done), offset + done);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return done > 0 ? done : -1;
        if (count == 0)
            break;
        done += count;
    }
    return done;
}
