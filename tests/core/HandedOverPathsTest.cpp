#include "core/HandedOverPaths.h"

#include "support/TestLog.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>

namespace {

constexpr int kPatienceMs = 10000;

// Paths that begin with "/gone" do not answer until they are let go; "/none" is no file, all else is.
class Drives final {
public:
    bool test(const QString &path)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        if (path.startsWith("/gone"))
            m_changed.wait(lock, [&] { return m_released[path]; });
        return !path.startsWith("/none");
    }
    void release(const QString &path)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_released[path] = true;
        m_changed.notify_all();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::map<QString, bool> m_released;
};

class HandedOverPathsTest : public testing::Test {
protected:
    QStringList told() const
    {
        QStringList paths;
        for (const QList<QVariant> &arguments : *m_spy)
            paths << arguments.at(0).toString();
        return paths;
    }
    bool waitFor(const QStringList &paths)
    {
        return QTest::qWaitFor([&] { return told() == paths; }, kPatienceMs);
    }

    std::shared_ptr<Drives> m_drives{std::make_shared<Drives>()};
    std::unique_ptr<HandedOverPaths> m_paths{std::make_unique<HandedOverPaths>(
        nullptr, [drives = m_drives](const QString &path) { return drives->test(path); })};
    std::unique_ptr<QSignalSpy> m_spy{
        std::make_unique<QSignalSpy>(m_paths.get(), &HandedOverPaths::fileFound)};
};

TEST_F(HandedOverPathsTest, FilesAreToldInTheirOrderAndTheRestIsNot)
{
    for (const char *path : {"/a", "/none", "/b", "/c"})
        m_paths->add(path);
    EXPECT_TRUE(waitFor({"/a", "/b", "/c"})) << qPrintable(told().join(' '));
}

TEST_F(HandedOverPathsTest, APathThatAnswersWithinTheTimeKeepsItsPlace)
{
    m_paths->add("/gone");
    m_paths->add("/b");
    m_drives->release("/gone");
    EXPECT_TRUE(waitFor({"/gone", "/b"})) << qPrintable(told().join(' '));
}

TEST_F(HandedOverPathsTest, APathThatDoesNotAnswerDoesNotKeepLaterOnesWaiting)
{
    m_paths->add("/gone");
    m_paths->add("/b");
    EXPECT_TRUE(waitFor({"/b"})) << qPrintable(told().join(' '));
    for (int i = 0; i < HandedOverPaths::MaxThreads - 2; ++i)
        m_paths->add(QString("/gone/%1").arg(i));
    m_paths->add("/c");
    EXPECT_TRUE(waitFor({"/b", "/c"})) << qPrintable(told().join(' '));
    m_drives->release("/gone");
    for (int i = 0; i < HandedOverPaths::MaxThreads - 2; ++i)
        m_drives->release(QString("/gone/%1").arg(i));
}

TEST_F(HandedOverPathsTest, APathThatAnswersLateIsTold)
{
    m_paths->add("/gone");
    m_paths->add("/none");
    EXPECT_FALSE(m_spy->wait(2 * HandedOverPaths::PatienceMs));
    m_drives->release("/gone");
    EXPECT_TRUE(waitFor({"/gone"}));
}

TEST_F(HandedOverPathsTest, AFileThatAnswersAfterANewerOneIsNotPlayedOverIt)
{
    m_paths->add("/gone");
    m_paths->add("/b");
    ASSERT_TRUE(waitFor({"/b"}));
    m_drives->release("/gone");
    EXPECT_TRUE(QTest::qWaitFor(
        [] {
            return TestLog::infoLines().contains(
                "[Process] not played, a newer file has come meanwhile: /gone");
        },
        kPatienceMs));
    EXPECT_EQ(told(), QStringList("/b"));
}

TEST_F(HandedOverPathsTest, MorePathsThanThreadsWaitForOneThatAnswers)
{
    for (int i = 0; i < HandedOverPaths::MaxThreads; ++i)
        m_paths->add(QString("/gone/%1").arg(i));
    m_paths->add("/b");
    for (int i = 0; i < HandedOverPaths::MaxThreads; ++i)
        m_drives->release(QString("/gone/%1").arg(i));
    EXPECT_TRUE(QTest::qWaitFor([this] { return told().contains("/b"); }, kPatienceMs));
    EXPECT_EQ(told().last(), "/b");
}

TEST_F(HandedOverPathsTest, TheEndDoesNotWaitForAPathThatDoesNotAnswer)
{
    for (int i = 0; i < 3; ++i)
        m_paths->add(QString("/gone/%1").arg(i));
    m_paths->add("/b");
    ASSERT_TRUE(waitFor({"/b"}));
    QElapsedTimer clock;
    clock.start();
    m_paths.reset();
    EXPECT_LT(clock.elapsed(), 2 * HandedOverPaths::StopMs);
    for (int i = 0; i < 3; ++i)
        m_drives->release(QString("/gone/%1").arg(i));
}

TEST_F(HandedOverPathsTest, WhoHearsOfAFileMayEndIt)
{
    QObject::connect(m_paths.get(), &HandedOverPaths::fileFound, [this] { m_paths.reset(); });
    m_paths->add("/a");
    m_paths->add("/b");
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_paths; }, kPatienceMs));
}

TEST_F(HandedOverPathsTest, OnlyFilesAreFiles)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("a.mkv"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_TRUE(HandedOverPaths::isFile(file.fileName()));
    EXPECT_FALSE(HandedOverPaths::isFile(folder.path()));
    EXPECT_FALSE(HandedOverPaths::isFile(folder.filePath("b.mkv")));
}

} // namespace
