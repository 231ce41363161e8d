// Every command is safe and answers "nothing" when an engine object is missing.
#include "PlayerFixture.h"

#include "support/TestLog.h"

#include <QFile>

namespace {

class QPlayerWithoutEngine : public PlayerTest {
protected:
    QPlayerWithoutEngine()
    {
        player.reset();
        engine.clearCalls();
    }

    void make(std::unique_ptr<IEngineLoader> loader)
    {
        player = std::make_unique<QPlayer>(std::move(loader), &settings);
        player->setVideoParent(&widget, window);
    }

    void expectFailed(const QString &reason)
    {
        EXPECT_TRUE(player->rendererFailed());
        EXPECT_FALSE(player->ensureTool());
        const QStringList lines = TestLog::infoLines().filter(QStringLiteral("[Engine] cannot play here:"));
        ASSERT_EQ(lines.size(), 1);
        EXPECT_TRUE(lines[0].contains(reason)) << qPrintable(lines[0]);
    }

    void expectNullSafe()
    {
        expectPlaySafe();
        expectToolSafe();
        expectCoreSafe();
    }

    void expectPlaySafe()
    {
        QPlayer &p = *player;
        p.setSource(QStringLiteral("/a.mkv"));
        p.openFile(5);
        p.openFileWithStreams(-1);
        p.togglePause();
        p.resume();
        p.speedUp(true);
        p.setSpeedIndex(4);
        p.seek(5);
        p.stepFrame(true);
        p.stepFrame(false);
        p.nextChapter();
        p.lastChapter();
        p.goToChapter(1);
        p.setAngle(0);
        p.menuCommand(4, 0, 0);
        p.setAuthorInfo(0);
        p.setAudioTrack(0);
        p.setSubtitleTrack(-1);
        p.stop();
        EXPECT_FALSE(p.isPlaying());
        EXPECT_FALSE(p.isPaused());
        EXPECT_EQ(p.speed(), 1.0F);
        EXPECT_EQ(p.speedIndex(), 9);
        EXPECT_EQ(p.currentTime(), 0);
        EXPECT_EQ(p.totalTime(), 0);
        EXPECT_EQ(p.chapterCount(), 0);
        EXPECT_EQ(p.chapter(), 0);
        EXPECT_EQ(p.titleCount(), 0);
        EXPECT_FALSE(p.hasDiscMenu());
        EXPECT_EQ(p.statistic(0), 0);
        EXPECT_EQ(p.audioCount(), -1);
        EXPECT_EQ(p.audioTrack(), -1);
        EXPECT_EQ(p.subtitleCount(), -1);
        EXPECT_EQ(p.subtitleTrack(), -1);
        EXPECT_EQ(p.addSubtitle(settings.fileName()), -1);
        QList<PlayerAudioTrack> audios;
        QList<PlayerSubtitleTrack> subtitles;
        EXPECT_FALSE(p.audioTracks(&audios));
        EXPECT_FALSE(p.subtitleTracks(&subtitles));
        EXPECT_EQ(p.status(), QPlayer::QPlayerStatus_None);
        EXPECT_EQ(p.fileTypeText(), QStringLiteral("file"));
        EXPECT_EQ(p.mediaTypeText(), QStringLiteral("VideoFile"));
    }

    void expectToolSafe()
    {
        QPlayer &p = *player;
        p.setVolume(1.5F);
        EXPECT_EQ(p.volume(), 1.5F);
        p.setMute(true);
        EXPECT_TRUE(p.isMuted());
        p.resizeSurface(10, 10);
        p.forwardWindowMessage(1, 2, 3, 4, 5);
        p.forwardWindowMove(1, 2);
        p.setViewMode(9);
        p.setZoomAmount(1);
        p.setVerticalShift(0);
        p.setPixelRatio(1);
        for (int kind = 0; kind <= 5; ++kind)
            p.flip(kind);
        p.setRotation(90);
        p.setBrightness(1);
        p.setContrast(1);
        p.setSaturation(1);
        p.setDeinterlaceMode(1);
        p.showInformationOverlay(true);
        p.setHardwareDecoding(true);
        p.setToneMap(true);
        p.setHDRMode(1);
        p.setSDRMode(1);
        p.setSDRValue(1);
        p.setLimitedRange(true);
        p.setVideoOutput(QStringLiteral("x11"));
        p.setOutputMode(1);
        p.setAudioChannels(1);
        p.setAudioAmplification(1);
        p.setAudioDelay(1);
        p.setSubtitleFont(QString());
        p.setSubtitleSize(1);
        p.setSubtitlePosition(1);
        p.setSubtitleColor(QString());
        p.setSubtitleOutlineColor(QString());
        p.setSubtitleBold(true);
        p.setSubtitleItalic(true);
        p.setSubtitleOutline(true);
        p.setSubtitleOverride(true);
        p.setSubtitleCharset(QString());
        p.setSubtitleOffset(1);
        p.setRegion(1);
        p.setProxy(0, QString(), 0, QString(), QString());
        p.setUiLanguage(1);
        p.set3DEngine(true);
        p.set3DMode(1);
        p.set3DInputLayout(1);
        p.set3DParallax(1);
        p.setup3D();
        p.setPcmTap(true);
        libvp::VD3DCapabilities capabilities;
        EXPECT_FALSE(p.threeDCapabilities(&capabilities));
        EXPECT_FALSE(p.threeDCapabilities(nullptr));
        EXPECT_FALSE(p.is3DEngineOn());
        EXPECT_FALSE(p.isSubtitleVisible());
        EXPECT_FALSE(p.takeScreenshot(0, 0, 0));
        EXPECT_EQ(p.displayAspect(), 0);
        EXPECT_TRUE(p.audioDevices().isEmpty());
        EXPECT_TRUE(p.currentAudioDevice().isEmpty());
        EXPECT_FALSE(p.setAudioOutput(false, QStringLiteral("a")));
        EXPECT_EQ(p.passThrough(), 0);
        EXPECT_FALSE(p.setCustomShader(QString()));
        EXPECT_TRUE(p.customShader().isEmpty());
        EXPECT_FALSE(p.setBoolProperty("a", true));
        EXPECT_FALSE(p.setIntProperty("a", 1));
        EXPECT_FALSE(p.setStringProperty("a", "b"));
        EXPECT_FALSE(p.discDisplayInfo(QStringLiteral("D")).isValid);
        EXPECT_FALSE(p.eject('D'));
        EXPECT_EQ(p.discState('D'), 0);
        EXPECT_TRUE(p.lastFrame().isNull());
        EXPECT_TRUE(p.lastScreenshot().isNull());
    }

    void expectCoreSafe()
    {
        QPlayer &p = *player;
        EXPECT_EQ(p.openThumbnails(QStringLiteral("/a"), 0, -1, 10, 10), 0);
        EXPECT_TRUE(p.grabThumbnail(0).isNull());
        p.closeThumbnails();
        EXPECT_EQ(p.grabPicture("{}").format, -1);
        EXPECT_FALSE(p.prepareDisc(QStringLiteral("D"), 2).isValid);
        EXPECT_EQ(p.sourceForm(QStringLiteral("/a")), 0);
        EXPECT_FALSE(p.startBackup(QStringLiteral("D"), QStringLiteral("/b")));
        p.stopBackup(QStringLiteral("D"));
        EXPECT_EQ(p.backupProgress(QStringLiteral("D")), -1);
        EXPECT_FALSE(p.isBackupFinished(QStringLiteral("D")));
        EXPECT_FALSE(p.isBackupFailed(QStringLiteral("D")));
        EXPECT_FALSE(p.hasEngine());
    }
};

} // namespace

TEST_F(QPlayerWithoutEngine, MissingLibrary)
{
    make(std::make_unique<LibraryEngineLoader>(QStringLiteral("/nowhere/Orbix")));
    expectFailed(QStringLiteral("Orbix"));
    expectNullSafe();
}

TEST_F(QPlayerWithoutEngine, BrokenLibraryFile)
{
    QFile file(folder.filePath(QStringLiteral("libOrbix.so")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no library at all");
    file.close();
    make(std::make_unique<LibraryEngineLoader>(file.fileName()));
    expectFailed(QStringLiteral("libOrbix.so"));
    expectNullSafe();
}

TEST_F(QPlayerWithoutEngine, LibraryWithoutTheFunctions)
{
    make(std::make_unique<LibraryEngineLoader>(QStringLiteral(QUORIN_NO_ENGINE)));
    expectFailed(QStringLiteral("ReleaseVDPlayer"));
    expectNullSafe();
}

TEST_F(QPlayerWithoutEngine, CreateAnswersNull)
{
    engine.answer("CreateVDPlayer", 0);
    make(fakeEngineLoader());
    expectFailed(QStringLiteral("the library made no engine"));
    expectNullSafe();
    EXPECT_THAT(takeCalls(), testing::ElementsAre("CreateVDPlayer()"));
}

TEST_F(QPlayerWithoutEngine, InitialiseAnswersFalse)
{
    engine.answer("IVDEngineCore::initialise", 0);
    make(fakeEngineLoader());
    expectFailed(QStringLiteral("the engine did not initialise"));
    expectNullSafe();
    EXPECT_THAT(takeCalls(),
                testing::ElementsAre("CreateVDPlayer()", "IVDEngineCore::initialise()", "ReleaseVDPlayer()"));
}

TEST_F(QPlayerWithoutEngine, NoRendererIsTriedOnceAndFailsEachLaterCall)
{
    engine.answer("IVDPlayTool::isValid", 0);
    make(fakeEngineLoader());
    EXPECT_FALSE(player->rendererFailed());
    EXPECT_FALSE(player->ensureTool());
    expectFailed(QStringLiteral("the output could not be set up"));
    engine.clearCalls();
    engine.answer("IVDPlayTool::isValid", 1);
    expectPlaySafe();
    expectToolSafe();
    EXPECT_THAT(takeCalls(), testing::IsEmpty());
    EXPECT_TRUE(player->hasEngine());
}

TEST_F(QPlayerWithoutEngine, NoOutputObjectCountsAsNoRenderer)
{
    engine.answer("IVDEngineCore::createPlayTool", 0);
    make(fakeEngineLoader());
    player->openFile();
    expectFailed(QStringLiteral("the output could not be set up"));
    expectPlaySafe();
    expectToolSafe();
}

TEST_F(QPlayerWithoutEngine, NoPlay)
{
    make(fakeEngineLoader());
    engine.answer("IVDPlayTool::createPlay", 0);
    expectPlaySafe();
    EXPECT_FALSE(player->rendererFailed());
}

TEST_F(QPlayerWithoutEngine, ThePlayerEndsWithoutOne)
{
    make(std::make_unique<LibraryEngineLoader>(QStringLiteral("/nowhere/Orbix")));
    player.reset();
    EXPECT_THAT(takeCalls(), testing::IsEmpty());
}
