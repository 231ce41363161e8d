// Makes a Blu-ray folder: streams by ffmpeg, the structure around them written here.
//
// Layout of the files: as the disc libraries of this field read them. Numbers are big-endian.
#pragma once

#include <QByteArray>
#include <QString>

class BluRayMaker final {
public:
    BluRayMaker() = delete;

    // Makes BDMV below the folder. Version "0200" is a plain disc, "0300" an Ultra HD one.
    static bool make(const QString &folder, const QByteArray &version);
    // Packs such a folder into an image.
    static bool pack(const QString &folder, const QString &image);
};
