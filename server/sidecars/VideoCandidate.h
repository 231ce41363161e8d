// A file or a disc of a folder that may become an item, with what its name and its sidecars say.
#pragma once

#include "FolderListing.h"
#include "NfoReader.h"

struct VideoCandidate {
    QString name;     // of the file without its suffix, or of the disc's folder
    QString path;     // as on the wire
    QString realPath; // on disk
    FileStamp stamp;
    bool isDisc{false};
    QVector<NfoRecord> nfo; // of the file itself

    // The first record of the kind, or none.
    [[nodiscard]] const NfoRecord *record(NfoRecord::Kind kind) const
    {
        for (const NfoRecord &one : nfo)
            if (one.kind == kind)
                return &one;
        return nullptr;
    }
    [[nodiscard]] ScannedVideo toVideo(ScannedVideo::Kind kind) const
    {
        ScannedVideo video;
        video.path = path;
        video.realPath = realPath;
        video.stamp = stamp;
        video.kind = kind;
        return video;
    }
};
