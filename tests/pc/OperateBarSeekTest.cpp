// Time, seeking, speed, chapters and frames on the bar of controls.
#include "OperateBar.h"

#include "MouseMoves.h"

// ---- time and seek

TEST_F(OperateBars, TimeMovesSliderAndText)
{
    play(65, 3725);
    EXPECT_EQ(bar.timeText(), "00:01:05 / 01:02:05");
    EXPECT_EQ(bar.progressBar()->value(), 65);
    EXPECT_EQ(bar.progressBar()->total(), 3725);
}

TEST_F(OperateBars, ADragShowsItsTargetAndIsNotMovedByTheEngine)
{
    play(60, 600);
    QSignalSpy seek(&bar, &NormalOperateBar::sig_seek);
    QTest::mousePress(bar.progressBar(), Qt::LeftButton, Qt::NoModifier, at(200));
    moveMouse(bar.progressBar(), at(300));
    bar.slot_setTimeInfo(61, 600);
    EXPECT_EQ(bar.progressBar()->sliderPosition(), 300);
    EXPECT_EQ(bar.timeText(), "00:05:00 / 00:10:00");
    EXPECT_TRUE(seek.isEmpty());
    QTest::mouseRelease(bar.progressBar(), Qt::LeftButton, Qt::NoModifier, at(310));
    ASSERT_EQ(seek.count(), 1);
    EXPECT_EQ(seek.at(0).at(0).toInt(), 310);
    EXPECT_EQ(bar.timeText(), "00:05:10 / 00:10:00");
    bar.slot_setTimeInfo(311, 600);
    EXPECT_EQ(bar.timeText(), "00:05:11 / 00:10:00");
}

TEST_F(OperateBars, ADragTakenBackShowsTheEnginesTimeAgain)
{
    play(60, 600);
    QTest::mousePress(bar.progressBar(), Qt::LeftButton, Qt::NoModifier, at(200));
    bar.slot_setTimeInfo(75, 600);
    QTest::keyClick(bar.progressBar(), Qt::Key_Escape);
    EXPECT_EQ(bar.timeText(), "00:01:15 / 00:10:00");
}

TEST_F(OperateBars, AStopInTheMiddleOfADragSeeksNowhere)
{
    play(60, 600);
    QSignalSpy seek(&bar, &NormalOperateBar::sig_seek);
    QTest::mousePress(bar.progressBar(), Qt::LeftButton, Qt::NoModifier, at(200));
    bar.slot_setUiByStatus(QPlayer::QPlayerStatus_Stopped);
    QTest::mouseRelease(bar.progressBar(), Qt::LeftButton, Qt::NoModifier, at(300));
    EXPECT_TRUE(seek.isEmpty());
    EXPECT_EQ(bar.timeText(), "00:00:00 / 00:00:00");
}

TEST_F(OperateBars, AClickSeeksAndTellsIt)
{
    play(60, 600);
    QSignalSpy seek(&bar, &NormalOperateBar::sig_seek);
    QSignalSpy seeked(&bar, &NormalOperateBar::sig_seeked);
    QTest::mouseClick(bar.progressBar(), Qt::LeftButton, Qt::NoModifier, at(420));
    ASSERT_EQ(seek.count(), 1);
    EXPECT_EQ(seek.at(0).at(0).toInt(), 420);
    EXPECT_EQ(seeked.count(), 1);
    EXPECT_TRUE(player.calls.isEmpty());
}

TEST_F(OperateBars, OldPositionsDoNotPullTheSliderBackWhileASeekRuns)
{
    play(60, 600);
    QTest::mouseClick(bar.progressBar(), Qt::LeftButton, Qt::NoModifier, at(420));
    bar.slot_responseSeekState(libvp::VD_Seek_Begin);
    bar.slot_setTimeInfo(61, 600);
    EXPECT_EQ(bar.progressBar()->value(), 420);
    bar.slot_responseSeekState(libvp::VD_Seek_End);
    bar.slot_setTimeInfo(421, 600);
    EXPECT_EQ(bar.progressBar()->value(), 421);
}

TEST_F(OperateBars, AFailedSeekShowsTheEnginesPositionAgain)
{
    play(60, 600);
    QTest::mouseClick(bar.progressBar(), Qt::LeftButton, Qt::NoModifier, at(420));
    bar.slot_responseSeekState(libvp::VD_Seek_Begin);
    bar.slot_responseSeekState(libvp::VD_Seek_Failed);
    bar.slot_setTimeInfo(62, 600);
    EXPECT_EQ(bar.progressBar()->value(), 62);
}

TEST_F(OperateBars, ASourceWithoutALengthHasATimeButNoSeek)
{
    play(30, 0);
    EXPECT_EQ(bar.timeText(), "00:00:30 / 00:00:00");
    QSignalSpy seek(&bar, &NormalOperateBar::sig_seek);
    QTest::mouseClick(bar.progressBar(), Qt::LeftButton, Qt::NoModifier, QPoint(500, 12));
    EXPECT_TRUE(seek.isEmpty());
}

// ---- speed, chapters, frames

TEST_F(OperateBars, SpeedButtonsCallThePlayerAndAreCounted)
{
    play();
    click(Button::Fast);
    click(Button::Rewind);
    EXPECT_EQ(player.calls, QStringList({"speedUp 1", "speedUp 0"}));
    ASSERT_EQ(behaviour.count(), 2);
    EXPECT_EQ(behaviour.at(0).at(0).toString(), "FastUsed");
    EXPECT_EQ(behaviour.at(1).at(0).toString(), "RewindUsed");
}

TEST_F(OperateBars, ChapterButtonsStepThroughChaptersAndAreCounted)
{
    play();
    click(Button::NextChapter);
    click(Button::LastChapter);
    EXPECT_EQ(player.calls, QStringList({"nextChapter", "lastChapter"}));
    ASSERT_EQ(behaviour.count(), 2);
    EXPECT_EQ(behaviour.at(0).at(0).toString(), "NextChapterUsed");
    EXPECT_EQ(behaviour.at(1).at(0).toString(), "LastChapterUsed");
}

TEST_F(OperateBars, WithOneChapterTheyAskForTheNeighbourInTheQueue)
{
    play();
    player.chapters = 1;
    QSignalSpy next(&bar, &NormalOperateBar::sig_playNext);
    QSignalSpy last(&bar, &NormalOperateBar::sig_playLast);
    click(Button::NextChapter);
    click(Button::LastChapter);
    EXPECT_EQ(next.count(), 1);
    EXPECT_EQ(last.count(), 1);
    EXPECT_TRUE(player.calls.isEmpty());
    EXPECT_TRUE(behaviour.isEmpty());
}

TEST_F(OperateBars, FrameStepsAnnounceThenStepAndCountOnce)
{
    play();
    QStringList order;
    QObject::connect(&bar, &NormalOperateBar::sig_nextFrameClicked, &bar,
                     [&] { order << QStringLiteral("signal after %1 calls").arg(player.calls.size()); });
    QSignalSpy previous(&bar, &NormalOperateBar::sig_previousFrameClicked);
    click(Button::NextFrame);
    EXPECT_EQ(order, QStringList("signal after 0 calls"));
    EXPECT_EQ(player.calls, QStringList("stepFrame 1"));
    ASSERT_EQ(behaviour.count(), 1);
    EXPECT_EQ(behaviour.at(0).at(0).toString(), "FrameOperateUsed");
    click(Button::PreviousFrame);
    EXPECT_EQ(player.calls.last(), "stepFrame 0");
    EXPECT_EQ(previous.count(), 1);
    EXPECT_EQ(behaviour.count(), 2);
}
