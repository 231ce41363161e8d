// Where the demuxer takes its bytes from.
#pragma once

#include "LocalFile.h"

#include <cstddef>
#include <cstdint>

class ByteStream {
public:
    ByteStream() = default;
    ByteStream(const ByteStream &) = delete;
    ByteStream &operator=(const ByteStream &) = delete;
    virtual ~ByteStream() = default;

    // Bytes read, 0 at the end, -1 for an error.
    virtual std::int64_t read(void *buffer, std::size_t bytes) = 0;
    // New position, -1 when the stream cannot be sought.
    virtual std::int64_t seek(std::int64_t offset) = 0;
    // Bytes, -1 when unknown.
    [[nodiscard]] virtual std::int64_t size() const = 0;
};

class FileStream final : public ByteStream {
public:
    bool open(const std::string &path) { return m_file.open(path); }
    std::int64_t read(void *buffer, std::size_t bytes) override
    {
        const std::int64_t count = m_file.readAt(m_position, buffer, bytes);
        if (count > 0)
            m_position += count;
        return count;
    }
    std::int64_t seek(std::int64_t offset) override
    {
        if (offset < 0)
            return -1;
        m_position = offset;
        return offset;
    }
    [[nodiscard]] std::int64_t size() const override { return m_file.size(); }

private:
    LocalFile m_file;
    std::int64_t m_position{0};
};

// One title of a disc: bytes front to back from a point in time on.
class TitleStream : public ByteStream {
public:
    // Goes to the entry point at or before the time; answers its own time, below 0 when there is none.
    virtual double seekSeconds(double seconds) = 0;
    [[nodiscard]] virtual double duration() const = 0;
    // Name of the demuxer of FFmpeg that takes the bytes.
    [[nodiscard]] virtual const char *format() const = 0;

    std::int64_t seek(std::int64_t) final { return -1; }
    [[nodiscard]] std::int64_t size() const final { return -1; }
};
