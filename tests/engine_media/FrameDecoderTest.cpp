#include "engine/FrameDecoder.h"

#include "engine/MediaInput.h"
#include "play/TestClips.h"

#include <gtest/gtest.h>

namespace {

constexpr std::chrono::seconds Patience{20};

// A file that counts what is read of it.
class CountedFile final : public ByteStream {
public:
    bool open(const std::string &path) { return m_file.open(path); }
    std::int64_t read(void *buffer, std::size_t bytes) override
    {
        const std::int64_t count = m_file.read(buffer, bytes);
        m_bytes += std::max<std::int64_t>(0, count);
        return count;
    }
    std::int64_t seek(std::int64_t offset) override { return m_file.seek(offset); }
    [[nodiscard]] std::int64_t size() const override { return m_file.size(); }
    [[nodiscard]] std::int64_t takeBytes() { return std::exchange(m_bytes, 0); }

private:
    FileStream m_file;
    std::int64_t m_bytes{0};
};

class FrameDecoderTest : public testing::Test {
protected:
    void open(const std::string &clip)
    {
        path = TestClips::path(clip);
        ASSERT_TRUE(file.open(path));
        ASSERT_TRUE(input.open(path));
        stream = input.videoStream();
        ASSERT_TRUE(decoder.open(input, stream));
        input.selectOnly(stream);
    }
    void seek(double seconds)
    {
        ASSERT_GE(
            av_seek_frame(input.context(), -1, std::int64_t(seconds * AV_TIME_BASE), AVSEEK_FLAG_BACKWARD),
            0);
        decoder.flush();
    }

    std::string path;
    Deadline deadline{Patience};
    CountedFile file;
    MediaInput input{file, deadline};
    FrameDecoder decoder;
    int stream{-1};
};

} // namespace

TEST_F(FrameDecoderTest, AKeyFrameIsGivenBeforeTheNextOneIsRead)
{
    open("long.mp4"); // a key frame each ten seconds, with frames between that are shown in another order
    const std::int64_t group = file.size() / 6;
    ASSERT_GT(group, 200 * 1024) << "two blocks of reading are less than a group of pictures";
    decoder.setKeyFramesOnly(true);
    for (const double second : {25.0, 5.0, 45.0}) {
        seek(second);
        (void)file.takeBytes();
        const AvFrame frame = decoder.next();
        ASSERT_TRUE(frame);
        EXPECT_NEAR(decoder.secondsOf(*frame), second - 5.0, 0.1);
        EXPECT_LT(file.takeBytes(), group / 2);
    }
}

TEST_F(FrameDecoderTest, KeyFramesFollowOneAnotherUntilTheEnd)
{
    open("long.mp4");
    decoder.setKeyFramesOnly(true);
    for (int round = 0; round < 6; ++round) {
        const AvFrame frame = decoder.next();
        ASSERT_TRUE(frame) << round;
        EXPECT_NEAR(decoder.secondsOf(*frame), round * 10.0, 0.1);
    }
    EXPECT_FALSE(decoder.next());
    EXPECT_FALSE(decoder.next());
    seek(0.0);
    EXPECT_TRUE(decoder.next());
}

TEST_F(FrameDecoderTest, AfterKeyFramesAllFramesComeAgain)
{
    open("plain.mp4");
    decoder.setKeyFramesOnly(true, true);
    seek(3.0);
    ASSERT_TRUE(decoder.next());
    decoder.setKeyFramesOnly(false);
    seek(3.0);
    for (int frame = 0; frame < 30; ++frame) {
        const AvFrame shown = decoder.next();
        ASSERT_TRUE(shown) << frame;
        EXPECT_NEAR(decoder.secondsOf(*shown), 3.0 + frame / 25.0, 0.01) << frame;
    }
}

TEST_F(FrameDecoderTest, TheLastKeyFrameUntilATimeIsGivenAndNothingBehindTheTimeIsRead)
{
    open("long.mp4");
    const std::int64_t group = file.size() / 6;
    decoder.setKeyFramesOnly(true);
    for (const double second : {25.0, 12.0, 58.0}) {
        seek(0.0);
        (void)file.takeBytes();
        double until = second;
        const AvFrame frame = decoder.keyFrameUntil(until, FrameDecoder::KeyFrame::Last);
        ASSERT_TRUE(frame) << second;
        EXPECT_NEAR(decoder.secondsOf(*frame), int(second / 10) * 10, 0.1);
        EXPECT_TRUE(decoder.beganAtKeyFrame());
        EXPECT_EQ(until, second);
        EXPECT_LT(file.takeBytes(), std::int64_t(double(group) * (second / 10 + 1))) << second;
    }
}

TEST_F(FrameDecoderTest, TheFirstKeyFrameIsNotGivenWhenItIsBehindTheTime)
{
    open("long.mp4");
    decoder.setKeyFramesOnly(true);
    seek(30.0);
    double until = 29.0;
    EXPECT_FALSE(decoder.keyFrameUntil(until, FrameDecoder::KeyFrame::First));
    seek(30.0);
    until = 39.0;
    const AvFrame frame = decoder.keyFrameUntil(until, FrameDecoder::KeyFrame::First);
    ASSERT_TRUE(frame);
    EXPECT_NEAR(decoder.secondsOf(*frame), 30.0, 0.1);
}

TEST_F(FrameDecoderTest, TheNearestKeyFrameMayFollowTheTimeAtOnce)
{
    open("long.mp4");
    decoder.setKeyFramesOnly(true);
    for (const FrameDecoder::KeyFrame which :
         {FrameDecoder::KeyFrame::Nearest, FrameDecoder::KeyFrame::Last}) {
        seek(0.0);
        double until = -0.5;
        EXPECT_EQ(decoder.keyFrameUntil(until, which) != nullptr, which == FrameDecoder::KeyFrame::Nearest);
    }
}

TEST_F(FrameDecoderTest, ASeekWithoutAnIndexIsToldApart)
{
    open("long.ts");
    decoder.setKeyFramesOnly(true);
    seek(25.0);
    double until = 45.0;
    const AvFrame frame = decoder.keyFrameUntil(until, FrameDecoder::KeyFrame::Last);
    ASSERT_TRUE(frame);
    EXPECT_NEAR(decoder.secondsOf(*frame), 40.0, 0.2);
    EXPECT_FALSE(decoder.beganAtKeyFrame());
}
