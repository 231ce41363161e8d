#include "FakePlay.h"

#include "FakeState.h"

#include <iterator>

FakePlay::FakePlay(FakeState &state, libvp::IVDPlayCallback *callback)
    : m_state(state)
    , m_callback(callback)
{
}

FakePlay::~FakePlay() = default;

bool FakePlay::open(libvp::IVDFileItem *item, libvp::IVDPlayOptions *options, int reserved)
{
    m_state.script.called("IVDPlay::open", item->path(), item->itemType(), item->flags(),
                          options->startSeconds(), options->endSeconds(), options->title(),
                          options->audioStream(), options->subtitleStream(), options->angle(),
                          options->chapter(), options->autoStart(), reserved);
    const bool accepted = m_state.script.number("IVDPlay::open", 1) != 0;
    m_open = accepted;
    m_paused = false;
    if (accepted && m_state.isAutomatic())
        m_state.post([](libvp::IVDPlayCallback &callback) { callback.OnPlayBackStarted(); });
    return accepted;
}

void FakePlay::close()
{
    m_state.script.called("IVDPlay::close");
    if (m_open.exchange(false) && m_state.isAutomatic()) {
        m_state.post([](libvp::IVDPlayCallback &callback) {
            callback.OnStopInfo({});
            callback.OnPlayBackStopped();
        });
        m_state.dispatcher().finish(this);
    }
    m_state.dispatcher().drop(this);
}

const libvp::VDAudioInfo *FakePlay::getAudioInfo(int index)
{
    m_state.script.called("IVDPlay::getAudioInfo", index);
    thread_local libvp::VDAudioInfo record;
    const std::vector<libvp::VDAudioInfo> tracks = m_state.audioTracks();
    if (index < 0 || index >= static_cast<int>(tracks.size()))
        return nullptr;
    record = tracks[static_cast<std::size_t>(index)];
    return &record;
}

const libvp::VDSubtitleInfo *FakePlay::getSubtitleInfo(int index)
{
    m_state.script.called("IVDPlay::getSubtitleInfo", index);
    thread_local libvp::VDSubtitleInfo record;
    const std::vector<libvp::VDSubtitleInfo> tracks = m_state.subtitleTracks();
    if (index < 0 || index >= static_cast<int>(tracks.size()))
        return nullptr;
    record = tracks[static_cast<std::size_t>(index)];
    return &record;
}

void FakePlay::togglePause()
{
    m_state.script.called("IVDPlay::togglePause");
    const bool paused = !m_paused;
    m_paused = paused;
    if (!m_state.isAutomatic())
        return;
    m_state.post([paused](libvp::IVDPlayCallback &callback) {
        if (paused)
            callback.OnPlayBackPaused();
        else
            callback.OnPlayBackResumed();
    });
}

bool FakePlay::isPlaying()
{
    m_state.script.called("IVDPlay::isPlaying");
    return m_state.script.number("IVDPlay::isPlaying", m_open ? 1 : 0) != 0;
}

bool FakePlay::isPaused()
{
    m_state.script.called("IVDPlay::isPaused");
    return m_state.script.number("IVDPlay::isPaused", m_paused ? 1 : 0) != 0;
}

double FakePlay::totalSeconds()
{
    m_state.script.called("IVDPlay::totalSeconds");
    return m_state.script.number("IVDPlay::totalSeconds", 0);
}

double FakePlay::currentSeconds()
{
    m_state.script.called("IVDPlay::currentSeconds");
    return m_state.script.number("IVDPlay::currentSeconds", 0);
}

void FakePlay::seek(double seconds, int mode)
{
    m_state.script.called("IVDPlay::seek", seconds, mode);
}

int FakePlay::audioCount()
{
    m_state.script.called("IVDPlay::audioCount");
    return static_cast<int>(m_state.script.number(
        "IVDPlay::audioCount", m_open ? static_cast<double>(m_state.audioTracks().size()) : -1));
}

int FakePlay::audioTrack()
{
    m_state.script.called("IVDPlay::audioTrack");
    return static_cast<int>(m_state.script.number("IVDPlay::audioTrack", m_open ? 0 : -1));
}

void FakePlay::setAudioTrack(int index)
{
    m_state.script.called("IVDPlay::setAudioTrack", index);
    m_state.script.answer("IVDPlay::audioTrack", index);
}

int FakePlay::subtitleCount(int reserved)
{
    m_state.script.called("IVDPlay::subtitleCount", reserved);
    return static_cast<int>(m_state.script.number(
        "IVDPlay::subtitleCount", m_open ? static_cast<double>(m_state.subtitleTracks().size()) : -1));
}

int FakePlay::subtitleTrack()
{
    m_state.script.called("IVDPlay::subtitleTrack");
    return static_cast<int>(m_state.script.number("IVDPlay::subtitleTrack", -1));
}

void FakePlay::setSubtitleTrack(int index)
{
    m_state.script.called("IVDPlay::setSubtitleTrack", index);
    m_state.script.answer("IVDPlay::subtitleTrack", index);
}

void FakePlay::setSpeedIndex(int index)
{
    static constexpr float speeds[] = {-32,  -16,   -8,   -4,    -2,   0, 0.25F, 0.5F, 0.75F,
                                       1.0F, 1.25F, 1.5F, 1.75F, 2.0F, 4, 8,     16,   32};
    m_state.script.called("IVDPlay::setSpeedIndex", index);
    if (index < 0 || index >= static_cast<int>(std::size(speeds)))
        return;
    const float speed = speeds[index];
    m_state.script.answer("IVDPlay::speed", static_cast<double>(speed));
    if (m_state.isAutomatic())
        m_state.post([speed](libvp::IVDPlayCallback &callback) { callback.OnPlayBackSpeedChanged(speed); });
}

float FakePlay::speed()
{
    m_state.script.called("IVDPlay::speed");
    return static_cast<float>(m_state.script.number("IVDPlay::speed", 1));
}

int FakePlay::chapterCount()
{
    m_state.script.called("IVDPlay::chapterCount");
    return static_cast<int>(m_state.script.number("IVDPlay::chapterCount", 0));
}

int FakePlay::chapter()
{
    m_state.script.called("IVDPlay::chapter");
    return static_cast<int>(m_state.script.number("IVDPlay::chapter", 0));
}

int FakePlay::titleCount()
{
    m_state.script.called("IVDPlay::titleCount");
    return static_cast<int>(m_state.script.number("IVDPlay::titleCount", 0));
}

void FakePlay::goToChapter(int chapter)
{
    m_state.script.called("IVDPlay::goToChapter", chapter);
    m_state.script.answer("IVDPlay::chapter", chapter);
}

void FakePlay::menuCommand(int command, float value, int reserved)
{
    m_state.script.called("IVDPlay::menuCommand", command, value, reserved);
}

bool FakePlay::hasDiscMenu()
{
    m_state.script.called("IVDPlay::hasDiscMenu");
    return m_state.script.number("IVDPlay::hasDiscMenu", 0) != 0;
}

int FakePlay::addSubtitle(const char *path)
{
    m_state.script.called("IVDPlay::addSubtitle", path);
    return static_cast<int>(m_state.script.number("IVDPlay::addSubtitle", 0));
}

void FakePlay::setAuthorInfo(int value)
{
    m_state.script.called("IVDPlay::setAuthorInfo", value);
}

void FakePlay::toggleStep()
{
    m_state.script.called("IVDPlay::toggleStep");
}

int FakePlay::statistic(int key)
{
    m_state.script.called("IVDPlay::statistic", key);
    return m_state.statisticValue(key);
}
