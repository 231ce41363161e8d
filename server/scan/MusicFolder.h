// Makes songs of a folder of the music library: sound files by their tags, CUE sheets by their tracks.
//
// A song whose file is unchanged is taken from the database. The cover is the one in the file, else the
// folder's. A sound file that a sheet divides is not listed as a whole. Keeps nothing but the parser of
// sheets.
#pragma once

#include "FolderWork.h"

class MusicFolder final : public IFolderReader {
public:
    void prepare(FolderWork &work, const StoredFolder &stored) const override;
    void finish(FolderWork &work) const override;
};
