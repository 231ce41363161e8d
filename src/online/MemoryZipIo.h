// Lets the unzip layer read an archive that lies in memory.
//
// Refers to the bytes, which outlive it, and holds the one position that the layer asks for: one archive at
// a time, on one thread. The layer copies the table of functions, so the object must not move while it reads.
#pragma once

#include <minizip/ioapi.h>

#include <cstddef>

class MemoryZipIo final {
public:
    MemoryZipIo(const char *data, std::size_t size)
        : m_data(data)
        , m_size(size)
    {
    }
    MemoryZipIo(const MemoryZipIo &) = delete;
    MemoryZipIo &operator=(const MemoryZipIo &) = delete;

    // Reading only: to open for writing fails.
    [[nodiscard]] zlib_filefunc64_def functions();

private:
    static voidpf open(voidpf self, const void *name, int mode);
    static uLong read(voidpf self, voidpf stream, void *buffer, uLong size);
    static uLong write(voidpf self, voidpf stream, const void *buffer, uLong size);
    static ZPOS64_T tell(voidpf self, voidpf stream);
    static long seek(voidpf self, voidpf stream, ZPOS64_T offset, int origin);
    static int close(voidpf self, voidpf stream);
    static int error(voidpf self, voidpf stream);

    const char *m_data;
    ZPOS64_T m_size;
    ZPOS64_T m_position{0};
    // The layer takes a short read for zeros unless it is told of an error.
    bool m_isShort{false};
};
