#include "FakeCommands.h"
#include "MouseMoves.h"
#include "TestSettings.h"

#include "transport/NormalOperateBar.h"
#include "transport/NormalProgressBar.h"
#include "transport/ThreeDMenu.h"
#include "transport/TransportButton.h"
#include "transport/VolumeControl.h"
#include "transport/VolumeSlider.h"

#include "core/SettingsKeys.h"
#include "keys/KeyOperateType.h"
#include "ui/OverlayHost.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using Button = NormalOperateBar::Button;
using Status = QPlayer::QPlayerStatus;

class OperateBars : public testing::Test {
protected:
    void SetUp() override
    {
        bar.resize(1280, 132);
        bar.show();
    }
    void play(int seconds = 60, int total = 600)
    {
        bar.slot_setUiByStatus(QPlayer::QPlayerStatus_Playing);
        bar.slot_setTimeInfo(seconds, total);
        player.calls.clear();
    }
    [[nodiscard]] QPoint at(int seconds) const
    {
        return {qRound(bar.progressBar()->track().xOf(seconds)), bar.progressBar()->height() / 2};
    }
    [[nodiscard]] bool isSeen(Button button) const { return bar.button(button)->isVisible(); }
    void click(Button button) { QTest::mouseClick(bar.button(button), Qt::LeftButton); }

    FakeCommands player;
    TestSettings settings;
    NormalOperateBar bar{player.commands(), *settings};
    QSignalSpy behaviour{&bar, &NormalOperateBar::sig_userBehaviour};
};

} // namespace

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

// ---- volume

TEST_F(OperateBars, AVolumeKeyAtTheTopShowsHundred)
{
    play();
    player.volume = 2.0F;
    bar.slot_addVolume();
    EXPECT_EQ(player.calls, QStringList("setVolume 200"));
    EXPECT_EQ(bar.volumeSlider()->value(), 100);
    bar.slot_reduceVolume();
    EXPECT_EQ(player.calls.last(), "setVolume 199");
}

TEST_F(OperateBars, AVolumeKeyWithoutASourceDoesNothing)
{
    player.source = false;
    bar.slot_addVolume();
    bar.slot_changeVolume(-3);
    EXPECT_TRUE(player.calls.isEmpty());
}

TEST_F(OperateBars, TheSliderSetsTheVolume)
{
    play();
    QTest::keyClick(bar.volumeSlider(), Qt::Key_Left);
    EXPECT_EQ(player.calls.last(), "setVolume 99");
    bar.slot_moveVolumnSlider(30);
    EXPECT_FLOAT_EQ(player.volume, 0.3F);
    EXPECT_EQ(bar.volumeSlider()->value(), 30);
}

TEST_F(OperateBars, MuteSwapsItsButtonAndStoresItself)
{
    click(Button::Volume);
    EXPECT_TRUE(isSeen(Button::Mute));
    EXPECT_FALSE(isSeen(Button::Volume));
    EXPECT_TRUE(player.muted);
    EXPECT_TRUE(settings->value(SettingsKeys::PC_VolumeMute).toBool());
    click(Button::Mute);
    EXPECT_TRUE(isSeen(Button::Volume));
    EXPECT_FALSE(settings->value(SettingsKeys::PC_VolumeMute).toBool());
}

TEST_F(OperateBars, VolumeAndMuteAreGivenToEachSourceThatStarts)
{
    settings->setValue(SettingsKeys::PC_VolumeCount, 40);
    settings->setValue(SettingsKeys::PC_VolumeMute, true);
    bar.volumeControl()->restore();
    player.calls.clear();
    bar.slot_setUiByStatus(QPlayer::QPlayerStatus_Playing);
    EXPECT_EQ(player.calls, QStringList({"setVolume 40", "setMute 1"}));
    player.calls.clear();
    bar.slot_setUiByStatus(QPlayer::QPlayerStatus_Paused);
    bar.slot_setUiByStatus(QPlayer::QPlayerStatus_Playing);
    EXPECT_TRUE(player.calls.isEmpty());
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

// ---- tool tips, names and keyboard

TEST_F(OperateBars, TipsAndKeysStandInTheButtonsProperties)
{
    const struct {
        Button button;
        const char *tip;
        int hotKey;
    } rows[] = {
        {Button::Play, "Play / Pause", KeyOperate_PlayPause},
        {Button::Pause, "Play / Pause", KeyOperate_PlayPause},
        {Button::Stop, "Stop", KeyOperate_Stop},
        {Button::Rewind, "Rewind", KeyOperate_Rewind},
        {Button::Fast, "Fast forward", KeyOperate_FastForward},
        {Button::NextChapter, "Next", KeyOperate_NextChapter},
        {Button::LastChapter, "Previous ", KeyOperate_PreviousChapter},
        {Button::Volume, "Mute / Mute off", KeyOperate_Mute},
        {Button::Mute, "Mute / Mute off", KeyOperate_Mute},
        {Button::PreviousFrame, "Previous Frame", KeyOperate_PreviousFrame},
        {Button::NextFrame, "Next Frame", KeyOperate_NextFrame},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(bar.button(row.button)->property("tip").toString(), row.tip);
        EXPECT_EQ(bar.button(row.button)->property("hotKey").toInt(), row.hotKey) << row.tip;
    }
}

TEST_F(OperateBars, AToolTipFollowsAChangedKeyMap)
{
    QMap<int, QString> keys{{KeyOperate_Stop, QStringLiteral("Ctrl+S")}};
    bar.setKeyText([&keys](int operation) { return keys.value(operation); });
    const auto tipOf = [this](Button button) {
        QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
        QApplication::sendEvent(bar.button(button), &enter);
        return bar.button(button)->toolTip();
    };
    EXPECT_EQ(tipOf(Button::Stop), "Stop (Ctrl+S)");
    keys[KeyOperate_Stop] = QStringLiteral("Q");
    EXPECT_EQ(tipOf(Button::Stop), "Stop (Q)");
    keys.clear();
    EXPECT_EQ(tipOf(Button::Stop), "Stop");
    EXPECT_EQ(tipOf(Button::LastChapter), "Previous");
}

TEST_F(OperateBars, EveryControlHasANameForThoseWhoCannotSeeIt)
{
    const auto buttons = bar.findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons)
        EXPECT_FALSE(button->accessibleName().isEmpty()) << qPrintable(button->objectName());
    EXPECT_FALSE(bar.progressBar()->accessibleName().isEmpty());
    EXPECT_FALSE(bar.volumeSlider()->accessibleName().isEmpty());
}

TEST_F(OperateBars, TabWalksTheBarAndEnterPresses)
{
    play();
    QSignalSpy stop(&bar, &NormalOperateBar::sig_stopClicked);
    QSet<QWidget *> visited;
    for (int i = 0; i < 40 && bar.focusWidget() != bar.button(Button::Stop); ++i) {
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        EXPECT_TRUE(bar.handleKey(&tab));
        visited << bar.focusWidget();
    }
    ASSERT_EQ(bar.focusWidget(), bar.button(Button::Stop));
    EXPECT_GE(visited.size(), 4);
    EXPECT_FALSE(visited.contains(bar.button(Button::Play)));
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    EXPECT_TRUE(bar.handleKey(&enter));
    EXPECT_EQ(stop.count(), 1);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    EXPECT_TRUE(bar.handleKey(&escape));
    EXPECT_FALSE(bar.handleKey(&escape));
    EXPECT_FALSE(bar.handleKey(&enter));
    EXPECT_EQ(stop.count(), 1);
}

TEST_F(OperateBars, KeysAreTheWindowsWhileTheKeyboardIsNotOnTheBar)
{
    play();
    QKeyEvent right(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
    QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    EXPECT_FALSE(bar.handleKey(&right));
    EXPECT_FALSE(bar.handleKey(&space));
}

// ---- form

TEST_F(OperateBars, ClicksAboveTheControlsBelongToThePicture)
{
    EXPECT_FALSE(bar.takesMouseAt(QPoint(600, 5)));
    EXPECT_TRUE(bar.takesMouseAt(QPoint(600, 95)));
    EXPECT_TRUE(bar.takesMouseAt(bar.progressBar()->geometry().center()));
}

TEST_F(OperateBars, TheCompactFormIsOpaqueAndHoldsEveryControlAndTheHoverTime)
{
    play();
    bar.setCompact(true);
    const QPainterPath shape = bar.opaqueShape();
    const auto buttons = bar.findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons) {
        if (button->isVisible()) {
            EXPECT_TRUE(shape.contains(QRectF(button->geometry()))) << qPrintable(button->objectName());
        }
    }
    EXPECT_FALSE(shape.contains(QPointF(640, 20)));
    emit bar.progressBar()->sig_mouseHoverd(QStringLiteral("00:05:00"), bar.mapToGlobal(QPoint(640, 40)));
    EXPECT_TRUE(bar.opaqueShape().contains(QPointF(640, 20)));
    emit bar.progressBar()->sig_mouseLeaved();
    EXPECT_FALSE(bar.opaqueShape().contains(QPointF(640, 20)));
}

TEST(HostedOperateBar, WithoutACompositorItIsCutToItsPanelFromTheFirstMoment)
{
    FakeCommands player;
    TestSettings settings;
    QWidget window;
    window.setGeometry(50, 50, 900, 500);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    OverlayHost host(&window);
    host.setCompositingQuery([] { return false; });
    auto *bar = new NormalOperateBar(player.commands(), *settings);
    host.add(bar, {OverlayRule::Anchor::Bottom, QMargins(), 1});
    bar->appear();
    ASSERT_TRUE(bar->isVisible());
    EXPECT_EQ(bar->geometry(), QRect(50, 550 - 132, 900, 132));
    const auto buttons = bar->findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons) {
        if (button->isVisible()) {
            EXPECT_TRUE(bar->mask().contains(button->geometry().center()))
                << qPrintable(button->objectName());
        }
    }
    EXPECT_TRUE(bar->mask().contains(bar->progressBar()->geometry().center()));
    EXPECT_FALSE(bar->mask().contains(QPoint(450, 5)));
    EXPECT_LT(bar->mask().boundingRect().right(), 900);
}

TEST_F(OperateBars, ABarOfAnyWidthCanBeShown)
{
    for (const int width : {1, 40, 200, 400, 640, 3840}) {
        bar.resize(width, 132);
        EXPECT_FALSE(bar.grab().isNull());
    }
}
