#include "BluRayDisc.h"

#include "BluRayStructure.h"
#include "EngineLog.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>

extern "C" {
#include <libbluray/bluray.h>
#include <libbluray/filesystem.h>
#include <libbluray/log_control.h>
}

namespace {

constexpr double Ticks = 90000.0;
constexpr std::size_t VersionOffset = 4;
constexpr const char *UltraHdVersion = "0300";

struct Codec {
    int type;
    const char *name;
};
constexpr Codec codecs[] = {{BLURAY_STREAM_TYPE_VIDEO_MPEG1, "mpeg1"},
                            {BLURAY_STREAM_TYPE_VIDEO_MPEG2, "mpeg2"},
                            {BLURAY_STREAM_TYPE_VIDEO_VC1, "vc1"},
                            {BLURAY_STREAM_TYPE_VIDEO_H264, "h264"},
                            {BLURAY_STREAM_TYPE_VIDEO_HEVC, "hevc"}};

struct Format {
    int value;
    int width;
    int height;
};
constexpr Format formats[] = {
    {BLURAY_VIDEO_FORMAT_480I, 720, 480},    {BLURAY_VIDEO_FORMAT_480P, 720, 480},
    {BLURAY_VIDEO_FORMAT_576I, 720, 576},    {BLURAY_VIDEO_FORMAT_576P, 720, 576},
    {BLURAY_VIDEO_FORMAT_720P, 1280, 720},   {BLURAY_VIDEO_FORMAT_1080I, 1920, 1080},
    {BLURAY_VIDEO_FORMAT_1080P, 1920, 1080}, {BLURAY_VIDEO_FORMAT_2160P, 3840, 2160}};

void readVideo(const BLURAY_TITLE_INFO &info, BluRayTitle &title)
{
    if (info.clip_count == 0 || !info.clips || info.clips[0].video_stream_count == 0)
        return;
    const BLURAY_STREAM_INFO &video = info.clips[0].video_streams[0];
    for (const Codec &codec : codecs) {
        if (codec.type == video.coding_type)
            title.codec = codec.name;
    }
    for (const Format &format : formats) {
        if (format.value == video.format) {
            title.width = format.width;
            title.height = format.height;
        }
    }
}

bool readFile(BLURAY *disc, const std::string &path, BigEndianReader::Bytes &bytes)
{
    void *data = nullptr;
    std::int64_t size = 0;
    if (!bd_read_file(disc, path.c_str(), &data, &size) || !data)
        return false;
    const auto *from = static_cast<const std::uint8_t *>(data);
    bytes.assign(from, from + std::max<std::int64_t>(0, size));
    std::free(data);
    return true;
}

// The library falls back on the copies by itself, so they count as well.
struct Checked {
    const char *folder;
    bool (*isSound)(const BigEndianReader::Bytes &);
};
constexpr Checked checkedFolders[] = {{"BDMV/CLIPINF", BluRayStructure::isSoundClip},
                                      {"BDMV/BACKUP/CLIPINF", BluRayStructure::isSoundClip},
                                      {"BDMV/PLAYLIST", BluRayStructure::isSoundPlaylist},
                                      {"BDMV/BACKUP/PLAYLIST", BluRayStructure::isSoundPlaylist}};

bool isStructureSound(BLURAY *disc)
{
    for (const Checked &checked : checkedFolders) {
        BD_DIR_H *entries = bd_open_dir(disc, checked.folder);
        if (!entries)
            continue;
        bool sound = true;
        BD_DIRENT entry = {};
        while (sound && entries->read(entries, &entry) == 0) {
            BigEndianReader::Bytes bytes;
            if (entry.d_name[0] != '.'
                && readFile(disc, std::string(checked.folder) + '/' + entry.d_name, bytes))
                sound = checked.isSound(bytes);
        }
        entries->close(entries);
        if (!sound)
            return false;
    }
    return true;
}

int milliseconds(std::uint64_t ticks)
{
    return int(std::min<std::uint64_t>(ticks / 90, std::numeric_limits<int>::max()));
}

} // namespace

struct BluRayDisc::Reader {
    ~Reader()
    {
        if (disc)
            bd_close(disc);
    }

    BLURAY *disc{nullptr};
};

BluRayDisc::BluRayDisc()
    : m_reader(std::make_unique<Reader>())
{
}

BluRayDisc::~BluRayDisc() = default;

std::unique_ptr<BluRayDisc> BluRayDisc::open(const std::string &path)
{
    // The library writes to standard error otherwise.
    bd_set_debug_mask(0);
    std::unique_ptr<BluRayDisc> disc(new BluRayDisc);
    BLURAY *bluray = bd_open(path.c_str(), nullptr);
    disc->m_reader->disc = bluray;
    const BLURAY_DISC_INFO *info = bluray ? bd_get_disc_info(bluray) : nullptr;
    if (!info || !info->bluray_detected)
        return nullptr;
    disc->m_hasMenu = info->top_menu && info->top_menu->accessible;
    if (info->udf_volume_id)
        disc->m_volumeName = info->udf_volume_id;
    BigEndianReader::Bytes index;
    disc->m_isUltraHd = readFile(bluray, "BDMV/index.bdmv", index) && index.size() >= 8
                        && std::memcmp(&index[VersionOffset], UltraHdVersion, 4) == 0;
    // Without titles nobody goes on to play it.
    if (isStructureSound(bluray))
        disc->readTitles();
    else
        engineLog("[Disc] the structure of this disc is damaged: %s", path.c_str());
    return disc;
}

void BluRayDisc::readTitles()
{
    const std::uint32_t count = bd_get_titles(m_reader->disc, TITLES_RELEVANT, 0);
    for (std::uint32_t i = 0; i < count; ++i) {
        BluRayTitle title;
        title.number = int(i) + 1;
        // A title without information keeps its place, or all numbers behind it would be wrong.
        if (BLURAY_TITLE_INFO *info = bd_get_title_info(m_reader->disc, i, 0)) {
            title.durationMs = milliseconds(info->duration);
            title.chapterCount = int(info->chapter_count);
            readVideo(*info, title);
            bd_free_title_info(info);
        }
        m_titles.push_back(std::move(title));
    }
}

bool BluRayDisc::selectTitle(int number)
{
    return number >= 1 && number <= int(m_titles.size())
           && bd_select_title(m_reader->disc, std::uint32_t(number - 1)) > 0;
}

double BluRayDisc::seekSeconds(double seconds)
{
    if (bd_seek_time(m_reader->disc, std::uint64_t(std::max(0.0, seconds) * Ticks)) < 0)
        return -1.0;
    return double(bd_tell_time(m_reader->disc)) / Ticks;
}

std::int64_t BluRayDisc::read(void *buffer, std::size_t bytes)
{
    const std::size_t most = std::min<std::size_t>(bytes, 1u << 20);
    return bd_read(m_reader->disc, static_cast<unsigned char *>(buffer), int(most));
}
