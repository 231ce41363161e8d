#include "engine/DiscBackups.h"
#include "engine/EngineLog.h"

#include "MediaClips.h"
#include "support/FileSizeLimit_linux.h"

#include <QDir>
#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <condition_variable>
#include <cstring>
#include <functional>
#include <mutex>
#include <set>
#include <thread>

namespace {

constexpr int SectorSize = 2048;
constexpr int WaitMs = 20000;

// Waits for a state that an engine thread brings about.
bool waitUntil(const std::function<bool()> &done)
{
    QElapsedTimer timer;
    timer.start();
    while (!done()) {
        if (timer.elapsed() > WaitMs)
            return false;
        std::this_thread::yield();
    }
    return true;
}

// A disc in memory, with sectors that are bad for some tries and a place where it waits.
class ScriptedDisc final : public DiscBackup::Source {
public:
    struct Script {
        QByteArray bytes;
        std::map<int, int> badTries; // sector to tries that fail
        int waitAtSector = -1;

        std::mutex mutex;
        std::condition_variable changed;
        bool waiting = false;
        bool released = false;
    };

    explicit ScriptedDisc(std::shared_ptr<Script> script)
        : m_script(std::move(script))
    {
    }
    std::int64_t size() const override { return m_script->bytes.size(); }
    std::int64_t readAt(std::int64_t offset, void *buffer, std::size_t bytes) override
    {
        const int first = int(offset / SectorSize);
        const int last = int((offset + std::int64_t(bytes) - 1) / SectorSize);
        for (int sector = first; sector <= last; ++sector) {
            if (sector == m_script->waitAtSector)
                wait();
            const auto bad = m_script->badTries.find(sector);
            if (bad != m_script->badTries.end() && bad->second-- > 0)
                return -1;
        }
        const QByteArray part = m_script->bytes.mid(int(offset), int(bytes));
        std::memcpy(buffer, part.constData(), std::size_t(part.size()));
        return part.size();
    }

private:
    void wait()
    {
        std::unique_lock<std::mutex> lock(m_script->mutex);
        m_script->waiting = true;
        m_script->changed.notify_all();
        m_script->changed.wait(lock, [this] { return m_script->released; });
    }

    std::shared_ptr<Script> m_script;
};

std::shared_ptr<ScriptedDisc::Script> script(int sectors)
{
    auto result = std::make_shared<ScriptedDisc::Script>();
    for (int i = 0; i < sectors; ++i)
        result->bytes += QByteArray(SectorSize, char(i * 7 + 1));
    return result;
}

class DiscBackupTest : public testing::Test {
protected:
    QString target(const char *name = "copy.iso") const
    {
        return m_folder.filePath(QString::fromLatin1(name));
    }
    static QString draft(const char *name = "copy.iso")
    {
        return QString::fromStdString(BackupFile::draftOf(name));
    }
    QStringList files() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden); }
    std::unique_ptr<DiscBackup> start(const std::shared_ptr<ScriptedDisc::Script> &disc, bool replace = false)
    {
        return DiscBackup::start(std::make_unique<ScriptedDisc>(disc), target().toStdString(), replace);
    }

    QTemporaryDir m_folder;
    DriveTable m_drives;
};

TEST_F(DiscBackupTest, CopiesAnImageByteForByte)
{
    m_drives.bind('V', TestDiscs::dvdImage().toStdString());
    DiscBackups backups(m_drives);
    EXPECT_EQ(backups.progress("V"), -1.0);
    ASSERT_TRUE(backups.start("V", target().toStdString(), false));
    ASSERT_TRUE(waitUntil([&] { return backups.isFinished("V"); }));
    EXPECT_EQ(backups.progress("V:"), 1.0);
    EXPECT_FALSE(backups.isFailed("V"));
    EXPECT_EQ(MediaClips::contentsOf(target()), MediaClips::contentsOf(TestDiscs::dvdImage()));
    EXPECT_EQ(files(), QStringList("copy.iso"));
    backups.stop("V");
    EXPECT_EQ(backups.progress("V"), -1.0);
    EXPECT_FALSE(backups.isFinished("V"));
    EXPECT_TRUE(QFile::exists(target())) << "a whole image stays";
}

TEST_F(DiscBackupTest, SourcesThatAreNoDiscAreRefused)
{
    DiscBackups backups(m_drives);
    for (const std::string &source :
         {MediaClips::pattern(), std::string("/nowhere"), std::string("Q"), std::string(),
          TestDiscs::dvdFolder().toStdString(), m_folder.path().toStdString(), std::string("/dev/zero")})
        EXPECT_FALSE(backups.start(source, target().toStdString(), false)) << source;
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(DiscBackupTest, TargetsThatCannotBeWrittenAreRefused)
{
    DiscBackups backups(m_drives);
    const std::string disc = TestDiscs::dvdImage().toStdString();
    EXPECT_FALSE(backups.start(disc, "/nowhere/copy.iso", false));
    EXPECT_FALSE(backups.start(disc, "", false));
    EXPECT_FALSE(backups.start(disc, m_folder.path().toStdString(), true)) << "a folder is in the way";
}

TEST_F(DiscBackupTest, AnExistingTargetIsReplacedOnlyOnDemand)
{
    ASSERT_TRUE(MediaClips::writeFile(target(), "precious"));
    DiscBackups backups(m_drives);
    const std::string disc = TestDiscs::bluRayImage().toStdString();
    EXPECT_FALSE(backups.start(disc, target().toStdString(), false));
    EXPECT_EQ(MediaClips::contentsOf(target()), QByteArray("precious"));
    EXPECT_TRUE(backups.start(disc, target().toStdString(), true));
    ASSERT_TRUE(waitUntil([&] { return backups.isFinished(disc); }));
    EXPECT_EQ(MediaClips::contentsOf(target()), MediaClips::contentsOf(TestDiscs::bluRayImage()));
}

TEST_F(DiscBackupTest, ATargetThatAppearsMeanwhileIsNotOverwritten)
{
    const auto disc = script(200);
    disc->waitAtSector = 150;
    const auto backup = start(disc);
    ASSERT_TRUE(backup);
    {
        std::unique_lock<std::mutex> lock(disc->mutex);
        disc->changed.wait(lock, [&] { return disc->waiting; });
        ASSERT_TRUE(MediaClips::writeFile(target(), "precious"));
        disc->released = true;
    }
    disc->changed.notify_all();
    ASSERT_TRUE(waitUntil([&] { return backup->isFailed(); }));
    EXPECT_EQ(files(), QStringList("copy.iso"));
    EXPECT_EQ(MediaClips::contentsOf(target()), QByteArray("precious"));
}

TEST_F(DiscBackupTest, ProgressGrowsAndTheNameAppearsAtTheEnd)
{
    const auto disc = script(256);
    disc->waitAtSector = 128;
    const auto backup = start(disc);
    ASSERT_TRUE(backup);
    {
        std::unique_lock<std::mutex> lock(disc->mutex);
        disc->changed.wait(lock, [&] { return disc->waiting; });
        EXPECT_DOUBLE_EQ(backup->progress(), 0.5);
        EXPECT_TRUE(backup->isRunning());
        EXPECT_FALSE(backup->isFinished());
        EXPECT_EQ(files(), QStringList(draft()));
        disc->released = true;
    }
    disc->changed.notify_all();
    ASSERT_TRUE(waitUntil([&] { return backup->isFinished(); }));
    EXPECT_EQ(backup->progress(), 1.0);
    EXPECT_EQ(MediaClips::contentsOf(target()), disc->bytes);
}

TEST_F(DiscBackupTest, StoppingLeavesNothing)
{
    const auto disc = script(256);
    disc->waitAtSector = 128;
    auto backup = start(disc);
    ASSERT_TRUE(backup);
    {
        std::unique_lock<std::mutex> lock(disc->mutex);
        disc->changed.wait(lock, [&] { return disc->waiting; });
        EXPECT_EQ(files(), QStringList(draft()));
    }
    std::thread stopper([&] { backup.reset(); });
    {
        const std::lock_guard<std::mutex> lock(disc->mutex);
        disc->released = true;
    }
    disc->changed.notify_all();
    stopper.join();
    // The stop may have come just behind the last sector.
    EXPECT_FALSE(QFile::exists(target(qPrintable(draft()))));
    EXPECT_TRUE(files().isEmpty() || MediaClips::contentsOf(target()) == disc->bytes);
}

TEST_F(DiscBackupTest, ASectorThatCanBeReadAtALaterTryIsCopied)
{
    const auto disc = script(100);
    disc->badTries = {{0, 2}, {70, 3}, {99, 1}};
    const auto backup = start(disc);
    ASSERT_TRUE(waitUntil([&] { return !backup->isRunning(); }));
    EXPECT_TRUE(backup->isFinished());
    EXPECT_EQ(MediaClips::contentsOf(target()), disc->bytes);
}

TEST_F(DiscBackupTest, ASectorThatCannotBeReadEndsTheBackupWithoutAFile)
{
    const auto disc = script(100);
    disc->badTries = {{70, 1000}};
    const auto backup = start(disc);
    ASSERT_TRUE(waitUntil([&] { return !backup->isRunning(); }));
    EXPECT_TRUE(backup->isFailed());
    EXPECT_FALSE(backup->isFinished());
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(DiscBackupTest, AFullDiskEndsTheBackupWithoutAFile)
{
    const auto backup = [this] {
        const FileSizeLimit limit(300 * 1024);
        auto started = start(script(1000));
        EXPECT_TRUE(waitUntil([&] { return !started->isRunning(); }));
        return started;
    }();
    EXPECT_TRUE(backup->isFailed());
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(DiscBackupTest, AnImageWhoseSizeIsNoWholeSectorIsCopiedWhole)
{
    const auto disc = script(70);
    disc->bytes += "tail";
    const auto backup = start(disc);
    ASSERT_TRUE(waitUntil([&] { return backup->isFinished(); }));
    EXPECT_EQ(MediaClips::contentsOf(target()), disc->bytes);
}

TEST_F(DiscBackupTest, WhatAKilledRunLeftIsReplaced)
{
    ASSERT_TRUE(MediaClips::writeFile(target(qPrintable(draft())), "old"));
    const auto disc = script(3);
    const auto backup = start(disc);
    ASSERT_TRUE(backup);
    ASSERT_TRUE(waitUntil([&] { return backup->isFinished(); }));
    EXPECT_EQ(files(), QStringList("copy.iso"));
}

TEST_F(DiscBackupTest, AFileOfTheUsersThatLooksLikeADraftIsLeftAlone)
{
    const QStringList names{"copy.iso.part", "copy.iso.tmp", "copy.iso~"};
    for (const QString &name : names)
        ASSERT_TRUE(MediaClips::writeFile(target(qPrintable(name)), "precious"));
    const auto backup = start(script(3));
    ASSERT_TRUE(backup);
    ASSERT_TRUE(waitUntil([&] { return backup->isFinished(); }));
    for (const QString &name : names)
        EXPECT_EQ(MediaClips::contentsOf(target(qPrintable(name))), "precious") << qPrintable(name);
}

TEST_F(DiscBackupTest, WhatIsNoFileUnderADraftsNameIsNoDraft)
{
    const QString folder = target(qPrintable(draft()));
    ASSERT_TRUE(QDir().mkpath(folder));
    EXPECT_FALSE(start(script(3)));
    EXPECT_TRUE(QDir(folder).exists());
    ASSERT_TRUE(QDir().rmdir(folder));
    ASSERT_TRUE(MediaClips::writeFile(target("precious"), "precious"));
    ASSERT_TRUE(QFile::link(target("precious"), folder));
    EXPECT_FALSE(start(script(3)));
    EXPECT_EQ(MediaClips::contentsOf(target("precious")), "precious");
}

TEST_F(DiscBackupTest, ASecondBackupIntoTheSameTargetIsRefusedAndTheFirstIsWhole)
{
    const auto disc = script(256);
    disc->waitAtSector = 128;
    const auto backup = start(disc, true);
    ASSERT_TRUE(backup);
    {
        std::unique_lock<std::mutex> lock(disc->mutex);
        disc->changed.wait(lock, [&] { return disc->waiting; });
        EXPECT_FALSE(start(script(3), true));
        EXPECT_EQ(files(), QStringList(draft()));
        disc->released = true;
    }
    disc->changed.notify_all();
    ASSERT_TRUE(waitUntil([&] { return backup->isFinished(); }));
    EXPECT_EQ(MediaClips::contentsOf(target()), disc->bytes);
    const auto next = start(script(3), true);
    ASSERT_TRUE(next) << "the target is free again";
}

TEST_F(DiscBackupTest, TwoDrivesDoNotShareATargetUnderAnyOfItsNames)
{
    const QString disc = target("large.iso");
    ASSERT_TRUE(QFile::copy(TestDiscs::dvdImage(), disc));
    QFile file(disc);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.resize(4LL << 30));
    const QString link = m_folder.path() + "-link";
    ASSERT_TRUE(QFile::link(m_folder.path(), link));
    m_drives.bind('V', disc.toStdString());
    m_drives.bind('W', TestDiscs::dvdImage().toStdString());
    DiscBackups backups(m_drives);
    ASSERT_TRUE(backups.start("V", target().toStdString(), true));
    for (const QString &name : {target(), m_folder.path() + "/./copy.iso", QString(link + "/copy.iso")})
        EXPECT_FALSE(backups.start("W", name.toStdString(), true)) << qPrintable(name);
    EXPECT_EQ(backups.progress("W"), -1.0);
    EXPECT_TRUE(QFile::exists(target(qPrintable(draft()))));
    backups.stop("V");
    EXPECT_TRUE(backups.start("W", target().toStdString(), true));
    EXPECT_TRUE(QFile::remove(link));
}

TEST_F(DiscBackupTest, ADiscFolderIsRefusedAndTheLogTellsSoOnce)
{
    const QTemporaryDir logs;
    ASSERT_TRUE(EngineLog::instance().open(logs.path().toStdString()));
    m_drives.bind('V', TestDiscs::dvdFolder().toStdString());
    DiscBackups backups(m_drives);
    for (int i = 0; i < 3; ++i)
        EXPECT_FALSE(backups.start("V", target().toStdString(), false));
    EngineLog::instance().close();
    const QByteArray log = MediaClips::contentsOf(logs.filePath(EngineLog::FileName));
    EXPECT_EQ(log.count("a backup of a disc folder cannot be made"), 1) << log.constData();
}

TEST_F(DiscBackupTest, ADriveTakesOneBackupAtATimeUnderAnyOfItsNames)
{
    // Large enough to be running still when the next one is asked for: a sparse file costs no space.
    const QString disc = target("large.iso");
    ASSERT_TRUE(QFile::copy(TestDiscs::dvdImage(), disc));
    QFile file(disc);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.resize(4LL << 30));
    m_drives.bind('V', disc.toStdString());
    DiscBackups backups(m_drives);
    ASSERT_TRUE(backups.start("V", target("a.iso").toStdString(), false));
    EXPECT_FALSE(backups.start("V:", target("b.iso").toStdString(), false));
    EXPECT_FALSE(backups.start(disc.toStdString(), target("b.iso").toStdString(), false));
    EXPECT_FALSE(QFile::exists(target(qPrintable(draft("b.iso")))));
    EXPECT_GE(backups.progress("v"), 0.0);
    backups.stop(disc.toStdString());
    EXPECT_EQ(backups.progress("V"), -1.0);
    EXPECT_EQ(files(), QStringList("large.iso"));
}

TEST_F(DiscBackupTest, UnknownDrivesAreIgnored)
{
    DiscBackups backups(m_drives);
    backups.stop("V");
    backups.stop("");
    EXPECT_EQ(backups.progress("V"), -1.0);
    EXPECT_FALSE(backups.isFinished("V"));
    EXPECT_FALSE(backups.isFailed("V"));
}

} // namespace
