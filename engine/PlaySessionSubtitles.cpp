// The subtitle files that belong to the source of a play: found by a helper thread, for their folder may be
// on a drive that sleeps, and added when both they and the source are there.
#include "PlaySession.h"

#include "EngineLog.h"
#include "LanguageCodes.h"

#include <algorithm>
#include <thread>
#include <tuple>

namespace {

using namespace libvp;

// Place of a language in a list of wanted ones; behind them where the file tells none, last for all others.
std::size_t wishRank(const std::vector<std::string> &wanted, const std::string &language)
{
    if (language.empty())
        return wanted.size();
    const auto found = std::find(wanted.begin(), wanted.end(), language);
    return found == wanted.end() ? wanted.size() + 1 : static_cast<std::size_t>(found - wanted.begin());
}

bool isWanted(const std::vector<std::string> &wanted, const TrackList::Subtitle &track)
{
    const std::string language = LanguageCodes::canonical(track.record.language);
    return std::find(wanted.begin(), wanted.end(), language) != wanted.end();
}

} // namespace

void PlaySession::lookForSubtitles()
{
    if (!m_preferences.subtitleFiles || m_plan.localFile.empty())
        return;
    std::thread([weak = weak_from_this(), source = m_plan.localFile, folder = m_preferences.subtitleFolder] {
        std::vector<SidecarSubtitle> files = SidecarSubtitles::find(source, folder);
        if (files.empty())
            return;
        if (const auto session = weak.lock())
            session->post([raw = session.get(), files = std::move(files)] { raw->takeSubtitles(files); });
    }).detach();
}

void PlaySession::takeSubtitles(std::vector<SidecarSubtitle> files)
{
    m_subtitleFiles = std::move(files);
    addSubtitles();
}

// Behind the first picture: a track that is chosen before it does not always show in a source that opens
// paused.
void PlaySession::addSubtitles()
{
    if (m_state == State::Playing && !m_subtitleFiles.empty())
        addSubtitleFile(0);
}

// One after the other: libmpv opens files side by side else, and their order, which the choice of the last
// time counts on, would be by chance.
void PlaySession::addSubtitleFile(std::size_t index)
{
    if (m_state != State::Playing)
        return;
    if (index == m_subtitleFiles.size()) {
        m_mpv->get("track-list", MpvHandle::Format::Node, expect([this](const MpvEvent &list) {
                       onTrackList(list.value);
                       if (m_state == State::Playing)
                           chooseSubtitle();
                   }));
        return;
    }
    const SidecarSubtitle &file = m_subtitleFiles[index];
    // Without a title the track has the file's name.
    m_mpv->command({"sub-add", file.address, "auto", "", file.language},
                   expect([this, index, path = file.path](const MpvEvent &event) {
                       if (event.error < 0)
                           engineLog("[Play] not a subtitle file: %s", path.c_str());
                       addSubtitleFile(index + 1);
                   }));
}

void PlaySession::chooseSubtitle()
{
    const TrackList tracks = facts().tracks;
    if (m_subtitleChosen || m_request.subtitle == VD_NoSubtitle)
        return;
    if (m_request.subtitle >= 0) {
        // The track of the last time may be one of the files.
        const auto index = static_cast<std::size_t>(m_request.subtitle);
        if (index < tracks.subtitles.size() && m_request.subtitle != tracks.selectedSubtitle)
            m_mpv->set("sid", tracks.subtitles[index].id);
        return;
    }
    if (!m_preferences.subtitlesAllowed)
        return;
    MpvMap options = m_context.settings->options();
    const std::vector<std::string> wanted = LanguageCodes::canonicalList(options["slang"].text());
    const SidecarSubtitle *best = nullptr;
    std::int64_t bestId = 0;
    const auto rank = [&wanted](const SidecarSubtitle &file) {
        return std::make_tuple(wishRank(wanted, file.language), file.isForced, file.isForHearingImpaired);
    };
    for (const SidecarSubtitle &file : m_subtitleFiles) {
        const auto track = std::find_if(
            tracks.subtitles.begin(), tracks.subtitles.end(),
            [&file](const TrackList::Subtitle &candidate) { return candidate.file == file.path; });
        if (track == tracks.subtitles.end() || (best && rank(file) >= rank(*best)))
            continue;
        best = &file;
        bestId = track->id;
    }
    if (!best)
        return;
    // A file in another language gives way to a track of the source in a wanted one.
    const bool isForeign = wishRank(wanted, best->language) > wanted.size();
    const bool hasWanted = !wanted.empty()
                           && std::any_of(tracks.subtitles.begin(), tracks.subtitles.end(),
                                          [&wanted](const TrackList::Subtitle &track) {
                                              return track.file.empty() && isWanted(wanted, track);
                                          });
    if (!isForeign || !hasWanted)
        m_mpv->set("sid", bestId);
}

bool PlaySession::belongsToSource(const std::string &subtitleFile) const
{
    return std::any_of(m_subtitleFiles.begin(), m_subtitleFiles.end(),
                       [&subtitleFile](const SidecarSubtitle &file) { return file.path == subtitleFile; });
}
