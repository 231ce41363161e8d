// Watches the optical drives, those of the machine and those bound to a letter, and raises OnDiscEvent() for
// the discs that come and go.
//
// A thread of its own asks the drives, one after the other, so that a slow one holds up nobody else; it runs
// from start() to stop(). What a drive holds when it is first seen is the ground and raises nothing. So does
// what the player puts behind a letter or takes away from there: that is its own doing. A drive of the
// machine that is plugged in later was empty until then. start() and stop() belong to the owner, bind() and
// eject() may be called from any thread.
#pragma once

#include "DriveControl.h"
#include "DriveTable.h"
#include "Notifier.h"

#include "contract/IVDOrbixCallback.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

class DriveWatch final {
public:
    // How the drives are found and asked, by the path behind a letter.
    struct Access {
        std::function<std::vector<DriveTable::Place>()> places; // none: those of the table
        std::function<DriveControl::Medium(const std::string &)> medium = DriveControl::medium;
        std::function<bool(const std::string &)> isReadable = DriveControl::isReadable;
        std::function<bool(const std::string &)> eject = DriveControl::eject;
    };

    struct Times {
        std::chrono::milliseconds look{2000};     // between two looks at all drives
        std::chrono::milliseconds search{30000};  // between two searches for a drive while there is none
        std::chrono::milliseconds patience{3500}; // of stop() with a drive that does not answer
    };

    DriveWatch(DriveTable &drives, Notifier &notifier, libvp::IVDOrbixCallback *callback)
        : DriveWatch(drives, notifier, callback, {}, {})
    {
    }
    DriveWatch(DriveTable &drives, Notifier &notifier, libvp::IVDOrbixCallback *callback, Access access,
               Times times);
    ~DriveWatch();
    DriveWatch(const DriveWatch &) = delete;
    DriveWatch &operator=(const DriveWatch &) = delete;

    // Once.
    void start();
    // Nothing is raised afterwards. A thread that waits for a drive all the same is left behind; it touches
    // nothing any more.
    void stop();

    [[nodiscard]] DriveTable &drives() { return m_drives; }

    // Of DriveTable; looks at once.
    void bind(char letter, std::string path);
    // False where nothing can be put out. Waits for the drive.
    [[nodiscard]] bool eject(char letter);

private:
    class Watcher;

    DriveTable &m_drives;
    std::function<bool(const std::string &)> m_eject;
    std::chrono::milliseconds m_patience;
    std::shared_ptr<Watcher> m_watcher; // shared with the thread, which may be left behind
    std::thread m_thread;
};
