// What the bar of controls shows in each state, and what its buttons do to the views.
#include "OperateBar.h"

#include "MouseMoves.h"

#include "transport/ThreeDMenu.h"

#include <QApplication>

// ---- states

TEST_F(OperateBars, AtRestTheTimeIsZeroAndNothingThatNeedsASourceCanBePressed)
{
    EXPECT_EQ(bar.timeText(), "00:00:00 / 00:00:00");
    EXPECT_FALSE(bar.progressBar()->isEnabled());
    for (const Button button :
         {Button::Play, Button::Stop, Button::Rewind, Button::Fast, Button::NextChapter, Button::LastChapter,
          Button::NextFrame, Button::PreviousFrame, Button::Preview})
        EXPECT_FALSE(bar.button(button)->isEnabled());
    for (const Button button : {Button::Volume, Button::Playlist, Button::FullScreen, Button::ThreeDCube})
        EXPECT_TRUE(bar.button(button)->isEnabled());
}

TEST_F(OperateBars, PlayAndPauseChangePlacesWithTheStatus)
{
    for (const Status status :
         {QPlayer::QPlayerStatus_Playing, QPlayer::QPlayerStatus_Forward, QPlayer::QPlayerStatus_Rewind}) {
        bar.slot_setUiByStatus(status);
        EXPECT_TRUE(isSeen(Button::Pause)) << status;
        EXPECT_FALSE(isSeen(Button::Play)) << status;
        EXPECT_TRUE(bar.progressBar()->isEnabled()) << status;
    }
    bar.slot_setUiByStatus(QPlayer::QPlayerStatus_Paused);
    EXPECT_TRUE(isSeen(Button::Play));
    EXPECT_FALSE(isSeen(Button::Pause));
    EXPECT_TRUE(bar.button(Button::Play)->isEnabled());
    EXPECT_TRUE(bar.progressBar()->isEnabled());
}

TEST_F(OperateBars, StoppedEndedAndFailedAllHaveTheIdleLook)
{
    for (const Status status :
         {QPlayer::QPlayerStatus_Stopped, QPlayer::QPlayerStatus_Ended, QPlayer::QPlayerStatus_Failed}) {
        play(200, 600);
        bar.setChapterMarks({100, 300});
        bar.slot_setUiByStatus(status);
        EXPECT_TRUE(bar.isIdle());
        EXPECT_EQ(bar.timeText(), "00:00:00 / 00:00:00");
        EXPECT_EQ(bar.progressBar()->total(), 0);
        EXPECT_TRUE(bar.progressBar()->chapterMarks().isEmpty());
        EXPECT_TRUE(isSeen(Button::Play));
        EXPECT_FALSE(bar.button(Button::Play)->isEnabled());
    }
}

TEST_F(OperateBars, PlayAndPauseToggleOnlyWithASource)
{
    play();
    click(Button::Pause);
    bar.slot_setUiByStatus(QPlayer::QPlayerStatus_Paused);
    click(Button::Play);
    EXPECT_EQ(player.calls, QStringList({"togglePause", "togglePause"}));
    player.source = false;
    bar.slot_playClicked();
    bar.slot_pauseClicked();
    EXPECT_EQ(player.calls.size(), 2);
}

TEST_F(OperateBars, StopLeavesAsASignalAndNeverReachesTheEngineFromHere)
{
    play();
    QSignalSpy stop(&bar, &NormalOperateBar::sig_stopClicked);
    click(Button::Stop);
    EXPECT_EQ(stop.count(), 1);
    EXPECT_TRUE(player.calls.isEmpty());
}

TEST_F(OperateBars, ANewSourceResetsTheBarAndNamesIt)
{
    play();
    bar.setSeekControl(0);
    bar.reset(QStringLiteral("Northern Line.mkv"));
    EXPECT_EQ(bar.displayName(), "Northern Line.mkv");
    EXPECT_TRUE(bar.isIdle());
    EXPECT_TRUE(bar.progressBar()->isVisible());
    EXPECT_EQ(bar.timeText(), "00:00:00 / 00:00:00");
}

TEST_F(OperateBars, ASourceThatPlaysByItsMenuHasNoSeekControl)
{
    play();
    bar.setSeekControl(0);
    EXPECT_FALSE(bar.progressBar()->isVisible());
    bar.setSeekControl(1);
    EXPECT_TRUE(bar.progressBar()->isVisible());
    EXPECT_TRUE(bar.progressBar()->isEnabled());
}

// ---- views

TEST_F(OperateBars, FullScreenButtonsChangePlacesWithTheWindow)
{
    QSignalSpy full(&bar, &NormalOperateBar::sig_fullScreenClicked);
    QSignalSpy normal(&bar, &NormalOperateBar::sig_normalScreenClicked);
    click(Button::FullScreen);
    bar.setFullScreen(true);
    EXPECT_FALSE(isSeen(Button::FullScreen));
    click(Button::NormalScreen);
    EXPECT_EQ(full.count(), 1);
    EXPECT_EQ(normal.count(), 1);
}

TEST_F(OperateBars, TheQueueButtonTellsAndIsToldItsState)
{
    QSignalSpy clicked(&bar, &NormalOperateBar::sig_playlistClicked);
    click(Button::Playlist);
    ASSERT_EQ(clicked.count(), 1);
    EXPECT_TRUE(clicked.at(0).at(0).toBool());
    bar.slot_updatePlaylistButton(false);
    EXPECT_FALSE(bar.button(Button::Playlist)->isChecked());
    EXPECT_EQ(clicked.count(), 1);
}

TEST_F(OperateBars, ThePreviewButtonGoesAfterASeekAndComesBackWithThePointer)
{
    play();
    QTest::mouseClick(bar.progressBar(), Qt::LeftButton, Qt::NoModifier, at(420));
    EXPECT_FALSE(isSeen(Button::Preview));
    EXPECT_FALSE(bar.button(Button::Preview)->geometry().isEmpty());
    QEnterEvent enter(QPointF(10, 100), QPointF(10, 100), QPointF(10, 100));
    QApplication::sendEvent(&bar, &enter);
    EXPECT_TRUE(isSeen(Button::Preview));
}

TEST_F(OperateBars, ThePreviewCanBeOpenedWithoutThePointer)
{
    play();
    QSignalSpy preview(&bar, &NormalOperateBar::sig_previewClicked);
    bar.slot_hidePreviewButton();
    bar.slot_clickPreview();
    bar.slot_clickPreview();
    ASSERT_EQ(preview.count(), 2);
    EXPECT_TRUE(preview.at(0).at(0).toBool());
    EXPECT_FALSE(preview.at(1).at(0).toBool());
    bar.slot_setUiByStatus(QPlayer::QPlayerStatus_Stopped);
    bar.slot_clickPreview();
    EXPECT_EQ(preview.count(), 2);
}

TEST_F(OperateBars, ACoverMakesRoomForItselfAndIsClicked)
{
    QSignalSpy clicked(&bar, &NormalOperateBar::sig_musicPixmapClicked);
    EXPECT_FALSE(isSeen(Button::MusicPixmap));
    const int before = bar.button(Button::LastChapter)->x();
    bar.setMusicPixmap(QPixmap(64, 64));
    EXPECT_TRUE(isSeen(Button::MusicPixmap));
    EXPECT_GT(bar.button(Button::LastChapter)->x(), before);
    click(Button::MusicPixmap);
    EXPECT_EQ(clicked.count(), 1);
}

TEST_F(OperateBars, TheMusicViewsStateIsToldOnce)
{
    QSignalSpy changed(&bar, &NormalOperateBar::sig_musicViewShowHideChanged);
    bar.setMusicViewHidden(true);
    bar.setMusicViewHidden(true);
    bar.setMusicViewHidden(false);
    ASSERT_EQ(changed.count(), 2);
    EXPECT_TRUE(changed.at(0).at(0).toBool());
}

TEST_F(OperateBars, TheGripResizesTheWindowButNotInFullScreen)
{
    QSignalSpy resized(&bar, &NormalOperateBar::sig_resize);
    QSignalSpy done(&bar, &NormalOperateBar::sig_updateBorder);
    const QPoint corner(bar.width() - 4, bar.height() - 4);
    QTest::mousePress(&bar, Qt::LeftButton, Qt::NoModifier, corner);
    moveMouse(&bar, corner + QPoint(20, 20));
    QTest::mouseRelease(&bar, Qt::LeftButton, Qt::NoModifier, corner + QPoint(20, 20));
    ASSERT_GE(resized.count(), 1);
    EXPECT_EQ(resized.last().at(0).toPoint(), bar.mapToGlobal(corner + QPoint(20, 20)));
    EXPECT_EQ(done.count(), 1);
    bar.setFullScreen(true);
    QTest::mousePress(&bar, Qt::LeftButton, Qt::NoModifier, corner);
    QTest::mouseRelease(&bar, Qt::LeftButton, Qt::NoModifier, corner);
    EXPECT_EQ(done.count(), 1);
}

TEST_F(OperateBars, ThreeDChoicesGoThroughTheMenu)
{
    QSignalSpy setUp(&bar, &NormalOperateBar::sig_setup3D);
    const auto actions = bar.threeDMenu()->build()->actions();
    bar.slot_dealMenuAction(actions.at(1));
    EXPECT_EQ(setUp.count(), 1);
    EXPECT_TRUE(isSeen(Button::ThreeDText));
    EXPECT_FALSE(isSeen(Button::ThreeDCube));
}

TEST_F(OperateBars, AnOldSystemsUserReadsWhyThereIsNo3D)
{
    bar.threeDMenu()->setSystemTest([] { return true; });
    QSignalSpy message(&bar, &NormalOperateBar::sig_message);
    bar.slot_dealMenuAction(bar.threeDMenu()->build()->actions().first());
    ASSERT_EQ(message.count(), 1);
}
