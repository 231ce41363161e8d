#include "engine/PcmTap.h"

#include "MediaClips.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <cstring>
#include <limits>
#include <mutex>
#include <vector>

namespace {

constexpr std::chrono::seconds Limit{15};
constexpr int RampRate = 44100;

// Takes what the tap delivers, and keeps the clock that it follows.
class Listener {
public:
    double now() const { return m_clock; }
    void setClock(double seconds) { m_clock = seconds; }
    void take(const libvp::VDPcmFrame &frame)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_format = frame;
        m_format.samples = nullptr;
        const std::size_t bytes = std::size_t(frame.frameCount) * std::size_t(frame.bytesPerFrame);
        m_bytes.insert(m_bytes.end(), frame.samples, frame.samples + bytes);
        m_frames += frame.frameCount;
        m_changed.notify_all();
    }
    void forget()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_bytes.clear();
        m_frames = 0;
    }
    bool waitForFrames(int count)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_changed.wait_for(lock, Limit, [&] { return m_frames >= count; });
    }
    // Jumps, and waits for a sample of the ramp whose time lies in a range. What was on its way when the
    // clock jumped, one block at most, is dropped first.
    bool jumpsTo(double seconds, double from, double to)
    {
        forget();
        setClock(seconds);
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_changed.wait_for(lock, Limit, [&] {
            for (int at = 0; at < m_frames; ++at) {
                const double time = timeAt(at);
                if (time >= from && time <= to)
                    return at <= LargestBlock;
            }
            return false;
        });
    }
    // Time of a sample of the ramp, by its value; negative indexes count from the end.
    double timeOf(int index)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const int frames = m_frames;
        if (frames == 0)
            return -1;
        return timeAt(index < 0 ? frames + index : index);
    }
    int frames()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_frames;
    }
    libvp::VDPcmFrame format()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_format;
    }
    std::unique_ptr<PcmTap> tap(const std::string &path, int stream = -1)
    {
        return std::make_unique<PcmTap>(
            path, stream, [this] { return now(); }, [this](const libvp::VDPcmFrame &frame) { take(frame); });
    }

private:
    static constexpr int LargestBlock = 8192;

    double timeAt(int index) const
    {
        std::int16_t value = 0;
        std::memcpy(&value, &m_bytes[std::size_t(index) * 4], 2);
        return value / 32767.0 * 10.0;
    }

    std::atomic<double> m_clock{std::numeric_limits<double>::quiet_NaN()};
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<unsigned char> m_bytes;
    libvp::VDPcmFrame m_format;
    int m_frames{0};
};

TEST(PcmTap, DeliversSixteenBitSoundAsItIs)
{
    Listener listener;
    listener.setClock(0.3);
    const auto tap = listener.tap(MediaClips::ramp());
    ASSERT_TRUE(listener.waitForFrames(RampRate / 10));
    const libvp::VDPcmFrame format = listener.format();
    EXPECT_EQ(format.channels, 2);
    EXPECT_EQ(format.sampleRate, RampRate);
    EXPECT_EQ(format.sampleBits, 16);
    EXPECT_EQ(format.sampleType, 1);
    EXPECT_EQ(format.isInterleaved, 1);
    EXPECT_EQ(format.bytesPerFrame, 4);
}

TEST(PcmTap, DeliversFloatWhereTheDecoderDoes)
{
    Listener listener;
    listener.setClock(0.3);
    const auto tap = listener.tap(MediaClips::cover());
    ASSERT_TRUE(listener.waitForFrames(1000));
    const libvp::VDPcmFrame format = listener.format();
    EXPECT_EQ(format.sampleBits, 32);
    EXPECT_EQ(format.sampleType, 3);
    EXPECT_EQ(format.channels, 1);
    EXPECT_EQ(format.bytesPerFrame, 4);
}

TEST(PcmTap, DeliversWhatTheClockHasReachedAndNoMore)
{
    Listener listener;
    listener.setClock(0.4);
    const auto tap = listener.tap(MediaClips::ramp());
    ASSERT_TRUE(listener.waitForFrames(int(RampRate * 0.35)));
    // Step by step, as the sound is heard.
    for (const double now : {0.8, 1.2, 1.6, 2.0}) {
        listener.setClock(now);
        ASSERT_TRUE(listener.waitForFrames(int(RampRate * now * 0.95)));
        // One block may hang over the clock.
        EXPECT_LT(listener.timeOf(-1), now + 0.15);
    }
    // Nothing is left out and nothing comes twice.
    for (const double time : {0.1, 0.5, 1.0, 1.5})
        EXPECT_NEAR(listener.timeOf(int(RampRate * time)), time, 0.01);
}

TEST(PcmTap, NothingIsHeardWhileTheClockStands)
{
    Listener listener;
    const auto tap = listener.tap(MediaClips::ramp());
    // The tap has asked the clock, paused, several times.
    std::atomic<int> asked{0};
    const PcmTap counting(
        MediaClips::ramp(), -1,
        [&asked] {
            ++asked;
            return std::numeric_limits<double>::quiet_NaN();
        },
        [&listener](const libvp::VDPcmFrame &frame) { listener.take(frame); });
    QElapsedTimer timer;
    timer.start();
    while (asked < 3 && timer.elapsed() < 10000)
        std::this_thread::yield();
    EXPECT_GE(asked, 3);
    EXPECT_EQ(listener.frames(), 0);
    listener.setClock(0.2);
    EXPECT_TRUE(listener.waitForFrames(1000)) << "and goes on when it moves";
}

TEST(PcmTap, FollowsAJumpOfTheClock)
{
    Listener listener;
    listener.setClock(0.3);
    const auto tap = listener.tap(MediaClips::ramp());
    ASSERT_TRUE(listener.waitForFrames(RampRate / 5));
    EXPECT_TRUE(listener.jumpsTo(3.2, 2.6, 3.3));
    EXPECT_TRUE(listener.jumpsTo(1.0, 0.7, 1.3));
}

TEST(PcmTap, GoesOnAfterTheEndWhenTheClockGoesBack)
{
    Listener listener;
    listener.setClock(4.9);
    const auto tap = listener.tap(MediaClips::ramp());
    ASSERT_TRUE(listener.waitForFrames(1000));
    listener.setClock(100.0);
    listener.setClock(6.0);
    EXPECT_TRUE(listener.jumpsTo(0.5, 0.2, 0.8));
}

TEST(PcmTap, EndsFastInEveryState)
{
    QElapsedTimer timer;
    const std::string sources[] = {MediaClips::ramp(), std::string("/nowhere"), std::string("/dev/zero"),
                                   MediaClips::pattern()};
    for (const std::string &source : sources) {
        for (const double clock : {std::numeric_limits<double>::quiet_NaN(), 0.0, 2.5, 1000.0}) {
            Listener listener;
            listener.setClock(clock);
            auto tap = listener.tap(source);
            timer.start();
            tap.reset();
            EXPECT_LT(timer.elapsed(), 1500) << source << " " << clock;
        }
    }
}

TEST(PcmTap, AStreamThatIsNoSoundIsSilent)
{
    Listener listener;
    listener.setClock(0.45);
    {
        const auto video = listener.tap(MediaClips::pattern(), 0);
        const auto outside = listener.tap(MediaClips::ramp(), 7);
        const auto right = listener.tap(MediaClips::ramp(), 0);
        ASSERT_TRUE(listener.waitForFrames(RampRate / 3));
    }
    EXPECT_EQ(listener.format().sampleRate, RampRate);
    EXPECT_LT(listener.frames(), RampRate * 0.7) << "of the one right stream alone";
}

} // namespace
