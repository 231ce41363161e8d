#include "PlaySession.h"

#include "EngineLog.h"
#include "PcmTap.h"
#include "ResumeMemory.h"

#include <algorithm>

namespace {

using namespace std::chrono_literals;
using namespace libvp;

constexpr std::uint64_t firstReply = 1000; // rows of the property table use the numbers below
constexpr auto discOpenLimit = 20000ms;    // a drive has to spin up first
constexpr auto frameLimit = 600ms;
// From the wish to close to the end of the thread: a source that hangs in the system must not hold up who
// closes. What the last frame has left of it is for the end of libmpv.
constexpr auto closeLimit = 1200ms;
constexpr auto leastTerminateLimit = 200ms;
constexpr double idleWait = 30; // seconds

} // namespace

PlaySession::PlaySession(const PlayContext &context, IVDPlayCallback *callback, OpenRequest request)
    : m_context(context)
    , m_callback(callback)
    , m_request(std::move(request))
    , m_line(context.notifier->openLine())
    , m_lastReply(firstReply)
    , m_seeks([this](const SeekQueue::Seek &seek) { startSeek(seek); })
    , m_speed(*this, !m_request.autoStart)
{
}

PlaySession::~PlaySession() = default;

void PlaySession::start()
{
    m_asked = EngineThread::Clock::now();
    m_worker = std::thread([this] { run(); });
}

void PlaySession::end()
{
    if (m_ended)
        return;
    m_ended = true;
    post([this, asked = EngineThread::Clock::now()] {
        m_closeAsked = asked;
        close();
    });
    m_worker.join();
    m_context.notifier->flush(m_line);
    m_context.notifier->close(m_line);
    edit([](PlayFacts &facts) { facts = {}; });
}

PlayFacts PlaySession::facts() const
{
    const std::lock_guard<std::mutex> lock(m_factsMutex);
    return m_facts;
}

double PlaySession::position() const
{
    const std::lock_guard<std::mutex> lock(m_factsMutex);
    return m_facts.positionAt(PlayFacts::Clock::now());
}

void PlaySession::edit(const std::function<void(PlayFacts &)> &change)
{
    const std::lock_guard<std::mutex> lock(m_factsMutex);
    change(m_facts);
}

void PlaySession::notify(std::function<void(IVDPlayCallback &)> notification)
{
    m_context.notifier->post(
        m_line, [callback = m_callback, notification = std::move(notification)] { notification(*callback); });
}

void PlaySession::post(EngineThread::Task task)
{
    m_thread.post(std::move(task));
}

void PlaySession::run()
{
    // The look at the file and libmpv's set-up go side by side.
    lookAtSource();
    m_context.settings->follow(this);
    m_preferences = m_context.settings->preferences();
    MpvMap options = m_context.settings->options();
    m_appliedPicture = PictureOptions::build(m_preferences, m_picture);
    options.insert(m_appliedPicture.begin(), m_appliedPicture.end());
    options["pause"] = !m_request.autoStart;
    for (auto &[name, value] : m_sound) {
        if (const auto given = options.find(name); given != options.end())
            value = given->second;
    }
    m_passThrough = !m_sound[PassThroughOption].text().empty();
    m_mpv = m_context.spare ? m_context.spare->take(options) : MpvHandle::create(options);
    std::mutex idle;
    std::condition_variable woken;
    if (m_mpv) {
        m_mpv->setTextCodePage(m_preferences.subtitleCodePage);
        m_thread.setWaker([this] { m_mpv->wakeUp(); });
        for (std::size_t row = 0; row < propertyRowCount; ++row) {
            if (propertyRows[row].read == PropertyRow::Read::Observed)
                m_mpv->observe(propertyRows[row].name, propertyRows[row].format, row + 1);
        }
        applyShader();
        const bool disc = m_request.itemType == VD_Item_Disc;
        m_openTimer =
            m_thread.after(disc ? std::max(discOpenLimit, m_context.openLimit) : m_context.openLimit,
                           [this] { fail(VD_PlayError_TimedOut); });
    } else {
        m_thread.setWaker([&] {
            const std::lock_guard<std::mutex> lock(idle);
            woken.notify_all();
        });
        fail(VD_PlayError_NoEngine);
    }
    while (!m_quit) {
        m_thread.runTasks();
        m_thread.runTimers(EngineThread::Clock::now());
        if (m_quit)
            break;
        const double wait = m_thread.secondsToNextTimer(EngineThread::Clock::now(), idleWait);
        if (m_mpv) {
            const MpvEvent event = m_mpv->wait(wait);
            if (event.kind != MpvEvent::Kind::None)
                handle(event);
        } else {
            // A wake-up that comes between the tasks and this wait costs a tenth of a second at most.
            std::unique_lock<std::mutex> lock(idle);
            woken.wait_for(lock, std::chrono::duration<double>(std::min(wait, 0.1)));
        }
    }
    m_context.settings->unfollow(this);
    m_thread.close();
    // Who waits for one of these waits no longer.
    m_replies.clear();
    m_tap.reset();
    if (m_mpv)
        m_mpv->terminate(timeToTerminate());
    m_mpv.reset();
}

std::chrono::milliseconds PlaySession::timeToTerminate() const
{
    const auto used = EngineThread::Clock::now() - m_closeAsked;
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(closeLimit - used);
    return std::clamp(left, std::chrono::milliseconds(leastTerminateLimit),
                      std::chrono::milliseconds(closeLimit));
}

void PlaySession::handle(const MpvEvent &event)
{
    switch (event.kind) {
    case MpvEvent::Kind::Property:
    case MpvEvent::Kind::Reply:
        handleReply(event);
        break;
    case MpvEvent::Kind::FileLoaded:
        m_loaded = true;
        break;
    case MpvEvent::Kind::PlaybackRestart:
        restarted();
        break;
    case MpvEvent::Kind::EndFile:
        fileEnded(event);
        break;
    case MpvEvent::Kind::Log:
        if (event.isError)
            engineLog("[Play] %s: %s", event.prefix.c_str(), event.text.c_str());
        if (m_shaderWatch.isRefusal(event.prefix, event.text))
            shaderRefused();
        break;
    case MpvEvent::Kind::Shutdown:
        if (m_state == State::Opening)
            fail(VD_PlayError_NoEngine);
        break;
    default:
        break;
    }
}

void PlaySession::handleReply(const MpvEvent &event)
{
    if (event.id >= 1 && event.id <= propertyRowCount) {
        (this->*propertyRows[event.id - 1].handle)(event.value);
        if (event.kind == MpvEvent::Kind::Reply && m_startReplies > 0 && propertyRows[event.id - 1].atStart
            && --m_startReplies == 0)
            announceStart();
        return;
    }
    const auto found = m_replies.find(event.id);
    if (found == m_replies.end())
        return;
    const Reply reply = std::move(found->second);
    m_replies.erase(found);
    reply(event);
}

std::uint64_t PlaySession::expect(Reply reply)
{
    m_replies.emplace(++m_lastReply, std::move(reply));
    return m_lastReply;
}

void PlaySession::checkEnd()
{
    if (!m_endReached)
        return;
    if (m_state == State::Opening) {
        // What was observed may be of the file before: the answer to a request is not.
        m_mpv->get("eof-reached", MpvHandle::Format::Flag, expect([this](const MpvEvent &event) {
                       if (event.value.flag())
                           endedBeforeStart();
                   }));
        return;
    }
    if (m_state == State::Playing && !m_speed.isPaused() && !m_speed.isStepping() && !m_seeks.isBusy())
        finish(Outcome::ReachedEnd);
}

void PlaySession::finish(Outcome outcome)
{
    if (m_state != State::Playing)
        return;
    m_state = State::Ending;
    for (EngineThread::TimerId *timer : {&m_pollTimer, &m_seekTimer, &m_motionTimer, &m_overlayTimer})
        m_thread.cancel(*timer);
    const bool hasFrame = facts().hasFrame;
    edit([](PlayFacts &facts) {
        const auto now = PlayFacts::Clock::now();
        facts.position = facts.positionAt(now);
        facts.readAt = now;
        facts.rate = 0;
        facts.isPlaying = false;
    });
    m_tap.reset();
    if (!hasFrame) {
        conclude(outcome, {});
        return;
    }
    m_frameTimer = m_thread.after(frameLimit, [this, outcome] { conclude(outcome, {}); });
    m_mpv->command({"screenshot-raw", "video"}, expect([this, outcome](const MpvEvent &event) {
                       conclude(outcome, LastFrame::read(event.value, LastFrame::Order::Bgra));
                   }));
}

void PlaySession::conclude(Outcome outcome, LastFrame frame)
{
    if (m_state != State::Ending)
        return;
    m_state = State::Over;
    m_thread.cancel(m_frameTimer);
    storeResumeChoice();
    const PlayFacts now = facts();
    const double position = outcome == Outcome::ReachedEnd && now.total > 0 ? now.total : now.position;
    const vdStopPlayInfo info = PlayReport::stopInfo(m_request.path, position, now.total, outcome);
    const auto picture = std::make_shared<const LastFrame>(std::move(frame));
    notify([info, picture](IVDPlayCallback &callback) {
        vdStopPlayInfo record = info;
        if (!picture->isNull()) {
            record.image = picture->pixels.data();
            record.imageWidth = picture->width;
            record.imageHeight = picture->height;
        }
        callback.OnStopInfo(record);
    });
    const std::string facts = PlayReport::statistics(now, position, outcome, m_openMs, m_seekCount);
    notify([facts](IVDPlayCallback &callback) { callback.OnStatistics(facts.c_str()); });
    if (outcome == Outcome::ReachedEnd)
        notify([](IVDPlayCallback &callback) { callback.OnPlayBackEnded(); });
    else if (outcome == Outcome::Closed)
        notify([](IVDPlayCallback &callback) { callback.OnPlayBackStopped(); });
    else
        notify([fileInfo = now.info](IVDPlayCallback &callback) {
            callback.OnPlayBackFailed(VD_PlayError_Broken, fileInfo);
        });
    edit([](PlayFacts &kept) { kept.hasFrame = false; });
    if (outcome == Outcome::Closed || m_closeWanted)
        m_quit = true;
    else
        m_mpv->command({"stop"}); // the decoders and the sound device are free for others
}

void PlaySession::storeResumeChoice()
{
    const PlayFacts now = facts();
    ResumeMemory::Choice choice;
    const auto audio = static_cast<std::size_t>(now.tracks.selectedAudio);
    const auto subtitle = static_cast<std::size_t>(now.tracks.selectedSubtitle);
    // A file that was added by hand is not there at the next time.
    if (now.tracks.selectedAudio >= 0 && !now.tracks.audio[audio].isExternal)
        choice.audio = now.tracks.selectedAudio;
    if (now.tracks.selectedSubtitle < 0)
        choice.subtitle = now.tracks.subtitles.empty() ? VD_DefaultChoice : VD_NoSubtitle;
    else if (!now.tracks.subtitles[subtitle].record.isExternal
             || belongsToSource(now.tracks.subtitles[subtitle].file))
        choice.subtitle = now.tracks.selectedSubtitle;
    choice.angle = m_request.angle >= 0 ? m_request.angle : VD_DefaultChoice;
    m_context.resume->store(m_request.path, choice);
}

void PlaySession::close()
{
    m_closeWanted = true;
    m_waiting = {};
    if (m_state == State::Opening) {
        notify([](IVDPlayCallback &callback) { callback.OnPlayBackStopped(); });
        m_state = State::Over;
        m_quit = true;
    } else if (m_state == State::Playing) {
        finish(Outcome::Closed);
    } else if (m_state == State::Over) {
        m_quit = true;
    }
}
