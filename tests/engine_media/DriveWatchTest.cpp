#include "engine/DriveWatch.h"

#include <atomic>
#include <condition_variable>
#include <map>
#include <mutex>
#include <stdexcept>

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;
using DriveControl::Medium;

constexpr auto Limit = 20s; // of what is awaited
constexpr auto Never = 1h;
constexpr int Unreadable = 0;

// The drives as a test sets them up. Shared with the watch, whose thread may be left behind.
class Machine final {
public:
    // readableAt: number of the try that succeeds, from 1.
    void set(const std::string &path, Medium medium, int readableAt = 1)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_media[path] = medium;
        m_readableAt[path] = readableAt;
        m_readTries[path] = 0;
    }
    void plugIn(char letter, const std::string &path)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_own[letter] = path;
    }
    void unplug(char letter)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_own.erase(letter);
    }
    // What a command to put a disc out answers, and whether the disc is out then.
    void setTray(bool opens) { m_trayOpens = opens; }
    // A look at the path waits until release().
    void hold(const std::string &path)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_held = path;
    }
    void release()
    {
        hold({});
        m_changed.notify_all();
    }
    void breakOnce(const std::string &path)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_broken = path;
    }
    // Waits until as many further looks at the path have begun.
    [[nodiscard]] bool waitForLooks(const std::string &path, int count)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        const int wanted = m_looks[path] + count;
        return m_changed.wait_for(lock, Limit, [&] { return m_looks[path] >= wanted; });
    }
    // Waits until a first look at the path has begun.
    [[nodiscard]] bool waitForFirstLook(const std::string &path)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_changed.wait_for(lock, Limit, [&] { return m_looks[path] > 0; });
    }
    [[nodiscard]] int readTries(const std::string &path)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_readTries[path];
    }

    [[nodiscard]] static DriveWatch::Access accessTo(const std::shared_ptr<Machine> &machine,
                                                     const DriveTable &table)
    {
        DriveWatch::Access access;
        access.places = [machine, &table] { return machine->places(table); };
        access.medium = [machine](const std::string &path) { return machine->look(path); };
        access.isReadable = [machine](const std::string &path) { return machine->read(path); };
        access.eject = [machine](const std::string &path) { return machine->eject(path); };
        return access;
    }

private:
    std::vector<DriveTable::Place> places(const DriveTable &table)
    {
        std::map<char, DriveTable::Place> byLetter;
        const std::lock_guard<std::mutex> lock(m_mutex);
        for (const auto &[letter, path] : m_own)
            byLetter[letter] = {letter, path, false};
        for (const DriveTable::Place &place : table.places()) {
            if (place.isBound)
                byLetter[place.letter] = place;
        }
        std::vector<DriveTable::Place> places;
        for (const auto &[letter, place] : byLetter)
            places.push_back(place);
        return places;
    }
    Medium look(const std::string &path)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        ++m_looks[path];
        m_changed.notify_all();
        m_changed.wait(lock, [&] { return path != m_held; });
        if (path == m_broken) {
            m_broken.clear();
            throw std::runtime_error("out of order");
        }
        const auto found = m_media.find(path);
        return found == m_media.end() ? Medium::None : found->second;
    }
    bool read(const std::string &path)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return ++m_readTries[path] == m_readableAt[path];
    }
    bool eject(const std::string &path)
    {
        if (m_trayOpens)
            set(path, Medium::None);
        return m_trayOpens;
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::map<char, std::string> m_own;
    std::map<std::string, Medium> m_media;
    std::map<std::string, int> m_readableAt;
    std::map<std::string, int> m_looks;
    std::map<std::string, int> m_readTries;
    std::string m_held;
    std::string m_broken;
    std::atomic<bool> m_trayOpens{true};
};

// Keeps the events as texts: "K1 K3" is a disc that has arrived in K and is ready.
class Notes final : public libvp::IVDOrbixCallback {
public:
    void OnError(libvp::VD_ErrorCallbackType) override {}
    void reserved2(int, int) override {}
    void OnDiscEvent(char drive, libvp::VD_OPTRA_DISC_NOTIFY_TYPE type) override
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_events += (m_events.empty() ? "" : " ") + std::string(1, drive) + std::to_string(int(type));
    }
    void OnDiscError(char, libvp::VD_OPTRA_DISC_ERROR_TYPE) override {}

    [[nodiscard]] std::string take()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return std::exchange(m_events, {});
    }

private:
    std::mutex m_mutex;
    std::string m_events;
};

class DriveWatchTest : public testing::Test {
protected:
    DriveWatchTest()
    {
        m_machine->set(Last, Medium::None);
        m_table.bind('Z', Last);
    }

    void watch(DriveWatch::Times times = {1ms, 1ms, Limit})
    {
        m_watch = std::make_unique<DriveWatch>(m_table, m_notifier, &m_notes,
                                               Machine::accessTo(m_machine, m_table), times);
        m_watch->start();
    }

    // All that has happened by now has been seen and raised: the last drive is looked at for the second time
    // when the others have been looked at since, and the notifier keeps the order.
    std::string events()
    {
        EXPECT_TRUE(m_machine->waitForLooks(Last, 2));
        const auto line = m_notifier.openLine();
        m_notifier.post(line, [] {});
        m_notifier.flush(line);
        return m_notes.take();
    }

    static constexpr const char *Last = "/last";
    static constexpr const char *Disc = "/disc";

    const std::shared_ptr<Machine> m_machine = std::make_shared<Machine>();
    Notes m_notes;
    DriveTable m_table;
    Notifier m_notifier;
    std::unique_ptr<DriveWatch> m_watch;
};

TEST_F(DriveWatchTest, WhatIsInAtTheStartRaisesNothing)
{
    m_machine->set(Disc, Medium::Present);
    m_machine->set("/dev/sr0", Medium::Present);
    m_machine->plugIn('D', "/dev/sr0");
    m_table.bind('K', Disc);
    watch();
    EXPECT_EQ(events(), "");
    m_machine->set(Disc, Medium::None);
    EXPECT_EQ(events(), "K2");
    m_machine->set("/dev/sr0", Medium::None);
    EXPECT_EQ(events(), "D2");
}

TEST_F(DriveWatchTest, ADiscComesInCanBeReadAndGoes)
{
    m_table.bind('K', Disc);
    watch();
    EXPECT_EQ(events(), "");
    for (int time = 0; time < 2; ++time) {
        m_machine->set(Disc, Medium::Present);
        EXPECT_EQ(events(), "K1 K3");
        EXPECT_EQ(events(), "");
        m_machine->set(Disc, Medium::None);
        EXPECT_EQ(events(), "K2");
    }
}

TEST_F(DriveWatchTest, ADiscIsReadyOnceItCanBeRead)
{
    m_table.bind('K', Disc);
    watch();
    EXPECT_EQ(events(), "");
    m_machine->set(Disc, Medium::Present, 3);
    ASSERT_TRUE(m_machine->waitForLooks(Last, 4));
    EXPECT_EQ(events(), "K1 K3");
    EXPECT_EQ(m_machine->readTries(Disc), 3);
}

TEST_F(DriveWatchTest, ADiscThatCannotBeReadIsNotTriedForEver)
{
    m_table.bind('K', Disc);
    watch();
    EXPECT_EQ(events(), "");
    m_machine->set(Disc, Medium::Present, Unreadable);
    ASSERT_TRUE(m_machine->waitForLooks(Last, 40));
    EXPECT_EQ(m_machine->readTries(Disc), 15);
    EXPECT_EQ(events(), "K1");
    m_machine->set(Disc, Medium::None);
    EXPECT_EQ(events(), "K2");
    m_machine->set(Disc, Medium::Present);
    EXPECT_EQ(events(), "K1 K3") << "another disc";
}

TEST_F(DriveWatchTest, ADriveThatDoesNotSayKeepsWhatItHad)
{
    const struct {
        std::vector<Medium> seen;
        const char *events;
    } rows[] = {
        {{Medium::Present, Medium::Unknown, Medium::Present}, ""},
        {{Medium::Unknown, Medium::Present}, ""}, // it wakes up with the program
        {{Medium::None, Medium::Unknown, Medium::Present}, "K1 K3"},
        {{Medium::None, Medium::Unknown, Medium::None}, ""},
        {{Medium::Present, Medium::Unknown, Medium::None}, "K2"},
    };
    int number = 0;
    for (const auto &row : rows) {
        SCOPED_TRACE(number);
        const std::string path = Disc + std::to_string(number++);
        m_machine->set(path, row.seen.front());
        m_table.bind('K', path);
        if (!m_watch)
            watch();
        std::string all;
        for (const Medium medium : row.seen) {
            m_machine->set(path, medium);
            const std::string events = this->events();
            all += (all.empty() || events.empty() ? "" : " ") + events;
        }
        EXPECT_EQ(all, row.events);
    }
}

TEST_F(DriveWatchTest, ADiscThatIsPutOutIsEjectedAndTheNextOneIsRemoved)
{
    m_machine->set(Disc, Medium::Present);
    m_table.bind('K', Disc);
    watch();
    EXPECT_EQ(events(), "");
    EXPECT_TRUE(m_watch->eject('k'));
    EXPECT_EQ(events(), "K4");
    m_machine->set(Disc, Medium::Present);
    EXPECT_EQ(events(), "K1 K3");
    m_machine->set(Disc, Medium::None);
    EXPECT_EQ(events(), "K2");
}

TEST_F(DriveWatchTest, ADiscThatStaysInOrWasNotThereIsNotEjected)
{
    m_machine->set(Disc, Medium::Present);
    m_table.bind('K', Disc);
    watch();
    EXPECT_EQ(events(), "");
    m_machine->setTray(false);
    EXPECT_FALSE(m_watch->eject('K'));
    EXPECT_EQ(events(), "");
    m_machine->set(Disc, Medium::None);
    EXPECT_EQ(events(), "K2");
    m_machine->setTray(true);
    EXPECT_TRUE(m_watch->eject('K')) << "an empty tray opens too";
    EXPECT_EQ(events(), "");
    m_machine->set(Disc, Medium::Present);
    EXPECT_EQ(events(), "K1 K3");
    m_machine->set(Disc, Medium::None);
    EXPECT_EQ(events(), "K2");
}

TEST_F(DriveWatchTest, ALetterWithoutADriveIsNotEjected)
{
    watch();
    for (const char letter : {'Q', '1', '\0', '\xe4'})
        EXPECT_FALSE(m_watch->eject(letter)) << int(letter);
}

TEST_F(DriveWatchTest, WhatThePlayerBindsAndTakesAwayRaisesNothing)
{
    m_machine->set("/a", Medium::Present);
    m_machine->set("/b", Medium::Present);
    m_machine->set("/dev/sr0", Medium::Present);
    m_machine->plugIn('D', "/dev/sr0");
    watch();
    EXPECT_EQ(events(), "");
    for (const char *path : {"/a", "/b", "", "/empty", "/a", "/dev/sr0", ""}) {
        m_watch->bind('D', path);
        EXPECT_EQ(events(), "") << path;
    }
    m_watch->bind('K', "/a");
    EXPECT_EQ(events(), "");
    m_watch->bind('K', "");
    EXPECT_EQ(events(), "");
}

TEST_F(DriveWatchTest, WhatStandsBehindALetterNowIsWatched)
{
    m_machine->set("/a", Medium::Present);
    m_machine->set("/b", Medium::Present);
    m_table.bind('K', "/a");
    watch();
    EXPECT_EQ(events(), "");
    m_watch->bind('K', "/b");
    EXPECT_EQ(events(), "");
    m_machine->set("/a", Medium::None);
    EXPECT_EQ(events(), "");
    m_machine->set("/b", Medium::None);
    EXPECT_EQ(events(), "K2");
    m_watch->bind('K', "");
    m_machine->set("/b", Medium::Present);
    EXPECT_EQ(events(), "");
}

TEST_F(DriveWatchTest, ADriveThatIsUnpluggedTakesItsDiscAlong)
{
    m_machine->set("/dev/sr0", Medium::Present);
    m_machine->set("/dev/sr1", Medium::None);
    m_machine->plugIn('D', "/dev/sr0");
    m_machine->plugIn('E', "/dev/sr1");
    watch();
    EXPECT_EQ(events(), "");
    m_machine->unplug('E');
    EXPECT_EQ(events(), "") << "nothing was in";
    m_machine->unplug('D');
    EXPECT_EQ(events(), "D2");
    m_machine->plugIn('D', "/dev/sr0");
    EXPECT_EQ(events(), "D1 D3");
    m_machine->set("/dev/sr1", Medium::Present);
    m_machine->plugIn('D', "/dev/sr1");
    EXPECT_EQ(events(), "D2 D1 D3") << "the letter has gone to another drive";
}

TEST_F(DriveWatchTest, ABoundLetterIsLookedAtAtOnce)
{
    for (const bool hasDrives : {true, false}) {
        SCOPED_TRACE(hasDrives);
        m_table.bind('Z', hasDrives ? Last : "");
        watch({Never, Never, Limit});
        if (hasDrives) {
            ASSERT_TRUE(m_machine->waitForFirstLook(Last));
        }
        const std::string path = hasDrives ? "/one" : "/two";
        m_watch->bind('K', path);
        EXPECT_TRUE(m_machine->waitForFirstLook(path));
        m_watch->bind('K', "");
        m_watch.reset();
    }
}

TEST_F(DriveWatchTest, ALookThatBreaksIsDoneAgain)
{
    m_table.bind('K', Disc);
    watch();
    EXPECT_EQ(events(), "");
    m_machine->breakOnce(Disc);
    m_machine->set(Disc, Medium::Present);
    ASSERT_TRUE(m_machine->waitForLooks(Disc, 2));
    EXPECT_EQ(events(), "K1 K3");
}

TEST_F(DriveWatchTest, ASlowDriveHoldsUpNobodyElse)
{
    m_machine->set("/slow", Medium::None);
    m_table.bind('K', "/slow");
    watch();
    EXPECT_EQ(events(), "");
    m_machine->hold("/slow");
    ASSERT_TRUE(m_machine->waitForLooks("/slow", 1));
    m_watch->bind('L', Disc);
    EXPECT_EQ(m_table.resolve("L"), Disc);
    EXPECT_TRUE(m_watch->eject('L'));
    const auto line = m_notifier.openLine();
    bool isRaised = false;
    m_notifier.post(line, [&isRaised] { isRaised = true; });
    m_notifier.flush(line);
    EXPECT_TRUE(isRaised);
    m_machine->set("/slow", Medium::Present);
    m_machine->release();
    EXPECT_EQ(events(), "K1 K3");
}

TEST_F(DriveWatchTest, NothingIsRaisedAfterTheEndNorByADriveThatAnswersLate)
{
    m_table.bind('K', Disc);
    watch({1ms, 1ms, 1ms});
    EXPECT_EQ(events(), "");
    m_machine->hold(Disc);
    ASSERT_TRUE(m_machine->waitForLooks(Disc, 1));
    m_watch.reset(); // does not wait for the drive
    m_machine->set(Disc, Medium::Present);
    m_machine->release();
    // The thread ends by itself and lets go of what it has asked.
    const auto end = std::chrono::steady_clock::now() + Limit;
    while (m_machine.use_count() > 1 && std::chrono::steady_clock::now() < end)
        std::this_thread::yield();
    EXPECT_EQ(m_machine.use_count(), 1);
    EXPECT_EQ(m_notifier.waiting(), 0U);
    EXPECT_EQ(m_notes.take(), "");
}

TEST_F(DriveWatchTest, TheEndIsImmediateAndComesWithoutAStartToo)
{
    watch({Never, Never, Limit});
    ASSERT_TRUE(m_machine->waitForFirstLook(Last));
    const auto begin = std::chrono::steady_clock::now();
    m_watch->stop();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, Limit / 2);
    m_watch->stop();
    m_watch.reset();
    DriveWatch unused(m_table, m_notifier, &m_notes);
}

} // namespace
