// A demuxer over a stream of bytes, with every bound that a hostile file calls for: a deadline, a limit on
// the bytes that are looked at, and no way to reach another file.
//
// Used by one thread at a time. The stream and the deadline must outlive it.
#pragma once

#include "AvPointers.h"
#include "ByteStream.h"
#include "Deadline.h"

#include <cstdint>
#include <string>

class MediaInput final {
public:
    MediaInput(ByteStream &stream, Deadline &deadline)
        : m_stream(stream)
        , m_deadline(deadline)
    {
    }
    MediaInput(const MediaInput &) = delete;
    MediaInput &operator=(const MediaInput &) = delete;

    // path: only its ending counts, as a hint. format: name of the demuxer, null finds it out. False when the
    // bytes are no media.
    bool open(const std::string &path, const char *format = nullptr);

    [[nodiscard]] AVFormatContext *context() const { return m_context.get(); }
    [[nodiscard]] Deadline &deadline() const { return m_deadline; }

    // Best video stream that is no cover picture, -1 without one.
    [[nodiscard]] int videoStream() const;
    // Cover picture, -1 without one.
    [[nodiscard]] int coverStream() const;
    // Best audio stream, -1 without one.
    [[nodiscard]] int audioStream() const;

    // Seconds, 0 when unknown.
    [[nodiscard]] double duration() const;
    // Time stamp of the source's beginning, in units of AV_TIME_BASE.
    [[nodiscard]] std::int64_t startTime() const;

    // All streams but this one are skipped.
    void selectOnly(int stream);
    // Next packet; false at the end, after an error and past the deadline.
    bool read(AVPacket &packet);

private:
    static int readBytes(void *opaque, std::uint8_t *buffer, int size);
    static std::int64_t seekBytes(void *opaque, std::int64_t offset, int whence);

    ByteStream &m_stream;
    Deadline &m_deadline;
    std::int64_t m_position{0};
    // Declared in this order: the demuxer goes before the bytes it reads.
    AvIoContext m_io;
    AvFormatContext m_context;
};
