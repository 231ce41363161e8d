// One proposal of the music scraper for a song.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

struct MusicMatch {
    struct Artist {
        QString name;
        int id{0};
    };

    QString title;
    QString album;
    int duration{0};
    int year{0};
    QStringList genres;
    QVector<Artist> artists;
};
