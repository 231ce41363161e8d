#include "play/PlayRig.h"
#include "play/TestClips.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace libvp;
using namespace std::chrono_literals;
using Event = PlayRecorder::Event;

namespace {

class PlayTransport : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(m_rig.open(TestClips::path("plain.mp4"))); }

    bool waitForSpeed(double speed)
    {
        return m_rig.recorder->waitUntil([speed](const Event &event) {
            return event.name == "SpeedChanged" && std::abs(event.number - speed) < 0.01;
        });
    }

    double shownPosition() { return m_rig.tool->readProperty("time-pos").number(-1); }

    // Times told after an event, in milliseconds, with when they were told.
    std::vector<Event> timesAfter(const std::string &name)
    {
        std::vector<Event> times;
        bool after = false;
        for (const Event &event : m_rig.recorder->events()) {
            after = after || event.name == name;
            if (after && event.name == "Time")
                times.push_back(event);
        }
        return times;
    }

    PlayRig m_rig;
};

TEST_F(PlayTransport, PauseAndResumeAnswerAndHold)
{
    m_rig.play->togglePause();
    ASSERT_TRUE(m_rig.recorder->waitFor("Paused"));
    EXPECT_TRUE(m_rig.play->isPaused());
    EXPECT_TRUE(m_rig.play->isPlaying());
    EXPECT_TRUE(m_rig.tool->readProperty("pause").flag());
    const double stood = shownPosition();
    EXPECT_NEAR(m_rig.play->currentSeconds(), stood, 0.3);
    m_rig.play->togglePause();
    ASSERT_TRUE(m_rig.recorder->waitFor("Resumed"));
    EXPECT_FALSE(m_rig.play->isPaused());
    EXPECT_FALSE(m_rig.tool->readProperty("pause").flag());
    EXPECT_TRUE(m_rig.waitForTime([stood](int ms) { return ms > stood * 1000 + 300; }));
}

TEST_F(PlayTransport, TimeIsToldSeveralTimesASecondButNotEachFrame)
{
    ASSERT_TRUE(m_rig.waitForTime([](int ms) { return ms > 2000; }));
    const int count = m_rig.recorder->count("Time");
    EXPECT_GE(count, 8);
    EXPECT_LE(count, 25);
    EXPECT_NEAR(m_rig.recorder->last("Time").second, 10000, 200);
}

TEST_F(PlayTransport, ExactSeekShowsTheFrame)
{
    m_rig.play->togglePause();
    m_rig.play->seek(4.5, 1);
    ASSERT_TRUE(m_rig.recorder->waitForSeek(VD_Seek_End));
    EXPECT_NEAR(shownPosition(), 4.5, 0.05);
    EXPECT_EQ(m_rig.recorder->last("Seek").second, 4500);
    EXPECT_TRUE(m_rig.recorder->waitForSeek(VD_Seek_Begin));
    EXPECT_TRUE(m_rig.waitForTime([](int ms) { return std::abs(ms - 4500) < 60; })) << "told while paused";
}

TEST_F(PlayTransport, KeyFrameSeekGoesToAKeyFrame)
{
    m_rig.play->togglePause();
    m_rig.play->seek(4.5, 0);
    ASSERT_TRUE(m_rig.recorder->waitForSeek(VD_Seek_End));
    EXPECT_NEAR(shownPosition(), 4.0, 0.05);
}

TEST_F(PlayTransport, SeekOutsideTheSourceIsClamped)
{
    m_rig.play->togglePause();
    ASSERT_TRUE(m_rig.recorder->waitFor("Paused"));
    m_rig.play->seek(-5, 1);
    ASSERT_TRUE(m_rig.recorder->waitForSeek(VD_Seek_End));
    EXPECT_NEAR(shownPosition(), 0, 0.05);
    m_rig.play->seek(std::nan(""), 1);
    m_rig.play->seek(2, 1);
    ASSERT_TRUE(m_rig.recorder->waitForSeek(VD_Seek_End, 2));
    EXPECT_NEAR(shownPosition(), 2, 0.05);
}

TEST_F(PlayTransport, OfASeekStormOnlyTheNewestWaits)
{
    m_rig.play->togglePause();
    for (int i = 1; i <= 40; ++i)
        m_rig.play->seek(i * 0.2, 1);
    ASSERT_TRUE(m_rig.recorder->waitUntil(
        [](const Event &event) { return event.name == "Seek" && event.second == 8000; }));
    const int begun = m_rig.recorder->count("Seek");
    ASSERT_TRUE(m_rig.recorder->waitForSeek(VD_Seek_End, begun));
    EXPECT_NEAR(shownPosition(), 8.0, 0.05);
    EXPECT_LT(begun, 20);
}

TEST_F(PlayTransport, SeekWhilePlayingGoesOnFromThere)
{
    m_rig.play->seek(7, 1);
    ASSERT_TRUE(m_rig.recorder->waitForSeek(VD_Seek_End));
    EXPECT_TRUE(m_rig.waitForTime([](int ms) { return ms > 7400 && ms < 9000; }));
}

TEST_F(PlayTransport, EachSpeedAboveNullIsTakenOver)
{
    for (int index = 6; index < SpeedControl::indexCount; ++index) {
        const double speed = static_cast<double>(SpeedControl::speedOf(index));
        m_rig.play->setSpeedIndex(index);
        ASSERT_TRUE(waitForSpeed(speed)) << index;
        EXPECT_DOUBLE_EQ(m_rig.tool->readProperty("speed").number(), speed);
        EXPECT_FLOAT_EQ(m_rig.play->speed(), SpeedControl::speedOf(index));
        m_rig.play->setSpeedIndex(SpeedControl::normalIndex);
        m_rig.play->seek(0, 1);
        ASSERT_TRUE(waitForSpeed(1));
    }
}

TEST_F(PlayTransport, FastForwardRunsAtItsSpeed)
{
    m_rig.play->setSpeedIndex(14);
    ASSERT_TRUE(waitForSpeed(4));
    const auto begin = std::chrono::steady_clock::now();
    const double from = m_rig.play->currentSeconds();
    ASSERT_TRUE(m_rig.waitForTime([from](int ms) { return ms > (from + 6) * 1000; }));
    const double took = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    EXPECT_NEAR(took, 1.5, 0.6);
}

TEST_F(PlayTransport, RewindRunsBackEvenlyAtItsSpeed)
{
    m_rig.play->seek(9, 1);
    ASSERT_TRUE(m_rig.recorder->waitForSeek(VD_Seek_End));
    m_rig.play->setSpeedIndex(4);
    ASSERT_TRUE(waitForSpeed(-2));
    EXPECT_FLOAT_EQ(m_rig.play->speed(), -2);
    EXPECT_FALSE(m_rig.play->isPaused());
    ASSERT_TRUE(m_rig.waitForTime([](int ms) { return ms > 5000 && ms < 6000; }, 6s));
    const double shown = shownPosition();
    EXPECT_NEAR(shown, m_rig.play->currentSeconds(), 0.8) << "the picture follows";
    const std::vector<Event> times = timesAfter("SpeedChanged");
    ASSERT_GE(times.size(), 5u);
    for (std::size_t i = 1; i < times.size(); ++i)
        EXPECT_LE(times[i].first, times[i - 1].first);
    const double seconds = std::chrono::duration<double>(times.back().at - times.front().at).count();
    EXPECT_NEAR((times.front().first - times.back().first) / 1000.0 / seconds, 2.0, 0.4);
}

TEST_F(PlayTransport, RewindStopsAtTheBeginningAndPlaysOn)
{
    m_rig.play->seek(3, 1);
    ASSERT_TRUE(m_rig.recorder->waitForSeek(VD_Seek_End));
    m_rig.play->setSpeedIndex(2);
    ASSERT_TRUE(waitForSpeed(-8));
    ASSERT_TRUE(waitForSpeed(1));
    EXPECT_FLOAT_EQ(m_rig.play->speed(), 1);
    EXPECT_LT(m_rig.play->currentSeconds(), 1);
    EXPECT_FALSE(m_rig.tool->readProperty("pause").flag());
    EXPECT_TRUE(m_rig.waitForTime([](int ms) { return ms > 200 && ms < 2000; }));
}

TEST_F(PlayTransport, PauseEndsARewindWhereItIs)
{
    m_rig.play->seek(9, 1);
    ASSERT_TRUE(m_rig.recorder->waitForSeek(VD_Seek_End));
    m_rig.play->setSpeedIndex(4);
    ASSERT_TRUE(m_rig.waitForTime([](int ms) { return ms > 6000 && ms < 8000; }));
    m_rig.play->togglePause();
    ASSERT_TRUE(m_rig.recorder->waitFor("Paused"));
    const double stood = m_rig.play->currentSeconds();
    EXPECT_GT(stood, 5);
    EXPECT_LT(stood, 8.2);
    m_rig.play->togglePause();
    ASSERT_TRUE(m_rig.recorder->waitFor("Resumed"));
    EXPECT_FLOAT_EQ(m_rig.play->speed(), 1);
}

TEST_F(PlayTransport, SourceThatCannotBeRewoundKeepsItsSpeed)
{
    ASSERT_TRUE(m_rig.open(TestClips::path("song.flac")));
    m_rig.play->setSpeedIndex(3);
    ASSERT_TRUE(waitForSpeed(1));
    EXPECT_FLOAT_EQ(m_rig.play->speed(), 1);
    EXPECT_TRUE(m_rig.recorder->waitFor("Ended"));
}

TEST_F(PlayTransport, SpeedNullPausesAndSpeedOneGoesOn)
{
    m_rig.play->setSpeedIndex(5);
    ASSERT_TRUE(waitForSpeed(0));
    EXPECT_TRUE(m_rig.play->isPaused());
    EXPECT_FLOAT_EQ(m_rig.play->speed(), 0);
    EXPECT_TRUE(m_rig.tool->readProperty("pause").flag());
    m_rig.play->setSpeedIndex(SpeedControl::normalIndex);
    ASSERT_TRUE(waitForSpeed(1));
    EXPECT_FALSE(m_rig.play->isPaused());
    EXPECT_FALSE(m_rig.tool->readProperty("pause").flag());
}

TEST_F(PlayTransport, IndexOutsideTheTableIsIgnored)
{
    m_rig.play->setSpeedIndex(18);
    m_rig.play->setSpeedIndex(-1);
    m_rig.play->setSpeedIndex(13);
    ASSERT_TRUE(waitForSpeed(2));
    EXPECT_EQ(m_rig.recorder->count("SpeedChanged"), 1);
}

TEST_F(PlayTransport, FrameStepsGoOneFrameBothWays)
{
    m_rig.play->togglePause();
    m_rig.play->seek(5, 1);
    ASSERT_TRUE(m_rig.recorder->waitForSeek(VD_Seek_End));
    const double from = shownPosition();
    m_rig.play->toggleStep();
    ASSERT_TRUE(m_rig.waitForProperty("time-pos", [from](const MpvValue &value) {
        return std::abs(value.number() - from - 0.04) < 0.005;
    }));
    EXPECT_TRUE(m_rig.play->isPaused());
    ASSERT_TRUE(m_rig.tool->setIntProperty("play.step", -1));
    ASSERT_TRUE(m_rig.waitForProperty(
        "time-pos", [from](const MpvValue &value) { return std::abs(value.number() - from) < 0.005; }));
    EXPECT_FALSE(m_rig.tool->setIntProperty("play.step", 2));
}

TEST_F(PlayTransport, FrameStepWhilePlayingPauses)
{
    m_rig.play->toggleStep();
    ASSERT_TRUE(m_rig.recorder->waitFor("Paused"));
    EXPECT_TRUE(m_rig.play->isPaused());
}

TEST_F(PlayTransport, EndBringsTheStopRecordFirst)
{
    m_rig.play->seek(9.5, 1);
    ASSERT_TRUE(m_rig.recorder->waitFor("Ended"));
    const std::vector<std::string> order = m_rig.recorder->order();
    const auto tail = std::vector<std::string>(order.end() - 3, order.end());
    EXPECT_THAT(tail, testing::ElementsAre("StopInfo", "Statistics", "Ended"));
    const vdStopPlayInfo &info = m_rig.recorder->stopInfo;
    EXPECT_EQ(std::string(info.path), TestClips::path("plain.mp4"));
    EXPECT_EQ(info.reachedEnd, 1);
    EXPECT_EQ(info.positionMs, info.totalMs);
    EXPECT_NEAR(static_cast<double>(info.totalMs), 10000, 200);
    EXPECT_FALSE(m_rig.play->isPlaying());
    m_rig.close();
    EXPECT_EQ(m_rig.recorder->count("Stopped"), 0);
    EXPECT_EQ(m_rig.recorder->count("StopInfo"), 1);
}

TEST_F(PlayTransport, SeekToTheEndEndsThePlay)
{
    m_rig.play->seek(10, 1);
    EXPECT_TRUE(m_rig.recorder->waitFor("Ended"));
}

TEST_F(PlayTransport, CloseBeforeTheEndBringsPositionAndFrame)
{
    ASSERT_TRUE(m_rig.open(TestClips::path("red.mp4")));
    m_rig.play->togglePause();
    m_rig.play->seek(2, 1);
    ASSERT_TRUE(m_rig.recorder->waitForSeek(VD_Seek_End));
    m_rig.close();
    const vdStopPlayInfo &info = m_rig.recorder->stopInfo;
    EXPECT_EQ(info.reachedEnd, 0);
    EXPECT_NEAR(static_cast<double>(info.positionMs), 2000, 100);
    EXPECT_EQ(m_rig.recorder->order().back(), "Stopped");
    ASSERT_EQ(info.imageWidth, 320);
    ASSERT_EQ(info.imageHeight, 180);
    const unsigned char *pixel = m_rig.recorder->lastFrame.data() + (90 * 320 + 160) * 4;
    EXPECT_LT(pixel[0], 30) << "blue first";
    EXPECT_LT(pixel[1], 30);
    EXPECT_GT(pixel[2], 220) << "red third";
    EXPECT_EQ(pixel[3], 255);
}

TEST_F(PlayTransport, ScreenshotIsRgbaAndScales)
{
    ASSERT_TRUE(m_rig.open(TestClips::path("red.mp4")));
    ASSERT_TRUE(m_rig.tool->takeScreenshot(0, 0, 0));
    ASSERT_TRUE(m_rig.recorder->waitFor("Screenshot"));
    EXPECT_EQ(m_rig.recorder->last("Screenshot").first, 320);
    EXPECT_GT(m_rig.recorder->screenshot[0], 220) << "red first";
    EXPECT_LT(m_rig.recorder->screenshot[2], 30);
    EXPECT_EQ(m_rig.recorder->screenshot[3], 255);
    ASSERT_TRUE(m_rig.tool->takeScreenshot(1, 100, 100));
    ASSERT_TRUE(m_rig.recorder->waitFor("Screenshot", 2));
    EXPECT_EQ(m_rig.recorder->last("Screenshot").first, 100);
    EXPECT_EQ(m_rig.recorder->last("Screenshot").second, 56);
}

TEST_F(PlayTransport, SongHasNoScreenshot)
{
    ASSERT_TRUE(m_rig.open(TestClips::path("song.flac")));
    EXPECT_FALSE(m_rig.tool->takeScreenshot(0, 0, 0));
}

} // namespace
