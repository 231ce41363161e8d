#include "DriveWatch.h"

#include "EngineLog.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace {

// Looks at a disc that came in until it can be read. A blank one never can, and each try may start it anew.
constexpr int ReadTries = 15;

struct Note {
    libvp::VD_OPTRA_DISC_NOTIFY_TYPE type;
    const char *text;
};

constexpr Note Notes[] = {
    {libvp::VD_Disc_Arrived, "a disc came in"},
    {libvp::VD_Disc_Removed, "the disc has gone"},
    {libvp::VD_Disc_Ready, "the disc can be read"},
    {libvp::VD_Disc_Ejected, "the disc was put out"},
};

const char *textOf(libvp::VD_OPTRA_DISC_NOTIFY_TYPE type)
{
    const auto *note = std::find_if(std::begin(Notes), std::end(Notes),
                                    [type](const Note &row) { return row.type == type; });
    return note == std::end(Notes) ? "" : note->text;
}

} // namespace

// All that the thread works with. The drives and the notifier may be gone once it has been told to stop.
class DriveWatch::Watcher final {
public:
    Watcher(DriveTable &drives, Notifier &notifier, libvp::IVDOrbixCallback *callback, Access access,
            Times times)
        : m_notifier(notifier)
        , m_callback(callback)
        , m_access(std::move(access))
        , m_times(times)
        , m_line(notifier.openLine())
    {
        if (!m_access.places)
            m_access.places = [&drives] { return drives.places(); };
    }

    void run();

    // False when the thread did not end in time.
    bool stop(std::chrono::milliseconds patience);
    // After stop().
    void closeLine() { m_notifier.close(m_line); }
    void lookSoon();
    // From just before a disc is put out until it is seen to be gone.
    void expectEjection(char letter, bool isExpected);

private:
    struct Drive {
        std::string path;
        bool isBound = false;
        std::optional<bool> hasDisc; // none until it was first seen
        int readTries = 0;           // left until the disc is taken for unreadable, 0 once it was told
    };

    [[nodiscard]] bool isStopped();
    [[nodiscard]] bool takeEjection(char letter);
    [[nodiscard]] bool lookAtAll();
    void meet(const std::vector<DriveTable::Place> &places);
    void look(char letter, Drive &drive);
    void tryToRead(char letter, Drive &drive);
    void raise(char letter, libvp::VD_OPTRA_DISC_NOTIFY_TYPE type);

    Notifier &m_notifier;
    libvp::IVDOrbixCallback *const m_callback;
    Access m_access;
    const Times m_times;
    const Notifier::LinePtr m_line;

    // Of the thread alone.
    std::map<char, Drive> m_known;
    bool m_hasLooked{false};

    std::mutex m_mutex; // of what follows
    std::condition_variable m_changed;
    std::set<char> m_ejecting;
    bool m_isAsked{false};
    bool m_isStopped{false};
    bool m_hasEnded{false};
};

void DriveWatch::Watcher::run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_isStopped) {
        m_isAsked = false;
        lock.unlock();
        const bool hasDrives = lookAtAll();
        lock.lock();
        m_changed.wait_for(lock, hasDrives ? m_times.look : m_times.search,
                           [this] { return m_isStopped || m_isAsked; });
    }
    m_hasEnded = true;
    m_changed.notify_all();
}

bool DriveWatch::Watcher::stop(std::chrono::milliseconds patience)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_isStopped = true;
    m_changed.notify_all();
    return m_changed.wait_for(lock, patience, [this] { return m_hasEnded; });
}

bool DriveWatch::Watcher::isStopped()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_isStopped;
}

void DriveWatch::Watcher::lookSoon()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isAsked = true;
    }
    m_changed.notify_all();
}

void DriveWatch::Watcher::expectEjection(char letter, bool isExpected)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (isExpected)
        m_ejecting.insert(letter);
    else
        m_ejecting.erase(letter);
}

bool DriveWatch::Watcher::takeEjection(char letter)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_ejecting.erase(letter) != 0;
}

// Tells whether there is any drive.
bool DriveWatch::Watcher::lookAtAll()
{
    try {
        meet(m_access.places());
        for (auto &[letter, drive] : m_known) {
            look(letter, drive);
            if (isStopped())
                break;
        }
        m_hasLooked = true;
    } catch (const std::exception &error) {
        if (!isStopped())
            engineLog("[Drive] %s", error.what());
    }
    return !m_known.empty();
}

// What each letter stands for now, with what is known of it.
void DriveWatch::Watcher::meet(const std::vector<DriveTable::Place> &places)
{
    std::map<char, Drive> met;
    for (const DriveTable::Place &place : places) {
        Drive &drive = met[place.letter];
        const auto known = m_known.find(place.letter);
        const bool wasKnown = known != m_known.end();
        if (wasKnown && known->second.path == place.path)
            drive = known->second;
        else if (m_hasLooked && !place.isBound && !(wasKnown && known->second.isBound))
            drive.hasDisc = false; // plugged in just now
        drive.path = place.path;
        drive.isBound = place.isBound;
    }
    for (const auto &[letter, drive] : m_known) {
        const auto now = met.find(letter);
        const bool isUnplugged = now == met.end() || (now->second.path != drive.path && !now->second.isBound);
        if (isUnplugged && !drive.isBound && drive.hasDisc.value_or(false))
            raise(letter, libvp::VD_Disc_Removed);
    }
    m_known = std::move(met);
}

void DriveWatch::Watcher::look(char letter, Drive &drive)
{
    const DriveControl::Medium medium = m_access.medium(drive.path);
    if (medium == DriveControl::Medium::Unknown || isStopped())
        return;
    const bool hasDisc = medium == DriveControl::Medium::Present;
    if (!drive.hasDisc) {
        engineLog("[Drive] %c: %s", letter, hasDisc ? "holds a disc" : "is empty");
    } else if (hasDisc && !*drive.hasDisc) {
        raise(letter, libvp::VD_Disc_Arrived);
        drive.readTries = ReadTries;
    }
    const bool isEjected = !hasDisc && takeEjection(letter);
    if (!hasDisc && drive.hasDisc.value_or(false))
        raise(letter, isEjected ? libvp::VD_Disc_Ejected : libvp::VD_Disc_Removed);
    drive.hasDisc = hasDisc;
    tryToRead(letter, drive);
}

void DriveWatch::Watcher::tryToRead(char letter, Drive &drive)
{
    if (!*drive.hasDisc || drive.readTries == 0)
        return;
    --drive.readTries;
    const bool isReadable = m_access.isReadable(drive.path);
    if (isStopped())
        return;
    if (isReadable) {
        drive.readTries = 0;
        raise(letter, libvp::VD_Disc_Ready);
    } else if (drive.readTries == 0) {
        engineLog("[Drive] %c: the disc can't be read", letter);
    }
}

void DriveWatch::Watcher::raise(char letter, libvp::VD_OPTRA_DISC_NOTIFY_TYPE type)
{
    engineLog("[Drive] %c: %s", letter, textOf(type));
    m_notifier.post(m_line, [callback = m_callback, letter, type] { callback->OnDiscEvent(letter, type); });
}

DriveWatch::DriveWatch(DriveTable &drives, Notifier &notifier, libvp::IVDOrbixCallback *callback,
                       Access access, Times times)
    : m_drives(drives)
    , m_eject(access.eject)
    , m_patience(times.patience)
    , m_watcher(std::make_shared<Watcher>(drives, notifier, callback, std::move(access), times))
{
}

DriveWatch::~DriveWatch()
{
    stop();
}

void DriveWatch::start()
{
    if (m_thread.joinable())
        return;
    try {
        m_thread = std::thread([watcher = m_watcher] { watcher->run(); });
    } catch (const std::exception &error) {
        engineLog("[Drive] nothing tells of discs that come and go: %s", error.what());
    }
}

void DriveWatch::stop()
{
    if (m_thread.joinable()) {
        if (m_watcher->stop(m_patience)) {
            m_thread.join();
        } else {
            engineLog("[Drive] a drive does not answer and its watch is left behind");
            m_thread.detach();
        }
    }
    m_watcher->closeLine();
}

void DriveWatch::bind(char letter, std::string path)
{
    m_drives.bind(letter, std::move(path));
    m_watcher->lookSoon();
}

bool DriveWatch::eject(char letter)
{
    const std::string path = m_drives.resolve(std::string(1, letter));
    const char name = DriveTable::letterOf(std::string(1, letter));
    if (name == 0 || path.empty())
        return false;
    m_watcher->expectEjection(name, true);
    const bool isOut = m_eject(path);
    if (!isOut)
        m_watcher->expectEjection(name, false);
    m_watcher->lookSoon();
    return isOut;
}
