#include "overlays/NormalLastPositionLabel.h"

#include "ui/LookTokens.h"
#include "ui/OverlayHost.h"

#include "support/Eventually.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

QByteArray png()
{
    QImage image(224, 126, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

class NormalLastPositionLabelTest : public testing::Test {
protected:
    NormalLastPositionLabelTest() { window.show(); }

    qint64 now{1000};
    QList<double> seeks;
    QWidget window;
    NormalLastPositionLabel label{[this] { return now; }, [this](double seconds) { seeks << seconds; },
                                  &window};
};

} // namespace

TEST_F(NormalLastPositionLabelTest, NothingStoredShowsNothing)
{
    label.setPosition(0, {});
    label.slot_showLabel();
    EXPECT_FALSE(label.isOpen());
    EXPECT_FALSE(label.isVisible());
}

TEST_F(NormalLastPositionLabelTest, IsShownWithAnAnimation)
{
    label.setPosition(2530, png());
    EXPECT_TRUE(label.hasPicture());
    EXPECT_EQ(label.accessibleName(), "Last playback at 00:42:10");
    EXPECT_FALSE(label.hasAnimate("animate"));
    label.slot_showLabel();
    EXPECT_TRUE(label.isVisible());
    EXPECT_LT(label.shown(), 1.0);
    ASSERT_NE(label.animate("animate"), nullptr);
    label.animate("animate")->setCurrentTime(Look::FadeInMs);
    EXPECT_DOUBLE_EQ(label.shown(), 1.0);
}

TEST_F(NormalLastPositionLabelTest, HidesItselfAt8000Milliseconds)
{
    label.setPosition(2530, {});
    label.slot_showLabel();
    now += 7999;
    label.tick();
    EXPECT_TRUE(label.isOpen());
    now += 1;
    label.tick();
    EXPECT_FALSE(label.isOpen());
    label.animate("animate")->setCurrentTime(Look::FadeOutMs);
    EXPECT_FALSE(label.isVisible());
}

TEST_F(NormalLastPositionLabelTest, ATimerOfOneSecondLooksAtTheClock)
{
    EXPECT_EQ(NormalLastPositionLabel::TickMs, 1000);
    EXPECT_EQ(NormalLastPositionLabel::ShownMs, 8000);
    label.setPosition(2530, {});
    label.slot_showLabel();
    now += 8000;
    ASSERT_EVENTUALLY(!label.isOpen());
}

TEST_F(NormalLastPositionLabelTest, ClickSeeksAndAsksForTheTracksHalfASecondLater)
{
    label.setPosition(2530, png());
    label.slot_showLabel();
    QSignalSpy tracks(&label, &NormalLastPositionLabel::sig_setupAudioSub);
    QElapsedTimer timer;
    timer.start();
    QTest::mouseClick(&label, Qt::LeftButton, {}, label.rect().center());
    EXPECT_EQ(seeks, QList<double>({2530.0}));
    EXPECT_FALSE(label.isOpen());
    EXPECT_EQ(tracks.count(), 0);
    ASSERT_TRUE(tracks.wait(5000));
    EXPECT_GE(timer.elapsed(), 475); // a coarse timer may fire up to 5 percent early
    EXPECT_EQ(tracks.count(), 1);
}

TEST_F(NormalLastPositionLabelTest, OnlyAWholeClickCounts)
{
    label.setPosition(2530, {});
    label.slot_showLabel();
    QTest::mouseClick(&label, Qt::RightButton, {}, label.rect().center());
    QTest::mousePress(&label, Qt::LeftButton, {}, label.rect().center());
    QTest::mouseRelease(&label, Qt::LeftButton, {}, QPoint(-20, -20));
    EXPECT_TRUE(seeks.isEmpty());
    EXPECT_TRUE(label.isOpen());
}

TEST_F(NormalLastPositionLabelTest, SecondClickWhileItFadesDoesNothing)
{
    label.setPosition(2530, {});
    label.slot_showLabel();
    QTest::mouseClick(&label, Qt::LeftButton, {}, label.rect().center());
    QTest::mouseClick(&label, Qt::LeftButton, {}, label.rect().center());
    EXPECT_EQ(seeks.size(), 1);
}

TEST_F(NormalLastPositionLabelTest, ShownAgainWhileItFadesTurnsRound)
{
    label.setPosition(2530, {});
    label.slot_showLabel();
    QAbstractAnimation *fade = label.animate("animate");
    fade->setCurrentTime(Look::FadeInMs);
    label.slot_hideLabel();
    fade->setCurrentTime(Look::FadeOutMs / 4);
    const double half = label.shown();
    ASSERT_GT(half, 0.0);
    ASSERT_LT(half, 1.0);
    label.slot_showLabel();
    EXPECT_EQ(label.animate("animate"), fade);
    EXPECT_DOUBLE_EQ(label.shown(), half);
    EXPECT_TRUE(label.isOpen());
    fade->setCurrentTime(Look::FadeInMs);
    EXPECT_TRUE(label.isVisible());
}

TEST_F(NormalLastPositionLabelTest, BrokenPictureIsToldAndLeftOut)
{
    label.setPosition(2530, png());
    const int wide = label.sizeHint().width();
    label.setPosition(2530, "no picture");
    EXPECT_FALSE(label.hasPicture());
    EXPECT_LT(label.sizeHint().width(), wide);
    label.slot_showLabel();
    EXPECT_TRUE(label.isOpen());
}

TEST(NormalLastPositionLabelLifeTest, DeletedWhileItFadesAndBeforeItsTracks)
{
    auto label = std::make_unique<NormalLastPositionLabel>([] { return qint64(0); }, [](double) {});
    label->setPosition(100, {});
    label->slot_showLabel();
    QTest::mouseClick(label.get(), Qt::LeftButton, {}, label->rect().center());
    QSignalSpy tracks(label.get(), &NormalLastPositionLabel::sig_setupAudioSub);
    label.reset();
    EXPECT_FALSE(tracks.wait(600));
}

TEST(NormalLastPositionLabelHostTest, HostShowsItAsAWindowAndTakesItAwayWhenItEnds)
{
    qint64 now = 0;
    QWidget window;
    window.resize(800, 600);
    window.show();
    OverlayHost host(&window);
    host.setCompositingQuery([] { return true; });
    NormalLastPositionLabel label([&now] { return now; }, [](double) {}, &window);
    host.add(&label, {OverlayRule::Anchor::BottomLeft, {24, 0, 0, 24}, 1});
    label.setPosition(2530, png());
    EXPECT_FALSE(label.isVisible());
    label.slot_showLabel();
    EXPECT_TRUE(label.isWindow());
    EXPECT_TRUE(label.isVisible());
    EXPECT_TRUE(host.isShown(&label));
    EXPECT_EQ(label.graphicsEffect(), nullptr);
    EXPECT_TRUE(window.rect().contains(QRect(window.mapFromGlobal(label.pos()), label.size())));
    now = 8000;
    label.tick();
    EXPECT_FALSE(host.isShown(&label));
    ASSERT_EVENTUALLY(!label.isVisible());
    label.slot_showLabel();
    EXPECT_TRUE(label.isVisible());
}

TEST(NormalLastPositionLabelHostTest, WithoutBlendingTheCardIsOpaqueAndDoesNotMove)
{
    QWidget window;
    window.resize(800, 600);
    window.show();
    OverlayHost host(&window);
    host.setCompositingQuery([] { return false; });
    NormalLastPositionLabel label([] { return qint64(0); }, [](double) {}, &window);
    host.add(&label, {OverlayRule::Anchor::BottomLeft, {24, 0, 0, 24}, 1});
    label.setPosition(2530, png());
    label.slot_showLabel();
    const QPainterPath shape = label.opaqueShape();
    label.animate("animate")->setCurrentTime(Look::FadeInMs);
    EXPECT_EQ(label.opaqueShape(), shape);
    EXPECT_EQ(label.grab().toImage().pixelColor(label.width() - 6, 20).alpha(), 255);
}
