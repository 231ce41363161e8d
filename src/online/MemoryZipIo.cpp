#include "MemoryZipIo.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr long kSeekDone = 0;
constexpr long kSeekFailed = -1;

} // namespace

zlib_filefunc64_def MemoryZipIo::functions()
{
    return {open, read, write, tell, seek, close, error, this};
}

voidpf MemoryZipIo::open(voidpf self, const void *, int mode)
{
    const bool isReading = (mode & ZLIB_FILEFUNC_MODE_READWRITEFILTER) == ZLIB_FILEFUNC_MODE_READ;
    auto *io = static_cast<MemoryZipIo *>(self);
    io->m_position = 0;
    return isReading && io->m_data != nullptr ? io : nullptr;
}

uLong MemoryZipIo::read(voidpf self, voidpf, void *buffer, uLong size)
{
    auto *io = static_cast<MemoryZipIo *>(self);
    const auto bytes = uLong(std::min<ZPOS64_T>(size, io->m_size - io->m_position));
    if (bytes > 0)
        std::memcpy(buffer, io->m_data + io->m_position, bytes);
    io->m_position += bytes;
    io->m_isShort = io->m_isShort || bytes < size;
    return bytes;
}

uLong MemoryZipIo::write(voidpf, voidpf, const void *, uLong)
{
    return 0;
}

ZPOS64_T MemoryZipIo::tell(voidpf self, voidpf)
{
    return static_cast<MemoryZipIo *>(self)->m_position;
}

long MemoryZipIo::seek(voidpf self, voidpf, ZPOS64_T offset, int origin)
{
    auto *io = static_cast<MemoryZipIo *>(self);
    ZPOS64_T base = 0;
    if (origin == ZLIB_FILEFUNC_SEEK_CUR)
        base = io->m_position;
    else if (origin == ZLIB_FILEFUNC_SEEK_END)
        base = io->m_size;
    // Offsets come from the archive itself and may be anything.
    if (offset > io->m_size - base)
        return kSeekFailed;
    io->m_position = base + offset;
    return kSeekDone;
}

int MemoryZipIo::close(voidpf, voidpf)
{
    return 0;
}

int MemoryZipIo::error(voidpf self, voidpf)
{
    return static_cast<MemoryZipIo *>(self)->m_isShort ? 1 : 0;
}
