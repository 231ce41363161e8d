#include "MouseMoves.h"

#include "transport/NormalProgressBar.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class ProgressBars : public testing::Test {
protected:
    void SetUp() override
    {
        bar.resize(1020, 24);
        bar.setTotal(1000);
        bar.setPosition(100);
        bar.show();
    }
    [[nodiscard]] QPoint at(int seconds) const { return {qRound(bar.track().xOf(seconds)), 12}; }
    NormalProgressBar bar;
    QSignalSpy chosen{&bar, &NormalProgressBar::sig_valueChanged};
};

} // namespace

TEST_F(ProgressBars, AClickChoosesThatSecondOnce)
{
    QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, at(640));
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen.at(0).at(0).toInt(), 640);
    EXPECT_EQ(bar.value(), 640);
}

TEST_F(ProgressBars, ADragChoosesAtItsReleaseAndIgnoresTheEngineUntilThen)
{
    QTest::mousePress(&bar, Qt::LeftButton, Qt::NoModifier, at(200));
    moveMouse(&bar, at(300));
    bar.setPosition(101);
    EXPECT_EQ(bar.sliderPosition(), 300);
    EXPECT_TRUE(chosen.isEmpty());
    QTest::mouseRelease(&bar, Qt::LeftButton, Qt::NoModifier, at(420));
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen.at(0).at(0).toInt(), 420);
    bar.setPosition(421);
    EXPECT_EQ(bar.value(), 421);
}

TEST_F(ProgressBars, ADragBeyondTheEndsStaysInTheSource)
{
    QTest::mousePress(&bar, Qt::LeftButton, Qt::NoModifier, at(200));
    QTest::mouseRelease(&bar, Qt::LeftButton, Qt::NoModifier, QPoint(4000, 12));
    EXPECT_EQ(chosen.at(0).at(0).toInt(), 1000);
}

TEST_F(ProgressBars, EscapeTakesADragBack)
{
    QTest::mousePress(&bar, Qt::LeftButton, Qt::NoModifier, at(200));
    moveMouse(&bar, at(300));
    QTest::keyClick(&bar, Qt::Key_Escape);
    EXPECT_FALSE(bar.isSliderDown());
    EXPECT_EQ(bar.value(), 100);
    QTest::mouseRelease(&bar, Qt::LeftButton, Qt::NoModifier, at(300));
    EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(ProgressBars, DisablingOrHidingTakesADragBack)
{
    QTest::mousePress(&bar, Qt::LeftButton, Qt::NoModifier, at(200));
    bar.setEnabled(false);
    EXPECT_FALSE(bar.isSliderDown());
    bar.setEnabled(true);
    QTest::mousePress(&bar, Qt::LeftButton, Qt::NoModifier, at(300));
    bar.hide();
    EXPECT_FALSE(bar.isSliderDown());
    EXPECT_EQ(bar.value(), 100);
    EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(ProgressBars, WithoutALengthNothingCanBeChosen)
{
    bar.setTotal(0);
    QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, QPoint(500, 12));
    QTest::keyClick(&bar, Qt::Key_Right);
    EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(ProgressBars, TheRightButtonDoesNotSeek)
{
    QTest::mouseClick(&bar, Qt::RightButton, Qt::NoModifier, at(640));
    EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(ProgressBars, TheKeyboardMovesByTenSecondsAndStaysInside)
{
    QTest::keyClick(&bar, Qt::Key_Right);
    EXPECT_EQ(bar.value(), 110);
    QTest::keyClick(&bar, Qt::Key_Left);
    EXPECT_EQ(bar.value(), 100);
    QTest::keyClick(&bar, Qt::Key_Home);
    QTest::keyClick(&bar, Qt::Key_Left);
    EXPECT_EQ(bar.value(), 0);
    EXPECT_EQ(chosen.count(), 4);
}

TEST_F(ProgressBars, KeysWithModifiersAreLeftToTheWindow)
{
    QTest::keyClick(&bar, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(ProgressBars, HoveringTellsTheTimeAndThePointOnTheUpperEdge)
{
    QSignalSpy hovered(&bar, &NormalProgressBar::sig_mouseHoverd);
    QSignalSpy left(&bar, &NormalProgressBar::sig_mouseLeaved);
    moveMouse(&bar, at(500));
    ASSERT_FALSE(hovered.isEmpty());
    EXPECT_EQ(hovered.last().at(0).toString(), "00:08:20");
    EXPECT_EQ(hovered.last().at(1).toPoint(), bar.mapToGlobal(QPoint(at(500).x(), 0)));
    EXPECT_TRUE(chosen.isEmpty());
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&bar, &leave);
    EXPECT_EQ(left.count(), 1);
}

TEST_F(ProgressBars, TheEnginesPositionNeverCountsAsAChoice)
{
    bar.setPosition(700);
    bar.setTotal(600);
    EXPECT_EQ(bar.value(), 600);
    EXPECT_TRUE(chosen.isEmpty());
}
