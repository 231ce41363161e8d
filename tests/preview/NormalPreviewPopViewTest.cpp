#include "ScriptedSource.h"

#include "preview/NormalPreviewPopView.h"
#include "support/Eventually.h"
#include "ui/LookTokens.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

class NormalPreviewPopViewTest : public testing::Test {
protected:
    NormalPreviewPopViewTest()
    {
        window.resize(1000, 600);
        window.show();
    }

    // Above the point x of the slider, in the window's coordinates.
    void hover(const char *time, int x) { pop.slot_showSeekView(QLatin1String(time), at(x)); }
    QPoint at(int x) const { return window.mapToGlobal(QPoint(x, 520)); }
    QRect card() const { return pop.card().translated(pop.pos()); }

    QWidget window;
    NormalPreviewPopView pop{&window};
    QSignalSpy wanted{&pop, &NormalPreviewPopView::sig_pictureWanted};
};

} // namespace

TEST_F(NormalPreviewPopViewTest, StandsAboveThePointWithTheTimeAndAsksForItsPicture)
{
    hover("01:02:37", 500);
    EXPECT_TRUE(pop.isVisible());
    EXPECT_EQ(pop.timeText(), QStringLiteral("01:02:37"));
    ASSERT_EQ(wanted.count(), 1);
    EXPECT_EQ(wanted.at(0).at(0).toInt(), (3600 + 2 * 60 + 37) * 1000);
    EXPECT_NEAR(card().center().x(), 500, 1);
    EXPECT_LT(card().bottom(), 520);
    pop.showPicture(3757000, ScriptedSource::picture(3757000));
    EXPECT_TRUE(pop.hasPicture());
    EXPECT_NEAR(card().center().x(), 500, 1);
    EXPECT_LT(card().bottom(), 520);
    EXPECT_GT(card().height(), 100);
}

TEST_F(NormalPreviewPopViewTest, PaintsThePictureWithTheTimeUnderIt)
{
    hover("00:02:00", 500);
    QImage red(324, 182, QImage::Format_RGBA8888);
    red.fill(QColor(200, 0, 0));
    pop.showPicture(120000, red);
    const QImage shown = pop.grab().toImage();
    const QRect place = pop.card();
    const QColor middle = shown.pixelColor(place.center().x(), place.top() + 40);
    EXPECT_GT(middle.red(), 150);
    EXPECT_LT(middle.green(), 40);
    // Below the picture the ground, and on it the bright figures.
    bool hasFigures = false;
    for (int x = place.left(); x < place.right(); ++x) {
        const QColor pixel = shown.pixelColor(x, place.bottom() - 12);
        EXPECT_FALSE(pixel.red() > 150 && pixel.green() < 40) << x;
        hasFigures |= pixel.green() > 180 && pixel.alpha() > 200;
    }
    EXPECT_TRUE(hasFigures);
}

TEST_F(NormalPreviewPopViewTest, StaysInsideTheWindowAtBothEnds)
{
    for (const int x : {0, 3, 500, 997, 1000}) {
        hover("00:00:07", x);
        pop.showPicture(7000, ScriptedSource::picture(7000));
        EXPECT_GE(card().left(), 0) << x;
        EXPECT_LE(card().right(), 999) << x;
    }
}

TEST_F(NormalPreviewPopViewTest, AWindowTooLowKeepsItsTopEdge)
{
    window.resize(300, 80);
    pop.slot_showSeekView(QStringLiteral("00:00:07"), window.mapToGlobal(QPoint(100, 40)));
    pop.showPicture(7000, ScriptedSource::picture(7000));
    EXPECT_GE(card().top(), 0);
}

TEST_F(NormalPreviewPopViewTest, GoesWhenThePointerHasLeft)
{
    hover("00:00:10", 300);
    pop.slot_closeSeek();
    EXPECT_FALSE(pop.isVisible());
    EXPECT_FALSE(pop.isWanted());
    pop.slot_closeSeek();
    pop.showPicture(10000, ScriptedSource::picture(10000));
    EXPECT_FALSE(pop.isVisible()) << "a picture that comes too late shows nothing";
}

TEST_F(NormalPreviewPopViewTest, ASourceWithoutPicturesShowsTheTimeOnly)
{
    hover("00:10:00", 500);
    pop.showNoPicture(600000);
    EXPECT_FALSE(pop.hasPicture());
    EXPECT_TRUE(pop.isVisible());
    EXPECT_LT(card().height(), 40);
    EXPECT_EQ(pop.timeText(), QStringLiteral("00:10:00"));
}

TEST_F(NormalPreviewPopViewTest, TheTimeIsAlwaysThePointersAndThePictureTheNearestThatCame)
{
    hover("00:00:10", 100);
    hover("00:01:00", 200);
    pop.showPicture(10000, ScriptedSource::picture(10000)); // was under way
    EXPECT_TRUE(pop.hasPicture());
    EXPECT_EQ(pop.timeText(), QStringLiteral("00:01:00"));
    pop.showPicture(60000, ScriptedSource::picture(60000));
    const QImage right = pop.grab().toImage();
    pop.showPicture(10000, ScriptedSource::picture(10000)); // later than its turn
    EXPECT_EQ(pop.grab().toImage(), right);
    pop.showNoPicture(10000);
    EXPECT_TRUE(pop.hasPicture());
}

TEST_F(NormalPreviewPopViewTest, APictureOfAnotherMomentIsNotShownForLong)
{
    hover("00:00:10", 100);
    pop.showPicture(10000, ScriptedSource::picture(10000));
    hover("00:30:00", 700);
    EXPECT_TRUE(pop.hasPicture()) << "no empty card for the moment that a fetch takes";
    ASSERT_EVENTUALLY(!pop.hasPicture());
    EXPECT_TRUE(pop.isVisible());
}

TEST_F(NormalPreviewPopViewTest, ASourceThatNeverAnswersShowsTheTimeOnlyInTheEnd)
{
    hover("00:00:10", 100);
    EXPECT_GT(card().height(), 100) << "room for the picture that is usually there in a moment";
    ASSERT_EVENTUALLY(card().height() < 40);
    EXPECT_TRUE(pop.isVisible());
    hover("00:00:20", 200);
    EXPECT_LT(card().height(), 40);
    pop.showPicture(20000, ScriptedSource::picture(20000));
    EXPECT_GT(card().height(), 100);
}

TEST_F(NormalPreviewPopViewTest, ComingBackAtAnotherPlaceDoesNotBeginWithTheOldPicture)
{
    hover("00:00:10", 100);
    pop.showPicture(10000, ScriptedSource::picture(10000));
    pop.slot_closeSeek();
    hover("00:30:00", 700);
    EXPECT_FALSE(pop.hasPicture());
    pop.showPicture(1800000, ScriptedSource::picture(1800000));
    pop.slot_closeSeek();
    hover("00:30:00", 700);
    EXPECT_TRUE(pop.hasPicture()) << "the same moment";
}

TEST_F(NormalPreviewPopViewTest, TheSameMomentIsAskedForOnce)
{
    hover("00:00:10", 300);
    hover("00:00:10", 301);
    hover("00:00:10", 302);
    EXPECT_EQ(wanted.count(), 1);
    EXPECT_NEAR(card().center().x(), 302, 1);
    pop.slot_closeSeek();
    hover("00:00:10", 302);
    EXPECT_EQ(wanted.count(), 2);
}

TEST_F(NormalPreviewPopViewTest, AnotherSourceShowsNothingOfTheOneBefore)
{
    hover("00:00:10", 300);
    pop.showPicture(10000, ScriptedSource::picture(10000));
    pop.reset();
    EXPECT_FALSE(pop.isVisible());
    EXPECT_FALSE(pop.hasPicture());
}

TEST_F(NormalPreviewPopViewTest, AnUprightPictureKeepsItsRatioAndTheTimeItsRoom)
{
    hover("00:00:10", 300);
    pop.showPicture(10000, ScriptedSource::picture(10000, {106, 188}));
    EXPECT_LT(card().width(), 120);
    EXPECT_GT(card().height(), 130);
}

TEST_F(NormalPreviewPopViewTest, WithoutBlendingTheCardIsOpaqueAndWithoutShadow)
{
    pop.setCompact(true);
    hover("00:00:10", 300);
    pop.showPicture(10000, ScriptedSource::picture(10000));
    EXPECT_EQ(pop.card(), pop.rect());
    const QImage shown = pop.grab().toImage();
    EXPECT_EQ(shown.pixelColor(pop.width() / 2, pop.height() - 4).alpha(), 255);
    EXPECT_TRUE(pop.opaqueShape().contains(QPointF(pop.rect().center())));
    EXPECT_FALSE(pop.takesMouseAt(pop.rect().center()));
}
