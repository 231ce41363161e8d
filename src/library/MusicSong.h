// One song of the music library. A value; its key is the id of its file.
#pragma once

#include <QString>

struct MusicSong {
    QString artist;
    QString genre;
    QString title;
    QString poster;
    QString album;
    QString path; // of a track of a CUE sheet with the track's number in front: "3_/music/album.cue"
    QString suffix;
    QString cuePath;
    int year{0};
    int iTrack{-1};
    bool like{false};
    int runtime{0};
};
