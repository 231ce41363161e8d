// What the engine tells, as the rest of the program hears it.
#include "PlayerFixture.h"

#include "core/ApplicationInfoManager.h"
#include "support/TestLog.h"

#include <QFile>
#include <QSignalSpy>

#include <cstring>

namespace {

using Status = QPlayer::QPlayerStatus;
using Meta = QPlayer::QPlayerMetaType;

class QPlayerCallbacks : public PlayerTest {
protected:
    QPlayerCallbacks() { start(); }

    // The text of the last line of a type.
    [[nodiscard]] QString meta(Meta type) const
    {
        QString text;
        for (const auto &[kind, line] : metas.all) {
            if (kind == type)
                text = line;
        }
        return text;
    }

    Heard<Meta, QString> metas{*player, &QPlayer::sig_playMetaChanged};
};

libvp::VDVideoInfo videoInfo(const char *codec, int width, int height)
{
    libvp::VDVideoInfo info;
    qstrncpy(info.codec, codec, sizeof(info.codec));
    info.width = width;
    info.height = height;
    return info;
}

} // namespace

TEST_F(QPlayerCallbacks, EachNotificationGivesItsStatus)
{
    using Callback = libvp::IVDPlayCallback;
    const std::pair<std::function<void(Callback &)>, int> rows[] = {
        {[](Callback &c) { c.OnPlayBackStarted(); }, 1},
        {[](Callback &c) { c.OnPlayBackPaused(); }, 2},
        {[](Callback &c) { c.OnPlayBackResumed(); }, 1},
        {[](Callback &c) { c.OnPlayBackSpeedChanged(2.0F); }, 4},
        {[](Callback &c) { c.OnPlayBackSpeedChanged(1.0F); }, 1},
        {[](Callback &c) { c.OnPlayBackSpeedChanged(0.25F); }, 4},
        {[](Callback &c) { c.OnPlayBackSpeedChanged(0.0F); }, 2},
        {[](Callback &c) { c.OnPlayBackSpeedChanged(-8.0F); }, 5},
        {[](Callback &c) { c.OnPlayBackStopped(); }, 3},
        {[](Callback &c) { c.OnPlayBackEnded(); }, 6},
        {[](Callback &c) { c.OnPlayBackFailed(1, {}); }, 7},
    };
    Heard statuses(*player, &QPlayer::sig_playStatusChanged);
    std::size_t number = 0;
    for (const auto &[notification, status] : rows) {
        tell(notification);
        EXPECT_EQ(player->status(), status) << number;
        ++number;
        ASSERT_EQ(statuses.all.size(), number);
        EXPECT_EQ(std::get<0>(statuses.all.back()), status);
    }
}

TEST_F(QPlayerCallbacks, TheStatusIsCurrentInsideASlot)
{
    int seen = 0;
    QObject::connect(
        player.get(), &QPlayer::sig_playStatusChanged, player.get(),
        [&](Status told) { seen = player->status() == told ? told : -1; }, Qt::DirectConnection);
    tell([](libvp::IVDPlayCallback &c) { c.OnPlayBackPaused(); });
    EXPECT_EQ(seen, Status::QPlayerStatus_Paused);
}

TEST_F(QPlayerCallbacks, StartTellsWhatIsKnownOfTheSource)
{
    Heard infos(*player, &QPlayer::sig_videoInfoChanged);
    engine.setStatistic(libvp::VD_Stat_MediaClass, libvp::VD_Media_BluRay);
    engine.setStatistic(libvp::VD_Stat_SourceForm, libvp::VD_Source_ImageBluRay);
    engine.setStatistic(libvp::VD_Stat_Flags, static_cast<int>(0x80000001U));
    engine.setStatistic(libvp::VD_Stat_Width, 3840);
    engine.setStatistic(libvp::VD_Stat_Height, 2160);
    tell([](libvp::IVDPlayCallback &c) {
        const libvp::VDVideoInfo info = videoInfo("HEVC", 3840, 2160);
        c.OnVideoInfo(&info);
        c.OnPlayBackStarted();
    });
    ASSERT_EQ(infos.all.size(), 1U);
    const vdFileInfo info = std::get<0>(infos.all[0]);
    EXPECT_EQ(info.mediaClass, 2);
    EXPECT_EQ(info.sourceForm, 11);
    EXPECT_STREQ(info.codec, "hevc");
    EXPECT_EQ(info.width, 3840);
    EXPECT_EQ(info.height, 2160);
    EXPECT_EQ(info.audioOnly, 0);
    EXPECT_EQ(info.flags, 0x80000001U);
    EXPECT_EQ(player->fileTypeText(), QStringLiteral("ISO"));
    EXPECT_EQ(player->mediaTypeText(), QStringLiteral("UHD"));
}

TEST_F(QPlayerCallbacks, ALongCodecNameIsCutToItsField)
{
    tell([](libvp::IVDPlayCallback &c) {
        const libvp::VDVideoInfo info = videoInfo("mpeg2video", 720, 576);
        c.OnVideoInfo(&info);
        c.OnPlayBackStarted();
    });
    EXPECT_STREQ(player->fileInfo().codec, "mpeg2vi");
}

TEST_F(QPlayerCallbacks, TheCodecOfTheSourceBeforeDoesNotStay)
{
    tell([](libvp::IVDPlayCallback &c) {
        const libvp::VDVideoInfo info = videoInfo("hevc", 1, 1);
        c.OnVideoInfo(&info);
    });
    player->openFile();
    tell([](libvp::IVDPlayCallback &c) { c.OnPlayBackStarted(); });
    EXPECT_STREQ(player->fileInfo().codec, "");
}

TEST_F(QPlayerCallbacks, AFailureKeepsItsRecordAndTellsTheCode)
{
    Heard failures(*player, &QPlayer::sig_playFailChanged);
    vdFileInfo info;
    info.mediaClass = libvp::VD_Media_Dvd;
    info.sourceForm = libvp::VD_Source_DiscDvd;
    tell([info](libvp::IVDPlayCallback &c) { c.OnPlayBackFailed(0x134, info); });
    ASSERT_EQ(failures.all.size(), 1U);
    EXPECT_EQ(std::get<0>(failures.all[0]), 0x134);
    EXPECT_EQ(std::get<1>(failures.all[0]).mediaClass, libvp::VD_Media_Dvd);
    EXPECT_EQ(player->mediaTypeText(), QStringLiteral("DVD"));
    EXPECT_EQ(player->fileTypeText(), QStringLiteral("Disc"));
}

TEST_F(QPlayerCallbacks, ARefusedDiscKeepsItsRecordAndIsLogged)
{
    Heard statuses(*player, &QPlayer::sig_playStatusChanged);
    vdFileInfo info;
    info.mediaClass = libvp::VD_Media_BluRay;
    tell([info](libvp::IVDPlayCallback &c) { c.OnDiscRefused(7, "locked", info); });
    EXPECT_EQ(player->fileInfo().mediaClass, libvp::VD_Media_BluRay);
    EXPECT_TRUE(TestLog::infoLines().contains(QStringLiteral("[Player BackInfo]: error(not UHD Disc)")));
    EXPECT_TRUE(statuses.all.empty());
}

TEST_F(QPlayerCallbacks, TimeGoesOutInWholeSecondsAndAsText)
{
    Heard times(*player, &QPlayer::sig_timeChanged);
    tell([](libvp::IVDPlayCallback &c) { c.OnTime(61999, 3600500); });
    ASSERT_EQ(times.all.size(), 1U);
    EXPECT_EQ(times.all[0], std::make_tuple(61, 3600));
    EXPECT_EQ(meta(Meta::QPlayerMetaType_Time), QStringLiteral("00:01:01 / 01:00:00"));
}

TEST_F(QPlayerCallbacks, TimeIsLoggedOnceASecondOfPlay)
{
    tell([](libvp::IVDPlayCallback &c) {
        for (int positionMs = 10000; positionMs < 13000; positionMs += 100)
            c.OnTime(positionMs, 60000);
    });
    EXPECT_EQ(TestLog::infoLines().filter(QStringLiteral("[Engine] OnTime")).size(), 3);
}

TEST_F(QPlayerCallbacks, ATitleOfMinusOneShowsNone)
{
    Heard titles(*player, &QPlayer::sig_titleChanged);
    tell([](libvp::IVDPlayCallback &c) { c.OnTitle(-1); });
    EXPECT_EQ(meta(Meta::QPlayerMetaType_Title), QStringLiteral("None"));
    tell([](libvp::IVDPlayCallback &c) { c.OnTitle(3); });
    EXPECT_EQ(meta(Meta::QPlayerMetaType_Title), QStringLiteral("3"));
    EXPECT_EQ(titles.all.size(), 2U);
}

TEST_F(QPlayerCallbacks, TheLastOfFiveChaptersShowsAsTheOnlyOne)
{
    tell([](libvp::IVDPlayCallback &c) { c.OnChapter(2, 5); });
    EXPECT_EQ(meta(Meta::QPlayerMetaType_Chapter), QStringLiteral("2 / 5"));
    tell([](libvp::IVDPlayCallback &c) { c.OnChapter(5, 5); });
    EXPECT_EQ(meta(Meta::QPlayerMetaType_Chapter), QStringLiteral("1 / 1"));
}

TEST_F(QPlayerCallbacks, VideoInfoGivesTheLineAndTheSize)
{
    Heard sizes(*player, &QPlayer::sig_videoSizeChanged);
    tell([](libvp::IVDPlayCallback &c) {
        const libvp::VDVideoInfo info = videoInfo("h264", 1920, 1080);
        c.OnVideoInfo(&info);
        c.OnVideoInfo(nullptr);
    });
    EXPECT_EQ(meta(Meta::QPlayerMetaType_Video), QStringLiteral("H264 1920*1080"));
    ASSERT_EQ(sizes.all.size(), 1U);
    EXPECT_EQ(sizes.all[0], std::make_tuple(1920, 1080));
}

TEST_F(QPlayerCallbacks, VideoRangeAndFurtherTextAreOneLine)
{
    tell([](libvp::IVDPlayCallback &c) { c.OnDynamicRange(1); });
    EXPECT_EQ(meta(Meta::QPlayerMetaType_DynamicRange), QStringLiteral("HDR"));
    tell([](libvp::IVDPlayCallback &c) {
        const libvp::VDVideoInfo info = videoInfo("hevc", 3840, 2160);
        c.OnVideoInfo(&info);
    });
    EXPECT_EQ(meta(Meta::QPlayerMetaType_Video), QStringLiteral("HEVC 3840*2160 | HDR"));
    player->setFurtherInfo(QStringLiteral("hardware"));
    EXPECT_EQ(meta(Meta::QPlayerMetaType_Further), QStringLiteral("HEVC 3840*2160 | HDR | hardware"));
    tell([](libvp::IVDPlayCallback &c) { c.OnTitle(2); });
    EXPECT_EQ(meta(Meta::QPlayerMetaType_Title), QStringLiteral("2"));
}

TEST_F(QPlayerCallbacks, TheVideoLineOfTheSourceBeforeDoesNotStay)
{
    tell([](libvp::IVDPlayCallback &c) {
        const libvp::VDVideoInfo info = videoInfo("hevc", 3840, 2160);
        c.OnVideoInfo(&info);
    });
    player->openFile();
    tell([](libvp::IVDPlayCallback &c) { c.OnDynamicRange(0); });
    EXPECT_EQ(meta(Meta::QPlayerMetaType_DynamicRange), QStringLiteral("SDR"));
}

TEST_F(QPlayerCallbacks, AudioAndSubtitleInfoGiveTheirLines)
{
    tell([](libvp::IVDPlayCallback &c) {
        libvp::VDAudioInfo audio;
        std::strcpy(audio.language, "eng");
        std::strcpy(audio.name, "Main");
        std::strcpy(audio.format, "DTS 5.1");
        libvp::VDSubtitleInfo subtitle;
        std::strcpy(subtitle.language, "ger");
        std::strcpy(subtitle.name, "Full");
        c.OnAudioInfo(&audio);
        c.OnSubtitleInfo(&subtitle);
        c.OnAudioInfo(nullptr);
        c.OnSubtitleInfo(nullptr);
    });
    EXPECT_EQ(meta(Meta::QPlayerMetaType_Audio), QStringLiteral("eng Main DTS 5.1"));
    EXPECT_EQ(meta(Meta::QPlayerMetaType_Subtitle), QStringLiteral("ger Full"));
}

TEST_F(QPlayerCallbacks, SeekStateAndStatisticsPassThrough)
{
    Heard states(*player, &QPlayer::sig_seekState);
    Heard statistics(*player, &QPlayer::sig_orbixDataStatistics);
    tell([](libvp::IVDPlayCallback &c) {
        c.OnSeekState(libvp::VD_Seek_End);
        c.OnStatistics("{\"a\":\"\xC3\xA4\"}");
        c.OnStatistics(nullptr);
    });
    ASSERT_EQ(states.all.size(), 1U);
    EXPECT_EQ(std::get<0>(states.all[0]), libvp::VD_Seek_End);
    ASSERT_EQ(statistics.all.size(), 2U);
    EXPECT_EQ(std::get<0>(statistics.all[0]), QString::fromUtf8("{\"a\":\"\xC3\xA4\"}"));
    EXPECT_EQ(std::get<0>(statistics.all[1]), QString());
}

TEST_F(QPlayerCallbacks, EngineNotesOfNoPlayPassThrough)
{
    Heard errors(*player, &QPlayer::sig_errorOccured);
    Heard events(*player, &QPlayer::sig_DiscEventOccured);
    Heard volumes(*player, &QPlayer::sig_volumeChanged);
    ASSERT_TRUE(engine.raiseOrbix([](libvp::IVDOrbixCallback &c) {
        c.OnError(libvp::VD_Error_HevcHardwareUnsupported);
        c.OnDiscEvent('D', libvp::VD_Disc_Arrived);
    }));
    ASSERT_TRUE(engine.raiseTool([](libvp::IVDPlaytoolCallback &c) { c.OnVolumeChanged(0.5F); }));
    settle();
    ASSERT_EQ(errors.all.size(), 1U);
    EXPECT_EQ(std::get<0>(errors.all[0]), libvp::VD_Error_HevcHardwareUnsupported);
    ASSERT_EQ(events.all.size(), 1U);
    ASSERT_EQ(volumes.all.size(), 1U);
    EXPECT_EQ(std::get<0>(volumes.all[0]), 0.5F);
}

TEST_F(QPlayerCallbacks, AnEchoOfAnOlderVolumeDoesNotUndoTheNewer)
{
    player->setVolume(0.6F);
    ASSERT_TRUE(engine.raiseTool([](libvp::IVDPlaytoolCallback &c) { c.OnVolumeChanged(0.5F); }));
    settle();
    EXPECT_EQ(player->volume(), 0.6F);
}

TEST_F(QPlayerCallbacks, TheLastFrameOutlivesTheEnginesMemory)
{
    std::vector<unsigned char> seen;
    vdStopPlayInfo told;
    QObject context;
    QObject::connect(player.get(), &QPlayer::sig_stopInfoChanged, &context, [&](vdStopPlayInfo info) {
        told = info;
        ASSERT_NE(info.image, nullptr);
        seen.assign(info.image, info.image + 4 * info.imageWidth * info.imageHeight);
    });
    ASSERT_TRUE(engine.raise([](libvp::IVDPlayCallback &c) {
        auto frame = std::make_unique<std::vector<unsigned char>>(8);
        for (unsigned char value = 0; value < 8; ++value)
            (*frame)[value] = value;
        vdStopPlayInfo info;
        std::strcpy(info.path, "/films/a.mkv");
        info.positionMs = 61000;
        info.totalMs = 122000;
        info.reachedEnd = 1;
        info.image = frame->data();
        info.imageWidth = 2;
        info.imageHeight = 1;
        c.OnStopInfo(info);
        std::fill(frame->begin(), frame->end(), 0xEE);
    }));
    ASSERT_TRUE(engine.waitNotified());
    player->stop();
    // Only now the queued slot runs.
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(seen, (std::vector<unsigned char>{0, 1, 2, 3, 4, 5, 6, 7}));
    EXPECT_STREQ(told.path, "/films/a.mkv");
    EXPECT_EQ(told.positionMs, 61000);
    EXPECT_EQ(told.totalMs, 122000);
    EXPECT_EQ(told.reachedEnd, 1);
    const QImage frame = player->lastFrame();
    EXPECT_EQ(frame.format(), QImage::Format_ARGB32);
    EXPECT_EQ(frame.size(), QSize(2, 1));
    EXPECT_EQ(frame.pixel(0, 0), 0x03020100U);
}

TEST_F(QPlayerCallbacks, AStopWithoutAFrameHasNone)
{
    Heard stops(*player, &QPlayer::sig_stopInfoChanged);
    tell([](libvp::IVDPlayCallback &c) {
        vdStopPlayInfo info;
        info.imageWidth = 100;
        info.imageHeight = 100;
        std::memset(info.path, 'x', sizeof(info.path));
        c.OnStopInfo(info);
    });
    ASSERT_EQ(stops.all.size(), 1U);
    const vdStopPlayInfo info = std::get<0>(stops.all[0]);
    EXPECT_EQ(info.image, nullptr);
    EXPECT_EQ(info.imageWidth, 0);
    EXPECT_EQ(std::strlen(info.path), sizeof(info.path) - 1);
}

TEST_F(QPlayerCallbacks, ManyScreenshotsOutliveTheEnginesMemoryUntilTheirSlotsHaveRun)
{
    constexpr int shots = 12;
    std::vector<int> seen;
    QObject context;
    QObject::connect(player.get(), &QPlayer::sig_shotScreen, &context,
                     [&](const unsigned char *rgba, int width, int height) {
                         ASSERT_EQ(width * height, 4);
                         seen.push_back(rgba[15]);
                     });
    ASSERT_TRUE(engine.raise([](libvp::IVDPlayCallback &c) {
        std::vector<unsigned char> pixels(16);
        for (int shot = 0; shot < shots; ++shot) {
            std::fill(pixels.begin(), pixels.end(), static_cast<unsigned char>(shot));
            c.OnScreenshot(pixels.data(), 2, 2);
        }
        std::fill(pixels.begin(), pixels.end(), 0xEE);
    }));
    settle();
    ASSERT_EQ(seen.size(), std::size_t(shots));
    for (int shot = 0; shot < shots; ++shot)
        EXPECT_EQ(seen[static_cast<std::size_t>(shot)], shot);
    EXPECT_EQ(player->lastScreenshot().pixelColor(1, 1), QColor(11, 11, 11, 11));
}

TEST_F(QPlayerCallbacks, AScreenshotThatIsNullTellsNull)
{
    Heard shots(*player, &QPlayer::sig_shotScreen);
    tell([](libvp::IVDPlayCallback &c) { c.OnScreenshot(nullptr, 10, 10); });
    ASSERT_EQ(shots.all.size(), 1U);
    EXPECT_EQ(std::get<0>(shots.all[0]), nullptr);
}

TEST_F(QPlayerCallbacks, SoundGoesToTheDumpAndThenToTheSink)
{
    const QString path = ApplicationInfoManager::instance()->audioDumpFile() + QStringLiteral("/PDATA");
    QFile::remove(path);
    QByteArray dumpAtSink;
    player->setPcmSink([&](const libvp::VDPcmFrame &frame) {
        QFile dump(path);
        ASSERT_TRUE(dump.open(QIODevice::ReadOnly));
        dumpAtSink = dump.readAll();
        EXPECT_EQ(frame.sampleRate, 48000);
    });
    player->setPcmTap(true);
    EXPECT_THAT(takeCalls(), testing::Contains("IVDPlayTool::setIntProperty(audio.pcmtap, 1)"));
    tell([](libvp::IVDPlayCallback &c) {
        const unsigned char samples[] = {1, 2, 3, 4, 5, 6, 7, 8};
        libvp::VDPcmFrame frame;
        frame.samples = samples;
        frame.frameCount = 2;
        frame.bytesPerFrame = 4;
        frame.sampleRate = 48000;
        c.OnAudioFrame(&frame);
        c.OnAudioFrame(nullptr);
        frame.frameCount = -1;
        c.OnAudioFrame(&frame);
        frame.frameCount = 0x7FFFFFFF;
        frame.bytesPerFrame = 0x7FFFFFFF;
        c.OnAudioFrame(&frame);
    });
    EXPECT_EQ(dumpAtSink, QByteArray("\1\2\3\4\5\6\7\10"));
    player->setPcmTap(false);
    EXPECT_THAT(takeCalls(), testing::Contains("IVDPlayTool::setIntProperty(audio.pcmtap, 0)"));
}

TEST_F(QPlayerCallbacks, SoundWithoutADumpFileStillGoesToTheSink)
{
    const QString path = ApplicationInfoManager::instance()->audioDumpFile();
    QDir(path).removeRecursively();
    bool heard = false;
    player->setPcmSink([&heard](const libvp::VDPcmFrame &) { heard = true; });
    tell([](libvp::IVDPlayCallback &c) {
        const unsigned char samples[4] = {};
        libvp::VDPcmFrame frame;
        frame.samples = samples;
        frame.frameCount = 1;
        frame.bytesPerFrame = 4;
        c.OnAudioFrame(&frame);
    });
    EXPECT_TRUE(heard);
    EXPECT_FALSE(QFile::exists(path + QStringLiteral("/PDATA")));
}

TEST_F(QPlayerCallbacks, TypesAreRegisteredUnderTheirNames)
{
    for (const char *name :
         {"vdFileInfo", "vdStopPlayInfo", "QPlayerStatus", "QPlayerMetaType", "VD_ErrorCallbackType",
          "VD_OPTRA_DISC_NOTIFY_TYPE", "VD_OPTRA_DISC_ERROR_TYPE", "VD_SeekState"})
        EXPECT_NE(QMetaType::type(name), int(QMetaType::UnknownType)) << name;
}

TEST_F(QPlayerCallbacks, SignalsKeepTheirNamesAndArguments)
{
    for (const char *signature : {"sig_3DEngineStateChanged(bool)",
                                  "sig_titleChanged(int)",
                                  "sig_videoSizeChanged(int,int)",
                                  "sig_playStatusChanged(QPlayer::QPlayerStatus)",
                                  "sig_playMetaChanged(QPlayer::QPlayerMetaType,QString)",
                                  "sig_timeChanged(int,int)",
                                  "sig_videoInfoChanged(vdFileInfo)",
                                  "sig_DiscEventOccured(char,VD_OPTRA_DISC_NOTIFY_TYPE)",
                                  "sig_errorOccured(VD_ErrorCallbackType)",
                                  "sig_stopInfoChanged(vdStopPlayInfo)",
                                  "sig_playFailChanged(int,vdFileInfo)",
                                  "sig_shotScreen(unsigned char *,int,int)",
                                  "sig_lastChapter(int)",
                                  "sig_nextChapter(int)",
                                  "sig_volumeChanged(float)",
                                  "sig_muteChanged(bool)",
                                  "sig_enablePlayType(int)",
                                  "sig_seekState(VD_SeekState)",
                                  "sig_orbixDataStatistics(QString)",
                                  "sig_DiscError(char,VD_OPTRA_DISC_ERROR_TYPE)"})
        EXPECT_GE(QPlayer::staticMetaObject.indexOfSignal(QMetaObject::normalizedSignature(signature)), 0)
            << signature;
}
