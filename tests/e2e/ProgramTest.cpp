#include "ProgramRun.h"

#include "ProgramPath.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <gtest/gtest.h>

#include <csignal>

namespace {

const QString kTitle = QStringLiteral("Quorin Player 6");
const QString kInitCompleted = QStringLiteral("Quorin6 Init Completed");
const QString kClosed = QStringLiteral("********************** Quorin6 Closed **********************");
constexpr int kEndMs = 2000;
constexpr QRgb kBlue = qRgb(0x20, 0x60, 0xc0);
constexpr QRgb kGreen = qRgb(0x20, 0xa0, 0x40);
// What a conversion to video and back may change.
constexpr int kColorTolerance = 12;

class ProgramTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_FALSE(qEnvironmentVariableIsEmpty("DISPLAY")) << "run under scripts/with-display";
        m_blue = Clips::ofColor("blue film.mkv", kBlue, 30);
        ASSERT_FALSE(m_blue.isEmpty());
    }

    // The program without one of its files: a copy of the others in a folder of their own.
    QString copyWithout(const QString &missing)
    {
        const QString target = m_home.filePath("program");
        QDir().mkpath(target);
        const QFileInfo program(QStringLiteral(QUORIN_PROGRAM));
        const QStringList names{program.fileName(), "libOrbix.so", "quorin6.rcc"};
        for (const QString &name : names) {
            if (name == missing)
                continue;
            EXPECT_TRUE(QFile::copy(program.dir().filePath(name), target + "/" + name)) << qPrintable(name);
        }
        return target + "/" + program.fileName();
    }

    ProgramHome m_home;
    QString m_blue;
};

TEST_F(ProgramTest, PlaysTheFileOfTheCommandLineAndShowsItsPicture)
{
    ProgramRun run(m_home, {m_blue});
    ASSERT_TRUE(m_home.waitForLog("OnPlayBackStarted"));
    EXPECT_NE(Desktop::waitForWindow(run.id(), "blue film.mkv - " + kTitle), 0U);
    EXPECT_TRUE(Desktop::waitForMiddleColor(kBlue, kColorTolerance));

    const QString log = m_home.log();
    int from = 0;
    for (const char *line :
         {"********************** Quorin 6 Started **********************",
          "[Process] KernelVersion : ", "[Process] ProductName : ", "[Process] Local Language : ",
          "[Process] Country : ", "[Process] Resolution : ", "[Process] DPI : 1",
          "[Process] Player Version : 6.1.0.3", "[Process] app args: (", "[Process] Player Mode is PC Mode ",
          "********************** Quorin6 Init Completed **********************"}) {
        const int at = log.indexOf(QLatin1String(line), from);
        EXPECT_GE(at, from) << line;
        from = qMax(from, at);
    }
    EXPECT_TRUE(log.contains("[PlaySource]: " + m_blue));
    EXPECT_TRUE(log.contains("[PlaySource]: Play operate completed"));
    EXPECT_TRUE(log.contains("[Play control] Enter slot_responseVideoInfo"));
}

TEST_F(ProgramTest, ASecondCopyHandsItsFileOverAndEndsWithZero)
{
    const QString green = Clips::ofColor("green film.mkv", kGreen, 30);
    // What a start costs on this machine at this moment.
    QElapsedTimer clock;
    clock.start();
    ASSERT_EQ(ProgramRun(m_home, {"/uninstall"}).waitForEnd(), 0);
    const qint64 startMs = clock.elapsed();

    ProgramRun first(m_home, {m_blue});
    ASSERT_TRUE(m_home.waitForLog("OnPlayBackStarted"));
    clock.restart();
    ProgramRun second(m_home, {green});
    EXPECT_EQ(second.waitForEnd(), 0);
    EXPECT_LT(clock.elapsed(), 2 * startMs + 500);
    EXPECT_TRUE(m_home.waitForLog("[PlaySource]: " + green));
    EXPECT_TRUE(Desktop::waitForMiddleColor(kGreen, kColorTolerance));
    EXPECT_TRUE(first.isRunning());
    EXPECT_EQ(m_home.log().count("Quorin 6 Started"), 1);
}

TEST_F(ProgramTest, ASecondCopyWithoutAFileLeavesTheFirstRunning)
{
    ProgramRun first(m_home);
    ASSERT_TRUE(m_home.waitForLog(kInitCompleted));
    ProgramRun second(m_home);
    EXPECT_EQ(second.waitForEnd(), 0);
    EXPECT_TRUE(first.isRunning());
}

TEST_F(ProgramTest, ClosingTheWindowWhilePlayingEndsTheProcessInTime)
{
    ProgramRun run(m_home, {m_blue});
    ASSERT_TRUE(m_home.waitForLog("OnPlayBackStarted"));
    const qulonglong window = Desktop::waitForWindow(run.id(), "blue film.mkv - " + kTitle);
    ASSERT_NE(window, 0U);
    Desktop::closeWindow(window);
    EXPECT_EQ(run.waitForEnd(kEndMs), 0);
    EXPECT_TRUE(m_home.log().contains(kClosed));
    EXPECT_EQ(m_home.processes(), QList<qint64>());
}

TEST_F(ProgramTest, ClosingTheIdleWindowEndsTheProcessInTime)
{
    ProgramRun run(m_home);
    ASSERT_TRUE(m_home.waitForLog(kInitCompleted));
    const qulonglong window = Desktop::waitForWindow(run.id(), kTitle);
    ASSERT_NE(window, 0U);
    Desktop::closeWindow(window);
    EXPECT_EQ(run.waitForEnd(kEndMs), 0);
    EXPECT_EQ(m_home.processes(), QList<qint64>());
}

TEST_F(ProgramTest, KeysReachTheSourceInWindowAndInFullScreen)
{
    ProgramRun run(m_home, {m_blue});
    ASSERT_TRUE(m_home.waitForLog("OnPlayBackStarted"));
    const qulonglong window = Desktop::waitForWindow(run.id(), "blue film.mkv - " + kTitle);
    ASSERT_NE(window, 0U);
    Desktop::sendKey(window, "m");
    EXPECT_TRUE(m_home.waitForLog("OnMuteChanged(true)"));
    Desktop::sendKey(window, "F11");
    EXPECT_TRUE(Desktop::waitForMiddleColor(kBlue, kColorTolerance));
    Desktop::sendKey(window, "space");
    EXPECT_TRUE(m_home.waitForLog("OnPlayBackPaused"));
    Desktop::sendKey(window, "ctrl+s");
    EXPECT_TRUE(m_home.waitForLog("OnPlayBackStopped"));
    EXPECT_NE(Desktop::waitForWindow(run.id(), kTitle), 0U);
}

TEST_F(ProgramTest, ATerminationSignalEndsItInOrder)
{
    ProgramRun run(m_home, {m_blue});
    ASSERT_TRUE(m_home.waitForLog("OnPlayBackStarted"));
    ASSERT_EQ(::kill(pid_t(run.id()), SIGTERM), 0);
    EXPECT_EQ(run.waitForEnd(kEndMs), 0);
    EXPECT_TRUE(m_home.log().contains(kClosed));
    EXPECT_EQ(m_home.processes(), QList<qint64>());
}

TEST_F(ProgramTest, AfterAKillItStartsAgain)
{
    {
        ProgramRun run(m_home, {m_blue});
        ASSERT_TRUE(m_home.waitForLog("OnPlayBackStarted"));
        ASSERT_EQ(::kill(pid_t(run.id()), SIGKILL), 0);
        EXPECT_EQ(run.waitForEnd(), -1);
    }
    ProgramRun again(m_home, {m_blue});
    EXPECT_TRUE(m_home.waitForLog("OnPlayBackStarted", 2));
    EXPECT_TRUE(again.isRunning());
}

TEST_F(ProgramTest, WithoutItsEngineItTellsSoAndRunsOn)
{
    ProgramRun run(m_home, {}, copyWithout("libOrbix.so"));
    ASSERT_TRUE(m_home.waitForLog(kInitCompleted));
    ASSERT_TRUE(m_home.waitForLog("[Engine] cannot play here"));
    const QDeadlineTimer deadline(20000);
    while (Desktop::visibleWindows(run.id(), kTitle) < 2 && !deadline.hasExpired())
        continue;
    ASSERT_EQ(Desktop::visibleWindows(run.id(), kTitle), 2);
    Desktop::sendKey(Desktop::waitForWindow(run.id(), kTitle), "Return");
    const QDeadlineTimer gone(20000);
    while (Desktop::visibleWindows(run.id(), kTitle) > 1 && !gone.hasExpired())
        continue;
    EXPECT_EQ(Desktop::visibleWindows(run.id(), kTitle), 1);
    EXPECT_TRUE(run.isRunning());
    Desktop::closeWindow(Desktop::waitForWindow(run.id(), kTitle));
    EXPECT_EQ(run.waitForEnd(kEndMs), 0);
}

TEST_F(ProgramTest, WithoutItsResourceFileItTellsSoAndRunsOn)
{
    ProgramRun run(m_home, {}, copyWithout("quorin6.rcc"));
    // Once for the file and once for the style in it.
    for (int box = 1; box <= 2; ++box) {
        ASSERT_TRUE(m_home.waitForLog("File error: ", box));
        const qulonglong window = Desktop::waitForWindow(run.id(), kTitle);
        ASSERT_NE(window, 0U);
        Desktop::sendKey(window, "Return");
    }
    EXPECT_TRUE(m_home.waitForLog(kInitCompleted));
    EXPECT_TRUE(m_home.log().contains("/quorin6.rcc"));
    EXPECT_TRUE(run.isRunning());
}

TEST_F(ProgramTest, AFileThatIsHandedOverWhileABoxIsOpenIsPlayedAfterIt)
{
    ProgramRun run(m_home, {}, copyWithout("quorin6.rcc"));
    ASSERT_TRUE(m_home.waitForLog("File error: "));
    const qulonglong first = Desktop::waitForWindow(run.id(), kTitle);
    ASSERT_NE(first, 0U);
    ProgramRun second(m_home, {m_blue});
    EXPECT_EQ(second.waitForEnd(), 0);
    Desktop::sendKey(first, "Return");
    ASSERT_TRUE(m_home.waitForLog("File error: ", 2));
    const qulonglong next = Desktop::waitForWindow(run.id(), kTitle);
    ASSERT_NE(next, 0U);
    Desktop::sendKey(next, "Return");
    EXPECT_TRUE(m_home.waitForLog("[PlaySource]: " + m_blue));
    EXPECT_TRUE(m_home.waitForLog("OnPlayBackStarted"));
}

TEST_F(ProgramTest, ClosingTheModeQuestionEndsWithOneAndKeepsTheKey)
{
    m_home.writeSetting("launchModeVersion6", "0");
    ProgramRun run(m_home);
    const qulonglong window = Desktop::waitForWindow(run.id(), kTitle);
    ASSERT_NE(window, 0U);
    Desktop::closeWindow(window);
    EXPECT_EQ(run.waitForEnd(), 1);
    EXPECT_EQ(m_home.readSetting("launchModeVersion6"), "0");
    EXPECT_FALSE(m_home.log().contains(kInitCompleted));
}

TEST_F(ProgramTest, TvModePlaysAndEndsWithItsSourceWhenArmed)
{
    m_home.writeSetting("launchModeVersion6", "2");
    const QString brief = Clips::ofColor("brief film.mkv", kGreen, 3);
    ProgramRun run(m_home, {brief, "close"});
    ASSERT_TRUE(m_home.waitForLog("OnPlayBackStarted"));
    EXPECT_TRUE(m_home.log().contains("[Process] Player Mode is TV Mode "));
    EXPECT_TRUE(Desktop::waitForMiddleColor(kGreen, kColorTolerance, 3000));
    EXPECT_EQ(run.waitForEnd(), 0);
    EXPECT_TRUE(m_home.log().contains("[TV_CheckTime] Load TV end."));
}

TEST_F(ProgramTest, PcModeEndsWithItsSourceWhenArmed)
{
    const QString brief = Clips::ofColor("brief film.mkv", kGreen, 3);
    ProgramRun run(m_home, {brief, "close"});
    EXPECT_TRUE(m_home.waitForLog("OnPlayBackEnded"));
    EXPECT_EQ(run.waitForEnd(), 0);
}

TEST_F(ProgramTest, AnInstallRunShowsNoWindowAndEndsWithZero)
{
    ProgramRun run(m_home, {"/install", "/add_plan"});
    EXPECT_EQ(run.waitForEnd(), 0);
    EXPECT_TRUE(m_home.log().contains("[Process] join plan: true"));
    EXPECT_FALSE(m_home.log().contains("Quorin 6 Started"));
    EXPECT_EQ(m_home.readSetting("PC_AddPlan"), "true");
}

TEST_F(ProgramTest, AFullUninstallLeavesNoDataFolderBehindOnceTheProcessHasEnded)
{
    m_home.writeSetting("PC_Language", "GER");
    const QFileInfo data(QFileInfo(m_home.configurationFile()).path());
    ASSERT_TRUE(data.isDir());
    ProgramRun run(m_home, {"/full_uninstall"});
    EXPECT_EQ(run.waitForEnd(), 0);
    EXPECT_TRUE(m_home.log().contains("[FullUninstall] remove " + data.filePath() + " success"));
    EXPECT_FALSE(QFileInfo::exists(data.filePath()));
}

TEST_F(ProgramTest, MaintenanceRunsMakeNoFolderForUpdates)
{
    const QString temp = m_home.filePath("Documents/" + kTitle + "/Temp");
    for (const char *argument : {"/install", "/uninstall", "/full_uninstall"}) {
        EXPECT_EQ(ProgramRun(m_home, {argument}).waitForEnd(), 0);
        EXPECT_FALSE(QFileInfo::exists(temp + "/updateTemp")) << argument;
        EXPECT_FALSE(m_home.log().contains("/updateTemp success")) << argument;
    }
}

TEST_F(ProgramTest, AMissingFileIsToldAndTheProgramRunsOn)
{
    ProgramRun run(m_home, {"/no/such/film.mkv"});
    ASSERT_TRUE(m_home.waitForLog("[Player fail]: "));
    EXPECT_TRUE(run.isRunning());
}

TEST_F(ProgramTest, ADisplayThatGoesAwayEndsItAtOnceAndInOrder)
{
    QProcess server;
    server.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x720x24", "-nolisten", "tcp"});
    ASSERT_TRUE(server.waitForReadyRead(20000));
    QProcessEnvironment display;
    display.insert("DISPLAY", ":" + QString::fromLatin1(server.readLine()).trimmed());
    ProgramRun run(m_home, {m_blue}, {}, display);
    ASSERT_TRUE(m_home.waitForLog("OnPlayBackStarted"));
    server.kill();
    ASSERT_TRUE(server.waitForFinished(20000));
    EXPECT_EQ(run.waitForEnd(), 1);
    EXPECT_TRUE(m_home.log().contains("[Process] the display is gone"));
    EXPECT_FALSE(m_home.log().contains(kClosed));
}

} // namespace
