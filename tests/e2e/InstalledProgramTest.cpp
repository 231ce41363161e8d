#include "ProgramRun.h"

#include "core/ApplicationInfoManager.h"
#include "installed/InstalledTree.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

constexpr QRgb kBlue = qRgb(0x20, 0x60, 0xc0);
constexpr int kColorTolerance = 12;
constexpr int kEndMs = 2000;

// As a desktop starts it: by the command that the entry names, found through the search path.
TEST(InstalledProgramTest, TheInstalledCommandPlaysUnderTheNameOfItsEntry)
{
    ASSERT_FALSE(qEnvironmentVariableIsEmpty("DISPLAY")) << "run under scripts/with-display";
    const InstalledTree tree;
    ASSERT_TRUE(tree.isValid()) << qPrintable(tree.message());
    const QString clip = Clips::ofColor("blue film.mkv", kBlue, 30);
    ASSERT_FALSE(clip.isEmpty());

    const ProgramHome home;
    ProgramRun run(home, {clip}, tree.command());
    ASSERT_TRUE(home.waitForLog("OnPlayBackStarted"));
    EXPECT_TRUE(Desktop::waitForMiddleColor(kBlue, kColorTolerance));
    EXPECT_FALSE(home.log().contains("File error: "));

    const qulonglong window = Desktop::waitForWindow(run.id(), "blue film.mkv - Quorin Player 6");
    ASSERT_NE(window, 0U);
    EXPECT_EQ(Desktop::windowClass(window), ApplicationInfoManager::desktopName());
    // The program and its engine come out of the installed tree.
    const QString installed = QFileInfo(tree.path()).canonicalFilePath();
    EXPECT_TRUE(
        run.mappedFiles().filter(QRegularExpression("/libOrbix\\.so$")).join(' ').startsWith(installed));
    Desktop::closeWindow(window);
    EXPECT_EQ(run.waitForEnd(kEndMs), 0);
}

} // namespace
