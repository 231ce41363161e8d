#include "ScanBench.h"

#include "scan/LibraryWatcher.h"
#include "scan/ServerTasks.h"
#include "support/Eventually.h"
#include "support/SampleClips.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

constexpr LibraryWatcher::Intervals Quick{60, 2000, 60 * 1000};

class LibraryWatcherTest : public testing::Test {
protected:
    LibraryWatcherTest()
    {
        m_root.pathId = 7;
        m_root.path = m_tree.path();
        m_watcher.setRoots({m_root});
        m_watcher.watch(m_tree.path());
    }
    QString path(const QString &name) const { return m_tree.path() + "/" + name; }

    QTemporaryDir m_tree;
    RootFolder m_root;
    LibraryWatcher m_watcher{Quick};
    QSignalSpy m_changed{&m_watcher, &LibraryWatcher::rootChanged};
};

TEST_F(LibraryWatcherTest, TellsManyChangesOnce)
{
    for (int i = 0; i < 50; ++i)
        SampleClips::write(path(QString::number(i)), "x");
    ASSERT_TRUE(m_changed.wait());
    EXPECT_EQ(m_changed.at(0).at(0).toInt(), 7);
    EXPECT_FALSE(m_changed.wait(3 * Quick.quietMs));
    EXPECT_EQ(m_changed.size(), 1);
}

TEST_F(LibraryWatcherTest, TellsTheEndOfAWritingAndARemoval)
{
    QFile file(path("growing"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(m_changed.wait());
    file.write("content");
    file.close();
    ASSERT_TRUE(m_changed.wait());
    ASSERT_TRUE(file.remove());
    EXPECT_TRUE(m_changed.wait());
}

TEST_F(LibraryWatcherTest, TellsWhileChangesGoOn)
{
    LibraryWatcher watcher(LibraryWatcher::Intervals{200, 400, 60 * 1000});
    watcher.setRoots({m_root});
    watcher.watch(m_tree.path());
    QSignalSpy changed(&watcher, &LibraryWatcher::rootChanged);
    QTimer busy;
    int written = 0;
    QObject::connect(&busy, &QTimer::timeout,
                     [&] { SampleClips::write(path("busy"), QByteArray::number(++written)); });
    busy.start(40);
    EXPECT_TRUE(changed.wait());
}

TEST_F(LibraryWatcherTest, IsSilentAboutAFolderThatLeftTheLibrary)
{
    m_watcher.setRoots({});
    EXPECT_EQ(m_watcher.watchedFolders(), 0);
    SampleClips::write(path("x"), "x");
    EXPECT_FALSE(m_changed.wait(3 * Quick.quietMs));
}

TEST_F(LibraryWatcherTest, WatchesAFolderOnceAndForgetsItWithItsRemoval)
{
    ASSERT_TRUE(QDir().mkpath(path("a")));
    m_watcher.watch(path("a"));
    m_watcher.watch(path("a"));
    EXPECT_EQ(m_watcher.watchedFolders(), 2);
    ASSERT_TRUE(QDir().rmdir(path("a")));
    ASSERT_TRUE(m_changed.wait());
    EXPECT_EQ(m_watcher.watchedFolders(), 1);
}

TEST_F(LibraryWatcherTest, LooksAgainForAFolderThatIsOffline)
{
    LibraryWatcher watcher(LibraryWatcher::Intervals{10, 100, 50});
    watcher.setRoots({m_root});
    QSignalSpy changed(&watcher, &LibraryWatcher::rootChanged);
    watcher.setOnline(7, false);
    ASSERT_TRUE(changed.wait());
    watcher.setOnline(7, true);
    // One that was due already may still come.
    (void)changed.wait(150);
    EXPECT_FALSE(changed.wait(300));
}

class ServerTasksTest : public testing::Test {
protected:
    ServerTasksTest()
    {
        m_metadata.round = [this] {
            ++m_rounds;
            return m_roundFinds.load();
        };
        m_metadata.cancel = [this] { ++m_cancels; };
        m_metadata.setLanguage = [this](const QString &language) { m_language = language; };
        remake();
    }

    void remake()
    {
        m_tasks.reset();
        m_bench.scanner.reset();
        const auto video =
            std::make_shared<VideoFolder>([](const WalkedFolder &) { return IdentifiedFolder(); });
        m_bench.scanner = std::make_unique<Scanner>(
            m_bench.store, m_bench.store,
            Scanner::Readers{std::make_shared<MusicFolder>(), std::make_shared<VideoFolder>(false),
                             std::make_shared<VideoFolder>(true)},
            m_bench.reader, [this](const QString &folder) { m_watcher.watch(folder); });
        m_tasks = std::make_unique<ServerTasks>(m_bench.store, *m_bench.scanner, m_watcher, m_metadata);
        m_tasks->start();
    }

    LibraryWatcher m_watcher{Quick};
    ScanBench m_bench;
    FakeStore &m_store{m_bench.store};
    std::atomic<int> m_rounds{0};
    std::atomic<int> m_cancels{0};
    std::atomic<bool> m_roundFinds{false};
    QString m_language;
    ServerTasks::Metadata m_metadata;
    std::unique_ptr<ServerTasks> m_tasks;
};

TEST_F(ServerTasksTest, UpdatesOneLibraryAndAsksTheProviderThen)
{
    m_bench.sound("A/stuck.mp3");
    m_tasks->update(FakeStore::MusicLibrary);
    ASSERT_EVENTUALLY(m_bench.reader->held() == 1);
    EXPECT_FALSE(m_tasks->isScanFinished());
    m_bench.reader->release();
    ASSERT_EVENTUALLY(m_tasks->isScanFinished() && m_rounds == 1);
    EXPECT_EQ(m_store.songs().size(), 1);
    EXPECT_EQ(m_store.finishedScans(), 1);
    EXPECT_FALSE(m_tasks->takeScraperFinished());
}

TEST_F(ServerTasksTest, TellsOnceThatTheProviderDidSomething)
{
    m_roundFinds = true;
    m_tasks->updateLanguage("de");
    EXPECT_EQ(m_language, "de");
    ASSERT_EVENTUALLY(m_tasks->takeScraperFinished());
    EXPECT_FALSE(m_tasks->takeScraperFinished());
}

TEST_F(ServerTasksTest, RebuildsBothLibraries)
{
    m_bench.sound("A/one.mp3");
    m_tasks->rebuild();
    ASSERT_EVENTUALLY(m_tasks->isScanFinished() && m_store.finishedScans() == 2);
    EXPECT_EQ(m_store.clears(), 2);
    EXPECT_EQ(m_cancels, 1);
}

TEST_F(ServerTasksTest, ScansANewFolderAlone)
{
    QTemporaryDir other;
    SampleClips::copy("mp3", other.filePath("B/new.mp3"));
    m_bench.sound("A/one.mp3");
    m_store.addFolder(FakeStore::MusicLibrary, other.path(), {});
    m_tasks->foldersChanged();
    ASSERT_EVENTUALLY(m_tasks->isScanFinished() && m_store.finishedScans() == 1);
    ASSERT_EQ(m_store.songs().size(), 1);
    EXPECT_EQ(m_store.songs().first().path, other.filePath("B/new.mp3"));
}

TEST_F(ServerTasksTest, ScansAgainWhatChangesOnDisk)
{
    m_bench.sound("A/one.mp3");
    m_tasks->update(FakeStore::MusicLibrary);
    ASSERT_EVENTUALLY(m_store.songs().size() == 1);
    m_bench.sound("A/two.mp3");
    ASSERT_EVENTUALLY(m_store.songs().size() == 2);
    m_bench.sound("New/three.mp3");
    ASSERT_EVENTUALLY(m_store.songs().size() == 3);
    m_bench.sound("New/four.mp3");
    ASSERT_EVENTUALLY(m_store.songs().size() == 4);
}

TEST_F(ServerTasksTest, EndsWhileTheProviderIsAsked)
{
    std::mutex mutex;
    std::condition_variable changed;
    bool runs = false;
    bool cancelled = false;
    m_metadata.round = [&] {
        std::unique_lock lock(mutex);
        runs = true;
        changed.notify_all();
        changed.wait(lock, [&] { return cancelled; });
        return true;
    };
    m_metadata.cancel = [&] {
        std::lock_guard lock(mutex);
        cancelled = true;
        changed.notify_all();
    };
    remake();
    m_tasks->updateLanguage("fr");
    {
        std::unique_lock lock(mutex);
        changed.wait(lock, [&] { return runs; });
    }
    m_tasks.reset();
    EXPECT_TRUE(cancelled);
}

} // namespace
