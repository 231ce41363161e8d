// The client's one door to the media server, the separate program that owns the library: starts and ends it,
// holds a complete copy of what it knows, and tells the views what happens. Forwards to its parts and owns
// them all.
//
// One object a process, made on the GUI thread and never destroyed before the process ends; a test makes its
// own from parts of its own. Every operation is safe on every thread. Those that send a request say so: they
// block for it, and a request that fails gives false or nothing.
#pragma once

#include "LibraryPaths.h"
#include "LibrarySignals.h"
#include "MusicCache.h"
#include "VideoCache.h"
#include "VideoProtocol.h"

#include "BucketStatistics.h"

#include <memory>

class IServerStarter;
class LibraryFilters;
class LibraryPause;
class LibraryTransport;
class MusicChanges;
class MusicProtocol;
class SettingsManager;
class VideoChanges;

// What a manager is made of.
struct LibraryParts {
    std::unique_ptr<LibraryTransport> transport;
    std::unique_ptr<IServerStarter> starter;
    std::unique_ptr<LibraryPause> pause;
    BucketStatistics::Sink statistics;
    SettingsManager *settings{nullptr}; // outlives the manager
    QString program;                    // of the server
    QString dataFolder;                 // of the server
    int port{0};
    bool isOn{true}; // when not, no server is started or asked for its pulse
};

class MediaServerManager final : public LibrarySignals {
    Q_OBJECT
public:
    static MediaServerManager *instance();
    // The parts of instance(). With QUORIN_NO_LIBRARY in the environment the library stays off.
    [[nodiscard]] static LibraryParts usualParts();

    // Begins to start the server in a thread; the first update follows after five seconds.
    explicit MediaServerManager(LibraryParts parts, QObject *parent = nullptr);
    ~MediaServerManager() override;

    // ---- the server
    [[nodiscard]] bool isServerReady() const;
    [[nodiscard]] bool isScanFinished() const;
    // Hands the proxy of the settings to the server; a request.
    void applyProxy();
    // The language in which the server fetches its metadata, in the server's words ("en", "zh-TW").
    void setScraperLanguage(const QString &language);
    [[nodiscard]] QString scraperLanguage() const;
    void startLibraryUpdate();
    void startLibraryRebuild();
    // Ends the threads' waits and loads, without waiting for them. Nothing starts after that.
    void shutDown();
    // Ends the process that instance() holds, then every server of this user that was started from this
    // program's folder, whoever started it. Nothing while the library is off.
    static void killServerProcess();
    // The server's program beside the player.
    [[nodiscard]] static QString serverPath();

    // ---- loads; a number that is no role does nothing or is false
    [[nodiscard]] bool isLoading(int nRole) const;
    void reloadLibrary(int nRole);
    void waitForLoad(int nRole);
    void startWaitingForLoads();

    // ---- the folders of the libraries
    [[nodiscard]] LibraryPaths::Map videoPaths() const;
    [[nodiscard]] LibraryPaths::Map musicPaths() const;
    // Requests. scraper: "common" or "avScraper".
    bool addVideoPath(const QString &path, const QString &scraper);
    bool addMusicPath(const QString &path);
    bool deleteVideoPath(const QString &path);
    bool deleteMusicPath(const QString &path); // loads the music anew

    // ---- filters, sort and search of the video lists; they count from the next load on
    [[nodiscard]] LibraryFilters &filters();
    void setPattern(const QString &pattern);
    void setSortMethod(int method);
    void setSortOrder(bool ascending);

    // ---- the copy of the library
    [[nodiscard]] const VideoCache &videos() const;
    [[nodiscard]] const MusicCache &music() const;
    // The id of the episode that lies there; empty when none does.
    [[nodiscard]] QString lookupEpisodeByPath(const QString &path) const;
    // The form of a path that the engine can open: of a disc in the library its folder. No server is needed:
    // a film of the command line plays before there is one.
    [[nodiscard]] static QString playPath(const QString &path);

    // ---- requests beside the lists: choices of the filters, the scraper, removals
    [[nodiscard]] const VideoProtocol &videoRequests() const;
    [[nodiscard]] const MusicProtocol &musicRequests() const;
    // Changes of the music that the copy follows.
    [[nodiscard]] MusicChanges &musicChanges();

private:
    struct Machine;
    std::unique_ptr<Machine> m_machine;
};
