#include "EngineHost.h"

#include <dlfcn.h>
#include <sys/mman.h>

#include <cstdio>

namespace {

constexpr std::chrono::seconds Patience{30};

class Item final : public libvp::IVDFileItem {
public:
    explicit Item(std::string path)
        : m_path(std::move(path))
    {
    }
    const char *path() override { return m_path.c_str(); }
    int reserved2() override { return 0; }
    const char *auxiliaryPath() override { return ""; }
    int flags() override { return 0; }
    int itemType() override { return libvp::VD_Item_File; }

private:
    std::string m_path;
};

class Options final : public libvp::IVDPlayOptions {
public:
    double startSeconds() override { return 0; }
    double endSeconds() override { return 0; }
    const char *title() override { return ""; }
    bool flagA() override { return false; }
    int audioStream() override { return libvp::VD_DefaultChoice; }
    int subtitleStream() override { return libvp::VD_DefaultChoice; }
    int angle() override { return 0; }
    int chapter() override { return -1; }
    bool autoStart() override { return true; }
    const char *extra() override { return ""; }
    bool reserved11() override { return false; }
    bool reserved12() override { return false; }
    int lastField() override { return -1; }
    int reserved14() override { return -1; }
    int reserved15() override { return 0; }
    bool reserved16() override { return false; }
    float reserved17() override { return 1; }
};

} // namespace

class EngineHost::Config final : public libvp::IVDPlayerConfig {
public:
    explicit Config(std::string folder)
        : m_folder(std::move(folder))
    {
    }
    const char *applicationTag() override { return "qtplayer"; }
    const char *productName() override { return "Quorin Media Player"; }
    const char *furtherName() override { return ""; }
    const char *productVersion() override { return "3.2.0.0"; }
    int productLine() override { return 1; }
    const char *furtherText6() override { return ""; }
    const char *furtherText7() override { return ""; }
    const char *furtherText8() override { return ""; }
    const char *path(int index) override { return index >= 0 && index <= 3 ? m_folder.c_str() : ""; }
    const char *fontFile(int index) override { return index == 0 ? "arial.ttf" : ""; }
    int reserved11() override { return 0; }
    int reserved12() override { return 0; }
    int featureLevel() override { return 15; }
    int reserved14() override { return 0; }
    int reserved15() override { return 0; }
    void *sharedBlock(std::size_t size) override
    {
        if (!m_block) {
            void *block = mmap(nullptr, size, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
            m_block = block == MAP_FAILED ? nullptr : block;
        }
        return m_block;
    }
    const libvp::VDRegionRecord *regionRecord() override { return &m_region; }

private:
    std::string m_folder;
    libvp::VDRegionRecord m_region;
    void *m_block{nullptr};
};

class EngineHost::Notes final : public libvp::IVDOrbixCallback {
public:
    void OnError(libvp::VD_ErrorCallbackType) override {}
    void reserved2(int, int) override {}
    void OnDiscEvent(char, libvp::VD_OPTRA_DISC_NOTIFY_TYPE) override {}
    void OnDiscError(char, libvp::VD_OPTRA_DISC_ERROR_TYPE) override {}
};

class EngineHost::Surface final : public libvp::IVDPlayToolConfig {
public:
    Surface(std::uint32_t window, int width, int height)
        : m_handle(reinterpret_cast<void *>(std::uintptr_t(window)))
        , m_width(width)
        , m_height(height)
    {
    }
    int surfaceWidth() override { return m_width; }
    int surfaceHeight() override { return m_height; }
    bool reserved3() override { return false; }
    void *nativeWindow() override { return &m_handle; }

private:
    void *m_handle;
    int m_width;
    int m_height;
};

class EngineHost::Output final : public libvp::IVDPlaytoolCallback {
public:
    void OnVolumeChanged(float) override {}
    void OnMuteChanged(bool) override {}
};

// Keeps what the engine thread tells until the waiting thread has read it.
class EngineHost::Events final : public libvp::IVDPlayCallback {
public:
    enum class State { Waiting, Started, Sought, Failed };

    void expect()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_state = State::Waiting;
    }

    // What came first; Waiting when nothing did. time is when the engine told it.
    State wait(Clock::time_point &time)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait_for(lock, Patience, [this] { return m_state != State::Waiting; });
        time = m_time;
        return m_state;
    }

    void OnPlayBackEnded() override { tell(State::Failed); }
    void OnPlayBackStarted() override { tell(State::Started); }
    void OnPlayBackPaused() override {}
    void OnPlayBackResumed() override {}
    void OnStopInfo(vdStopPlayInfo) override {}
    void OnPlayBackStopped() override {}
    void OnQueueNextItem() override {}
    void OnPlayBackSeek(int, int) override {}
    void OnPlayBackSeekChapter(int) override {}
    void OnPlayBackSpeedChanged(float) override {}
    void OnPlayBackFailed(int, vdFileInfo) override { tell(State::Failed); }
    void OnDiscRefused(int, const char *, vdFileInfo) override { tell(State::Failed); }
    void reserved13(int, int) override {}
    void OnTime(int, int) override {}
    void OnTitle(int) override {}
    void OnChapter(int, int) override {}
    void OnVideoInfo(const libvp::VDVideoInfo *) override {}
    void OnAudioInfo(const libvp::VDAudioInfo *) override {}
    void OnSubtitleInfo(const libvp::VDSubtitleInfo *) override {}
    void reserved20(int, int) override {}
    void reserved21(int, int) override {}
    void OnDynamicRange(int) override {}
    void OnSeekState(libvp::VD_SeekState state) override
    {
        if (state == libvp::VD_Seek_End)
            tell(State::Sought);
        else if (state == libvp::VD_Seek_Failed)
            tell(State::Failed);
    }
    void reserved24() override {}
    void reserved25(int) override {}
    void reserved26() override {}
    void reserved27() override {}
    void OnScreenshot(unsigned char *, int, int) override {}
    void reserved29(int, int, int) override {}
    void reserved30(int, int, int) override {}
    void OnStatistics(const char *) override {}
    void reserved32(int) override {}
    void OnAudioFrame(const libvp::VDPcmFrame *) override {}

private:
    void tell(State state)
    {
        const Clock::time_point now = Clock::now();
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_state = state;
        m_time = now;
        m_changed.notify_all();
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    State m_state{State::Waiting};
    Clock::time_point m_time;
};

EngineHost::EngineHost(const std::string &library, const std::string &logFolder, std::uint32_t window,
                       int width, int height)
    : m_config(std::make_unique<Config>(logFolder))
    , m_notes(std::make_unique<Notes>())
    , m_surface(std::make_unique<Surface>(window, width, height))
    , m_output(std::make_unique<Output>())
    , m_events(std::make_unique<Events>())
{
    m_library = dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!m_library) {
        std::fprintf(stderr, "%s\n", dlerror());
        return;
    }
    const auto create =
        reinterpret_cast<libvp::CreateVDPlayerFunction>(dlsym(m_library, libvp::CreateVDPlayerName));
    m_release =
        reinterpret_cast<libvp::ReleaseVDPlayerFunction>(dlsym(m_library, libvp::ReleaseVDPlayerName));
    if (!create || !m_release)
        return;
    m_core = create(m_config.get(), m_notes.get());
    if (m_core && m_core->initialise())
        m_tool = m_core->createPlayTool(0, m_surface.get(), m_output.get());
}

EngineHost::~EngineHost()
{
    if (m_play) {
        m_play->close();
        m_tool->releasePlay(&m_play);
    }
    if (m_core)
        m_release(m_core);
    if (m_library)
        dlclose(m_library);
}

bool EngineHost::open(const std::string &path)
{
    if (!m_tool || !m_tool->isValid() || !m_tool->createPlay(m_events.get(), 0, &m_play))
        return false;
    Item item(path);
    Options options;
    m_events->expect();
    if (!m_play->open(&item, &options, 0))
        return false;
    Clock::time_point time;
    return m_events->wait(time) == Events::State::Started;
}

bool EngineHost::seek(double seconds, double &milliseconds)
{
    m_events->expect();
    const Clock::time_point start = Clock::now();
    m_play->seek(seconds, 1);
    Clock::time_point end;
    if (m_events->wait(end) != Events::State::Sought)
        return false;
    milliseconds = std::chrono::duration<double, std::milli>(end - start).count();
    return true;
}
