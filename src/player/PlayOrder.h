// One order to play, and how it is carried out on a thread of its own because an open may hang on its disc.
#pragma once

#include <QString>

class QPlayer;

struct PlayOrder {
    QString path;
    int itemType{0};  // libvp::VD_ItemType
    int title{-1};    // -1: the main title
    int cueTitle{-1}; // -1: no cue sheet
    int startSeconds{0};
    // As QPlayer::setPreferredLanguages() takes them.
    QString audioLanguages;
    QString subtitleLanguages;
};

namespace PlayRunner {

// Closes what plays; waits for the engine.
void close(QPlayer &player);
// Opens the source of the order and returns when the engine has taken it; all that follows comes as the
// player's signals.
void open(QPlayer &player, const PlayOrder &order);

} // namespace PlayRunner
