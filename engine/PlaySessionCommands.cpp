// What the player asks of a play, carried out on the engine thread.
#include "PlaySession.h"

#include "EngineLog.h"
#include "LocalFile.h"
#include "NativePath.h"
#include "SubtitleText.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <future>
#include <utility>

namespace {

using namespace std::chrono_literals;
using namespace libvp;

constexpr auto seekLimit = 10s;
constexpr auto subtitleLimit = 5s;
constexpr auto readLimit = 5s;
constexpr auto motionInterval = 40ms;
constexpr auto frameTime = 120ms;
// Larger than any subtitle file, pictures included.
constexpr std::int64_t largestSubtitle = std::int64_t{512} << 20;

std::string number(double value)
{
    char text[48];
    std::snprintf(text, sizeof text, "%.4f", value);
    return text;
}

} // namespace

void PlaySession::togglePause()
{
    post([this] {
        if (m_state == State::Playing)
            m_speed.togglePause();
        else if (m_state == State::Opening)
            m_waiting.pauseToggled = !m_waiting.pauseToggled;
    });
}

void PlaySession::setSpeedIndex(int index)
{
    post([this, index] {
        if (m_state == State::Playing)
            m_speed.select(index);
    });
}

void PlaySession::seek(double seconds, bool exact)
{
    if (!std::isfinite(seconds))
        return;
    post([this, seconds, exact] {
        if (m_state == State::Playing)
            doSeek(seconds, exact);
        else if (m_state == State::Opening)
            m_waiting.seek = Waiting::Seek{seconds, exact};
    });
}

void PlaySession::doSeek(double seconds, bool exact)
{
    const double total = sourceLength();
    SeekQueue::Seek wanted;
    wanted.target = total > 0 ? std::clamp(seconds, 0.0, total) : std::max(seconds, 0.0);
    wanted.exact = exact;
    if (m_speed.isStepping())
        m_speed.reposition(wanted.target, EngineThread::Clock::now());
    m_seeks.request(std::move(wanted));
}

void PlaySession::carryOutWaiting()
{
    const Waiting waiting = std::exchange(m_waiting, {});
    if (waiting.pauseToggled)
        m_speed.togglePause();
    if (waiting.seek)
        doSeek(waiting.seek->seconds, waiting.seek->exact);
}

void PlaySession::startSeek(const SeekQueue::Seek &seek)
{
    if (seek.announced) {
        ++m_seekCount;
        const int from = PlayReport::milliseconds(position());
        const int to = PlayReport::milliseconds(seek.target);
        notify([from, to](IVDPlayCallback &callback) {
            callback.OnPlayBackSeek(from, to);
            callback.OnSeekState(VD_Seek_Begin);
        });
    }
    if (!m_speed.isStepping())
        edit([&seek](PlayFacts &facts) {
            facts.position = seek.target;
            facts.readAt = PlayFacts::Clock::now();
            facts.rate = 0;
        });
    m_seekAccepted = false;
    m_thread.cancel(m_seekTimer);
    m_seekTimer = m_thread.after(seekLimit, [this] { finishSeek(false); });
    m_mpv->command({"seek", number(seek.target), seek.exact ? "absolute+exact" : "absolute+keyframes"},
                   expect([this](const MpvEvent &event) {
                       if (event.error < 0)
                           finishSeek(false);
                       else if (m_seeks.isBusy())
                           m_seekAccepted = true;
                   }));
}

void PlaySession::finishSeek(bool reached)
{
    m_thread.cancel(m_seekTimer);
    m_seekAccepted = false;
    const auto over = m_seeks.finish();
    if (!over)
        return;
    if (over->announced)
        notify([reached](IVDPlayCallback &callback) {
            callback.OnSeekState(reached ? VD_Seek_End : VD_Seek_Failed);
        });
    if (over->done)
        over->done();
    m_seeks.startWaiting();
    if (!m_seeks.isBusy())
        settle();
}

// Reads the position again after it jumped, and lets the clock run on.
void PlaySession::settle()
{
    if (m_state != State::Playing)
        return;
    m_mpv->get(propertyRows[0].name, propertyRows[0].format, 1);
    if (!m_pollTimer)
        startPolling();
    checkEnd();
}

void PlaySession::step(int frames)
{
    post([this, frames] { doStep(frames); });
}

void PlaySession::doStep(int frames)
{
    if (m_state != State::Playing || !facts().hasFrame)
        return;
    m_speed.pause();
    m_mpv->command({frames < 0 ? "frame-back-step" : "frame-step"}, expect([this](const MpvEvent &) {
                       // A step forward is shown one frame later and is not announced by libmpv.
                       m_thread.after(frameTime, [this] { settle(); });
                   }));
}

void PlaySession::setAudioTrack(int index)
{
    post([this, index] {
        const TrackList tracks = facts().tracks;
        if (m_state != State::Playing || index < 0 || index >= static_cast<int>(tracks.audio.size()))
            return;
        m_mpv->set("aid", tracks.audio[static_cast<std::size_t>(index)].id);
    });
}

void PlaySession::setSubtitleTrack(int index)
{
    post([this, index] {
        const TrackList tracks = facts().tracks;
        if (m_state != State::Playing || index >= static_cast<int>(tracks.subtitles.size()))
            return;
        m_subtitleChosen = true;
        if (index >= 0)
            m_mpv->set("sid", tracks.subtitles[static_cast<std::size_t>(index)].id);
        else if (index == VD_NoSubtitle)
            m_mpv->set("sid", "no");
    });
}

void PlaySession::goToChapter(int chapter)
{
    post([this, chapter] {
        if (m_state != State::Playing || chapter < 1 || chapter > facts().chapterCount)
            return;
        if (m_speed.isStepping())
            m_speed.select(SpeedControl::normalIndex);
        m_mpv->set(
            "chapter", chapter - 1, expect([this, chapter](const MpvEvent &event) {
                if (event.error >= 0)
                    notify([chapter](IVDPlayCallback &callback) { callback.OnPlayBackSeekChapter(chapter); });
            }));
    });
}

bool PlaySession::takeScreenshot(bool withSubtitles, int width, int height)
{
    if (!facts().hasFrame || !facts().isPlaying)
        return false;
    post([this, withSubtitles, width, height] {
        if (m_state != State::Playing)
            return;
        const auto answer = [this, width, height](const MpvEvent &event) {
            const auto frame = std::make_shared<LastFrame>(
                LastFrame::read(event.value, LastFrame::Order::Rgba).scaledInto(width, height));
            if (frame->isNull()) {
                engineLog("[Play] no picture for a screenshot");
                return;
            }
            notify([frame](IVDPlayCallback &callback) {
                callback.OnScreenshot(frame->pixels.data(), frame->width, frame->height);
            });
        };
        m_mpv->command({"screenshot-raw", withSubtitles ? "subtitles" : "video"}, expect(answer));
    });
    return true;
}

int PlaySession::addSubtitle(const std::string &path)
{
    LocalFile file;
    if (!file.open(path) || file.size() == 0 || file.size() > largestSubtitle
        || SourcePlan::isPlaylist(path)) {
        engineLog("[Play] no subtitle file: %s", path.c_str());
        return -1;
    }
    file.close();
    auto answer = std::make_shared<std::promise<int>>();
    std::future<int> index = answer->get_future();
    std::error_code error;
    const std::string absolute = std::filesystem::absolute(nativePath(path), error).u8string();
    const std::string address = SubtitleText::addressOf(absolute);
    // The play alone holds the promise, which breaks when it ends meanwhile.
    post([this, address, answer = std::move(answer)] {
        loadSubtitle(address, [answer](int found) { answer->set_value(found); });
    });
    if (index.wait_for(subtitleLimit) != std::future_status::ready)
        return -1;
    try {
        return index.get();
    } catch (const std::future_error &) {
        return -1;
    }
}

void PlaySession::loadSubtitle(const std::string &address, const std::function<void(int)> &answer)
{
    if (m_state != State::Playing) {
        answer(-1);
        return;
    }
    const auto indexOfFile = [this, file = SubtitleText::pathOf(address)] {
        const std::vector<TrackList::Subtitle> tracks = facts().tracks.subtitles;
        const auto found =
            std::find_if(tracks.begin(), tracks.end(),
                         [&file](const TrackList::Subtitle &track) { return track.file == file; });
        return found == tracks.end() ? -1 : static_cast<int>(found - tracks.begin());
    };
    if (const int index = indexOfFile(); index >= 0) {
        answer(index);
        return;
    }
    const auto added = [this, indexOfFile, answer](const MpvEvent &event) {
        if (event.error < 0) {
            answer(-1);
            return;
        }
        m_mpv->get("track-list", MpvHandle::Format::Node,
                   expect([this, indexOfFile, answer](const MpvEvent &list) {
                       onTrackList(list.value);
                       answer(indexOfFile());
                   }));
    };
    m_mpv->command({"sub-add", address, "auto"}, expect(added));
}

MpvValue PlaySession::readProperty(const std::string &name)
{
    auto answer = std::make_shared<std::promise<MpvValue>>();
    std::future<MpvValue> value = answer->get_future();
    post([this, name, answer = std::move(answer)] {
        if (m_mpv)
            m_mpv->get(name, MpvHandle::Format::Node,
                       expect([answer](const MpvEvent &event) { answer->set_value(event.value); }));
    });
    if (value.wait_for(readLimit) != std::future_status::ready)
        return {};
    try {
        return value.get();
    } catch (const std::future_error &) {
        return {};
    }
}

void PlaySession::afterApplied(std::function<void()> task)
{
    // libmpv works requests off in their order.
    m_mpv->get("pause", MpvHandle::Format::Flag,
               expect([task = std::move(task)](const MpvEvent &) { task(); }));
}

void PlaySession::stepMotion()
{
    m_motionTimer = 0;
    if (m_state != State::Playing || !m_speed.isStepping())
        return;
    m_speed.tick(EngineThread::Clock::now());
    if (m_speed.isStepping())
        m_motionTimer = m_thread.after(motionInterval, [this] { stepMotion(); });
}

void PlaySession::applySpeed(double speed)
{
    // Frames that come too late are not worth their decoding while searching.
    m_mpv->set("framedrop", speed > 2 ? "decoder+vo" : "vo");
    m_mpv->set("speed", speed);
}

void PlaySession::applyPause(bool paused)
{
    m_mpv->set("pause", paused);
    edit([this](PlayFacts &facts) {
        const auto now = PlayFacts::Clock::now();
        facts.position = facts.positionAt(now);
        facts.readAt = now;
        facts.isPaused = m_speed.isPaused();
        facts.rate = 0; // the next reading sets it
    });
    if (!m_speed.isPaused() && !m_pollTimer)
        startPolling();
    // The control turns to steps right after this call.
    if (!m_motionTimer)
        m_motionTimer = m_thread.after(motionInterval, [this] { stepMotion(); });
}

void PlaySession::applyStep(double seconds, bool exact)
{
    SeekQueue::Seek step;
    step.target = seconds;
    step.exact = exact;
    step.announced = false;
    step.done = [this] { m_speed.stepDone(EngineThread::Clock::now()); };
    m_seeks.request(std::move(step));
}

void PlaySession::applyPosition(double seconds)
{
    m_seeks.clear();
    SeekQueue::Seek place;
    place.target = seconds;
    place.announced = false;
    m_seeks.request(std::move(place));
}

double PlaySession::currentPosition()
{
    return position();
}

double PlaySession::sourceLength()
{
    return facts().total;
}

bool PlaySession::canStep()
{
    return m_seekable && facts().tracks.hasVideo;
}

void PlaySession::tellPaused()
{
    edit([this](PlayFacts &facts) { facts.speed = m_speed.speed(); });
    afterApplied([this] {
        notify([](IVDPlayCallback &callback) { callback.OnPlayBackPaused(); });
        m_mpv->get(propertyRows[0].name, propertyRows[0].format, 1);
    });
}

void PlaySession::tellResumed()
{
    afterApplied([this] {
        notify([](IVDPlayCallback &callback) { callback.OnPlayBackResumed(); });
        checkEnd();
    });
}

void PlaySession::tellSpeed(float speed)
{
    edit([this, speed](PlayFacts &facts) {
        facts.speed = speed;
        facts.isPaused = m_speed.isPaused();
    });
    afterApplied([this, speed] {
        notify([speed](IVDPlayCallback &callback) { callback.OnPlayBackSpeedChanged(speed); });
        checkEnd();
    });
}
