#include "PlayerCommands.h"

#include "player/QPlayer.h"

PlayerCommands PlayerCommands::ofPlayer()
{
    PlayerCommands commands;
    commands.hasSource = [] {
        switch (QPlayer::instance()->status()) {
        case QPlayer::QPlayerStatus_Playing:
        case QPlayer::QPlayerStatus_Paused:
        case QPlayer::QPlayerStatus_Forward:
        case QPlayer::QPlayerStatus_Rewind:
            return true;
        default:
            return false;
        }
    };
    commands.volume = [] { return QPlayer::instance()->volume(); };
    commands.setVolume = [](float volume) { QPlayer::instance()->setVolume(volume); };
    commands.isMuted = [] { return QPlayer::instance()->isMuted(); };
    commands.setMute = [](bool mute) { QPlayer::instance()->setMute(mute); };
    commands.togglePause = [] { QPlayer::instance()->togglePause(); };
    commands.speedUp = [](bool forward) { QPlayer::instance()->speedUp(forward); };
    commands.setSpeedIndex = [](int index) { QPlayer::instance()->setSpeedIndex(index); };
    commands.speedText = [] {
        QPlayer *player = QPlayer::instance();
        return player->speedTexts().value(player->speedIndex());
    };
    commands.stepFrame = [](bool forward) { QPlayer::instance()->stepFrame(forward); };
    commands.chapterCount = [] { return QPlayer::instance()->chapterCount(); };
    commands.nextChapter = [] { QPlayer::instance()->nextChapter(); };
    commands.lastChapter = [] { QPlayer::instance()->lastChapter(); };
    return commands;
}
