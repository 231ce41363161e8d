// The connection to the media server: starts its program, learns what it calls the libraries and their
// folders, and asks it every three seconds how its scan goes. startUp() and beat() are the work of two
// threads; everything else is safe on every thread.
#pragma once

#include <QString>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>

class BucketStatistics;
class IServerStarter;
class LibraryPause;
class LibraryRoots;
class LibrarySignals;
class MusicProtocol;
class SettingsManager;
class VideoProtocol;

class ServerLink final {
public:
    // What a link works with; all of it outlives the link.
    struct Parts {
        const VideoProtocol &video;
        const MusicProtocol &music;
        LibraryRoots &roots;
        LibraryPause &pause;
        LibrarySignals &notices;
        BucketStatistics &statistics;
        SettingsManager &settings;
    };

    // program and dataFolder: of the server. startHeartbeat: called once, when the server was asked for all
    // that the start needs.
    ServerLink(const Parts &parts, IServerStarter &starter, QString program, QString dataFolder,
               std::function<void()> startHeartbeat);

    // Starts the server and asks for libraries and folders; comes to its end even where nothing answers. A
    // server that says that it is still starting is asked for as long as its process runs. Blocks.
    void startUp();
    // Beats until the pause ends. Blocks.
    void beat();
    // Hands the settings' proxy to the server. Blocks for two seconds at most.
    void applyProxy() const;
    // Blocks until startUp() is through or it is time to end; false for the latter.
    [[nodiscard]] bool waitUntilReady();
    // Wakes waitUntilReady().
    void end();

    [[nodiscard]] bool isReady() const { return m_isReady; }
    [[nodiscard]] bool isScanFinished() const { return m_isScanFinished; }

private:
    // The outcome of the second way of starting, where it was gone.
    std::optional<bool> startServer();
    // Whether the server answered, if only that it has no answer yet.
    [[nodiscard]] bool askForLibraries();
    void askForFolders();
    void setReady();

    const Parts m_parts;
    IServerStarter &m_starter;
    const QString m_program;
    const QString m_dataFolder;
    const std::function<void()> m_startHeartbeat;
    std::atomic<bool> m_isReady{false};
    std::atomic<bool> m_isScanFinished{true};
    std::mutex m_mutex;
    std::condition_variable m_readyOrEnding;
    bool m_isEnding{false};
};
