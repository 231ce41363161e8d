#include "MenuState.h"

#include "MenuTexts.h"

#include "player/QPlayer.h"

namespace {

QVector<MenuState::Entry> chaptersOf(QPlayer &player)
{
    QVector<MenuState::Entry> entries;
    const int count = player.chapterCount();
    const int current = player.chapter();
    for (int chapter = 1; chapter <= count; ++chapter)
        entries.append({QString::number(chapter), MenuTexts::chapter(chapter), {}, chapter == current});
    return entries;
}

QVector<MenuState::Entry> audioOf(QPlayer &player)
{
    QList<PlayerAudioTrack> tracks;
    player.audioTracks(&tracks);
    const int current = player.audioTrack();
    QVector<MenuState::Entry> entries;
    entries.reserve(tracks.size());
    for (int index = 0; index < tracks.size(); ++index) {
        const PlayerAudioTrack &track = tracks.at(index);
        entries.append({QString::number(index), MenuTexts::track(track.name, track.language), track.format,
                        index == current});
    }
    return entries;
}

QVector<MenuState::Entry> subtitlesOf(QPlayer &player, bool isShown)
{
    QList<PlayerSubtitleTrack> tracks;
    player.subtitleTracks(&tracks);
    const int current = isShown ? player.subtitleTrack() : -1;
    QVector<MenuState::Entry> entries;
    entries.reserve(tracks.size());
    for (int index = 0; index < tracks.size(); ++index) {
        const PlayerSubtitleTrack &track = tracks.at(index);
        entries.append(
            {QString::number(index), MenuTexts::track(track.name, track.language), {}, index == current});
    }
    return entries;
}

} // namespace

MenuState MenuState::of(QPlayer *player, bool hasSource)
{
    MenuState state;
    if (player == nullptr)
        return state;
    state.viewMode = player->viewMode();
    state.deinterlace = player->deinterlaceMode();
    if (!hasSource)
        return state;
    state.hasSource = true;
    state.isMoving = QPlayer::isMoving(player->status());
    state.hasDiscMenu = player->hasDiscMenu();
    state.isSubtitleShown = player->isSubtitleVisible() && player->subtitleTrack() >= 0;
    state.chapters = chaptersOf(*player);
    state.audio = audioOf(*player);
    state.subtitles = subtitlesOf(*player, state.isSubtitleShown);
    return state;
}
