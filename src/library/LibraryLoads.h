// Loads the roles of the library, each in a thread of its own, and knows which of them are at it. Safe on
// every thread; reload() and waitForLoad() wait for the load that runs, so that a request under way is what
// they may cost at most.
#pragma once

#include "LibraryRole.h"

#include <array>
#include <atomic>
#include <mutex>

class BucketStatistics;
class LibrarySignals;
class LibraryThreads;
class MusicCache;
class MusicLoader;
class VideoCache;
class VideoLoader;

class LibraryLoads final {
public:
    // What the loads work with; all of it outlives them.
    struct Parts {
        VideoLoader &videoLoader;
        MusicLoader &musicLoader;
        VideoCache &videoCache;
        MusicCache &musicCache;
        LibraryThreads &threads;
        LibrarySignals &notices;
        BucketStatistics &statistics;
    };

    // Puts the work of the six roles, and that of waiting for all of them, into the threads.
    explicit LibraryLoads(const Parts &parts);

    // A number that is no role does nothing, or is false.
    void reload(int role);
    void waitForLoad(int role);
    [[nodiscard]] bool isLoading(int role) const;
    // Waits for the loads that run, in the threads' own worker.
    void startWaitingForAll();
    // Ends the loads that run at their next record; no other starts. Does not wait.
    void end();

private:
    struct State {
        std::atomic<bool> isAborted{false};
        std::atomic<bool> isFinished{true};
        std::recursive_mutex reloading; // a slot may ask for the next one
    };
    [[nodiscard]] State &state(LibraryRole role);
    void load(LibraryRole role);
    [[nodiscard]] int countOf(LibraryRole role) const;
    void logCounts() const;

    const Parts m_parts;
    std::array<State, LibraryRoles::Count> m_states;
    std::atomic<int> m_running{0};
    std::atomic<bool> m_isEnding{false};
};
