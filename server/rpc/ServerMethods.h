// What concerns the server as a whole: its heartbeat, its proxy, its scans and its counts.
#pragma once

#include "MethodTable.h"

class ILibraryRoots;
class IMetadataService;
class IMusicLibrary;
class IServerTasks;
class IVideoLibrary;

class ServerMethods final {
public:
    struct Libraries {
        const ILibraryRoots &roots;
        const IVideoLibrary &videos;
        const IMusicLibrary &music;
    };

    ServerMethods(const Libraries &libraries, IServerTasks &tasks, IMetadataService &metadata);
    void addTo(MethodTable &table);

private:
    [[nodiscard]] RpcReply heartbeat();
    [[nodiscard]] RpcReply setProxy(const Params &params);
    [[nodiscard]] RpcReply cancelProxy();
    [[nodiscard]] RpcReply update(int libraryId, int knownId);
    [[nodiscard]] RpcReply updateByLanguage(const Params &params);
    [[nodiscard]] RpcReply statistics() const;

    Libraries m_libraries;
    IServerTasks &m_tasks;
    IMetadataService &m_metadata;
};
