// One playlist of the music library, with the ids of its songs in their order.
#pragma once

#include <QString>
#include <QStringList>

struct MusicPlaylist {
    QString title;
    QString overview;
    QString poster;
    int idPlayList{0};
    QStringList songs;
};
