// What is asked for between the open and the start.
#include "play/PlayRig.h"
#include "play/TestClips.h"

#include <gtest/gtest.h>

#include <cmath>
#include <future>

using namespace libvp;
using Event = PlayRecorder::Event;

namespace {

// Plays whose opening is held until the test lets it go.
class PlayWaiting : public testing::Test {
protected:
    void beginHeld(const std::string &clip = "plain.mp4", const PlayOptions &options = {})
    {
        m_rig.tool->playContext().makePlan = [held = m_release.get_future().share(),
                                              clip](const OpenRequest &request) {
            held.wait();
            return SourcePlan::make(request);
        };
        ASSERT_TRUE(m_rig.begin(TestClips::path(clip), options));
    }
    void letGo() { m_release.set_value(); }

    PlayRig m_rig;
    std::promise<void> m_release;
};

TEST_F(PlayWaiting, APauseIsCarriedOutAtTheStart)
{
    beginHeld();
    m_rig.play->togglePause();
    letGo();
    ASSERT_TRUE(m_rig.recorder->waitFor("Paused"));
    EXPECT_EQ(m_rig.recorder->count("Started"), 1);
    EXPECT_TRUE(m_rig.play->isPaused());
    EXPECT_TRUE(m_rig.tool->readProperty("pause").flag());
    EXPECT_LT(m_rig.play->currentSeconds(), 1);
}

TEST_F(PlayWaiting, APauseThatIsTakenBackIsNone)
{
    beginHeld();
    m_rig.play->togglePause();
    m_rig.play->togglePause();
    letGo();
    EXPECT_TRUE(m_rig.waitForTime([](int ms) { return ms > 1000; }));
    EXPECT_EQ(m_rig.recorder->count("Paused"), 0);
}

TEST_F(PlayWaiting, ASourceThatOpensPausedIsLetGoByAToggle)
{
    PlayOptions options;
    options.plays = false;
    beginHeld("plain.mp4", options);
    m_rig.play->togglePause();
    letGo();
    EXPECT_TRUE(m_rig.recorder->waitFor("Resumed"));
    EXPECT_TRUE(m_rig.waitForTime([](int ms) { return ms > 1000; }));
}

TEST_F(PlayWaiting, OfTheSeeksTheLastIsCarriedOutAtTheStart)
{
    beginHeld();
    m_rig.play->togglePause();
    for (const double seconds : {2.0, 4.0, 6.0})
        m_rig.play->seek(seconds, 1);
    letGo();
    ASSERT_TRUE(m_rig.recorder->waitForSeek(VD_Seek_End));
    EXPECT_EQ(m_rig.recorder->count("Seek"), 1);
    EXPECT_EQ(m_rig.recorder->last("Seek").second, 6000);
    EXPECT_NEAR(m_rig.tool->readProperty("time-pos").number(-1), 6, 0.1);
}

TEST_F(PlayWaiting, ASeekBehindTheEndGoesToTheEnd)
{
    beginHeld("short.mp4");
    m_rig.play->seek(1000, 1);
    letGo();
    EXPECT_TRUE(m_rig.recorder->waitFor("Ended"));
    EXPECT_EQ(m_rig.recorder->count("Failed"), 0);
}

TEST_F(PlayWaiting, ACloseForgetsWhatWaits)
{
    beginHeld();
    m_rig.play->togglePause();
    m_rig.play->seek(6, 1);
    m_rig.play->close();
    letGo();
    EXPECT_EQ(m_rig.recorder->order(), std::vector<std::string>{"Stopped"});
    m_rig.tool->playContext().makePlan = SourcePlan::make;
    ASSERT_TRUE(m_rig.open(TestClips::path("plain.mp4")));
    EXPECT_TRUE(m_rig.waitForTime([](int ms) { return ms > 500; }));
    EXPECT_EQ(m_rig.recorder->count("Paused"), 0);
    EXPECT_EQ(m_rig.recorder->count("Seek"), 0);
}

} // namespace
