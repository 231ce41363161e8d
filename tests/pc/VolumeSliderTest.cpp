#include "MouseMoves.h"

#include "transport/VolumeSlider.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace {

class VolumeSliders : public testing::Test {
protected:
    void SetUp() override
    {
        slider.resize(116, 38);
        slider.showVolume(50, 0.5F);
        slider.show();
    }
    void wheel(int delta)
    {
        QWheelEvent event(QPointF(50, 19), slider.mapToGlobal(QPoint(50, 19)), QPoint(), QPoint(0, delta),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&slider, &event);
        EXPECT_TRUE(event.isAccepted());
    }
    [[nodiscard]] QPoint at(int count) const
    {
        return {qRound(slider.groove().left() + slider.groove().width() * count / 100), 19};
    }
    VolumeSlider slider;
    QSignalSpy moved{&slider, &VolumeSlider::moved};
};

} // namespace

TEST_F(VolumeSliders, AClickJumps)
{
    QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, at(80));
    ASSERT_EQ(moved.count(), 1);
    EXPECT_EQ(moved.at(0).at(0).toInt(), 80);
}

TEST_F(VolumeSliders, ADragFollowsAtOnceAndStopsAtTheEnds)
{
    QTest::mousePress(&slider, Qt::LeftButton, Qt::NoModifier, at(60));
    moveMouse(&slider, at(70));
    EXPECT_EQ(moved.last().at(0).toInt(), 70);
    moveMouse(&slider, QPoint(900, 19));
    EXPECT_EQ(moved.last().at(0).toInt(), 100);
    moveMouse(&slider, QPoint(-900, 19));
    EXPECT_EQ(moved.last().at(0).toInt(), 0);
    QTest::mouseRelease(&slider, Qt::LeftButton, Qt::NoModifier, at(0));
}

TEST_F(VolumeSliders, TheWheelMovesByFiveAndCollectsPartsOfANotch)
{
    wheel(120);
    EXPECT_EQ(slider.value(), 55);
    wheel(-240);
    EXPECT_EQ(slider.value(), 45);
    wheel(60);
    EXPECT_EQ(slider.value(), 45);
    wheel(60);
    EXPECT_EQ(slider.value(), 50);
}

TEST_F(VolumeSliders, WhatThePlayerReportsIsNoMoveOfTheUser)
{
    slider.showVolume(100, 1.7F);
    EXPECT_EQ(slider.value(), 100);
    EXPECT_TRUE(moved.isEmpty());
}

TEST_F(VolumeSliders, ALouderVolumeThanTheSliderReachesIsNotTakenBackAtItsEnd)
{
    slider.showVolume(100, 1.7F);
    wheel(120);
    EXPECT_TRUE(moved.isEmpty());
}

TEST_F(VolumeSliders, ArrowKeysMoveByOne)
{
    QTest::keyClick(&slider, Qt::Key_Right);
    QTest::keyClick(&slider, Qt::Key_Right);
    QTest::keyClick(&slider, Qt::Key_Left);
    EXPECT_EQ(slider.value(), 51);
    QTest::keyClick(&slider, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(slider.value(), 51);
}
