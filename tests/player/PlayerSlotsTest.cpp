// Each operation that the engine calls in the player stands at its number.
#include "PlayerFixture.h"
#include "SlotCall.h"

#include "core/ApplicationInfoManager.h"
#include "support/TestLog.h"

#include <QDir>

#include <cstring>

namespace {

using PlayerSlots = PlayerTest;

bool logged(const QString &beginning)
{
    const QStringList lines = TestLog::infoLines();
    return std::any_of(lines.begin(), lines.end(),
                       [&](const QString &line) { return line.startsWith(beginning); });
}

} // namespace

TEST_F(PlayerSlots, PlayerConfig)
{
    void *object = static_cast<libvp::IVDPlayerConfig *>(player.get());
    const QByteArray application = QCoreApplication::applicationDirPath().toUtf8();
    const QByteArray log = ApplicationInfoManager::instance()->logFolder().toUtf8();
    EXPECT_STREQ(callSlot<const char *>(object, 1), "qtplayer");
    EXPECT_STREQ(callSlot<const char *>(object, 2), "Quorin Media Player");
    EXPECT_STREQ(callSlot<const char *>(object, 3), "");
    EXPECT_STREQ(callSlot<const char *>(object, 4), "3.2.0.0");
    EXPECT_EQ(callSlot<int>(object, 5), 1);
    for (int slot : {6, 7, 8})
        EXPECT_STREQ(callSlot<const char *>(object, slot), "");
    EXPECT_STREQ(callSlot<const char *>(object, 9, 0), (application + "/Fonts").constData());
    EXPECT_STREQ(callSlot<const char *>(object, 9, 1), application.constData());
    EXPECT_STREQ(callSlot<const char *>(object, 9, 2), log.constData());
    EXPECT_STREQ(callSlot<const char *>(object, 9, 3), log.constData());
    EXPECT_STREQ(callSlot<const char *>(object, 9, 4), "");
    EXPECT_STREQ(callSlot<const char *>(object, 9, -1), "");
    EXPECT_STREQ(callSlot<const char *>(object, 10, 0), "arial.ttf");
    EXPECT_STREQ(callSlot<const char *>(object, 10, 1), "");
    for (int slot : {11, 12, 14, 15})
        EXPECT_EQ(callSlot<int>(object, slot), 0) << slot;
    EXPECT_EQ(callSlot<int>(object, 13), 15);
    void *block = callSlot<void *>(object, 16, std::size_t{1 << 20});
    EXPECT_NE(block, nullptr);
    EXPECT_EQ(callSlot<void *>(object, 16, std::size_t{1 << 20}), block);
    const auto *region = callSlot<const libvp::VDRegionRecord *>(object, 17);
    EXPECT_EQ(region->dvdRegion, 1);
    EXPECT_EQ(region->reserved8, 2050);
}

TEST_F(PlayerSlots, OrbixCallback)
{
    Heard error(*player, &QPlayer::sig_errorOccured);
    Heard event(*player, &QPlayer::sig_DiscEventOccured);
    Heard discError(*player, &QPlayer::sig_DiscError);
    void *object = static_cast<libvp::IVDOrbixCallback *>(player.get());
    callSlot(object, 1, static_cast<int>(libvp::VD_Error_ShaderInvalid));
    callSlot(object, 2, 1, 2);
    callSlot(object, 3, 'E', static_cast<int>(libvp::VD_Disc_Ejected));
    callSlot(object, 4, 'F', static_cast<int>(libvp::VD_DiscError_Protected));
    ASSERT_EQ(error.all.size(), 1U);
    EXPECT_EQ(std::get<0>(error.all[0]), libvp::VD_Error_ShaderInvalid);
    ASSERT_EQ(event.all.size(), 1U);
    EXPECT_EQ(std::get<0>(event.all[0]), 'E');
    EXPECT_EQ(std::get<1>(event.all[0]), libvp::VD_Disc_Ejected);
    ASSERT_EQ(discError.all.size(), 1U);
    EXPECT_EQ(std::get<0>(discError.all[0]), 'F');
    EXPECT_EQ(std::get<1>(discError.all[0]), libvp::VD_DiscError_Protected);
}

TEST_F(PlayerSlots, PlayToolConfig)
{
    ASSERT_TRUE(player->ensureTool());
    void *object = engine.toolConfig();
    EXPECT_EQ(callSlot<int>(object, 1), qRound(640 * widget.devicePixelRatioF()));
    EXPECT_EQ(callSlot<int>(object, 2), qRound(360 * widget.devicePixelRatioF()));
    EXPECT_FALSE(callSlot<bool>(object, 3));
    auto **block = callSlot<void **>(object, 4);
    EXPECT_EQ(block[0], reinterpret_cast<void *>(window));
}

TEST_F(PlayerSlots, PlaytoolCallback)
{
    Heard volume(*player, &QPlayer::sig_volumeChanged);
    Heard mute(*player, &QPlayer::sig_muteChanged);
    void *object = static_cast<libvp::IVDPlaytoolCallback *>(player.get());
    callSlot(object, 1, 0.75F);
    callSlot(object, 2, true);
    ASSERT_EQ(volume.all.size(), 1U);
    EXPECT_EQ(std::get<0>(volume.all[0]), 0.75F);
    ASSERT_EQ(mute.all.size(), 1U);
    EXPECT_TRUE(std::get<0>(mute.all[0]));
}

TEST_F(PlayerSlots, PlayCallback)
{
    void *object = static_cast<libvp::IVDPlayCallback *>(player.get());
    libvp::VDVideoInfo video;
    libvp::VDAudioInfo audio;
    libvp::VDSubtitleInfo subtitle;
    unsigned char pixel[4] = {};
    vdFileInfo file;
    file.width = 77;
    vdStopPlayInfo stop;
    std::strcpy(stop.path, "/stopped");

    callSlot(object, 1);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnPlayBackEnded")));
    callSlot(object, 2);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnPlayBackStarted")));
    callSlot(object, 3);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnPlayBackPaused")));
    callSlot(object, 4);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnPlayBackResumed")));
    callSlot(object, 5, stop);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnStopInfo(/stopped")));
    callSlot(object, 6);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnPlayBackStopped")));
    callSlot(object, 7);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnQueueNextItem")));
    callSlot(object, 8, 1, 2);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnPlayBackSeek(1, 2)")));
    callSlot(object, 9, 3);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnPlayBackSeekChapter(3)")));
    callSlot(object, 10, 2.0F);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnPlayBackSpeedChanged(2)")));
    callSlot(object, 11, 5, file);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnPlayBackFailed(5")));
    EXPECT_EQ(player->fileInfo().width, 77);
    callSlot(object, 12, 6, "no", file);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnDiscRefused(6, no")));
    callSlot(object, 13, 1, 2);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] reserved13(1, 2)")));
    callSlot(object, 14, 4000, 5000);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnTime(4000, 5000)")));
    callSlot(object, 15, 4);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnTitle(4)")));
    callSlot(object, 16, 1, 2);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnChapter(1, 2)")));
    callSlot<void, const libvp::VDVideoInfo *>(object, 17, &video);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnVideoInfo(")));
    callSlot<void, const libvp::VDAudioInfo *>(object, 18, &audio);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnAudioInfo(")));
    callSlot<void, const libvp::VDSubtitleInfo *>(object, 19, &subtitle);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnSubtitleInfo(")));
    callSlot(object, 20, 1, 2);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] reserved20(1, 2)")));
    callSlot(object, 21, 1, 2);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] reserved21(1, 2)")));
    callSlot(object, 22, 1);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnDynamicRange(1)")));
    callSlot(object, 23, 1);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnSeekState(1)")));
    callSlot(object, 24);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] reserved24()")));
    callSlot(object, 25, 8);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] reserved25(8)")));
    callSlot(object, 26);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] reserved26()")));
    callSlot(object, 27);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] reserved27()")));
    callSlot<void, unsigned char *>(object, 28, pixel, 1, 1);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnScreenshot(1, 1)")));
    callSlot(object, 29, 1, 2, 3);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] reserved29(1, 2, 3)")));
    callSlot(object, 30, 1, 2, 3);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] reserved30(1, 2, 3)")));
    callSlot(object, 31, "{}");
    EXPECT_TRUE(logged(QStringLiteral("[Engine] OnStatistics({})")));
    callSlot(object, 32, 9);
    EXPECT_TRUE(logged(QStringLiteral("[Engine] reserved32(9)")));

    bool heard = false;
    player->setPcmSink([&heard](const libvp::VDPcmFrame &) { heard = true; });
    const unsigned char samples[8] = {};
    libvp::VDPcmFrame frame;
    frame.samples = samples;
    frame.frameCount = 2;
    frame.bytesPerFrame = 4;
    callSlot<void, const libvp::VDPcmFrame *>(object, 33, &frame);
    EXPECT_TRUE(heard);
}
