// A library with folders that the system does not watch.
#include "ScanBench.h"

#include "scan/LibraryWatcher.h"
#include "scan/ServerTasks.h"
#include "support/Eventually.h"
#include "support/TestLog.h"

#include <QDir>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>

namespace {

constexpr LibraryWatcher::Intervals Often{5, 100, 40};
constexpr int Silence = 5 * Often.periodicMs;

// Watches as the system does, but for as many folders only as it is told.
class LimitedEvents final : public FolderEvents {
public:
    explicit LimitedEvents(Outcome refusal)
        : m_refusal(refusal)
    {
    }

    Outcome watch(const QString &folder) override
    {
        return count() < m_limit ? FolderEvents::watch(folder) : m_refusal;
    }
    void setLimit(int folders) { m_limit = folders; }

private:
    const Outcome m_refusal;
    std::atomic<int> m_limit{0};
};

struct Limited {
    explicit Limited(FolderEvents::Outcome refusal)
        : Limited(std::make_unique<LimitedEvents>(refusal))
    {
    }
    explicit Limited(std::unique_ptr<LimitedEvents> made)
        : events(made.get())
        , watcher(Often, std::move(made))
    {
    }

    LimitedEvents *events;
    LibraryWatcher watcher;
};

// Counts warnings and hands them on.
class WarningCount final {
public:
    WarningCount()
    {
        s_count = 0;
        s_next = qInstallMessageHandler(
            [](QtMsgType type, const QMessageLogContext &context, const QString &text) {
                if (type == QtWarningMsg)
                    ++s_count;
                s_next.load()(type, context, text);
            });
    }
    ~WarningCount() { qInstallMessageHandler(s_next); }
    WarningCount(const WarningCount &) = delete;
    WarningCount &operator=(const WarningCount &) = delete;

    [[nodiscard]] int count() const { return s_count; }

private:
    static inline std::atomic<int> s_count{0};
    static inline std::atomic<QtMessageHandler> s_next{nullptr};
};

int linesWith(const QString &text)
{
    return TestLog::infoLines().filter(text).size();
}

TEST(LibraryWatcherLimitTest, TheLimitOfTheSystemIsToldOnceAndTheLibraryIsLookedAtAgain)
{
    QTemporaryDir tree;
    Limited limited(FolderEvents::Outcome::LimitReached);
    limited.events->setLimit(1);
    RootFolder root;
    root.pathId = 7;
    root.path = tree.path();
    limited.watcher.setRoots({root});
    limited.watcher.watch(tree.path());
    QSignalSpy changed(&limited.watcher, &LibraryWatcher::rootChanged);
    EXPECT_FALSE(changed.wait(Silence)) << "all is watched";
    TestLog::expectWarning(QRegularExpression("^\\[watch\\] the system watches no more folders"));
    const WarningCount warnings;
    // A scan enters every folder, each time.
    const auto scan = [&] {
        for (const char *name : {"", "/a", "/b"})
            limited.watcher.watch(tree.path() + name);
    };
    QObject::connect(&limited.watcher, &LibraryWatcher::rootChanged, &limited.watcher, scan);
    scan();
    ASSERT_EVENTUALLY(changed.size() >= 3);
    EXPECT_EQ(changed.first().first().toInt(), 7);
    EXPECT_EQ(warnings.count(), 1);
    // The user raised the limit: the next look watches everything and is the last one.
    ASSERT_TRUE(QDir(tree.path()).mkpath("a") && QDir(tree.path()).mkpath("b"));
    limited.events->setLimit(100);
    ASSERT_EVENTUALLY(limited.watcher.watchedFolders() == 3);
    // One that was due already may still come.
    (void)changed.wait(Silence);
    EXPECT_FALSE(changed.wait(Silence));
}

TEST(LibraryWatcherLimitTest, AFolderThatCannotBeWatchedIsNamedOnceAndTheLibraryIsLookedAtAgain)
{
    Limited limited(FolderEvents::Outcome::Failed);
    RootFolder root;
    root.pathId = 7;
    root.path = "/library";
    limited.watcher.setRoots({root});
    QSignalSpy changed(&limited.watcher, &LibraryWatcher::rootChanged);
    const auto scan = [&] {
        for (const char *name : {"/library", "/library/a", "/library/b"})
            limited.watcher.watch(name);
    };
    QObject::connect(&limited.watcher, &LibraryWatcher::rootChanged, &limited.watcher, scan);
    scan();
    ASSERT_EVENTUALLY(changed.size() >= 3);
    EXPECT_EQ(linesWith("[watch] a folder cannot be watched"), 1);
    EXPECT_EQ(linesWith("periodically instead: /library ("), 1);
}

TEST(LibraryWatcherLimitTest, AFolderThatHasGoneMeanwhileIsNoReasonToLookAgain)
{
    Limited limited(FolderEvents::Outcome::Gone);
    RootFolder root;
    root.pathId = 7;
    root.path = "/library";
    limited.watcher.setRoots({root});
    QSignalSpy changed(&limited.watcher, &LibraryWatcher::rootChanged);
    limited.watcher.watch("/library/gone");
    EXPECT_FALSE(changed.wait(Silence));
    EXPECT_EQ(linesWith("[watch]"), 0);
}

TEST(LibraryWatcherLimitTest, ErrorsOfTheSystemMeanWhatTheyShould)
{
    const struct {
        int error;
        FolderEvents::Outcome outcome;
    } rows[] = {
        {ENOSPC, FolderEvents::Outcome::LimitReached}, {ENOMEM, FolderEvents::Outcome::LimitReached},
        {ENOENT, FolderEvents::Outcome::Gone},         {ENOTDIR, FolderEvents::Outcome::Gone},
        {EACCES, FolderEvents::Outcome::Failed},       {ENAMETOOLONG, FolderEvents::Outcome::Failed},
    };
    for (const auto &row : rows)
        EXPECT_EQ(int(FolderEvents::outcomeOf(row.error)), int(row.outcome)) << row.error;
}

TEST(LibraryWatcherLimitTest, ANewSongInAnUnwatchedFolderIsFoundAllTheSame)
{
    TestLog::expectWarning(QRegularExpression("watches no more folders"));
    Limited limited(FolderEvents::Outcome::LimitReached);
    ScanBench bench;
    bench.scanner.reset();
    bench.scanner = std::make_unique<Scanner>(
        bench.store, bench.store,
        Scanner::Readers{std::make_shared<MusicFolder>(), std::make_shared<VideoFolder>(false),
                         std::make_shared<VideoFolder>(true)},
        bench.reader, [&limited](const QString &folder) { limited.watcher.watch(folder); });
    ServerTasks tasks(bench.store, *bench.scanner, limited.watcher);
    tasks.start();
    bench.sound("A/one.mp3");
    tasks.update(FakeStore::MusicLibrary);
    ASSERT_EVENTUALLY(bench.store.songs().size() == 1);
    EXPECT_EQ(limited.watcher.watchedFolders(), 0);
    bench.sound("A/two.mp3");
    ASSERT_EVENTUALLY(bench.store.songs().size() == 2);
}

} // namespace
