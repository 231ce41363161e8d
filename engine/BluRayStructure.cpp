#include "BluRayStructure.h"

namespace {

constexpr const char *ClipSignature = "HDMV";
constexpr const char *PlaylistSignature = "MPLS";
constexpr std::size_t SequencePointer = 8;
constexpr std::size_t EntryPointsPointer = 16;
constexpr std::size_t ItemsPointer = 8;
constexpr std::size_t MarksPointer = 12;
constexpr std::size_t MarksHeader = 6;
constexpr std::size_t MarkSize = 14;
constexpr std::size_t SequenceHeader = 6;
constexpr std::size_t ArrivalSequenceSize = 6;
constexpr std::size_t TimeSequenceSize = 14;
constexpr std::size_t StreamHeaderSize = 12;
constexpr std::size_t CoarseSize = 8;
constexpr std::size_t FineSize = 4;

// Time sequences are named by numbers that run on from one arrival sequence to the next.
bool areSequencesSound(const BigEndianReader &reader)
{
    const std::size_t start = reader.number(SequencePointer, 4);
    if (!reader.has(start, SequenceHeader))
        return false;
    const std::uint32_t count = reader.number(start + 5, 1);
    std::size_t offset = start + SequenceHeader;
    std::uint32_t expected = 0;
    for (std::uint32_t i = 0; i < count; ++i) {
        if (!reader.has(offset, ArrivalSequenceSize))
            return false;
        const std::uint32_t times = reader.number(offset + 4, 1);
        if (reader.number(offset + 5, 1) != expected)
            return false;
        expected += times;
        offset += ArrivalSequenceSize + times * TimeSequenceSize;
    }
    return true;
}

// Coarse entries name the fine entries that belong to them, in their order.
bool isStreamSound(const BigEndianReader &reader, std::size_t map, std::size_t header)
{
    // Behind the stream's number: ten bits unused, four of type, then both counts.
    const std::uint64_t counts =
        (std::uint64_t(reader.number(header + 2, 4)) << 16) | reader.number(header + 6, 2);
    const auto coarseCount = static_cast<std::uint32_t>((counts >> 18) & 0xFFFF);
    const auto fineCount = static_cast<std::uint32_t>(counts & 0x3FFFF);
    const std::size_t start = map + reader.number(header + 8, 4);
    const std::size_t fine = start + reader.number(start, 4);
    if (!reader.has(start, 4 + coarseCount * CoarseSize) || !reader.has(fine, fineCount * FineSize))
        return false;
    std::uint32_t last = 0;
    for (std::uint32_t i = 0; i < coarseCount; ++i) {
        const std::uint32_t first = reader.number(start + 4 + i * CoarseSize, 4) >> 14;
        if (first >= fineCount || (i == 0 ? first != 0 : first <= last))
            return false;
        last = first;
    }
    return true;
}

bool areEntryPointsSound(const BigEndianReader &reader)
{
    const std::size_t start = reader.number(EntryPointsPointer, 4);
    if (!reader.has(start, 4))
        return false;
    if (reader.number(start, 4) == 0)
        return true;
    const std::size_t map = start + 6;
    if (!reader.has(map, 2))
        return false;
    const std::uint32_t streams = reader.number(map + 1, 1);
    for (std::uint32_t i = 0; i < streams; ++i) {
        const std::size_t header = map + 2 + i * StreamHeaderSize;
        if (!reader.has(header, StreamHeaderSize) || !isStreamSound(reader, map, header))
            return false;
    }
    return true;
}

} // namespace

bool BluRayStructure::isSoundClip(const BigEndianReader::Bytes &clipInfo)
{
    const BigEndianReader reader(clipInfo);
    return !reader.startsWith(ClipSignature) || (areSequencesSound(reader) && areEntryPointsSound(reader));
}

bool BluRayStructure::isSoundPlaylist(const BigEndianReader::Bytes &playlist)
{
    const BigEndianReader reader(playlist);
    if (!reader.startsWith(PlaylistSignature))
        return true;
    const std::size_t items = reader.number(ItemsPointer, 4);
    const std::size_t marks = reader.number(MarksPointer, 4);
    const std::uint32_t itemCount = reader.number(items + 6, 2);
    const std::uint32_t markCount = reader.number(marks + 4, 2);
    // Behind the end of the file the library reads zeros, as this reader does.
    for (std::uint32_t i = 0; i < markCount; ++i) {
        if (reader.number(marks + MarksHeader + i * MarkSize + 2, 2) >= itemCount)
            return false;
    }
    return true;
}
