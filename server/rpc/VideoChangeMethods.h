// What the user changes in the video library: items deleted, searches made and their answers taken over.
#pragma once

#include "FileRemover.h"
#include "MethodTable.h"

class ILibraryRoots;
class IMetadataService;
class IVideoLibrary;

class VideoChangeMethods final {
public:
    VideoChangeMethods(const ILibraryRoots &roots, IVideoLibrary &videos, IMetadataService &metadata);
    void addTo(MethodTable &table);

private:
    [[nodiscard]] RpcReply remove(const Params &params);
    [[nodiscard]] RpcReply modifiedToMovie(const Params &params);
    [[nodiscard]] RpcReply modifiedToEpisode(const Params &params);

    const ILibraryRoots &m_roots;
    IVideoLibrary &m_videos;
    IMetadataService &m_metadata;
    FileRemover m_remover;
};
