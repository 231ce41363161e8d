#include "EngineCore.h"

#include "DiscReader.h"
#include "EngineLog.h"
#include "PictureGrabber.h"
#include "PlayTool.h"
#include "SourceProbe.h"

#include <algorithm>
#include <exception>

extern "C" {
#include <libavutil/log.h>
}

namespace {

constexpr int LogFolder = 2;
constexpr int ExactFrame = 1;    // flag of a thumbnail
constexpr int ReplaceTarget = 1; // option of a backup
constexpr int LargestPicture = 8192;

std::string textOf(const char *text)
{
    return text ? text : "";
}

// What goes wrong inside ends here: the caller may be built by another compiler.
template<typename Result, typename Operation>
Result guarded(const char *name, Result failure, Operation operation)
{
    try {
        return operation();
    } catch (const std::exception &error) {
        engineLog("[Engine] %s: %s", name, error.what());
    }
    return failure;
}

} // namespace

EngineCore::EngineCore(libvp::IVDPlayerConfig *config, libvp::IVDOrbixCallback *callback)
    : m_config(config)
    , m_callback(callback)
    , m_watch(m_drives, m_notifier, callback)
    , m_backups(m_drives)
{
    // The default of the decoding libraries writes to standard error of a process that is not ours.
    av_log_set_level(AV_LOG_QUIET);
}

EngineCore::~EngineCore()
{
    m_watch.stop();
    m_backups.stopAll();
    m_thumbnails.closeAll();
    m_tool.reset();
    engineLog("[Engine] released");
    EngineLog::instance().close();
}

bool EngineCore::initialise()
{
    return guarded("initialise", false, [&] {
        EngineLog::instance().open(textOf(m_config->path(LogFolder)));
        engineLog("[Engine] %s %s, level %d", textOf(m_config->productName()).c_str(),
                  textOf(m_config->productVersion()).c_str(), m_config->featureLevel());
        m_watch.start();
        return true;
    });
}

libvp::IVDPlayTool *EngineCore::createPlayTool(int, libvp::IVDPlayToolConfig *config,
                                               libvp::IVDPlaytoolCallback *callback)
{
    return guarded<libvp::IVDPlayTool *>("createPlayTool", nullptr, [&]() -> libvp::IVDPlayTool * {
        const std::lock_guard<std::mutex> lock(m_toolMutex);
        if (!m_tool)
            m_tool = std::make_unique<PlayTool>(m_config, m_callback, config, callback, m_watch, m_notifier);
        return m_tool.get();
    });
}

bool EngineCore::prepareDisc(const char *path, int, libvp::VDDiscTitle *titles, int capacity, int *titleCount,
                             int *mainTitle)
{
    if (titleCount)
        *titleCount = 0;
    if (mainTitle)
        *mainTitle = 0;
    return guarded("prepareDisc", false, [&] {
        const std::string source = textOf(path);
        const std::string resolved = m_drives.resolve(source);
        DiscContents contents;
        if (resolved.empty() || !DiscReader::read(resolved, contents)) {
            engineLog("[Disc] no disc: %s", source.c_str());
            return false;
        }
        const auto room = static_cast<std::size_t>(titles ? std::max(0, capacity) : 0);
        std::copy_n(contents.titles.begin(), std::min(room, contents.titles.size()), titles);
        if (titleCount)
            *titleCount = static_cast<int>(contents.titles.size());
        if (mainTitle)
            *mainTitle = contents.mainTitle;
        if (contents.titles.empty())
            engineLog("[Disc] no title can be read: %s", source.c_str());
        return true;
    });
}

int EngineCore::sourceForm(const char *path)
{
    return guarded<int>("sourceForm", libvp::VD_Source_File,
                        [&] { return int(SourceProbe::form(m_drives.resolve(textOf(path)))); });
}

int EngineCore::openThumbnailSession(const char *path, int, int titleNumber, int width, int height,
                                     int startMs, int endMs, int)
{
    return guarded("openThumbnailSession", 0, [&] {
        ThumbnailSession::Request request;
        request.path = m_drives.resolve(textOf(path));
        request.titleNumber = titleNumber;
        request.width = std::min(width, LargestPicture);
        request.height = std::min(height, LargestPicture);
        request.startMs = startMs;
        request.endMs = endMs;
        const int handle = request.path.empty() ? 0 : m_thumbnails.open(request);
        if (handle == 0)
            engineLog("[Thumbnail] no pictures of %s", textOf(path).c_str());
        return handle;
    });
}

void EngineCore::closeThumbnailSession(int handle)
{
    m_thumbnails.close(handle);
}

bool EngineCore::grabThumbnail(int handle, int positionMs, int flags, const libvp::VDPicture **picture)
{
    if (!picture)
        return false;
    *picture = nullptr;
    return guarded("grabThumbnail", false, [&] {
        Picture grabbed;
        if (!m_thumbnails.grab(handle, positionMs, (flags & ExactFrame) != 0, grabbed))
            return false;
        *picture = m_pictures.add(std::move(grabbed));
        return true;
    });
}

void EngineCore::releasePicture(const libvp::VDPicture *picture)
{
    m_pictures.release(picture);
}

const libvp::VDPicture *EngineCore::grabPicture(const char *requestJson)
{
    return guarded<const libvp::VDPicture *>("grabPicture", nullptr, [&]() -> const libvp::VDPicture * {
        PictureGrabber::Request request;
        if (!PictureGrabber::parse(requestJson, request)) {
            engineLog("[Picture] the request cannot be read");
            return nullptr;
        }
        Picture picture;
        if (!PictureGrabber::grab(request, m_drives, picture)) {
            engineLog("[Picture] none of %s", request.path.c_str());
            return nullptr;
        }
        return m_pictures.add(std::move(picture));
    });
}

bool EngineCore::startBackup(const char *source, const char *target, int option)
{
    return guarded("startBackup", false, [&] {
        const bool started = m_backups.start(textOf(source), textOf(target), (option & ReplaceTarget) != 0);
        engineLog("[Backup] %s: %s to %s", started ? "started" : "refused", textOf(source).c_str(),
                  textOf(target).c_str());
        return started;
    });
}

void EngineCore::stopBackup(const char *drive)
{
    m_backups.stop(textOf(drive));
}

double EngineCore::backupProgress(const char *drive)
{
    return m_backups.progress(textOf(drive));
}

bool EngineCore::isBackupFinished(const char *drive)
{
    return m_backups.isFinished(textOf(drive));
}

bool EngineCore::isBackupFailed(const char *drive)
{
    return m_backups.isFailed(textOf(drive));
}
