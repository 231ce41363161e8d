// What the user makes of the music library: playlists, likes, corrections, and the search for what a song is.
#pragma once

#include "MethodTable.h"

class IMetadataService;
class IMusicLibrary;

class MusicChangeMethods final {
public:
    MusicChangeMethods(IMusicLibrary &music, IMetadataService &metadata);
    void addTo(MethodTable &table);

private:
    void addPlaylists(MethodTable &table);
    void addCorrections(MethodTable &table);
    void addMarks(MethodTable &table);

    [[nodiscard]] RpcReply createPlaylist(const Params &params);
    [[nodiscard]] RpcReply editSong(const Params &params);

    IMusicLibrary &m_music;
    IMetadataService &m_metadata;
};
