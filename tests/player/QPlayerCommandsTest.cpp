#include "PlayerFixture.h"

#include "support/TestLog.h"

#include <QFile>

#include <cmath>
#include <limits>

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace {

using QPlayerCommands = PlayerTest;

} // namespace

TEST_F(QPlayerCommands, SpeedUpAtNormalSpeedGoesTo13NotTo10)
{
    start();
    Heard enable(*player, &QPlayer::sig_enablePlayType);
    player->speedUp(true);
    EXPECT_THAT(takeCalls(), Contains("IVDPlay::setSpeedIndex(13)"));
    ASSERT_EQ(enable.all.size(), 1U);
    EXPECT_EQ(std::get<0>(enable.all[0]), 1);
}

TEST_F(QPlayerCommands, SpeedDownAtNormalSpeedGoesTo4)
{
    start();
    player->speedUp(false);
    EXPECT_THAT(takeCalls(), Contains("IVDPlay::setSpeedIndex(4)"));
}

TEST_F(QPlayerCommands, AFurtherSpeedUpAt17StaysAt17)
{
    start();
    player->setSpeedIndex(17);
    EXPECT_EQ(player->speedIndex(), 17);
    player->speedUp(true);
    EXPECT_EQ(player->speedIndex(), 17);
    EXPECT_EQ(player->speed(), 32.0F);
}

TEST_F(QPlayerCommands, SpeedDoesNotChangeWhilePaused)
{
    start();
    engine.answer("IVDPlay::isPaused", 1);
    Heard enable(*player, &QPlayer::sig_enablePlayType);
    player->speedUp(true);
    player->setSpeedIndex(4);
    EXPECT_THAT(takeCalls(), Not(Contains(StartsWith("IVDPlay::setSpeedIndex"))));
    EXPECT_TRUE(enable.all.empty());
}

TEST_F(QPlayerCommands, ASpeedIndexOutsideTheTableIsRefused)
{
    start();
    player->setSpeedIndex(-1);
    player->setSpeedIndex(18);
    EXPECT_THAT(takeCalls(), Not(Contains(StartsWith("IVDPlay::setSpeedIndex"))));
}

TEST_F(QPlayerCommands, SeekIsExactAndNotBeforeTheStart)
{
    start();
    player->seek(12.5);
    player->seek(-3);
    player->seek(std::numeric_limits<double>::quiet_NaN());
    EXPECT_THAT(takeCalls(), ElementsAre("IVDPlay::seek(12.5, 1)", "IVDPlay::seek(0, 1)"));
}

TEST_F(QPlayerCommands, TogglePauseAndResumeAreTheSameOperation)
{
    start();
    player->togglePause();
    player->resume();
    EXPECT_THAT(takeCalls(), ElementsAre("IVDPlay::togglePause()", "IVDPlay::togglePause()"));
}

TEST_F(QPlayerCommands, TimesAreNotBelowZero)
{
    start();
    engine.answer("IVDPlay::currentSeconds", -0.5);
    engine.answer("IVDPlay::totalSeconds", 90.25);
    EXPECT_EQ(player->currentTime(), 0);
    EXPECT_EQ(player->totalTime(), 90.25);
}

TEST_F(QPlayerCommands, ChapterStepForwardFromTheLastGoesToTheFirst)
{
    start();
    engine.answer("IVDPlay::chapterCount", 5);
    engine.answer("IVDPlay::chapter", 5);
    Heard next(*player, &QPlayer::sig_nextChapter);
    player->nextChapter();
    player->nextChapter();
    ASSERT_EQ(next.all.size(), 2U);
    EXPECT_EQ(std::get<0>(next.all[0]), 1);
    EXPECT_EQ(std::get<0>(next.all[1]), 2);
    const auto calls = takeCalls();
    EXPECT_THAT(calls, Contains("IVDPlay::goToChapter(1)"));
    EXPECT_THAT(calls, Contains("IVDPlay::goToChapter(2)"));
}

TEST_F(QPlayerCommands, ChapterStepBackFromTheFirstGoesToTheLast)
{
    start();
    engine.answer("IVDPlay::chapterCount", 5);
    engine.answer("IVDPlay::chapter", 1);
    Heard last(*player, &QPlayer::sig_lastChapter);
    player->lastChapter();
    player->lastChapter();
    ASSERT_EQ(last.all.size(), 2U);
    EXPECT_EQ(std::get<0>(last.all[0]), 5);
    EXPECT_EQ(std::get<0>(last.all[1]), 4);
}

TEST_F(QPlayerCommands, AChapterStepWithoutChaptersDoesNothing)
{
    start();
    Heard next(*player, &QPlayer::sig_nextChapter);
    player->nextChapter();
    EXPECT_TRUE(next.all.empty());
    EXPECT_THAT(takeCalls(), Not(Contains(StartsWith("IVDPlay::goToChapter"))));
}

TEST_F(QPlayerCommands, ChaptersTitlesAndMenusNeedARunningPlay)
{
    start();
    engine.answer("IVDPlay::isPlaying", 0);
    engine.answer("IVDPlay::chapterCount", 5);
    engine.answer("IVDPlay::titleCount", 3);
    EXPECT_EQ(player->chapterCount(), 0);
    EXPECT_EQ(player->chapter(), 0);
    EXPECT_EQ(player->titleCount(), 0);
    player->goToChapter(2);
    player->menuCommand(libvp::VD_Menu_Enter);
    for (const std::string &call : takeCalls())
        EXPECT_EQ(call, "IVDPlay::isPlaying()");
    engine.answer("IVDPlay::isPlaying", 1);
    EXPECT_EQ(player->chapterCount(), 5);
    EXPECT_EQ(player->titleCount(), 3);
    player->menuCommand(libvp::VD_Menu_Show, 1.0F, 0);
    EXPECT_THAT(takeCalls(), Contains("IVDPlay::menuCommand(6, 1, 0)"));
}

TEST_F(QPlayerCommands, VolumeAbove2IsCutTo2)
{
    player->setVolume(2.5F);
    EXPECT_EQ(player->volume(), 2.0F);
    EXPECT_THAT(takeCalls(), Contains("IVDPlayTool::setVolume(2)"));
    player->setVolume(-1.0F);
    EXPECT_EQ(player->volume(), 0.0F);
    player->setVolume(0.5F);
    player->setVolume(std::nanf(""));
    EXPECT_EQ(player->volume(), 0.5F);
}

TEST_F(QPlayerCommands, MuteIsKeptAndHandedOn)
{
    EXPECT_FALSE(player->isMuted());
    player->setMute(true);
    EXPECT_TRUE(player->isMuted());
    EXPECT_THAT(takeCalls(), Contains("IVDPlayTool::setMute(true)"));
}

TEST_F(QPlayerCommands, ViewModes0To7GoAsTheyStand)
{
    for (int mode = 0; mode <= 7; ++mode) {
        ASSERT_TRUE(player->ensureTool());
        engine.clearCalls();
        player->setViewMode(mode);
        EXPECT_THAT(takeCalls(), ElementsAre("IVDPlayTool::setViewMode(" + std::to_string(mode) + ")"));
        EXPECT_EQ(player->viewMode(), mode);
    }
}

TEST_F(QPlayerCommands, ViewModes8To13AreFixedRatiosOverTheSourcesAspect)
{
    ASSERT_TRUE(player->ensureTool());
    engine.answer("IVDPlayTool::displayAspect", 2.0);
    const char *ratios[] = {"0.5", "0.8", "1.105", "1.175", "1.195", "0.625"};
    for (int mode = 8; mode <= 13; ++mode) {
        engine.clearCalls();
        player->setViewMode(mode);
        EXPECT_THAT(takeCalls(),
                    ElementsAre("IVDPlayTool::setViewMode(6)", "IVDPlayTool::displayAspect()",
                                std::string("IVDPlayTool::setPixelRatio(") + ratios[mode - 8] + ")"));
        EXPECT_EQ(player->viewMode(), mode);
    }
}

TEST_F(QPlayerCommands, AFixedRatioWithoutASourceDividesByNothing)
{
    ASSERT_TRUE(player->ensureTool());
    player->setViewMode(9);
    EXPECT_THAT(takeCalls(), Not(Contains(StartsWith("IVDPlayTool::setPixelRatio"))));
}

TEST_F(QPlayerCommands, AnUnknownViewModeIsRefused)
{
    player->setViewMode(3);
    engine.clearCalls();
    player->setViewMode(14);
    player->setViewMode(-1);
    EXPECT_EQ(player->viewMode(), 3);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(QPlayerCommands, FlipTogglesItsBitAndPutsRotationToZero)
{
    ASSERT_TRUE(player->ensureTool());
    engine.clearCalls();
    player->flip(4);
    EXPECT_THAT(takeCalls(), ElementsAre("IVDPlayTool::flipState()", "IVDPlayTool::setFlipState(1)",
                                         "IVDPlayTool::setRotation(0)"));
    player->flip(5);
    EXPECT_THAT(takeCalls(), Contains("IVDPlayTool::setFlipState(3)"));
    player->flip(4);
    EXPECT_THAT(takeCalls(), Contains("IVDPlayTool::setFlipState(2)"));
    player->flip(5);
    EXPECT_THAT(takeCalls(), Contains("IVDPlayTool::setFlipState(0)"));
}

TEST_F(QPlayerCommands, Flip1To3TurnAnd0SwitchesAllOff)
{
    ASSERT_TRUE(player->ensureTool());
    engine.clearCalls();
    player->flip(1);
    player->flip(2);
    player->flip(3);
    player->flip(0);
    player->flip(9);
    EXPECT_THAT(takeCalls(), ElementsAre("IVDPlayTool::setRotation(1)", "IVDPlayTool::setRotation(3)",
                                         "IVDPlayTool::setRotation(2)", "IVDPlayTool::resetFlip()",
                                         "IVDPlayTool::setRotation(0)"));
}

TEST_F(QPlayerCommands, RotationKnowsTheFourQuarters)
{
    ASSERT_TRUE(player->ensureTool());
    engine.clearCalls();
    for (int degrees : {0, 90, 180, 270, 45, -90, 360})
        player->setRotation(degrees);
    EXPECT_THAT(takeCalls(), ElementsAre("IVDPlayTool::setRotation(0)", "IVDPlayTool::setRotation(1)",
                                         "IVDPlayTool::setRotation(2)", "IVDPlayTool::setRotation(3)",
                                         "IVDPlayTool::setRotation(0)", "IVDPlayTool::setRotation(0)",
                                         "IVDPlayTool::setRotation(0)"));
}

TEST_F(QPlayerCommands, FrameStepsForwardByOperationAndBackByProperty)
{
    start();
    engine.answer("IVDPlay::isPlaying", 0);
    player->stepFrame(true);
    EXPECT_THAT(takeCalls(), Not(Contains(StartsWith("IVDPlay::toggleStep"))));
    engine.answer("IVDPlay::isPlaying", 1);
    player->stepFrame(true);
    EXPECT_THAT(takeCalls(), Contains("IVDPlay::toggleStep()"));
    player->stepFrame(false);
    EXPECT_THAT(takeCalls(), Contains("IVDPlayTool::setIntProperty(play.step, -1)"));
}

TEST_F(QPlayerCommands, AuthorInfoIsLoggedBeforeAndAfter)
{
    start();
    player->setAuthorInfo(3);
    EXPECT_THAT(takeCalls(), ElementsAre("IVDPlay::setAuthorInfo(3)"));
    const QStringList lines = TestLog::infoLines();
    EXPECT_TRUE(lines.contains(QStringLiteral("[Set AuthorInfo] QPlayer set authorInfo : 3")));
    EXPECT_TRUE(lines.contains(QStringLiteral("[Set AuthorInfo] QPlayer authorInfo setted")));
}

TEST_F(QPlayerCommands, AScreenshotNeedsTheOutputToBeUp)
{
    EXPECT_FALSE(player->takeScreenshot(0, 0, 0));
    EXPECT_THAT(takeCalls(), Not(Contains(StartsWith("IVDEngineCore::createPlayTool"))));
    ASSERT_TRUE(player->ensureTool());
    EXPECT_TRUE(player->takeScreenshot(1, 320, 180));
    EXPECT_THAT(takeCalls(), Contains("IVDPlayTool::takeScreenshot(1, 320, 180)"));
}

TEST_F(QPlayerCommands, SettingAnAudioTrackTellsBefore)
{
    start();
    Heard enable(*player, &QPlayer::sig_enablePlayType);
    player->setAudioTrack(2);
    ASSERT_EQ(enable.all.size(), 1U);
    EXPECT_EQ(std::get<0>(enable.all[0]), 11);
    EXPECT_THAT(takeCalls(), ElementsAre("IVDPlay::setAudioTrack(2)"));
    EXPECT_EQ(player->audioTrack(), 2);
}

TEST_F(QPlayerCommands, ASubtitleTrackIsSelectedAndSwitchedOn)
{
    start();
    Heard enable(*player, &QPlayer::sig_enablePlayType);
    player->setSubtitleTrack(1);
    ASSERT_EQ(enable.all.size(), 1U);
    EXPECT_EQ(std::get<0>(enable.all[0]), 12);
    EXPECT_THAT(takeCalls(),
                ElementsAre("IVDPlay::setSubtitleTrack(1)", "IVDPlayTool::setSubtitleVisible(true)"));
}

TEST_F(QPlayerCommands, ASubtitleValueOfAllOnesSwitchesSubtitlesOff)
{
    start();
    player->setSubtitleTrack(static_cast<int>(0xFFFFFFFFU));
    EXPECT_THAT(takeCalls(), ElementsAre("IVDPlayTool::setSubtitleVisible(false)"));
    EXPECT_FALSE(player->isSubtitleVisible());
}

TEST_F(QPlayerCommands, AddSubtitleSelectsTheNewIndex)
{
    start();
    QFile file(folder.filePath(QString::fromUtf8("\xC3\xBC.srt")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    engine.answer("IVDPlay::addSubtitle", 4);
    EXPECT_EQ(player->addSubtitle(file.fileName()), 4);
    const auto calls = takeCalls();
    EXPECT_THAT(calls, Contains("IVDPlay::addSubtitle(" + file.fileName().toStdString() + ")"));
    EXPECT_THAT(calls, Contains("IVDPlay::setSubtitleTrack(4)"));
}

TEST_F(QPlayerCommands, AddSubtitleOfAMissingOrWrongFileSelectsNothing)
{
    start();
    EXPECT_EQ(player->addSubtitle(QStringLiteral("/nowhere/a.srt")), -1);
    EXPECT_THAT(takeCalls(), IsEmpty());
    engine.answer("IVDPlay::addSubtitle", -1);
    EXPECT_EQ(player->addSubtitle(settings.fileName()), -1);
    settings.setValue(QStringLiteral("a"), 1);
    settings.sync();
    EXPECT_EQ(player->addSubtitle(settings.fileName()), -1);
    EXPECT_THAT(takeCalls(), Not(Contains(StartsWith("IVDPlay::setSubtitleTrack"))));
}

TEST_F(QPlayerCommands, TrackListsAreReadIntoPlainStructures)
{
    libvp::VDAudioInfo audio;
    audio.index = 0;
    audio.channels = 6;
    audio.sampleRate = 48000;
    audio.isDefault = 1;
    qstrcpy(audio.language, "eng");
    qstrcpy(audio.format, "AC3");
    libvp::VDSubtitleInfo subtitle;
    qstrcpy(subtitle.language, "fre");
    qstrcpy(subtitle.name, "Full");
    subtitle.isBitmap = 1;
    subtitle.isExternal = 1;
    engine.setAudioTracks({audio, audio});
    engine.setSubtitleTracks({subtitle});
    start();

    QList<PlayerAudioTrack> audios;
    ASSERT_TRUE(player->audioTracks(&audios));
    ASSERT_EQ(audios.size(), 2);
    EXPECT_EQ(audios[0].language, QStringLiteral("eng"));
    EXPECT_EQ(audios[0].format, QStringLiteral("AC3"));
    EXPECT_EQ(audios[0].channels, 6);
    EXPECT_TRUE(audios[0].isDefault);
    QList<PlayerSubtitleTrack> subtitles;
    ASSERT_TRUE(player->subtitleTracks(&subtitles));
    ASSERT_EQ(subtitles.size(), 1);
    EXPECT_EQ(subtitles[0].language, QStringLiteral("fre"));
    EXPECT_EQ(subtitles[0].name, QStringLiteral("Full"));
    EXPECT_TRUE(subtitles[0].isBitmap);
    EXPECT_TRUE(subtitles[0].isExternal);
}

TEST_F(QPlayerCommands, ATrackRecordThatIsMissingIsLeftOut)
{
    engine.answer("IVDPlay::audioCount", 3);
    start();
    QList<PlayerAudioTrack> audios;
    EXPECT_TRUE(player->audioTracks(&audios));
    EXPECT_TRUE(audios.isEmpty());
    EXPECT_FALSE(player->audioTracks(nullptr));
}
