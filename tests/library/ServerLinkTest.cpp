#include "LibraryFixture.h"

#include "support/Eventually.h"
#include "support/TestLog.h"

#include "core/SettingsKeys.h"

#include <QElapsedTimer>

#include <thread>

namespace {

class ServerLinkCase : public LibraryFixture {
protected:
    void makeAndWait()
    {
        makeManager();
        ASSERT_EVENTUALLY(m_log.lines().contains("sig_meidaServerPathLoaded"));
        ASSERT_EVENTUALLY(m_log.lines().contains("sig_updateHeartBeat"));
    }
    [[nodiscard]] QStringList methodsBut(const QString &other) const
    {
        QStringList methods = m_server.methods();
        methods.removeAll(other);
        return methods;
    }
};

constexpr char kStarting[] = R"({"ret":1,"message":"the server is starting or ending"})";
constexpr char kStart[] = "start /program/server /data/mediaServer 30000";

TEST_F(ServerLinkCase, StartAsksForLibrariesFoldersAndCancelsTheProxy)
{
    answerStart();
    makeAndWait();
    ASSERT_EVENTUALLY(m_server.count("Server.CancelProxy") == 1);
    EXPECT_EQ(m_starter.recorded(), QStringList{kStart});
    EXPECT_EQ(methodsBut("Server.Heartbeat"),
              (QStringList{"Server.GetLibraries", "VMusicLibrary.GetLibraries", "Server.GetLibraryDetail",
                           "VMusicLibrary.GetLibraryDetail", "Server.CancelProxy"}));
    EXPECT_EQ(m_server.requests("Server.GetLibraryDetail")[0].params["LibraryId"], VideoId);
    EXPECT_TRUE(m_manager->isServerReady());
    EXPECT_EQ(m_manager->videoPaths(), (LibraryPaths::Map{{1, "/films"}}));
    EXPECT_EQ(m_manager->musicPaths(), (LibraryPaths::Map{{2, "/songs"}}));
}

TEST_F(ServerLinkCase, ServerThatIsSlowToListenIsAskedOnceMoreAfterTwoSeconds)
{
    answerStart();
    m_server.forget("Server.GetLibraries");
    m_server.hold("VMusicLibrary.GetLibraries");
    makeManager();
    ASSERT_TRUE(m_server.waitUntilHeld());
    answerStart();
    m_server.letGo();
    ASSERT_EVENTUALLY(m_manager->isServerReady());
    EXPECT_EQ(m_server.count("Server.GetLibraries"), 2);
    EXPECT_EQ(m_pause.recorded().first(), 2000);
    EXPECT_EQ(m_starter.recorded(), QStringList{kStart});
}

TEST_F(ServerLinkCase, SecondWayOfStartingIsTriedWhenNothingAnswers)
{
    {
        std::lock_guard lock(m_starter.mutex);
        m_starter.startsPlain = true;
        m_starter.onCall = [this](const QString &call) {
            if (call.startsWith("plain"))
                answerStart();
        };
    }
    makeAndWait();
    EXPECT_EQ(m_starter.recorded(), (QStringList{kStart, "plain /program/server"}));
    EXPECT_EQ(m_server.count("Server.GetLibraries"), 3);
    EXPECT_EQ(m_manager->videoPaths(), (LibraryPaths::Map{{1, "/films"}}));
    EXPECT_TRUE(TestLog::infoLines().contains("[MS Path] use normal path: 1"));
}

TEST_F(ServerLinkCase, ServerThatSaysThatItStartsIsAskedUntilItIsThrough)
{
    m_server.answerRaw("Server.GetLibraries", kStarting);
    m_pause.onWait = [this](int count) {
        if (count == 5)
            answerStart();
    };
    makeAndWait();
    EXPECT_EQ(m_server.count("Server.GetLibraries"), 6);
    EXPECT_EQ(m_pause.recorded().mid(0, 5), (QList<int>{2000, 2000, 2000, 2000, 2000}));
    EXPECT_EQ(m_starter.recorded(), QStringList{kStart}) << "another one could not have its folder";
    EXPECT_EQ(m_manager->videoPaths(), (LibraryPaths::Map{{1, "/films"}}));
    EXPECT_EQ(m_manager->musicPaths(), (LibraryPaths::Map{{2, "/songs"}}));
    EXPECT_TRUE(m_manager->isScanFinished());
}

TEST_F(ServerLinkCase, ServerThatEndsWhileItStartsIsStartedTheSecondWay)
{
    m_server.answerRaw("Server.GetLibraries", kStarting);
    m_pause.onWait = [this](int count) {
        std::lock_guard lock(m_starter.mutex);
        m_starter.isRunning = count < 3;
    };
    makeAndWait();
    EXPECT_EQ(m_starter.recorded(), (QStringList{kStart, "plain /program/server"}));
    EXPECT_EQ(m_server.count("Server.GetLibraries"), 5);
}

TEST_F(ServerLinkCase, EndOfTheProgramEndsTheWaitForAServerThatStarts)
{
    m_server.answerRaw("Server.GetLibraries", kStarting);
    makeManager();
    ASSERT_EVENTUALLY(m_server.count("Server.GetLibraries") > 3);
    EXPECT_FALSE(m_manager->isServerReady());
    m_manager.reset();
    EXPECT_EQ(m_starter.recorded().mid(0, 1), QStringList{kStart});
    EXPECT_FALSE(m_starter.recorded().contains("plain /program/server"));
}

TEST_F(ServerLinkCase, MissingServerFileStillEndsTheStartWithEmptyLists)
{
    {
        std::lock_guard lock(m_starter.mutex);
        m_starter.startsProcess = false;
    }
    makeAndWait();
    EXPECT_EQ(m_server.count("Server.GetLibraries"), 2) << "no retry without a process";
    EXPECT_FALSE(m_pause.recorded().contains(2000));
    EXPECT_TRUE(m_manager->isServerReady());
    EXPECT_TRUE(m_manager->videoPaths().isEmpty());
    EXPECT_FALSE(m_manager->isScanFinished());
    EXPECT_EQ(m_server.requests("Server.GetLibraryDetail")[0].params["LibraryId"], -1);
    EXPECT_TRUE(TestLog::infoLines().contains("[MS Path] use normal path: 0"));
}

TEST_F(ServerLinkCase, ProcessThatIsHeldAlreadyEndsTheStartAtOnce)
{
    {
        std::lock_guard lock(m_starter.mutex);
        m_starter.isHeld = true;
    }
    makeManager();
    m_manager.reset();
    EXPECT_TRUE(m_starter.recorded().isEmpty());
    EXPECT_TRUE(m_server.requests().isEmpty());
}

TEST_F(ServerLinkCase, EnabledProxyIsSentAsTexts)
{
    m_settings.setProxyEnable(true);
    m_settings.setProxyType(1);
    m_settings.setProxyHost("proxy");
    m_settings.setProxyPort("8080");
    m_settings.setProxyUserName("me");
    m_settings.setProxyPasswd("secret");
    startManager();
    m_manager->applyProxy();
    EXPECT_EQ(m_server.requests("Server.SetProxy").last().params,
              json("{'ip':'proxy','port':'8080','username':'me','password':'secret'}"));
    EXPECT_EQ(m_server.requests("Server.SetProxy").last().timeoutSeconds, 2);
}

TEST_F(ServerLinkCase, HeartbeatTellsWhetherAScanHasFinished)
{
    struct Row {
        const char *body;
        bool isFinished;
    };
    startManager();
    for (const Row &row : {Row{R"({"ret":0,"result":{"Finished":"0"}})", false},
                           Row{R"({"ret":0,"result":{"Finished":"1"}})", true},
                           Row{R"({"ret":0,"result":{"ScraperFinished":false}})", false},
                           Row{R"({"ret":0,"result":{"Finished":"100"}})", true},
                           Row{R"({"ret":1,"result":{"Finished":"1","ScraperFinished":true}})", false},
                           Row{R"({"ret":0,"result":{"Finished":"1"}})", true}, Row{"", false}}) {
        m_server.answerRaw("Server.Heartbeat", row.body);
        m_log.clear();
        m_pause.tick();
        ASSERT_EVENTUALLY(m_log.lines().contains("sig_updateHeartBeat"));
        EXPECT_EQ(m_manager->isScanFinished(), row.isFinished) << row.body;
    }
    EXPECT_EQ(m_server.count("VMusicLibrary.GetStatisticsData"), 0)
        << "neither without the mark nor with a bad ret";
    EXPECT_EQ(m_server.requests("Server.Heartbeat")[0].timeoutSeconds, 60);
}

TEST_F(ServerLinkCase, FinishedScraperSendsTheServersCountsOnceARun)
{
    startManager();
    m_server.answer("Server.Heartbeat", json("{'Finished':'1','ScraperFinished':true}"));
    m_server.answer("VMusicLibrary.GetStatisticsData", [](const QJsonObject &) -> QJsonValue {
        return QString(R"({"movieServer":{"films":12,"scraper":"tmdb"}})");
    });
    for (int i = 0; i < 2; ++i) {
        m_log.clear();
        m_pause.tick();
        ASSERT_EVENTUALLY(m_log.lines().contains("sig_updateHeartBeat"));
    }
    EXPECT_EQ(m_server.count("VMusicLibrary.GetStatisticsData"), 2);
    EXPECT_EQ(statistics(), (QStringList{"movieServer|films|12", "movieServer|scraper|tmdb"}));
}

TEST_F(ServerLinkCase, BrokenCountsOfTheServerAreLogged)
{
    startManager();
    m_server.answer("Server.Heartbeat", json("{'Finished':'1','ScraperFinished':true}"));
    m_server.answer("VMusicLibrary.GetStatisticsData",
                    [](const QJsonObject &) -> QJsonValue { return QString("{broken"); });
    m_pause.tick();
    ASSERT_EVENTUALLY(m_log.lines().contains("sig_updateHeartBeat"));
    EXPECT_TRUE(TestLog::infoLines().contains("[json] movieServer json parse error"));
    EXPECT_TRUE(statistics().isEmpty());
}

TEST(WakeablePause, EndCutsAWaitShort)
{
    WakeablePause pause;
    QElapsedTimer timer;
    timer.start();
    std::thread waiter([&] { EXPECT_FALSE(pause.wait(60000)); });
    pause.end();
    waiter.join();
    EXPECT_FALSE(pause.wait(60000));
    EXPECT_LT(timer.elapsed(), 30000);
    EXPECT_TRUE(pause.isEnding());
}

} // namespace
