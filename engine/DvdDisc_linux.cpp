#include "DvdDisc.h"

#include <algorithm>
#include <cstdarg>
#include <map>

extern "C" {
#include <dvdread/dvd_reader.h>
}

namespace {

constexpr std::size_t LargestInfoSectors = 8192;

// The library writes to standard error otherwise.
void dropMessage(void *, dvd_logger_level_t, const char *, va_list) {}

} // namespace

struct DvdDisc::Reader {
    ~Reader()
    {
        if (streams)
            DVDCloseFile(streams);
        if (disc)
            DVDClose(disc);
    }

    dvd_logger_cb logger{&dropMessage};
    dvd_reader_t *disc{nullptr};
    dvd_file_t *streams{nullptr};
    int openSet{0};
};

DvdDisc::DvdDisc()
    : m_reader(std::make_unique<Reader>())
{
}

DvdDisc::~DvdDisc() = default;

std::unique_ptr<DvdDisc> DvdDisc::open(const std::string &path)
{
    std::unique_ptr<DvdDisc> disc(new DvdDisc);
    disc->m_reader->disc = DVDOpen2(nullptr, &disc->m_reader->logger, path.c_str());
    if (!disc->m_reader->disc || !disc->readTitles())
        return nullptr;
    return disc;
}

DvdStructure::Bytes DvdDisc::infoFile(int titleSet) const
{
    for (const dvd_read_domain_t domain : {DVD_READ_INFO_FILE, DVD_READ_INFO_BACKUP_FILE}) {
        dvd_file_t *file = DVDOpenFile(m_reader->disc, titleSet, domain);
        if (!file)
            continue;
        const ssize_t sectors = DVDFileSize(file);
        DvdStructure::Bytes bytes;
        if (sectors > 0) {
            bytes.resize(std::min(std::size_t(sectors), LargestInfoSectors) * SectorSize);
            const ssize_t count = DVDReadBytes(file, bytes.data(), bytes.size());
            bytes.resize(count > 0 ? std::size_t(count) : 0);
        }
        DVDCloseFile(file);
        if (!bytes.empty())
            return bytes;
    }
    return {};
}

bool DvdDisc::readTitles()
{
    const DvdStructure::Bytes discInfo = infoFile(0);
    if (discInfo.empty())
        return false;
    std::map<int, DvdStructure::Bytes> sets;
    for (const DvdStructure::TitleEntry &entry : DvdStructure::titleEntries(discInfo)) {
        if (entry.titleSet < 1)
            continue;
        if (sets.find(entry.titleSet) == sets.end())
            sets[entry.titleSet] = infoFile(entry.titleSet);
        DvdTitle title;
        if (DvdStructure::readTitle(sets[entry.titleSet], entry, title))
            m_titles.push_back(std::move(title));
    }
    return true;
}

bool DvdDisc::hasMenu() const
{
    dvd_stat_t info = {};
    return DVDFileStat(m_reader->disc, 0, DVD_READ_MENU_VOBS, &info) == 0 && info.size > 0;
}

std::string DvdDisc::volumeName() const
{
    char name[64] = {};
    if (DVDUDFVolumeInfo(m_reader->disc, name, 32, nullptr, 0) != 0 || !name[0]) {
        if (DVDISOVolumeInfo(m_reader->disc, name, 33, nullptr, 0) != 0)
            return {};
    }
    // Latin-1, padded with blanks.
    std::string utf8;
    for (const char *at = name; *at; ++at) {
        const auto c = static_cast<unsigned char>(*at);
        if (c < 0x80) {
            utf8 += static_cast<char>(c);
        } else {
            utf8 += static_cast<char>(0xC0 | (c >> 6));
            utf8 += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    utf8.erase(utf8.find_last_not_of(' ') + 1);
    return utf8;
}

std::int64_t DvdDisc::readSectors(int titleSet, std::uint32_t sector, std::size_t count, void *buffer)
{
    if (m_reader->openSet != titleSet) {
        if (m_reader->streams)
            DVDCloseFile(m_reader->streams);
        m_reader->streams = DVDOpenFile(m_reader->disc, titleSet, DVD_READ_TITLE_VOBS);
        m_reader->openSet = titleSet;
    }
    if (!m_reader->streams)
        return -1;
    const ssize_t size = DVDFileSize(m_reader->streams);
    if (size < 0 || sector >= std::size_t(size))
        return 0;
    return DVDReadBlocks(m_reader->streams, int(sector), std::min(count, std::size_t(size) - sector),
                         static_cast<unsigned char *>(buffer));
}
