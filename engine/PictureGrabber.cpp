#include "PictureGrabber.h"

#include "Deadline.h"
#include "FrameDecoder.h"
#include "LocalFile.h"
#include "MediaInput.h"
#include "NativePath.h"
#include "PictureScaler.h"
#include "SourceProbe.h"
#include "VideoSource.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cctype>
#include <chrono>
#include <vector>

namespace {

constexpr std::chrono::milliseconds PictureTime{5000};
constexpr int LargestSide = 4096;
constexpr double UnknownLength = 300.0;

// Where to look, as parts of the length: past the opening titles first. A picture with less contrast than
// this is black, white or a fade.
constexpr double places[] = {0.10, 0.20, 0.35, 0.50, 0.05, 0.0};
constexpr double EnoughContrast = 12.0;

// Pictures beside a film that stand for it, best first; any of the endings.
constexpr const char *posterNames[] = {"poster", "folder", "cover", "front", "default"};
constexpr const char *posterEndings[] = {".jpg", ".jpeg", ".png", ".webp", ".bmp"};

std::string lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

// Path of the best poster in a folder, empty without one.
std::string findPoster(const std::string &folder)
{
    constexpr int MostEntries = 5000;
    std::string best;
    std::size_t bestRank = std::size(posterNames);
    std::error_code error;
    int count = 0;
    for (std::filesystem::directory_iterator entry(nativePath(folder), error), end;
         !error && entry != end && count < MostEntries; entry.increment(error), ++count) {
        const std::string ending = lower(entry->path().extension().u8string());
        if (std::find(std::begin(posterEndings), std::end(posterEndings), ending) == std::end(posterEndings))
            continue;
        const std::string name = lower(entry->path().stem().u8string());
        const auto rank = static_cast<std::size_t>(
            std::find(std::begin(posterNames), std::end(posterNames), name) - std::begin(posterNames));
        if (rank < bestRank) {
            bestRank = rank;
            best = entry->path().u8string();
        }
    }
    return best;
}

bool grabFrame(const std::string &path, int width, int height, Deadline &deadline, Picture &picture)
{
    const std::unique_ptr<VideoSource> source = VideoSource::open(path, 0, deadline);
    if (!source)
        return false;
    const double length = source->duration() > 0 ? source->duration() : UnknownLength;
    double bestContrast = -1.0;
    for (const double place : places) {
        Picture candidate;
        if (deadline.isOver() || !source->grab(length * place, false, width, height, candidate))
            continue;
        const double contrast = PictureScaler::contrast(candidate);
        if (contrast > bestContrast) {
            bestContrast = contrast;
            picture = std::move(candidate);
        }
        if (bestContrast >= EnoughContrast)
            break;
    }
    return bestContrast >= 0;
}

bool grabCover(const std::string &path, int width, int height, Deadline &deadline, Picture &picture)
{
    FileStream stream;
    MediaInput input(stream, deadline);
    if (!stream.open(path) || !input.open(path))
        return false;
    const int index = input.coverStream();
    FrameDecoder decoder;
    if (index < 0 || !decoder.open(input, index))
        return false;
    const AVStream &cover = *input.context()->streams[index];
    const AvFrame frame = decoder.decode(cover.attached_pic);
    return frame && PictureScaler::scale(*frame, {1, 1}, 0, width, height, picture);
}

bool grabSource(const PictureGrabber::Request &request, const std::string &path, Picture &picture)
{
    Deadline deadline(PictureTime);
    const auto fromFile = [&](const std::string &file) {
        return grabFrame(file, request.width, request.height, deadline, picture);
    };
    if (LocalFile::kindOf(path) != LocalFile::Kind::Folder)
        return fromFile(path) || grabCover(path, request.width, request.height, deadline, picture);
    if (SourceProbe::isDisc(SourceProbe::form(path)) && fromFile(path))
        return true;
    const std::string poster = findPoster(path);
    return !poster.empty() && fromFile(poster);
}

} // namespace

bool PictureGrabber::parse(const char *json, Request &request)
{
    if (!json)
        return false;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray(json), &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        return false;
    const QJsonObject object = document.object();
    request.path = object.value(QLatin1String("url")).toString().toStdString();
    request.width = object.value(QLatin1String("width")).toInt(request.width);
    request.height = object.value(QLatin1String("height")).toInt(request.height);
    const auto usable = [](int side) { return side > 0 && side <= LargestSide; };
    return !request.path.empty() && usable(request.width) && usable(request.height);
}

bool PictureGrabber::grab(const Request &request, const DriveTable &drives, Picture &picture)
{
    const std::string path = drives.resolve(request.path);
    Picture pixels;
    if (path.empty() || !grabSource(request, path, pixels))
        return false;
    if (!PictureScaler::compress(pixels, picture))
        picture = std::move(pixels);
    return true;
}
