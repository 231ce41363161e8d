#include "FakeState.h"

#include "FakeCore.h"
#include "FakePlay.h"
#include "FakeTool.h"

#include <algorithm>
#include <utility>

struct FakeState::Engine {
    libvp::IVDPlayerConfig *config = nullptr;
    libvp::IVDOrbixCallback *callback = nullptr;
    libvp::IVDPlayToolConfig *toolConfig = nullptr;
    std::unique_ptr<FakeCore> core;
    std::unique_ptr<FakeTool> tool;
    std::vector<std::unique_ptr<FakePlay>> plays;
};

FakeState::FakeState()
    : m_dispatcher(std::make_unique<FakeDispatcher>())
{
}

FakeState::~FakeState() = default;

FakeState &FakeState::instance()
{
    static FakeState state;
    return state;
}

bool FakeState::isAutomatic() const
{
    std::lock_guard lock(m_mutex);
    return m_records.automatic;
}

libvp::IVDEngineCore *FakeState::create(libvp::IVDPlayerConfig *config, libvp::IVDOrbixCallback *callback)
{
    script.called("CreateVDPlayer");
    if (!config || !callback || script.number("CreateVDPlayer", 1) == 0)
        return nullptr;
    std::lock_guard lock(m_mutex);
    if (m_engine)
        return nullptr;
    m_engine = std::make_unique<Engine>();
    m_engine->config = config;
    m_engine->callback = callback;
    m_engine->core = std::make_unique<FakeCore>(*this);
    return m_engine->core.get();
}

void FakeState::destroy(libvp::IVDEngineCore *core)
{
    script.called("ReleaseVDPlayer");
    std::vector<const void *> owners;
    {
        std::lock_guard lock(m_mutex);
        if (!m_engine || core != m_engine->core.get())
            return;
        owners = {m_engine.get(), m_engine->tool.get()};
        for (const auto &play : m_engine->plays)
            owners.push_back(play.get());
    }
    for (const void *owner : owners)
        m_dispatcher->drop(owner);
    std::unique_ptr<Engine> ended;
    std::lock_guard lock(m_mutex);
    ended = std::move(m_engine);
}

libvp::IVDPlayTool *FakeState::createTool(libvp::IVDPlayToolConfig *config,
                                          libvp::IVDPlaytoolCallback *callback)
{
    if (script.number("IVDEngineCore::createPlayTool", 1) == 0)
        return nullptr;
    std::lock_guard lock(m_mutex);
    m_engine->toolConfig = config;
    m_engine->tool = std::make_unique<FakeTool>(*this, callback);
    return m_engine->tool.get();
}

libvp::IVDPlay *FakeState::createPlay(libvp::IVDPlayCallback *callback)
{
    std::lock_guard lock(m_mutex);
    m_engine->plays.push_back(std::make_unique<FakePlay>(*this, callback));
    return m_engine->plays.back().get();
}

void FakeState::destroyPlay(libvp::IVDPlay *play)
{
    m_dispatcher->drop(static_cast<FakePlay *>(play));
    std::lock_guard lock(m_mutex);
    auto &plays = m_engine->plays;
    plays.erase(
        std::remove_if(plays.begin(), plays.end(), [play](const auto &kept) { return kept.get() == play; }),
        plays.end());
}

bool FakeState::post(std::function<void(libvp::IVDPlayCallback &)> notification)
{
    std::lock_guard lock(m_mutex);
    if (!m_engine || m_engine->plays.empty())
        return false;
    FakePlay *play = m_engine->plays.back().get();
    libvp::IVDPlayCallback &callback = play->callback();
    m_dispatcher->post(play, [run = std::move(notification), &callback] { run(callback); });
    return true;
}

bool FakeState::raise(std::function<void(libvp::IVDPlayCallback &)> notification)
{
    return post(std::move(notification));
}

bool FakeState::raiseOrbix(std::function<void(libvp::IVDOrbixCallback &)> notification)
{
    std::lock_guard lock(m_mutex);
    if (!m_engine)
        return false;
    libvp::IVDOrbixCallback &callback = *m_engine->callback;
    m_dispatcher->post(m_engine.get(), [run = std::move(notification), &callback] { run(callback); });
    return true;
}

bool FakeState::raiseTool(std::function<void(libvp::IVDPlaytoolCallback &)> notification)
{
    std::lock_guard lock(m_mutex);
    if (!m_engine || !m_engine->tool)
        return false;
    libvp::IVDPlaytoolCallback &callback = m_engine->tool->callback();
    m_dispatcher->post(m_engine->tool.get(), [run = std::move(notification), &callback] { run(callback); });
    return true;
}

bool FakeState::waitNotified(int milliseconds)
{
    return m_dispatcher->waitIdle(milliseconds);
}

std::vector<libvp::VDAudioInfo> FakeState::audioTracks() const
{
    std::lock_guard lock(m_mutex);
    return m_records.audioTracks;
}

std::vector<libvp::VDSubtitleInfo> FakeState::subtitleTracks() const
{
    std::lock_guard lock(m_mutex);
    return m_records.subtitleTracks;
}

const libvp::VDAudioDeviceList *FakeState::audioDevices()
{
    std::lock_guard lock(m_mutex);
    m_records.audioDeviceList.count = static_cast<int>(m_records.audioDevices.size());
    m_records.audioDeviceList.devices = m_records.audioDevices.data();
    return &m_records.audioDeviceList;
}

std::vector<libvp::VDDiscTitle> FakeState::discTitles(int *mainTitle) const
{
    std::lock_guard lock(m_mutex);
    if (mainTitle)
        *mainTitle = m_records.mainTitle;
    return m_records.discTitles;
}

libvp::VDDiscDisplayInfo FakeState::discInfo() const
{
    std::lock_guard lock(m_mutex);
    return m_records.discInfo;
}

const libvp::VDPicture *FakeState::makePicture() const
{
    std::lock_guard lock(m_mutex);
    if (m_records.picture.empty())
        return nullptr;
    auto *picture = new libvp::VDPicture(m_records.pictureInfo);
    auto *bytes = new unsigned char[m_records.picture.size()];
    std::copy(m_records.picture.begin(), m_records.picture.end(), bytes);
    picture->data = bytes;
    picture->size = static_cast<int>(m_records.picture.size());
    return picture;
}

int FakeState::statisticValue(int key) const
{
    std::lock_guard lock(m_mutex);
    const auto found = m_records.statistics.find(key);
    return found == m_records.statistics.end() ? 0 : found->second;
}

void FakeState::reset()
{
    script.reset();
    std::lock_guard lock(m_mutex);
    m_records = {};
}

void FakeState::answer(const std::string &operation, double value)
{
    script.answer(operation, value);
}

void FakeState::answerText(const std::string &operation, const std::string &text)
{
    script.answerText(operation, text);
}

void FakeState::hold(const std::string &operation)
{
    script.hold(operation);
}

void FakeState::release(const std::string &operation)
{
    script.release(operation);
}

bool FakeState::waitHeld(const std::string &operation, int milliseconds)
{
    return script.waitHeld(operation, milliseconds);
}

void FakeState::setAutomatic(bool on)
{
    std::lock_guard lock(m_mutex);
    m_records.automatic = on;
}

void FakeState::setAudioTracks(std::vector<libvp::VDAudioInfo> tracks)
{
    std::lock_guard lock(m_mutex);
    m_records.audioTracks = std::move(tracks);
}

void FakeState::setSubtitleTracks(std::vector<libvp::VDSubtitleInfo> tracks)
{
    std::lock_guard lock(m_mutex);
    m_records.subtitleTracks = std::move(tracks);
}

void FakeState::setAudioDevices(std::vector<libvp::VDAudioDevice> devices)
{
    std::lock_guard lock(m_mutex);
    m_records.audioDevices = std::move(devices);
}

void FakeState::setDiscTitles(std::vector<libvp::VDDiscTitle> titles, int mainTitle)
{
    std::lock_guard lock(m_mutex);
    m_records.discTitles = std::move(titles);
    m_records.mainTitle = mainTitle;
}

void FakeState::setDiscInfo(const libvp::VDDiscDisplayInfo &info)
{
    std::lock_guard lock(m_mutex);
    m_records.discInfo = info;
}

void FakeState::setPicture(std::vector<unsigned char> bytes, int width, int height, int format)
{
    std::lock_guard lock(m_mutex);
    m_records.picture = std::move(bytes);
    m_records.pictureInfo.width = width;
    m_records.pictureInfo.height = height;
    m_records.pictureInfo.format = format;
}

void FakeState::setStatistic(int key, int value)
{
    std::lock_guard lock(m_mutex);
    m_records.statistics[key] = value;
}

std::vector<std::string> FakeState::calls() const
{
    return script.calls();
}

void FakeState::clearCalls()
{
    script.clearCalls();
}

bool FakeState::waitCall(const std::string &beginning, int milliseconds)
{
    return script.waitCall(beginning, milliseconds);
}

libvp::IVDEngineCore *FakeState::core()
{
    std::lock_guard lock(m_mutex);
    return m_engine ? m_engine->core.get() : nullptr;
}

libvp::IVDPlayTool *FakeState::tool()
{
    std::lock_guard lock(m_mutex);
    return m_engine ? m_engine->tool.get() : nullptr;
}

libvp::IVDPlay *FakeState::play()
{
    std::lock_guard lock(m_mutex);
    return m_engine && !m_engine->plays.empty() ? m_engine->plays.back().get() : nullptr;
}

libvp::IVDPlayerConfig *FakeState::playerConfig()
{
    std::lock_guard lock(m_mutex);
    return m_engine ? m_engine->config : nullptr;
}

libvp::IVDPlayToolConfig *FakeState::toolConfig()
{
    std::lock_guard lock(m_mutex);
    return m_engine ? m_engine->toolConfig : nullptr;
}
