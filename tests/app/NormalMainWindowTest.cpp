#include "pc/NormalMainWindow.h"

#include "WindowFixture.h"

#include "core/SettingsKeys.h"
#include "dialogs/NormalMessageBox.h"
#include "keys/AppEventFilter.h"
#include "overlays/NormalTitleBar.h"
#include "overlays/PlayOverlays.h"
#include "pc/NormalPlayControl.h"
#include "pc/NormalPlayView.h"
#include "playcontrol/RecentFiles.h"
#include "queue/NormalPlaylistView.h"
#include "start/NormalStartView.h"
#include "ui/VideoSurface.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>

#include <thread>

namespace {

class NormalMainWindowTest : public WindowFixture {
protected:
    void open(bool show = true)
    {
        m_window = std::make_unique<NormalMainWindow>(nullptr, show);
        m_control = m_window->playControl();
    }
    void play(const QString &path)
    {
        m_window->slot_playSource(path);
        ASSERT_TRUE(QTest::qWaitFor([] { return openCount() > 0; }, 10000));
        ASSERT_TRUE(QTest::qWaitFor([this] { return !m_control->isOpening(); }, 10000));
    }
    static void raiseVideoInfo(bool audioOnly = false)
    {
        libvp::VDVideoInfo info;
        fakeEngine().setStatistic(libvp::VD_Stat_AudioOnly, audioOnly ? 1 : 0);
        fakeEngine().raise([info](libvp::IVDPlayCallback &callback) { callback.OnVideoInfo(&info); });
    }
    void drop(const QStringList &paths)
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls << QUrl::fromLocalFile(path);
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(10, 100), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window.get(), &enter);
        ASSERT_TRUE(enter.isAccepted());
        QDropEvent event(QPointF(10, 100), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window.get(), &event);
    }
    // Answers the next box with its first button; its text is kept.
    void answerNextBox()
    {
        m_boxTimer.setInterval(10);
        QObject::connect(&m_boxTimer, &QTimer::timeout, m_window.get(), [this] {
            if (auto *box = qobject_cast<NormalMessageBox *>(QApplication::activeModalWidget())) {
                m_boxTimer.stop();
                ++m_boxes;
                box->button(NormalMessageBox::FirstButtonId)->click();
            }
        });
        m_boxTimer.start();
    }

    std::unique_ptr<NormalMainWindow> m_window;
    NormalPlayControl *m_control{nullptr};
    QTimer m_boxTimer;
    int m_boxes{0};
};

TEST_F(NormalMainWindowTest, OpensOnTheStartViewAtTheDefaultSize)
{
    open();
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_FALSE(m_window->isPlayViewShown());
    EXPECT_TRUE(m_window->windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_EQ(m_window->findChild<NormalTitleBar *>()->text(), "Quorin Player 6");
}

TEST_F(NormalMainWindowTest, NotShownNowItStaysHidden)
{
    open(false);
    EXPECT_FALSE(m_window->isVisible());
}

TEST_F(NormalMainWindowTest, TheFullScreenFlagShowsItInFullScreen)
{
    open(false);
    m_window->applyStartFlags(NormalMainWindow::StartFullScreen);
    EXPECT_FALSE(m_window->isVisible());
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_window->isVisible(); }, 5000));
    EXPECT_TRUE(m_window->isFullScreen());
}

TEST_F(NormalMainWindowTest, StartsInFullScreenWhenItWasLeftSo)
{
    SettingsManager::instance()->setValue(SettingsKeys::PC_FullScreen, true);
    open();
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_window->isFullScreen(); }, 5000));
}

TEST_F(NormalMainWindowTest, ARequestBeforeTheEngineIsUpWaitsForItAndPlays)
{
    const QString film = makeFile("film.mkv");
    open();
    m_window->slot_playSource(film);
    EXPECT_TRUE(m_window->isPlayViewShown());
    EXPECT_EQ(m_window->findChild<NormalTitleBar *>()->text(), "film.mkv");
    ASSERT_TRUE(QTest::qWaitFor([] { return openCount() == 1; }, 10000));
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return m_window->findChild<VideoSurface *>()->isPlaying() && !m_control->isOpening(); },
        10000));
    const QStringList log = TestLog::infoLines();
    EXPECT_LT(log.indexOf("[PlaySource]: " + film), log.indexOf("[PlaySource]: Play operate completed"));
    EXPECT_TRUE(log.contains("[PlaySource]: " + film));
    EXPECT_TRUE(SettingsManager::instance()->value(SettingsKeys::PC_Played).toBool());
}

TEST_F(NormalMainWindowTest, ASecondRequestDuringAnOpenIsDropped)
{
    open();
    fakeEngine().hold("IVDPlay::open");
    m_window->slot_playSource(makeFile("a.mkv"));
    ASSERT_TRUE(QTest::qWaitFor([] { return fakeEngine().waitHeld("IVDPlay::open", 10); }, 10000));
    m_window->slot_playSource(makeFile("b.mkv"));
    EXPECT_EQ(m_control->displayName(), "a.mkv");
    fakeEngine().release("IVDPlay::open");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !m_control->isOpening(); }, 10000));
    EXPECT_EQ(openCount(), 1);
}

TEST_F(NormalMainWindowTest, TheWindowStaysAliveWhileAnOpenHangs)
{
    open();
    fakeEngine().hold("IVDPlay::open");
    m_window->slot_playSource(makeFile("a.mkv"));
    ASSERT_TRUE(QTest::qWaitFor([] { return fakeEngine().waitHeld("IVDPlay::open", 10); }, 10000));
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return m_window->findChild<NormalPlayView *>()->isWaitingShown(); }, 5000));
    fakeEngine().release("IVDPlay::open");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !m_control->isOpening(); }, 10000));
}

TEST_F(NormalMainWindowTest, VideoInformationIsLoggedAndResetsTheAuthorInformation)
{
    open();
    play(makeFile("film.mkv"));
    raiseVideoInfo();
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_control->mediaKind() == "Video"; }, 10000));
    EXPECT_TRUE(TestLog::infoLines().contains("[Play control] Enter slot_responseVideoInfo"));
    EXPECT_TRUE(fakeEngine().waitCall("IVDPlay::setAuthorInfo(0", 5000));
}

TEST_F(NormalMainWindowTest, TheEndOfTheSourceGoesBackToTheStartView)
{
    open();
    play(makeFile("film.mkv"));
    fakeEngine().raise([](libvp::IVDPlayCallback &callback) { callback.OnPlayBackEnded(); });
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_window->isPlayViewShown(); }, 10000));
    EXPECT_TRUE(fakeEngine().waitCall("IVDPlay::close", 5000));
    EXPECT_TRUE(m_window->isVisible());
}

TEST_F(NormalMainWindowTest, WithCloseAtEndTheWindowClosesAtTheEnd)
{
    open();
    m_window->applyStartFlags(NormalMainWindow::StartCloseAtEnd);
    play(makeFile("film.mkv"));
    fakeEngine().raise([](libvp::IVDPlayCallback &callback) { callback.OnPlayBackEnded(); });
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_window->isVisible(); }, 10000));
}

TEST_F(NormalMainWindowTest, AFailureIsToldAndLeadsBackToTheStartView)
{
    open();
    play(makeFile("film.mkv"));
    answerNextBox();
    fakeEngine().raise([](libvp::IVDPlayCallback &callback) { callback.OnPlayBackFailed(7, vdFileInfo()); });
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_boxes == 1 && !m_window->isPlayViewShown(); }, 10000));
    const QStringList log = TestLog::infoLines();
    EXPECT_TRUE(log.contains("[Error code]: 7"));
    EXPECT_TRUE(log.contains("[PlayMode]: PC"));
    EXPECT_TRUE(log.contains("[Error of modules]: PC"));
}

TEST_F(NormalMainWindowTest, ARendererFailureIsToldAndTheProgramRunsOn)
{
    fakeEngine().answer("IVDPlayTool::isValid", 0);
    open();
    answerNextBox();
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_boxes == 1; }, 10000));
    EXPECT_TRUE(m_window->isVisible());
    m_window->slot_playSource(makeFile("film.mkv"));
    EXPECT_FALSE(m_window->isPlayViewShown());
    EXPECT_EQ(openCount(), 0);
}

TEST_F(NormalMainWindowTest, ARequestThatWaitsForAFailingEngineEndsOnTheStartView)
{
    fakeEngine().answer("IVDPlayTool::isValid", 0);
    open();
    answerNextBox();
    m_window->slot_playSource(makeFile("film.mkv"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_boxes == 1 && !m_window->isPlayViewShown(); }, 10000));
}

TEST_F(NormalMainWindowTest, ClosingDuringAnOpenClosesTheSourceAndWaitsForTheWorker)
{
    open();
    fakeEngine().hold("IVDPlay::open");
    m_window->slot_playSource(makeFile("a.mkv"));
    ASSERT_TRUE(QTest::qWaitFor([] { return fakeEngine().waitHeld("IVDPlay::open", 10); }, 10000));
    // The open returns once the engine has been told to close, as a disc that is given up does.
    std::thread engine([] {
        (void)fakeEngine().waitCall("IVDPlay::close");
        fakeEngine().release("IVDPlay::open");
    });
    m_window->close();
    engine.join();
    EXPECT_FALSE(m_window->isVisible());
    EXPECT_FALSE(m_control->isOpening());
}

TEST_F(NormalMainWindowTest, ClosingStoresWhereTheWindowStood)
{
    open();
    m_window->setGeometry(120, 130, 900, 500);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(m_window.get()));
    m_window->close();
    const auto *store = SettingsManager::instance();
    EXPECT_EQ(store->value(SettingsKeys::PC_LastWindowSize).toSize(), QSize(900, 500));
    EXPECT_EQ(store->value(SettingsKeys::PC_LastWindowPos).toPoint(), QPoint(120, 130));
    EXPECT_FALSE(store->value(SettingsKeys::PC_FullScreen).toBool());
}

TEST_F(NormalMainWindowTest, ClosingKeepsThePositionOfWhatPlays)
{
    const QString film = makeFile("film.mkv");
    open();
    play(film);
    fakeEngine().setAutomatic(false);
    vdStopPlayInfo info;
    qstrncpy(info.path, film.toUtf8().constData(), sizeof(info.path));
    info.positionMs = 300000;
    info.totalMs = 3600000;
    fakeEngine().hold("IVDPlay::close");
    std::thread engine([info] {
        if (fakeEngine().waitHeld("IVDPlay::close"))
            fakeEngine().raise([info](libvp::IVDPlayCallback &callback) { callback.OnStopInfo(info); });
        (void)fakeEngine().waitNotified(2000);
        fakeEngine().release("IVDPlay::close");
    });
    m_window->close();
    engine.join();
    EXPECT_EQ(SettingsManager::instance()->lastPosition(film), 300);
}

TEST_F(NormalMainWindowTest, VolumeKeysWithoutASourceDoNothing)
{
    open();
    ASSERT_TRUE(fakeEngine().waitCall("IVDPlayTool::isValid", 10)
                || QTest::qWaitFor([] { return fakeEngine().tool() != nullptr; }, 10000));
    QTest::qWait(0);
    fakeEngine().clearCalls();
    m_window->slot_changeVolume(1);
    m_window->slot_hotKey(KeyOperate_VolumeUp);
    for (const std::string &call : fakeEngine().calls())
        EXPECT_EQ(call.find("setVolume"), std::string::npos) << call;
}

TEST_F(NormalMainWindowTest, KeysDriveTheSource)
{
    open();
    play(makeFile("film.mkv"));
    fakeEngine().clearCalls();
    m_window->slot_hotKey(KeyOperate_PlayPause);
    m_window->slot_hotKey(KeyOperate_Mute);
    EXPECT_TRUE(fakeEngine().waitCall("IVDPlayTool::setMute(true", 5000));
    EXPECT_TRUE(SettingsManager::instance()->value(SettingsKeys::PC_VolumeMute).toBool());
    m_window->slot_hotKey(KeyOperate_Stop);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_window->isPlayViewShown(); }, 10000));
}

TEST_F(NormalMainWindowTest, EscapeLeavesFullScreen)
{
    open();
    m_window->slot_fullScreen();
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_window->isFullScreen(); }, 5000));
    EXPECT_TRUE(m_window->findChild<NormalTitleBar *>()->isVisible()) << "the way out for the mouse";
    QTest::keyClick(m_window.get(), Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_window->isFullScreen(); }, 5000));
    QTest::keyClick(m_window.get(), Qt::Key_Return, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_window->isFullScreen(); }, 5000));
}

TEST_F(NormalMainWindowTest, ADroppedFileIsPlayed)
{
    const QString film = makeFile("film.mkv");
    open();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(film)});
    QDragEnterEvent enter(QPoint(10, 100), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(10, 100), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window.get(), &drop);
    EXPECT_TRUE(drop.isAccepted());
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_window->isPlayViewShown(); }, 5000));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !m_control->isOpening(); }, 10000));
}

TEST_F(NormalMainWindowTest, DroppedFilesPlayOneAfterTheOther)
{
    const QString first = makeFile("a.mkv");
    const QString second = makeFile("b.mkv");
    SettingsManager::instance()->setValue(SettingsKeys::PC_PlaylistLoopType, 1); // one after the other
    open();
    drop({first, second});
    ASSERT_TRUE(QTest::qWaitFor([] { return openCount() == 1; }, 10000));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !m_control->isOpening(); }, 10000));
    EXPECT_EQ(m_control->currentPath(), first);
    EXPECT_EQ(m_window->overlays()->playlist()->queue()->count(), 2);
    fakeEngine().raise([](libvp::IVDPlayCallback &callback) { callback.OnPlayBackEnded(); });
    ASSERT_TRUE(QTest::qWaitFor([] { return openCount() == 2; }, 10000));
    EXPECT_EQ(m_control->currentPath(), second);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !m_control->isOpening(); }, 10000));
}

TEST_F(NormalMainWindowTest, ASubtitleDroppedOnWhatPlaysIsAdded)
{
    const QString subtitle = makeFile("film.srt");
    open();
    play(makeFile("film.mkv"));
    drop({subtitle});
    const std::string call = "IVDPlay::addSubtitle(" + subtitle.toStdString();
    EXPECT_TRUE(QTest::qWaitFor([&] { return fakeEngine().waitCall(call, 10); }, 10000));
    EXPECT_EQ(openCount(), 1);
}

TEST_F(NormalMainWindowTest, ADropOfNothingThatCanBePlayedIsTold)
{
    open();
    answerNextBox();
    drop({QStringLiteral("/nowhere/film.mkv")});
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_boxes == 1; }, 10000));
    EXPECT_FALSE(m_window->isPlayViewShown());
}

TEST_F(NormalMainWindowTest, ADragOfPagesOfTheWebIsNotTaken)
{
    open();
    QMimeData data;
    data.setUrls({QUrl("https://films.invalid/film.mkv")});
    QDragEnterEvent enter(QPoint(10, 100), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_window.get(), &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(NormalMainWindowTest, WhatWasPlayedStandsOnTheStartView)
{
    const QString film = makeFile("film.mkv");
    RecentFiles recent(*SettingsManager::instance());
    recent.clear();
    open();
    play(film);
    // A stop that comes before the window has heard of the source is no playing.
    ASSERT_TRUE(QTest::qWaitFor([&recent] { return !recent.entries().isEmpty(); }, 10000));
    m_window->slot_hotKey(KeyOperate_Stop);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !m_window->isPlayViewShown(); }, 10000));
    ASSERT_EQ(recent.entries().size(), 1);
    EXPECT_EQ(recent.entries().first().path, film);
    auto *start = m_window->findChild<NormalStartView *>();
    ASSERT_EQ(start->cards().size(), 1);
    emit start->recentClicked(film);
    ASSERT_TRUE(QTest::qWaitFor([] { return openCount() == 2; }, 10000));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !m_control->isOpening(); }, 10000));
}

TEST_F(NormalMainWindowTest, AlwaysOnTopKeepsTheWindowAndItsSurface)
{
    SettingsManager::instance()->setValue(SettingsKeys::PC_AlwaysOnTop, true);
    open();
    auto *surface = m_window->findChild<VideoSurface *>();
    const quintptr window = surface->nativeWindow();
    play(makeFile("film.mkv"));
    EXPECT_TRUE(m_window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_EQ(surface->nativeWindow(), window);
    m_window->slot_hotKey(KeyOperate_Stop);
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return !m_window->windowFlags().testFlag(Qt::WindowStaysOnTopHint); }, 10000));
}

} // namespace
