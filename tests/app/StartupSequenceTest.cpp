#include "RecordingServices.h"

#include "app/StartupSequence.h"

#include <gtest/gtest.h>

namespace {

const QStringList kBeforeGuard{"installLogHandler", "applyScreenSaver",  "showPointer", "handIdentity",
                               "writeVersion",      "createApplication", "loadLanguage"};
const QStringList kServices{"isFirstCopy",       "writeBanner",   "createWebServices",
                            "createAdvertising", "noteScreenDpi", "registerResources"};
const QStringList kExit{"stopPcmTap",    "stopAdvertising",     "logClosed",
                        "releaseStyles", "releaseSharedMemory", "destroyApplication"};

class StartupSequenceTest : public testing::Test {
protected:
    int run() { return StartupSequence(m_services).run(); }
    void addArguments(const QStringList &arguments) { m_services.arguments += arguments; }

    RecordingServices m_services;
};

TEST_F(StartupSequenceTest, PcModeRunsEachStepInOrderAndShutsDownInOrder)
{
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(m_services.steps,
              kBeforeGuard + kServices
                  + QStringList({"startBackgroundThread", "openPcMode", "logInitCompleted", "runEventLoop"})
                  + kExit);
    EXPECT_FALSE(m_services.start.hasFile);
}

TEST_F(StartupSequenceTest, TvModeTakesTheSameWayToItsOwnWindow)
{
    m_services.mode = 2;
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(m_services.steps,
              kBeforeGuard + kServices
                  + QStringList({"startBackgroundThread", "openTvMode", "logInitCompleted", "runEventLoop"})
                  + kExit);
}

TEST_F(StartupSequenceTest, TheExitCodeIsWhatTheEventLoopReturned)
{
    m_services.loopResult = 7;
    EXPECT_EQ(run(), 7);
}

TEST_F(StartupSequenceTest, AMaintenanceRunEndsWithZeroBeforeTheInstanceCheck)
{
    const struct {
        QStringList arguments;
        const char *step;
    } rows[] = {
        {{"/install"}, "runInstall"},
        {{"/install", "/add_plan"}, "runInstall joining"},
        {{"/uninstall"}, "runUninstall"},
        {{"/full_uninstall"}, "runFullUninstall"},
    };
    for (const auto &row : rows) {
        RecordingServices services;
        services.arguments += row.arguments;
        services.firstCopy = false;
        EXPECT_EQ(StartupSequence(services).run(), 0);
        EXPECT_EQ(services.steps, kBeforeGuard + QStringList({row.step, "destroyApplication"}));
    }
}

TEST_F(StartupSequenceTest, ASecondCopyHandsOverAndEndsWithZeroWithoutABanner)
{
    m_services.firstCopy = false;
    addArguments({"/films/a.mkv"});
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(m_services.steps,
              kBeforeGuard + QStringList({"isFirstCopy", "releaseSharedMemory", "destroyApplication"}));
    EXPECT_EQ(m_services.guardedArguments, QStringList({m_services.arguments.first(), "/films/a.mkv"}));
}

TEST_F(StartupSequenceTest, InstallModeIsGoneBeforeTheInstanceCheck)
{
    addArguments({"--installmode", "/films/a.mkv"});
    run();
    EXPECT_EQ(m_services.guardedArguments.size(), 2);
    EXPECT_EQ(m_services.bannerArguments, m_services.guardedArguments);
    EXPECT_EQ(m_services.start.file, "/films/a.mkv");
}

TEST_F(StartupSequenceTest, KeyAtZeroWithAFileStartsPcModeWithoutAsking)
{
    m_services.mode = 0;
    addArguments({"/films/a.mkv"});
    EXPECT_EQ(run(), 0);
    EXPECT_FALSE(m_services.steps.contains("askMode"));
    EXPECT_TRUE(m_services.steps.contains("openPcMode"));
    EXPECT_TRUE(m_services.start.hasFile);
    EXPECT_EQ(m_services.start.file, "/films/a.mkv");
    EXPECT_LT(m_services.steps.indexOf("registerResources"),
              m_services.steps.indexOf("markStartedFromOutside"));
}

TEST_F(StartupSequenceTest, AFileWithAnUnknownKeyStaysInPcMode)
{
    m_services.mode = 9;
    addArguments({"/films/a.mkv"});
    run();
    EXPECT_TRUE(m_services.steps.contains("openPcMode"));
}

TEST_F(StartupSequenceTest, AFileWithKeyTwoStartsTvMode)
{
    m_services.mode = 2;
    addArguments({"/films/a.mkv", "close"});
    run();
    EXPECT_TRUE(m_services.steps.contains("openTvMode"));
    EXPECT_EQ(m_services.start.flags, CommandLine::CloseAtEndFlag);
}

TEST_F(StartupSequenceTest, APathWithTheWordCloseSetsTheCloseBit)
{
    addArguments({"/films/Close Encounter.mkv"});
    run();
    EXPECT_EQ(m_services.start.flags, CommandLine::CloseAtEndFlag);
}

TEST_F(StartupSequenceTest, AnUnknownKeyWithoutAFileAsks)
{
    for (int mode : {0, 3, -1}) {
        RecordingServices services;
        services.mode = mode;
        services.choice = false;
        EXPECT_EQ(StartupSequence(services).run(), 0);
        EXPECT_TRUE(services.steps.contains("askMode"));
        EXPECT_TRUE(services.steps.contains("openTvMode"));
    }
}

TEST_F(StartupSequenceTest, AnsweringPcOpensPcMode)
{
    m_services.mode = 0;
    m_services.choice = true;
    run();
    EXPECT_TRUE(m_services.steps.contains("openPcMode"));
}

TEST_F(StartupSequenceTest, ClosingTheQuestionEndsWithOneAfterReleasingTheStyle)
{
    m_services.mode = 0;
    EXPECT_EQ(run(), 1);
    EXPECT_EQ(m_services.steps,
              kBeforeGuard + kServices
                  + QStringList({"askMode", "releaseStyles", "releaseSharedMemory", "destroyApplication"}));
}

TEST_F(StartupSequenceTest, AddPlanAloneIsPlayedAsAFile)
{
    addArguments({"/add_plan"});
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(m_services.start.file, "/add_plan");
}

} // namespace
