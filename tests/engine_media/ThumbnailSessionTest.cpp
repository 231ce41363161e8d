#include "engine/ThumbnailSessions.h"

#include "MediaClips.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <thread>

namespace {

using MediaClips::LadderRate;

ThumbnailSession::Request request(const std::string &path, int width = 324, int height = 188)
{
    ThumbnailSession::Request result;
    result.path = path;
    result.width = width;
    result.height = height;
    return result;
}

class ThumbnailSessionOn : public testing::TestWithParam<const char *> {};

TEST_P(ThumbnailSessionOn, GivesTheKeyFrameAtOrBeforeAPosition)
{
    const auto session = ThumbnailSession::open(request(MediaClips::ladder(GetParam())));
    ASSERT_TRUE(session);
    // In any order: each grab seeks for itself.
    for (const int second : {7, 0, 3, 9, 3, 1}) {
        Picture picture;
        ASSERT_TRUE(session->grab(second * 1000 + 640, false, picture)) << second;
        EXPECT_EQ(MediaClips::ladderStep(picture), second * LadderRate);
        EXPECT_NEAR(picture.positionMs, second * 1000, 2);
    }
}

TEST_P(ThumbnailSessionOn, GivesTheExactFrame)
{
    const auto session = ThumbnailSession::open(request(MediaClips::ladder(GetParam())));
    ASSERT_TRUE(session);
    for (const int step : {0, 37, 5, 99, 40, 41}) {
        Picture picture;
        // In the middle of the frame's time.
        ASSERT_TRUE(session->grab(step * 100 + 50, true, picture)) << step;
        EXPECT_EQ(MediaClips::ladderStep(picture), step);
        // And at its very beginning.
        ASSERT_TRUE(session->grab(step * 100, true, picture)) << step;
        EXPECT_EQ(MediaClips::ladderStep(picture), step);
        EXPECT_NEAR(picture.positionMs, step * 100, 2);
    }
}

INSTANTIATE_TEST_SUITE_P(Containers, ThumbnailSessionOn, testing::Values("mkv", "mp4", "avi", "ts"),
                         [](const testing::TestParamInfo<const char *> &row) { return row.param; });

TEST(ThumbnailSession, KeepsTheRatioAndNeverEnlarges)
{
    const struct {
        std::string path;
        int width, height, expectedWidth, expectedHeight;
    } rows[] = {{MediaClips::pattern(), 160, 160, 160, 90},    {MediaClips::pattern(), 1000, 90, 160, 90},
                {MediaClips::pattern(), 1000, 1000, 320, 180}, {MediaClips::pattern(), 1, 1, 1, 1},
                {MediaClips::wide(), 1000, 1000, 320, 180},    {MediaClips::turned(), 1000, 1000, 180, 320},
                {MediaClips::turned(), 90, 90, 51, 90}};
    for (const auto &row : rows) {
        const auto session = ThumbnailSession::open(request(row.path, row.width, row.height));
        ASSERT_TRUE(session) << row.path;
        Picture picture;
        ASSERT_TRUE(session->grab(0, false, picture));
        EXPECT_EQ(picture.width, row.expectedWidth) << row.path;
        EXPECT_EQ(picture.height, row.expectedHeight) << row.path;
        EXPECT_EQ(picture.format, libvp::VD_Picture_Rgba);
        EXPECT_EQ(picture.bytes.size(), std::size_t(picture.width) * std::size_t(picture.height) * 4);
    }
}

TEST(ThumbnailSession, ATurnedPictureStandsUpright)
{
    const auto session = ThumbnailSession::open(request(MediaClips::turned(), 1000, 1000));
    ASSERT_TRUE(session);
    Picture picture;
    ASSERT_TRUE(session->grab(0, false, picture));
    const unsigned char *top = &picture.bytes[(std::size_t(20) * std::size_t(picture.width) + 90) * 4];
    const unsigned char *bottom = &picture.bytes[(std::size_t(300) * std::size_t(picture.width) + 90) * 4];
    EXPECT_GT(top[0], 200) << "red";
    EXPECT_LT(top[2], 80);
    EXPECT_LT(bottom[0], 80);
    EXPECT_GT(bottom[2], 200) << "blue";
    EXPECT_EQ(top[3], 255);
}

TEST(ThumbnailSession, BehindTheEndTheLastKeyFrameAnswers)
{
    const auto session = ThumbnailSession::open(request(MediaClips::ladder()));
    ASSERT_TRUE(session);
    Picture picture;
    ASSERT_TRUE(session->grab(1000000, false, picture));
    EXPECT_EQ(MediaClips::ladderStep(picture), 90);
    ASSERT_TRUE(session->grab(1000000, true, picture));
    EXPECT_EQ(MediaClips::ladderStep(picture), 99);
    ASSERT_TRUE(session->grab(-5000, true, picture));
    EXPECT_EQ(MediaClips::ladderStep(picture), 0);
}

TEST(ThumbnailSession, StaysInsideTheRangeItWasOpenedFor)
{
    ThumbnailSession::Request range = request(MediaClips::ladder());
    range.startMs = 2000;
    range.endMs = 4000;
    const auto session = ThumbnailSession::open(range);
    ASSERT_TRUE(session);
    Picture picture;
    ASSERT_TRUE(session->grab(0, true, picture));
    EXPECT_EQ(MediaClips::ladderStep(picture), 20);
    ASSERT_TRUE(session->grab(9000, true, picture));
    EXPECT_EQ(MediaClips::ladderStep(picture), 40);
}

TEST(ThumbnailSession, SourcesWithoutVideoAreRefused)
{
    QTemporaryDir folder;
    for (const std::string &path : {MediaClips::sound(), MediaClips::cover(), std::string("/nowhere.mkv"),
                                    std::string(), folder.path().toStdString(), std::string("/dev/zero")})
        EXPECT_FALSE(ThumbnailSession::open(request(path))) << path;
    EXPECT_FALSE(ThumbnailSession::open(request(MediaClips::pattern(), 0, 100)));
    EXPECT_FALSE(ThumbnailSession::open(request(MediaClips::pattern(), 100, -1)));
}

TEST(ThumbnailSession, ShowsTheTitlesOfDiscs)
{
    const QString discs[] = {TestDiscs::dvdFolder(), TestDiscs::dvdImage(), TestDiscs::bluRayFolder(),
                             TestDiscs::bluRayImage()};
    for (const QString &disc : discs) {
        Picture first[2];
        for (const int title : {1, 2}) {
            ThumbnailSession::Request wanted = request(disc.toStdString());
            wanted.titleNumber = title;
            const auto session = ThumbnailSession::open(wanted);
            ASSERT_TRUE(session) << qPrintable(disc) << title;
            ASSERT_TRUE(session->grab(0, false, first[title - 1])) << qPrintable(disc) << title;
            Picture later;
            ASSERT_TRUE(session->grab(4000, false, later)) << qPrintable(disc) << title;
            EXPECT_EQ(later.width, first[title - 1].width);
            EXPECT_TRUE(title != 1 || later.bytes != first[0].bytes) << "the main title's pattern moves";
            Picture again;
            ASSERT_TRUE(session->grab(0, false, again));
            EXPECT_EQ(again.bytes, first[title - 1].bytes);
        }
        EXPECT_NE(first[0].bytes, first[1].bytes) << qPrintable(disc);
        ThumbnailSession::Request wrong = request(disc.toStdString());
        wrong.titleNumber = 77;
        EXPECT_FALSE(ThumbnailSession::open(wrong));
    }
}

TEST(ThumbnailSession, ACancelledSessionGivesNothing)
{
    const auto session = ThumbnailSession::open(request(MediaClips::ladder()));
    ASSERT_TRUE(session);
    session->cancel();
    Picture picture;
    EXPECT_FALSE(session->grab(0, false, picture));
}

TEST(ThumbnailSessions, HandlesCountFromOneAndUnknownOnesAreIgnored)
{
    ThumbnailSessions sessions;
    EXPECT_EQ(sessions.open(request("/nowhere")), 0);
    const int first = sessions.open(request(MediaClips::ladder()));
    const int second = sessions.open(request(MediaClips::pattern()));
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 2);
    Picture picture;
    EXPECT_TRUE(sessions.grab(first, 0, false, picture));
    sessions.close(first);
    sessions.close(first);
    sessions.close(0);
    sessions.close(-7);
    EXPECT_FALSE(sessions.grab(first, 0, false, picture));
    EXPECT_FALSE(sessions.grab(0, 0, false, picture));
    EXPECT_TRUE(sessions.grab(second, 0, false, picture));
}

TEST(ThumbnailSessions, TooManyAtATimeAreRefused)
{
    ThumbnailSessions sessions;
    int last = 0;
    for (std::size_t i = 0; i < ThumbnailSessions::MostSessions; ++i)
        last = sessions.open(request(MediaClips::pattern(), 16, 16));
    EXPECT_GT(last, 0);
    EXPECT_EQ(sessions.open(request(MediaClips::pattern(), 16, 16)), 0);
    sessions.close(last);
    EXPECT_GT(sessions.open(request(MediaClips::pattern(), 16, 16)), 0);
}

// A strip of pictures is closed while its worker waits for the next one.
TEST(ThumbnailSessions, ClosingDuringGrabsEndsThem)
{
    ThumbnailSessions sessions;
    const int handle = sessions.open(request(MediaClips::hevc4K()));
    ASSERT_GT(handle, 0);
    std::atomic<int> grabbed{0};
    std::thread worker([&] {
        Picture picture;
        while (sessions.grab(handle, 900, true, picture))
            ++grabbed;
    });
    QElapsedTimer waiting;
    waiting.start();
    while (grabbed == 0 && waiting.elapsed() < 10000)
        std::this_thread::yield();
    EXPECT_GT(grabbed, 0);
    QElapsedTimer timer;
    timer.start();
    sessions.close(handle);
    worker.join();
    EXPECT_LT(timer.elapsed(), 3000);
}

} // namespace
