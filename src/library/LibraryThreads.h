// The twelve threads of the library, each with one piece of work that can be run again and again. Owns them
// and waits for all of them at its end. Every operation may come from every thread.
#pragma once

#include "LibraryRole.h"

#include <array>
#include <functional>
#include <memory>
#include <mutex>

class QSimpleThreadPack;

class LibraryThreads final {
public:
    enum Worker {
        StartUp,
        Movies,
        Collections,
        TvShows,
        Videos,
        AdultContent,
        Music,
        WaitForLoads,
        Update,
        Rebuild,
        Language,
        Heartbeat
    };
    static constexpr int Count = Heartbeat + 1;
    using Work = std::function<void()>;

    LibraryThreads();
    ~LibraryThreads();
    LibraryThreads(const LibraryThreads &) = delete;
    LibraryThreads &operator=(const LibraryThreads &) = delete;

    // Before the first start only.
    void setWork(Worker worker, Work work);
    enum class WhenBusy { Nothing, DoItAgain };
    // False while the work is being done: then nothing starts, or the work is done once more after that.
    bool start(Worker worker, WhenBusy whenBusy = WhenBusy::Nothing);
    // Returns when the work has ended; at once if it was never started.
    void wait(Worker worker);
    void waitForAll();

    [[nodiscard]] static Worker ofRole(LibraryRole role);

private:
    struct Slot {
        Work work;
        std::mutex mutex;
        bool isBusy{false};
        bool isAskedAgain{false};
        std::unique_ptr<QSimpleThreadPack> thread;

        static void run(void *slot);
        // Whether the work is to be done once more; it is at its end otherwise.
        [[nodiscard]] bool takeAgain();
    };
    std::array<Slot, Count> m_slots;
};
