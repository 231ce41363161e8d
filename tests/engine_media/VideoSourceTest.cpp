#include "engine/VideoSource.h"

#include "engine/AvPointers.h"
#include "play/TestClips.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

constexpr std::chrono::seconds Patience{20};
constexpr int Width = 80;
constexpr int Height = 45;
// Sound may begin a little before the first picture.
constexpr int NearMs = 150;

int keyFrameMs(VideoSource &source, double seconds)
{
    Picture picture;
    return source.grab(seconds, false, Width, Height, picture) ? picture.positionMs : -1;
}

struct Range {
    qint64 position{-1};
    int size{0};
};

// Where a key frame lies in its file.
Range keyFrameBytes(const std::string &path, double seconds)
{
    Deadline deadline(Patience);
    FileStream file;
    MediaInput input(file, deadline);
    const AvPacket packet(av_packet_alloc());
    if (!file.open(path) || !input.open(path))
        return {};
    const int stream = input.videoStream();
    const double unit = av_q2d(input.context()->streams[stream]->time_base);
    while (input.read(*packet)) {
        if (packet->stream_index == stream && (packet->flags & AV_PKT_FLAG_KEY)
            && double(packet->pts) * unit > seconds - 0.1)
            return {packet->pos, packet->size};
    }
    return {};
}

// A copy of "long.mp4" whose key frame of this time is zeros; empty when it cannot be made.
std::string withBrokenKeyFrame(const QTemporaryDir &folder, double seconds)
{
    const std::string whole = TestClips::path("long.mp4");
    const Range range = keyFrameBytes(whole, seconds);
    QFile copy(folder.filePath(QStringLiteral("broken.mp4")));
    if (range.size <= 0 || !QFile::copy(QString::fromStdString(whole), copy.fileName())
        || !copy.open(QIODevice::ReadWrite) || !copy.seek(range.position)
        || copy.write(QByteArray(range.size, '\0')) != range.size)
        return {};
    return copy.fileName().toStdString();
}

} // namespace

// A key frame each ten seconds, and seeks that land on any frame: the next key frame is mostly behind the
// time.
TEST(VideoSource, AFileWithoutAnIndexGivesTheKeyFrameAtOrBeforeAnyTime)
{
    Deadline deadline(Patience);
    const auto source = VideoSource::open(TestClips::path("long.ts"), 0, deadline);
    ASSERT_TRUE(source);
    for (const double second : {35.5, 59.0, 3.0, 10.4, 9.6, 20.4, 0.3, 49.5, 29.7, 41.0})
        EXPECT_NEAR(keyFrameMs(*source, second), int(second / 10) * 10000, NearMs) << second;
}

TEST(VideoSource, BeforeTheFirstFrameAndBehindTheEndTheNearestKeyFrameAnswers)
{
    for (const char *clip : {"long.ts", "long.mp4"}) {
        Deadline deadline(Patience);
        const auto source = VideoSource::open(TestClips::path(clip), 0, deadline);
        ASSERT_TRUE(source) << clip;
        EXPECT_NEAR(keyFrameMs(*source, 0.0), 0, NearMs) << clip;
        EXPECT_NEAR(keyFrameMs(*source, -3.0), 0, NearMs) << clip;
        EXPECT_NEAR(keyFrameMs(*source, 1.0e6), 50000, NearMs) << clip;
        Picture exact;
        ASSERT_TRUE(source->grab(0.0, true, Width, Height, exact)) << clip;
        EXPECT_NEAR(exact.positionMs, 0, NearMs) << clip;
    }
}

TEST(VideoSource, ForABrokenKeyFrameTheOneBeforeAnswers)
{
    QTemporaryDir folder;
    const std::string path = withBrokenKeyFrame(folder, 20.0);
    ASSERT_FALSE(path.empty());
    Deadline deadline(Patience);
    const auto source = VideoSource::open(path, 0, deadline);
    ASSERT_TRUE(source);
    EXPECT_NEAR(keyFrameMs(*source, 25.0), 10000, NearMs);
    EXPECT_NEAR(keyFrameMs(*source, 35.0), 30000, NearMs);
}

TEST(VideoSource, ForABrokenFirstKeyFrameTheNextOneAnswers)
{
    QTemporaryDir folder;
    const std::string path = withBrokenKeyFrame(folder, 0.0);
    ASSERT_FALSE(path.empty());
    Deadline deadline(Patience);
    const auto source = VideoSource::open(path, 0, deadline);
    ASSERT_TRUE(source);
    EXPECT_NEAR(keyFrameMs(*source, 5.0), 10000, NearMs);
}

TEST(VideoSource, ASingleKeyFrameAtTheBeginningIsFoundFromFarBehindIt)
{
    Deadline deadline(Patience);
    const auto source = VideoSource::open(TestClips::path("onekey.ts"), 0, deadline);
    ASSERT_TRUE(source);
    for (const double second : {55.0, 0.5, 20.0})
        EXPECT_NEAR(keyFrameMs(*source, second), 0, NearMs) << second;
}

TEST(VideoSourceDraft, ASmallPictureLeavesTheExactOnesAsTheyAre)
{
    Deadline deadline(Patience);
    const auto used = VideoSource::open(TestClips::path("plain.mp4"), 0, deadline);
    const auto fresh = VideoSource::open(TestClips::path("plain.mp4"), 0, deadline);
    ASSERT_TRUE(used);
    ASSERT_TRUE(fresh);
    Picture draft;
    ASSERT_TRUE(used->grab(4.5, false, 80, 45, draft));
    EXPECT_EQ(draft.positionMs, 4000);
    Picture exact;
    Picture expected;
    ASSERT_TRUE(used->grab(4.5, true, 320, 180, exact));
    ASSERT_TRUE(fresh->grab(4.5, true, 320, 180, expected));
    EXPECT_EQ(exact.positionMs, expected.positionMs);
    EXPECT_EQ(exact.bytes, expected.bytes);
}
