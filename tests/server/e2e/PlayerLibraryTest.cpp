// The player's program and the server that it starts by itself.
#include "LibraryTree.h"
#include "PlayerProcess.h"
#include "ServerProcess.h"

#include "core/ApplicationInfoManager.h"
#include "library/HttpTransport.h"
#include "library/JsonRpc.h"
#include "library/MusicProtocol.h"
#include "library/ProtocolNames.h"
#include "library/ServerProcesses.h"
#include "library/ServerStarter.h"
#include "library/VideoProtocol.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <csignal>

namespace {

constexpr int FewSongs = 2;
constexpr int ManySongs = 1500; // whose scan takes far longer than a question about it
constexpr int ScanBeginsMs = 60000;

QString counts(int songs)
{
    return QStringLiteral("[library] 2 movies, 0 collections, 1 shows (2 episodes), 1 videos, 0 adult, "
                          "%1 songs, 1 albums, 1 artists, 1 genres, 0 playlists")
        .arg(songs);
}

class PlayerLibraryTest : public testing::Test {
protected:
    PlayerLibraryTest()
    {
        m_tree.clip("mine/Alpha (2001)/Alpha (2001).mkv");
        m_tree.clip("mine/Beta (2002).mkv");
        m_tree.clip("mine/Show/Season 01/Show S01E01.mkv");
        m_tree.clip("mine/Show/Season 01/Show S01E02.mkv");
        m_tree.clip("mine/Garden.mkv");
        m_tree.sound("mine/Band/1.mp3", {"One", "Band", "First", {}, "Rock", 1999, 1, {}});
        m_tree.sound("mine/Band/2.mp3", {"Two", "Band", "First", {}, "Rock", 1999, 2, {}});
    }

    // Runs until the player has loaded what the server has found.
    void startPlayer()
    {
        ASSERT_TRUE(m_player.start({"--library", m_tree.full("mine")}));
        ASSERT_TRUE(m_player.waitForLog(counts(FewSongs)));
        m_server = m_player.serverId();
        ASSERT_NE(m_server, 0);
    }

    [[nodiscard]] QString serverLog() const
    {
        QFile file(m_player.serverFolder() + "/server.log");
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    // Both libraries hold the folder, and it is being scanned.
    [[nodiscard]] bool isScanning() const
    {
        if (!serverLog().contains("[server] takes requests"))
            return false;
        HttpTransport transport;
        const JsonRpc rpc(transport, m_player.serverPort());
        const MusicProtocol music(rpc);
        const auto folders = music.folders(music.libraryId().value_or(-1));
        const QJsonObject beat = rpc.call(Rpc::Method::Heartbeat, {}, Rpc::Limit::Usual).object();
        return folders && !folders->isEmpty() && beat.value(Rpc::Key::Finished) == QLatin1String("0");
    }

    // The player's server has scanned to the end.
    [[nodiscard]] bool holds(int songs) const
    {
        if (m_player.serverId() == 0)
            return false;
        HttpTransport transport;
        const JsonRpc rpc(transport, m_player.serverPort());
        const MusicProtocol music(rpc);
        const VideoProtocol videos(rpc);
        return music.total(MusicLists::Songs, music.libraryId().value_or(-1)) == songs
               && videos.heartbeat().isScanFinished;
    }

    // What another server finds in the folder that the player's has left.
    static void expectRecordsIn(const QString &folder)
    {
        ServerProcess server(folder);
        ASSERT_TRUE(server.start());
        HttpTransport transport;
        const JsonRpc rpc(transport, server.port());
        const VideoProtocol videos(rpc);
        const MusicProtocol music(rpc);
        LibraryQuery all;
        all.sortMethod = "title";
        all.sortOrder = "ascending";
        EXPECT_EQ(videos.total(VideoLists::row(LibraryRole::Movies), videos.libraryId().value_or(0), all), 2);
        EXPECT_EQ(music.total(MusicLists::Songs, music.libraryId().value_or(0)), 2);
        EXPECT_EQ(server.stop(), 0);
        EXPECT_FALSE(server.log().contains("damaged")) << qPrintable(server.log());
    }

    LibraryTree m_tree;
    PlayerProcess m_player;
    qint64 m_server{0};
};

// A variable of this process, and of those that it starts, for as long as the object lives.
class Variable final {
public:
    Variable(const char *name, const QByteArray &value)
        : m_name(name)
        , m_before(qgetenv(name))
        , m_wasSet(qEnvironmentVariableIsSet(name))
    {
        qputenv(name, value);
    }
    ~Variable() { m_wasSet ? qputenv(m_name, m_before) : qunsetenv(m_name); }
    Variable(const Variable &) = delete;
    Variable &operator=(const Variable &) = delete;

private:
    const char *m_name;
    const QByteArray m_before;
    const bool m_wasSet;
};

} // namespace

TEST_F(PlayerLibraryTest, AStartedPlayerHasTheServerLookAtItsFolderAndCountsWhatItLoads)
{
    ASSERT_NO_FATAL_FAILURE(startPlayer());
    EXPECT_TRUE(m_player.log().contains("[Statistics] UserBehaviour, LibraryMovieCount: less than 10"));
    EXPECT_EQ(m_player.stop(), 0);
    EXPECT_TRUE(PlayerProcess::waitForEnd(m_server)) << "the server outlives its player";
    expectRecordsIn(m_player.serverFolder());
}

TEST_F(PlayerLibraryTest, TheServerOfAPlayerThatIsKilledEndsByItselfAndLeavesItsDatabaseWhole)
{
    ASSERT_NO_FATAL_FAILURE(startPlayer());
    m_player.kill();
    EXPECT_TRUE(PlayerProcess::waitForEnd(m_server)) << "the server outlives its player";
    QFile log(m_player.serverFolder() + "/server.log");
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    EXPECT_TRUE(log.readAll().contains("[server] has ended")) << "it ended, but not by itself";
    log.close();
    expectRecordsIn(m_player.serverFolder());
}

TEST_F(PlayerLibraryTest, AWindowThatIsClosedDuringAScanTakesTheServerWithItAndTheNextStartGetsAFreshOne)
{
    for (int i = 0; i < ManySongs; ++i)
        m_tree.sound(QStringLiteral("mine/Band/%1/%2.mp3").arg(i % 20).arg(i),
                     {QStringLiteral("Song %1").arg(i), "Band", "First", {}, "Rock", 1999, i + 3, {}});
    ASSERT_TRUE(m_player.start({"--library", m_tree.full("mine")}));
    ASSERT_TRUE(QTest::qWaitFor([this] { return isScanning(); }, ScanBeginsMs));
    const qint64 first = m_player.serverId();
    ASSERT_NE(first, 0);
    // The scan cannot come to its end before the window is closed, nor the server end in any other way than
    // by force.
    ASSERT_EQ(::kill(pid_t(first), SIGSTOP), 0);
    EXPECT_EQ(m_player.stop(), 0);
    EXPECT_TRUE(PlayerProcess::waitForEnd(first)) << "the server outlives its player";
    EXPECT_EQ(m_player.serverId(), 0);
    EXPECT_LT(serverLog().count(": scanned, "), 2) << "the scan was over before the window was closed";

    ASSERT_TRUE(m_player.start({"--library", m_tree.full("mine")}));
    EXPECT_TRUE(QTest::qWaitFor([this] { return holds(FewSongs + ManySongs); }, ScanBeginsMs));
    const qint64 second = m_player.serverId();
    EXPECT_NE(second, 0);
    EXPECT_NE(second, first);
    EXPECT_FALSE(serverLog().contains("damaged")) << qPrintable(serverLog());
    EXPECT_EQ(m_player.stop(), 0);
    EXPECT_TRUE(PlayerProcess::waitForEnd(second)) << "the server outlives its player";
}

// The scan at the start is over before anybody has asked for its progress.
TEST_F(PlayerLibraryTest, ASongThatCameWhileThePlayerWasAwayIsLoadedAfterTheNextStart)
{
    ASSERT_NO_FATAL_FAILURE(startPlayer());
    EXPECT_EQ(m_player.stop(), 0);
    EXPECT_TRUE(PlayerProcess::waitForEnd(m_server));
    m_tree.sound("mine/Band/3.mp3", {"Three", "Band", "First", {}, "Rock", 1999, 3, {}});
    ASSERT_TRUE(m_player.start({"--library", m_tree.full("mine")}));
    EXPECT_TRUE(m_player.waitForLog(counts(FewSongs + 1)));
    EXPECT_EQ(m_player.stop(), 0);
}

TEST(ServerStartTest, AServerThatIsGivenNoFolderTakesThatOfThePlayer)
{
    const QTemporaryDir home;
    const QString folder =
        home.filePath(QStringLiteral("data/%1/mediaServer").arg(ApplicationInfoManager::productName()));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", home.path());
    environment.insert("XDG_DATA_HOME", home.filePath("data"));
    ServerProcess server(environment, folder);
    ASSERT_TRUE(server.start());
    EXPECT_TRUE(QFile::exists(folder + "/library.db"));
    EXPECT_EQ(server.stop(), 0);
    EXPECT_TRUE(server.log().contains("[server] has ended"));
}

TEST(ServerStartTest, AServerThatIsStartedByTheSystemStaysAndAnswers)
{
    const QTemporaryDir home;
    const QTemporaryDir programs(QFileInfo(QStringLiteral(QUORIN_SERVER)).path() + "/server-XXXXXX");
    const QString program = PlayerProcess::linked(QStringLiteral(QUORIN_SERVER), programs);
    const int port = ServerProcess::freePort();
    const Variable data("XDG_DATA_HOME", home.path().toUtf8());
    const Variable number("QUORIN_LIBRARY_PORT", QByteArray::number(port));
    ServerStarter starter;
    ASSERT_TRUE(starter.startPlain(program));
    HttpTransport transport;
    const JsonRpc rpc(transport, port);
    EXPECT_TRUE(QTest::qWaitFor([&] { return VideoProtocol(rpc).libraryId().has_value(); }, 30000));
    EXPECT_TRUE(
        QFile::exists(home.filePath(ApplicationInfoManager::productName() + "/mediaServer/library.db")));
    // Whoever started it is gone since, and it is there to be ended.
    EXPECT_EQ(ServerProcesses::killAll(program), 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return ServerProcesses::killAll(program) == 0; }, 30000));
}
