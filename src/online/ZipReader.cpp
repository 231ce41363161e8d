#include "ZipReader.h"

namespace {

constexpr int kPieceBytes = 64 * 1024;
constexpr uLong kEncryptedFlag = 1;
// The upper half of an entry's attributes is the file's mode where the archive comes from a Unix.
constexpr int kModeShift = 16;
constexpr uLong kTypeMask = 0170000;
constexpr uLong kNoType = 0;
constexpr uLong kRegularType = 0100000;
constexpr uLong kFolderType = 0040000;

bool isPlain(const unz_file_info64 &info)
{
    const uLong type = (info.external_fa >> kModeShift) & kTypeMask;
    return (info.flag & kEncryptedFlag) == 0
           && (type == kNoType || type == kRegularType || type == kFolderType);
}

} // namespace

ZipReader::ZipReader(const char *data, std::size_t size)
    : m_io(data, size)
{
    zlib_filefunc64_def functions = m_io.functions();
    m_archive = unzOpen2_64("", &functions);
}

ZipReader::~ZipReader()
{
    if (m_archive != nullptr)
        unzClose(m_archive);
}

std::optional<QVector<ZipEntry>> ZipReader::entries(qint64 maximum)
{
    QVector<ZipEntry> list;
    unz_global_info64 global{};
    if (unzGetGlobalInfo64(m_archive, &global) != UNZ_OK || global.number_entry > ZPOS64_T(maximum))
        return std::nullopt;
    int state = unzGoToFirstFile(m_archive);
    for (; state == UNZ_OK; state = unzGoToNextFile(m_archive)) {
        std::optional<ZipEntry> entry = currentEntry();
        if (!entry || list.size() >= maximum)
            return std::nullopt;
        list.append(*entry);
    }
    if (state != UNZ_END_OF_LIST_OF_FILE || ZPOS64_T(list.size()) != global.number_entry)
        return std::nullopt;
    return list;
}

std::optional<ZipEntry> ZipReader::currentEntry()
{
    unz_file_info64 info{};
    if (unzGetCurrentFileInfo64(m_archive, &info, nullptr, 0, nullptr, 0, nullptr, 0) != UNZ_OK)
        return std::nullopt;
    // The name's own length counts: one with a null in it is seen whole, and refused for it.
    QByteArray raw(int(info.size_filename), '\0');
    if (unzGetCurrentFileInfo64(m_archive, &info, raw.data(), uLong(raw.size()), nullptr, 0, nullptr, 0)
        != UNZ_OK)
        return std::nullopt;
    ZipEntry entry{ZipEntryName(raw), qint64(info.uncompressed_size), isPlain(info), {}};
    if (entry.size < 0 || unzGetFilePos64(m_archive, &entry.position) != UNZ_OK)
        return std::nullopt;
    return entry;
}

bool ZipReader::read(const ZipEntry &entry, const Writer &write)
{
    if (unzGoToFilePos64(m_archive, &entry.position) != UNZ_OK || unzOpenCurrentFile(m_archive) != UNZ_OK)
        return false;
    QByteArray piece(kPieceBytes, Qt::Uninitialized);
    qint64 total = 0;
    int got = 0;
    bool isTaken = true;
    while (isTaken && (got = unzReadCurrentFile(m_archive, piece.data(), unsigned(piece.size()))) > 0) {
        total += got;
        isTaken = total <= entry.size && write(piece.constData(), got);
    }
    // The sum over the whole entry is compared at its end.
    const bool isClosed = unzCloseCurrentFile(m_archive) == UNZ_OK;
    return isTaken && got == 0 && isClosed && total == entry.size;
}
