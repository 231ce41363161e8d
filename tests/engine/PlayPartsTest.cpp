// The parts that need no libmpv.
#include "engine/EngineThread.h"
#include "engine/LastFrame.h"
#include "engine/Notifier.h"
#include "engine/PlayReport.h"
#include "engine/ResumeMemory.h"
#include "engine/SeekQueue.h"
#include "engine/ShaderWatch.h"
#include "engine/SourcePlan.h"
#include "engine/SpeedControl.h"
#include "engine/TrackList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <future>

using namespace std::chrono_literals;
using testing::ElementsAre;

namespace {

TEST(PlaySeekQueue, NewestOfTheWaitingReplacesTheOthers)
{
    std::vector<double> started;
    SeekQueue queue([&](const SeekQueue::Seek &seek) { started.push_back(seek.target); });
    for (const double target : {1.0, 2.0, 3.0, 4.0}) {
        SeekQueue::Seek seek;
        seek.target = target;
        queue.request(seek);
    }
    EXPECT_THAT(started, ElementsAre(1.0));
    EXPECT_EQ(queue.target(), 4.0);
    EXPECT_EQ(queue.finish()->target, 1.0);
    queue.startWaiting();
    EXPECT_THAT(started, ElementsAre(1.0, 4.0));
    EXPECT_TRUE(queue.finish());
    EXPECT_FALSE(queue.finish());
    queue.startWaiting();
    EXPECT_FALSE(queue.isBusy());
}

class FakeHost final : public SpeedControl::Host {
public:
    void applySpeed(double speed) override { log("speed", speed); }
    void applyPause(bool paused) override { log("pause", paused ? 1 : 0); }
    void applyStep(double seconds, bool exact) override
    {
        steps.push_back(seconds);
        wasExact = exact;
    }
    void applyPosition(double seconds) override { log("position", seconds); }
    double currentPosition() override { return position; }
    double sourceLength() override { return 100; }
    bool canStep() override { return steppable; }
    void tellPaused() override { log("paused", 0); }
    void tellResumed() override { log("resumed", 0); }
    void tellSpeed(float speed) override { log("told", static_cast<double>(speed)); }

    void log(const std::string &what, double value)
    {
        calls.push_back(what + " " + std::to_string(static_cast<int>(value * 100)));
    }

    std::vector<std::string> calls;
    std::vector<double> steps;
    bool wasExact = false;
    double position = 50;
    bool steppable = true;
};

TEST(PlaySpeedControl, RewindStepsByTheClockHoweverLongAStepTakes)
{
    FakeHost host;
    SpeedControl control(host, false);
    control.select(2);
    EXPECT_THAT(host.calls, ElementsAre("pause 100", "speed 100", "told -800"));
    const auto begin = SpeedControl::Clock::now();
    control.tick(begin + 500ms);
    control.tick(begin + 900ms); // the step still runs
    ASSERT_EQ(host.steps.size(), 1u);
    EXPECT_NEAR(host.steps[0], 46, 0.1);
    EXPECT_TRUE(host.wasExact);
    control.stepDone(begin + 1000ms);
    control.tick(begin + 1000ms);
    ASSERT_EQ(host.steps.size(), 2u);
    EXPECT_NEAR(host.steps[1], 42, 0.1);
    EXPECT_FALSE(host.wasExact) << "exact pictures take too long here";
}

TEST(PlaySpeedControl, RewindEndsAtTheBeginningInNormalSpeed)
{
    FakeHost host;
    host.position = 1;
    SpeedControl control(host, false);
    control.select(0);
    host.calls.clear();
    control.tick(SpeedControl::Clock::now() + 1s);
    EXPECT_FALSE(control.isStepping());
    EXPECT_EQ(control.speed(), 1);
    EXPECT_EQ(host.calls.front(), "position 0");
    EXPECT_EQ(host.calls.back(), "told 100");
}

TEST(PlaySpeedControl, FastForwardThatLagsTurnsToSteps)
{
    FakeHost host;
    SpeedControl control(host, false);
    control.select(16);
    const auto begin = SpeedControl::Clock::now();
    control.checkPace(10, begin);
    control.checkPace(14, begin + 1s);
    EXPECT_FALSE(control.isStepping());
    control.checkPace(16, begin + 1600ms);
    EXPECT_TRUE(control.isStepping());
    EXPECT_EQ(control.speed(), 16);
}

TEST(PlaySpeedControl, FastForwardThatKeepsUpStays)
{
    FakeHost host;
    SpeedControl control(host, false);
    control.select(14);
    const auto begin = SpeedControl::Clock::now();
    control.checkPace(10, begin);
    control.checkPace(16, begin + 1600ms);
    EXPECT_FALSE(control.isStepping());
}

TEST(PlaySpeedControl, SlowMotionSurvivesAPauseAndASearchDoesNot)
{
    FakeHost host;
    SpeedControl control(host, false);
    control.select(7);
    control.togglePause();
    control.togglePause();
    EXPECT_EQ(control.speed(), 0.5f);
    EXPECT_EQ(host.calls.back(), "told 50");
    control.select(15);
    control.togglePause();
    control.togglePause();
    EXPECT_EQ(control.speed(), 1);
    EXPECT_EQ(host.calls.back(), "resumed 0");
}

TEST(PlayNotifier, LinesAreServedInOrderAndNothingComesAfterClose)
{
    Notifier notifier;
    const auto line = notifier.openLine();
    std::vector<int> seen;
    for (int i = 0; i < 100; ++i)
        notifier.post(line, [&seen, i] { seen.push_back(i); });
    notifier.flush(line);
    ASSERT_EQ(seen.size(), 100u);
    EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));

    std::promise<void> inside;
    std::promise<void> go;
    notifier.post(line, [&] {
        inside.set_value();
        go.get_future().wait();
        seen.push_back(1000);
    });
    notifier.post(line, [&] { seen.push_back(2000); });
    inside.get_future().wait();
    std::thread closer([&] { notifier.close(line); });
    while (notifier.waiting() > 0)
        std::this_thread::yield();
    go.set_value();
    closer.join();
    EXPECT_EQ(seen.back(), 1000);
    notifier.post(line, [&] { seen.push_back(3000); });
    EXPECT_EQ(notifier.waiting(), 0u);
}

TEST(PlayNotifier, ANotificationThatThrowsHarmsNobody)
{
    Notifier notifier;
    const auto line = notifier.openLine();
    bool later = false;
    notifier.post(line, [] { throw std::runtime_error("player"); });
    notifier.post(line, [&later] { later = true; });
    notifier.flush(line);
    EXPECT_TRUE(later);
}

TEST(PlayResumeMemory, KeepsTheNewestOnly)
{
    ResumeMemory memory;
    for (std::size_t i = 0; i <= ResumeMemory::capacity; ++i)
        memory.store("clip" + std::to_string(i), {static_cast<int>(i), -1, -1});
    EXPECT_FALSE(memory.find("clip0"));
    EXPECT_EQ(memory.find("clip7")->audio, 7);
    memory.store("clip7", {1, 2, 3});
    EXPECT_EQ(memory.find("clip7")->subtitle, 2);
}

TEST(PlayShaderWatch, OnlyTheOutputsComplaintsCountAndOnlyOnce)
{
    ShaderWatch watch;
    EXPECT_FALSE(watch.isRefusal("vo/gpu", "Shader appears to contain no headers!"));
    watch.arm();
    EXPECT_FALSE(watch.isRefusal("ffmpeg", "shader compile log (status=0)"));
    EXPECT_FALSE(watch.isRefusal("vo/gpu/opengl", "Suspected software renderer"));
    EXPECT_TRUE(watch.isRefusal("vo/gpu/opengl", "fragment shader compile log (status=0):"));
    EXPECT_FALSE(watch.isRefusal("vo/gpu/opengl", "fragment shader compile log (status=0):"));
}

TEST(PlayLastFrame, OddAnswersGiveNoPicture)
{
    const auto answer = [](int w, int h, int stride, std::size_t bytes, const char *format) {
        return MpvValue(
            MpvMap{{"w", w}, {"h", h}, {"stride", stride}, {"format", format}, {"data", MpvBytes(bytes, 9)}});
    };
    EXPECT_FALSE(LastFrame::read(answer(2, 2, 12, 20, "bgr0"), LastFrame::Order::Bgra).isNull());
    EXPECT_TRUE(LastFrame::read(answer(2, 2, 12, 19, "bgr0"), LastFrame::Order::Bgra).isNull());
    EXPECT_TRUE(LastFrame::read(answer(2, 2, 4, 16, "bgr0"), LastFrame::Order::Bgra).isNull());
    EXPECT_TRUE(LastFrame::read(answer(0, 2, 8, 16, "bgr0"), LastFrame::Order::Bgra).isNull());
    EXPECT_TRUE(LastFrame::read(answer(-5, -5, -20, 16, "bgr0"), LastFrame::Order::Bgra).isNull());
    EXPECT_TRUE(LastFrame::read(answer(2, 2, 8, 16, "yuv420p"), LastFrame::Order::Bgra).isNull());
    EXPECT_TRUE(LastFrame::read(MpvValue(), LastFrame::Order::Rgba).isNull());
}

TEST(PlayTrackList, LongNamesAreCutBetweenCharacters)
{
    std::string name;
    for (int i = 0; i < 2000; ++i)
        name += "\xC3\xA4";
    const TrackList tracks = TrackList::read(
        MpvList{MpvMap{{"type", "audio"}, {"id", 1}, {"title", name}, {"lang", std::string(500, 'x')}}});
    ASSERT_EQ(tracks.audio.size(), 1u);
    EXPECT_EQ(std::string(tracks.audio[0].record.name).size(), 2046u);
    EXPECT_EQ(std::string(tracks.audio[0].record.language).size(), 127u);
}

TEST(PlayReport, StopRecordCutsALongPath)
{
    const auto info = PlayReport::stopInfo(std::string(5000, 'p'), 1.5, 3, PlayReport::Outcome::Closed);
    EXPECT_EQ(std::string(info.path).size(), 2047u);
    EXPECT_EQ(info.positionMs, 1500);
    EXPECT_EQ(info.totalMs, 3000);
    EXPECT_EQ(info.reachedEnd, 0);
    EXPECT_EQ(PlayReport::milliseconds(1e12), std::numeric_limits<int>::max());
    EXPECT_EQ(PlayReport::milliseconds(-1), 0);
}

TEST(PlaySourcePlan, OnlyKnownSchemesAreNetworkAddresses)
{
    EXPECT_TRUE(SourcePlan::isNetworkAddress("http://h/x"));
    EXPECT_TRUE(SourcePlan::isNetworkAddress("RTSP://h/x"));
    for (const char *path : {"a://b.mkv", "edl://x", "memory://x", "fd://0", "file:///x", "av://x",
                             "lavf://x", "archive://x", "/x/http://y", "http:/x", ""})
        EXPECT_FALSE(SourcePlan::isNetworkAddress(path)) << path;
}

TEST(PlayEngineThread, TimersRunOnceAndMayBeCancelled)
{
    EngineThread thread;
    std::vector<int> ran;
    EngineThread::TimerId second = 0;
    thread.after(1ms, [&] {
        ran.push_back(1);
        thread.cancel(second);
    });
    second = thread.after(2ms, [&] { ran.push_back(2); });
    thread.after(1h, [&] { ran.push_back(3); });
    thread.runTimers(EngineThread::Clock::now() + 1s);
    thread.runTimers(EngineThread::Clock::now() + 1s);
    EXPECT_THAT(ran, ElementsAre(1));
    EXPECT_GT(thread.secondsToNextTimer(EngineThread::Clock::now(), 1e9), 3000);
    thread.close();
    EXPECT_FALSE(thread.post([] {}));
}

} // namespace
