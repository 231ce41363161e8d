// Where pictures come from, as functions that a test or the program's start puts in.
//
// All are called on the threads of the lanes, and several at once: each must be safe there. What is missing
// counts as a source that has nothing.
#pragma once

#include "player/QPlayerTypes.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

struct PictureSources {
    // The body of a GET on that address, empty where it fails. Gives up after so many milliseconds.
    std::function<QByteArray(const QString &url, int timeoutMs)> fetch;
    // The engine's picture of a source, asked for in the engine's own form. Waits for the file.
    std::function<PlayerPicture(const QByteArray &requestJson)> thumbnail;
    // Posters of a genre's songs in the order of the songs, one for each song, empty where it has none.
    std::function<QStringList(const QString &genre)> genrePosters;
    // The file or folder that stands on the disc for the path of a library item. The path itself without it.
    std::function<QString(const QString &path)> resolvePath;

    // The engine's pictures, the server's posters and the library's songs.
    [[nodiscard]] static PictureSources ofProgram();
};
