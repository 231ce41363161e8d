#include "ReplacedFile_linux.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t kAnyWriter = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr mode_t kAllRights = S_IRWXU | S_IRWXG | S_IRWXO;

class Descriptor final {
public:
    explicit Descriptor(int number)
        : m_number(number)
    {
    }
    ~Descriptor() { (void)close(); }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    [[nodiscard]] int number() const { return m_number; }
    [[nodiscard]] bool close()
    {
        const int number = m_number;
        m_number = -1;
        return number < 0 || ::close(number) == 0;
    }

private:
    int m_number;
};

bool writeAll(int number, std::string_view content)
{
    while (!content.empty()) {
        const ssize_t count = ::write(number, content.data(), content.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        content.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

} // namespace

std::optional<std::string> ReplacedFile::read(const std::string &path, int &error)
{
    // Without O_NONBLOCK a pipe in the file's place would be waited for.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    struct stat facts {};
    error = 0;
    if (file.number() < 0 || ::fstat(file.number(), &facts) != 0) {
        error = errno;
        return std::nullopt;
    }
    if (!S_ISREG(facts.st_mode)) {
        error = S_ISDIR(facts.st_mode) ? EISDIR : EINVAL;
        return std::nullopt;
    }
    std::string content;
    char buffer[65536];
    while (true) {
        const ssize_t count = ::read(file.number(), buffer, sizeof buffer);
        if (count < 0 && errno == EINTR)
            continue;
        if (count == 0)
            return content;
        if (count < 0 || content.size() + static_cast<std::size_t>(count) > MaxSize) {
            error = count < 0 ? errno : EFBIG;
            return std::nullopt;
        }
        content.append(buffer, static_cast<std::size_t>(count));
    }
}

int ReplacedFile::write(const std::string &path, const std::string &content)
{
    struct stat facts {};
    const bool there = ::lstat(path.c_str(), &facts) == 0;
    // Renaming onto a file needs no leave to write into it, but its owner meant it to stay.
    if (there && (facts.st_mode & kAnyWriter) == 0)
        return EACCES;
    if (there && !S_ISREG(facts.st_mode))
        return S_ISDIR(facts.st_mode) ? EISDIR : EINVAL;

    std::string beside = path + ".XXXXXX";
    Descriptor file(::mkostemp(beside.data(), O_CLOEXEC));
    if (file.number() < 0)
        return errno;
    const auto fail = [&] {
        const int error = errno != 0 ? errno : EIO;
        (void)::unlink(beside.c_str());
        return error;
    };
    errno = 0;
    if (there && ::fchmod(file.number(), facts.st_mode & kAllRights) != 0)
        return fail();
    if (!writeAll(file.number(), content) || ::fsync(file.number()) != 0 || !file.close())
        return fail();
    if (::rename(beside.c_str(), path.c_str()) != 0)
        return fail();
    return 0;
}
