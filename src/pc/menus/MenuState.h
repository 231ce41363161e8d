// What a menu shows of a moment: read once when it opens.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class QPlayer;

struct MenuState {
    // An entry of a list that changes from source to source.
    struct Entry {
        QString argument; // what stands behind the key's prefix
        QString text;
        QString note; // shown at the right end
        bool isChecked{false};
    };

    bool hasSource{false};
    bool isMoving{false}; // otherwise it is paused or stopped
    bool hasDiscMenu{false};
    int viewMode{0};
    int deinterlace{0};
    bool isSubtitleShown{false};
    bool isAlwaysOnTop{false};
    bool isInformationShown{false};
    QVector<Entry> discs;
    QVector<Entry> chapters;
    QVector<Entry> audio;
    QVector<Entry> subtitles;
    QVector<Entry> shaders;

    // The part that the player knows; with hasSource false the rest of it stays empty.
    static MenuState of(QPlayer *player, bool hasSource);
};
