#include "SourcePlan.h"

#include "DiscReader.h"
#include "LocalFile.h"
#include "NativePath.h"
#include "SourceProbe.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <iterator>

namespace {

using namespace libvp;

constexpr const char *networkSchemes[] = {"http", "https", "rtmp", "rtmps", "rtsp", "rtsps", "rtp", "udp",
                                          "tcp",  "mms",   "mmsh", "mmst",  "ftp",  "sftp",  "srt", "tls"};
constexpr const char *playlistEndings[] = {".m3u", ".m3u8", ".pls", ".asx",      ".wax",  ".wvx",
                                           ".wpl", ".xspf", ".edl", ".ffconcat", ".strm", ".url"};
// Lists that are told by their first bytes and that libmpv would follow even so.
constexpr const char *playlistHeads[] = {"ffconcat version", "# mpv EDL", "#EXTM3U", "mpv EDL"};

std::string lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

bool endsWith(const std::string &text, const std::string &ending)
{
    return text.size() >= ending.size()
           && text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
}

std::string absolutePath(const std::string &path)
{
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(nativePath(path), error);
    return error ? std::string() : absolute.u8string();
}

std::string number(double value)
{
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%.3f", value);
    return text.data();
}

void addRange(SourcePlan &plan, const OpenRequest &request)
{
    if (request.chapter > 0)
        plan.options["start"] = "#" + std::to_string(request.chapter);
    else if (std::isfinite(request.startSeconds) && request.startSeconds > 0)
        plan.options["start"] = number(request.startSeconds);
    if (std::isfinite(request.endSeconds) && request.endSeconds > 0)
        plan.options["end"] = number(request.endSeconds);
}

void planNetwork(SourcePlan &plan, const OpenRequest &request)
{
    plan.url = request.resolved;
    plan.info.sourceForm = VD_Source_File;
    // Streams of the network come as lists more often than not; libmpv keeps those away from local files.
    plan.options["access-references"] = "yes";
    addRange(plan, request);
}

void planDisc(SourcePlan &plan, const OpenRequest &request, VD_SourceForm form)
{
    DiscContents contents;
    const std::string root = SourceProbe::discRoot(request.resolved);
    plan.info.sourceForm = form;
    plan.info.mediaClass = SourceProbe::isDvd(form) ? VD_Media_Dvd : VD_Media_BluRay;
    if (!DiscReader::read(root, contents) || contents.titles.empty()) {
        plan.error = VD_PlayError_DiscUnreadable;
        return;
    }
    plan.info.flags = contents.flags;
    plan.titles = contents.titles;
    plan.title = request.title > 0 ? request.title : contents.mainTitle;
    if (plan.title > static_cast<int>(plan.titles.size())) {
        plan.error = VD_PlayError_NotFound;
        return;
    }
    const bool dvd = SourceProbe::isDvd(form);
    plan.options[dvd ? "dvd-device" : "bluray-device"] = absolutePath(root);
    plan.url = dvd ? "dvd://" : "bd://";
    if (plan.title > 0)
        plan.url += std::to_string(plan.title - 1);
    if (dvd && request.angle >= 0)
        plan.options["dvd-angle"] = std::to_string(std::min(request.angle + 1, 99));
    addRange(plan, request);
}

void planFile(SourcePlan &plan, const OpenRequest &request)
{
    plan.info.sourceForm = VD_Source_File;
    LocalFile file;
    if (!file.open(request.resolved)) {
        plan.error = VD_PlayError_NoAccess;
        return;
    }
    const std::int64_t size = file.size();
    file.close();
    if (size == 0 || SourcePlan::isPlaylist(request.resolved)) {
        plan.error = VD_PlayError_UnknownFormat;
        return;
    }
    plan.localFile = absolutePath(request.resolved);
    plan.url = plan.localFile; // absolute: no name looks like an option or a protocol any more
    addRange(plan, request);
    if (!endsWith(lower(request.resolved), ".cue"))
        return;
    // A sheet names the file with its sound; libmpv looks for it in the sheet's folder only.
    plan.options["access-references"] = "yes";
    if (request.title > 0 && request.startSeconds <= 0) {
        plan.options["start"] = "#" + std::to_string(request.title);
        plan.options["end"] = "#" + std::to_string(request.title + 1);
    }
}

} // namespace

bool SourcePlan::isNetworkAddress(const std::string &path)
{
    const std::size_t end = path.find("://");
    if (end == std::string::npos)
        return false;
    const std::string scheme = lower(path.substr(0, end));
    return std::find(std::begin(networkSchemes), std::end(networkSchemes), scheme)
           != std::end(networkSchemes);
}

bool SourcePlan::isPlaylist(const std::string &path)
{
    const std::string name = lower(path);
    if (std::any_of(std::begin(playlistEndings), std::end(playlistEndings),
                    [&name](const char *ending) { return endsWith(name, ending); }))
        return true;
    LocalFile file;
    std::array<char, 64> head{};
    if (!file.open(path) || file.readAt(0, head.data(), head.size() - 1) <= 0)
        return false;
    std::string start = head.data();
    start.erase(0, start.find_first_not_of(" \t\r\n\xEF\xBB\xBF"));
    return std::any_of(std::begin(playlistHeads), std::end(playlistHeads),
                       [&start](const char *text) { return start.rfind(text, 0) == 0; });
}

SourcePlan SourcePlan::make(const OpenRequest &request)
{
    SourcePlan plan;
    plan.info.sourceForm = VD_Source_File;
    if (isNetworkAddress(request.resolved)) {
        planNetwork(plan, request);
        return plan;
    }
    const LocalFile::Kind kind = LocalFile::kindOf(request.resolved);
    if (request.resolved.empty() || kind == LocalFile::Kind::None) {
        plan.error = request.itemType == VD_Item_Disc ? VD_PlayError_DiscUnreadable : VD_PlayError_NotFound;
        return plan;
    }
    if (kind == LocalFile::Kind::Other) {
        plan.error = VD_PlayError_NoAccess;
        return plan;
    }
    const VD_SourceForm form = SourceProbe::form(request.resolved);
    if (SourceProbe::isDisc(form))
        planDisc(plan, request, form);
    else if (kind == LocalFile::Kind::Regular)
        planFile(plan, request);
    else
        plan.error = VD_PlayError_DiscUnreadable;
    return plan;
}
