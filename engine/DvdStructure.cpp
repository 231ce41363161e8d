#include "DvdStructure.h"

#include "BigEndianReader.h"

#include <algorithm>
#include <set>

namespace {

constexpr std::size_t SectorSize = 2048;
constexpr const char *DiscSignature = "DVDVIDEO-VMG";
constexpr const char *SetSignature = "DVDVIDEO-VTS";
// Places of the tables' sector numbers.
constexpr std::size_t TitleTablePointer = 0xC4;
constexpr std::size_t ChapterTablePointer = 0xC8;
constexpr std::size_t ProgramTablePointer = 0xCC;
constexpr std::size_t VideoAttributes = 0x200;
constexpr std::size_t TableHeader = 8;
constexpr std::size_t TitleEntrySize = 12;
constexpr std::size_t ProgramEntrySize = 8;
constexpr std::size_t CellSize = 24;
constexpr int MaxTitles = 99;
constexpr int MaxChapters = 999;
constexpr int LongestMs = 1000 * 3600 * 99;

// Offset of a table whose sector number stands at a place; 0 when it is not inside the file.
std::size_t tableAt(const BigEndianReader &reader, std::size_t pointer)
{
    const std::size_t offset = std::size_t(reader.number(pointer, 4)) * SectorSize;
    return offset != 0 && reader.has(offset, TableHeader) ? offset : 0;
}

int fromBcd(std::uint32_t value)
{
    return int(value >> 4) * 10 + int(value & 0x0f);
}

// Hours, minutes, seconds and frames in decimal digits; the frame rate stands in the two high bits.
int readTime(const BigEndianReader &reader, std::size_t offset)
{
    const int hours = fromBcd(reader.number(offset, 1));
    const int minutes = fromBcd(reader.number(offset + 1, 1));
    const int seconds = fromBcd(reader.number(offset + 2, 1));
    const std::uint32_t frames = reader.number(offset + 3, 1);
    const int perSecond = (frames >> 6) == 1 ? 25 : 30;
    return ((hours * 60 + minutes) * 60 + seconds) * 1000 + fromBcd(frames & 0x3f) * 1000 / perSecond;
}

void readCells(const BigEndianReader &reader, std::size_t program, DvdTitle &title)
{
    const std::uint32_t count = reader.number(program + 3, 1);
    const std::uint32_t cells = reader.number(program + 0xE8, 2);
    if (cells == 0)
        return;
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::size_t cell = program + cells + i * CellSize;
        if (!reader.has(cell, CellSize))
            return;
        const std::uint32_t kind = reader.number(cell, 1);
        const bool inAngleBlock = ((kind >> 4) & 3) == 1;
        const bool firstOfBlock = (kind >> 6) <= 1;
        if (inAngleBlock && !firstOfBlock)
            continue;
        DvdCell entry;
        entry.durationMs = readTime(reader, cell + 4);
        entry.firstSector = reader.number(cell + 8, 4);
        entry.lastSector = reader.number(cell + 20, 4);
        if (entry.lastSector >= entry.firstSector)
            title.cells.push_back(entry);
    }
}

void readVideo(const BigEndianReader &reader, DvdTitle &title)
{
    static constexpr int widths[] = {720, 704, 352, 352};
    const std::uint32_t format = reader.number(VideoAttributes, 2);
    const bool pal = ((format >> 12) & 3) == 1;
    const std::uint32_t size = std::min((format >> 3) & 7, 3u);
    title.width = widths[size];
    title.height = (pal ? 576 : 480) / (size == 3 ? 2 : 1);
}

} // namespace

std::vector<DvdStructure::TitleEntry> DvdStructure::titleEntries(const Bytes &discInfo)
{
    const BigEndianReader reader(discInfo);
    std::vector<TitleEntry> entries;
    const std::size_t table = reader.startsWith(DiscSignature) ? tableAt(reader, TitleTablePointer) : 0;
    if (table == 0)
        return entries;
    const int count = std::min(int(reader.number(table, 2)), MaxTitles);
    for (int i = 0; i < count; ++i) {
        const std::size_t offset = table + TableHeader + std::size_t(i) * TitleEntrySize;
        if (!reader.has(offset, TitleEntrySize))
            break;
        TitleEntry entry;
        entry.number = i + 1;
        entry.chapterCount = std::min(int(reader.number(offset + 2, 2)), MaxChapters);
        entry.titleSet = int(reader.number(offset + 6, 1));
        entry.numberInSet = int(reader.number(offset + 7, 1));
        entries.push_back(entry);
    }
    return entries;
}

bool DvdStructure::readTitle(const Bytes &setInfo, const TitleEntry &entry, DvdTitle &title)
{
    const BigEndianReader reader(setInfo);
    if (!reader.startsWith(SetSignature) || entry.numberInSet < 1)
        return false;
    const std::size_t chapters = tableAt(reader, ChapterTablePointer);
    const std::size_t programs = tableAt(reader, ProgramTablePointer);
    if (chapters == 0 || programs == 0 || entry.numberInSet > int(reader.number(chapters, 2)))
        return false;

    title = {};
    title.number = entry.number;
    title.titleSet = entry.titleSet;
    title.chapterCount = entry.chapterCount;
    readVideo(reader, title);

    // A chapter names its program chain; a title runs through the chains of its chapters, each once.
    const std::size_t list =
        chapters + reader.number(chapters + TableHeader + std::size_t(entry.numberInSet - 1) * 4, 4);
    std::set<std::uint32_t> seen;
    for (int chapter = 0; chapter < entry.chapterCount; ++chapter) {
        const std::uint32_t chain = reader.number(list + std::size_t(chapter) * 4, 2);
        if (chain == 0 || chain > reader.number(programs, 2) || !seen.insert(chain).second)
            continue;
        const std::size_t program =
            programs + reader.number(programs + TableHeader + (chain - 1) * ProgramEntrySize + 4, 4);
        if (!reader.has(program, 0xEC))
            continue;
        // A thousand chains of broken lengths would run over.
        title.durationMs = std::min(title.durationMs + readTime(reader, program + 4), LongestMs);
        readCells(reader, program, title);
    }
    return !seen.empty();
}
