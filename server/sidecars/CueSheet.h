// A CUE sheet: which tracks lie where in which sound files.
//
// Positions are frames of a CD, 75 to a second. A sheet that breaks off gives the tracks that have a start.
// Names of files come without folders, so a sheet never leads out of its own. Any thread.
#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

struct CueTrack {
    int number{0};
    QString title;
    QString performer;
    QString fileName;    // of the sound file, without folders
    int pregapFrame{-1}; // INDEX 00; -1: none, or in the file before
    int startFrame{-1};  // INDEX 01
    int endFrame{-1};    // where the next track of the same file starts; -1: the end of the file

    [[nodiscard]] qint64 startMs() const { return toMs(startFrame); }
    [[nodiscard]] qint64 endMs() const { return endFrame < 0 ? -1 : toMs(endFrame); }

    static constexpr int framesPerSecond = 75;

private:
    [[nodiscard]] static qint64 toMs(int frame) { return qint64(frame) * 1000 / framesPerSecond; }
};

class CueSheet final {
public:
    static constexpr qint64 largestFile = 1024 * 1024;

    [[nodiscard]] static CueSheet parse(const QByteArray &data);

    [[nodiscard]] bool isValid() const { return !tracks.isEmpty(); }

    QString title;
    QString performer;
    QString genre;
    int year{0};
    QVector<CueTrack> tracks;
};
