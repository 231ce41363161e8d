// Commands, opens, stops and notifications at the same time.
#include "PlayerFixture.h"

#include <atomic>
#include <thread>

namespace {

using QPlayerConcurrency = PlayerTest;

void everyCommand(QPlayer &player, int round)
{
    player.seek(round);
    player.togglePause();
    player.speedUp(round % 2 == 0);
    player.setSpeedIndex(9);
    player.setVolume(0.01F * static_cast<float>(round % 200));
    player.setMute(round % 2 == 0);
    player.nextChapter();
    player.setSubtitleTrack(round % 3 - 1);
    player.setAudioTrack(round % 2);
    player.setViewMode(round % 14);
    player.flip(round % 6);
    QList<PlayerAudioTrack> tracks;
    player.audioTracks(&tracks);
    (void)player.currentTime();
    (void)player.totalTime();
    (void)player.isPlaying();
    (void)player.status();
    (void)player.fileTypeText();
    (void)player.lastFrame();
    player.setSource(QStringLiteral("/films/%1.mkv").arg(round));
    player.takeScreenshot(0, 0, 0);
}

void everyNotification(libvp::IVDPlayCallback &callback, int round)
{
    const libvp::VDVideoInfo video;
    unsigned char pixels[16] = {};
    callback.OnVideoInfo(&video);
    callback.OnPlayBackStarted();
    callback.OnTime(round * 100, 100000);
    callback.OnDynamicRange(round % 3);
    callback.OnScreenshot(pixels, 2, 2);
    vdStopPlayInfo info;
    info.image = pixels;
    info.imageWidth = 2;
    info.imageHeight = 2;
    callback.OnStopInfo(info);
    callback.OnPlayBackStopped();
}

} // namespace

TEST_F(QPlayerConcurrency, FourThreadsOfCommandsWhileAnotherOpensAndStopsAndNotificationsCome)
{
    constexpr int rounds = 150;
    engine.setAutomatic(true);
    engine.setAudioTracks({{}, {}});
    engine.answer("IVDPlay::chapterCount", 4);
    std::atomic_int heard{0};
    // A slot on the engine's thread that itself commands.
    QObject::connect(
        player.get(), &QPlayer::sig_playStatusChanged, player.get(),
        [&](QPlayer::QPlayerStatus) {
            (void)player->currentTime();
            ++heard;
        },
        Qt::DirectConnection);
    std::atomic_bool done{false};
    std::vector<std::thread> threads;
    for (int number = 0; number < 4; ++number) {
        threads.emplace_back([&, number] {
            for (int round = number; !done; ++round) {
                everyCommand(*player, round);
                // Locks are not fair: who releases one and takes it at once leaves the opener none.
                std::this_thread::yield();
            }
        });
    }
    threads.emplace_back([&] {
        for (int round = 0; !done; ++round) {
            engine.raise([round](libvp::IVDPlayCallback &callback) { everyNotification(callback, round); });
            engine.raiseOrbix(
                [](libvp::IVDOrbixCallback &callback) { callback.OnDiscEvent('D', libvp::VD_Disc_Arrived); });
            (void)engine.waitNotified();
        }
    });
    std::thread opener([&] {
        for (int round = 0; round < rounds; ++round) {
            player->stop();
            player->openFile(round);
        }
    });
    std::thread stopper([&] {
        for (int round = 0; round < rounds; ++round)
            player->stop();
    });
    opener.join();
    stopper.join();
    done = true;
    for (std::thread &thread : threads)
        thread.join();
    settle();
    player->stop();
    EXPECT_EQ(engine.play(), nullptr);
    EXPECT_GT(heard, 0);

    int opens = 0;
    int closes = 0;
    int releases = 0;
    for (const std::string &call : engine.calls()) {
        opens += call.rfind("IVDPlayTool::createPlay(", 0) == 0;
        closes += call.rfind("IVDPlay::close(", 0) == 0;
        releases += call.rfind("IVDPlayTool::releasePlay(", 0) == 0;
    }
    EXPECT_EQ(opens, rounds);
    EXPECT_EQ(releases, rounds);
    EXPECT_GE(closes, rounds);
}

TEST_F(QPlayerConcurrency, TheOutputIsSetUpOnceFromManyThreads)
{
    std::vector<std::thread> threads;
    for (int number = 0; number < 8; ++number)
        threads.emplace_back([this] { EXPECT_TRUE(player->ensureTool()); });
    for (std::thread &thread : threads)
        thread.join();
    int made = 0;
    for (const std::string &call : engine.calls())
        made += call.rfind("IVDEngineCore::createPlayTool(", 0) == 0;
    EXPECT_EQ(made, 1);
}

TEST_F(QPlayerConcurrency, ANotificationDoesNotWaitForTheSetUp)
{
    engine.hold("IVDPlayTool::isValid");
    std::thread maker([this] { EXPECT_TRUE(player->ensureTool()); });
    ASSERT_TRUE(engine.waitHeld("IVDPlayTool::isValid"));
    QObject::connect(
        player.get(), &QPlayer::sig_errorOccured, player.get(),
        [this](VD_ErrorCallbackType) { player->setVolume(0.5F); }, Qt::DirectConnection);
    ASSERT_TRUE(
        engine.raiseOrbix([](libvp::IVDOrbixCallback &callback) { callback.OnError(libvp::VD_Error_None); }));
    EXPECT_TRUE(engine.waitNotified());
    engine.release("IVDPlayTool::isValid");
    maker.join();
}

TEST_F(QPlayerConcurrency, TheEndOfThePlayerWaitsForItsNotifications)
{
    start();
    engine.setAutomatic(true);
    for (int round = 0; round < 50; ++round)
        engine.raise([round](libvp::IVDPlayCallback &callback) { everyNotification(callback, round); });
    player.reset();
    EXPECT_EQ(engine.core(), nullptr);
}
