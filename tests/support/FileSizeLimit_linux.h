// Lets no file of this process grow beyond a size, as a full disk would, while it lives.
#pragma once

#include <csignal>
#include <cstddef>

#include <sys/resource.h>

class FileSizeLimit final {
public:
    explicit FileSizeLimit(std::size_t bytes)
        : m_handlerBefore(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handlerBefore);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    rlimit m_before{};
    void (*m_handlerBefore)(int);
};
