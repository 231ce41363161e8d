// What libmpv tells of a play: one table of properties, read by one loop, and what follows from each.
#include "InfoOverlay.h"
#include "PcmTap.h"
#include "PlaySession.h"

#include "EngineLog.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <utility>

namespace {

using namespace std::chrono_literals;
using namespace libvp;

constexpr auto pollInterval = 200ms; // the player shows seconds: five readings are enough
constexpr int slowPolls = 5;         // every so many polls the slow rows are read
constexpr auto overlayInterval = 1000ms;
constexpr int overlayId = 1;
// A sound device that takes compressed sound but never plays it holds the play up.
constexpr auto stuckLimit = 5s;
constexpr int mostWaitingPcmFrames = 32;

template<std::size_t Size>
void copyText(char (&target)[Size], const std::string &text)
{
    const std::size_t length = std::min(text.size(), Size - 1);
    std::copy_n(text.data(), length, target);
    target[length] = '\0';
}

} // namespace

const PlaySession::PropertyRow PlaySession::propertyRows[] = {
    {"time-pos", MpvHandle::Format::Number, PropertyRow::Read::Fast, true, &PlaySession::onTimePos},
    {"duration", MpvHandle::Format::Number, PropertyRow::Read::Observed, true, &PlaySession::onDuration},
    {"track-list", MpvHandle::Format::Node, PropertyRow::Read::Observed, true, &PlaySession::onTrackList},
    {"video-params", MpvHandle::Format::Node, PropertyRow::Read::Observed, true, &PlaySession::onVideoParams},
    {"chapter", MpvHandle::Format::Integer, PropertyRow::Read::Observed, true, &PlaySession::onChapter},
    {"chapters", MpvHandle::Format::Integer, PropertyRow::Read::Observed, true, &PlaySession::onChapters},
    {"seekable", MpvHandle::Format::Flag, PropertyRow::Read::Observed, true, &PlaySession::onSeekable},
    {"eof-reached", MpvHandle::Format::Flag, PropertyRow::Read::Observed, false, &PlaySession::onEndReached},
    {"hwdec-current", MpvHandle::Format::Text, PropertyRow::Read::Observed, true,
     &PlaySession::onHardwareDecoder},
    {"current-vo", MpvHandle::Format::Text, PropertyRow::Read::Observed, true, &PlaySession::onVideoOutput},
    {"container-fps", MpvHandle::Format::Number, PropertyRow::Read::Once, true, &PlaySession::onFrameRate},
    {"video-frame-info", MpvHandle::Format::Node, PropertyRow::Read::Slow, true, &PlaySession::onFrameInfo},
    {"frame-drop-count", MpvHandle::Format::Integer, PropertyRow::Read::Slow, false,
     &PlaySession::onOutputDrops},
    {"decoder-frame-drop-count", MpvHandle::Format::Integer, PropertyRow::Read::Slow, false,
     &PlaySession::onDecoderDrops},
};
const std::size_t PlaySession::propertyRowCount = std::size(PlaySession::propertyRows);

void PlaySession::startPolling()
{
    m_thread.cancel(m_pollTimer);
    m_progressAt = EngineThread::Clock::now();
    m_pollTimer = m_thread.after(pollInterval, [this] { poll(); });
}

void PlaySession::poll()
{
    m_pollTimer = 0;
    if (m_state != State::Playing || m_speed.isPaused())
        return; // nothing moves: resuming and seeking start it again
    ++m_polls;
    for (std::size_t row = 0; row < propertyRowCount; ++row) {
        const PropertyRow::Read read = propertyRows[row].read;
        const bool due =
            read == PropertyRow::Read::Fast || (read == PropertyRow::Read::Slow && m_polls % slowPolls == 0);
        if (due)
            m_mpv->get(propertyRows[row].name, propertyRows[row].format, row + 1);
    }
    m_pollTimer = m_thread.after(pollInterval, [this] { poll(); });
}

void PlaySession::onTimePos(const MpvValue &value)
{
    if (value.isNone())
        return;
    const auto now = PlayFacts::Clock::now();
    const bool stepping = m_speed.isStepping();
    const bool seeking = m_seeks.isBusy();
    if (seeking && !stepping)
        return; // the shown position is the target
    const double position = stepping ? m_speed.steppedPosition(now) : value.number();
    const bool moves = m_state == State::Playing && !m_speed.isPaused();
    edit([&](PlayFacts &facts) {
        const double moved = position - facts.position;
        if (facts.rate != 0 && moved > 0)
            facts.playedSeconds += moved;
        facts.position = position;
        facts.readAt = now;
        facts.rate = moves ? static_cast<double>(m_speed.speed()) : 0;
    });
    if (m_state != State::Playing)
        return;
    m_speed.checkPace(position, now);
    watchPassThrough();
    tellTime();
}

void PlaySession::tellTime()
{
    const PlayFacts now = facts();
    const int position = PlayReport::milliseconds(now.positionAt(PlayFacts::Clock::now()));
    const int total = PlayReport::milliseconds(now.total);
    notify([position, total](IVDPlayCallback &callback) { callback.OnTime(position, total); });
}

void PlaySession::onDuration(const MpvValue &value)
{
    edit([&](PlayFacts &facts) { facts.total = std::max(value.number(), 0.0); });
}

void PlaySession::onTrackList(const MpvValue &value)
{
    const TrackList before = facts().tracks;
    TrackList tracks = TrackList::read(value);
    if (m_state == State::Ending || m_state == State::Over)
        return; // the choices of the play are stored from the last list
    edit([&](PlayFacts &facts) { facts.tracks = tracks; });
    if (m_state != State::Playing)
        return;
    if (tracks.selectedAudio != before.selectedAudio) {
        tellAudio();
        applyTap();
    }
    if (tracks.selectedSubtitle != before.selectedSubtitle)
        tellSubtitle();
}

void PlaySession::onVideoParams(const MpvValue &value)
{
    const SourcePicture before = m_picture;
    if (value.at("pixelformat").text().empty())
        return; // not decoded yet
    m_picture.width = static_cast<int>(value.at("w").integer());
    m_picture.height = static_cast<int>(value.at("h").integer());
    const double displayHeight = value.at("dh").number();
    m_picture.aspect = displayHeight > 0 ? value.at("dw").number() / displayHeight : 0;
    m_picture.gamma = value.at("gamma").text();
    m_picture.stereo = value.at("stereo-in").text();
    m_picture.peak = value.at("sig-peak").number();
    edit([this](PlayFacts &facts) {
        // The aspect that an earlier choice put on the picture is not the source's.
        if (facts.aspect <= 0 || m_appliedPicture["video-aspect-override"] == MpvValue("-1"))
            facts.aspect = m_picture.aspect;
        m_picture.aspect = facts.aspect;
        facts.info.width = m_picture.width;
        facts.info.height = m_picture.height;
        const std::string &codec = facts.tracks.videoCodec;
        std::memset(facts.info.codec, 0, sizeof facts.info.codec);
        std::copy_n(codec.data(), std::min(codec.size(), sizeof facts.info.codec - 1), facts.info.codec);
    });
    if (m_state != State::Playing)
        return;
    if (m_picture.width != before.width || m_picture.height != before.height)
        tellVideo();
    if (m_picture.gamma != before.gamma)
        tellRange();
    applyPicture();
}

void PlaySession::onChapter(const MpvValue &value)
{
    const int chapter = static_cast<int>(value.integer(-1)) + 1;
    const PlayFacts before = facts();
    if (chapter == before.chapter)
        return;
    edit([chapter](PlayFacts &facts) { facts.chapter = chapter; });
    if (m_state == State::Playing)
        notify([chapter, count = before.chapterCount](IVDPlayCallback &callback) {
            callback.OnChapter(chapter, count);
        });
}

void PlaySession::onChapters(const MpvValue &value)
{
    edit([&](PlayFacts &facts) { facts.chapterCount = static_cast<int>(value.integer()); });
}

void PlaySession::onSeekable(const MpvValue &value)
{
    m_seekable = value.flag();
}

void PlaySession::onEndReached(const MpvValue &value)
{
    m_endReached = value.flag();
    if (m_endReached && m_seekAccepted)
        finishSeek(true);
    checkEnd();
}

void PlaySession::onHardwareDecoder(const MpvValue &value)
{
    const std::string &decoder = value.text();
    edit([&](PlayFacts &facts) { facts.hardwareDecoding = !decoder.empty() && decoder != "no"; });
}

void PlaySession::onVideoOutput(const MpvValue &value)
{
    if (value.text() == m_videoOutput)
        return;
    m_videoOutput = value.text();
    if (!m_videoOutput.empty())
        engineLog("[Play] video output %s", m_videoOutput.c_str());
}

void PlaySession::onFrameRate(const MpvValue &value)
{
    edit([&](PlayFacts &facts) { facts.frameRate = value.number(); });
}

void PlaySession::onFrameInfo(const MpvValue &value)
{
    if (m_picture.interlaced || !value.at("interlaced").flag())
        return;
    m_picture.interlaced = true;
    if (m_state == State::Playing)
        applyPicture();
}

void PlaySession::onOutputDrops(const MpvValue &value)
{
    m_outputDrops = static_cast<int>(value.integer());
    edit([this](PlayFacts &facts) { facts.droppedFrames = m_outputDrops + m_decoderDrops; });
}

void PlaySession::onDecoderDrops(const MpvValue &value)
{
    m_decoderDrops = static_cast<int>(value.integer());
    edit([this](PlayFacts &facts) { facts.droppedFrames = m_outputDrops + m_decoderDrops; });
}

void PlaySession::tellVideo()
{
    const PlayFacts now = facts();
    if (!now.tracks.hasVideo)
        return;
    VDVideoInfo info;
    info.width = now.info.width;
    info.height = now.info.height;
    copyText(info.codec, now.tracks.videoCodec);
    notify([info](IVDPlayCallback &callback) { callback.OnVideoInfo(&info); });
}

void PlaySession::tellAudio()
{
    const PlayFacts now = facts();
    if (now.tracks.selectedAudio < 0)
        return;
    const VDAudioInfo info = now.tracks.audio[static_cast<std::size_t>(now.tracks.selectedAudio)].record;
    notify([info](IVDPlayCallback &callback) { callback.OnAudioInfo(&info); });
}

void PlaySession::tellSubtitle()
{
    const PlayFacts now = facts();
    VDSubtitleInfo info; // empty: none shows
    if (now.tracks.selectedSubtitle >= 0)
        info = now.tracks.subtitles[static_cast<std::size_t>(now.tracks.selectedSubtitle)].record;
    notify([info](IVDPlayCallback &callback) { callback.OnSubtitleInfo(&info); });
}

void PlaySession::tellRange()
{
    // A cover has no range worth telling.
    if (facts().tracks.isAudioOnly())
        return;
    const int range = !m_picture.isHdr()                         ? VD_Range_Sdr
                      : PictureOptions::passesHdr(m_preferences) ? VD_Range_Hdr
                                                                 : VD_Range_HdrToSdr;
    notify([range](IVDPlayCallback &callback) { callback.OnDynamicRange(range); });
}

void PlaySession::applyPreferences()
{
    const PlayPreferences before = m_preferences;
    m_preferences = m_context.settings->preferences();
    if (!m_mpv || m_state == State::Ending || m_state == State::Over)
        return;
    m_mpv->setTextCodePage(m_preferences.subtitleCodePage);
    applyPicture();
    if (m_preferences.customShader != m_appliedShader)
        applyShader();
    if (m_state != State::Playing)
        return;
    if (PictureOptions::passesHdr(before) != PictureOptions::passesHdr(m_preferences) && m_picture.isHdr())
        tellRange();
    if (before.pcmTap != m_preferences.pcmTap)
        applyTap();
    if (before.informationOverlay != m_preferences.informationOverlay)
        applyOverlay();
}

void PlaySession::applyPicture()
{
    for (const auto &[name, value] : PictureOptions::build(m_preferences, m_picture)) {
        MpvValue &applied = m_appliedPicture[name];
        if (applied == value)
            continue;
        applied = value;
        m_mpv->set(name, value);
    }
}

void PlaySession::applyShader()
{
    const std::string &shader = m_preferences.customShader;
    if (shader == m_appliedShader)
        return;
    m_appliedShader = shader;
    MpvList list;
    if (!shader.empty()) {
        list.emplace_back(shader);
        m_shaderWatch.arm();
    } else {
        m_shaderWatch.disarm();
    }
    m_mpv->set("glsl-shaders", list);
}

void PlaySession::shaderRefused()
{
    engineLog("[Play] the custom shader does not compile: %s", m_appliedShader.c_str());
    m_appliedShader.clear();
    m_mpv->set("glsl-shaders", MpvList());
    m_context.settings->change([](PlayPreferences &preferences) { preferences.customShader.clear(); });
    m_context.notifier->post(m_line, [orbix = m_context.orbix] { orbix->OnError(VD_Error_ShaderInvalid); });
}

void PlaySession::applyTap()
{
    const PlayFacts now = facts();
    const bool wanted = m_preferences.pcmTap && m_state == State::Playing && !m_plan.localFile.empty()
                        && now.tracks.selectedAudio >= 0;
    const int stream =
        wanted ? now.tracks.audio[static_cast<std::size_t>(now.tracks.selectedAudio)].streamIndex : -1;
    if (wanted && m_tap && stream == m_tapStream)
        return;
    m_tap.reset();
    if (!wanted || stream < 0)
        return;
    m_tapStream = stream;
    const auto clock = [this] {
        const PlayFacts heard = facts();
        if (heard.rate <= 0)
            return std::numeric_limits<double>::quiet_NaN();
        return heard.positionAt(PlayFacts::Clock::now());
    };
    const auto sink = [this](const VDPcmFrame &frame) {
        if (m_waitingPcmFrames >= mostWaitingPcmFrames)
            return; // the player does not keep up: old sound is of no use to it
        ++m_waitingPcmFrames;
        const std::size_t bytes =
            static_cast<std::size_t>(frame.frameCount) * static_cast<std::size_t>(frame.bytesPerFrame);
        auto samples = std::make_shared<MpvBytes>(frame.samples, frame.samples + bytes);
        notify([this, frame, samples](IVDPlayCallback &callback) {
            --m_waitingPcmFrames;
            VDPcmFrame copy = frame;
            copy.samples = samples->data();
            callback.OnAudioFrame(&copy);
        });
    };
    m_tap = std::make_unique<PcmTap>(m_plan.localFile, stream, clock, sink);
}

void PlaySession::applyOverlay()
{
    m_thread.cancel(m_overlayTimer);
    const bool shown = m_preferences.informationOverlay && m_state == State::Playing;
    const std::string text = shown ? InfoOverlay::build(facts(), m_videoOutput, m_picture) : std::string();
    m_mpv->commandNamed(MpvMap{{"name", "osd-overlay"},
                               {"id", overlayId},
                               {"format", shown ? "ass-events" : "none"},
                               {"data", text}});
    if (shown)
        m_overlayTimer = m_thread.after(overlayInterval, [this] { applyOverlay(); });
}

void PlaySession::watchPassThrough()
{
    const auto now = EngineThread::Clock::now();
    const double position = facts().position;
    if (!m_passThrough || std::abs(position - m_lastProgress) > 0.001 || m_seeks.isBusy()
        || m_speed.isPaused()) {
        m_lastProgress = position;
        m_progressAt = now;
        return;
    }
    if (now - m_progressAt < stuckLimit)
        return;
    engineLog("[Play] the sound device does not take compressed sound: it is decoded instead");
    m_passThrough = false;
    m_sound[PassThroughOption] = "";
    m_mpv->set(PassThroughOption, "");
}

void PlaySession::setSound(const std::string &name, const MpvValue &value)
{
    m_sound[name] = value;
    if (name == PassThroughOption)
        m_passThrough = !value.text().empty();
    m_mpv->set(name, value);
}

void PlaySession::applyWaitingSound()
{
    for (const auto &[name, value] : std::exchange(m_waitingSound, {})) {
        if (value.text() != m_sound[name].text())
            setSound(name, value);
    }
}

void PlaySession::optionChanged(const std::string &name, const MpvValue &value)
{
    post([this, name, value] {
        if (!m_mpv)
            return;
        if (m_sound.count(name) > 0) {
            if (m_state == State::Opening)
                m_waitingSound[name] = value;
            else
                setSound(name, value);
            return;
        }
        m_mpv->set(name, value);
        // Files that are read already keep their characters otherwise; libmpv refuses where there is none.
        if (name == "sub-codepage")
            m_mpv->command({"sub-reload"});
    });
}

void PlaySession::preferencesChanged()
{
    post([this] { applyPreferences(); });
}
