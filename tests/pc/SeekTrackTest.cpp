#include "transport/SeekTrack.h"

#include "ui/LookTokens.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace {

SeekTrack trackOf(int total, QVector<int> chapters = {}, double ratio = 1.0)
{
    SeekTrack track;
    track.bounds = QRect(0, 0, qRound(1020 * ratio), qRound(24 * ratio));
    track.ratio = ratio;
    track.totalSeconds = total;
    track.chapters = std::move(chapters);
    return track;
}

QImage picture(const SeekTrack &track, const SeekTrack::State &state)
{
    QImage image(track.bounds.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    track.paint(painter, state);
    return image;
}

} // namespace

TEST(SeekTrack, EverySecondLiesWhereItIsFound)
{
    for (const double ratio : {1.0, 1.5, 2.0}) {
        const SeekTrack track = trackOf(600, {}, ratio);
        for (int second = 0; second <= 600; ++second)
            EXPECT_EQ(track.secondsAt(qRound(track.xOf(second))), second);
    }
}

TEST(SeekTrack, PointsBesideTheGrooveAreItsEnds)
{
    const SeekTrack track = trackOf(600);
    EXPECT_EQ(track.secondsAt(-50), 0);
    EXPECT_EQ(track.secondsAt(5000), 600);
}

TEST(SeekTrack, WithoutALengthEverythingIsZero)
{
    const SeekTrack track = trackOf(0);
    EXPECT_EQ(track.secondsAt(500), 0);
    EXPECT_EQ(track.xOf(30), track.groove().left());
}

TEST(SeekTrack, ASliderNarrowerThanItsKnobHasNoSeconds)
{
    SeekTrack track = trackOf(600);
    track.bounds = QRect(0, 0, 10, 24);
    EXPECT_EQ(track.secondsAt(5), 0);
}

TEST(SeekTrack, ChaptersCutTheGroove)
{
    const SeekTrack track = trackOf(1000, {0, 250, 500});
    const auto segments = track.segments();
    ASSERT_EQ(segments.size(), 3);
    EXPECT_EQ(segments.first().left(), track.groove().left());
    EXPECT_DOUBLE_EQ(segments.last().right(), track.groove().right());
    EXPECT_LT(segments[0].right(), segments[1].left());
    EXPECT_NEAR((segments[0].right() + segments[1].left()) / 2, track.xOf(250), 1.0);
}

TEST(SeekTrack, ChaptersOutsideTheSourceOrTooCloseAreNoCuts)
{
    EXPECT_EQ(trackOf(1000, {-5, 0, 1000, 4000}).segments().size(), 1);
    EXPECT_EQ(trackOf(100000, {500, 501, 502}).segments().size(), 2);
}

TEST(SeekTrack, ThePlayedPartIsInTheAccentAndTheRestIsNot)
{
    const SeekTrack track = trackOf(1000);
    SeekTrack::State state;
    state.seconds = 500;
    const QImage image = picture(track, state);
    const int y = qRound(track.groove().center().y());
    EXPECT_EQ(image.pixel(qRound(track.xOf(200)), y), Look::Accent);
    const QRgb rest = image.pixel(qRound(track.xOf(800)), y);
    EXPECT_EQ(qRed(rest), qBlue(rest));
    EXPECT_EQ(image.pixel(qRound(track.xOf(500)), y), Look::ControlBright);
}

TEST(SeekTrack, ADisabledSliderHasNoKnobAndNoProgress)
{
    const SeekTrack track = trackOf(1000);
    SeekTrack::State state;
    state.seconds = 500;
    state.enabled = false;
    const QImage image = picture(track, state);
    const int y = qRound(track.groove().center().y());
    EXPECT_EQ(image.pixel(qRound(track.xOf(200)), y), image.pixel(qRound(track.xOf(800)), y));
    EXPECT_NE(image.pixel(qRound(track.xOf(500)), y), Look::ControlBright);
}

TEST(SeekTrack, TheGrooveStandsOnWholePixels)
{
    for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
        const QRectF groove = trackOf(100, {}, ratio).groove();
        EXPECT_EQ(groove.top(), qRound(groove.top()));
        EXPECT_EQ(groove.height(), qRound(groove.height()));
    }
}
