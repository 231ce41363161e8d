#include "play/PlayRig.h"
#include "play/TestClips.h"

#include "engine/Play.h"

#include <QElapsedTimer>
#include <QFile>
#include <QHostAddress>
#include <QTcpServer>

#include <gtest/gtest.h>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <clocale>
#include <future>

using namespace libvp;
using namespace std::chrono_literals;

namespace {

int entries(const char *folder)
{
    int count = 0;
    DIR *handle = ::opendir(folder);
    while (handle && ::readdir(handle))
        ++count;
    if (handle)
        ::closedir(handle);
    return count;
}

int threads()
{
    return entries("/proc/self/task");
}

int openFiles()
{
    return entries("/proc/self/fd");
}

// With a source that hangs: what the whole program may take for its end, less a share for all else.
constexpr int kHungCloseMs = 1500;

// Takes connections and never answers.
class SilentServer final {
public:
    SilentServer() { EXPECT_TRUE(m_server.listen(QHostAddress::LocalHost)); }
    std::string address() const
    {
        return "http://127.0.0.1:" + std::to_string(m_server.serverPort()) + "/clip.mp4";
    }

private:
    QTcpServer m_server; // the system takes the connection over
};

TEST(PlayLife, TwoHundredPlaysLeaveNothingBehind)
{
    PlayRig rig;
    const std::string clip = TestClips::path("plain.mp4");
    ASSERT_TRUE(rig.open(clip));
    rig.close();
    const int threadsBefore = threads();
    const int filesBefore = openFiles();
    for (int i = 0; i < 200; ++i) {
        // Some are closed while they open, some at once after, some after their start.
        if (i % 4 == 0) {
            ASSERT_TRUE(rig.open(clip)) << i;
        } else {
            ASSERT_TRUE(rig.begin(clip)) << i;
            if (i % 4 == 2)
                (void)rig.recorder->waitFor("VideoInfo", 1, 20ms);
        }
        rig.close();
        ASSERT_EQ(rig.recorder->count("Failed"), 0) << i;
        ASSERT_EQ(rig.recorder->order().back(), "Stopped") << i;
    }
    EXPECT_LE(openFiles(), filesBefore + 2);
    // The look at a file that was closed at once may still be ending.
    QElapsedTimer timer;
    timer.start();
    while (threads() > threadsBefore && timer.elapsed() < 3000)
        std::this_thread::yield();
    EXPECT_LE(threads(), threadsBefore);
}

TEST(PlayLife, NothingArrivesAfterClose)
{
    PlayRig rig;
    for (int i = 0; i < 10; ++i) {
        ASSERT_TRUE(rig.open(TestClips::path("plain.mp4")));
        for (int k = 0; k < 20; ++k)
            rig.play->seek(k * 0.3, 1);
        rig.play->close();
        const std::size_t count = rig.recorder->events().size();
        rig.play->togglePause();
        rig.play->seek(1, 1);
        rig.tool->setVolume(0.5f);
        ASSERT_TRUE(rig.output.waitForVolume(0.5f));
        EXPECT_EQ(rig.recorder->events().size(), count);
    }
}

TEST(PlayLife, CloseWaitsForTheNotificationUnderWay)
{
    PlayRig rig;
    std::atomic<bool> inside{false};
    std::atomic<bool> left{false};
    ASSERT_TRUE(rig.begin(TestClips::path("plain.mp4")));
    rig.recorder->setHook([&](const PlayRecorder::Event &event) {
        if (event.name != "Started")
            return;
        inside = true;
        // Work of the player that takes its time.
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < 200)
            std::this_thread::yield();
        left = true;
    });
    while (!inside)
        std::this_thread::yield();
    rig.play->close();
    EXPECT_TRUE(left);
}

TEST(PlayLife, PlayerMayCallBackFromANotification)
{
    PlayRig rig;
    ASSERT_TRUE(rig.begin(TestClips::path("tracks.mkv")));
    rig.recorder->setHook([&](const PlayRecorder::Event &event) {
        if (event.name == "Started") {
            rig.play->setAudioTrack(1);
            rig.play->seek(5, 1);
            rig.tool->setVolume(0.2f);
            EXPECT_EQ(rig.play->audioCount(), 3);
        }
    });
    EXPECT_TRUE(rig.recorder->waitForSeek(VD_Seek_End));
    EXPECT_TRUE(rig.recorder->waitUntil(
        [](const PlayRecorder::Event &event) { return event.name == "AudioInfo" && event.first == 1; }));
}

TEST(PlayLife, SilentServerTimesOut)
{
    const SilentServer server;
    PlayRig rig;
    rig.tool->playContext().openLimit = 700ms;
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(rig.open(server.address()));
    EXPECT_EQ(rig.recorder->last("Failed").first, VD_PlayError_TimedOut);
    EXPECT_LT(timer.elapsed(), 3000);
    timer.restart();
    rig.close();
    EXPECT_LT(timer.elapsed(), kHungCloseMs);
    // A good file has the time that it has everywhere.
    rig.tool->playContext().openLimit = PlayContext().openLimit;
    EXPECT_TRUE(rig.open(TestClips::path("short.mp4")));
}

TEST(PlayLife, CloseWhileAServerIsSilentIsQuick)
{
    const SilentServer server;
    PlayRig rig;
    ASSERT_TRUE(rig.begin(server.address()));
    EXPECT_FALSE(rig.recorder->waitFor("Started", 1, 300ms));
    QElapsedTimer timer;
    timer.start();
    rig.close();
    EXPECT_LT(timer.elapsed(), 2000);
    EXPECT_EQ(rig.recorder->order().back(), "Stopped");
    EXPECT_EQ(rig.recorder->count("Failed"), 0);
}

TEST(PlayLife, SourceThatBlocksForEverIsLeftBehind)
{
    // A pipe that passed the look at the source as a disc: the disc library hangs in the system's open().
    const std::string pipe = TestClips::scratchFolder() + "/pipe.mkv";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    PlayRig rig;
    rig.tool->playContext().openLimit = 300ms;
    rig.tool->playContext().makePlan = [](const OpenRequest &request) {
        SourcePlan plan;
        plan.url = "bd://";
        plan.options["bluray-device"] = request.path;
        return plan;
    };
    EXPECT_FALSE(rig.open(pipe));
    EXPECT_EQ(rig.recorder->last("Failed").first, VD_PlayError_TimedOut);
    QElapsedTimer timer;
    timer.start();
    rig.close();
    EXPECT_LT(timer.elapsed(), kHungCloseMs);
    rig.tool->playContext().makePlan = SourcePlan::make;
    rig.tool->playContext().openLimit = 8000ms;
    EXPECT_TRUE(rig.open(TestClips::path("short.mp4"))) << "a fresh instance plays";
    rig.close();
    // Lets the stuck instance go.
    const int writer = ::open(pipe.c_str(), O_WRONLY | O_NONBLOCK);
    EXPECT_GE(writer, 0) << "it was not stuck at all";
    ::close(writer);
}

TEST(PlayLife, ClosingWhileASubtitleFileIsBeingReadAnswersWhoWaitsForIt)
{
    // So many lines that their reading outlasts the test by far.
    const std::string path = TestClips::scratchFolder() + "/large.srt";
    QFile file(QString::fromStdString(path));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    QByteArray lines;
    for (int i = 0; i < 1000; ++i)
        lines += "1\n00:00:00,000 --> 00:00:05,000\nOne of very many lines\n\n";
    for (int i = 0; i < 1000; ++i)
        ASSERT_EQ(file.write(lines), lines.size());
    file.close();
    PlayRig rig;
    ASSERT_TRUE(rig.open(TestClips::path("plain.mp4")));
    const auto session = static_cast<Play *>(rig.play)->session();
    ASSERT_TRUE(session);
    QElapsedTimer timer;
    timer.start();
    auto added = std::async(std::launch::async, [&] { return session->addSubtitle(path); });
    ASSERT_EQ(added.wait_for(300ms), std::future_status::timeout);
    const qint64 closedAt = timer.elapsed();
    rig.play->close();
    EXPECT_EQ(added.wait_for(0ms), std::future_status::ready) << "it answers before the close is over";
    EXPECT_EQ(added.get(), -1);
    EXPECT_LT(timer.elapsed() - closedAt, kHungCloseMs);
    // A question that comes afterwards is not waited for either.
    timer.restart();
    EXPECT_TRUE(session->readProperty("pause").isNone());
    EXPECT_LT(timer.elapsed(), kHungCloseMs);
    EXPECT_TRUE(file.remove());
}

TEST(PlayLife, LookAtTheSourceThatHangsTimesOut)
{
    std::promise<void> release;
    std::shared_future<void> released = release.get_future().share();
    PlayRig rig;
    rig.tool->playContext().openLimit = 300ms;
    rig.tool->playContext().makePlan = [released](const OpenRequest &) {
        released.wait();
        return SourcePlan();
    };
    EXPECT_FALSE(rig.open("/any"));
    EXPECT_EQ(rig.recorder->last("Failed").first, VD_PlayError_TimedOut);
    QElapsedTimer timer;
    timer.start();
    rig.close();
    EXPECT_LT(timer.elapsed(), 1000);
    release.set_value();
}

TEST(PlayLife, OutputMayGoWhilePlaysAreOpening)
{
    for (int i = 0; i < 20; ++i) {
        PlayRig rig;
        ASSERT_TRUE(rig.begin(TestClips::path("plain.mp4")));
        rig.tool.reset(); // as ReleaseVDPlayer() does
        rig.play = nullptr;
        EXPECT_EQ(rig.recorder->order().back(), "Stopped");
    }
}

TEST(PlayLife, OutputMayGoWhilePlaying)
{
    PlayRig rig;
    ASSERT_TRUE(rig.open(TestClips::path("plain.mp4")));
    rig.tool.reset();
    rig.play = nullptr;
    EXPECT_EQ(rig.recorder->order().back(), "Stopped");
}

TEST(PlayLife, OperationsFromManyThreadsAtOnce)
{
    PlayRig rig;
    ASSERT_TRUE(rig.open(TestClips::path("tracks.mkv")));
    std::vector<std::thread> workers;
    for (int worker = 0; worker < 4; ++worker) {
        workers.emplace_back([&rig, worker] {
            for (int i = 0; i < 50; ++i) {
                rig.play->seek((i * 7 + worker) % 9, i % 2);
                rig.play->setAudioTrack(i % 3);
                rig.play->setSubtitleTrack(i % 4 - 1);
                rig.play->setSpeedIndex(i % SpeedControl::indexCount);
                rig.play->togglePause();
                rig.tool->setVolume(static_cast<float>(i) / 50);
                rig.tool->setViewMode(i % 8);
                (void)rig.play->getAudioInfo(i % 3);
                (void)rig.play->currentSeconds();
            }
        });
    }
    for (std::thread &worker : workers)
        worker.join();
    rig.close();
    EXPECT_TRUE(rig.recorder->inOrder());
    EXPECT_EQ(rig.recorder->count("StopInfo"), 1);
}

TEST(PlayLife, NumericLocaleOfTheHostIsMadePlain)
{
    if (!std::setlocale(LC_NUMERIC, "de_DE.UTF-8") && !std::setlocale(LC_NUMERIC, "C.UTF-8"))
        GTEST_SKIP() << "no other locale on this machine";
    PlayRig rig;
    EXPECT_TRUE(rig.tool->isValid());
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
    EXPECT_TRUE(rig.open(TestClips::path("short.mp4")));
}

TEST(PlayLife, WithoutASurfaceTheOutputIsNotValid)
{
    PlayRig rig("gpu,x11", nullptr);
    EXPECT_FALSE(rig.tool->isValid());
    EXPECT_FALSE(rig.begin(TestClips::path("short.mp4")));
}

} // namespace
