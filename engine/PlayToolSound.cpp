// Sound and subtitles of the output.
#include "PlayTool.h"

#include "SubtitleStyle.h"
#include "ToolArguments.h"

#include <algorithm>
#include <cmath>

namespace {

using namespace libvp;
using ToolArguments::finiteOr;
using ToolArguments::textOf;

constexpr float largestVolume = 2.0f;
constexpr float largestAmplification = 60.0f; // decibels over ten
constexpr double outlineWidth = 3.0;
constexpr double shadowWidth = 2.0;
constexpr char shadowColor[] = "#C0000000"; // alpha first

} // namespace

void PlayTool::setSpeakerLayout(int layout)
{
    bool compressed = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        compressed = m_passThrough;
        if (compressed)
            m_codecMask = static_cast<unsigned>(layout);
        else
            m_speakerLayout = layout;
    }
    if (compressed)
        applyPassThrough();
    else
        set("audio-channels", AudioOutputs::channelLayouts(layout));
}

bool PlayTool::switchAudioOutput(bool passThrough, const char *device)
{
    if (!device || !*device || m_outputs.nativeName(device).empty())
        return false;
    setAudioDevice(device);
    return setPassThrough(passThrough);
}

bool PlayTool::setAudioDevice(const std::string &name)
{
    const std::string nativeName = m_outputs.nativeName(name);
    if (nativeName.empty())
        return false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_audioDevice = name;
    }
    set("audio-device", nativeName);
    return true;
}

bool PlayTool::setPassThrough(bool on)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_passThrough = on;
    }
    applyPassThrough();
    return true;
}

void PlayTool::applyPassThrough()
{
    std::string formats;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_passThrough)
            formats = AudioOutputs::passThroughFormats(m_codecMask);
    }
    set("audio-spdif", formats);
}

int PlayTool::passThrough()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_passThrough ? 1 : 0;
}

const char *PlayTool::currentAudioDevice()
{
    thread_local std::string name;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        name = m_audioDevice;
    }
    if (name.empty()) {
        const VDAudioDeviceList &list = m_outputs.devices();
        name = list.count > 0 ? list.devices[0].name : "";
    }
    return name.c_str();
}

bool PlayTool::audioDevices(const VDAudioDeviceList **list)
{
    if (!list)
        return false;
    *list = &m_outputs.devices();
    return (*list)->count > 0;
}

void PlayTool::setVolume(float volume)
{
    const float clamped = std::clamp(finiteOr(volume, 1.0f), 0.0f, largestVolume);
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_volume = clamped;
    }
    applyVolume();
    m_notifier.post(m_line, [callback = m_callback, clamped] {
        if (callback)
            callback->OnVolumeChanged(clamped);
    });
}

void PlayTool::setAudioAmplification(float amount)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_amplification = std::clamp(finiteOr(amount, 0.0f), 0.0f, largestAmplification);
    }
    applyVolume();
}

void PlayTool::applyVolume()
{
    double percent = 0;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        // libmpv's scale is cubic: a gain is the third power of the volume.
        const double gain = std::pow(10.0, static_cast<double>(m_amplification) / 10.0 / 20.0);
        percent = static_cast<double>(m_volume) * 100.0 * std::cbrt(gain);
    }
    set("volume", percent);
}

void PlayTool::setMute(bool mute)
{
    set("mute", mute);
    m_notifier.post(m_line, [callback = m_callback, mute] {
        if (callback)
            callback->OnMuteChanged(mute);
    });
}

void PlayTool::setBootValue(int) {}

void PlayTool::setAudioDelay(float seconds)
{
    set("audio-delay", static_cast<double>(finiteOr(seconds, 0)));
}

void PlayTool::setPreferredAudioLanguage(const char *language)
{
    set("alang", textOf(language));
}

void PlayTool::setPreferredSubtitleLanguage(const char *language)
{
    const std::string wanted = textOf(language);
    const bool none = wanted == "close";
    prefer([none](PlayPreferences &preferences) { preferences.subtitlesAllowed = !none; });
    set("slang", none ? "" : wanted);
}

void PlayTool::setSubtitleOffset(float seconds)
{
    set("sub-delay", static_cast<double>(finiteOr(seconds, 0)));
}

void PlayTool::setSubtitleVisible(bool visible)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_subtitleVisible = visible;
    }
    set("sub-visibility", visible);
}

bool PlayTool::isSubtitleVisible()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_subtitleVisible;
}

void PlayTool::setSubtitleFont(const char *family)
{
    set("sub-font", SubtitleStyle::font(textOf(family)));
}

void PlayTool::setSubtitleSize(int size)
{
    set("sub-font-size", SubtitleStyle::fontSize(size));
}

void PlayTool::setSubtitlePosition(int position, int)
{
    set("sub-align-y", position == 2 ? "top" : "bottom");
}

void PlayTool::setSubtitleColor(const char *color)
{
    const std::string text = SubtitleStyle::color(textOf(color));
    if (!text.empty())
        set("sub-color", text);
}

void PlayTool::setSubtitleBold(bool bold)
{
    set("sub-bold", bold);
}

void PlayTool::setSubtitleItalic(bool italic)
{
    set("sub-italic", italic);
}

void PlayTool::setSubtitleOutline(bool outline)
{
    set("sub-border-size", outline ? outlineWidth : 0.0);
    // Without one a soft shadow keeps white letters readable on a bright picture.
    set("sub-shadow-color", shadowColor);
    set("sub-shadow-offset", outline ? 0.0 : shadowWidth);
}

void PlayTool::setSubtitleOverride(bool override)
{
    set("sub-ass-override", override ? "force" : "yes");
}
