#include "PlayTool.h"

#include "DiscReader.h"
#include "DriveControl.h"
#include "PlayToolTables.h"
#include "SubtitleStyle.h"
#include "ToolArguments.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>

namespace {

using namespace libvp;
using ToolArguments::textOf;

#ifdef _WIN32
constexpr char defaultVideoOutputs[] = "gpu,direct3d";
constexpr char drawingContext[] = "auto";
#else
constexpr char defaultVideoOutputs[] = "gpu,x11";
// The surface is a window of the X server. Left to itself the library tries other systems too: on a Wayland
// desktop its picture would get a window of its own, and where there is no graphics hardware its attempt at
// the console ends with a close of descriptor 0, which by then may be anybody's.
constexpr char drawingContext[] = "x11egl";
#endif
constexpr char clientName[] = "Quorin Player";

std::string environment(const char *name)
{
    const char *value = std::getenv(name);
    return value ? value : "";
}

// Outputs that draw into a window.
bool needsSurface(const std::string &outputs)
{
    return outputs != "null" && outputs != "image";
}

// A user name or password inside an address.
std::string escaped(const std::string &text)
{
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string result;
    for (const unsigned char c : text) {
        if (std::isalnum(c) || c == '-' || c == '.' || c == '_' || c == '~') {
            result += static_cast<char>(c);
        } else {
            result += '%';
            result += digits[c >> 4];
            result += digits[c & 15];
        }
    }
    return result;
}

} // namespace

PlayTool::PlayTool(IVDPlayerConfig *config, IVDOrbixCallback *orbix, IVDPlayToolConfig *toolConfig,
                   IVDPlaytoolCallback *callback, DriveWatch &watch, Notifier &notifier)
    : m_config(config)
    , m_callback(callback)
    , m_watch(watch)
    , m_drives(watch.drives())
    , m_outputs([this] {
        MpvValue list = m_spare.read("audio-device-list");
        if (!list.isNone())
            return list;
        const auto probe = MpvHandle::create(m_settings.options());
        return probe ? probe->readNow("audio-device-list") : MpvValue();
    })
    , m_notifier(notifier)
    , m_line(m_notifier.openLine())
{
    m_context.settings = &m_settings;
    m_context.notifier = &m_notifier;
    m_context.resume = &m_resume;
    m_context.spare = &m_spare;
    m_context.orbix = orbix;

    std::string outputs = environment("ORBIX_VO");
    m_outputsChosen = !outputs.empty();
    setVideoOutputs(outputs.empty() ? defaultVideoOutputs : outputs);
    if (const std::string sound = environment("ORBIX_AO"); !sound.empty())
        set("ao", sound);
    set("audio-client-name", clientName);
    // From the first source on, so that the same wish of the player's later takes no sound away.
    set("audio-channels", AudioOutputs::channelLayouts(m_speakerLayout));
    std::int64_t window = 0;
    if (void *block = toolConfig ? toolConfig->nativeWindow() : nullptr)
        window = static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(*static_cast<void **>(block)));
    if (window != 0) {
        set("wid", window);
        set("gpu-context", drawingContext);
    }
    applyVolume();
    setSubtitleOverride(false);
    if (window == 0 && needsSurface(m_videoOutputs)) {
        engineLog("[Engine] no surface to draw into");
        return;
    }
    const MpvMap options = m_settings.options();
    auto handle = MpvHandle::create(options);
    m_valid = handle != nullptr;
    m_spare.keep(std::move(handle), options);
}

PlayTool::~PlayTool()
{
    std::vector<std::unique_ptr<Play>> plays;
    {
        const std::lock_guard<std::mutex> lock(m_playsMutex);
        plays.swap(m_plays);
    }
    plays.clear();
    m_notifier.close(m_line);
}

void PlayTool::lacks(const char *what)
{
    m_log.write(std::string(what) + " cannot be had with this engine");
}

bool PlayTool::isValid()
{
    return m_valid;
}

void PlayTool::resizeSurface(int, int)
{
    // The picture follows the native window by itself.
}

bool PlayTool::createPlay(IVDPlayCallback *callback, int, IVDPlay **play)
{
    if (!play)
        return false;
    *play = nullptr;
    if (!callback || !m_valid)
        return false;
    const std::lock_guard<std::mutex> lock(m_playsMutex);
    m_plays.push_back(std::make_unique<Play>(m_context, m_drives, m_log, callback));
    *play = m_plays.back().get();
    return true;
}

void PlayTool::releasePlay(IVDPlay **play)
{
    if (!play || !*play)
        return;
    std::unique_ptr<Play> released;
    {
        const std::lock_guard<std::mutex> lock(m_playsMutex);
        const auto found = std::find_if(m_plays.begin(), m_plays.end(),
                                        [play](const auto &candidate) { return candidate.get() == *play; });
        if (found != m_plays.end()) {
            released = std::move(*found);
            m_plays.erase(found);
        }
    }
    *play = nullptr;
}

std::shared_ptr<PlaySession> PlayTool::openSession() const
{
    const std::lock_guard<std::mutex> lock(m_playsMutex);
    for (auto play = m_plays.rbegin(); play != m_plays.rend(); ++play) {
        if (auto session = (*play)->session())
            return session;
    }
    return nullptr;
}

MpvValue PlayTool::readProperty(const std::string &name) const
{
    const auto session = openSession();
    return session ? session->readProperty(name) : MpvValue();
}

// Properties by name

const PlayTool::BoolRow PlayTool::boolRows[] = {
    {"videoscreen.limitedrange",
     [](PlayTool &tool, bool on) {
         tool.prefer([on](PlayPreferences &preferences) { preferences.limitedRange = on; });
         return true;
     }},
    {"audiooutput.passthrough", [](PlayTool &tool, bool on) { return tool.setPassThrough(on); }},
    {"subtitles.autoload",
     [](PlayTool &tool, bool on) {
         tool.prefer([on](PlayPreferences &preferences) { preferences.subtitleFiles = on; });
         return true;
     }},
};

const PlayTool::IntRow PlayTool::intRows[] = {
    {"videoscreen.stereoscopicmode",
     [](PlayTool &tool, int mode) {
         tool.prefer([mode](PlayPreferences &preferences) { preferences.stereoOutput = mode; });
         return true;
     }},
    {"audiooutput.channels",
     [](PlayTool &tool, int layout) {
         {
             const std::lock_guard<std::mutex> lock(tool.m_mutex);
             tool.m_speakerLayout = layout;
         }
         tool.set("audio-channels", AudioOutputs::channelLayouts(layout));
         return true;
     }},
    {"videoscreen.sdrvalue",
     [](PlayTool &tool, int value) {
         tool.prefer([value](PlayPreferences &preferences) { preferences.luminance = value; });
         return true;
     }},
    {"audio.pcmtap",
     [](PlayTool &tool, int on) {
         tool.prefer([on](PlayPreferences &preferences) { preferences.pcmTap = on == 1; });
         return true;
     }},
    {"play.step", [](PlayTool &tool, int frames) { return tool.stepFrame(frames); }},
    {"play.angle", [](PlayTool &tool, int angle) { return tool.setAngle(angle); }},
};

const PlayTool::StringRow PlayTool::stringRows[] = {
    {"audiooutput.audiodevice", [](PlayTool &tool, const char *name) { return tool.setAudioDevice(name); }},
    {"audiooutput.passthroughdevice",
     [](PlayTool &tool, const char *name) { return tool.setAudioDevice(name); }},
    {"subtitles.charset",
     [](PlayTool &tool, const char *codePage) {
         // First what reads a file, then what makes libmpv read the open ones again.
         const int number = SubtitleStyle::codePage(codePage);
         tool.prefer([number](PlayPreferences &preferences) { preferences.subtitleCodePage = number; });
         tool.set("sub-codepage", SubtitleStyle::charset(codePage));
         return true;
     }},
    {"subtitles.folder",
     [](PlayTool &tool, const char *folder) {
         tool.prefer([folder](PlayPreferences &preferences) { preferences.subtitleFolder = folder; });
         return true;
     }},
    {"subtitles.outlinecolor",
     [](PlayTool &tool, const char *text) {
         const std::string color = SubtitleStyle::color(text);
         if (!color.empty())
             tool.set("sub-border-color", color);
         return !color.empty();
     }},
    {"video.output",
     [](PlayTool &tool, const char *outputs) {
         {
             const std::lock_guard<std::mutex> lock(tool.m_mutex);
             tool.m_outputsChosen = *outputs != '\0';
         }
         tool.setVideoOutputs(*outputs ? outputs : defaultVideoOutputs);
         return true;
     }},
};

bool PlayTool::setBoolProperty(const char *name, bool value)
{
    return setByName(*this, boolRows, name, value);
}

bool PlayTool::setIntProperty(const char *name, int value)
{
    return setByName(*this, intRows, name, value);
}

bool PlayTool::setStringProperty(const char *name, const char *value)
{
    if (name && setDrive(name, value))
        return true;
    return setByName(*this, stringRows, name, value ? value : "");
}

bool PlayTool::setDrive(const char *property, const char *path)
{
    static const std::string prefix = "disc.drive.";
    const std::string name = property;
    if (name.size() != prefix.size() + 1 || name.compare(0, prefix.size(), prefix) != 0
        || !std::isalpha(static_cast<unsigned char>(name.back())))
        return false;
    m_watch.bind(name.back(), textOf(path));
    return true;
}

bool PlayTool::stepFrame(int frames)
{
    const auto session = openSession();
    if (!session || (frames != 1 && frames != -1))
        return false;
    session->step(frames);
    return true;
}

bool PlayTool::setAngle(int angle)
{
    if (angle < 0 || angle > 98)
        return false;
    set("dvd-angle", angle + 1);
    if (openSession())
        lacks("a change of the angle while a disc plays");
    return true;
}

void PlayTool::setVideoOutputs(const std::string &outputs)
{
    const bool shader = !m_settings.preferences().customShader.empty();
    bool chosen = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_videoOutputs = outputs;
        chosen = m_outputsChosen;
    }
    // Drawing in software through OpenGL costs several times the plain output: only who asks for that output,
    // or for what it alone can do, gets it without graphics hardware.
    set("gpu-sw", chosen || shader);
    set("vo", outputs);
}

// Discs, network and what has no counterpart

bool PlayTool::discDisplayInfo(const char *drive, VDDiscDisplayInfo *info)
{
    if (!drive || !*drive || !info)
        return false;
    const std::string path = m_drives.resolve(drive);
    return !path.empty() && DiscReader::displayInfo(path, *info);
}

bool PlayTool::eject(char drive)
{
    return m_watch.eject(drive);
}

int PlayTool::discState(char drive)
{
    const std::string path = m_drives.resolve(std::string(1, drive));
    return path.empty() ? DriveControl::NoDrive : DriveControl::state(path);
}

void PlayTool::setProxy(int type, const char *host, int port, const char *user, const char *password)
{
    constexpr int http = 1;
    constexpr int socks = 2;
    std::string address;
    if (type == http && host && *host && port > 0 && port <= 65535) {
        address = "http://";
        if (user && *user)
            address += escaped(user) + (password && *password ? ":" + escaped(password) : "") + "@";
        address += std::string(host) + ":" + std::to_string(port);
    } else if (type == socks) {
        lacks("a SOCKS proxy");
    }
    set("http-proxy", address);
}

void PlayTool::setRegion(int)
{
    lacks("a disc region");
}

void PlayTool::setUiLanguage(int)
{
    lacks("a language of disc menus");
}

void PlayTool::forwardWindowMessage(unsigned, std::uintptr_t, std::intptr_t, int, int)
{
    lacks("a disc menu");
}

void PlayTool::forwardWindowMove(int, int)
{
    // Only a surface of the engine's own would have to know.
}

void PlayTool::setUpFlag73(int) {}

void PlayTool::setUpFlag74(int) {}
