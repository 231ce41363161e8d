#include "LocalFile.h"

#include <cerrno>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

LocalFile::Kind kindOfMode(mode_t mode)
{
    if (S_ISREG(mode))
        return LocalFile::Kind::Regular;
    if (S_ISDIR(mode))
        return LocalFile::Kind::Folder;
    if (S_ISBLK(mode))
        return LocalFile::Kind::Device;
    return LocalFile::Kind::Other;
}

} // namespace

LocalFile::Kind LocalFile::kindOf(const std::string &path)
{
    struct stat info = {};
    if (path.empty() || ::stat(path.c_str(), &info) != 0)
        return Kind::None;
    return kindOfMode(info.st_mode);
}

bool LocalFile::open(const std::string &path, bool allowDevices)
{
    close();
    const auto allowed = [&](mode_t mode) {
        const Kind kind = kindOfMode(mode);
        return kind == Kind::Regular || (allowDevices && kind == Kind::Device);
    };
    // Asked before the opening: to open some devices is already to use them.
    struct stat info = {};
    if (path.empty() || ::stat(path.c_str(), &info) != 0 || !allowed(info.st_mode))
        return false;
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (fd < 0)
        return false;
    // And asked again of what has been opened, which may be another thing by now.
    if (::fstat(fd, &info) != 0 || !allowed(info.st_mode)) {
        ::close(fd);
        return false;
    }
    m_size = info.st_size;
    if (S_ISBLK(info.st_mode)) {
        std::uint64_t bytes = 0;
        if (::ioctl(fd, BLKGETSIZE64, &bytes) != 0 || bytes == 0) {
            ::close(fd);
            m_size = 0;
            return false;
        }
        m_size = static_cast<std::int64_t>(bytes);
    }
    m_handle = fd;
    return true;
}

void LocalFile::close()
{
    if (m_handle != NoHandle)
        ::close(static_cast<int>(m_handle));
    m_handle = NoHandle;
    m_size = 0;
}

std::int64_t LocalFile::readAt(std::int64_t offset, void *buffer, std::size_t bytes)
{
    if (m_handle == NoHandle || offset < 0)
        return -1;
    std::size_t done = 0;
    while (done < bytes) {
        const ssize_t count = ::pread(static_cast<int>(m_handle), static_cast<char *>(buffer) + done,
                                      bytes - done, offset + static_cast<std::int64_t>(done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return done > 0 ? static_cast<std::int64_t>(done) : -1;
        if (count == 0)
            break;
        done += static_cast<std::size_t>(count);
    }
    return static_cast<std::int64_t>(done);
}
