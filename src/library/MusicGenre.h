// One genre of the music library, with the ids of the songs. The key is the name.
#pragma once

#include <QString>
#include <QStringList>

struct MusicGenre {
    QString name;
    QStringList songs;
};
