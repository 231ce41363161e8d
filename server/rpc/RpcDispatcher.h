// The protocol as a whole: takes the body of a request, calls the method that it names and writes the body of
// the reply. Owns the classes of methods and their table.
//
// handle() may be called from any number of threads at once; whatever a method throws ends in a reply.
#pragma once

#include "FolderMethods.h"
#include "MethodTable.h"
#include "MusicChangeMethods.h"
#include "MusicListMethods.h"
#include "MusicRemovalMethods.h"
#include "ServerMethods.h"
#include "VideoChangeMethods.h"
#include "VideoListMethods.h"

#include <QByteArray>

class RpcDispatcher final {
public:
    // What the methods work on; all of it outlives the dispatcher.
    struct Parts {
        ILibraryRoots &roots;
        IVideoLibrary &videos;
        IMusicLibrary &music;
        IServerTasks &tasks;
        IMetadataService &metadata;
    };

    explicit RpcDispatcher(const Parts &parts);
    RpcDispatcher(const RpcDispatcher &) = delete;
    RpcDispatcher &operator=(const RpcDispatcher &) = delete;

    [[nodiscard]] QByteArray handle(const QByteArray &body) const;
    // The reply to a request that is not carried out at all.
    [[nodiscard]] static QByteArray refused(const QByteArray &body, const QString &why);
    [[nodiscard]] const MethodTable &table() const { return m_table; }

private:
    ServerMethods m_server;
    FolderMethods m_folders;
    VideoListMethods m_videoLists;
    VideoChangeMethods m_videoChanges;
    MusicListMethods m_musicLists;
    MusicChangeMethods m_musicChanges;
    MusicRemovalMethods m_musicRemovals;
    MethodTable m_table;
};
