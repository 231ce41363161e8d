// The lists and details of films, collections, shows, videos and adult content.
#pragma once

#include "MethodTable.h"
#include "records/ListRequest.h"

class ILibraryRoots;
class IVideoLibrary;

class VideoListMethods final {
public:
    VideoListMethods(const ILibraryRoots &roots, const IVideoLibrary &videos);
    void addTo(MethodTable &table);

private:
    void addLists(MethodTable &table);
    void addDetails(MethodTable &table);
    void addFilterValues(MethodTable &table);

    [[nodiscard]] bool isLibrary(const Params &params) const;
    [[nodiscard]] RpcReply movieDetails(const Params &params) const;
    [[nodiscard]] RpcReply seasonDetails(const Params &params) const;
    [[nodiscard]] RpcReply episodeDetails(const Params &params) const;
    [[nodiscard]] RpcReply seasons(const Params &params) const;
    [[nodiscard]] RpcReply episodes(const Params &params) const;

    const ILibraryRoots &m_roots;
    const IVideoLibrary &m_videos;
};
