#include "PlayRig.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QtGlobal>

#include <algorithm>

using namespace libvp;

void EngineNotes::OnError(VD_ErrorCallbackType type)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_types.push_back(type);
    }
    m_changed.notify_all();
}

bool EngineNotes::waitFor(int type, int wanted)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_changed.wait_for(lock, PlayRecorder::limit,
                              [&] { return std::count(m_types.begin(), m_types.end(), type) >= wanted; });
}

int EngineNotes::count(int type) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return static_cast<int>(std::count(m_types.begin(), m_types.end(), type));
}

void OutputNotes::OnVolumeChanged(float volume)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_volumes.push_back(volume);
    }
    m_changed.notify_all();
}

void OutputNotes::OnMuteChanged(bool mute)
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_mutes.push_back(mute);
    }
    m_changed.notify_all();
}

bool OutputNotes::waitForVolume(float volume)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_changed.wait_for(lock, PlayRecorder::limit, [&] {
        return !m_volumes.empty() && qFuzzyCompare(m_volumes.back() + 1, volume + 1);
    });
}

bool OutputNotes::waitForMute(bool mute)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_changed.wait_for(lock, PlayRecorder::limit,
                              [&] { return !m_mutes.empty() && m_mutes.back() == mute; });
}

PlayRig::PlayRig(const std::string &outputs, void *window)
{
    qputenv("ORBIX_VO", QByteArray::fromStdString(outputs));
    qputenv("ORBIX_AO", QByteArrayLiteral("null"));
    surface.window = window;
    tool = std::make_unique<PlayTool>(nullptr, &notes, &surface, &output, watch, notifier);
}

PlayRig::~PlayRig()
{
    close();
    tool.reset();
}

bool PlayRig::begin(const std::string &path, PlayOptions options, int itemType)
{
    close();
    recorder = std::make_unique<PlayRecorder>();
    if (!tool->createPlay(recorder.get(), 0, &play))
        return false;
    FileItem item(path, itemType);
    return play->open(&item, &options, 0);
}

bool PlayRig::open(const std::string &path, PlayOptions options, int itemType)
{
    if (!begin(path, std::move(options), itemType))
        return false;
    (void)recorder->waitUntil(
        [](const PlayRecorder::Event &event) { return event.name == "Started" || event.name == "Failed"; });
    return recorder->count("Started") == 1;
}

void PlayRig::close()
{
    if (!play)
        return;
    play->close();
    tool->releasePlay(&play);
}

bool PlayRig::waitForProperty(const std::string &name, const std::function<bool(const MpvValue &)> &wanted)
{
    // libmpv takes a setting over at its next turn and tells nobody: look again until it has.
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 5000) {
        if (wanted(tool->readProperty(name)))
            return true;
    }
    return false;
}

bool PlayRig::waitForProperty(const std::string &name, const MpvValue &wanted)
{
    return waitForProperty(name, [&](const MpvValue &value) { return value == wanted; });
}

bool PlayRig::waitForTime(const std::function<bool(int)> &wanted, std::chrono::milliseconds time)
{
    return recorder->waitUntil(
        [&wanted](const PlayRecorder::Event &event) { return event.name == "Time" && wanted(event.first); },
        time);
}
