#include "SourceProbe.h"

#include "BluRayDisc.h"
#include "DiscReader.h"
#include "DvdDisc.h"
#include "LocalFile.h"
#include "MediaInput.h"
#include "NativePath.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstring>

namespace {

using namespace libvp;

constexpr std::chrono::milliseconds FileTime{5000};
constexpr int WidthOf4K = 3840;
constexpr int HeightOf4K = 2160;

// Volumes describe themselves in sectors from the 16th on, each with a name of five characters.
constexpr std::int64_t SectorSize = 2048;
constexpr std::int64_t FirstDescriptor = 16;
constexpr std::int64_t DescriptorCount = 32;

// Shapes of a disc folder, in the order in which they are looked for.
struct Shape {
    const char *entry;
    bool isFolder;
    bool isDvd;
};
constexpr Shape shapes[] = {{"VIDEO_TS.IFO", false, true}, {"video_ts.ifo", false, true},
                            {"index.bdmv", false, false},  {"info.bdav", false, false},
                            {"VIDEO_TS", true, true},      {"video_ts", true, true},
                            {"BDMV", true, false},         {"BDAV", true, false}};

bool isEntry(const std::filesystem::path &folder, const Shape &shape)
{
    const LocalFile::Kind kind = LocalFile::kindOf((folder / shape.entry).u8string());
    return kind == (shape.isFolder ? LocalFile::Kind::Folder : LocalFile::Kind::Regular);
}

const Shape *shapeOf(const std::filesystem::path &folder)
{
    const auto found = std::find_if(std::begin(shapes), std::end(shapes),
                                    [&](const Shape &shape) { return isEntry(folder, shape); });
    return found == std::end(shapes) ? nullptr : &*found;
}

// A file name that stands for its disc folder.
bool isDiscEntryFile(const std::filesystem::path &file)
{
    const std::string name = file.filename().u8string();
    return std::any_of(std::begin(shapes), std::end(shapes),
                       [&](const Shape &shape) { return !shape.isFolder && name == shape.entry; });
}

// File systems that the descriptors of a volume name.
struct Volume {
    bool iso = false;
    bool udf = false;
};

Volume volumeOf(const std::string &path)
{
    Volume volume;
    LocalFile file;
    if (!file.open(path, true))
        return volume;
    std::array<char, 6> name{};
    for (std::int64_t i = 0; i < DescriptorCount; ++i) {
        if (file.readAt((FirstDescriptor + i) * SectorSize, name.data(), name.size())
            != static_cast<std::int64_t>(name.size()))
            break;
        const auto is = [&name](const char *known) { return std::memcmp(name.data() + 1, known, 5) == 0; };
        volume.iso = volume.iso || is("CD001");
        volume.udf = volume.udf || is("NSR02") || is("NSR03");
    }
    return volume;
}

VD_SourceForm formOfVolume(const std::string &path, VD_SourceForm dvd, VD_SourceForm bluRay)
{
    const Volume volume = volumeOf(path);
    if ((volume.iso || volume.udf) && DvdDisc::open(path))
        return dvd;
    return volume.udf && BluRayDisc::open(path) ? bluRay : VD_Source_File;
}

// Names that do not fit into the record as they are.
std::string shortCodecName(AVCodecID id)
{
    switch (id) {
    case AV_CODEC_ID_MPEG1VIDEO:
        return "mpeg1";
    case AV_CODEC_ID_MPEG2VIDEO:
        return "mpeg2";
    default:
        return avcodec_get_name(id);
    }
}

void setCodec(vdFileInfo &info, const std::string &name)
{
    const std::size_t length = std::min(name.size(), sizeof(info.codec) - 1);
    std::memcpy(info.codec, name.data(), length);
    info.codec[length] = 0;
}

template<typename Title>
const Title *titleOf(const std::vector<Title> &titles, int number, int mainTitle)
{
    const int wanted = number > 0 ? number : mainTitle;
    const auto found = std::find_if(titles.begin(), titles.end(),
                                    [wanted](const Title &title) { return title.number == wanted; });
    return found == titles.end() ? nullptr : &*found;
}

void describeDisc(const std::string &path, int titleNumber, vdFileInfo &info)
{
    const auto form = static_cast<VD_SourceForm>(info.sourceForm);
    const std::string root = SourceProbe::discRoot(path);
    DiscContents contents;
    if (!DiscReader::read(path, contents))
        return;
    info.flags = contents.flags;
    if (SourceProbe::isDvd(form)) {
        const std::unique_ptr<DvdDisc> disc = DvdDisc::open(root);
        setCodec(info, shortCodecName(AV_CODEC_ID_MPEG2VIDEO));
        if (const DvdTitle *title =
                disc ? titleOf(disc->titles(), titleNumber, contents.mainTitle) : nullptr) {
            info.width = title->width;
            info.height = title->height;
        }
        return;
    }
    const std::unique_ptr<BluRayDisc> disc = BluRayDisc::open(root);
    if (const BluRayTitle *title =
            disc ? titleOf(disc->titles(), titleNumber, contents.mainTitle) : nullptr) {
        setCodec(info, title->codec);
        info.width = title->width;
        info.height = title->height;
    }
}

void describeFile(const std::string &path, vdFileInfo &info)
{
    FileStream stream;
    Deadline deadline(FileTime);
    MediaInput input(stream, deadline);
    if (!stream.open(path) || !input.open(path))
        return;
    const int video = input.videoStream();
    if (video < 0) {
        if (input.audioStream() >= 0) {
            info.audioOnly = 1;
            info.sourceForm = VD_Source_AudioFile;
        }
        return;
    }
    const AVCodecParameters &parameters = *input.context()->streams[video]->codecpar;
    setCodec(info, shortCodecName(parameters.codec_id));
    info.width = parameters.width;
    info.height = parameters.height;
    if (parameters.width >= WidthOf4K || parameters.height >= HeightOf4K)
        info.flags |= VD_Flag_File4K;
    if (parameters.codec_id == AV_CODEC_ID_HEVC)
        info.flags |= VD_Flag_FileHevc;
}

} // namespace

bool SourceProbe::isDvd(VD_SourceForm form)
{
    return form == VD_Source_ImageDvd || form == VD_Source_FolderDvd || form == VD_Source_DiscDvd;
}

bool SourceProbe::isBluRay(VD_SourceForm form)
{
    return form == VD_Source_ImageBluRay || form == VD_Source_FolderBluRay || form == VD_Source_DiscBluRay;
}

bool SourceProbe::isDisc(VD_SourceForm form)
{
    return isDvd(form) || isBluRay(form);
}

VD_SourceForm SourceProbe::form(const std::string &path)
{
    switch (LocalFile::kindOf(path)) {
    case LocalFile::Kind::Folder: {
        const Shape *shape = shapeOf(nativePath(path));
        return !shape ? VD_Source_File : shape->isDvd ? VD_Source_FolderDvd : VD_Source_FolderBluRay;
    }
    case LocalFile::Kind::Device:
        return formOfVolume(path, VD_Source_DiscDvd, VD_Source_DiscBluRay);
    case LocalFile::Kind::Regular:
        if (isDiscEntryFile(nativePath(path)))
            return form(nativePath(path).parent_path().u8string());
        return formOfVolume(path, VD_Source_ImageDvd, VD_Source_ImageBluRay);
    default:
        return VD_Source_File;
    }
}

std::string SourceProbe::discRoot(const std::string &path)
{
    std::filesystem::path folder = nativePath(path);
    if (isDiscEntryFile(folder) && LocalFile::kindOf(path) == LocalFile::Kind::Regular)
        folder = folder.parent_path();
    else if (LocalFile::kindOf(path) != LocalFile::Kind::Folder)
        return path;
    // "X/VIDEO_TS/" names an empty entry behind its slash.
    if (!folder.has_filename())
        folder = folder.parent_path();
    const Shape *shape = shapeOf(folder);
    if (!shape || shape->isFolder)
        return folder.u8string();
    // A folder that only holds the files, under whatever name, is its own root.
    const std::string name = folder.filename().u8string();
    for (const Shape &known : shapes) {
        if (known.isFolder && name == known.entry && folder.has_parent_path())
            return folder.parent_path().u8string();
    }
    return folder.u8string();
}

vdFileInfo SourceProbe::describe(const std::string &path, int, int title)
{
    // What a path holds is told by what stands there: an image handed over as a file is a disc even so.
    vdFileInfo info;
    const VD_SourceForm known = form(path);
    info.sourceForm = known;
    if (isDisc(known)) {
        info.mediaClass = isDvd(known) ? VD_Media_Dvd : VD_Media_BluRay;
        describeDisc(path, title, info);
    } else if (LocalFile::kindOf(path) == LocalFile::Kind::Regular) {
        describeFile(path, info);
    }
    return info;
}
