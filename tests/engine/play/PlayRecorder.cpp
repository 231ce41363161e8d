#include "PlayRecorder.h"

#include <algorithm>

bool PlayRecorder::waitFor(const std::string &name, int wanted, std::chrono::milliseconds time)
{
    return waitUntil([&name](const Event &event) { return event.name == name; }, time, wanted);
}

bool PlayRecorder::waitForSeek(int state, int wanted)
{
    return waitUntil(
        [state](const Event &event) { return event.name == "SeekState" && event.first == state; }, limit,
        wanted);
}

bool PlayRecorder::waitUntil(const std::function<bool(const Event &)> &wanted, std::chrono::milliseconds time,
                             int number)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_changed.wait_for(
        lock, time, [&] { return std::count_if(m_events.begin(), m_events.end(), wanted) >= number; });
}

int PlayRecorder::count(const std::string &name) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return static_cast<int>(std::count_if(m_events.begin(), m_events.end(),
                                          [&](const Event &event) { return event.name == name; }));
}

std::vector<PlayRecorder::Event> PlayRecorder::events() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_events;
}

PlayRecorder::Event PlayRecorder::last(const std::string &name) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = std::find_if(m_events.rbegin(), m_events.rend(),
                                    [&](const Event &event) { return event.name == name; });
    return found == m_events.rend() ? Event{} : *found;
}

std::vector<std::string> PlayRecorder::order() const
{
    std::vector<std::string> names;
    for (const Event &event : events()) {
        if (event.name != "Time")
            names.push_back(event.name);
    }
    return names;
}

bool PlayRecorder::inOrder() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_inOrder;
}

void PlayRecorder::OnStopInfo(vdStopPlayInfo info)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        stopInfo = info;
        if (info.image) {
            const auto size =
                static_cast<std::size_t>(info.imageWidth) * static_cast<std::size_t>(info.imageHeight) * 4;
            lastFrame.assign(info.image, info.image + size);
        }
        stopInfo.image = nullptr;
    }
    add("StopInfo", info.reachedEnd);
}

void PlayRecorder::OnPlayBackFailed(int error, vdFileInfo info)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        failInfo = info;
    }
    add("Failed", error);
}

void PlayRecorder::OnVideoInfo(const libvp::VDVideoInfo *info)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        videoInfo = *info;
    }
    add("VideoInfo", info->width, info->height, 0, info->codec);
}

void PlayRecorder::OnAudioInfo(const libvp::VDAudioInfo *info)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        audioInfo = *info;
    }
    add("AudioInfo", info->index, 0, 0, info->language);
}

void PlayRecorder::OnSubtitleInfo(const libvp::VDSubtitleInfo *info)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        subtitleInfo = *info;
    }
    add("SubtitleInfo", 0, 0, 0, info->language);
}

void PlayRecorder::OnScreenshot(unsigned char *rgba, int width, int height)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        screenshot.assign(rgba,
                          rgba + static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4);
    }
    add("Screenshot", width, height);
}

void PlayRecorder::OnAudioFrame(const libvp::VDPcmFrame *frame)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        pcmFrame = *frame;
        pcmFrame.samples = nullptr;
    }
    add("AudioFrame", frame->frameCount);
}

void PlayRecorder::setHook(std::function<void(const Event &)> hook)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_hook = std::move(hook);
}

void PlayRecorder::add(const std::string &name, int first, int second, double number, const std::string &text)
{
    Event event;
    event.name = name;
    event.first = first;
    event.second = second;
    event.number = number;
    event.text = text;
    std::function<void(const Event &)> hook;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_thread == std::thread::id())
            m_thread = std::this_thread::get_id();
        if (++m_inside > 1 || m_thread != std::this_thread::get_id())
            m_inOrder = false;
        hook = m_hook;
    }
    if (hook)
        hook(event);
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        --m_inside;
        m_events.push_back(std::move(event));
    }
    m_changed.notify_all();
}
