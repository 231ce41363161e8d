// What the program is put together from beside the protocol and its HTTP front: the database, the scans, the
// provider.
//
// Made, started, stopped and destroyed by the main thread. The interfaces stay good from the making to the
// destruction.
#pragma once

#include <QString>

class IArtworkKeys;
class ILibraryRoots;
class IMetadataService;
class IMusicLibrary;
class IServerTasks;
class IVideoLibrary;

class IServerParts {
public:
    virtual ~IServerParts() = default;

    // Opens the database; false with what is wrong in error. Nothing runs yet.
    [[nodiscard]] virtual bool open(QString &error) = 0;
    // Begins to watch and to scan. Called once requests are answered.
    virtual void start() = 0;
    // Asks everything that runs to end and waits for it. Called once no request is under way any more.
    virtual void stop() = 0;

    [[nodiscard]] virtual ILibraryRoots &roots() = 0;
    [[nodiscard]] virtual IVideoLibrary &videos() = 0;
    [[nodiscard]] virtual IMusicLibrary &music() = 0;
    [[nodiscard]] virtual const IArtworkKeys &artwork() const = 0;
    [[nodiscard]] virtual IServerTasks &tasks() = 0;
    [[nodiscard]] virtual IMetadataService &metadata() = 0;
};
