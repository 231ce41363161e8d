// A play from the request to its first frame, or to its failure.
#include "PlaySession.h"

#include "EngineLog.h"
#include "ResumeMemory.h"
#include "SourceProbe.h"

namespace {

using namespace std::chrono_literals;
using namespace libvp;

constexpr auto recordLimit = 1500ms;

} // namespace

void PlaySession::lookAtSource()
{
    std::thread([weak = weak_from_this(), make = m_context.makePlan, request = m_request] {
        SourcePlan plan = make(request);
        if (const auto session = weak.lock())
            session->post([raw = session.get(), plan = std::move(plan)] { raw->load(plan); });
    }).detach();
}

void PlaySession::load(SourcePlan plan)
{
    if (m_state != State::Opening || m_failed)
        return;
    m_plan = std::move(plan);
    edit([this](PlayFacts &facts) { facts.info = m_plan.info; });
    if (m_plan.error != VD_PlayError_None) {
        fail(m_plan.error);
        return;
    }
    takeResumeChoice();
    loadUrl();
    lookForSubtitles();
}

void PlaySession::loadUrl()
{
    MpvMap options = m_plan.options;
    // Only tracks that an earlier play of this source had are asked for before they are known.
    if (m_request.audio >= 0)
        options["aid"] = std::to_string(m_request.audio + 1);
    if (m_request.subtitle == VD_NoSubtitle || (m_request.subtitle < 0 && !m_preferences.subtitlesAllowed))
        options["sid"] = "no";
    else if (m_request.subtitle >= 0)
        options["sid"] = std::to_string(m_request.subtitle + 1);
    m_mpv->commandNamed(
        MpvMap{{"name", "loadfile"}, {"url", m_plan.url}, {"flags", "replace"}, {"options", options}},
        expect([this](const MpvEvent &event) {
            if (event.error < 0)
                fail(VD_PlayError_UnknownFormat);
        }));
}

void PlaySession::takeResumeChoice()
{
    const auto known = m_context.resume->find(m_request.path);
    const auto take = [&](int &wanted, int stored) {
        if (wanted == VD_ResumeChoice)
            wanted = known ? stored : VD_DefaultChoice;
    };
    const ResumeMemory::Choice choice = known.value_or(ResumeMemory::Choice{});
    take(m_request.audio, choice.audio);
    take(m_request.subtitle, choice.subtitle);
    take(m_request.angle, choice.angle);
}

void PlaySession::restarted()
{
    if (m_ignoredEnds > 0)
        return; // of the file before
    if (m_state == State::Opening && m_startReplies == 0 && !m_failed) {
        for (std::size_t row = 0; row < propertyRowCount; ++row) {
            if (!propertyRows[row].atStart)
                continue;
            ++m_startReplies;
            m_mpv->get(propertyRows[row].name, propertyRows[row].format, row + 1);
        }
        return;
    }
    if (m_seekAccepted)
        finishSeek(true);
    else
        settle();
}

void PlaySession::announceStart()
{
    if (m_state != State::Opening || m_failed)
        return;
    const double total = facts().total;
    if (!m_reloaded && total > 0 && m_request.startSeconds >= total && m_plan.options.count("start")) {
        playFromTheBeginning();
        return;
    }
    m_thread.cancel(m_openTimer);
    m_state = State::Playing;
    m_openMs = static_cast<int>(
        std::chrono::duration_cast<std::chrono::milliseconds>(EngineThread::Clock::now() - m_asked).count());
    const bool paused = m_speed.isPaused();
    edit([this, paused](PlayFacts &facts) {
        const bool audioOnly = facts.tracks.isAudioOnly();
        facts.isOpen = true;
        facts.isPlaying = true;
        facts.isPaused = paused;
        facts.hasFrame = facts.tracks.hasVideo;
        facts.titleCount = static_cast<int>(m_plan.titles.size());
        facts.rate = paused ? 0 : 1;
        facts.readAt = PlayFacts::Clock::now();
        facts.info.audioOnly = audioOnly ? 1 : 0;
        if (facts.info.mediaClass == VD_Media_File) {
            facts.info.sourceForm = audioOnly ? VD_Source_AudioFile : VD_Source_File;
            facts.info.flags =
                PlayReport::fileFlags(facts.tracks.videoCodec, facts.info.width, facts.info.height);
        }
    });
    engineLog("[Play] started after %d ms: %s", m_openMs, m_plan.url.c_str());
    if (const TrackList tracks = facts().tracks;
        m_request.audio >= 0 && tracks.selectedAudio < 0 && !tracks.audio.empty())
        m_mpv->set("aid", tracks.audio.front().id);
    tellVideo();
    tellAudio();
    if (facts().tracks.selectedSubtitle >= 0)
        tellSubtitle();
    notify([title = m_plan.title](IVDPlayCallback &callback) { callback.OnTitle(title); });
    const PlayFacts now = facts();
    notify([now](IVDPlayCallback &callback) { callback.OnChapter(now.chapter, now.chapterCount); });
    tellRange();
    notify([](IVDPlayCallback &callback) { callback.OnPlayBackStarted(); });
    if (paused)
        notify([](IVDPlayCallback &callback) { callback.OnPlayBackPaused(); });
    checkHardware();
    tellTime();
    startPolling();
    applyWaitingSound();
    applyPicture();
    applyTap();
    applyOverlay();
    addSubtitles();
    carryOutWaiting();
    checkEnd();
}

void PlaySession::checkHardware()
{
    const PlayFacts now = facts();
    if (!m_preferences.hardwareDecoding || now.hardwareDecoding || !now.tracks.hasVideo)
        return;
    VD_ErrorCallbackType note = VD_Error_None;
    if (now.info.mediaClass == VD_Media_BluRay && (now.info.flags & VD_Flag_Uhd))
        note = VD_Error_UhdHardwareUnsupported;
    else if (now.info.mediaClass == VD_Media_File && (now.info.flags & VD_Flag_File4K)
             && (now.info.flags & VD_Flag_FileHevc))
        note = VD_Error_HevcHardwareUnsupported;
    if (note == VD_Error_None)
        return;
    engineLog("[Play] no hardware decoder for this video, note %d", static_cast<int>(note));
    m_context.notifier->post(m_line, [orbix = m_context.orbix, note] { orbix->OnError(note); });
}

void PlaySession::fail(VD_PlayError error)
{
    if (m_state != State::Opening || m_failed)
        return;
    m_failed = true;
    m_waiting = {};
    m_thread.cancel(m_openTimer);
    engineLog("[Play] cannot be played, error %d: %s", static_cast<int>(error), m_request.path.c_str());
    if (m_mpv && !m_plan.url.empty())
        m_mpv->command({"stop"});
    m_openTimer = m_thread.after(recordLimit, [this, error] { announceFailure(facts().info, error); });
    if (SourcePlan::isNetworkAddress(m_request.resolved) || error == VD_PlayError_NotFound
        || error == VD_PlayError_TimedOut) {
        announceFailure(facts().info, error);
        return;
    }
    std::thread([weak = weak_from_this(), request = m_request, error] {
        const vdFileInfo info = SourceProbe::describe(request.resolved, request.itemType, request.title);
        if (const auto session = weak.lock())
            session->post([raw = session.get(), info, error] { raw->announceFailure(info, error); });
    }).detach();
}

void PlaySession::announceFailure(vdFileInfo info, VD_PlayError error)
{
    if (m_state != State::Opening)
        return;
    m_state = State::Over;
    m_thread.cancel(m_openTimer);
    notify([info, error](IVDPlayCallback &callback) { callback.OnPlayBackFailed(error, info); });
}

void PlaySession::fileEnded(const MpvEvent &event)
{
    if (m_ignoredEnds > 0) {
        --m_ignoredEnds;
        return;
    }
    if (m_state == State::Playing) {
        finish(event.error < 0 ? Outcome::Broken : Outcome::ReachedEnd);
        return;
    }
    if (m_state != State::Opening)
        return;
    if (event.error < 0)
        engineLog("[Play] %s", MpvHandle::errorText(event.error));
    const bool disc = m_plan.info.mediaClass != VD_Media_File;
    if (m_loaded || MpvHandle::isNothingToPlay(event.error))
        fail(VD_PlayError_NoStream);
    else if (disc)
        fail(VD_PlayError_DiscUnreadable);
    else if (MpvHandle::isUnknownFormat(event.error) || !m_plan.localFile.empty())
        fail(VD_PlayError_UnknownFormat);
    else
        fail(VD_PlayError_NotFound);
}

void PlaySession::endedBeforeStart()
{
    if (m_state != State::Opening || m_failed || m_startReplies > 0 || m_ignoredEnds > 0)
        return;
    if (m_plan.options.count("start") && !m_reloaded)
        playFromTheBeginning();
    else
        fail(VD_PlayError_NoStream);
}

// A stored position lies behind the end: the source has become shorter.
void PlaySession::playFromTheBeginning()
{
    m_reloaded = true;
    m_endReached = false;
    m_plan.options.erase("start");
    ++m_ignoredEnds;
    loadUrl();
}
