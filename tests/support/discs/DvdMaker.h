// Makes a DVD-Video folder: encoding by ffmpeg, subtitle and structure by the dvdauthor tools.
#pragma once

#include <QString>

class DvdMaker final {
public:
    DvdMaker() = delete;

    // Makes VIDEO_TS below the folder.
    static bool make(const QString &folder);
    // Packs such a folder into an image.
    static bool pack(const QString &folder, const QString &image);
};
