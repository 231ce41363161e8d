// One album of the music library, with the ids of its songs in their order.
#pragma once

#include <QString>
#include <QStringList>

struct MusicAlbum {
    QString title;
    QString artist;
    QString poster;
    QString genre;
    int year{0};
    int idAlbum{0};
    QStringList songs;
};
