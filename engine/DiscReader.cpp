#include "DiscReader.h"

#include "BluRayDisc.h"
#include "DvdDisc.h"
#include "LocalFile.h"
#include "NativePath.h"
#include "SourceProbe.h"

#include <algorithm>
#include <cstring>

namespace {

using namespace libvp;

constexpr int MostFilesCounted = 100000;

template<typename Title>
void addTitles(const std::vector<Title> &titles, DiscContents &contents)
{
    int longest = -1;
    for (const Title &title : titles) {
        VDDiscTitle record;
        record.number = title.number;
        record.durationMs = title.durationMs;
        record.chapterCount = title.chapterCount;
        contents.titles.push_back(record);
        if (title.durationMs > longest) {
            longest = title.durationMs;
            contents.mainTitle = title.number;
        }
    }
}

// Streams of a recorded disc stand in a structure that only recorders write.
bool isRecorded(const std::string &root)
{
    const std::filesystem::path folder = nativePath(root);
    return LocalFile::kindOf((folder / "info.bdav").u8string()) == LocalFile::Kind::Regular
           || LocalFile::kindOf((folder / "BDAV" / "info.bdav").u8string()) == LocalFile::Kind::Regular;
}

std::int64_t folderSize(const std::string &path)
{
    std::int64_t bytes = 0;
    int count = 0;
    std::error_code error;
    std::filesystem::recursive_directory_iterator entry(
        nativePath(path), std::filesystem::directory_options::skip_permission_denied, error);
    for (const std::filesystem::recursive_directory_iterator end;
         !error && entry != end && count < MostFilesCounted; entry.increment(error), ++count) {
        std::error_code unread;
        if (!entry->is_regular_file(unread) || unread)
            continue;
        const std::uintmax_t size = entry->file_size(unread);
        bytes += unread ? 0 : static_cast<std::int64_t>(size);
    }
    return bytes;
}

std::string folderName(const std::string &path)
{
    std::filesystem::path folder = nativePath(SourceProbe::discRoot(path));
    if (!folder.has_filename())
        folder = folder.parent_path();
    return folder.filename().u8string();
}

void setName(VDDiscDisplayInfo &info, std::string name)
{
    if (name.size() >= sizeof(info.volumeName)) {
        std::size_t length = sizeof(info.volumeName) - 1;
        // Not in the middle of a character.
        while (length > 0 && (static_cast<unsigned char>(name[length]) & 0xC0) == 0x80)
            --length;
        name.resize(length);
    }
    std::memcpy(info.volumeName, name.c_str(), name.size() + 1);
}

std::string volumeName(const std::string &root, VD_SourceForm form, const std::string &path)
{
    std::string name;
    if (SourceProbe::isDvd(form)) {
        if (const std::unique_ptr<DvdDisc> disc = DvdDisc::open(root))
            name = disc->volumeName();
    } else if (const std::unique_ptr<BluRayDisc> disc = BluRayDisc::open(root)) {
        name = disc->volumeName();
    }
    return name.empty() ? nativePath(path).stem().u8string() : name;
}

} // namespace

bool DiscReader::read(const std::string &path, DiscContents &contents)
{
    contents = {};
    contents.form = SourceProbe::form(path);
    const std::string root = SourceProbe::discRoot(path);
    if (SourceProbe::isDvd(contents.form)) {
        const std::unique_ptr<DvdDisc> disc = DvdDisc::open(root);
        if (!disc)
            return false;
        addTitles(disc->titles(), contents);
        contents.hasMenu = disc->hasMenu();
        return true;
    }
    if (!SourceProbe::isBluRay(contents.form))
        return false;
    if (contents.form == VD_Source_FolderBluRay && isRecorded(root))
        contents.flags |= VD_Flag_Bdav;
    const std::unique_ptr<BluRayDisc> disc = BluRayDisc::open(root);
    if (!disc)
        return (contents.flags & VD_Flag_Bdav) != 0;
    addTitles(disc->titles(), contents);
    contents.hasMenu = disc->hasMenu();
    if (disc->isUltraHd())
        contents.flags |= VD_Flag_Uhd;
    return true;
}

bool DiscReader::displayInfo(const std::string &path, VDDiscDisplayInfo &info)
{
    info = {};
    const LocalFile::Kind kind = LocalFile::kindOf(path);
    if (kind == LocalFile::Kind::None || kind == LocalFile::Kind::Other)
        return false;
    if (kind != LocalFile::Kind::Folder) {
        LocalFile medium;
        if (!medium.open(path, true))
            return kind == LocalFile::Kind::Device;
        info.sizeBytes = medium.size();
    }
    info.hasMedia = 1;
    info.discType = VD_DiscType_Data;
    DiscContents contents;
    if (!read(path, contents)) {
        setName(info, folderName(path));
    } else {
        info.discType = SourceProbe::isDvd(contents.form)     ? VD_DiscType_Dvd
                        : (contents.flags & VD_Flag_Uhd) != 0 ? VD_DiscType_Uhd
                                                              : VD_DiscType_BluRay;
        const bool isFolder = kind == LocalFile::Kind::Folder;
        setName(info,
                isFolder ? folderName(path) : volumeName(SourceProbe::discRoot(path), contents.form, path));
    }
    if (kind == LocalFile::Kind::Folder)
        info.sizeBytes = folderSize(SourceProbe::discRoot(path));
    return true;
}
