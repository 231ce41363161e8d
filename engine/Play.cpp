#include "Play.h"

#include "DriveTable.h"
#include "LogOnce.h"

#include "contract/IVDFileItem.h"
#include "contract/IVDPlayOptions.h"

#include <algorithm>
#include <cstdlib>

namespace {

using namespace libvp;

struct StatisticRow {
    int key;
    int (*read)(const PlayFacts &facts);
};

constexpr StatisticRow statisticRows[] = {
    {VD_Stat_MediaClass, [](const PlayFacts &facts) { return facts.info.mediaClass; }},
    {VD_Stat_SourceForm, [](const PlayFacts &facts) { return facts.info.sourceForm; }},
    {VD_Stat_AudioOnly, [](const PlayFacts &facts) { return int{facts.info.audioOnly}; }},
    {VD_Stat_Flags, [](const PlayFacts &facts) { return static_cast<int>(facts.info.flags); }},
    {VD_Stat_Width, [](const PlayFacts &facts) { return facts.info.width; }},
    {VD_Stat_Height, [](const PlayFacts &facts) { return facts.info.height; }},
    // libmpv does not count what it decodes: the frames of the time that was played.
    {VD_Stat_DecodedFrames,
     [](const PlayFacts &facts) { return static_cast<int>(facts.playedSeconds * facts.frameRate); }},
    {VD_Stat_DroppedFrames, [](const PlayFacts &facts) { return facts.droppedFrames; }},
    {VD_Stat_HardwareDecoding, [](const PlayFacts &facts) { return facts.hardwareDecoding ? 1 : 0; }},
};

OpenRequest readRequest(IVDFileItem &item, IVDPlayOptions *options)
{
    OpenRequest request;
    const char *path = item.path();
    request.path = path ? path : "";
    request.itemType = item.itemType();
    if (!options)
        return request;
    request.startSeconds = options->startSeconds();
    request.endSeconds = options->endSeconds();
    const char *title = options->title();
    request.title = title ? std::max(std::atoi(title), 0) : 0;
    request.audio = options->audioStream();
    request.subtitle = options->subtitleStream();
    request.angle = options->angle();
    request.chapter = options->chapter();
    request.autoStart = options->autoStart();
    return request;
}

} // namespace

Play::Play(const PlayContext &context, const DriveTable &drives, LogOnce &log, IVDPlayCallback *callback)
    : m_context(context)
    , m_drives(drives)
    , m_log(log)
    , m_callback(callback)
{
}

Play::~Play()
{
    close();
}

bool Play::open(IVDFileItem *item, IVDPlayOptions *options, int)
{
    if (!item)
        return false;
    OpenRequest request = readRequest(*item, options);
    if (request.path.empty())
        return false;
    request.resolved = m_drives.resolve(request.path);
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_session)
        return false;
    m_session = std::make_shared<PlaySession>(m_context, m_callback, std::move(request));
    m_session->start();
    return true;
}

void Play::close()
{
    std::shared_ptr<PlaySession> session;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        session.swap(m_session);
    }
    if (!session)
        return;
    if (m_context.notifier->isNotifierThread())
        m_log.write("a play was closed from a notification");
    session->end();
}

std::shared_ptr<PlaySession> Play::session() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_session;
}

PlayFacts Play::facts() const
{
    const auto open = session();
    return open ? open->facts() : PlayFacts{};
}

const VDAudioInfo *Play::getAudioInfo(int index)
{
    thread_local VDAudioInfo record;
    const TrackList tracks = facts().tracks;
    if (index < 0 || index >= static_cast<int>(tracks.audio.size()))
        return nullptr;
    record = tracks.audio[static_cast<std::size_t>(index)].record;
    return &record;
}

const VDSubtitleInfo *Play::getSubtitleInfo(int index)
{
    thread_local VDSubtitleInfo record;
    const TrackList tracks = facts().tracks;
    if (index < 0 || index >= static_cast<int>(tracks.subtitles.size()))
        return nullptr;
    record = tracks.subtitles[static_cast<std::size_t>(index)].record;
    return &record;
}

void Play::togglePause()
{
    if (const auto open = session())
        open->togglePause();
}

bool Play::isPlaying()
{
    return facts().isPlaying;
}

bool Play::isPaused()
{
    const PlayFacts now = facts();
    return now.isPlaying && now.isPaused;
}

double Play::totalSeconds()
{
    return facts().total;
}

double Play::currentSeconds()
{
    const auto open = session();
    return open ? open->position() : 0.0;
}

void Play::seek(double seconds, int mode)
{
    if (const auto open = session())
        open->seek(seconds, mode == 1);
}

int Play::audioCount()
{
    const PlayFacts now = facts();
    return now.isOpen ? static_cast<int>(now.tracks.audio.size()) : -1;
}

int Play::audioTrack()
{
    const PlayFacts now = facts();
    return now.isOpen ? now.tracks.selectedAudio : -1;
}

void Play::setAudioTrack(int index)
{
    if (const auto open = session())
        open->setAudioTrack(index);
}

int Play::subtitleCount(int)
{
    const PlayFacts now = facts();
    return now.isOpen ? static_cast<int>(now.tracks.subtitles.size()) : -1;
}

int Play::subtitleTrack()
{
    const PlayFacts now = facts();
    return now.isOpen ? now.tracks.selectedSubtitle : -1;
}

void Play::setSubtitleTrack(int index)
{
    if (const auto open = session())
        open->setSubtitleTrack(index);
}

void Play::setSpeedIndex(int index)
{
    if (const auto open = session())
        open->setSpeedIndex(index);
}

float Play::speed()
{
    return facts().speed;
}

int Play::chapterCount()
{
    const PlayFacts now = facts();
    return now.isOpen ? now.chapterCount : -1;
}

int Play::chapter()
{
    const PlayFacts now = facts();
    return now.isOpen ? now.chapter : -1;
}

int Play::titleCount()
{
    const PlayFacts now = facts();
    return now.isOpen ? now.titleCount : -1;
}

void Play::goToChapter(int chapter)
{
    if (const auto open = session())
        open->goToChapter(chapter);
}

void Play::menuCommand(int, float, int)
{
    m_log.write("disc menus cannot be shown");
}

bool Play::hasDiscMenu()
{
    return false; // discs play title by title, whatever stands on them
}

int Play::addSubtitle(const char *path)
{
    const auto open = session();
    return open && path && *path ? open->addSubtitle(path) : -1;
}

void Play::setAuthorInfo(int) {}

void Play::toggleStep()
{
    if (const auto open = session())
        open->step(1);
}

int Play::statistic(int key)
{
    const PlayFacts now = facts();
    for (const StatisticRow &row : statisticRows) {
        if (row.key == key)
            return row.read(now);
    }
    return 0;
}
