// The libraries and the folders that the user gave to them, for the video library and the music library
// alike.
#pragma once

#include "MethodTable.h"

class ILibraryRoots;
class IServerTasks;
struct RootFolder;

class FolderMethods final {
public:
    FolderMethods(ILibraryRoots &roots, IServerTasks &tasks);
    void addTo(MethodTable &table);

private:
    enum class Library { Video, Music };

    [[nodiscard]] int idOf(Library library) const;
    [[nodiscard]] RpcReply libraries(Library library) const;
    [[nodiscard]] RpcReply detail(Library library, const Params &params) const;
    [[nodiscard]] RpcReply addPath(Library library, const Params &params);
    [[nodiscard]] RpcReply deletePath(Library library, const Params &params);
    // Of a folder that the library holds already; an empty scraper type leaves it as it is.
    [[nodiscard]] RpcReply addAgain(const RootFolder &folder, const QString &scraperType);
    // Why the folder cannot join the library; empty where it can.
    [[nodiscard]] QString objectionTo(const QString &path, int libraryId) const;

    ILibraryRoots &m_roots;
    IServerTasks &m_tasks;
};
